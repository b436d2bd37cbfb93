// Undo and redo over the real pages.

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "pages/plot/frmPlotted.h"
#include "shell/History.h"

namespace quilm {
namespace {

class UndoOfDesigns : public PageBench {
 protected:
  UndoOfDesigns() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
  }

  DesignRecord& Record() { return session.record; }

  // The record as undo brings it back: the sweep is to be made anew.
  DesignRecord Snapshot() {
    DesignRecord design = Record();
    design.ResponsesValid = 0;
    return design;
  }

  // Presses a button that opens a modal page, on which `act` is done.
  void PressAndThen(const std::string& button, std::function<void()> act) {
    platform.modalActs.push_back([act = std::move(act)](Page&) { act(); });
    Press(button);
  }

  // Does the act on the Design page, as one step, and checks that undo and redo bring the records before and after it
  // back, the page showing them.
  void ExpectOneStep(const std::function<void()>& act, const std::string& what) {
    const DesignRecord before = Snapshot();
    const i16 optionBefore = session.familyOption;
    act();
    const DesignRecord after = Snapshot();
    const i16 optionAfter = session.familyOption;
    EXPECT_FALSE(before == after);
    EXPECT_EQ(session.history.UndoText(), what);
    for (int times = 0; times < 2; ++times) {
      Undo(session);
      EXPECT_EQ(Record(), before);
      EXPECT_EQ(session.familyOption, optionBefore);
      ExpectPageShowsTheRecord();
      Redo(session);
      EXPECT_EQ(Record(), after);
      EXPECT_EQ(session.familyOption, optionAfter);
      ExpectPageShowsTheRecord();
    }
  }

  // What a Design page that is opened now would show.
  void ExpectPageShowsTheRecord() {
    ASSERT_EQ(Top().Id(), PageId::Design);
    const DesignRecord kept = Record();
    const auto fresh = AllPages().at(PageId::Design)(session);
    fresh->Reload();
    for (const Control* control : fresh->Controls()) {
      const Control* shown = Top().Find(control->name);
      ASSERT_NE(shown, nullptr);
      EXPECT_EQ(shown->caption, control->caption) << control->name;
      EXPECT_EQ(shown->Shown(), control->Shown()) << control->name;
      EXPECT_EQ(shown->Active(), control->Active()) << control->name;
      if (const auto* box = dynamic_cast<const TextBox*>(control)) {
        EXPECT_EQ(dynamic_cast<const TextBox*>(shown)->text, box->text) << control->name;
      }
      if (const auto* option = dynamic_cast<const OptionButton*>(control)) {
        EXPECT_EQ(dynamic_cast<const OptionButton*>(shown)->Value(), option->Value()) << control->name;
      }
    }
    EXPECT_EQ(Record(), kept);
  }
};

TEST_F(UndoOfDesigns, AnEntry) {
  ExpectOneStep([this] { Enter("txtBandwidth", "25k"); }, "Bandwidth or cutoff");
  EXPECT_EQ(Get<TextBox>("txtBandwidth").text, "25k");
  Undo(session);
  EXPECT_EQ(Get<TextBox>("txtBandwidth").text, "1M");
}

TEST_F(UndoOfDesigns, ATopology) {
  ExpectOneStep([this] { Press("optShuntInGeoSymm"); }, "Shunt-input bandpass");
}

TEST_F(UndoOfDesigns, TheOrder) {
  ExpectOneStep([this] { Step(session, Get<Spin>("UpDown1"), +1); }, "Order");
}

TEST_F(UndoOfDesigns, EachTurnOfTheOrderIsAStep) {
  Step(session, Get<Spin>("UpDown1"), +1);
  Step(session, Get<Spin>("UpDown1"), +1);
  EXPECT_EQ(Record().Order, 5);
  Undo(session);
  EXPECT_EQ(Record().Order, 4);
  EXPECT_EQ(Get<Label>("lblOrderInput").caption, "4");
}

TEST_F(UndoOfDesigns, AFamilyWithAllThatItSets) {
  Press("optChebycheff");
  Enter("txtPassbandRipple", ".5");
  ExpectOneStep([this] { Press("optCauer"); }, "Cauer");
  ExpectOneStep([this] { Press("optBessel"); }, "Bessel");
}

TEST_F(UndoOfDesigns, TheUnits) {
  ExpectOneStep([this] { Press("optMetric"); }, "Metric");
}

// A stopband that is typed does not agree with the prototype until the next network; a load step would derive it.
TEST_F(UndoOfDesigns, ATypedStopbandOfACauerDesignComesBackAsTyped) {
  Press("optCauer");
  Enter("txtStopbandFreq", "2M");
  Enter("txtStopbandDepth", "40");
  Press("cmdPlot");
  Press("cmdDesign");
  Enter("txtStopbandFreq", "3M");
  ExpectOneStep([this] { Enter("txtInputTerm", "75"); }, "Input termination");
  Undo(session);
  EXPECT_EQ(Record().Fstopband, 3e6F);
  EXPECT_EQ(Get<TextBox>("txtStopbandFreq").text, "3M");
}

// The centre frequency that rests while a lowpass stands belongs to no other design.
TEST_F(UndoOfDesigns, TheRestingCentreDoesNotOutliveItsDesign) {
  Press("optShuntInGeoSymm");
  Enter("txtCenterFrequency", "10M");
  Press("optCapInLowpass");
  for (int step = 0; step < 3; ++step) Undo(session);
  EXPECT_EQ(Record().Topology, "A");
  Press("optShuntInGeoSymm");
  EXPECT_EQ(Record().Fcenter, 0);
}

TEST_F(UndoOfDesigns, ANetworkGoesWithTheEntryThatItFollowsFrom) {
  const DesignRecord before = Snapshot();
  Enter("txtBandwidth", "2M");
  Press("cmdPlot");
  EXPECT_EQ(Record().Stages, 3);
  const DesignRecord plotted = Snapshot();
  Undo(session);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::Plotted), nullptr);
  DesignRecord now = Snapshot();
  now.PlotCode = before.PlotCode;
  EXPECT_EQ(now, before);
  Redo(session);
  EXPECT_EQ(Snapshot(), plotted);
}

TEST_F(UndoOfDesigns, LookingAtTheResultOfAnUndoKeepsTheRedo) {
  Enter("txtBandwidth", "2M");
  Enter("txtBandwidth", "3M");
  Undo(session);
  Press("cmdPlot");
  EXPECT_EQ(Record().Width, 2e6F);
  Redo(session);
  EXPECT_EQ(Record().Width, 3e6F);
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(UndoOfDesigns, ThePlotIsDrawnOfTheDesignThatCameBack) {
  Press("cmdAnalysis");
  Enter("txtFstop", "20M");
  Press("cmdPlot");
  const Picture wide = Get<PictureBox>("picPlot").picture;
  Undo(session);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(Get<TextBox>("txtFstop").text, "10M");
  Redo(session);
  EXPECT_EQ(Get<TextBox>("txtFstop").text, "20M");
  Press("cmdPlot");
  EXPECT_EQ(Get<PictureBox>("picPlot").picture, wide);
}

// The Analysis page fills what is missing when it is opened, and not when an undo or a redo brings it back.
TEST_F(UndoOfDesigns, AStartThatIsNoneComesBackAsItWas) {
  Press("cmdAnalysis");
  Enter("txtFstart", "-3");
  Press("cmdDesign");
  Undo(session);
  Redo(session);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_EQ(Record().Fstart, -3);
}

// Each load of the plot is a sweep.
class CountedPlot : public frmPlotted {
 public:
  CountedPlot(Session& session, int& sweeps) : frmPlotted(session), sweeps_(sweeps) {}
  void Load() override {
    ++sweeps_;
    frmPlotted::Load();
  }

 private:
  int& sweeps_;
};

class UndoWithCountedPlots : public PageBench {
 protected:
  UndoWithCountedPlots() : PageBench(Pages()) { StartProgram(session); }

  int sweeps = 0;

 private:
  PageDirectory Pages() {
    PageDirectory pages = AllPages();
    pages[PageId::Plotted] = [this](Session& owner) { return std::make_unique<CountedPlot>(owner, sweeps); };
    return pages;
  }
};

TEST_F(UndoWithCountedPlots, APlotThatComesBackSweepsOnce) {
  MakeLowpass();
  Press("cmdAutoScale");
  Press("cmdDesign");
  ASSERT_EQ(session.history.UndoText(), "AutoScale");
  sweeps = 0;
  Undo(session);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(sweeps, 1);
}

TEST_F(UndoOfDesigns, AReadFile) {
  Press("cmdPlot");
  const std::string path = platform.ProgramFolder() + "/read.QLM";
  platform.files.push_back(path);
  Press("cmdSave");
  Press("cmdDesign");
  Press("optChebycheff");
  Enter("txtPassbandRipple", ".1");
  Record().DesignFileName = "other.QLM";
  platform.files.push_back(path);
  ExpectOneStep([this] { Press("cmdGet"); }, "Get a design from disk");
  EXPECT_EQ(Record().DesignFileName, path);
  Undo(session);
  EXPECT_EQ(Record().DesignFileName, "other.QLM");
}

TEST_F(UndoOfDesigns, AFileThatCouldNotBeRead) {
  const std::string path = platform.ProgramFolder() + "/broken.QLM";
  std::ofstream(path) << "nothing\r\n";
  const DesignRecord before = Snapshot();
  platform.files.push_back(path);
  Press("cmdGet");
  EXPECT_FALSE(Snapshot() == before);
  Undo(session);
  EXPECT_EQ(Record(), before);
}

TEST_F(UndoOfDesigns, EndSections) {
  Press("optConstantK");
  Press("Command11");
  ExpectOneStep([this] { Press("cmdOk"); }, "End sections");
  EXPECT_EQ(Record().Stages, 5);
}

TEST_F(UndoOfDesigns, EndSectionsThatWereIgnoredAreNoStep) {
  Press("optConstantK");
  Press("Command11");
  Press("cmdIgnore");
  EXPECT_EQ(session.history.UndoText(), "Constant-K");
}

TEST_F(UndoOfDesigns, ASinglyTerminatedDesign) {
  Press("Command4");
  ExpectOneStep([this] { Press("cmdExit"); }, "Singly-terminated Chebyshev Design");
  EXPECT_EQ(Record().Rsource[1], 0.01F);
}

TEST_F(UndoOfDesigns, AnAcceptedMderivedDesign) {
  ExpectOneStep(
      [this] {
        PressAndThen("optMderived", [this] {
          Enter("txtZeroFreq1", "1.25M");
          Press("cmdOk");
        });
      },
      "M-derived");
}

TEST_F(UndoOfDesigns, NewZerosOfAnMderivedDesignOnTheWayToThePlot) {
  PressAndThen("optMderived", [this] {
    Enter("txtZeroFreq1", "1.25M");
    Press("cmdOk");
  });
  PressAndThen("cmdPlot", [this] {
    Enter("txtZeroFreq1", "2M");
    Press("cmdOk");
  });
  EXPECT_EQ(session.history.UndoText(), "M-derived design");
  Undo(session);
  EXPECT_EQ(Record().MderivedZero[1], 1.25e6F);
}

TEST_F(UndoOfDesigns, ADesignComputedOverAHandMadeNetwork) {
  Press("optConstantK");
  Press("Command11");
  Press("cmdOk");
  Press("cmdPlot");
  Press("cmdDesign");
  const DesignRecord handMade = Snapshot();
  Press("optButterworth");
  Press("cmdPlot");
  EXPECT_EQ(Record().Stages, 3);
  Undo(session);
  EXPECT_EQ(Record(), handMade);
  EXPECT_TRUE(Get<OptionButton>("optManual").Value());
  Press("cmdPlot");
  EXPECT_EQ(Record().Stages, 5);
}

TEST_F(UndoOfDesigns, AnEntryAskedForOnTheWay) {
  Enter("txtBandwidth", "0");
  PressAndThen("cmdPlot", [this] {
    Enter("txtWidth", "3M");
    Press("cmdOk");
  });
  EXPECT_EQ(Record().Width, 3e6F);
  EXPECT_EQ(session.history.UndoText(), "Enter bandwidth");
  Undo(session);
  EXPECT_EQ(Record().Width, 0);
}

TEST_F(UndoOfDesigns, TheTitle) {
  PressAndThen("cmdTitle", [this] {
    Control* box = nullptr;
    for (Control* control : Top().Controls()) {
      if (control->kind == ControlKind::Text) box = control;
    }
    ASSERT_NE(box, nullptr);
    Enter(box->name, "Harmonic filter");
    ASSERT_NE(Top().acceptButton, nullptr);
    Click(session, *Top().acceptButton);
  });
  EXPECT_EQ(Record().CircuitTitle, "Harmonic filter");
  EXPECT_EQ(session.history.UndoText(), "Title");
  Undo(session);
  EXPECT_EQ(Record().CircuitTitle, "");
}

TEST_F(UndoOfDesigns, AScaledResponse) {
  Press("cmdAnalysis");
  const DesignRecord before = Snapshot();
  Press("cmdAutoScale");
  Undo(session);
  EXPECT_EQ(Record(), before);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

TEST_F(UndoOfDesigns, SavingIsNoChangeAndStays) {
  Enter("txtBandwidth", "2M");
  platform.files.push_back(platform.ProgramFolder() + "/saved.QLM");
  Press("cmdSave");
  EXPECT_EQ(session.history.UndoText(), "Bandwidth or cutoff");
  Undo(session);
  EXPECT_EQ(Record().DesignFileName, platform.ProgramFolder() + "/saved.QLM");
}

TEST_F(UndoOfDesigns, MoreThanAHundredSteps) {
  std::vector<DesignRecord> designs{Snapshot()};
  for (int i = 1; i <= 120; ++i) {
    switch (i % 3) {
      case 0:
        Press(i / 3 % 2 == 1 ? "optBessel" : "optButterworth");
        break;
      case 1:
        Enter("txtBandwidth", std::to_string(i) + "k");
        break;
      default:
        Press(i / 3 % 2 == 0 ? "optCapInHighpass" : "optCapInLowpass");
    }
    if (i % 7 == 0) {
      Press("cmdPlot");
      Press("cmdDesign");
    }
    designs.push_back(Snapshot());
  }
  const auto design = [&](int i) {
    DesignRecord expected = designs[static_cast<std::size_t>(i)];
    expected.PlotCode = Record().PlotCode;
    return expected;
  };
  for (int i = 119; i >= 0; --i) {
    Undo(session);
    ASSERT_EQ(Record(), design(i)) << i;
  }
  for (int i = 1; i <= 120; ++i) {
    Redo(session);
    ASSERT_EQ(Record(), design(i)) << i;
  }
}

TEST_F(UndoOfDesigns, AChangeAfterAnUndoDropsTheRedo) {
  Enter("txtBandwidth", "2M");
  Undo(session);
  Press("optBessel");
  EXPECT_FALSE(CanRedo(session));
}

class UndoAtTheStart : public PageBench {
 protected:
  UndoAtTheStart() : PageBench(AllPages()) { StartProgram(session); }
};

TEST_F(UndoAtTheStart, ThereIsNothingToUndo) {
  EXPECT_THROW(Undo(session), ActRefused);
  Press("cmdDesignNew");
  EXPECT_THROW(Undo(session), ActRefused);
  Press("cmdAnalysis");
  EXPECT_THROW(Undo(session), ActRefused);
}

TEST_F(UndoAtTheStart, TheDesignThatWasOpenedIsWhereTheHistoryBegins) {
  Press("cmdDesignNew");
  Press("optButterworth");
  Press("optCapInLowpass");
  Enter("txtBandwidth", "1M");
  Enter("txtInputTerm", "50");
  const std::string path = platform.ProgramFolder() + "/a.QLM";
  platform.files.push_back(path);
  Press("cmdSave");

  Session next(platform, AllPages());
  StartProgram(next);
  platform.files.push_back(path);
  Click(next, *next.pages.Top()->Find("cmdRetrieveOld"));
  EXPECT_EQ(next.record.Width, 1e6F);
  EXPECT_FALSE(CanUndo(next));
}

}  // namespace
}  // namespace quilm
