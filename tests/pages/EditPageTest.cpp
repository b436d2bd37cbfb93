// The Edit page: loading, selecting, the strip, and the way to other pages.

#include <gmock/gmock.h>

#include "pages/EditBench.h"
#include "schematic/Palette.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EditPage : public EditBench {};

constexpr f32 inStrip = 1500;

// The strip of three stages of 960 is 1340 + 2880 long and stands about 5250: from 3140 on.
constexpr f32 source = 3140;
constexpr f32 first = source + 740;
constexpr f32 load = first + 3 * 960;

TEST_F(EditPage, LoadsWithNothingSelected) {
  EXPECT_EQ(Get<Button>("cmdHere").toolTip, "You are at the Edit page");
  EXPECT_EQ(Commands(), "");
  EXPECT_THAT(Boxes(), IsEmpty());
  EXPECT_FALSE(PaletteIsBlack());
  EXPECT_FALSE(Mark());
  EXPECT_TRUE(Get<Label>("lblSelectStage").Shown());
  for (const char* label : {"lblClickOn", "lblCantInsert", "lblEmptyList", "lblRetLossRef"}) {
    EXPECT_FALSE(Get<Label>(label).Shown()) << label;
  }
  for (const char* box : {"txtRetLossRef", "txtQcapacitors", "txtQinductors"}) {
    EXPECT_FALSE(Get<TextBox>(box).Shown()) << box;
  }
  for (const char* mover : {"cmdLeft", "cmdRight", "cmdLeftLeft", "cmdRightRight"}) {
    EXPECT_FALSE(Get<Button>(mover).Usable()) << mover;
  }
  EXPECT_EQ(Record().Family, familyButterworth);
  EXPECT_EQ(Origin(), source);
}

TEST_F(EditPage, CaptionsAreTheGivenOnes) {
  const std::map<std::string, std::string> captions = {
      {"cmdEditValues", "Edit values of this stage"},
      {"cmdInsertPart", "Insert part prior to this stage"},
      {"cmdDeletePart", "Delete this stage"},
      {"cmdChangeTopology", "Change topology of this stage"},
      {"cmdAccept", "Accept"},
      {"lblSelectStage", "Mouseover and click on a stage to select it"},
      {"lblClickOn", "Click on an element to select it"},
      {"lblCantInsert", "Insert no more components"},
      {"lblEmptyList", "The parts list is empty"},
      {"lblRetLossRef", "Return loss reference (ohms):"},
      {"lblInductorsValue", "L value (H):"},
      {"lblCapacitorsValue", "C value (F):"},
      {"lblResistorsValue", "R value (ohms):"},
      {"lblLineLength", "Len. (deg):"},
      {"lblLineFrequency", "Freq. (Hz):"},
      {"lblLineImpedance", "Imp. (ohms):"},
      {"lblTransformer", "Turns ratio (pri:sec):"},
      {"lblReactanceValue", "Reactance value:"},
      {"lblReactanceFrequency", "Reactance frequency:"},
      {"lblPrimaryHenries", "Pri. L (H):"},
      {"lblSecondaryHenries", "Sec. L (H):"},
      {"lblCouplingCoefficient", "Coupling (k):"},
  };
  for (const auto& [name, caption] : captions) EXPECT_EQ(Get<Control>(name).caption, caption);
}

TEST_F(EditPage, WhatIsSelectedDecidesWhatCanBeDone) {
  MouseAt(source + 1, inStrip);
  EXPECT_EQ(Commands(), "E");
  MouseAt(first + 1, inStrip);
  EXPECT_EQ(Commands(), "CIDE");
  MouseAt(load + 1, inStrip);
  EXPECT_EQ(Commands(), "IE");
  MouseAt(first + 1000, inStrip, MouseButton::Right);
  EXPECT_EQ(Commands(), "CIDE");
  EXPECT_EQ(Mark()->from, (Point{first + 960, 500}));
  EXPECT_EQ(Mark()->to, (Point{first + 1920, 700}));
}

TEST_F(EditPage, APressBesideTheCellsChangesNothing) {
  for (const Point at : {Point{source - 1, inStrip}, Point{load + 600, inStrip}, Point{first + 1, 700},
                         Point{first + 1, 3300}, Point{5600, 5000}}) {
    const std::string before = Sheet().picture.Dump();
    MouseAt(at.x, at.y);
    EXPECT_EQ(Commands(), "") << at.x << ' ' << at.y;
    EXPECT_EQ(Sheet().picture.Dump(), before);
  }
  MouseAt(first + 1, 701);
  Press("cmdEditValues");
  MouseAt(load + 600, inStrip);
  EXPECT_THAT(Boxes(), ElementsAre("txtCapacitorsValue"));
  EXPECT_EQ(Commands(), "CIDEA");
}

TEST_F(EditPage, SelectingAnotherCellDropsAnEntry) {
  Area("stage2");
  Press("cmdEditValues");
  Enter("txtInductorsValue", "5u");
  Area("stage3");
  EXPECT_THAT(Boxes(), IsEmpty());
  EXPECT_EQ(Commands(), "CIDE");
  EXPECT_NE(StageOf(2).Lval.value, 5e-6F);
}

TEST_F(EditPage, AnEmptyListHasItsEndsAndItsWords) {
  ShowStages({});
  EXPECT_TRUE(Get<Label>("lblEmptyList").Shown());
  Area("load");
  Press("cmdInsertPart");
  EXPECT_FALSE(Get<Label>("lblEmptyList").Shown());
  Area("SeriesL");
  Enter("txtInductorsValue", "1u");
  Press("cmdAccept");
  EXPECT_EQ(Record().Stages, 1);
  EXPECT_EQ(StageOf(1).ElementType, SeriesL);
  EXPECT_EQ(StageOf(1).Lval.value, 1e-6F);
}

TEST_F(EditPage, AFullListTakesNoMoreAndItsLoadCanBeSelected) {
  ShowStages(std::vector<i16>(43, SeriesL));
  EXPECT_TRUE(Get<Label>("lblCantInsert").Shown());
  Area("stage1");
  EXPECT_EQ(Commands(), "CDE");
  Area("load");
  EXPECT_EQ(Commands(), "E");
  Area("stage43");
  Press("cmdDeletePart");
  EXPECT_FALSE(Get<Label>("lblCantInsert").Shown());
  Area("load");
  EXPECT_EQ(Commands(), "IE");
}

TEST_F(EditPage, MoreThanFortyThreeAreCutAndToldOf) {
  ShowStages(std::vector<i16>(46, SeriesL));
  EXPECT_EQ(LastMessage(), "Only the first 43 stages are shown or used.");
  EXPECT_EQ(Record().Stages, 43);
}

// Ten stages of 960 reach 10940, nine 9980.
TEST_F(EditPage, OnlyALongStripCanBeMoved) {
  ShowStages(std::vector<i16>(9, SeriesL));
  EXPECT_FALSE(Get<Button>("cmdLeft").Usable());
  EXPECT_EQ(Origin(), 5250 - 9980.0F / 2);
  ShowStages(std::vector<i16>(10, SeriesL));
  EXPECT_EQ(Origin(), 600);
  Press("cmdLeft");
  EXPECT_EQ(Origin(), 400);
  Press("cmdRight");
  EXPECT_EQ(Origin(), 200);
  Press("cmdLeftLeft");
  EXPECT_EQ(Origin(), 400);
  Press("cmdRightRight");
  EXPECT_EQ(Origin(), -1600);
  for (int i = 0; i < 9; ++i) Press("cmdRightRight");
  EXPECT_EQ(Origin(), -10940);
  Press("cmdRight");
  EXPECT_EQ(Origin(), -10940);
}

// 9980 and a shunt capacitor more: the origin stays, the movers come, and stay when the stage goes again.
TEST_F(EditPage, MoversComeWhenTheStripGrowsAndStayUntilThePageIsLoaded) {
  ShowStages(std::vector<i16>(9, SeriesL));
  const f32 origin = Origin();
  Area("load");
  Press("cmdInsertPart");
  EXPECT_TRUE(Get<Button>("cmdRight").Usable());
  EXPECT_EQ(Origin(), origin);
  Press("cmdAccept");
  Area("stage1");
  Press("cmdDeletePart");
  EXPECT_TRUE(Get<Button>("cmdRight").Usable());
  session.pages.ShowPage(PageId::Edit);
  EXPECT_FALSE(Get<Button>("cmdRight").Usable());
}

TEST_F(EditPage, ALongStripIsDraggedAndKeepsItsSelection) {
  ShowStages(std::vector<i16>(12, SeriesL));
  const f32 before = Origin();
  MouseAt(5000, inStrip);
  const auto mark = Mark();
  MouseAt(3000, inStrip, MouseButton::Left, MouseAct::Move);
  EXPECT_EQ(Origin(), before - 2000);
  EXPECT_EQ(Mark()->from.x, mark->from.x - 2000);
  MouseAt(3000, inStrip, MouseButton::Left, MouseAct::Up);
  MouseAt(1000, inStrip, MouseButton::Left, MouseAct::Move);
  EXPECT_EQ(Origin(), before - 2000) << "the button is up";
  MouseAt(3000, inStrip);
  MouseAt(99999, inStrip, MouseButton::Left, MouseAct::Move);
  EXPECT_EQ(Origin(), 400);
  MouseAt(-99999, inStrip, MouseButton::Left, MouseAct::Move);
  EXPECT_GT(Origin() + 1340 + 12 * 960, 1000) << "its end stays in sight";
}

TEST_F(EditPage, AStripThatFitsIsNotDragged) {
  MouseAt(5000, inStrip);
  MouseAt(4000, inStrip, MouseButton::Left, MouseAct::Move);
  EXPECT_EQ(Origin(), source);
}

TEST_F(EditPage, ACellOutOfSightComesIntoViewWhenItIsReachedByName) {
  ShowStages(std::vector<i16>(30, SeriesL));
  Area("stage30");
  const HitArea& area = *Sheet().FindArea("stage30");
  const Scale scale = Sheet().picture.CurrentScale();
  EXPECT_GE(area.from.x, scale.left);
  EXPECT_LE(area.to.x, scale.left + scale.width);
  EXPECT_EQ(Commands(), "CIDE");
  Area("source");
  EXPECT_GE(Sheet().FindArea("source")->from.x, scale.left);
}

TEST_F(EditPage, StagesAreWalkedAndSayWhatTheyAre) {
  EXPECT_EQ(Sheet().FindArea("stage2")->toolTip, "Stage 2: Inductor in the line");
  Area("stage2");
  EXPECT_TRUE(Sheet().FindArea("stage2")->present);
  EXPECT_FALSE(Sheet().FindArea("stage1")->present);
  EXPECT_TRUE(Sheet().FindArea("load")->walked);
  EXPECT_FALSE(Sheet().FindArea("SeriesL")->enabled);
  EXPECT_EQ(Sheet().description, "3 stages, selected: Stage 2: Inductor in the line");
}

TEST_F(EditPage, TheWayToTheOtherPages) {
  for (const auto& [button, page] : std::map<std::string, PageId>{{"cmdDesign", PageId::Design},
                                                                  {"cmdSchematic", PageId::Schematic},
                                                                  {"cmdAnalysis", PageId::Analyze},
                                                                  {"cmdPlot", PageId::Plotted},
                                                                  {"cmdTabulate", PageId::Tabulated}}) {
    Press(button);
    EXPECT_EQ(Top().Id(), page);
    EXPECT_EQ(session.pages.OpenPages().size(), 1U);
    Press("cmdEdit");
    ASSERT_EQ(Top().Id(), PageId::Edit);
  }
}

TEST_F(EditPage, AResultPageChecksTheEntriesAndTheDesignPageDoesNot) {
  ShowStages({SeriesL});
  Record().Rsource[1] = 0;
  Record().Rload[1] = 0;
  Record().Fstart = Record().Fstop = 0;
  Press("cmdDesign");
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(EditPage, ACancelledGetChangesNothingAndStays) {
  Area("stage2");
  Record().NetworkEdited = 1;
  const DesignRecord before = Record();
  platform.files.emplace_back(std::nullopt);
  Press("cmdGet");
  EXPECT_EQ(platform.fileDialogs.back().title, "Read Quilm File");
  EXPECT_EQ(Top().Id(), PageId::Edit);
  EXPECT_EQ(Record(), before);
  EXPECT_EQ(Commands(), "CIDE");
}

TEST_F(EditPage, ASavedDesignIsReadAndShownAsASchematic) {
  platform.files.emplace_back(Path("a.QLM"));
  Press("cmdSave");
  EXPECT_EQ(platform.fileDialogs.back().title, "Save Quilm File");
  EXPECT_TRUE(Exists("a.QLM"));
  Area("stage2");
  Press("cmdDeletePart");
  platform.files.emplace_back(Path("a.QLM"));
  Press("cmdGet");
  EXPECT_EQ(Top().Id(), PageId::Schematic);
  EXPECT_EQ(session.pages.OpenPages().size(), 1U);
  EXPECT_EQ(Record().Stages, 3);
  EXPECT_EQ(Record().NetworkEdited, 0);
}

TEST_F(EditPage, PrintOffersAPrinterForThePartsList) {
  platform.printers = {false, true};
  int printed = 0;
  platform.onPrinted = [&printed](const SheetPrinter&) { ++printed; };
  Press("cmdPrint");
  EXPECT_EQ(printed, 0) << "the printer was declined";
  Press("cmdPrint");
  EXPECT_EQ(printed, 1);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(EditPage, HelpOpensItsTopic) {
  Press("cmdHelp");
  EXPECT_EQ(platform.opened.back(), platform.HelpFolder() + "/editing.htm");
}

TEST_F(EditPage, TheCloseBoxEndsTheProgramAsOnTheOtherMainPages) {
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_TRUE(Exists("LASTSESSION.QLM"));
  EXPECT_TRUE(Exists("QuilmConfiguration.CFG"));
}

TEST_F(EditPage, TheSameSelectionTwiceIsTheSamePicture) {
  for (const char* name : {"source", "stage1", "stage2", "load"}) {
    Area(name);
    const std::string once = Sheet().picture.Dump();
    Area(name);
    EXPECT_EQ(Sheet().picture.Dump(), once) << name;
  }
}

}  // namespace
}  // namespace quilm
