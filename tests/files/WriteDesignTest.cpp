#include "files/WriteDesign.h"

#include <gtest/gtest.h>

#include "files/SampleDesign.h"

namespace quilm {
namespace {

constexpr const char* date = "2026-01-02";

bool Has(const std::string& text, const std::string& line) {
  return text.find("\r\n" + line + "\r\n") != std::string::npos;
}

// A file written out by hand from the rules of the format.
TEST(DesignText, WholeFile) {
  DesignRecord record = PlainDesign();
  record.Order = 3;
  record.Gj[1] = record.Gj[3] = 1;
  record.Gj[2] = 2;
  record.Stages = 2;
  record.stage[1].ElementType = ShuntC;
  record.stage[1].Cval = {3.1831e-9F, 5};
  record.stage[2].ElementType = SeriesL;
  record.stage[2].Lval.value = 1.59155e-5F;
  record.MarkerFreq[2] = 2e6F;
  EXPECT_EQ(DesignText(record, date),
            "Quilm circuit file 43\r\n"
            "Sample\r\n"
            "2026-01-02\r\n"
            "* Added Information:\r\n"
            "for the bench\r\n"
            "* Family, order, stages, topology, Cauer:\r\n"
            " 1  3  2 A 0 \r\n"
            "* Width, center, Fstop normalized:\r\n"
            " 1000000  0  0 \r\n"
            "* Apass, Astop:\r\n"
            " 0  0 \r\n"
            "* Rsource, Rload, Rratio, Rstandard:\r\n"
            " 50  50  1  50 \r\n"
            "* Qind, Qcap:\r\n"
            " 200  2000 \r\n"
            "* Gj, Hj:\r\n"
            " 1  0 \r\n"
            " 2  0 \r\n"
            " 1  0 \r\n"
            "* Element type, L, Ltolerance, C, Ctolerance\r\n"
            " 4  0  0  3.1831E-09  5 \r\n"
            " 1  1.59155E-05  0  0  0 \r\n"
            "* Lin or log, Fstart, Fstop, Fstep or NrIntervals:\r\n"
            " 2  1000  1E+07  1000 \r\n"
            "* Graph scales:\r\n"
            "-60  0  0  .0001  2.2  1200  10  6 \r\n"
            "* Limits Y/N:\r\n"
            "N\r\n"
            "* Markers Y/N:\r\n"
            "Y\r\n"
            "* Marker frequencies:\r\n"
            " 2000000 \r\n"
            "* M-derived zeros Y/N:\r\n"
            "N\r\n");
}

TEST(DesignText, AShortTitleIsUntitledAndALongOneCut) {
  DesignRecord record = PlainDesign();
  record.CircuitTitle = "x";
  EXPECT_TRUE(Has(DesignText(record, date), "Untitled"));
  record.CircuitTitle = std::string(90, 'y');
  EXPECT_TRUE(Has(DesignText(record, date), std::string(80, 'y')));
}

TEST(DesignText, WithoutAPrototypeThereIsAComment) {
  DesignRecord record = PlainDesign();
  EXPECT_TRUE(Has(DesignText(record, date), "* (no normalized values)"));
}

TEST(DesignText, CommentsAppearForTheTypesPresent) {
  DesignRecord record = PlainDesign();
  const std::string r = "*            or  R, Rtolerance:";
  const std::string line = "*            or  TLdegrees, TLfreq, TLimpedance:";
  const std::string transformer = "*            or turns ratio, pri to sec:";
  std::string text = DesignText(record, date);
  EXPECT_FALSE(Has(text, r) || Has(text, line) || Has(text, transformer));
  record = DesignOfEveryType();
  text = DesignText(record, date);
  EXPECT_TRUE(Has(text, r) && Has(text, line) && Has(text, transformer));
}

TEST(DesignText, EveryKindOfStageLine) {
  DesignRecord record = DesignOfEveryType();
  const std::string text = DesignText(record, date);
  EXPECT_TRUE(Has(text, " 5  1.5E-06  5  4.7E-09  2 "));
  EXPECT_TRUE(Has(text, " 9  75  1 "));
  EXPECT_TRUE(Has(text, " 11  30  1E+09  50  2  3 "));
  EXPECT_TRUE(Has(text, " 16  2  4 "));
  EXPECT_TRUE(Has(text, " 19  .000001  .000004  .5  1  2  3 ") || Has(text, " 19  1E-06  4E-06  .5  1  2  3 "));
  EXPECT_TRUE(Has(text, " 20  1.5E-06  5  4.7E-09  2  75  1 "));
}

TEST(DesignText, EmptyPlacesHaveNoLine) {
  DesignRecord record = PlainDesign();
  record.Stages = 1;
  record.stage[1].ElementType = SeriesReactance;
  EXPECT_EQ(DesignText(record, date).find("\r\n 17"), std::string::npos);
}

TEST(DesignText, WritingChangesTheRecordInSmallWays) {
  DesignRecord record = PlainDesign();
  record.AddedInfo = "(aside)";
  record.Fcenter = 5;
  record.FstopNorm = 2;
  record.Stages = 1;
  record.stage[1].ElementType = SeriesOpenStub;
  DesignText(record, date);
  EXPECT_EQ(record.AddedInfo, " ");
  EXPECT_EQ(record.Fcenter, 0);
  EXPECT_EQ(record.FstopNorm, 0);
  EXPECT_EQ(record.stage[1].TLval.degrees, 1e-6F);
}

// Open in its path or short across it, a stub of no length would stop the network; the others do no harm.
TEST(DesignText, StubsThatWouldStopTheNetworkKeepALength) {
  DesignRecord record = PlainDesign();
  const i16 types[] = {SeriesShortStub, SeriesOpenStub, ShuntShortStub, ShuntOpenStub};
  for (const i16 type : types) record.stage[++record.Stages].ElementType = type;
  DesignText(record, date);
  EXPECT_EQ(record.stage[1].TLval.degrees, 0);
  EXPECT_EQ(record.stage[2].TLval.degrees, 1e-6F);
  EXPECT_EQ(record.stage[3].TLval.degrees, 1e-6F);
  EXPECT_EQ(record.stage[4].TLval.degrees, 0);
}

TEST(DesignText, CauerCodes) {
  struct Row {
    i16 flag;
    const char* type;
    i16 top;
    const char* code;
  };
  const Row rows[] = {{0, "C", 1, "0"}, {1, "A", 0, "1"}, {1, "B", 0, "2"}, {1, "C", 0, "3"},
                      {1, "A", 1, "4"}, {1, "B", 1, "5"}, {1, "C", 1, "6"}};
  for (const Row& row : rows) {
    DesignRecord record = PlainDesign();
    record.CauerFlag = row.flag;
    record.CauerType = row.type;
    record.CauerTop = row.top;
    EXPECT_TRUE(Has(DesignText(record, date), std::string(" 1  0  0 A ") + row.code + " ")) << row.code;
  }
}

TEST(DesignText, SweepLines) {
  DesignRecord record = PlainDesign();
  record.RelativeMode = 1;
  record.NrIntervals = 5;
  EXPECT_TRUE(Has(DesignText(record, date), "-2  1000  1E+07  10 "));
  EXPECT_EQ(record.SweepMode, 2);
  record.RelativeMode = 0;
  record.SweepMode = 1;
  record.Fstart = 0;
  record.Fstop = 1e6F;
  record.NrIntervals = 10;
  EXPECT_TRUE(Has(DesignText(record, date), " 1  0  1000000  100000 "));
  record.NrIntervals = 8;
  EXPECT_TRUE(Has(DesignText(record, date), " 1  0  1000000  125000 "));
  for (const f32 few : {6.0F, 7.999F}) {  // fewer than 8 are written as a step of 0
    record.NrIntervals = few;
    EXPECT_TRUE(Has(DesignText(record, date), " 1  0  1000000  0 "));
  }
  record.SweepMode = 3;
  EXPECT_TRUE(Has(DesignText(record, date), " 3  0  1000000  8 "));
}

TEST(DesignText, LimitsWithoutAGap) {
  DesignRecord record = PlainDesign();
  record.LimitShape[1][1] = 2;
  record.LimitStart[1][1] = 1000;
  record.LimitBottom[1][1] = -3.5F;
  record.LimitShape[3][1] = 1;  // behind a gap: lost, though it counts
  const std::string text = DesignText(record, date);
  EXPECT_TRUE(Has(text, "2 limits for transmission plot:"));
  EXPECT_TRUE(Has(text, " 2    1000    0    0   -3.5   "));
  EXPECT_TRUE(Has(text, "0 limits for VSWR plot"));
  EXPECT_EQ(text.find("\r\n 1    0"), std::string::npos);
  EXPECT_EQ(record.LimitCount[1], 2);
}

TEST(DesignText, VSWRTopIsWrittenAsSevenAtMost) {
  DesignRecord record = PlainDesign();
  record.VSWRTop = 9;
  EXPECT_TRUE(Has(DesignText(record, date), "-60  0  0  .0001  7  1200  10  6 "));
}

TEST(DesignText, ZerosOfAnMderivedDesign) {
  DesignRecord record = PlainDesign();
  record.Family = familyMderived;
  record.MderivedZero[1] = 1.25e6F;
  const std::string text = DesignText(record, date);
  EXPECT_TRUE(text.ends_with("Y\r\n* Data:\r\n 1250000  0  0  0  0 \r\n"));
}

}  // namespace
}  // namespace quilm
