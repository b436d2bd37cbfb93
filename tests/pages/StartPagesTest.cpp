// The pages around a design: opening, leaving, title, information, About and the guide.

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/Version.h"
#include "shell/modWriteConfig.h"

namespace quilm {
namespace {

class StartPages : public PageBench {
 protected:
  StartPages() : PageBench(AllPages()) { StartProgram(session); }

  void WriteFile(const std::string& name, const std::string& text) {
    std::ofstream(platform.ProgramFolder() + "/" + name) << text;
  }
};

TEST_F(StartPages, TheProgramStartsOnTheOpeningPageWithItsDefaults) {
  EXPECT_EQ(Top().Id(), PageId::Opening);
  EXPECT_EQ(session.record.Fstop, 1e7F);
  EXPECT_EQ(session.record.Rsource[1], 50);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(StartPages, TheConfigurationIsReadAtTheStart) {
  WriteFile(configurationFile, "Capacitor Q values: 1.5k\n");
  HeadlessPlatform other(platform.ProgramFolder());
  Session next(other, AllPages());
  StartProgram(next);
  EXPECT_EQ(next.record.Qcap[1], 1500);
}

TEST_F(StartPages, ANewDesignLeadsToTheDesignPage) {
  Press("cmdDesignNew");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::Opening), nullptr);
}

TEST_F(StartPages, TheLastSessionIsOfferedWhenThereIsOne) {
  EXPECT_FALSE(Get<Button>("cmdLastSession").Shown());
  WriteFile(lastSessionFile, "");
  session.pages.ShowPage(PageId::Opening);
  EXPECT_TRUE(Get<Button>("cmdLastSession").Shown());
}

// Where the system cannot even tell whether there is one, the program starts all the same.
TEST_F(StartPages, ALastSessionOutOfReachIsNone) {
  std::filesystem::create_symlink(lastSessionFile, platform.ProgramFolder() + "/" + lastSessionFile);
  session.pages.ShowPage(PageId::Opening);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_FALSE(Get<Button>("cmdLastSession").Shown());
  EXPECT_TRUE(Get<Button>("cmdDesignNew").Usable());
}

TEST_F(StartPages, ALastSessionThatIsNoFileIsToldAndChangesNothing) {
  std::filesystem::create_directory(platform.ProgramFolder() + "/" + lastSessionFile);
  session.pages.ShowPage(PageId::Opening);
  const DesignRecord before = session.record;
  Press("cmdLastSession");
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"The file " + platform.ProgramFolder() + "/" + lastSessionFile +
                                                     " cannot be opened."});
  EXPECT_EQ(Top().Id(), PageId::Opening);
  EXPECT_EQ(session.record, before);
}

TEST_F(StartPages, TheUpdatesPageIsHandedToTheBrowser) {
  Press("cmdGoTo");
  EXPECT_EQ(platform.opened, std::vector<std::string>{platform.HelpFolder() + "/updates.htm"});
}

TEST_F(StartPages, ExitFromTheOpeningPageWritesNothing) {
  Press("cmdExitOpening");
  EXPECT_TRUE(session.ended);
  EXPECT_EQ(File(configurationFile), "");
}

TEST_F(StartPages, TheCloseBoxOfTheOpeningPageWritesNothing) {
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_EQ(File(configurationFile), "");
}

TEST_F(StartPages, TheExitPageWritesTheConfigurationAndEndsTheProgram) {
  Press("cmdDesignNew");
  std::string note;
  platform.modalActs.push_back([&](Page& page) {
    EXPECT_EQ(page.title, "Exit ?");
    Press("cmdExit");
    ADD_FAILURE() << "the program goes on";
  });
  Press("cmdExit");
  EXPECT_TRUE(session.ended);
  EXPECT_GT(platform.paused, 0);
  EXPECT_NE(File(configurationFile).find("Capacitor Q values: 2000 \r\n"), std::string::npos);
}

TEST_F(StartPages, TheExitPageCanBeLeft) {
  Press("cmdDesignNew");
  platform.modalActs.push_back([&](Page&) { Press("cmdIgnore"); });
  Press("cmdExit");
  EXPECT_FALSE(session.ended);
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(StartPages, TheCloseBoxOfAMainPageKeepsThePreferences) {
  Press("cmdDesignNew");
  session.record.Fstart = 5000;
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_NE(File(configurationFile).find("Starting test freq: 5000 \r\n"), std::string::npos);
  EXPECT_EQ(session.record.DesignFileName, platform.ProgramFolder() + "/QuilmConfiguration.CFG");
}

TEST_F(StartPages, AConfigurationThatCannotBeWrittenIsNoSeriousProblem) {
  std::filesystem::create_directory(platform.ProgramFolder() + "/" + configurationFile);
  Press("cmdDesignNew");
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"The configuration file (QuilmConfiguration.CFG) was not "
                                                     "written.\r\nThis is not a serious problem."});
}

TEST_F(StartPages, TheTitleIsEditedAndCutTo80Characters) {
  Press("cmdDesignNew");
  platform.modalActs.push_back([&](Page&) {
    Enter("txtTitle", std::string(90, 'x'));
    Press("cmdOk");
  });
  Press("cmdTitle");
  EXPECT_EQ(session.record.CircuitTitle, std::string(80, 'x'));
  platform.modalActs.push_back([&](Page&) {
    EXPECT_EQ(Get<TextBox>("txtTitle").text, std::string(80, 'x'));
    Enter("txtTitle", "other");
    Press("cmdIgnore");
  });
  Press("cmdTitle");
  EXPECT_EQ(session.record.CircuitTitle, std::string(80, 'x'));
}

TEST_F(StartPages, AddedInformationThatAFileWouldLoseBecomesABlank) {
  Press("cmdDesignNew");
  const std::pair<const char*, const char*> rows[] = {
      {"for the 40 m band", "for the 40 m band"}, {"x", " "}, {"", " "}, {"(aside)", " "}};
  for (const auto& [typed, kept] : rows) {
    platform.modalActs.push_back([&, text = typed](Page&) {
      Enter("txtAddInfo", text);
      Press("cmdOk");
    });
    Press("cmdInfo");
    EXPECT_EQ(session.record.AddedInfo, kept) << typed;
  }
}

TEST_F(StartPages, AboutNamesTheVersionAndChangesNothing) {
  Press("cmdDesignNew");
  const DesignRecord before = session.record;
  platform.modalActs.push_back([&](Page&) {
    EXPECT_EQ(Get<Label>("lblVersion").caption, ProgramVersion());
    Press("cmdSysInfo");
    Press("cmdOk");
  });
  Press("cmdAbout");
  EXPECT_EQ(session.record, before);
  EXPECT_EQ(platform.opened.size(), 1U);
}

TEST_F(StartPages, TheGuideShowsTheChosenTopology) {
  Press("cmdDesignNew");
  platform.modalActs.push_back([&](Page&) {
    EXPECT_EQ(Get<ListBox>("lstTopology").selected, 9);
    const Picture before = Get<PictureBox>("picTopology").picture;
    Choose(session, Get<ListBox>("lstTopology"), 2);
    EXPECT_EQ(session.record.TopologyHelpCode, 2);
    EXPECT_FALSE(Get<PictureBox>("picTopology").picture == before);
    Press("cmdExit");
  });
  Press("cmdCapInHighpass");
}

TEST_F(StartPages, HelpOpensThePageOfThePage) {
  Press("cmdDesignNew");
  Press("cmdHelp");
  EXPECT_EQ(platform.opened, std::vector<std::string>{platform.HelpFolder() + "/design.htm"});
}

}  // namespace
}  // namespace quilm
