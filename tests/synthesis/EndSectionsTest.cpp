// End sections, against the M-derived design that they make of a constant-K ladder.

#include "synthesis/EndSections.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/Fault.h"
#include "support/LosslessLadder.h"
#include "synthesis/MakeNetwork.h"
#include "synthesis/modMderived.h"
#include "synthesis/modNormalized.h"

namespace quilm {
namespace {

DesignRecord Ladder(const std::string& topology, int order, i16 family = familyConstantK) {
  DesignRecord record;
  record.Family = family;
  record.Topology = topology;
  record.Order = static_cast<f32>(order);
  record.Width = 1e6F;
  record.Rsource[1] = 50;
  record.StagesMax = 43;
  ComputePrototype(record, family);
  MakeNetwork(record);
  return record;
}

class EndSections : public testing::TestWithParam<const char*> {
 protected:
  // A zero at 1.25 times the cutoff, or below it for a highpass.
  DesignRecord OneZero() const {
    DesignRecord record = Ladder(GetParam(), 3);
    record.Family = familyMderived;
    record.MderivedZero[1] = IsHighpass() ? 1e6F / 1.25F : 1.25e6F;
    ComputeMderived(record);
    MakeNetwork(record);
    return record;
  }
  bool IsHighpass() const { return std::string(GetParam()) > "H"; }
};

INSTANTIATE_TEST_SUITE_P(Topologies, EndSections, testing::Values("A", "B", "I", "J"),
                         [](const auto& test) { return std::string(test.param); });

TEST_P(EndSections, OfAConstantKLadderMakeTheMderivedDesign) {
  DesignRecord record = Ladder(GetParam(), 3);
  AddEndSections(record, 0.6F);
  const DesignRecord expected = OneZero();
  ASSERT_EQ(record.Stages, expected.Stages);
  for (int s = 1; s <= record.Stages; ++s) {
    EXPECT_EQ(record.stage[s].ElementType, expected.stage[s].ElementType) << s;
    EXPECT_NEAR(record.stage[s].Lval.value, expected.stage[s].Lval.value, 1e-5 * expected.stage[s].Lval.value) << s;
    EXPECT_NEAR(record.stage[s].Cval.value, expected.stage[s].Cval.value, 1e-5 * expected.stage[s].Cval.value) << s;
  }
  EXPECT_EQ(record.NetworkEdited, 1);
  EXPECT_EQ(record.Family, familyManual);
  EXPECT_EQ(record.ResponsesValid, 0);
}

TEST_P(EndSections, TheZeroShownIsThatOfTheResponse) {
  DesignRecord record = Ladder(GetParam(), 5);
  const f32 zero = EndSectionZero(record, 0.6F);
  EXPECT_NEAR(zero, IsHighpass() ? 0.8e6 : 1.25e6, 10);
  AddEndSections(record, 0.6F);
  EXPECT_GT(LosslessLoss(record, zero), 100);
}

// An even order ends in the other kind of element, which takes the other form.
TEST_P(EndSections, EachEndGoesByTheRuleOfItsKind) {
  DesignRecord record = Ladder(GetParam(), 4);
  AddEndSections(record, 0.6F);
  ASSERT_EQ(record.Stages, 6);
  const i16 first = record.stage[1].ElementType;
  const i16 last = record.stage[6].ElementType;
  const std::string topology = GetParam();
  EXPECT_EQ(first, topology == "A" || topology == "J" ? SeriesPLC : ShuntSLC);
  EXPECT_EQ(last, first == SeriesPLC ? ShuntSLC : SeriesPLC);
  for (const int s : {1, 6}) {
    const f64 zero = 1 / (2 * Pi * std::sqrt(f64{record.stage[s].Lval.value} * f64{record.stage[s].Cval.value}));
    EXPECT_NEAR(zero, IsHighpass() ? 0.8e6 : 1.25e6, 10) << s;
    EXPECT_GT(LosslessLoss(record, zero * (1 + 1e-7)), 100) << s;  // beside the pole itself
  }
}

TEST_P(EndSections, TheWholeLadderPassesItsBand) {
  DesignRecord record = Ladder(GetParam(), 7);
  AddEndSections(record, 0.6F);
  for (int i = 1; i <= 90; ++i) {
    const f64 x = i / 100.0;
    EXPECT_LT(LosslessLoss(record, IsHighpass() ? 1e6 / x : 1e6 * x), 0.05) << x;
  }
}

TEST(EndSectionRules, AnMWithoutASectionIsAFault) {
  for (const f32 m : {0.0F, 1.0F, -0.5F, 2.0F}) {
    DesignRecord record = Ladder("A", 3);
    const DesignRecord before = record;
    EXPECT_THROW(AddEndSections(record, m), NumericFault) << m;
    EXPECT_THROW(EndSectionZero(record, m), NumericFault) << m;
    EXPECT_EQ(record, before);
  }
}

TEST(EndSectionRules, NeedAPlainLowpassOrHighpass) {
  EXPECT_EQ(EndSectionObstacle(Ladder("A", 3)), "");
  EXPECT_EQ(EndSectionObstacle(Ladder("J", 4)), "");
  EXPECT_NE(EndSectionObstacle(Ladder("A", 1)), "");
  DesignRecord twice = Ladder("A", 3);
  AddEndSections(twice, 0.6F);
  EXPECT_NE(EndSectionObstacle(twice), "");
  DesignRecord full = Ladder("A", 5);
  full.StagesMax = 6;
  EXPECT_NE(EndSectionObstacle(full), "");
  DesignRecord band = Ladder("A", 3);
  band.Topology = "E";
  EXPECT_NE(EndSectionObstacle(band), "");
}

}  // namespace
}  // namespace quilm
