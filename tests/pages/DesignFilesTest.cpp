// Designs that survive the day: saved, opened again, and kept as the last session on every way out.

#include <sys/stat.h>

#include "core/Configuration.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"
#include "shell/modWriteConfig.h"

namespace quilm {
namespace {

class DesignFiles : public PageBench {
 protected:
  DesignFiles() : PageBench(AllPages()) { StartProgram(session); }

  void Write(const std::string& name, const std::string& text) { std::ofstream(Path(name), std::ios::binary) << text; }
};

TEST_F(DesignFiles, ADesignIsSavedAndOpenedAgain) {
  MakeLowpass();
  platform.files = {Path("lowpass.QLM"), Path("lowpass.QLM")};
  Press("cmdSave");
  EXPECT_EQ(platform.fileDialogs[0].title, "Save Quilm File");
  EXPECT_EQ(platform.fileDialogs[0].filter, "Quilm files (*.QLM)|*.QLM");
  ASSERT_TRUE(Exists("lowpass.QLM"));
  const f32 C1 = session.record.stage[1].Cval.value;

  session.record.stage[1].Cval.value = 0;
  platform.pageEvents.clear();
  Press("cmdGet");
  EXPECT_EQ(platform.fileDialogs[1].title, "Read Quilm File");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_NEAR(session.record.stage[1].Cval.value, C1, 1e-6F * C1);
  EXPECT_EQ(session.record.Family, familyButterworth);
  EXPECT_EQ(session.record.DesignFileName, Path("lowpass.QLM"));
  EXPECT_EQ(platform.pageEvents, (std::vector<std::string>{"unload frmPlotted", "show frmPlotted"}));
}

TEST_F(DesignFiles, AStageWithoutAnElementIsToldOf) {
  MakeLowpass();
  platform.files = {Path("lowpass.QLM"), Path("lowpass.QLM")};
  Press("cmdSave");
  EXPECT_EQ(session.note, "Saved " + Path("lowpass.QLM"));
  session.record.stage[2].ElementType = 0;
  Press("cmdSave");
  EXPECT_EQ(session.note,
            "Saved " + Path("lowpass.QLM") + "; it cannot be read again as long as stage 2 has no element");
}

TEST_F(DesignFiles, ADesignIsSavedUntilItIsChanged) {
  MakeLowpass();
  const auto saved = [this] { return session.history.IsSaved(session); };
  EXPECT_FALSE(saved());
  platform.files = {Path("lowpass.QLM"), Path("no/such/folder.QLM"), Path("lowpass.QLM")};
  Press("cmdSave");
  EXPECT_TRUE(saved());
  // Going about changes nothing, though pages fill in and compute.
  for (const char* page : {"cmdDesign", "cmdAnalysis", "cmdSchematic", "cmdTabulate", "cmdDesign", "cmdPlot"}) {
    Press(page);
    EXPECT_TRUE(saved()) << page;
  }
  Press("cmdDesign");
  Enter("txtBandwidth", "2M");
  EXPECT_FALSE(saved());
  Press("cmdPlot");
  EXPECT_FALSE(saved());
  Press("cmdSave");  // fails
  EXPECT_FALSE(saved());
  session.record.DesignFileName = Path("lowpass.QLM");
  Undo(session);
  EXPECT_TRUE(saved());
  Redo(session);
  EXPECT_FALSE(saved());
  Press("cmdGet");
  EXPECT_TRUE(saved());
}

TEST_F(DesignFiles, TheNoteOfASaveEndsWithTheNextAct) {
  MakeLowpass();
  platform.files = {Path("lowpass.QLM")};
  Press("cmdSave");
  EXPECT_EQ(session.note, "Saved " + Path("lowpass.QLM"));
  Press("cmdDesign");
  EXPECT_EQ(session.note, "");
}

TEST_F(DesignFiles, TheDesignPageSavesTheNetworkOfItsEntries) {
  MakeLowpass();
  Press("cmdDesign");
  Enter("txtBandwidth", "2M");
  platform.files = {Path("two.QLM")};
  Press("cmdSave");
  EXPECT_NE(File("two.QLM").find("\r\n 2000000  0  0 \r\n"), std::string::npos);
  // C1 = 1 / (2 Pi 2e6 50)
  EXPECT_NE(File("two.QLM").find(" 4  0  0  1.591549E-09  0 \r\n"), std::string::npos);
}

TEST_F(DesignFiles, ACancelledDialogChangesNothing) {
  MakeLowpass();
  const DesignRecord before = session.record;
  platform.files = {std::nullopt, std::nullopt};
  Press("cmdSave");
  Press("cmdGet");
  EXPECT_EQ(session.record, before);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(DesignFiles, AFileThatCannotBeOpenedCostsNothing) {
  MakeLowpass();
  const DesignRecord before = session.record;
  platform.files = {Path("none.QLM")};
  Press("cmdGet");
  EXPECT_EQ(session.record, before);
  EXPECT_EQ(platform.messages.size(), 1U);
}

TEST_F(DesignFiles, ADamagedFileIsToldAndLeavesTheProgramUsable) {
  MakeLowpass();
  Write("bad.QLM", "header\r\ntitle\r\ndate\r\n");
  platform.files = {Path("bad.QLM")};
  Press("cmdGet");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text,
            "ReadQuilmFiles line 706; StagesMax: 43\r\nEntire last line which was read: date\r\n"
            "Error string: 57\r\nErrorDescription: Input past end of file");
  EXPECT_EQ(platform.messages[0].title, "");
  EXPECT_EQ(platform.messages[0].icon, Icon::None);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.record.Stages, 0);
  Press("optButterworth");
  Press("optCapInLowpass");
  Enter("txtBandwidth", "1M");
  Enter("txtInputTerm", "50");
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

// A file that breaks off behind its scales: all that a preference is made of has been read.
class BrokenFile : public DesignFiles {
 protected:
  BrokenFile() {
    session.configuration.ConfigValue[lineNrIntervals] = 800;
    session.configuration.ConfigValue[lineRsource] = 75;
    MakeLowpass();
    Write("broken.QLM",
          "head\ntitle\ndate\ninfo\n1 0 1 A 0\n1M 0 0\n.1 50\n7 7 1 33\n11 12\n1 1e-6 0\n"
          "1 5 9 1\n-3 0 0 1 2 3 4 5\n");
    platform.files = {Path("broken.QLM")};
  }

  std::string Configured(const std::string& label) {
    const std::string text = File(configurationFile);
    const std::size_t at = text.find(label) + label.size();
    return text.substr(at, text.find('\r', at) - at);
  }
};

TEST_F(BrokenFile, LeavesTheUsersSettings) {
  Press("cmdGet");
  EXPECT_EQ(session.record.Width, 1e6F);  // what was read stays
  EXPECT_EQ(session.record.Rsource[1], 7);
  EXPECT_EQ(session.record.Stages, 0);
  EXPECT_EQ(session.record.DesignFileName, "");
  EXPECT_EQ(session.record.NrIntervals, 800);
  EXPECT_EQ(session.record.SweepMode, 2);
  EXPECT_EQ(session.record.Fstart, 1000);
  EXPECT_EQ(session.record.Fstop, 1e7F);
  EXPECT_EQ(session.record.LossBottom, -60);
  EXPECT_EQ(session.record.NrYints, 6);
  EXPECT_EQ(session.record.Qind[1], 200);
  EXPECT_EQ(session.record.Rstandard, 50);
}

TEST_F(BrokenFile, IsNobodysPreference) {
  Press("cmdGet");
  PressCloseBox(session, Top());
  EXPECT_EQ(Configured("Number of test freq steps:"), " 800 ");
  EXPECT_EQ(Configured("Input termination:"), " 75 ");
  EXPECT_EQ(Configured("Plot loss bottom:"), "-60 ");
  EXPECT_EQ(Configured("Inductor Q values:"), " 200 ");
  EXPECT_EQ(Configured("Rstandard:"), " 50 ");
}

// The next design that is read whole brings the user's own again.
TEST_F(BrokenFile, IsForgottenWithTheNextDesign) {
  platform.files = {Path("sound.QLM"), Path("broken.QLM"), Path("sound.QLM")};
  session.record.Rsource[1] = 7;
  Press("cmdSave");
  Press("cmdGet");
  Press("cmdGet");
  PressCloseBox(session, Top());
  EXPECT_EQ(Configured("Input termination:"), " 7 ");
}

TEST_F(BrokenFile, TheFormerDesignComesBackAndTheStatusLineSaysHow) {
  const DesignRecord before = session.record;
  Press("cmdGet");
  EXPECT_EQ(session.note, "The design could not be read; Ctrl+Z brings the former design back");
  Undo(session);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(session.record, before);
}

TEST_F(DesignFiles, OnTheOpeningPageThereIsNoFormerDesign) {
  Write("bad.QLM", "header\r\ntitle\r\ndate\r\n");
  platform.files = {Path("bad.QLM")};
  Press("cmdRetrieveOld");
  EXPECT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(Top().Id(), PageId::Opening);
  EXPECT_EQ(session.note.find("Ctrl+Z"), std::string::npos);
  EXPECT_EQ(session.record.NrIntervals, 1000);
}

TEST_F(DesignFiles, WhatIsNoFileIsRefusedAtOnce) {
  MakeLowpass();
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  const DesignRecord before = session.record;
  for (const std::string& path : {platform.ProgramFolder(), Path("pipe"), std::string("/dev/zero")}) {
    platform.messages.clear();
    platform.files = {path};
    Press("cmdGet");
    EXPECT_EQ(MessageTexts(), std::vector<std::string>{"The file " + path + " cannot be opened."});
    EXPECT_EQ(session.record, before);
    EXPECT_EQ(Top().Id(), PageId::Plotted);
  }
}

// The system lists it as a file, opens it, and fails to read its first byte.
TEST_F(DesignFiles, AFileThatCannotBeReadIsAFailureLikeAnyOther) {
  MakeLowpass();
  platform.files = {"/proc/self/mem"};
  Press("cmdGet");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text,
            "ReadQuilmFiles line 706; StagesMax: 43\r\nEntire last line which was read: \r\n"
            "Error string: 42\r\nErrorDescription: The file cannot be read on");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.record.Stages, 0);
}

TEST_F(DesignFiles, ASaveThatFailsBeepsAndGoesOn) {
  MakeLowpass();
  platform.files = {Path("no/such/folder.QLM")};
  Press("cmdSave");
  EXPECT_EQ(platform.beeps, 1);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(session.note, "Nothing was written to folder.QLM: there is no such folder");
}

TEST_F(DesignFiles, TheCloseBoxStoresTheLastSession) {
  MakeLowpass();
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_TRUE(Exists(configurationFile));
  EXPECT_TRUE(Exists(lastSessionFile));
}

TEST_F(DesignFiles, TheExitPageStoresItAndSaysSo) {
  MakeLowpass();
  std::string note;
  platform.modalActs.push_back([&](Page& page) {
    try {
      Press("cmdExit");
    } catch (const ProgramEnd&) {
      note = page.Find("lblNote")->caption;
      throw;
    }
  });
  Press("cmdExit");
  EXPECT_EQ(note, "This design was saved as LASTSESSION");
  EXPECT_TRUE(Exists(lastSessionFile));
  EXPECT_EQ(session.record.DesignFileName, Path(lastSessionFile));
}

TEST_F(DesignFiles, TheExitPageSavesFirstWhereAsked) {
  MakeLowpass();
  platform.files = {Path("kept.QLM")};
  platform.modalActs.push_back([&](Page&) { Press("cmdSave"); });
  Press("cmdExit");
  EXPECT_TRUE(session.ended);
  EXPECT_EQ(platform.fileDialogs[0].title, "Write Quilm File");
  EXPECT_TRUE(Exists("kept.QLM") && Exists(lastSessionFile));
}

TEST_F(DesignFiles, WithoutANetworkNothingIsStored) {
  Press("cmdDesignNew");
  platform.modalActs.push_back([&](Page&) { Press("cmdSave"); });
  Press("cmdExit");
  EXPECT_TRUE(session.ended);
  EXPECT_TRUE(platform.fileDialogs.empty());
  EXPECT_FALSE(Exists(lastSessionFile));
}

TEST_F(DesignFiles, TheLastSessionComesBack) {
  MakeLowpass();
  PressCloseBox(session, Top());
  HeadlessPlatform other(platform.ProgramFolder());
  Session next(other, AllPages());
  StartProgram(next);
  Click(next, *next.pages.Top()->Find("cmdLastSession"));
  EXPECT_EQ(next.pages.Top()->Id(), PageId::Design);
  EXPECT_EQ(next.record.Stages, 3);
  EXPECT_EQ(next.record.Width, 1e6F);
  EXPECT_EQ(next.familyOption, familyButterworth);
  EXPECT_EQ(next.record.DesignFileName, Path(lastSessionFile));
  EXPECT_TRUE(next.history.IsSaved(next));
}

// A file of an older layout ends before the answer on zeros.
class OlderFiles : public DesignFiles {
 protected:
  OlderFiles() {
    MakeLowpass();
    platform.files = {Path("older.QLM")};
    Press("cmdSave");
    std::string text = File("older.QLM");
    text.resize(text.find("* M-derived zeros"));
    std::ofstream(Path("older.QLM"), std::ios::binary) << text;
    platform.files = {Path("older.QLM")};
  }
};

TEST_F(OlderFiles, LeadToTheSchematicPage) {
  for (const PageId page : {PageId::Design, PageId::Plotted, PageId::Tabulated, PageId::Schematic}) {
    session.pages.ShowPage(page);
    platform.files = {Path("older.QLM")};
    Press("cmdGet");
    EXPECT_EQ(Top().Id(), PageId::Schematic);
    EXPECT_EQ(session.record.Stages, 3);
    EXPECT_EQ(session.record.DesignChanged, 1);
    EXPECT_EQ(session.record.ResponsesValid, 0);
    EXPECT_TRUE(page == PageId::Schematic || session.pages.Find(page) == nullptr);
  }
}

TEST_F(OlderFiles, LeadFromTheOpeningPageToTheSchematicPage) {
  HeadlessPlatform other(platform.ProgramFolder());
  other.files = {Path("older.QLM")};
  Session next(other, AllPages());
  StartProgram(next);
  Click(next, *next.pages.Top()->Find("cmdRetrieveOld"));
  EXPECT_EQ(next.pages.Top()->Id(), PageId::Schematic);
  EXPECT_EQ(next.pages.Find(PageId::Opening), nullptr);
}

TEST_F(DesignFiles, AnOlderDesignIsOpenedFromTheOpeningPage) {
  MakeLowpass();
  platform.files = {Path("old.QLM")};
  Press("cmdSave");
  HeadlessPlatform other(platform.ProgramFolder());
  other.files = {Path("old.QLM")};
  Session next(other, AllPages());
  StartProgram(next);
  Click(next, *next.pages.Top()->Find("cmdRetrieveOld"));
  EXPECT_EQ(other.fileDialogs[0].title, "Get Quilm File");
  EXPECT_EQ(next.pages.Top()->Id(), PageId::Design);
  EXPECT_EQ(next.record.Stages, 3);
}

}  // namespace
}  // namespace quilm
