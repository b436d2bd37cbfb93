// The modulation response. Expected figures from |H|^2 = 1 / (1 + (f / 1 MHz)^6).
#include <gmock/gmock.h>

#include <cmath>

#include "core/Responses.h"
#include "pages/StudyPageBench.h"
#include "shell/History.h"

namespace quilm {
namespace {

using testing::IsSupersetOf;

class ModulationPage : public StudyPageBench {
 protected:
  void Open() {
    AnalyseLowpass();
    Press("cmdModulation");
    ASSERT_EQ(Top().Id(), PageId::ModulationPlot);
  }
};

f64 Ratio(f64 f) { return 1 / std::sqrt(1 + std::pow(f / 1e6, 6)); }

TEST_F(ModulationPage, OpensWithTheCarrierOfTheDesignAndTheUsualSweep) {
  Open();
  EXPECT_EQ(Top().title, "Modulation Response");
  EXPECT_EQ(TextOf("txtCarrierFreq"), "1M");
  EXPECT_EQ(TextOf("txtMFstart"), "20");
  EXPECT_EQ(TextOf("txtMFstop"), "20k");
  EXPECT_EQ(TextOf("txtMdBbottom"), "-60");
  EXPECT_TRUE(Get<OptionButton>("Option1").Value());
  EXPECT_EQ(CaptionOf("lblSweep"), "Modulation freq. sweep, Hz:    ");
  EXPECT_TRUE(Plot().Empty());
}

TEST_F(ModulationPage, OfABandpassTheCarrierIsTheCentre) {
  AnalyseBandpass();
  Press("cmdModulation");
  EXPECT_EQ(TextOf("txtCarrierFreq"), "10M");
}

TEST_F(ModulationPage, PlotsTheMeanOfBothSidebands) {
  Open();
  Enter("txtMFstart", "10k");
  Enter("txtMFstop", "900k");
  Enter("txtMdBbottom", "-12");
  Press("cmdPlot");
  EXPECT_TRUE(platform.messages.empty());
  const std::vector<Point> points = Points(colorBlue);
  ASSERT_EQ(points.size(), 2002U);  // a line of no length at the first one
  for (const std::size_t i : {0U, 1000U, 1900U, 2000U}) {
    const f64 f = 1e4 * std::pow(90.0, static_cast<f64>(i) / 2000);
    const f64 decibels = 20 * std::log10((Ratio(1e6 - f) + Ratio(1e6 + f)) / 2);
    const Point at = points[i + 1];
    EXPECT_NEAR(at.x, 2000 + 9000 * static_cast<f64>(i) / 2000, 0.01);
    EXPECT_NEAR(at.y, 1000 - 6000 * decibels / 12, 0.1) << f;
  }
  EXPECT_THAT(Texts(Plot()), IsSupersetOf({"Response, dB", "Carrier 1MHz", "0", "-2", "-12", "10k", "100k"}));
}

TEST_F(ModulationPage, RelativeBeginsAtTheTop) {
  Open();
  Press("Option2");
  EXPECT_TRUE(Plot().Empty());
  Press("cmdPlot");
  f32 highest = 7000;
  for (const Point& at : Points(colorBlue)) highest = std::min(highest, at.y);
  EXPECT_EQ(highest, 1000);
  // Half the power comes through at the corner.
  Press("Option1");
  Press("cmdPlot");
  EXPECT_NEAR(Points(colorBlue)[0].y, 1000 + 6000 * 3.0103 / 60, 0.1);
}

TEST_F(ModulationPage, ABoxThatChangesEmptiesThePicture) {
  Open();
  for (const char* box : {"txtCarrierFreq", "txtMFstart", "txtMFstop", "txtMdBbottom"}) {
    Press("cmdPlot");
    EXPECT_FALSE(Plot().Empty());
    Enter(box, TextOf(box) + "1");
    EXPECT_TRUE(Plot().Empty()) << box;
  }
}

TEST_F(ModulationPage, WithoutACarrierNothingIsPlotted) {
  Open();
  for (const char* carrier : {"", "0", "-3M"}) {
    Enter("txtCarrierFreq", carrier);
    Enter("txtMdBbottom", "30");
    Press("cmdPlot");
    EXPECT_EQ(OnlyMessage().text, "Please enter a carrier frequency");
    EXPECT_EQ(Top().TakeFocusWish(), Top().Find("txtCarrierFreq"));
    EXPECT_TRUE(Plot().Empty());
  }
}

TEST_F(ModulationPage, TheBoxesShowWhatWasTaken) {
  Open();
  Enter("txtMFstart", "0");
  Enter("txtMFstop", "0");
  Enter("txtMdBbottom", "0");
  Press("cmdPlot");
  EXPECT_EQ(TextOf("txtMFstart"), "10m");
  EXPECT_EQ(TextOf("txtMFstop"), "100m");
  EXPECT_EQ(TextOf("txtMdBbottom"), "-60");
  Enter("txtMFstart", "1k");
  Enter("txtMFstop", "1k");
  Enter("txtMdBbottom", "45");
  Press("cmdPlot");
  EXPECT_EQ(TextOf("txtMFstop"), "10k");
  EXPECT_EQ(TextOf("txtMdBbottom"), "-45");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_FALSE(Plot().Empty());
}

TEST_F(ModulationPage, TheWidestSweepFitsItsGrid) {
  Open();
  Enter("txtMFstart", ".01");
  Enter("txtMFstop", "10G");
  Press("cmdPlot");
  EXPECT_FALSE(Plot().Empty());
  Enter("txtMFstart", "10G");
  Press("cmdPlot");
  EXPECT_EQ(TextOf("txtMFstop"), "100G");
  EXPECT_FALSE(Plot().Empty());
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(ModulationPage, AResponseBelowTheBottomRunsAlongIt) {
  Open();
  Enter("txtCarrierFreq", "1G");
  Press("cmdPlot");
  for (const Point& at : Points(colorBlue)) EXPECT_EQ(at.y, 7000);
}

TEST_F(ModulationPage, AModulationBeyondTheCarrierIsAnalysedBelowZero) {
  Open();
  Enter("txtCarrierFreq", "100k");
  Enter("txtMFstart", "1M");
  Enter("txtMFstop", "2M");
  Press("cmdPlot");
  EXPECT_NEAR(Points(colorBlue)[0].y, 1000 - 100 * 20 * std::log10((Ratio(0.9e6) + Ratio(1.1e6)) / 2), 0.1);
}

TEST_F(ModulationPage, EntriesStayAndTheCarrierComesFromTheDesign) {
  Open();
  Enter("txtCarrierFreq", "5M");
  Enter("txtMFstart", "300");
  Enter("txtMFstop", "3k");
  Enter("txtMdBbottom", "-20");
  Press("Option2");
  Press("cmdExitModulation");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  Press("cmdModulation");
  EXPECT_EQ(TextOf("txtCarrierFreq"), "1M");
  EXPECT_EQ(TextOf("txtMFstart"), "300");
  EXPECT_EQ(TextOf("txtMFstop"), "3k");
  EXPECT_EQ(TextOf("txtMdBbottom"), "-20");
  EXPECT_TRUE(Get<OptionButton>("Option2").Value());
}

TEST_F(ModulationPage, NeitherDesignNorExtremesChange) {
  Open();
  session.responses.MaxTrans[5] = -1;
  const DesignRecord before = session.record;
  const std::string step = session.history.UndoText();
  Enter("txtMFstop", "50k");
  Press("cmdPlot");
  EXPECT_EQ(session.record, before);
  EXPECT_EQ(session.responses.MaxTrans[5], -1);
  EXPECT_EQ(session.history.UndoText(), step);
}

TEST_F(ModulationPage, ANetworkThatCannotBeEvaluatedIsTold) {
  Open();
  session.record.Width = session.record.Fcenter = 0;
  session.record.Fstart = -1;
  Press("cmdPlot");
  const MessageShown message = OnlyMessage();
  EXPECT_EQ(message.title, "Error checker");
  EXPECT_TRUE(message.text.starts_with("We had a plotting routine problem."));
  EXPECT_TRUE(Plot().Empty());
}

TEST_F(ModulationPage, OnPaperStandsTheTitleOfTheDesign) {
  Open();
  session.record.CircuitTitle = "Anti-alias filter";
  Press("cmdPlot");
  bool found = false;
  for (const PictureOp& operation : Plot().Operations()) {
    const auto* text = std::get_if<TextOp>(&operation);
    if (text != nullptr && text->text == "Anti-alias filter") found = text->showOn == Medium::Paper;
  }
  EXPECT_TRUE(found);
}

}  // namespace
}  // namespace quilm
