// S-parameter files of real designs in the hands of who reads them: version 1.0 by an independent program, version 2.0
// by its grammar.
#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include <gmock/gmock.h>

#include "analysis/Ladder.h"
#include "analysis/modAnalysis.h"
#include "core/Responses.h"
#include "files/export/TouchstoneFile.h"
#include "files/export/TouchstoneGrammar.h"
#include "support/LadderText.h"
#include "support/ProgramOutput.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

namespace fs = std::filesystem;

constexpr int designs = 6;
constexpr std::array<const char*, 4> unitNames{"Hz", "kHz", "MHz", "GHz"};
constexpr std::array<const char*, 2> formatNames{"DB", "MA"};

// Ladders of lossy inductors and capacitors in all eight places, of 1 to 7 stages, between three different resistances,
// some swept evenly.
DesignRecord Design(int number) {
  static const std::vector<i16> types{SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, SeriesPLC, ShuntPLC};
  std::mt19937 random(static_cast<unsigned>(40 + number));
  DesignRecord record = RandomLadder(random, 1 + (number * 5) % 7, types);
  record.Rstandard = number % 2 == 0 ? record.Rsource[1] : 60;
  record.SweepMode = static_cast<i16>(1 + number % 2);
  record.Fstart = 1e5F;
  record.Fstop = 1.2e7F;
  record.NrIntervals = 50;
  return record;
}

// A design with its two sweeps.
struct Swept {
  explicit Swept(const DesignRecord& design)
      : record(design), responses(std::make_unique<Responses>()), reverse(std::make_unique<ReverseResponses>()) {
    EXPECT_EQ(SweepLadder(record, *responses), "");
    EXPECT_EQ(SweepReverse(record, *reverse), "");
  }

  std::string Text(const ExportChoices& choices) const {
    const ExportText made =
        TouchstoneText(record, SpansOf(*responses, LastPoint(record)), *reverse, choices, "2026-05-04");
    EXPECT_EQ(made.failure, "");
    return made.text;
  }

  DesignRecord record;
  std::unique_ptr<Responses> responses;
  std::unique_ptr<ReverseResponses> reverse;
};

void WriteDesign(const fs::path& path, const Swept& swept) {
  const DesignRecord& r = swept.record;
  std::ofstream out(path);
  WriteLadder(r, QualityFrequency(r, r), out);
  const Responses& f = *swept.responses;
  const ReverseResponses& b = *swept.reverse;
  for (int i = 0; i <= LastPoint(r); ++i) {
    out << f.RespFreq[i] << ' ' << f.RespReturn[i] << ' ' << f.RespZin[i] << ' ' << f.RespZinAngle[i] << ' '
        << f.RespTrans[i] << ' ' << f.RespAngle[i] << ' ' << b.RevTrans[i] << ' ' << b.RevAngle[i] << ' '
        << b.RevReturn[i] << ' ' << b.RevZin[i] << ' ' << b.RevZinAngle[i] << '\n';
  }
}

template <class Act>
void ForEachChoice(i16 version, const Act& act) {
  for (i16 ports = 1; ports <= 2; ++ports) {
    for (i16 unit = 1; unit <= 4; ++unit) {
      for (i16 format = 1; format <= 2; ++format) {
        ExportChoices choices;
        choices.SnPPorts = ports;
        choices.SnPVersion = version;
        choices.SnPUnit = unit;
        choices.SnPFormat = format;
        act(choices);
      }
    }
  }
}

std::string FileName(int design, const ExportChoices& choices) {
  return std::to_string(design) + "-" + unitNames.at(static_cast<std::size_t>(choices.SnPUnit - 1)) + "-" +
         formatNames.at(static_cast<std::size_t>(choices.SnPFormat - 1)) + ".S" + std::to_string(choices.SnPPorts) +
         "P";
}

class TouchstoneReader : public testing::Test {
 protected:
  TouchstoneReader() : folder_(fs::temp_directory_path() / ("quilm-touchstone-" + std::to_string(getpid()))) {
    fs::create_directories(folder_);
  }
  ~TouchstoneReader() override { fs::remove_all(folder_); }

  fs::path folder_;
};

// All in one process, since the reader takes its time to start.
TEST_F(TouchstoneReader, ScikitRfReadsWhatTheSweepSaid) {
  for (int design = 0; design < designs; ++design) {
    const Swept swept(Design(design));
    WriteDesign(folder_ / (std::to_string(design) + ".design"), swept);
    ForEachChoice(1, [&](const ExportChoices& choices) {
      std::ofstream(folder_ / FileName(design, choices), std::ios::binary) << swept.Text(choices);
    });
  }
  const std::string said = OutputOf(std::string(QUILM_SKRF_PYTHON " " QUILM_EXPORT_TESTS "/read_touchstone.py ") +
                                    folder_.string() + " 2>" + (folder_ / "errors").string() + " || true");
  std::ostringstream errors;
  errors << std::ifstream(folder_ / "errors").rdbuf();
  EXPECT_THAT(said, testing::EndsWith("compared " + std::to_string(designs * 16 * 51) + " points\n"))
      << errors.str() << "scikit-rf is what tools/install-packages test installs";
}

TEST_F(TouchstoneReader, Version2FollowsItsGrammar) {
  for (int design = 0; design < designs; ++design) {
    const Swept swept(Design(design));
    ForEachChoice(2, [&](const ExportChoices& choices) {
      const TouchstoneV2 read = ParseTouchstoneV2(swept.Text(choices));
      ASSERT_EQ(read.fault, "") << FileName(design, choices);
      EXPECT_EQ(read.ports, choices.SnPPorts);
      EXPECT_EQ(read.unit, unitNames.at(static_cast<std::size_t>(choices.SnPUnit - 1)));
      EXPECT_EQ(read.format, formatNames.at(static_cast<std::size_t>(choices.SnPFormat - 1)));
      ASSERT_EQ(read.rows.size(), 51U);
      // The same rows as in version 1.0, which an independent program has read.
      ExportChoices version1 = choices;
      version1.SnPVersion = 1;
      const std::string text = swept.Text(version1);
      EXPECT_THAT(text, testing::HasSubstr(read.rowTexts.front()));
      EXPECT_THAT(text, testing::HasSubstr(read.rowTexts.back()));
    });
  }
}

TEST_F(TouchstoneReader, TheGrammarRefusesWhatIsNoFile) {
  const Swept swept(Design(1));
  ExportChoices choices;
  choices.SnPVersion = 2;
  const std::string text = swept.Text(choices);
  ASSERT_EQ(ParseTouchstoneV2(text).fault, "");
  const auto without = [&text](const std::string& line) {
    const std::size_t at = text.find(line);
    std::string rest = text;
    return rest.erase(at, text.find('\n', at) + 1 - at);
  };
  for (const char* line : {"[Version]", "# ", "[Number of Ports]", "[Two-Port Data Order]", "[Number of Frequencies]",
                           "[Network data]", "[End]"}) {
    EXPECT_NE(ParseTouchstoneV2(without(line)).fault, "") << line;
  }
  EXPECT_EQ(ParseTouchstoneV2(without("! Fstart")).fault, "");
  EXPECT_EQ(ParseTouchstoneV2(without("[Reference]")).fault, "");
  const std::size_t row = text.find("[Network data]") + 16;
  EXPECT_NE(ParseTouchstoneV2(text.substr(0, row) + text.substr(text.find('\n', row) + 1)).fault, "");
  EXPECT_NE(ParseTouchstoneV2(text.substr(0, row) + "1 " + text.substr(row)).fault, "");
}

// A network that gives back what it takes is the same both ways.
TEST_F(TouchstoneReader, WhatIsReciprocalTransmitsTheSameBothWays) {
  const Swept swept(Design(3));
  for (int i = 0; i <= 50; ++i) {
    EXPECT_NEAR(swept.reverse->RevTrans[i], swept.responses->RespTrans[i], 1e-5) << i;
    EXPECT_NEAR(std::remainder(swept.reverse->RevAngle[i] - swept.responses->RespAngle[i], 360), 0, 1e-4) << i;
  }
}

}  // namespace
}  // namespace quilm
