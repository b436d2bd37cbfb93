#include "core/Responses.h"
#include "files/ReadDesign.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "files/SampleDesign.h"
#include "files/WriteDesign.h"

namespace quilm {
namespace {

// The lines of a sound file up to the stages, with the design line to be chosen.
std::string Head(const std::string& design) {
  return "any header\nTitle\n1/2/26\nInfo text\n" + design + "\n1M 0 0\n.1 50\n50 50 1 0\n200 2000\n";
}

const std::string tail = "2 1000 1e7 1000\n60 0 0 .0001 2.2 1200 10 6.7\nN\nN\nN\n";

struct Result {
  DesignRecord record;
  ReadOutcome outcome;
};

Result Read(const std::string& text) {
  Result result;
  auto responses = std::make_unique<Responses>();
  ClearCircuit(result.record, *responses);
  std::istringstream in(text);
  result.outcome = ReadDesign(in, result.record);
  return result;
}

TEST(ReadDesign, EntriesOfAPlainFile) {
  const Result r = Read(Head("1 0 1 a 0") + "1 1e-6 5 9 9\n" + tail);
  ASSERT_FALSE(r.outcome.failed) << r.outcome.description << r.outcome.marker;
  EXPECT_EQ(r.outcome.layout, FileLayout::Current);
  EXPECT_EQ(r.record.CircuitTitle, "Title");
  EXPECT_EQ(r.record.DesignDate, "1/2/26");
  EXPECT_EQ(r.record.AddedInfo, "Info text");
  EXPECT_EQ(r.record.Topology, "A");
  EXPECT_EQ(r.record.Width, 1e6F);
  EXPECT_EQ(r.record.Rstandard, 50);  // 0 takes the source
  EXPECT_EQ(r.record.stage[1].Lval, (PartValue{1e-6F, 5}));
  EXPECT_EQ(r.record.stage[1].Cval, PartValue{});  // consumed and dropped
  EXPECT_EQ(r.record.LossBottom, -60);
  EXPECT_EQ(r.record.NrYints, 6);
  EXPECT_EQ(r.record.NetworkEdited, 0);
}

TEST(ReadDesign, NoMarkOfTheDesignBeforeStays) {
  for (const std::string& text : {Head("1 0 0 A 0") + tail, std::string("broken")}) {
    DesignRecord record;
    record.NetworkEdited = record.ResponsesValid = record.DesignChanged = 1;
    record.MatchAccepted = 1;
    std::istringstream in(text);
    ReadDesign(in, record);
    EXPECT_EQ(record.NetworkEdited, 0);
    EXPECT_EQ(record.MatchAccepted, 0);
    EXPECT_EQ(record.ResponsesValid, 0);
    EXPECT_EQ(record.DesignChanged, 0);
  }
}

TEST(ReadDesign, FamiliesOutsideOneToSevenAreManual) {
  EXPECT_EQ(Read(Head("8 0 0 A 0") + tail).record.Family, familyManual);
  EXPECT_EQ(Read(Head("0 0 0 A 0") + tail).record.Family, familyManual);
  EXPECT_EQ(Read(Head("7 0 0 A 1") + tail).record.Family, familyMderived);
}

TEST(ReadDesign, AllPromisedLinesAreTakenAndTheRecordIsCut) {
  std::string text = Head("1 25 50 A 0");
  for (int j = 1; j <= 25; ++j) text += std::to_string(j) + " 0\n";
  for (int k = 1; k <= 50; ++k) text += "1 " + std::to_string(k) + " 0 0 0\n";
  const Result r = Read(text + tail);
  ASSERT_FALSE(r.outcome.failed);
  EXPECT_EQ(r.record.Order, 21);
  EXPECT_EQ(r.record.Gj[21], 21);
  EXPECT_EQ(r.record.Stages, 43);
  EXPECT_EQ(r.record.stage[43].Lval.value, 43);
  EXPECT_EQ(r.record.Fstart, 1000);
}

TEST(ReadDesign, ANetworkWithoutATopologyIsManual) {
  const Result r = Read(Head("11 0 0 0") + tail);
  ASSERT_FALSE(r.outcome.failed);
  EXPECT_EQ(r.record.Topology, "M");
  EXPECT_EQ(r.record.CauerFlag, 0);
}

TEST(ReadDesign, CauerCodesAreUnpacked) {
  const Result r = Read(Head("3 0 0 H 6") + tail);
  EXPECT_EQ(r.record.CauerFlag, 1);
  EXPECT_EQ(r.record.CauerType, "C");
  EXPECT_EQ(r.record.CauerTop, 1);
  EXPECT_EQ(Read(Head("3 0 0 H 9") + tail).record.CauerFlag, 9);
}

TEST(ReadDesign, TheStopbandFollowsFromItsRatio) {
  std::string text = Head("3 0 0 A 1");
  text.replace(text.find("1M 0 0"), 6, "1M 5 1.5");
  const Result low = Read(text + tail);
  EXPECT_EQ(low.record.Fstopband, 1.5e6F);
  EXPECT_EQ(low.record.Fcenter, 0);
  text.replace(text.find(" A 1"), 4, " I 1");
  EXPECT_EQ(Read(text + tail).record.Fstopband, 1e6F / 1.5F);
}

TEST(ReadDesign, OlderLinesHaveFewerFields) {
  const Result r = Read(Head("11 0 3 M 0") + "11 30 1e9 50\n16 2\n13 0 1e9 50\n" + tail);
  ASSERT_FALSE(r.outcome.failed);
  EXPECT_EQ(r.record.stage[1].TLval, (LineValue{30, 1e9F, 50, 0, 0}));
  EXPECT_EQ(r.record.stage[2].XfmrVal, (PartValue{2, 0}));
  EXPECT_EQ(r.record.stage[3].TLval.degrees, 1e-6F);
}

TEST(ReadDesign, AMissingFieldRepeatsTheOneBefore) {
  const Result r = Read(Head("11 0 1 M 0") + "9 75\n" + tail);
  EXPECT_EQ(r.record.stage[1].Rval, (PartValue{75, 75}));
}

TEST(ReadDesign, SweepModes) {
  const auto with = [](const std::string& sweep) {
    return Read(Head("1 0 0 A 0") + sweep + "\n" + tail.substr(tail.find('\n') + 1)).record;
  };
  EXPECT_EQ(with("-2 1k 10M 5").NrIntervals, 5);
  EXPECT_EQ(with("-2 1k 10M 5").RelativeMode, 1);
  EXPECT_EQ(with("2 1k 10M 3").NrIntervals, 4);
  EXPECT_EQ(with("2 1k 10M 9999").NrIntervals, 2049);
  EXPECT_EQ(with("2 1k 10M 99.9995").NrIntervals, 100);
  EXPECT_NEAR(with("2 1k 10M 99.5").NrIntervals, 99.5F, 1e-6);
  EXPECT_EQ(with("1 0 1M 0").NrIntervals, 4);
  EXPECT_EQ(with("1 0 1M 31250").NrIntervals, 32);
  EXPECT_EQ(with("1 0 1M 31250.01").NrIntervals, 32);  // a step of seven digits stands for a whole number
  EXPECT_NEAR(with("1 0 1M 300000").NrIntervals, 3.3333F, 1e-3);
}

// The step of a linear sweep is written with seven digits: what misses a whole number of intervals by a thousandth is
// that number, what misses it by more was never whole.
TEST(ReadDesign, AnIntervalCountWithinAThousandthIsWhole) {
  const auto intervals = [](const std::string& stop) {
    return Read(Head("1 0 0 A 0") + "1 0 " + stop + " 1\n" + tail.substr(tail.find('\n') + 1)).record.NrIntervals;
  };
  EXPECT_EQ(intervals("32.0009"), 32);
  EXPECT_EQ(intervals("31.9991"), 32);
  EXPECT_EQ(intervals("32.0011"), 32.0011F);
  EXPECT_EQ(intervals("31.9989"), 31.9989F);
  EXPECT_EQ(intervals("2049.0009"), 2049);
  EXPECT_EQ(intervals("2049.5"), 2049);
  EXPECT_EQ(intervals("2050"), 2049);
}

TEST(ReadDesign, AFileMayEndAfterTheLimitsOrTheMarkers) {
  const std::string text = Head("1 0 0 A 0");
  EXPECT_EQ(Read(text + tail.substr(0, tail.size() - 4)).outcome.layout, FileLayout::WithoutMarkers);
  EXPECT_EQ(Read(text + tail.substr(0, tail.size() - 2)).outcome.layout, FileLayout::WithoutZeros);
}

TEST(ReadDesign, LimitsMarkersAndZeros) {
  std::string limits = "y\n1 limits for transmission plot:\n2 1000 2000 -1 -3\n";
  for (int p = 2; p <= 6; ++p) limits += "0 limits for any plot\n";
  const std::string scales = tail.substr(0, tail.find("N\n"));
  const Result r = Read(Head("7 0 0 A 1") + scales + limits + " Y \n1M 2M\nY\n1.25M 0 0 0 0\n");
  ASSERT_FALSE(r.outcome.failed) << r.outcome.marker;
  EXPECT_EQ(r.record.LimitsShown, 1);
  EXPECT_EQ(r.record.LimitCount[1], 1);
  EXPECT_EQ(r.record.LimitBottom[1][1], -3);
  EXPECT_EQ(r.record.MarkerFreq[2], 2e6F);
  EXPECT_EQ(r.record.MarkerFreq[3], 0);
  EXPECT_EQ(r.record.MderivedZero[1], 1.25e6F);
}

TEST(ReadDesign, TenMarkerWordsAreTakenAndElevenFail) {
  const std::string start = Head("1 0 0 A 0") + tail.substr(0, tail.size() - 4) + "Y\n";
  const Result ten = Read(start + "1 2 3 4 5 6 7 8 9 10\nN\n");
  EXPECT_FALSE(ten.outcome.failed);
  EXPECT_EQ(ten.record.MarkerFreq[8], 8);
  const Result eleven = Read(start + "1 2 3 4 5 6 7 8 9 10 11\nN\n");
  EXPECT_TRUE(eleven.outcome.failed);
  EXPECT_EQ(eleven.outcome.marker, "Reading list of marker freqs - 584");
  EXPECT_EQ(eleven.record.Stages, 0);
}

struct Damage {
  const char* what;
  std::string text;
  const char* marker;
};

TEST(ReadDesign, DamagedFilesFailAndLeaveNoNetwork) {
  const std::string sound = Head("1 0 1 A 0") + "1 1e-6 0 0 0\n" + tail;
  const Damage rows[] = {
      {"nothing", "", "42"},
      {"title alone", "h\nt\n", "52"},
      {"a family that does not fit", Head("99999 0 0 A 0") + tail, "71"},
      {"a count of stages that does not fit", Head("1 0 1e9 A 0") + tail, "86"},
      {"a count of orders beyond the file", Head("1 1e9 0 A 0") + tail, "250"},
      {"more stages than lines", Head("1 0 30 A 0") + "1 1 1 1 1\n", "264"},
      {"a value beyond 32 bits", Head("1 0 1 A 0") + "1 1e99 0 0 0\n" + tail, "264"},
      {"more limits than rows", Head("1 0 0 A 0") + tail.substr(0, tail.find("N\n")) + "Y\n11 limits\n",
       "Number of limits:11 limits - 545"},
  };
  for (const Damage& row : rows) {
    const Result r = Read(row.text);
    EXPECT_TRUE(r.outcome.failed) << row.what;
    EXPECT_EQ(r.outcome.marker, row.marker) << row.what;
    EXPECT_EQ(r.record.Stages, 0) << row.what;
    EXPECT_FALSE(r.outcome.description.empty()) << row.what;
  }
  EXPECT_FALSE(Read(sound).outcome.failed);
}

TEST(ReadDesign, TheLastLineTakenIsKeptWhole) {
  const Result r = Read(Head("1 0 2 A 0") + "  1  2 3 4 5  \n");
  EXPECT_TRUE(r.outcome.failed);
  EXPECT_EQ(r.outcome.lastLine, "1  2 3 4 5");
}

TEST(ReadDesign, NegativeCountsRunNoLoop) {
  const Result r = Read(Head("1 -3 -2 A 0") + tail);
  ASSERT_FALSE(r.outcome.failed);
  EXPECT_EQ(r.record.Stages, 0);
}

TEST(ReadDesign, PlainConversionStopsAtAComma) {
  const Result r = Read(Head("11 0 1 M 0") + "9 1,5 2\n" + tail);
  EXPECT_EQ(r.record.stage[1].Rval, (PartValue{1, 2}));
}

// A comment-like title is skipped and shifts all lines that follow: nothing worse than a wrong design may come of it.
TEST(ReadDesign, AShiftedFileDoesNoHarm) {
  DesignRecord record = DesignOfEveryType();
  record.CircuitTitle = "* not a title";
  EXPECT_NO_THROW(Read(DesignText(record, "1/2/26")));
}

TEST(ClearCircuit, EmptiesTheDesignAndItsResponses) {
  DesignRecord record = DesignOfEveryType();
  auto responses = std::make_unique<Responses>();
  responses->RespTrans.Fill(-5);
  record.NrIntervals = 3;
  ClearCircuit(record, *responses);
  EXPECT_EQ(record.Stages, 0);
  EXPECT_EQ(record.stage[1], Stage{});
  EXPECT_EQ(record.VSWRTop, 7);
  EXPECT_EQ(record.NrIntervals, 0);
  EXPECT_EQ(responses->RespTrans[0], -5);
  EXPECT_EQ(responses->RespTrans[3], 0);
  EXPECT_EQ(responses->RespTrans[4], -5);
}

}  // namespace
}  // namespace quilm
