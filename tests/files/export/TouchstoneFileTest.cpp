// S-parameter files, byte for byte, against texts worked out by hand from the format.
#include "files/export/TouchstoneFile.h"

#include <gmock/gmock.h>

#include <limits>
#include <memory>

#include "core/DesignRecord.h"

namespace quilm {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

// Two points between 75 and 300 ohms in a reference of 50 ohms, with figures that can be checked by hand: an impedance
// of 50 ohms reflects nothing, one of 25 at -180 / +180 degrees, one of 50 at a right angle with 90 degrees.
class Touchstone : public testing::Test {
 protected:
  Touchstone() : reverse(std::make_unique<ReverseResponses>()) {
    record.Rsource[1] = 75;
    record.Rload[1] = 300;
    record.Rstandard = 50;
    record.Fstart = 1e6F;
    record.Fstop = 2.5e6F;
    record.NrIntervals = 1;
    reverse->RevTrans[0] = -3;
    reverse->RevTrans[1] = -20;
    reverse->RevAngle[0] = -45;
    reverse->RevAngle[1] = 170.5F;
    reverse->RevReturn[0] = -6;
    reverse->RevReturn[1] = -0.001F;
    reverse->RevZin[0] = reverse->RevZin[1] = 50;
    reverse->RevZinAngle[0] = 90;
    reverse->RevZinAngle[1] = -90;
  }

  ResponseSpans Sweep() const {
    return {.freq = freq,
            .trans = trans,
            .angle = angle,
            .delay = {},
            .returnLoss = returnLoss,
            .vswr = {},
            .zin = zin,
            .zinAngle = zinAngle};
  }

  std::string Text() const { return TouchstoneText(record, Sweep(), *reverse, choices, "2026-05-04").text; }

  DesignRecord record;
  std::vector<f32> freq{1e6F, 2.5e6F};
  std::vector<f32> trans{-3, -40};
  std::vector<f32> angle{45, -179.25F};
  std::vector<f32> returnLoss{-20, 0};
  std::vector<f32> zin{50, 25};
  std::vector<f32> zinAngle{0, 0};
  std::unique_ptr<ReverseResponses> reverse;
  ExportChoices choices;
};

TEST_F(Touchstone, TwoPortsOfVersion1InDecibels) {
  EXPECT_EQ(Text(),
            "! 2-port S-parameter file Version 1.0 by Quilm 2026-05-04\r\n"
            "# MHz S DB R 75\r\n"
            "! Fstart: 1  Fstop: 2.5  Number of frequencies: 2\r\n"
            "! Freq:       S11 mag:      S11 angle:    S21 mag:      S21 angle:    S12 mag:      S12 angle:    "
            "S22 mag:      S22 angle:\r\n"
            "1             -20           0             -3            45            -3            -45           "
            "-6            90            \r\n"
            "2.5           0             180           -40           -179.25       -20           170.5         "
            "-.001         -90           \r\n");
}

// 10^(-3/20) = 0.70794578, 10^(-6/20) = 0.50118723, 10^(-0.001/20) = 0.99988488.
TEST_F(Touchstone, TwoPortsOfVersion2AsRatios) {
  choices.SnPVersion = 2;
  choices.SnPFormat = 2;
  choices.SnPUnit = 2;
  EXPECT_EQ(Text(),
            "! 2-port S-parameter file Version 2.0 by Quilm 2026-05-04\r\n"
            "[Version] 2.0\r\n"
            "# kHz S MA R 50\r\n"
            "[Number of Ports] 2\r\n"
            "[Two-Port Data Order] 21_12\r\n"
            "[Number of Frequencies] 2\r\n"
            "! Fstart: 1000  Fstop: 2500\r\n"
            "[Reference]  75 300\r\n"
            "! Freq:       S11 mag:      S11 angle:    S21 mag:      S21 angle:    S12 mag:      S12 angle:    "
            "S22 mag:      S22 angle:\r\n"
            "[Network data]\r\n"
            "1000          .1            0             .7079458      45            .7079458      -45           "
            ".5011872      90            \r\n"
            "2500          1             180           .01           -179.25       .1            170.5         "
            ".9998849      -90           \r\n"
            "[End]\r\n");
}

TEST_F(Touchstone, OnePortOfVersion1HasTheAngleOfTheImpedance) {
  choices.SnPPorts = 1;
  choices.SnPUnit = 1;
  zinAngle = {12.5F, -63};
  EXPECT_EQ(Text(),
            "! 1-port S-parameter file Version 1.0 by Quilm 2026-05-04\r\n"
            "# Hz S DB R 50\r\n"
            "! Fstart: 1000000  Fstop: 2500000  Freqs: 2\r\n"
            "! Freq:       S11 mag:      S11 angle:\r\n"
            "1000000       -20           12.5          \r\n"
            "2500000       0             -63           \r\n");
}

TEST_F(Touchstone, OnePortOfVersion2) {
  choices.SnPPorts = 1;
  choices.SnPVersion = 2;
  choices.SnPUnit = 4;
  choices.SnPFormat = 2;
  zinAngle = {12.5F, -63};
  EXPECT_EQ(Text(),
            "! 1-port S-parameter file Version 2.0 by Quilm 2026-05-04\r\n"
            "[Version] 2.0\r\n"
            "# GHz S MA R 50\r\n"
            "[Number of Ports] 1\r\n"
            "[Number of Frequencies] 2\r\n"
            "! Fstart: .001  Fstop: .0025\r\n"
            "[Reference]  75\r\n"
            "! Freq:       S11 mag:      S11 angle:\r\n"
            "[Network data]\r\n"
            ".001          .1            12.5          \r\n"
            ".0025         1             -63           \r\n"
            "[End]\r\n");
}

TEST_F(Touchstone, TheSourceIsTheReferenceOfTwoPortsInVersion1Alone) {
  record.Rsource[1] = 0.5F;
  EXPECT_THAT(Text(), HasSubstr(" R .5\r\n"));
  choices.SnPVersion = 2;
  EXPECT_THAT(Text(), HasSubstr(" R 50\r\n"));
  choices.SnPPorts = 1;
  EXPECT_THAT(Text(), HasSubstr(" R 50\r\n"));
  choices.SnPVersion = 1;
  EXPECT_THAT(Text(), HasSubstr(" R 50\r\n"));
}

// 10^(1e5/20) has no 32 bits.
TEST_F(Touchstone, AFigureBeyondAllNumbersEndsTheFileBeforeItsRow) {
  choices.SnPFormat = 2;
  trans[1] = 1e5F;
  const ExportText made = TouchstoneText(record, Sweep(), *reverse, choices, "2026-05-04");
  EXPECT_EQ(made.failure, "Overflow");
  EXPECT_THAT(made.text, HasSubstr("\r\n1             .1 "));
  EXPECT_THAT(made.text, Not(HasSubstr("\r\n2.5 ")));
  EXPECT_THAT(made.text, EndsWith("\r\n"));
}

TEST_F(Touchstone, AReferenceOfZeroIsADivisionByZero) {
  record.Rstandard = 0;
  EXPECT_EQ(TouchstoneText(record, Sweep(), *reverse, choices, "").failure, "Division by zero");
  choices.SnPPorts = 1;  // whose angles are no reflections
  EXPECT_EQ(TouchstoneText(record, Sweep(), *reverse, choices, "").failure, "");
}

// (z - 1) / (z + 1): the real and imaginary part and their angle by hand.
TEST(ReflAngle, IsThatOfTheReflection) {
  EXPECT_EQ(ReflAngle(50, 0, 50), 0);                             // matched
  EXPECT_EQ(ReflAngle(100, 0, 50), 0);                            // 1/3
  EXPECT_EQ(ReflAngle(25, 0, 50), 180);                           // -1/3
  EXPECT_EQ(ReflAngle(50, 90, 50), 90);                           // j
  EXPECT_EQ(ReflAngle(50, -90, 50), -90);                         // -j
  EXPECT_FLOAT_EQ(ReflAngle(100, 90, 100), 90);                   // j in another line
  EXPECT_NEAR(ReflAngle(70.71068F, 45, 50), 63.4349488, 1e-5);    // z = 1 + j: (1 + 2j) / 5
  EXPECT_NEAR(ReflAngle(70.71068F, -45, 50), -63.4349488, 1e-5);  // its conjugate
  EXPECT_NEAR(ReflAngle(10, 90, 50), 157.380135, 1e-5);           // z = j/5: (j/5 - 1) / (j/5 + 1) = (-12 + 5j) / 13
  EXPECT_NEAR(ReflAngle(10, -90, 50), -157.380135, 1e-5);
}

TEST(ReflAngle, FailsWhereTheReflectionHasNoEnd) {
  EXPECT_ANY_THROW(ReflAngle(-50, 0, 50));  // z = -1
  EXPECT_ANY_THROW(ReflAngle(50, 0, 0));
  EXPECT_ANY_THROW(ReflAngle(std::numeric_limits<f32>::infinity(), 0, 50));
}

}  // namespace
}  // namespace quilm
