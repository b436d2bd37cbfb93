#include "files/export/CsvTable.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <sstream>

#include "core/Responses.h"
#include "core/Sweep.h"

namespace quilm {
namespace {

class CsvOfASweep : public testing::Test {
 protected:
  CsvOfASweep() { sweep.NrIntervals = 1; }

  std::vector<std::string> Lines() {
    std::istringstream in(CsvTable(sweep, *r));
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }

  SweepSettings sweep;
  std::unique_ptr<Responses> r = std::make_unique<Responses>();
};

// 0.1 in 32 bits is 0.100000001490116..., of which one digit is enough to give it back.
TEST_F(CsvOfASweep, IsByteForByte) {
  r->RespFreq[0] = 1000;
  r->RespFreq[1] = 16777216;
  r->RespTrans[0] = -0.1F;
  r->RespTrans[1] = -300;
  r->RespAngle[0] = 179.5F;
  r->RespReturn[0] = -120.25F;
  r->RespDelay[0] = 2.5e-7F;
  r->RespVSWR[0] = r->RespVSWR[1] = 1;
  r->RespZin[0] = 50;
  r->RespZin[1] = 1.5e10F;
  r->RespZinAngle[0] = -1.0F / 3;
  EXPECT_EQ(
      CsvTable(sweep, *r),
      "Frequency (Hz),Trans. (dB),Phase (degrees),Return (dB),Delay (seconds),VSWR,Zin (ohms),Zangle (degrees)\r\n"
      "1000,-0.1,179.5,-120.25,2.5e-07,1,50,-0.33333334\r\n"
      "16777216,-300,0,0,0,1,1.5e+10,0\r\n");
}

TEST_F(CsvOfASweep, HasALineForEachPoint) {
  sweep.NrIntervals = 2049;
  EXPECT_EQ(Lines().size(), 2051U);
}

TEST_F(CsvOfASweep, AFigureThatIsNoNumberLeavesItsFieldEmpty) {
  r->RespVSWR[0] = std::numeric_limits<f32>::infinity();
  r->RespZin[0] = std::numeric_limits<f32>::quiet_NaN();
  EXPECT_EQ(Lines()[1], "0,0,0,0,0,,,0\r");
}

// Any 32 bits that are a number.
TEST_F(CsvOfASweep, EveryNumberReadsBackToTheSameBits) {
  std::mt19937 generator(7);
  std::vector<f32> values;
  while (values.size() < 2050) {
    const auto value = std::bit_cast<f32>(static_cast<std::uint32_t>(generator()));
    if (std::isfinite(value)) values.push_back(value);
  }
  sweep.NrIntervals = 2049;
  for (std::size_t i = 0; i < values.size(); ++i) r->RespTrans[static_cast<int>(i)] = values[i];
  const std::vector<std::string> lines = Lines();
  for (std::size_t i = 0; i < values.size(); ++i) {
    const std::string& line = lines[i + 1];
    f32 back = 0;
    std::from_chars(line.data() + line.find(',') + 1, line.data() + line.size(), back);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(back), std::bit_cast<std::uint32_t>(values[i])) << line;
  }
}

}  // namespace
}  // namespace quilm
