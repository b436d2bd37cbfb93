#include "analysis/SweepTable.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>

#include "analysis/Kernel.h"
#include "core/Fault.h"
#include "core/NumericFault.h"

namespace quilm {
namespace {

constexpr SweepSettings settings = {2, 1e6F, 8e6F, 300};

bool SamePoints(const SweepTable& a, const SweepTable& b) {
  if (a.points != b.points) return false;
  const auto points = static_cast<std::size_t>(a.points);
  for (std::size_t i = 0; i < points; ++i) {
    if (a.frequency[i] != b.frequency[i] || a.w[i] != b.w[i] || a.wInverse[i] != b.wInverse[i]) return false;
    if (a.degreesPerDelay[i] != b.degreesPerDelay[i]) return false;
  }
  return true;
}

using Change = std::function<void(SweepSettings&)>;

const Change changes[] = {
    [](SweepSettings& s) { s.SweepMode = 1; },         [](SweepSettings& s) { s.Fstart = 2e6F; },
    [](SweepSettings& s) { s.Fstop = 9e6F; },          [](SweepSettings& s) { s.NrIntervals = 301; },
    [](SweepSettings& s) { s.NrIntervals = 300.25F; },  // the same points, another divisor
};

TEST(SweepTable, FollowsEachSettingThereAndBack) {
  for (const Change& change : changes) {
    auto kept = std::make_unique<SweepTable>();
    auto before = std::make_unique<SweepTable>();
    auto after = std::make_unique<SweepTable>();
    SweepSettings changed = settings;
    change(changed);
    KeepTable(*before, settings);
    KeepTable(*after, changed);
    ASSERT_FALSE(SamePoints(*before, *after));
    KeepTable(*kept, settings);
    EXPECT_TRUE(SamePoints(*kept, *before));
    KeepTable(*kept, changed);
    EXPECT_TRUE(SamePoints(*kept, *after));
    KeepTable(*kept, settings);
    EXPECT_TRUE(SamePoints(*kept, *before));
  }
}

TEST(SweepTable, IsKeptWhileTheSettingsStand) {
  auto table = std::make_unique<SweepTable>();
  KeepTable(*table, settings);
  table->frequency[5] = -1;
  KeepTable(*table, settings);
  EXPECT_EQ(table->frequency[5], -1);
}

TEST(SweepTable, AFailureKeepsNothing) {
  auto table = std::make_unique<SweepTable>();
  KeepTable(*table, settings);
  SweepSettings wrong = settings;
  wrong.Fstart = 0;
  EXPECT_THROW(KeepTable(*table, wrong), NumericFault);
  EXPECT_THROW(KeepTable(*table, wrong), NumericFault);
  wrong = settings;
  wrong.NrIntervals = responseBound + 1;
  EXPECT_THROW(KeepTable(*table, wrong), BoundFault);
  auto fresh = std::make_unique<SweepTable>();
  KeepTable(*fresh, settings);
  KeepTable(*table, settings);
  EXPECT_TRUE(SamePoints(*table, *fresh));
}

// The last of its frequencies fails, when the others have been written already.
TEST(SweepTable, AFailureHalfwayIsNotTakenForTheTableBefore) {
  auto table = std::make_unique<SweepTable>();
  KeepTable(*table, settings);
  EXPECT_THROW(KeepTable(*table, {2, 1, 3e38F, 0.6F}), NumericFault);
  KeepTable(*table, settings);
  auto fresh = std::make_unique<SweepTable>();
  KeepTable(*fresh, settings);
  EXPECT_TRUE(SamePoints(*table, *fresh));
}

TEST(SweepTable, AFrequencyBeyond32BitsIsAFailure) {
  auto table = std::make_unique<SweepTable>();
  // One interval of 0.6: the second point lies at 1.67 times the way.
  EXPECT_THROW(KeepTable(*table, {2, 1, 3e38F, 0.6F}), NumericFault);
  EXPECT_THROW(KeepTable(*table, {1, 1, 3e38F, 0.6F}), NumericFault);
}

// Octaves: 2^(i / 100) MHz, and the nearest 32-bit number to it.
TEST(SweepTable, LogarithmicFrequenciesAreThoseOfTheLibrarysExponential) {
  auto table = std::make_unique<SweepTable>();
  KeepTable(*table, settings);
  for (std::size_t i = 0; i <= 300; ++i) {
    const long double exact = 1e6L * std::exp2(static_cast<long double>(i) / 100);
    EXPECT_LE(std::fabs(static_cast<long double>(table->frequency[i]) - exact), exact * 0x1p-24L * 1.000001L) << i;
  }
}

TEST(SweepTable, TheStepsOfTheDelay) {
  auto table = std::make_unique<SweepTable>();
  KeepTable(*table, {1, 0, 100, 10});
  EXPECT_EQ(table->degreesPerDelay[0], 360 * 1e-27);  // from 0 Hz to 0 Hz
  for (std::size_t i = 1; i <= 10; ++i) EXPECT_EQ(table->degreesPerDelay[i], 3600);
  EXPECT_EQ(table->wInverse[0], 1);
  EXPECT_EQ(table->w[5], AngularFrequency(50));
  EXPECT_EQ(DegreesPerDelay(7, 5), -720);
}

}  // namespace
}  // namespace quilm
