// Limit areas and markers by the pages beside the plot and by the mouse.
#include <algorithm>

#include "core/LimitArea.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "pages/plot/frmEditLimits.h"
#include "shell/History.h"

namespace quilm {
namespace {

// Over the plot of a 1 MHz lowpass, from 1 kHz to 10 MHz, 60 dB high.
class LimitsPage : public PageBench {
 protected:
  LimitsPage() : PageBench(AllPages()) {
    StartProgram(session);
    MakeLowpass();
  }

  // Opens a page by its button and does `act` there.
  void On(const std::string& button, const std::function<void()>& act) {
    platform.modalActs.emplace_back([act](Page&) { act(); });
    Press(button);
  }
  void PressOnLimits(const std::string& name) {
    On("cmdLimits", [this, name] { Press(name); });
  }
  void Edit(const std::function<void()>& act) {
    platform.modalActs.emplace_back([this](Page&) { Press("cmdLimitsEdit"); });
    platform.modalActs.emplace_back([act](Page&) { act(); });
    Press("cmdLimits");
  }
  void ClickAt(f32 x, f32 y) {
    auto& plot = Get<PictureBox>("picPlot");
    Mouse(session, plot, MouseAct::Move, x, y, MouseButton::Left);
    Mouse(session, plot, MouseAct::Down, x, y, MouseButton::Left);
    Mouse(session, plot, MouseAct::Up, x, y, MouseButton::Left);
  }
  const LimitsAndMarkers& Limits() { return session.record; }
  bool Seen(const std::string& name) { return Get<Control>(name).Shown(); }

  bool HasFilledArea() {
    const auto& operations = Get<PictureBox>("picPlot").picture.Operations();
    return std::any_of(operations.begin(), operations.end(), [](const PictureOp& operation) {
      const auto* box = std::get_if<RectangleOp>(&operation);
      return box != nullptr && box->filled && box->pen.color == 0xE0E0FF && box->pen.showOn == Medium::Everywhere;
    });
  }
};

TEST_F(LimitsPage, ShapesAreInSightWhileAreasAreEntered) {
  EXPECT_FALSE(Seen("cmdLimit1"));
  PressOnLimits("cmdEnter");
  for (int shape = 1; shape <= 9; ++shape) EXPECT_TRUE(Seen("cmdLimit" + std::to_string(shape))) << shape;
  EXPECT_EQ(Get<PictureBox>("picPlot").areas.size(), 9U);
  Press("cmd2");
  EXPECT_FALSE(Seen("cmdLimit1"));
  EXPECT_TRUE(Get<PictureBox>("picPlot").areas.empty());
}

TEST_F(LimitsPage, AreasAreEnteredByMouse) {
  PressOnLimits("cmdEnter");
  ClickAt(6500, 2000);
  EXPECT_EQ(Limits().LimitCount[1], 0);
  Press("cmdLimit2");
  EXPECT_TRUE(Get<Button>("cmdLimit2").pressed);
  ClickAt(6500, 2000);
  ASSERT_EQ(Limits().LimitCount[1], 1);
  EXPECT_EQ(Limits().LimitShape[1][1], 2);
  EXPECT_NEAR(Limits().LimitStart[1][1], 100e3F, 1e3F);
  EXPECT_EQ(Limits().LimitStop[1][1], 1e10F);
  EXPECT_EQ(Limits().LimitTop[1][1], 0);
  EXPECT_EQ(Limits().LimitBottom[1][1], -10);
  EXPECT_TRUE(HasFilledArea());
}

TEST_F(LimitsPage, TheCellsOfThePaletteChooseAShapeToo) {
  PressOnLimits("cmdEnter");
  PressArea(session, Get<PictureBox>("picPlot"), "LimitShape5");
  EXPECT_TRUE(Get<Button>("cmdLimit5").pressed);
  ClickAt(4000, 3000);
  ClickAt(5000, 3500);
  EXPECT_EQ(Limits().LimitShape[1][1], 5);
}

TEST_F(LimitsPage, TheReadoutComesBackAfterwards) {
  PressOnLimits("cmdEnter");
  auto& plot = Get<PictureBox>("picPlot");
  Mouse(session, plot, MouseAct::Move, 5000, 3000, MouseButton::Left);
  EXPECT_FALSE(plot.mark.Empty());
  Press("cmd1");
  EXPECT_TRUE(plot.mark.Empty());
  Mouse(session, plot, MouseAct::Move, 5000, 3000, MouseButton::Left);
  EXPECT_EQ(Limits().LimitCount[1], 0);
  Mouse(session, plot, MouseAct::Down, 5000, 3000, MouseButton::Left);
  EXPECT_FALSE(plot.mark.Empty());
  Mouse(session, plot, MouseAct::Up, 5000, 3000, MouseButton::Left);
  EXPECT_TRUE(plot.mark.Empty());
}

TEST_F(LimitsPage, AnAreaIsAStepThatIsTakenBackWhileMoreAreEntered) {
  PressOnLimits("cmdEnter");
  Press("cmdLimit1");
  ClickAt(6500, 2000);
  ClickAt(7000, 2000);
  EXPECT_EQ(session.history.UndoText(), "Limit area");
  Undo(session);
  EXPECT_EQ(Limits().LimitCount[1], 1);
  EXPECT_TRUE(Seen("cmdLimit1"));
  ClickAt(8000, 2000);
  EXPECT_EQ(Limits().LimitCount[1], 2);
  Undo(session);
  Undo(session);
  EXPECT_EQ(Limits().LimitCount[1], 0);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(LimitsPage, TheFirstClickOfABandIsNoStep) {
  PressOnLimits("cmdEnter");
  const std::string before = session.history.UndoText();
  Press("cmdLimit6");
  ClickAt(6500, 2000);
  EXPECT_EQ(session.history.UndoText(), before);
}

TEST_F(LimitsPage, TheEleventhClickHidesTheShapes) {
  PressOnLimits("cmdEnter");
  Press("cmdLimit9");
  for (int i = 0; i < 10; ++i) ClickAt(static_cast<f32>(3000 + 500 * i), 3000);
  EXPECT_TRUE(Seen("cmdLimit1"));
  ClickAt(5000, 3000);
  EXPECT_EQ(Limits().LimitCount[1], 10);
  EXPECT_FALSE(Seen("cmdLimit1"));
  EXPECT_TRUE(Get<PictureBox>("picPlot").mark.Empty());
}

// The optimizer, which needs two areas, asks for them, and the plot takes clicks at once.
TEST_F(LimitsPage, TheOptimizerAsksForAreas) {
  session.record.stage[1].Cval.tolerance = 5;
  Press("cmd3");
  Press("cmdOptimize");
  EXPECT_EQ(MessageTexts(),
            std::vector<std::string>{"At least two limits areas must be entered.  Please enter limits."});
  EXPECT_EQ(session.plot.limitEntry.LimitEntryPlot, 3);
  EXPECT_EQ(session.plot.limitEntry.prompt, "Enter angle limits");
  EXPECT_EQ(Limits().LimitsShown, 1);
  EXPECT_TRUE(Seen("cmdLimit1"));
  Press("cmdLimit1");
  ClickAt(6500, 2000);
  EXPECT_EQ(Limits().LimitCount[3], 1);
}

class WithAreas : public LimitsPage {
 protected:
  WithAreas() {
    AddArea(session.record, 1, {1, 0.01F, 1e6F, -3, -300});
    AddArea(session.record, 1, {6, 1.2345678e6F, 3e6F, 0, -20});
    AddArea(session.record, 1, {9, 2e6F, 2e6F, -9, -9});
    AddArea(session.record, 4, {2, 1e5F, 1e10F, 1e-6F, 3e-7F});
  }
};

TEST_F(WithAreas, ShowAndHideDrawThePlotAnew) {
  PressOnLimits("cmdLimitsOn");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(Limits().LimitsShown, 1);
  EXPECT_TRUE(HasFilledArea());
  PressOnLimits("cmdLimitsHide");
  EXPECT_EQ(Limits().LimitsShown, 0);
  EXPECT_FALSE(HasFilledArea());
  EXPECT_EQ(Limits().LimitCount[1], 3);
}

TEST_F(WithAreas, EraseAllLeavesNone) {
  PressOnLimits("cmdLimitsEraseAll");
  EXPECT_FALSE(HasAreas(Limits()));
  EXPECT_EQ(AreaAt(Limits(), 4, 1), LimitArea{});
  EXPECT_EQ(Limits().LimitsShown, 0);
  EXPECT_EQ(session.history.UndoText(), "Limits");
  Undo(session);
  EXPECT_EQ(Limits().LimitCount[1], 3);
}

TEST_F(WithAreas, EraseLocalKeepsTheOtherTypes) {
  PressOnLimits("cmdLimitsEraseLocal");
  EXPECT_EQ(Limits().LimitCount[1], 0);
  EXPECT_EQ(Limits().LimitCount[4], 1);
  EXPECT_EQ(AreaAt(Limits(), 1, 1), LimitArea{});
}

TEST_F(WithAreas, TheCloseBoxChangesNothing) {
  const DesignRecord before = session.record;
  On("cmdLimits", [this] { PressCloseBox(session, Top()); });
  EXPECT_EQ(session.record, before);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(LimitsPage, EditNeedsAnAreaAndSaysSo) {
  On("cmdLimits", [this] {
    Press("cmdLimitsEdit");
    EXPECT_EQ(Top().Id(), PageId::Limits);
  });
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"No limits areas have been entered for this network"});
}

// Columns 18, 28, then frequencies and edges as they are told elsewhere on the plot.
TEST(LimitLine, TellsAnArea) {
  EXPECT_EQ(LimitLine(1, {1, 0.01F, 1e6F, -3, -300}).substr(0, 43), "Transmission      Shape: 1  DC up to 1M    ");
  EXPECT_EQ(LimitLine(6, {5, 1e3F, 2e6F, 50, 0}).substr(0, 47), "Input impedance   Shape: 5  from 1k to 2M      ");
  EXPECT_NE(LimitLine(2, {2, 1e3F, 1e10F, 0, -3}).find("from 1k to upward"), std::string::npos);
  EXPECT_NE(LimitLine(2, {9, 1e3F, 1e3F, -3, -3}).find(" Marker at 1k "), std::string::npos);
  EXPECT_NE(LimitLine(4, {2, 1e3F, 1e10F, 1e-6F, 3e-7F}).find("top: 1u"), std::string::npos);
  EXPECT_NE(LimitLine(4, {2, 1e3F, 1e10F, 1e-6F, 3e-7F}).find("bottom: 300n"), std::string::npos);
  EXPECT_NE(LimitLine(1, {2, 1e3F, 1e10F, 1e11F, -1e11F}).find("top:  ---"), std::string::npos);
  EXPECT_NE(LimitLine(1, {2, 1e3F, 1e10F, 1e11F, -1e11F}).find("bottom:  ---"), std::string::npos);
}

TEST_F(WithAreas, ALineOpensTheBoxesOfItsShape) {
  Edit([this] {
    EXPECT_EQ(Top().Id(), PageId::EditLimits);
    EXPECT_EQ(Get<ListBox>("lstSelect").items.size(), 4U);
    EXPECT_TRUE(Seen("lblIdle"));
    EXPECT_FALSE(Get<Button>("cmdAccept").enabled);
    const auto seen = [this] {
      std::string boxes;
      for (const char* name : {"txtStart", "txtStop", "txtUpper", "txtLower"}) boxes += Seen(name) ? 'x' : '-';
      return boxes;
    };
    const char* expected[] = {"-xx-", "xx-x", "x-xx", "x--x"};
    const int shapes[] = {1, 6, 9, 2};
    for (int line = 1; line <= 4; ++line) {
      Choose(session, Get<ListBox>("lstSelect"), line);
      EXPECT_EQ(seen(), expected[line - 1]) << line;
      for (int shape = 1; shape <= 9; ++shape) {
        EXPECT_EQ(Seen("cmdShape" + std::to_string(shape)), shape == shapes[line - 1]) << line << " " << shape;
      }
    }
    EXPECT_EQ(Get<TextBox>("txtLower").text, "300n");
    EXPECT_TRUE(Seen("lblEdit"));
    EXPECT_FALSE(Seen("lblIdle"));
  });
}

TEST_F(WithAreas, AcceptWritesWhatWasChangedAndKeepsTheRestExactly) {
  Edit([this] {
    Choose(session, Get<ListBox>("lstSelect"), 2);
    EXPECT_EQ(Get<TextBox>("txtStart").text, "1.23457M");
    Enter("txtLower", "-25");
    Press("cmdAccept");
    EXPECT_EQ(AreaAt(Limits(), 1, 2), (LimitArea{6, 1.2345678e6F, 3e6F, 0, -25}));
    EXPECT_NE(Get<ListBox>("lstSelect").items[1].find("bottom: -25"), std::string::npos);
    EXPECT_EQ(Top().Id(), PageId::EditLimits);
    Press("cmdExit");
  });
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(WithAreas, NothingIsWrittenWithoutAccept) {
  const DesignRecord before = session.record;
  Edit([this] {
    Choose(session, Get<ListBox>("lstSelect"), 1);
    Enter("txtStop", "5M");
    Press("cmdExit");
  });
  EXPECT_EQ(session.record, before);
}

TEST_F(WithAreas, OfASingleFrequencyTheStopFollows) {
  Edit([this] {
    Choose(session, Get<ListBox>("lstSelect"), 3);
    Enter("txtStart", "3M");
    Press("cmdAccept");
    EXPECT_EQ(AreaAt(Limits(), 1, 3), (LimitArea{9, 3e6F, 3e6F, -9, -9}));
    EXPECT_FALSE(Seen("txtStop"));
  });
}

TEST_F(WithAreas, OfAPointTheValueThatWasChangedSetsBoth) {
  Edit([this] {
    Choose(session, Get<ListBox>("lstSelect"), 3);
    Enter("txtLower", "-12");
    EXPECT_EQ(Get<TextBox>("txtUpper").text, "-12");
    Press("cmdAccept");
    EXPECT_EQ(AreaAt(Limits(), 1, 3), (LimitArea{9, 2e6F, 2e6F, -12, -12}));
    Enter("txtUpper", "-15");
    Press("cmdAccept");
    EXPECT_EQ(AreaAt(Limits(), 1, 3), (LimitArea{9, 2e6F, 2e6F, -15, -15}));
  });
}

TEST_F(WithAreas, EachAcceptIsAStepThatCanBeTakenBackOnThePage) {
  Edit([this] {
    Choose(session, Get<ListBox>("lstSelect"), 1);
    Enter("txtStop", "2M");
    Press("cmdAccept");
    Enter("txtStop", "3M");
    Press("cmdAccept");
    Undo(session);
    EXPECT_EQ(Limits().LimitStop[1][1], 2e6F);
    EXPECT_EQ(Top().Id(), PageId::EditLimits);
    EXPECT_TRUE(Seen("lblIdle"));
    EXPECT_NE(Get<ListBox>("lstSelect").items[0].find("DC up to 2M"), std::string::npos);
    Undo(session);
    EXPECT_EQ(Limits().LimitStop[1][1], 1e6F);
    EXPECT_FALSE(CanUndo(session));
    Redo(session);
  });
  EXPECT_EQ(Limits().LimitStop[1][1], 2e6F);
  EXPECT_EQ(session.history.UndoText(), "Edit limits");
}

// A damaged file may hold what is no shape.
TEST_F(WithAreas, AnUnknownShapeIsListedAndNotEdited) {
  session.record.LimitShape[1][1] = 77;
  Edit([this] {
    Choose(session, Get<ListBox>("lstSelect"), 1);
    EXPECT_FALSE(Get<Button>("cmdAccept").enabled);
    EXPECT_FALSE(Seen("txtStop"));
  });
  EXPECT_TRUE(MessageTexts().empty());
}

class MarkersPage : public LimitsPage {
 protected:
  bool ShowsRow(const std::string& frequency) {
    const auto& operations = session.plot.picture.Operations();
    return std::any_of(operations.begin(), operations.end(), [&frequency](const PictureOp& operation) {
      const auto* text = std::get_if<TextOp>(&operation);
      return text != nullptr && text->at.y > 7500 && text->text == frequency;
    });
  }
};

TEST_F(MarkersPage, ShowTakesTheBoxesAndStays) {
  On("cmdMarkers", [this] {
    EXPECT_EQ(Get<TextBox>("txtMarkerFrequency1").text, "");
    Enter("txtMarkerFrequency1", "500k");
    Enter("txtMarkerFrequency8", "1.5M");
    EXPECT_EQ(Limits().MarkerFreq[1], 0);
    Press("cmdMarkerOn");
    EXPECT_EQ(Top().Id(), PageId::Marker);
    Press("cmdExit");
  });
  EXPECT_EQ(Limits().MarkerFreq[1], 500e3F);
  EXPECT_EQ(Limits().MarkerFreq[8], 1.5e6F);
  EXPECT_NE(Limits().MarkersShown, 0);
  EXPECT_TRUE(ShowsRow("500k "));
  On("cmdMarkers", [this] { EXPECT_EQ(Get<TextBox>("txtMarkerFrequency8").text, "1.5M"); });
}

TEST_F(MarkersPage, ExitDropsWhatWasTyped) {
  const DesignRecord before = session.record;
  On("cmdMarkers", [this] {
    Enter("txtMarkerFrequency1", "500k");
    Press("cmdExit");
  });
  EXPECT_EQ(session.record, before);
}

TEST_F(MarkersPage, NoFrequencyShowsNothing) {
  On("cmdMarkers", [this] {
    Enter("txtMarkerFrequency1", "-5");
    Press("cmdMarkerOn");
  });
  EXPECT_EQ(Limits().MarkersShown, 0);
  EXPECT_EQ(Limits().MarkerFreq[1], 0);
}

TEST_F(MarkersPage, HideKeepsThemAndEraseDoesNot) {
  session.record.MarkerFreq[1] = 500e3F;
  On("cmdMarkers", [this] {
    Press("cmdMarkerOn");
    EXPECT_TRUE(ShowsRow("500k "));
    Enter("txtMarkerFrequency2", "2M");
    Press("cmdMarkerHide");
    EXPECT_EQ(Limits().MarkersShown, 0);
    EXPECT_FALSE(ShowsRow("500k "));
    EXPECT_EQ(Limits().MarkerFreq[1], 500e3F);
    EXPECT_EQ(Get<TextBox>("txtMarkerFrequency2").text, "2M");
    Press("cmdMarkerErase");
    EXPECT_EQ(Limits().MarkerFreq[1], 0);
    EXPECT_EQ(Get<TextBox>("txtMarkerFrequency1").text, "");
    EXPECT_EQ(Get<TextBox>("txtMarkerFrequency2").text, "");
    EXPECT_EQ(Top().Id(), PageId::Marker);
  });
}

TEST_F(MarkersPage, EachActIsAStep) {
  On("cmdMarkers", [this] {
    Enter("txtMarkerFrequency1", "500k");
    Press("cmdMarkerOn");
    Press("cmdMarkerErase");
    Undo(session);
    EXPECT_EQ(Limits().MarkerFreq[1], 500e3F);
    EXPECT_EQ(Get<TextBox>("txtMarkerFrequency1").text, "500k");
  });
  EXPECT_EQ(session.history.UndoText(), "Markers");
  Undo(session);
  EXPECT_EQ(Limits().MarkerFreq[1], 0);
}

}  // namespace
}  // namespace quilm
