#include "core/DesignRecord.h"
#include "schematic/StageLabels.h"

#include <gtest/gtest.h>

#include <map>

namespace quilm {
namespace {

using Texts = std::vector<std::string>;

Stage FullStage(i16 type) {
  Stage stage{};
  stage.ElementType = type;
  stage.Lval = {1e-5F, 5};
  stage.Cval = {2e-10F, 10};
  stage.Rval = {1500, 2};
  stage.TLval = {90, 1e9F, 50, 1, 2};
  stage.XfmrVal = {2, 3};
  stage.CoupledVal = {1e-6F, 2e-6F, 0.5F, 1, 2, 3};
  return stage;
}

Texts ValuesOf(i16 type, f32 share = 1) {
  Texts texts;
  for (const StageLabel& label : ValueLabels(FullStage(type), share)) texts.push_back(label.text);
  return texts;
}

TEST(StageLabels, EachTypeShowsThePartsThatItHas) {
  const std::map<i16, Texts> expected = {
      {SeriesL, {"10uH"}},
      {ShuntL, {"10uH"}},
      {SeriesC, {"200pF"}},
      {ShuntC, {"200pF"}},
      {SeriesSLC, {"10uH", "200pF"}},
      {ShuntSLC, {"10uH", "200pF"}},
      {SeriesPLC, {"10uH", "200pF"}},
      {ShuntPLC, {"10uH", "200pF"}},
      {SeriesR, {"1.5k"}},
      {ShuntR, {"1.5k"}},
      {TransLine, {"90deg", "@1G", "Z=50"}},
      {ShuntOpenStub, {"90deg", "@1G", "Z=50"}},
      {Transformer, {"N=2: 1"}},
      {CoupledInductors, {"1uH", "2uH", "K=0.5"}},
      {SeriesRLC, {"10uH", "200pF", "1.5k"}},
      {ShuntRLC, {"10uH", "200pF", "1.5k"}},
      {SeriesReactance, {}},
  };
  for (const auto& [type, texts] : expected) EXPECT_EQ(ValuesOf(type), texts) << type;
}

// The text, the unit that it lacks and the letters of the part.
TEST(StageLabels, UnitsAndDesignatorsStandBesideTheTexts) {
  const auto of = [](i16 type) {
    Texts texts;
    for (const StageLabel& label : ValueLabels(FullStage(type))) texts.push_back(label.unit + '/' + label.designator);
    return texts;
  };
  EXPECT_EQ(of(SeriesRLC), (Texts{"/L", "/C", "\u03A9/R"}));
  EXPECT_EQ(of(TransLine), (Texts{"/TL", "Hz/", "\u03A9/"}));
  EXPECT_EQ(of(Transformer), Texts{"/T"});
  EXPECT_EQ(of(CoupledInductors), (Texts{"/", "/", "/T"}));
}

TEST(StageLabels, AShareIsTakenOfEveryValue) {
  EXPECT_EQ(ValuesOf(SeriesL, 0.5F), Texts{"5uH"});
  EXPECT_EQ(ValuesOf(SeriesRLC, 0.5F), (Texts{"5uH", "100pF", "750"}));
}

TEST(StageLabels, TolerancesAreNamedByTheirPart) {
  const std::map<i16, Texts> expected = {
      {SeriesL, {"L: 5%"}},
      {ShuntRLC, {"L: 5%", "C: 10%", "R: 2%"}},
      {SeriesShortStub, {"Len: 1%", "Z: 2%"}},
      {Transformer, {"N: 3%"}},
      {CoupledInductors, {"Pri: 1%", "Sec: 2%", "K: 3%"}},
  };
  for (const auto& [type, texts] : expected) EXPECT_EQ(ToleranceLabels(FullStage(type)), texts) << type;
  Stage exact{};
  exact.ElementType = SeriesL;
  EXPECT_TRUE(ToleranceLabels(exact).empty());
}

TEST(StageLabels, AToleranceBelowOnePercentHasNoZeroBeforeItsPoint) {
  Stage stage = FullStage(SeriesL);
  stage.Lval.tolerance = 0.5F;
  EXPECT_EQ(ToleranceLabels(stage), Texts{"L: .5%"});
}

TEST(StageLabels, StubsInTheLineAreSeriesElements) {
  for (const i16 type : {SeriesL, SeriesPLC, TransLine, SeriesShortStub, SeriesOpenStub}) {
    EXPECT_TRUE(IsSeriesElement(type)) << type;
  }
  for (const i16 type : {ShuntL, ShuntShortStub, ShuntOpenStub, Transformer, CoupledInductors}) {
    EXPECT_FALSE(IsSeriesElement(type)) << type;
  }
}

// At 1 MHz 10 uH are 62.832 ohms, with a Q of 200 0.31416 ohms; 200 pF are 795.77 ohms, times 2000 1.5915 megohms.
TEST(StageLabels, LossesFollowFromTheQualities) {
  DesignRecord record;
  record.Qind[1] = 200;
  record.Qcap[1] = 2000;
  const auto labels = LossLabels(record, FullStage(SeriesSLC), 1e6F);
  ASSERT_EQ(labels.size(), 2U);
  EXPECT_EQ(labels[0].heading, "L-rseries:");
  EXPECT_EQ(labels[0].value, "0.31416");
  EXPECT_EQ(labels[1].heading, "C-rshunt:");
  EXPECT_EQ(labels[1].value, "1.592M");
  // At 100 kHz the capacitor's is above ten megohms.
  EXPECT_EQ(LossLabels(record, FullStage(SeriesSLC), 1e5F).size(), 1U);
  EXPECT_TRUE(LossLabels(record, FullStage(SeriesR), 1e6F).empty());
  record.Qind[1] = 0;
  EXPECT_TRUE(LossLabels(record, FullStage(SeriesL), 1e6F).empty());
}

TEST(StageLabels, NegativeValuesAreMarked) {
  Stage stage = FullStage(SeriesSLC);
  stage.Cval.value = -2e-10F;
  const auto labels = ValueLabels(stage);
  EXPECT_FALSE(labels[0].negative);
  EXPECT_TRUE(labels[1].negative);
  EXPECT_EQ(labels[1].text, "-200pF");
  stage.ElementType = SeriesR;
  stage.Rval.value = -1500;
  EXPECT_EQ(ValueLabels(stage)[0].text, "-1.5k");
}

TEST(StageLabels, AnyNegativeValueCounts) {
  EXPECT_FALSE(HasNegativeValue(FullStage(SeriesL)));
  const auto negative = [](auto change) {
    Stage stage = FullStage(SeriesL);
    change(stage);
    return HasNegativeValue(stage);
  };
  EXPECT_TRUE(negative([](Stage& s) { s.Cval.value = -1; }));
  EXPECT_TRUE(negative([](Stage& s) { s.Rval.value = -1; }));
  EXPECT_TRUE(negative([](Stage& s) { s.TLval.impedance = -1; }));
  EXPECT_TRUE(negative([](Stage& s) { s.XfmrVal.value = -1; }));
  EXPECT_TRUE(negative([](Stage& s) { s.CoupledVal.k = -1; }));
}

}  // namespace
}  // namespace quilm
