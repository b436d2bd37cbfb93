// Tables of the responses, byte for byte.
#include "files/export/TabulatedData.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quilm {
namespace {

class Tabulated : public testing::Test {
 protected:
  ResponseSpans Sweep() const {
    return {.freq = freq,
            .trans = trans,
            .angle = angle,
            .delay = delay,
            .returnLoss = returnLoss,
            .vswr = vswr,
            .zin = zin,
            .zinAngle = zinAngle};
  }

  std::vector<f32> freq{1000, 1234567};
  std::vector<f32> trans{-3.0103F, -120.5F};
  std::vector<f32> angle{45, -179.9999F};
  std::vector<f32> delay{3.2e-7F, -1.5e-12F};
  std::vector<f32> returnLoss{-0.00001234F, -140};
  std::vector<f32> vswr{1.0000002F, 2e7F};
  std::vector<f32> zin{75, 6.25e10F};
  std::vector<f32> zinAngle{0, -89.5F};
};

TEST_F(Tabulated, ScientificCellsArePlainNumbersFromTheLeft) {
  EXPECT_EQ(
      ScientificTable(Sweep()),
      "\r\n"
      "Freq,          Trans,        Phase,         Return,       Delay,       VSWR,         Zin,           Zangle,"
      "\r\n"
      " Hz:            dB:          degrees:        dB:          secs:        v/v:          ohms:          "
      "degrees:\r\n"
      "\r\n"
      "1000          -3.0103       45            -1.234E-05    3.2E-07       1             75            "
      "0             \r\n"
      "1234567       -120.5        -179.9999     -140          -1.5E-12      2E+07         6.25E+10      "
      "-89.5         \r\n"
      "\r\n");
}

TEST_F(Tabulated, EasyCellsAreDisplayTextsFromTheRight) {
  EXPECT_EQ(EasyTable(Sweep()),
            "\r\n"
            "Freq,      Trans,    Phase,    Return,   Delay,   VSWR,     Zin,       Zangle,\r\n"
            " Hz:        dB:      degrees:   dB:      secs:    v/v:      ohms:      degrees:\r\n"
            "\r\n"
            "        1k   -3.0103        45    -1E-05      320n         1        75    0.0000\r\n"
            "  1.23457M    -120.5      -180      -140     -1.5p       20M     62.5G     -89.5\r\n"
            "\r\n");
}

TEST_F(Tabulated, ASweepOfFourIntervalsHasFiveRows) {
  for (auto* values : {&freq, &trans, &angle, &delay, &returnLoss, &vswr, &zin, &zinAngle}) values->assign(5, 1);
  const std::string scientific = ScientificTable(Sweep());
  EXPECT_EQ(std::count(scientific.begin(), scientific.end(), '\n'), 4 + 5 + 1);
  const std::string easy = EasyTable(Sweep());
  EXPECT_EQ(std::count(easy.begin(), easy.end(), '\n'), 4 + 5 + 1);
}

}  // namespace
}  // namespace quilm
