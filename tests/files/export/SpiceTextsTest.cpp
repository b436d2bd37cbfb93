// The value texts of netlists: each row from both sides of its threshold, each number of decimals. Expected texts are
// worked by hand: divide, round to 32 bits, round to the decimals, cut to seven digits.
#include "files/export/SpiceTexts.h"

#include <gtest/gtest.h>

#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "support/TextRows.h"

namespace quilm {
namespace {

TEST(SpiceInductance, EveryRowFromBothSides) {
  ExpectTexts(SpiceInductance, {{0, ""},
                                {1e9F, "1G"},
                                {Below(1e9F), "1000Meg"},
                                {1e6F, "1Meg"},
                                {Below(1e6F), "1000K"},
                                {1000, "1K"},
                                {Below(1000), "1000H"},
                                {1, "1H"},
                                {Below(1), "1000mH"},
                                {0.001F, "1mH"},
                                {Below(0.001F), "1000uH"},
                                {1e-6F, "1uH"},
                                {Below(1e-6F), "1000nH"},
                                {1e-12F, "0.001nH"}});
}

TEST(SpiceInductance, DecimalsByMantissa) {
  ExpectTexts(SpiceInductance, {{0.1234567e-9F, "0.123457nH"},
                                {1.234567e-6F, "1.23457uH"},
                                {12.34567e-6F, "12.3457uH"},
                                {123.4567e-6F, "123.457uH"},
                                {-22e-6F, "22uH"},
                                {1234.567e9F, "1234.57G"}});
}

TEST(SpiceCapacitance, EveryRowFromBothSides) {
  ExpectTexts(SpiceCapacitance, {{0, ""},
                                 {1e9F, "1GF"},
                                 {Below(1e9F), "1000Meg"},
                                 {1e6F, "1Meg"},
                                 {1000, "1KF"},
                                 {Below(1000), "1000F"},
                                 {1, "1F"},
                                 {Below(1), "1000mF"},
                                 {0.001F, "1mF"},
                                 {1e-6F, "1uF"},
                                 {Below(1e-6F), "1000nF"},
                                 {4.7e-9F, "4.7nF"},
                                 {Below(1e-9F), "1000pF"},
                                 {1e-12F, "1pF"},
                                 {0.99e-12F, "0  "},
                                 {-47e-12F, "47pF"}});
}

TEST(SpiceResistance, EveryRowAndItsDecimals) {
  ExpectTexts(SpiceResistance, {{0, "0  "},
                                {1e9F, "1G"},
                                {1e6F, "1Meg"},
                                {Below(1e6F), "1000K"},
                                {1234, "1.234K"},
                                {50, "50  "},
                                {1, "1  "},
                                {Below(1), "1000m"},
                                {0.5F, "500m"},
                                {1e-6F, "1u"},
                                {1e-9F, "1n"},
                                {1.5e-13F, "0.15p"},
                                {1.234567F, "1.235  "},
                                {12.34567F, "12.35  "},
                                {123.4567F, "123.5  "},
                                {1.23456e-15F, "0.0012p"}});
}

TEST(SpiceQResistor, EveryRowAndItsDecimals) {
  ExpectTexts(SpiceQResistor, {{0, " 0.0000  "},
                               {1e9F, "1G"},
                               {1e6F, "1Meg"},
                               {1234567, "1.235Meg"},
                               {1000, "1k"},
                               {31830.99F, "31.831k"},
                               {Below(1000), "1000 "},
                               {123.4567F, "123.46 "},
                               {12.34567F, "12.346 "},
                               {1.234567F, "1.2346 "},
                               {0.1234567F, "0.12346 "},
                               {0.0001F, "0.0001 "}});
}

TEST(SpiceFrequency, EveryRowAndItsDecimals) {
  ExpectTexts(SpiceFrequency, {{0, "0.0 "},
                               {1e9F, "1G "},
                               {1.2e6F, "1.2M "},
                               {3500, "3.5K "},
                               {50, "50Hz"},
                               {0.5F, "500mH"},
                               {1.234567e6F, "1.2346M "},
                               {12.34567e6F, "12.346M "},
                               {123.4567e6F, "123.46M "},
                               {0.0001234567F, "0.12346mH"}});
}

TEST(SpiceFix, WritesAPointForAComma) {
  EXPECT_EQ(SpiceFix("1,5K"), "1.5K ");
  EXPECT_EQ(SpiceFix(""), " ");
}

TEST(SpiceReferenceFrequency, IsTheCenterThenTheWidthThenTheMiddleOfTheSweep) {
  DesignRecord record;
  record.Fstart = 1e5F;
  record.Fstop = 1e7F;
  EXPECT_FLOAT_EQ(SpiceReferenceFrequency(record), 1e6F);
  record.Width = 3e6F;
  EXPECT_EQ(SpiceReferenceFrequency(record), 3e6F);
  record.Fcenter = 1e7F;
  EXPECT_EQ(SpiceReferenceFrequency(record), 1e7F);
}

// 2 Pi 1 MHz 10 uH / 200 = 0.3141593 ohms; 1 / (2 Pi 1 MHz 1 nF) = 159.1549 ohms, times 1000.
TEST(SpiceLosses, AreThoseOfQAtTheReferenceFrequency) {
  DesignRecord record;
  record.Qind[1] = 200;
  record.Qcap[1] = 1000;
  EXPECT_FLOAT_EQ(SpiceSeriesLoss(record, 1e6F, 10e-6F), 0.3141593F);
  EXPECT_FLOAT_EQ(SpiceParallelLoss(record, 1e6F, 1e-9F), 159154.94F);
  EXPECT_THROW(SpiceParallelLoss(record, 1e6F, 0), NumericFault);
  EXPECT_THROW(SpiceParallelLoss(record, 0, 1e-9F), NumericFault);
  record.Qind[1] = 0;
  EXPECT_THROW(SpiceSeriesLoss(record, 1e6F, 10e-6F), NumericFault);
}

// 200 intervals over log10(1e7 / 2e4) = 2.69897 decades are 74.1 a decade.
TEST(SpicePointsPerDecade, AreWholeAndAtMostAThousand) {
  DesignRecord record;
  record.Fstart = 2e4F;
  record.Fstop = 1e7F;
  record.NrIntervals = 200;
  EXPECT_EQ(SpicePointsPerDecade(record), 74);
  record.Fstart = 9e6F;
  record.NrIntervals = 2000;
  EXPECT_EQ(SpicePointsPerDecade(record), 1000);
  record.Fstart = 0;
  EXPECT_THROW(SpicePointsPerDecade(record), NumericFault);
}

TEST(SpiceCount, LosesWhatASweepFromAFileMisses) {
  EXPECT_EQ(SpiceCount(200.0005F), 200);
  EXPECT_EQ(SpiceCount(199.9995F), 200);
  EXPECT_EQ(SpiceCount(200.01F), 200.01F);
}

}  // namespace
}  // namespace quilm
