#include "core/EntryLimits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "core/Responses.h"
#include "core/modGeneral.h"

namespace quilm {
namespace {

struct LimitCase {
  const char* name;
  const EntryLimits& limits;
};

const LimitCase allLimits[] = {
    {"NrIntervals", limitsOf::NrIntervals},
    {"Fstart", limitsOf::Fstart},
    {"Fstop", limitsOf::Fstop},
    {"NrXints", limitsOf::NrXints},
    {"NrYints", limitsOf::NrYints},
    {"NrYintsAtSpin", limitsOf::NrYintsAtSpin},
    {"LossBottom", limitsOf::LossBottom},
    {"DelayTop", limitsOf::DelayTop},
    {"ImpedanceTop", limitsOf::ImpedanceTop},
    {"VSWRTop", limitsOf::VSWRTop},
    {"PlotLineWidth", limitsOf::PlotLineWidth},
    {"SmithAspect", limitsOf::SmithAspect},
    {"VSWRCircle", limitsOf::VSWRCircle},
    {"Astop", limitsOf::Astop},
    {"Apass", limitsOf::Apass},
    {"Q", limitsOf::Q},
    {"CauerOrder", limitsOf::CauerOrder},
    {"BesselOrder", limitsOf::BesselOrder},
    {"GaussianOrder", limitsOf::GaussianOrder},
    {"OutputTermination", limitsOf::OutputTermination},
    {"SinglyTerminatedWidth", limitsOf::SinglyTerminatedWidth},
};

f32 Parsed(std::string text) {
  f32 value = 0;
  ParseEntry(text, value);
  return value;
}

// A limit that is put into a box must come back out of it as the limit.
TEST(EntryLimits, TheTextsSayTheLimits) {
  for (const LimitCase& row : allLimits) {
    EXPECT_EQ(Parsed(row.limits.lowestText), row.limits.lowest) << row.name;
    EXPECT_EQ(Parsed(row.limits.highestText), row.limits.highest) << row.name;
    EXPECT_LT(row.limits.lowest, row.limits.highest) << row.name;
  }
}

TEST(EntryLimits, BothEndsBelongToTheRange) {
  constexpr f32 infinity = std::numeric_limits<f32>::infinity();
  for (const LimitCase& row : allLimits) {
    SCOPED_TRACE(row.name);
    const EntryLimits& limits = row.limits;
    EXPECT_TRUE(limits.Contain(limits.lowest));
    EXPECT_TRUE(limits.Contain(limits.highest));
    EXPECT_FALSE(limits.Contain(std::nextafter(limits.lowest, -infinity)));
    EXPECT_FALSE(limits.Contain(std::nextafter(limits.highest, infinity)));
    EXPECT_EQ(limits.Held(limits.lowest), limits.lowest);
    EXPECT_EQ(limits.Held(limits.highest), limits.highest);
    EXPECT_EQ(limits.Held(std::nextafter(limits.lowest, -infinity)), limits.lowest);
    EXPECT_EQ(limits.Held(std::nextafter(limits.highest, infinity)), limits.highest);
    EXPECT_EQ(limits.Held(std::nextafter(limits.lowest, infinity)), std::nextafter(limits.lowest, infinity));
  }
}

TEST(EntryLimits, NotANumberIsHeldAtTheLowerEnd) {
  const f32 nan = std::numeric_limits<f32>::quiet_NaN();
  EXPECT_FALSE(limitsOf::NrIntervals.Contain(nan));
  EXPECT_EQ(limitsOf::NrIntervals.Held(nan), 4);
}

TEST(EntryLimits, TheLongestSweepFillsTheResponses) {
  EXPECT_EQ(limitsOf::NrIntervals.highest, static_cast<f32>(responseBound));
}

// The largest f32 that a starting frequency may be, as it prints in full.
TEST(EntryLimits, TheStartEndsAtTheNearestThatThirtyTwoBitsHave) {
  EXPECT_EQ(static_cast<f64>(limitsOf::Fstart.highest), 8999999488.0);
}

}  // namespace
}  // namespace quilm
