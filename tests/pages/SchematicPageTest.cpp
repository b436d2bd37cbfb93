// The Schematic page and its artwork.

#include <algorithm>
#include <fstream>

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class SchematicPage : public PageBench {
 protected:
  SchematicPage() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    Press("cmdSchematic");
  }

  const Picture& Drawing() { return Get<PictureBox>("picSchematic").picture; }

  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (const PictureOp& operation : Drawing().Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->text);
    }
    return texts;
  }

  std::ptrdiff_t Count(const std::string& text) {
    const auto texts = Texts();
    return std::count(texts.begin(), texts.end(), text);
  }

  f32 BandLeft() {
    int seen = 0;
    for (const PictureOp& operation : Drawing().Operations()) {
      const auto* box = std::get_if<RectangleOp>(&operation);
      if (box != nullptr && ++seen == 2) return box->from.x;
    }
    return 0;
  }
};

// L = 2 * 50 / (2 Pi 1e6) = 15.9155 uH.
TEST_F(SchematicPage, ShowsTheNetworkOfTheDesign) {
  EXPECT_EQ(Top().Id(), PageId::Schematic);
  EXPECT_EQ(Get<Button>("cmdHere").toolTip, "You are at the Schematic page");
  EXPECT_EQ(Count("15.9155uH"), 1);
  EXPECT_EQ(Count("Family:  Butterworth"), 1);
  EXPECT_FALSE(Get<Label>("lblEmptyList").Shown());
  EXPECT_FALSE(Get<Label>("lblNegativePart").Shown());
}

TEST_F(SchematicPage, TheFourButtonsScroll) {
  EXPECT_EQ(BandLeft(), 1620);
  Press("cmdLeft");
  EXPECT_EQ(BandLeft(), 1820);
  Press("cmdLeftLeft");
  EXPECT_EQ(BandLeft(), 3820);
  Press("cmdRight");
  EXPECT_EQ(BandLeft(), 3620);
  for (int i = 0; i < 5; ++i) Press("cmdRightRight");
  EXPECT_EQ(BandLeft(), 3620 - 10000);
  session.pages.ShowPage(PageId::Schematic);
  EXPECT_EQ(BandLeft(), 1620);
}

// The page of three stages is 9600 wide, and at least 4000 of it stay in sight.
TEST_F(SchematicPage, TheZoomGoesInAboutTheMiddleAndBack) {
  const auto middle = [this] { return Drawing().ScaleWidth / 2 - (BandLeft() - 1620); };
  EXPECT_EQ(Drawing().ScaleWidth, 9600);
  EXPECT_FALSE(Get<Button>("cmdZoomOut").Active());
  Press("cmdZoomIn");
  EXPECT_EQ(Drawing().ScaleWidth, 6400);
  EXPECT_EQ(middle(), 4800);
  Press("cmdZoomIn");
  Press("cmdZoomIn");
  EXPECT_FLOAT_EQ(Drawing().ScaleWidth, 4000);
  EXPECT_NEAR(middle(), 4800, 1);
  EXPECT_FALSE(Get<Button>("cmdZoomIn").Active());
  Press("cmdRightRight");
  EXPECT_NEAR(middle(), 6800, 1);
  Press("cmdZoomOut");
  EXPECT_FLOAT_EQ(Drawing().ScaleWidth, 6000);
  EXPECT_NEAR(middle(), 6600, 1);  // no further than the end
  for (int i = 0; i < 2; ++i) Press("cmdZoomOut");
  EXPECT_EQ(Drawing().ScaleWidth, 9600);
  EXPECT_EQ(BandLeft(), 1620);
  Press("cmdZoomIn");
  Press("cmdZoomFit");
  EXPECT_EQ(Drawing().ScaleWidth, 9600);
  EXPECT_EQ(BandLeft(), 1620);
}

TEST_F(SchematicPage, TheSameOptionTwiceIsTheSamePicture) {
  for (const char* option : {"Option1", "Option2", "optYes", "optNo", "Option0"}) {
    Press(option);
    const std::string once = Get<PictureBox>("picSchematic").picture.Dump();
    Press(option);
    EXPECT_EQ(Get<PictureBox>("picSchematic").picture.Dump(), once) << option;
  }
}

TEST_F(SchematicPage, TheOptionsChooseTheForm) {
  EXPECT_EQ(Get<Frame>("fraMode").caption, "Unbalanced preview");
  EXPECT_EQ(Get<OptionButton>("Option0").caption, "Normal - unbalanced");
  EXPECT_EQ(Get<OptionButton>("Option1").caption, "Balanced - B");
  EXPECT_EQ(Get<OptionButton>("Option2").caption, "Balanced - A");
  EXPECT_TRUE(Get<OptionButton>("Option0").Value());
  Press("Option1");
  EXPECT_EQ(Count("15.9155uH"), 2);
  Press("Option2");
  EXPECT_EQ(Count("7.95775uH"), 2);
  Press("Option0");
  EXPECT_EQ(Count("15.9155uH"), 1);
}

TEST_F(SchematicPage, TheLossesComeAndGo) {
  EXPECT_EQ(Get<Frame>("fraShowQ").caption, "Show Q-value resistances?");
  EXPECT_TRUE(Get<OptionButton>("optNo").Value());
  Press("optYes");
  EXPECT_EQ(Count("L-rseries:"), 1);
  Press("optNo");
  EXPECT_EQ(Count("L-rseries:"), 0);
}

TEST_F(SchematicPage, ItsFormIsTheUsualOneAfterAVisitToAnotherPage) {
  Press("Option2");
  Press("optYes");
  Press("cmdPlot");
  Press("cmdSchematic");
  EXPECT_TRUE(Get<OptionButton>("Option0").Value());
  EXPECT_TRUE(Get<OptionButton>("optNo").Value());
  EXPECT_EQ(Count("15.9155uH"), 1);
  EXPECT_EQ(Count("L-rseries:"), 0);
}

// A list that claims more stages than the record has room for.
TEST_F(SchematicPage, ADrawingThatFailsIsToldWithItsMark) {
  session.record.Stages = session.record.StagesMax = 10000;
  session.pages.ShowPage(PageId::Schematic);
  ASSERT_EQ(MessageTexts().size(), 1U);
  EXPECT_EQ(MessageTexts()[0].substr(0, 15), "Schematic 224\r\n");
  EXPECT_EQ(Top().Id(), PageId::Schematic);
}

TEST_F(SchematicPage, ANegativePartIsPointedOut) {
  session.record.stage[2].Lval.value = -1e-5F;
  session.pages.ShowPage(PageId::Schematic);
  EXPECT_TRUE(Get<Label>("lblNegativePart").Shown());
  EXPECT_EQ(Get<Label>("lblNegativePart").caption, "Negative component");
  EXPECT_EQ(Count("-10uH"), 1);
}

TEST_F(SchematicPage, AnEmptyListIsSaidSo) {
  session.record.Stages = 0;
  session.pages.ShowPage(PageId::Schematic);
  EXPECT_TRUE(Get<Label>("lblEmptyList").Shown());
  EXPECT_EQ(Get<Label>("lblEmptyList").caption, "The parts list is empty");
  EXPECT_TRUE(Drawing().Empty());
}

TEST_F(SchematicPage, TooManyStagesAreCutAndToldOf) {
  session.record.StagesMax = 2;
  session.pages.ShowPage(PageId::Schematic);
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"Only first 2 items used"});
  EXPECT_EQ(session.record.Stages, 2);
}

TEST_F(SchematicPage, TheArtworkOpensOverThePage) {
  platform.modalActs.push_back([this](Page& page) {
    EXPECT_EQ(page.Id(), PageId::SchematicSimple);
    EXPECT_FALSE(Get<PictureBox>("picArtwork").picture.Empty());
    EXPECT_TRUE(Get<Button>("cmdPrint").Active());
    Press("cmdExit");
  });
  Press("cmdSimple");
  EXPECT_EQ(Top().Id(), PageId::Schematic);
}

TEST_F(SchematicPage, GetAndSaveHaveTheirDialogs) {
  const std::string path = platform.ProgramFolder() + "/s.QLM";
  platform.files.push_back(path);
  Press("cmdSave");
  EXPECT_EQ(platform.fileDialogs.back().title, "Write Quilm File");
  session.record.stage[2].Lval.value = 1;
  platform.files.push_back(path);
  Press("cmdGet");
  EXPECT_EQ(platform.fileDialogs.back().title, "Read Quilm File");
  EXPECT_EQ(Top().Id(), PageId::Schematic);
  EXPECT_EQ(Count("15.9155uH"), 1);
}

TEST_F(SchematicPage, ItsButtonsLeadToTheOtherPages) {
  for (const auto& [button, page] : {std::pair{"cmdAnalysis", PageId::Analyze},
                                     {"cmdPlot", PageId::Plotted},
                                     {"cmdTabulate", PageId::Tabulated},
                                     {"cmdDesign", PageId::Design}}) {
    session.pages.ShowPage(PageId::Schematic);
    Press(button);
    EXPECT_EQ(Top().Id(), page) << button;
  }
}

TEST_F(SchematicPage, TheCloseBoxKeepsTheSession) {
  EXPECT_NO_THROW(PressCloseBox(session, Top()));
  EXPECT_TRUE(session.ended);
  EXPECT_NE(File("LASTSESSION.QLM").find("Quilm circuit file 43"), std::string::npos);
}

TEST_F(SchematicPage, HelpOpensItsPage) {
  Press("cmdHelp");
  EXPECT_TRUE(platform.opened.back().ends_with("/schematic.htm"));
}

// What cannot be analysed is shown instead, also when it is found while a page loads.
TEST_F(SchematicPage, ASweepThatFailsLeadsHere) {
  for (const PageId page : {PageId::Plotted, PageId::Tabulated}) {
    session.pages.ShowPage(PageId::Design);
    platform.messages.clear();
    session.record.Fstart = 0;  // a logarithmic sweep has no such frequency
    session.record.ResponsesValid = 0;
    session.pages.ShowPage(page);
    ASSERT_FALSE(platform.messages.empty());
    EXPECT_NE(platform.messages[0].text.find("See modAnalysis line 48"), std::string::npos);
    EXPECT_EQ(Top().Id(), PageId::Schematic);
  }
}

}  // namespace
}  // namespace quilm
