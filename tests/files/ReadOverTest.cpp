// A design that is read over another one is the one that an empty program reads: nothing of the former stays.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "core/Responses.h"
#include "files/ReadDesign.h"
#include "files/SampleDesign.h"
#include "files/WriteDesign.h"

namespace quilm {
namespace {

struct NamedText {
  std::string name;
  std::string text;
};

// The parts of a record that no file holds and that go on from design to design: what belongs to the program and to the
// way in which plots are looked at.
void TakeProgramFields(DesignRecord& record, const DesignRecord& from) {
  record.Units = from.Units;
  record.TopologyHelpCode = from.TopologyHelpCode;
  record.DesignFileName = from.DesignFileName;
  record.DelayBottom = from.DelayBottom;
  record.MagnifyMode = from.MagnifyMode;
  record.PlotLineWidth = from.PlotLineWidth;
  record.SmithAspect = from.SmithAspect;
  record.PlotCode = from.PlotCode;
}

void ReadInto(DesignRecord& record, const NamedText& design) {
  auto responses = std::make_unique<Responses>();
  ClearCircuit(record, *responses);
  std::istringstream in(design.text);
  const ReadOutcome outcome = ReadDesign(in, record);
  EXPECT_FALSE(outcome.failed) << design.name << ": " << outcome.description << " at " << outcome.marker;
}

NamedText Written(const std::string& name, DesignRecord record) { return {name, DesignText(record, "2026-01-02")}; }

// A Cauer lowpass or highpass whose prototype fills all places.
DesignRecord Cauer(const std::string& topology, const std::string& type, i16 top) {
  DesignRecord record = PlainDesign();
  record.Family = familyCauer;
  record.Topology = topology;
  record.CauerType = type;
  record.CauerTop = top;
  record.CauerFlag = 1;
  record.FstopNorm = 1.5F;
  record.Apass = 0.1F;
  record.Astop = 60;
  record.Order = orderLimit;
  for (int j = 1; j <= orderLimit; ++j) record.Gj[j] = record.Hj[j] = 0.25F * static_cast<f32>(j);
  record.stage[++record.Stages].ElementType = ShuntPLC;
  record.stage[1].Lval.value = 1e-6F;
  record.stage[1].Cval.value = 1e-9F;
  return record;
}

DesignRecord Mderived() {
  DesignRecord record = Cauer("B", "A", 0);
  record.Family = familyMderived;
  for (int i = 1; i <= 5; ++i) record.MderivedZero[i] = 1e6F * static_cast<f32>(i + 1);
  return record;
}

DesignRecord LinearBandpass() {
  DesignRecord record = PlainDesign();
  record.Family = familyChebyshev;
  record.Topology = "E";
  record.Fcenter = 1e7F;
  record.Order = 2;
  record.Gj[1] = record.Gj[2] = 1;
  record.SweepMode = 1;
  record.RelativeMode = 1;
  record.AbsoluteMode = 0;
  record.NrIntervals = 200;
  return record;
}

DesignRecord HandMadeWithLimitsAndMarkers() {
  DesignRecord record = DesignOfEveryType();
  record.Family = familyManual;
  record.Topology.clear();
  for (int marker = 1; marker <= markerCount; ++marker) record.MarkerFreq[marker] = 1e5F * static_cast<f32>(marker);
  for (int plot = 1; plot <= plotTypes; ++plot) {
    for (int j = 1; j <= limitsPerPlot; ++j) {
      record.LimitShape[j][plot] = 1;
      record.LimitStart[j][plot] = 1000;
      record.LimitStop[j][plot] = 2000;
      record.LimitTop[j][plot] = 3;
      record.LimitBottom[j][plot] = 2;
    }
  }
  return record;
}

std::vector<NamedText> WrittenDesigns() {
  return {Written("plain", PlainDesign()),
          Written("every type", DesignOfEveryType()),
          Written("Cauer lowpass", Cauer("A", "A", 0)),
          Written("Cauer highpass", Cauer("I", "B", 1)),
          Written("Cauer bandpass", Cauer("H", "C", 0)),
          Written("M-derived", Mderived()),
          Written("linear bandpass", LinearBandpass()),
          Written("hand-made", HandMadeWithLimitsAndMarkers())};
}

// The designs above, each also in the two older layouts, and those of the fuzzers' corpus.
std::vector<NamedText> AllDesigns() {
  std::vector<NamedText> designs;
  for (const NamedText& design : WrittenDesigns()) {
    designs.push_back(design);
    for (const char* block : {"* Markers Y/N", "* M-derived zeros Y/N"}) {
      designs.push_back({design.name + " before " + block, design.text.substr(0, design.text.find(block))});
    }
  }
  for (const auto& entry : std::filesystem::directory_iterator(QUILM_DESIGNS)) {
    std::ostringstream text;
    text << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    designs.push_back({entry.path().filename().string(), text.str()});
  }
  return designs;
}

TEST(ReadOver, NothingOfTheFormerDesignStays) {
  const std::vector<NamedText> designs = AllDesigns();
  ASSERT_GT(designs.size(), 26U);
  for (const NamedText& design : designs) {
    DesignRecord alone;
    ReadInto(alone, design);
    for (const NamedText& former : designs) {
      DesignRecord over;
      ReadInto(over, former);
      over.NetworkEdited = 1;
      over.MatchAccepted = 1;
      over.ResponsesValid = 1;
      ReadInto(over, design);
      TakeProgramFields(over, alone);
      EXPECT_TRUE(over == alone) << design.name << " over " << former.name;
    }
  }
}

// What the comparison above leaves out must be what a read does not touch, or it would leave out too much.
TEST(ReadOver, TheProgramsOwnFieldsStay) {
  DesignRecord record;
  record.Units = 2;
  record.TopologyHelpCode = 7;
  record.DesignFileName = "former.QLM";
  record.DelayBottom = 1e-6F;
  record.MagnifyMode = 1;
  record.PlotLineWidth = 3;
  record.SmithAspect = 1.2F;
  record.PlotCode = 4;
  const DesignRecord before = record;
  ReadInto(record, Written("hand-made", HandMadeWithLimitsAndMarkers()));
  DesignRecord after = record;
  TakeProgramFields(after, before);
  EXPECT_TRUE(after == record);
}

// Whatever was shown of the design before: the limits of a file show at once, its markers when they are asked for.
TEST(ReadOver, LimitsShowAndMarkersWait) {
  DesignRecord record;
  record.MarkersShown = 1;
  ReadInto(record, Written("hand-made", HandMadeWithLimitsAndMarkers()));
  EXPECT_GT(record.MarkerFreq[1], 0);
  EXPECT_EQ(record.MarkersShown, 0);
  EXPECT_EQ(record.LimitsShown, 1);
}

TEST(ReadOver, FewerMarkersAndZerosLeaveTheOthersUnset) {
  DesignRecord record;
  ReadInto(record, Written("hand-made", HandMadeWithLimitsAndMarkers()));
  ReadInto(record, Written("M-derived", Mderived()));
  DesignRecord few = PlainDesign();
  few.MarkerFreq[3] = 5e5F;  // markers are written without their gaps
  ReadInto(record, Written("few", few));
  EXPECT_EQ(record.MarkerFreq[1], 5e5F);
  for (int marker = 2; marker <= markerCount; ++marker) EXPECT_EQ(record.MarkerFreq[marker], 0) << marker;
  for (int zero = 1; zero <= 5; ++zero) EXPECT_EQ(record.MderivedZero[zero], 0) << zero;
}

// 1 MHz times 1.5 for a lowpass, over 1.5 for a highpass.
TEST(ReadOver, TheStopbandIsThatOfTheDesignRead) {
  DesignRecord record;
  ReadInto(record, Written("lowpass", Cauer("A", "A", 0)));
  EXPECT_FLOAT_EQ(record.Fstopband, 1.5e6F);
  ReadInto(record, Written("highpass", Cauer("I", "A", 0)));
  EXPECT_FLOAT_EQ(record.Fstopband, 1e6F / 1.5F);
  ReadInto(record, Written("plain", PlainDesign()));
  EXPECT_EQ(record.Fstopband, 0);
}

TEST(ReadOver, AnAcceptedMatchIsThatOfTheFormerDesign) {
  for (const std::string& text : {Written("plain", PlainDesign()).text, std::string("damaged")}) {
    DesignRecord record;
    record.MatchAccepted = 1;
    record.NetworkEdited = 1;
    std::istringstream in(text);
    ReadDesign(in, record);
    EXPECT_EQ(record.MatchAccepted, 0);
    EXPECT_EQ(record.NetworkEdited, 0);
  }
}

}  // namespace
}  // namespace quilm
