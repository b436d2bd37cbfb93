// The special designs from the Design page: M-derived, singly terminated, end sections, normalised values.

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class SpecialDesign : public PageBench {
 protected:
  SpecialDesign() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
  }

  // Presses a button that opens a modal page, on which `act` is done.
  void PressAndThen(const std::string& button, PageId page, std::function<void()> act) {
    platform.modalActs.push_back([page, act](Page& opened) {
      EXPECT_EQ(opened.Id(), page);
      act();
    });
    Press(button);
  }

  // The same of a tool that takes the place of the Design page.
  void GoAndThen(const std::string& button, PageId page, const std::function<void()>& act) {
    Press(button);
    ASSERT_EQ(Top().Id(), page);
    EXPECT_EQ(session.pages.Find(PageId::Design), nullptr);
    act();
  }

  DesignRecord& Record() { return session.record; }

  // Saves the network and gets it back after another one was made. The families of a network made by hand are open
  // again when the Design page is next loaded.
  void SaveAndGet() {
    const std::string path = platform.ProgramFolder() + "/special.QLM";
    platform.files.push_back(path);
    Press("cmdSave");
    Press("cmdPlot");
    Press("cmdDesign");
    Press("optButterworth");
    Enter("txtInputTerm", "50");  // the 0.01 ohm of a singly terminated design drives no other
    Press("cmdPlot");
    Press("cmdDesign");
    platform.files.push_back(path);
    Press("cmdGet");
  }

  // The design file has seven significant digits.
  void ExpectStages(const DesignRecord& expected) {
    ASSERT_EQ(Record().Stages, expected.Stages);
    for (int s = 1; s <= expected.Stages; ++s) {
      EXPECT_EQ(Record().stage[s].ElementType, expected.stage[s].ElementType) << s;
      EXPECT_NEAR(Record().stage[s].Lval.value, expected.stage[s].Lval.value, 1e-6 * expected.stage[s].Lval.value) << s;
      EXPECT_NEAR(Record().stage[s].Cval.value, expected.stage[s].Cval.value, 1e-6 * expected.stage[s].Cval.value) << s;
    }
  }
};

class MderivedPage : public SpecialDesign {
 protected:
  void EnterZeros(const std::vector<std::string>& zeros) {
    for (std::size_t i = 0; i < zeros.size(); ++i) Enter("txtZeroFreq" + std::to_string(i + 1), zeros[i]);
    Press("cmdOk");
  }
};

TEST_F(MderivedPage, ShowsTheDesignAndFiveZeros) {
  PressAndThen("optMderived", PageId::Mderived, [this] {
    EXPECT_EQ(Get<Label>("lblInputTerm").caption, "Input term: ");
    EXPECT_EQ(Get<Label>("lblInputTermValue").caption, "50");
    EXPECT_EQ(Get<Label>("lblBandwidth").caption, "Bandwidth: ");
    EXPECT_EQ(Get<Label>("lblBandwidthValue").caption, "1M");
    for (int i = 1; i <= 5; ++i) {
      const std::string digit = std::to_string(i);
      EXPECT_EQ(Get<Label>("lblZeroFreq" + digit).caption, "Zero freq " + digit + ": ");
      EXPECT_EQ(Get<TextBox>("txtZeroFreq" + digit).text, "0");
    }
  });
}

// A zero at 1.25 of the width: m = 0.6, and the first arm L = 0.6 * 50 / (2 Pi 1e6).
TEST_F(MderivedPage, LeadsFromZerosToThePlot) {
  PressAndThen("optMderived", PageId::Mderived, [this] { EnterZeros({"1.25M"}); });
  EXPECT_EQ(Record().Family, familyMderived);
  EXPECT_EQ(Record().Order, 7);
  EXPECT_EQ(Get<Label>("lblOrderInput").caption, "7");
  PressAndThen("cmdPlot", PageId::Mderived, [this] {
    EXPECT_EQ(Get<TextBox>("txtZeroFreq1").text, "1.25M");
    Press("cmdOk");
  });
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  ASSERT_EQ(Record().Stages, 5);
  EXPECT_EQ(Record().stage[1].ElementType, SeriesPLC);
  EXPECT_NEAR(Record().stage[1].Lval.value, 0.6 * 50 / (2 * Pi * 1e6), 1e-11);
}

TEST_F(MderivedPage, AZeroOnTheWrongSideIsResetAndToldOf) {
  PressAndThen("optMderived", PageId::Mderived, [this] {
    Enter("txtZeroFreq1", "1.5M");
    Enter("txtZeroFreq2", "900k");
    Press("cmdOk");
    EXPECT_EQ(Top().Id(), PageId::Mderived);
    EXPECT_EQ(MessageTexts().back(), "The zero frequency must be greater than 1000000");
    EXPECT_EQ(Get<TextBox>("txtZeroFreq2").text, "0");
    EXPECT_EQ(Get<TextBox>("txtZeroFreq1").text, "1.5M");
    EXPECT_EQ(Record().MderivedZero[1], 0);
    EXPECT_EQ(Record().Order, 3);
    Press("cmdOk");
  });
  EXPECT_EQ(Record().MderivedZero[1], 1.5e6F);
}

TEST_F(MderivedPage, AHighpassHasItsZerosBelow) {
  Press("optCapInHighpass");
  PressAndThen("optMderived", PageId::Mderived, [this] {
    Enter("txtZeroFreq1", "1.2M");
    Press("cmdOk");
    EXPECT_EQ(MessageTexts().back(), "The zero frequency must be lower than 1000000");
    EnterZeros({"800k"});
  });
  EXPECT_EQ(Record().Order, 7);
}

TEST_F(MderivedPage, AHighpassTakesNoZeroFarBelowNought) {
  Press("optCapInHighpass");
  PressAndThen("optMderived", PageId::Mderived, [this] {
    const DesignRecord before = Record();
    Enter("txtZeroFreq1", "-2M");
    Press("cmdOk");
    EXPECT_EQ(MessageTexts().back(), "The zero frequency must be lower than 1000000");
    EXPECT_EQ(Get<TextBox>("txtZeroFreq1").text, "0");
    EXPECT_EQ(Record(), before);
    Press("cmdIgnore");
  });
}

// A bandwidth below 0 would have a zero below 0 above it.
TEST_F(MderivedPage, AZeroBelowNoughtIsInNoStopband) {
  Enter("txtBandwidth", "-5M");
  PressAndThen("optMderived", PageId::Mderived, [this] {
    Enter("txtZeroFreq1", "-2M");
    Press("cmdOk");
    EXPECT_EQ(Top().Id(), PageId::Mderived);
    EXPECT_EQ(Get<TextBox>("txtZeroFreq1").text, "0");
    EXPECT_EQ(Record().MderivedZero[1], 0);
    Press("cmdIgnore");
  });
}

TEST_F(MderivedPage, IgnoringItLeavesTheRecordAndMakesNoNetworkOfAnotherFamily) {
  PressAndThen("optMderived", PageId::Mderived, [this] {
    Enter("txtZeroFreq1", "1.5M");
    Press("cmdIgnore");
  });
  EXPECT_EQ(Record().MderivedZero[1], 0);
  PressAndThen("cmdPlot", PageId::Mderived, [this] { Press("cmdIgnore"); });
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().Stages, 0);
  EXPECT_EQ(MessageTexts().back().substr(0, 40), "We could not calculate the parts values.");
}

TEST_F(MderivedPage, WithoutZerosThereIsNoNetwork) {
  PressAndThen("optMderived", PageId::Mderived, [this] { Press("cmdOk"); });
  EXPECT_EQ(Record().Order, 0);
  EXPECT_EQ(Record().Stages, 0);
}

TEST_F(MderivedPage, IgnoringItLaterKeepsTheZerosForTheNewBandwidth) {
  PressAndThen("optMderived", PageId::Mderived, [this] { EnterZeros({"1.25M"}); });
  Enter("txtBandwidth", "750k");
  PressAndThen("cmdPlot", PageId::Mderived, [this] { Press("cmdIgnore"); });
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  // m = sqrt(1 - 0.36) = 0.8.
  EXPECT_NEAR(Record().Hj[2], 0.8, 1e-6);
}

TEST_F(MderivedPage, TheZerosSurviveTheDesignFile) {
  PressAndThen("optMderived", PageId::Mderived, [this] { EnterZeros({"1.25M", "2M"}); });
  PressAndThen("cmdPlot", PageId::Mderived, [this] { Press("cmdOk"); });
  const std::string path = platform.ProgramFolder() + "/m.QLM";
  platform.files.push_back(path);
  Press("cmdSave");
  Record().MderivedZero.Fill(0);
  platform.files.push_back(path);
  Press("cmdGet");
  EXPECT_EQ(Record().Family, familyMderived);
  EXPECT_EQ(Record().MderivedZero[1], 1.25e6F);
  EXPECT_EQ(Record().MderivedZero[2], 2e6F);
  EXPECT_TRUE(platform.messages.empty());
}

class SinglyTerminatedPage : public SpecialDesign {
 protected:
  void Open(const std::function<void()>& act) { GoAndThen("Command4", PageId::SinglyTermCheby, act); }
};

TEST_F(SinglyTerminatedPage, HasItsDefaults) {
  Open([this] {
    EXPECT_EQ(Top().title, "Singly-terminated Chebyshev Design");
    EXPECT_EQ(Get<TextBox>("txtOrder").text, "4");
    EXPECT_EQ(Get<TextBox>("txtRipple").text, ".1");
    EXPECT_EQ(Get<TextBox>("txtOutputTermination").text, "10000");
    EXPECT_EQ(Get<TextBox>("txtBandwidth").text, "1M");
    EXPECT_EQ(Get<OptionButton>("Option1").caption, "Inductor-input lowpass");
    EXPECT_EQ(Get<OptionButton>("Option2").caption, "Series-input bandpass");
    EXPECT_EQ(Get<OptionButton>("Option3").caption, "Capacitor-input highpass");
    EXPECT_EQ(Get<Button>("cmdExit").caption, "Accept and return to Design page");
    EXPECT_FALSE(Get<TextBox>("txtCenterFrequency").Shown());
  });
}

TEST_F(SinglyTerminatedPage, AcceptingMakesTheNetwork) {
  Open([this] { Press("cmdExit"); });
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Record().NetworkEdited, 1);
  EXPECT_EQ(Record().Topology, "B");
  EXPECT_EQ(Record().Stages, 4);
  EXPECT_EQ(Record().Rsource[1], 0.01F);
  EXPECT_EQ(Record().Rload[1], 10000);
  EXPECT_TRUE(Get<OptionButton>("optManual").Value());
  const f32 first = Record().stage[1].Lval.value;
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(Record().stage[1].Lval.value, first);
}

TEST_F(SinglyTerminatedPage, TheNetworkSurvivesTheDesignFile) {
  Open([this] { Press("cmdExit"); });
  const DesignRecord made = Record();
  SaveAndGet();
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Record().Rsource[1], 0.01F);
  EXPECT_EQ(Record().Rload[1], 10000);
  ExpectStages(made);
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  ExpectStages(made);
}

TEST_F(SinglyTerminatedPage, TheBandpassHasACentre) {
  Open([this] {
    Press("Option2");
    EXPECT_TRUE(Get<TextBox>("txtCenterFrequency").Shown());
    Press("cmdExit");
    EXPECT_EQ(MessageTexts().back(), "Please enter a center frequency");
    Enter("txtCenterFrequency", "10M");
    Press("cmdExit");
  });
  EXPECT_EQ(Record().Topology, "F");
  EXPECT_EQ(Record().Fcenter, 1e7F);
  EXPECT_EQ(Record().stage[1].ElementType, SeriesSLC);
}

TEST_F(SinglyTerminatedPage, EveryEntryIsChecked) {
  const std::tuple<const char*, const char*, const char*, const char*> wrong[] = {
      {"txtOrder", "1", "5", "Please enter an order, 2 to 21"},
      {"txtOrder", "22", "5", "Please enter an order, 2 to 21"},
      {"txtOrder", "2.5", "5", "Please enter an order, 2 to 21"},
      {"txtOutputTermination", ".009", ".01", "Please enter an output termination, .01 min to 1M max"},
      {"txtOutputTermination", "1.1M", "1M", "Please enter an output termination, .01 min to 1M max"},
      {"txtRipple", ".00009", ".0001", "Please enter a passband ripple, .0001 min to 10 max"},
      {"txtRipple", "11", "10", "Please enter a passband ripple, .0001 min to 10 max"},
      {"txtBandwidth", ".09", ".1", "Please enter a bandwidth .1 minimum"},
  };
  Open([this] { Press("cmdIgnore"); });  // the network of the present entries comes first
  const DesignRecord before = Record();
  for (const auto& [box, text, good, message] : wrong) {
    Open([&, box = box, text = text, good = good, message = message] {
      Enter(box, text);
      Press("cmdExit");
      EXPECT_EQ(Top().Id(), PageId::SinglyTermCheby) << box << " " << text;
      EXPECT_EQ(MessageTexts().back(), message);
      EXPECT_EQ(platform.messages.back().title, "Error Checker");
      const std::size_t messages = platform.messages.size();
      Enter(box, good);
      Press("cmdIgnore");
      EXPECT_EQ(platform.messages.size(), messages);
    });
    EXPECT_EQ(Record(), before);
  }
}

TEST_F(SinglyTerminatedPage, ThePresentDesignIsComputedFirst) {
  ASSERT_EQ(Record().Stages, 0);
  Open([this] {
    EXPECT_EQ(Record().Stages, 3);
    Press("cmdIgnore");
  });
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.pages.Find(PageId::SinglyTermCheby), nullptr);
  EXPECT_EQ(Record().Stages, 3);
  // A design that cannot be computed keeps the page, after the user was told.
  Press("optChebycheff");
  Enter("txtInputTerm", "0");
  platform.modalActs.push_back([](Page& page) { EXPECT_EQ(page.Id(), PageId::EnterInput); });
  Press("Command4");
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(SinglyTerminatedPage, OpensWithoutABandwidth) {
  Enter("txtBandwidth", "");
  Open([this] {
    EXPECT_TRUE(platform.messages.empty());
    EXPECT_EQ(Get<TextBox>("txtBandwidth").text, "");
    Enter("txtBandwidth", "1M");
    Press("cmdExit");
  });
  EXPECT_EQ(Record().Stages, 4);
}

// The close box of a tool leads back to where it was opened, as its ignore button does.
TEST_F(SinglyTerminatedPage, ItsCloseBoxIgnores) {
  Open([this] { PressCloseBox(session, Top()); });
  EXPECT_FALSE(session.ended);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().Stages, 3);
}

TEST_F(SinglyTerminatedPage, TheLimitsThemselvesAreAccepted) {
  Open([this] {
    Enter("txtOrder", "21");
    Enter("txtRipple", "10");
    Enter("txtOutputTermination", "1M");
    Enter("txtBandwidth", ".1");
    Press("cmdExit");
  });
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Record().Stages, 21);
}

class EndSectionsPage : public SpecialDesign {
 protected:
  EndSectionsPage() { Press("optConstantK"); }
  void Open(const std::function<void()>& act) { GoAndThen("Command11", PageId::EndSections, act); }
};

TEST_F(EndSectionsPage, TheZeroFollowsM) {
  Open([this] {
    EXPECT_EQ(Get<Label>("lblBandwidth").caption, "Lowpass bandwidth:");
    EXPECT_EQ(Get<Label>("lblBandwidthValue").caption, "1M");
    EXPECT_EQ(Get<Label>("lblZero").caption, "Zero frequency: ");
    EXPECT_EQ(Get<Label>("lblZeroValue").caption, "1.25M");
    Enter("txtM", ".8");
    EXPECT_EQ(Get<Label>("lblZeroValue").caption, "1.66667M");
    Enter("txtM", "1");
    EXPECT_EQ(Get<Label>("lblZeroValue").caption, "");
  });
}

TEST_F(EndSectionsPage, AcceptingAddsAStageAtEachEnd) {
  Open([this] { Press("cmdOk"); });
  EXPECT_EQ(Record().Stages, 5);
  EXPECT_EQ(Record().stage[1].ElementType, SeriesPLC);
  EXPECT_EQ(Record().stage[5].ElementType, SeriesPLC);
  EXPECT_TRUE(Get<OptionButton>("optManual").Value());
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(Record().Stages, 5);
}

TEST_F(EndSectionsPage, TheNetworkSurvivesTheDesignFile) {
  Open([this] { Press("cmdOk"); });
  const DesignRecord made = Record();
  SaveAndGet();
  EXPECT_EQ(Record().Family, familyManual);
  ExpectStages(made);
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  ExpectStages(made);
}

TEST_F(EndSectionsPage, ItsCloseBoxIgnores) {
  Open([this] { PressCloseBox(session, Top()); });
  EXPECT_FALSE(session.ended);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(Record().Stages, 3);
}

TEST_F(EndSectionsPage, TheyAreNotAddedTwice) {
  Open([this] { Press("cmdOk"); });
  Press("Command11");
  EXPECT_EQ(MessageTexts().back(), "End sections need plain inductors and capacitors at both ends of the network.");
  EXPECT_EQ(Record().Stages, 5);
}

TEST_F(EndSectionsPage, AnMOutOfRangeIsToldOf) {
  Open([this] {
    Enter("txtM", "1.2");
    Press("cmdOk");
    EXPECT_EQ(Top().Id(), PageId::EndSections);
    EXPECT_EQ(MessageTexts().back(), "Please enter an m above 0 and below 1");
    Press("cmdIgnore");
  });
  EXPECT_EQ(Record().Stages, 3);
  EXPECT_EQ(Record().NetworkEdited, 0);
}

TEST_F(EndSectionsPage, ABandpassHasNone) {
  Press("optButterworth");
  Press("optShuntInGeoSymm");
  Enter("txtCenterFrequency", "10M");
  Press("Command11");
  EXPECT_EQ(MessageTexts().back(), "End sections are for lowpass and highpass filters.");
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(EndSectionsPage, AMissingEntryIsAskedForFirst) {
  Enter("txtBandwidth", "");
  platform.modalActs.push_back([](Page& page) { EXPECT_EQ(page.Id(), PageId::EnterWidth); });
  Press("Command11");
  EXPECT_FALSE(platform.messages.empty());
  EXPECT_EQ(session.pages.Find(PageId::EndSections), nullptr);
}

TEST_F(SpecialDesign, TheNormalizedValuesAreShownAndPrinted) {
  PressAndThen("cmdSeeNorms", PageId::SeeNormalized, [this] {
    EXPECT_EQ(Get<Label>("lblFamily").caption, "Butterworth family");
    EXPECT_FALSE(Get<Label>("lblEntries").Shown());
    EXPECT_EQ(Get<ListBox>("lstValues").items, (std::vector<std::string>{"C(1) = 1", "L(2) = 2", "C(3) = 1"}));
    EXPECT_EQ(Get<Label>("lblOutputTermination").caption, "Output termination: 1");
    Press("cmdPrint");
    Press("cmdExit");
  });
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(SpecialDesign, ANetworkMadeByHandHasNoNormalizedValues) {
  GoAndThen("Command4", PageId::SinglyTermCheby, [this] { Press("cmdExit"); });
  Press("cmdSeeNorms");
  EXPECT_EQ(MessageTexts().back(),
            "The parts were entered or changed by hand.\r\nThere are no normalized values that belong to them.");
}

}  // namespace
}  // namespace quilm
