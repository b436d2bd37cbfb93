// Verified netlists beside the analysis: ngspice runs its dialect, that of LTspice is solved here as its manual tells
// it.
#include "files/export/VerifiedNetlist.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <set>
#include <sstream>

#include "analysis/Kernel.h"
#include "core/DesignRecord.h"
#include "files/export/DeckSolver.h"
#include "files/export/LtspiceBench.h"
#include "support/NgspiceBatch.h"
#include "support/RandomLadder.h"

namespace quilm {
namespace {

constexpr f32 Fq = 1e6F;
constexpr f64 deepest = -100;  // dB

// Equal steps whose frequencies are exact in 32 bits, so that both programs mean the same ones.
constexpr const char* sweep = "lin 60 2e5 1.2e7";

f64 Decibels(std::complex<f64> voltage) { return 10 * std::log10(std::norm(voltage)); }

// Counts the points that are not too deep to be compared.
void ExpectAgreement(const DesignRecord& record, const std::vector<NgspicePoint>& points, f64 tolerance,
                     int& compared) {
  ASSERT_FALSE(points.empty());
  const Ladder ladder = Compile(record, Fq);
  for (const NgspicePoint& point : points) {
    const Figures ours = EvaluateOne(ladder, static_cast<f32>(point.frequency));
    if (ours.transDB < deepest) continue;
    ++compared;
    EXPECT_NEAR(Decibels(point.voltage), ours.transDB, tolerance) << point.frequency;
    EXPECT_NEAR(std::remainder(std::arg(point.voltage) * 180 / Pi - ours.angle, 360), 0, 1e-4) << point.frequency;
  }
}

std::string TypesOf(const Network& network) {
  std::string types;
  for (int s = 1; s <= network.Stages; ++s) types.append(" ").append(std::to_string(network.stage[s].ElementType));
  return types;
}

TEST(VerifiedNetlist, AgreesWithTheAnalysisOnAThousandRandomLadders) {
  std::mt19937 random(20);
  std::vector<DesignRecord> records;
  std::vector<NgspiceCircuit> circuits;
  for (int trial = 0; trial < 1000; ++trial) {
    DesignRecord& record = records.emplace_back(RandomLadder(random, 1 + trial % stagesLimit, AnalysableTypes()));
    // Every type stands in some ladder on its own, too.
    if (trial < 19) {
      record.Stages = 1;
      record.stage[1].ElementType = AnalysableTypes()[static_cast<std::size_t>(trial)];
    }
    const ExportText deck = VerifiedNetlist(record, SpiceDialect::Ngspice, "2026-11-22");
    EXPECT_EQ(deck.failure, "");
    circuits.push_back({deck.text, sweep, "out"});
  }
  const auto results = RunNgspice(circuits);
  int compared = 0;
  for (std::size_t i = 0; i < results.size(); ++i) {
    const DesignRecord& record = records[i];
    SCOPED_TRACE(testing::Message() << "ladder " << i << ":" << TypesOf(record));
    ExpectAgreement(record, results[i], 1e-5, compared);
  }
  EXPECT_GT(compared, 20000);  // of 60000
}

// A deck's elimination takes the cube of its unknowns, so there are fewer ladders and frequencies here.
TEST(VerifiedNetlist, ForLTspiceAgreesWithTheAnalysisToo) {
  std::mt19937 random(21);
  int compared = 0;
  for (int trial = 0; trial < 200; ++trial) {
    DesignRecord record = RandomLadder(random, 1 + trial % stagesLimit, AnalysableTypes());
    if (trial < 19) {
      record.Stages = 1;
      record.stage[1].ElementType = AnalysableTypes()[static_cast<std::size_t>(trial)];
    }
    const ExportText deck = VerifiedNetlist(record, SpiceDialect::LTspice, "2026-11-22");
    EXPECT_EQ(deck.failure, "");
    std::vector<NgspicePoint> points;
    for (const f64 frequency : {3e5, 1e6, 8e6}) points.push_back({frequency, VoltageOf(deck.text, "out", frequency)});
    SCOPED_TRACE(testing::Message() << "ladder " << trial << ":" << TypesOf(record));
    ExpectAgreement(record, points, 1e-5, compared);
  }
  EXPECT_GT(compared, 200);  // of 600
}

// ngspice for designs by hand: the distance from the analysis at every point is below 1E-05 dB.
void ExpectAgreement(const std::vector<DesignRecord>& records) {
  std::vector<NgspiceCircuit> circuits;
  for (const DesignRecord& record : records) {
    circuits.push_back({VerifiedNetlist(record, SpiceDialect::Ngspice, "2026-11-22").text, sweep, "out"});
  }
  const auto results = RunNgspice(circuits);
  int compared = 0;
  for (std::size_t i = 0; i < results.size(); ++i) {
    SCOPED_TRACE(circuits[i].deck);
    ExpectAgreement(records[i], results[i], 1e-5, compared);
  }
  EXPECT_GT(compared, 30 * static_cast<int>(records.size()));
}

// Ladders in which the written-out layout of other netlists goes wrong.
TEST(VerifiedNetlist, HasNoneOfTheKnownFaults) {
  std::vector<DesignRecord> records;
  records.push_back(LadderOf(std::vector<i16>(20, SeriesL)));
  for (int s = 1; s <= 20; ++s) records.back().stage[s].Lval.value = 1e-7F;
  records.push_back(LadderOf(
      {ShuntOpenStub, ShuntR, ShuntR, ShuntR, ShuntR, ShuntR, ShuntR, ShuntR, ShuntR, ShuntR, ShuntR}));  // names
  records.push_back(LadderOf({SeriesC, ShuntC}));
  records.back().stage[1].Cval.value = 0.5e-12F;
  records.back().stage[2].Cval.value = 0.2e-12F;
  records.push_back(LadderOf({ShuntC}));
  records.back().stage[1].Cval.value = 1e-7F;
  records.push_back(LadderOf({Transformer, CoupledInductors, CoupledInductors}));
  records.back().stage[1].XfmrVal.value = 3;
  records.push_back(LadderOf({ShuntRLC, SeriesL, ShuntRLC, ShuntRLC, SeriesRLC, ShuntPLC}));
  ExpectAgreement(records);
}

// Direct current through loops of what has no loss, and to nodes between capacitors alone.
TEST(VerifiedNetlist, IsSolvedWhereDirectCurrentHasNoAnswer) {
  std::vector<DesignRecord> records;
  records.push_back(LadderOf({ShuntShortStub, ShuntShortStub, CoupledInductors, ShuntShortStub, TransLine,
                              CoupledInductors, Transformer, ShuntShortStub}));
  records.push_back(LadderOf({SeriesC, SeriesC, SeriesOpenStub, SeriesOpenStub, SeriesC}));
  for (DesignRecord& record : records) {
    for (int s = 1; s <= record.Stages; ++s) record.stage[s].TLval.degrees = 33;
    for (int s = 1; s <= record.Stages; ++s) record.stage[s].XfmrVal.value = 2;
  }
  ExpectAgreement(records);
}

// Transforms make parts below zero, and they keep their sign. (The analysis takes the resistance of a tank in the line
// positive, also where its loss is not, and turns its reactance with it: no circuit does that.)
TEST(VerifiedNetlist, KeepsTheSignOfParts) {
  std::vector<DesignRecord> records;
  for (const i16 type : {SeriesL, ShuntL, SeriesC, ShuntC, SeriesSLC, ShuntSLC, ShuntPLC, SeriesR}) {
    DesignRecord& record = records.emplace_back(LadderOf({type}));
    record.stage[1].Lval.value *= -1;
    record.stage[1].Rval.value *= -0.2F;
    records.emplace_back(record).stage[1].Cval.value *= -1;
  }
  ExpectAgreement(records);
}

TEST(VerifiedNetlist, TakesAQuarterWaveAsTheAnalysisDoes) {
  std::vector<DesignRecord> records;
  for (const i16 type : {TransLine, SeriesShortStub, SeriesOpenStub, ShuntShortStub, ShuntOpenStub}) {
    records.push_back(LadderOf({SeriesL, type, ShuntC}));
  }
  ExpectAgreement(records);
}

// Every name is there once, and no inner node stands on cards of two stages.
TEST(VerifiedNetlist, HasUniqueNamesAndInnerNodes) {
  std::mt19937 random(22);
  for (int trial = 0; trial < 100; ++trial) {
    const DesignRecord record = RandomLadder(random, stagesLimit, AnalysableTypes());
    for (const SpiceDialect dialect : {SpiceDialect::Ngspice, SpiceDialect::LTspice}) {
      std::set<std::string> names;
      for (const std::string& line : LinesOf(VerifiedNetlist(record, dialect, "").text)) {
        if (line[0] == '*' || line[0] == '.') continue;
        std::istringstream words(line);
        std::string name, a, b;
        words >> name >> a >> b;
        for (char& c : name) c = static_cast<char>(std::tolower(c));
        EXPECT_TRUE(names.insert(name).second) << line;
        const std::string stage = name.substr(
            name.find_first_of("0123456789", 0) == std::string::npos ? name.size() : name.find_first_of("0123456789"));
        for (const std::string& node : {a, b}) {
          if (name[0] == 'k' || node == "0" || node == "in" || node == "out" || node == "src" || node[0] == 'n')
            continue;
          EXPECT_EQ(node.substr(node.find_first_of("0123456789")), stage) << line;
        }
      }
    }
  }
}

}  // namespace
}  // namespace quilm
