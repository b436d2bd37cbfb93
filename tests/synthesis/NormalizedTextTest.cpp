#include "synthesis/NormalizedText.h"

#include <gtest/gtest.h>

#include "synthesis/modNormalized.h"

namespace quilm {
namespace {

using Lines = std::vector<std::string>;

DesignRecord Design(i16 family, int order, f32 ripple = 0) {
  DesignRecord record;
  record.Family = family;
  record.Order = static_cast<f32>(order);
  record.Apass = ripple;
  ComputePrototype(record, family);
  return record;
}

TEST(NormalizedText, EachFamilyHasItsHeading) {
  const std::pair<i16, const char*> headings[] = {
      {familyButterworth, "Butterworth family"},
      {familyChebyshev, "Chebyshev family"},
      {familyCauer, "Cauer family"},
      {familyBessel, "Bessel family"},
      {familyGaussian, "Gaussian family"},
      {familyConstantK, "Constant-K family"},
      {familyMderived, "M-Derived family"},
  };
  for (const auto& [family, heading] : headings) {
    DesignRecord record;
    record.Family = family;
    EXPECT_EQ(FamilyHeading(record), heading);
    EXPECT_EQ(NormalizedCaption(record).find("These are the values in farads and henries for a capacitor-input lowpass "
                                             "prototype with a  "),
              0U);
  }
}

// 2 sin(30), 2 sin(90), 2 sin(150).
TEST(NormalizedText, PlainElementsAlternate) {
  EXPECT_EQ(NormalizedRows(Design(familyButterworth, 3)), (Lines{"C(1) = 1", "L(2) = 2", "C(3) = 1"}));
}

// L C = 0.25 has its resonance at 2.
TEST(NormalizedText, ATunedBranchShowsItsZero) {
  DesignRecord record;
  record.Family = familyCauer;
  record.CauerFlag = 1;
  record.Order = 4;
  record.Gj[1] = 1.25F;
  record.Hj[2] = 0.5F;
  record.Gj[2] = 0.5F;
  record.Gj[3] = 1.5F;
  record.Hj[4] = 0.75F;
  EXPECT_EQ(NormalizedRows(record),
            (Lines{"C(1) = 1.25", "L(2) = 0.5", "C(2) = 0.5", "W(2) = 2", "C(3) = 1.5", "L(4) = 0.75"}));
}

// 0.1 dB of ripple reflect 1 - 10^-0.01 = 0.02276 of the power: -16.43 dB.
TEST(NormalizedText, RippleAndDepthAreShownWhereTheyWereAskedFor) {
  DesignRecord record = Design(familyChebyshev, 3, 0.1F);
  EXPECT_EQ(NormalizedEntries(record), (Lines{"Apass: 0.1 dB   (Return: -16.428 dB)"}));
  record.Family = familyCauer;
  record.Astop = 60;
  record.FstopNorm = 1.5F;
  EXPECT_EQ(NormalizedEntries(record), (Lines{"Apass: 0.1 dB   (Return: -16.428 dB)", "Astop: 60 dB", "Fstop: 1.5"}));
  EXPECT_TRUE(NormalizedEntries(Design(familyBessel, 3)).empty());
}

}  // namespace
}  // namespace quilm
