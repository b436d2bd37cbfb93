// The guides and the texts that stand beside the working pages.
#include <gmock/gmock.h>

#include <cmath>
#include <set>

#include "desk/StartUp.h"
#include "display/PlotFrame.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/HelpPages.h"
#include "shell/History.h"

namespace quilm {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Guidance : public PageBench {
 protected:
  Guidance() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
  }

  void EnterLowpass() {
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtInputTerm", "50");
    Enter("txtBandwidth", "1M");
  }

  // Runs `act` in the modal page that the button opens.
  void In(const std::string& button, const std::function<void()>& act) {
    platform.modalActs.push_back([act](Page&) { act(); });
    Press(button);
    EXPECT_TRUE(platform.modalActs.empty()) << button << " opened nothing";
  }

  const Picture& FamilyPicture() { return Get<PictureBox>("picFamily").picture; }

  // The curves of the picture, each with its pen.
  std::vector<PolylineOp> Traces() {
    std::vector<PolylineOp> traces;
    for (const PictureOp& operation : FamilyPicture().Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->points.size() > 100) traces.push_back(*line);
    }
    return traces;
  }

  std::string Texts() {
    std::string all;
    for (const PictureOp& operation : FamilyPicture().Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) all += text->text + "|";
    }
    return all;
  }

  // The level of a trace at a place along the frame, in dB of a scale from 0 to `bottom`.
  static f64 LevelAt(const PolylineOp& trace, f64 fraction, f64 bottom) {
    const f64 x = 2000 + 9000 * fraction;
    for (std::size_t i = 1; i < trace.points.size(); ++i) {
      const Point a = trace.points[i - 1];
      const Point b = trace.points[i];
      if (static_cast<f64>(b.x) < x) continue;
      const f64 part = (x - static_cast<f64>(a.x)) / static_cast<f64>(b.x - a.x);
      const f64 y = static_cast<f64>(a.y) + part * static_cast<f64>(b.y - a.y);
      return bottom * (y - 1000) / 6000;
    }
    return bottom;
  }
};

TEST_F(Guidance, TheFamilyGuideOpensAtTheFamilyOfTheDesign) {
  const std::vector<std::pair<std::string, std::string>> places = {
      {"optButterworth", "Option1"}, {"optChebycheff", "Option2"}, {"optCauer", "Option3"},    {"optBessel", "Option4"},
      {"optGaussian", "Option5"},    {"optGaussian12", "Option5"}, {"optConstantK", "Option6"}};
  In("cmdHelpFamily", [this] { EXPECT_TRUE(Get<OptionButton>("Option1").Value()) << "no family"; });
  for (const auto& [family, option] : places) {
    Press(family);
    In("cmdHelpFamily", [&] { EXPECT_TRUE(Get<OptionButton>(option).Value()) << family; });
  }
  session.record.Family = familyMderived;
  In("cmdHelpFamily", [this] { EXPECT_TRUE(Get<OptionButton>("Option7").Value()); });
  Press("optManual");
  In("cmdHelpFamily", [this] { EXPECT_TRUE(Get<OptionButton>("Option1").Value()) << "by hand"; });
}

TEST_F(Guidance, EachFamilyHasItsText) {
  In("cmdHelpFamily", [this] {
    for (const auto& [option, name] : std::vector<std::pair<std::string, std::string>>{{"Option1", "Butterworth"},
                                                                                       {"Option2", "Chebyshev"},
                                                                                       {"Option3", "Cauer"},
                                                                                       {"Option4", "Bessel"},
                                                                                       {"Option5", "Gaussian"},
                                                                                       {"Option6", "Constant-K"},
                                                                                       {"Option7", "M-derived"}}) {
      EXPECT_EQ(Get<OptionButton>(option).caption, name);
      Press(option);
      EXPECT_THAT(Get<Label>("lblFamily").caption, StartsWith(name + ":  "));
    }
    Press("Option2");
    EXPECT_THAT(Get<Label>("lblFamily").caption, HasSubstr("The ultimate rate of descent into the stopband"));
    Press("Option6");
    EXPECT_THAT(Get<Label>("lblFamily").caption, HasSubstr("from a manufacturing viewpont. Both"));
  });
}

TEST_F(Guidance, TheFamilyGuideChangesNothingInTheDesign) {
  EnterLowpass();
  Press("cmdPlot");
  Press("cmdDesign");
  const DesignRecord before = session.record;
  const std::string undo = session.history.UndoText();
  In("cmdHelpFamily", [this] {
    for (const char* name : {"Option4", "optTransmissions", "Option7", "optDelays", "optThisFamily", "cmdExit"})
      Press(name);
  });
  EXPECT_EQ(session.record, before);
  EXPECT_EQ(session.history.UndoText(), undo);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Top().Id(), PageId::Design);
}

// The text of the families of constant delay speaks of the red trace.
TEST_F(Guidance, AnExampleHasItsTransmissionInBlueAndItsDelayInRed) {
  In("cmdHelpFamily", [this] {
    const std::vector<PolylineOp> traces = Traces();
    ASSERT_EQ(traces.size(), 2U);
    const bool redFirst = traces[0].pen.color == colorRed;
    EXPECT_EQ(traces[redFirst ? 1 : 0].pen.color, colorBlue);
    EXPECT_EQ(traces[redFirst ? 0 : 1].pen.color, colorRed);
    EXPECT_THAT(Texts(), Not(HasSubstr("Mousedown")));
  });
}

// 10 log10(1 + w^10) of the Butterworth filter of order 5, over 200 kHz to 5 MHz by logarithm: 3.0103 dB at the cutoff,
// 30.1073 dB at twice that.
TEST_F(Guidance, TheExampleIsTheFamilysOwnPrototype) {
  In("cmdHelpFamily", [this] {
    const std::vector<PolylineOp> traces = Traces();
    const PolylineOp& blue = traces[0].pen.color == colorBlue ? traces[0] : traces[1];
    const f64 cutoff = std::log(5.0) / std::log(25.0);
    const f64 octave = std::log(10.0) / std::log(25.0);
    EXPECT_NEAR(LevelAt(blue, cutoff, -60), -3.0103, 0.05);
    EXPECT_NEAR(LevelAt(blue, octave, -60), -30.1073, 0.1);
  });
}

TEST_F(Guidance, AllFamiliesStandInOnePlot) {
  EnterLowpass();
  In("cmdHelpFamily", [this] {
    Press("Option3");
    Press("optTransmissions");
    std::set<Color> colors;
    int wide = 0;
    for (const PolylineOp& trace : Traces()) {
      colors.insert(trace.pen.color);
      if (trace.pen.width == 3) ++wide;
    }
    EXPECT_EQ(colors.size(), 7U);
    EXPECT_EQ(wide, 1) << "the chosen one";
    for (const char* name :
         {"Butterworth|", "Chebyshev|", "Cauer|", "Bessel|", "Gaussian|", "Constant-K|", "M-derived"}) {
      EXPECT_THAT(Texts(), HasSubstr(name));
    }
  });
}

// The sweep fits the band: 100 kHz to 10 MHz, with the cutoff in its middle. There Butterworth and Bessel are 3.01 dB
// down and Chebyshev by its ripple of 0.5 dB, but for the losses of parts with a Q of 200 and 2000.
TEST_F(Guidance, TheFamiliesTogetherAreThoseOfTheEntries) {
  EnterLowpass();
  session.record.Qind[1] = session.record.Qcap[1] = 1e7F;
  session.record.LossBottom = -60;
  In("cmdHelpFamily", [this] {
    Press("optTransmissions");
    EXPECT_THAT(Get<Label>("lblPicture").caption, HasSubstr("ripple 0.5 dB"));
    const std::vector<PolylineOp> traces = Traces();
    ASSERT_EQ(traces.size(), 8U);
    EXPECT_NEAR(LevelAt(traces[0], 0.5, -60), -3.0103, 0.1);
    EXPECT_NEAR(LevelAt(traces[1], 0.5, -60), -0.5, 0.1);
    EXPECT_NEAR(LevelAt(traces[3], 0.5, -60), -3.0103, 0.1);
  });
}

TEST_F(Guidance, AFamilyThatTheTopologyDoesNotHaveIsNamed) {
  EnterLowpass();
  Press("optNodCapBandpass");
  Enter("txtCenterFrequency", "10M");
  In("cmdHelpFamily", [this] {
    Press("optTransmissions");
    EXPECT_THAT(Get<Label>("lblPicture").caption,
                HasSubstr("Not drawn: Cauer, M-derived: not offered in this topology."));
    EXPECT_EQ(Traces().size(), 6U);
  });
}

TEST_F(Guidance, AFamilyThatEndsBelowTheOrderSaysItsOwn) {
  EnterLowpass();
  for (int order = 3; order < 12; ++order) Step(session, Get<Spin>("UpDown1"), +1);
  In("cmdHelpFamily", [this] {
    Press("optDelays");
    EXPECT_THAT(Texts(), HasSubstr("Bessel (order 10)|"));
    EXPECT_THAT(Texts(), HasSubstr("Butterworth|"));
  });
}

TEST_F(Guidance, WithoutEntriesTheFamiliesAreComparedByUsualOnes) {
  In("cmdHelpFamily", [this] {
    Press("optTransmissions");
    EXPECT_THAT(Get<Label>("lblPicture").caption,
                HasSubstr("Assumed: Capacitor-input lowpass, band 1MHz, ripple 0.5 dB"));
    EXPECT_EQ(Traces().size(), 8U);
  });
}

// Its stopband is chosen so that its ripple, a result of an odd order, is that of the Chebyshev one: without losses it
// stays within 0.5 dB up to the cutoff, in the middle of the axis. At 6.3 MHz it has come to its depth of 50 dB.
TEST_F(Guidance, ACauerDesignWithoutAStopbandHasTheRippleOfTheOthers) {
  EnterLowpass();
  session.record.Qind[1] = session.record.Qcap[1] = 1e7F;
  session.record.LossBottom = -60;
  for (const f32 order : {3.0F, 7.0F, 15.0F}) {
    session.record.Order = order;
    In("cmdHelpFamily", [&] {
      Press("optTransmissions");
      const PolylineOp cauer = Traces()[2];
      f64 deepest = 0;
      for (f64 along = 0.02; along < 0.498; along += 0.002) deepest = std::min(deepest, LevelAt(cauer, along, -60));
      EXPECT_GT(deepest, -0.6) << order;
      EXPECT_LE(LevelAt(cauer, 0.9, -60), -45) << order;
    });
  }
}

TEST_F(Guidance, EveryTopologyIsComparedWithoutAFault) {
  EnterLowpass();
  for (char letter = 'A'; letter <= 'L'; ++letter) {
    session.record.Topology.assign(1, letter);
    session.record.Fcenter = letter <= 'B' || letter == 'I' || letter == 'J' ? 0.0F : 1e7F;
    for (const f32 order : {1.0F, 4.0F, 21.0F}) {
      session.record.Order = order;
      In("cmdHelpFamily", [&] {
        Press("optTransmissions");
        EXPECT_GE(Traces().size(), 1U) << letter << order << Get<Label>("lblPicture").caption;
        Press("optDelays");
        Press("cmdExit");
      });
    }
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Guidance, TheTopologyGuideOpensAtItsButton) {
  In("cmdSeriesInBandstop", [this] {
    auto& list = Get<ListBox>("lstTopology");
    EXPECT_EQ(list.selected, 11);
    EXPECT_EQ(list.items.size(), 12U);
    EXPECT_EQ(list.items[7], "Cauer (only) bandpass");
    const Picture shown = Get<PictureBox>("picTopology").picture;
    Choose(session, list, 1);
    EXPECT_EQ(session.record.TopologyHelpCode, 1);
    EXPECT_FALSE(Get<PictureBox>("picTopology").picture == shown);
    EXPECT_EQ(Get<PictureBox>("picTopology").description, "Capacitor-input lowpass");
  });
}

TEST_F(Guidance, EntryAssistanceIsThereFromThreePages) {
  EnterLowpass();
  std::string text;
  const auto read = [&] {
    text = Get<Label>("lblAssistance").caption;
    Press("cmdExit");
  };
  In("cmdAssistance", read);
  EXPECT_EQ(Top().Id(), PageId::Design);
  for (const char* page : {"cmdAnalysis", "cmdEdit"}) {
    Press(page);
    std::string design;
    std::swap(design, text);
    In("cmdAssistance", read);
    EXPECT_EQ(text, design);
  }
}

// Eleven paragraphs, with one empty line between them.
TEST_F(Guidance, EntryAssistanceHasElevenParagraphs) {
  In("cmdAssistance", [this] {
    std::istringstream lines(Get<Label>("lblAssistance").caption);
    std::vector<std::string> paragraphs;
    bool emptyExpected = false;
    for (std::string line; std::getline(lines, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      EXPECT_EQ(line.empty(), emptyExpected);
      emptyExpected = !emptyExpected;
      if (!line.empty()) paragraphs.push_back(line);
    }
    ASSERT_EQ(paragraphs.size(), 11U);
    EXPECT_THAT(paragraphs[0], StartsWith("Frequency entries are always entered in Hz."));
    EXPECT_THAT(paragraphs[5], HasSubstr("EXCEPT for the letter 'm' which is case-sensitive."));
    EXPECT_THAT(paragraphs[9], HasSubstr("six vertical interval intervals"));
    EXPECT_THAT(paragraphs[10], testing::EndsWith("None of these items can be changed."));
  });
}

TEST_F(Guidance, HelpOfADialogIsItsOwn) {
  In("cmdHelpFamily", [this] {
    OpenHelp(session, Top().Id());
    EXPECT_EQ(platform.opened.back(), platform.HelpFolder() + "/family-guide.htm");
  });
}

}  // namespace
}  // namespace quilm
