#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/modTabulate.h"

#include <gtest/gtest.h>

#include <memory>

namespace quilm {
namespace {

class Table : public testing::Test {
 protected:
  Table() {
    record.NrIntervals = 4;
    for (int i = 0; i <= 4; ++i) {
      r->RespFreq[i] = 1000.0F * static_cast<f32>(i + 1);
      r->RespTrans[i] = -3;
      r->RespAngle[i] = -45.5F;
      r->RespReturn[i] = -20.25F;
      r->RespDelay[i] = 1.5e-6F;
      r->RespVSWR[i] = 1.25F;
      r->RespZin[i] = 75;
      r->RespZinAngle[i] = 12;
    }
  }

  DesignRecord record;
  std::unique_ptr<Responses> r = std::make_unique<Responses>();
};

TEST_F(Table, FieldsAreTenCharactersWideAndRightJustified) {
  const std::vector<std::string> rows = TabulatedRows(record, *r);
  ASSERT_EQ(rows.size(), 5U);
  //                  "1234567890" "1234567890" ... the formats' own last blanks included
  EXPECT_EQ(rows[0], "       1k        -3     -45.5    -20.25       1.5u     1.25        75        12 ");
}

TEST_F(Table, DeepFiguresHaveASubstitute) {
  r->RespTrans[0] = -120;
  r->RespTrans[1] = -120.01F;
  r->RespReturn[1] = -139;
  const std::vector<std::string> rows = TabulatedRows(record, *r);
  EXPECT_EQ(rows[0].substr(10, 10), "     -120 ");
  EXPECT_EQ(rows[1].substr(10, 10), "     <-120");
  EXPECT_EQ(rows[1].substr(30, 10), "     <-120");
}

TEST_F(Table, TheLongestSweepHas2050Rows) {
  record.NrIntervals = 2049;
  EXPECT_EQ(TabulatedRows(record, *r).size(), 2050U);
}

TEST_F(Table, HeadingsStandOverTheirFields) {
  const std::vector<std::string> captions = TableCaptions();
  ASSERT_EQ(captions.size(), 8U);
  EXPECT_EQ(captions[0], "Frequency (Hz)");
  EXPECT_EQ(captions[1], "Trans. (dB)");
  EXPECT_EQ(captions[4], "Delay (seconds)");
  EXPECT_EQ(captions[5], "VSWR");
}

}  // namespace
}  // namespace quilm
