// The chapter on the topologies: a section for each, with the values that the formulas give.
#include <map>

#include "help/ChapterBench.h"
#include "synthesis/DesignSummary.h"

namespace quilm {
namespace {

constexpr std::string_view letters = "ABCDEFGHIJKL";

std::string IdOfTopology(char letter) { return IdOf(TopologyCaption(std::string(1, letter))); }

TEST_F(Chapter, OfTheTopologiesHasASectionForEachOfTheProgram) {
  const std::string page = PageNamed("topologies");
  for (const char letter : letters) {
    const std::string caption = TopologyCaption(std::string(1, letter));
    const std::string section = SectionOf(page, IdOfTopology(letter));
    EXPECT_NE(section.find(">" + caption + "</h2>"), std::string::npos) << caption;
    EXPECT_NE(section.find("pictures/" + std::string(1, letter) + ".svg"), std::string::npos) << caption;
    for (const char* row : {"Good for", "Values", "Traps", "Families"}) {
      EXPECT_NE(section.find("<th>" + std::string(row)), std::string::npos) << caption << ": " << row;
    }
  }
}

struct Part {
  f64 L = 0;
  f64 C = 0;
};

constexpr f64 R = 50;
const f64 w = 2 * Pi * 1e6;   // of the cutoff and of the width
const f64 w0 = 2 * Pi * 1e7;  // of the center

// Two arms that resonate at the center.
Part Resonating(Part part) {
  return part.L > 0 ? Part{part.L, 1 / (w0 * w0 * part.L)} : Part{1 / (w0 * w0 * part.C), part.C};
}

// The formulas of Matthaei, Young, Jones, Microwave Filters, chapter 8 (couplings) and section 4: ladders of three
// elements.
std::map<char, std::vector<Part>> PartsOfTheory() {
  const std::vector<f64> g = ChebyshevValues(3, 0.1);
  const f64 g1 = g[0];
  const f64 g2 = g[1];
  const f64 node = g1 / (w * R);                            // farads at each node
  const f64 mesh = g1 * R / w;                              // henries in each mesh
  const f64 coupling = g1 / (w0 * R * std::sqrt(g1 * g2));  // farads between nodes
  const f64 between = R * std::sqrt(g1 * g2) / (w0 * g1);   // henries between nodes
  const f64 toCommon = std::sqrt(g1 * g2) / (w0 * R * g1);  // farads between meshes
  const f64 tank = 1 / (w0 * w0 * node);
  const f64 series = 1 / (w0 * w0 * mesh);
  // The coupled meshes: capacitors in series.
  const auto less = [](f64 whole, f64 taken, int times) { return 1 / (1 / whole - times / taken); };
  return {
      {'A', {{.C = g1 / (w * R)}, {.L = g2 * R / w}}},
      {'B', {{.L = g1 * R / w}, {.C = g2 / (w * R)}}},
      {'I', {{.C = 1 / (w * R * g1)}, {.L = R / (w * g2)}}},
      {'J', {{.L = R / (w * g1)}, {.C = 1 / (w * R * g2)}}},
      {'E', {Resonating({.C = g1 / (w * R)}), Resonating({.L = g2 * R / w})}},
      {'F', {Resonating({.L = g1 * R / w}), Resonating({.C = g2 / (w * R)})}},
      {'K', {Resonating({.C = 1 / (w * R * g1)}), Resonating({.L = R / (w * g2)})}},
      {'L', {Resonating({.L = R / (w * g1)}), Resonating({.C = 1 / (w * R * g2)})}},
      {'C', {{tank, node - coupling}, {.C = coupling}, {tank, node - 2 * coupling}}},
      {'D', {{less(tank, between, 1), node}, {.L = between}, {less(tank, between, 2), node}}},
      {'G', {{mesh, less(series, toCommon, 1)}, {.C = toCommon}, {mesh, less(series, toCommon, 2)}}},
  };
}

TEST_F(Chapter, OfTheTopologiesQuotesTheValuesOfTheory) {
  const std::string page = PageNamed("topologies");
  for (const auto& [letter, parts] : PartsOfTheory()) {
    const std::string values = Plain(SectionOf(page, IdOfTopology(letter)));
    for (const Part& part : parts) {
      EXPECT_TRUE(part.L == 0 || Has(values, Plain(Inductor(part.L)))) << letter << " " << Inductor(part.L);
      EXPECT_TRUE(part.C == 0 || Has(values, Plain(Capacitor(part.C)))) << letter << " " << Capacitor(part.C);
    }
  }
}

TEST_F(Chapter, OfTheTopologiesHasTheValuesOfItsScript) {
  const auto theory = PartsOfTheory();
  const std::vector<json> records = OfKind(EventsOf("help/topologies.qsc"), "record");
  ASSERT_EQ(records.size(), 2 * letters.size());
  for (std::size_t i = 0; i < records.size(); i += 2) {
    const char letter = records[i]["record"]["Topology"].get<std::string>()[0];
    const json& stages = records[i + 1]["stages"];
    if (letter == 'H') {
      // Of order 3: its ends resonate at the center.
      const Part end{stages[0]["Lval"][0], stages[0]["Cval"][0]};
      EXPECT_NEAR(w0 * w0 * end.L * end.C, 1, 1e-5);
      const std::string section = Plain(SectionOf(PageNamed("topologies"), IdOfTopology(letter)));
      EXPECT_TRUE(Has(section, Plain(Inductor(end.L)))) << Inductor(end.L);
      EXPECT_TRUE(Has(section, Plain(Capacitor(end.C)))) << Capacitor(end.C);
      continue;
    }
    const std::vector<Part>& parts = theory.at(letter);
    for (std::size_t s = 0; s < parts.size(); ++s) {
      EXPECT_NEAR(stages[s]["Lval"][0].get<f64>(), parts[s].L, 1e-5 * parts[s].L) << letter << s;
      EXPECT_NEAR(stages[s]["Cval"][0].get<f64>(), parts[s].C, 1e-5 * parts[s].C) << letter << s;
    }
  }
}

// What its parts lose: Cohn's formula, and three lossy resonators at their resonance as a tee of resistors.
TEST_F(Chapter, OfTheTopologiesQuotesTheLossesOfTheory) {
  const std::string page = PageNamed("topologies");
  const std::vector<f64> g = ChebyshevValues(3, 0.1);
  const f64 Q = 1 / (1 / 200.0 + 1 / 2000.0);
  const f64 loss = 20 / std::log(10.0) / 2 * 10 / Q * (g[0] + g[1] + g[2]);
  EXPECT_TRUE(Has(Plain(page), "loses " + Fixed(loss, 2) + " db")) << loss;
  const auto depth = [&](f64 centerOverWidth) {
    const f64 line = g[0] * R / centerOverWidth * Q;
    const f64 common = R * centerOverWidth / g[1] / Q;
    const f64 a = 1 + line / common;
    return 20 * std::log10((2 * a * R + line * (1 + a) + R * R / common) / (2 * R));
  };
  EXPECT_TRUE(Has(Plain(page), Fixed(depth(100), 0) + " db at a hundredth")) << depth(100);
  EXPECT_GT(depth(10), 70);
}

// By the formulas of the analysis: a nodal bandpass of one hundredth.
TEST_F(Chapter, OfTheTopologiesQuotesWhatANarrowBandLoses) {
  const std::string page = Plain(PageNamed("topologies"));
  const std::vector<f64> g = ChebyshevValues(3, 0.1);
  const f64 node = 100 * g[0] / (w0 * R);
  const f64 coupling = g[0] / (w0 * R * std::sqrt(g[0] * g[1]));
  DesignRecord record;
  record.Rsource[1] = record.Rload[1] = record.Rstandard = R;
  record.Qind[1] = 200;
  record.Qcap[1] = 2000;
  for (const f64 taken : {1, 0, 2, 0, 1}) {
    Stage& stage = record.stage[++record.Stages];
    stage.ElementType = taken > 0 ? ShuntPLC : SeriesC;
    stage.Lval.value = taken > 0 ? static_cast<f32>(1 / (w0 * w0 * node)) : 0;
    stage.Cval.value = static_cast<f32>(taken > 0 ? node - taken * coupling : coupling);
  }
  plain::Point center;
  plain::AnalyzePoint(record, 1e7F, 1e7F, 0, 1e7F, center);
  EXPECT_TRUE(Has(page, "would lose " + Fixed(-center.TransDB, 1) + " db")) << center.TransDB;
  const f64 formula = 20 / std::log(10.0) / 2 * 100 * (1 / 200.0 + 1 / 2000.0) * (g[0] + g[1] + g[2]);
  EXPECT_TRUE(Has(page, "says " + Fixed(formula, 1))) << formula;
}

// The spread of a shunt-input bandpass, and the width from which the middle node of a nodal one is negative.
TEST_F(Chapter, OfTheTopologiesQuotesTheLimitsOfTheForms) {
  const std::vector<f64> g = ChebyshevValues(3, 0.1);
  const std::string page = Plain(PageNamed("topologies"));
  EXPECT_TRUE(Has(page, "here " + Fixed(g[0] * g[1] * 100, 0) + " to 1"));
  EXPECT_NEAR(std::sqrt(g[0] * g[1]) / 2, 0.5, 0.05) << "wider than about half its center";
}

// By how much the response at an edge lies below the peak, dB.
f64 DownAtEdge(const json& responses, f64 edge) {
  f64 peak = -1000;
  f64 nearest = 1e12;
  f64 there = 0;
  for (const json& point : responses["points"]) {
    const f64 trans = point["RespTrans"];
    const f64 distance = std::fabs(point["RespFreq"].get<f64>() - edge);
    peak = std::max(peak, trans);
    if (distance < nearest) there = trans;
    nearest = std::min(nearest, distance);
  }
  return peak - there;
}

// The book says where Gaussian to 12 keeps its 3 dB at the edge, and warns of all other topologies.
TEST_F(Chapter, OfTheTopologiesWarnsOfGaussianTo12WhereItFails) {
  const std::vector<std::pair<std::string, bool>> options = {
      {"optCapInLowpass", true},      {"optIndInLowpass", false},   {"optCapInHighpass", false},
      {"optIndInHighpass", false},    {"optNodCapBandpass", false}, {"optNodIndBandpass", false},
      {"optShuntInGeoSymm", true},    {"optSeriesInGeoSymm", true}, {"optMeshCapBandpass", true},
      {"optSeriesInBandstop", false}, {"optShuntInBandstop", false}};
  std::string script =
      "press cmdDesignNew\npress optGaussian12\npress optCapInLowpass\nspin UpDown1 up 2\ntype txtBandwidth 1M\n"
      "type txtInputTerm 50\npress cmdAnalysis\ntype txtQinductor 10M\ntype txtQcapacitor 10M\npress cmdDesign\n";
  for (const auto& [option, holds] : options) {
    script += "press " + option + "\n";
    if (option == "optNodCapBandpass") script += "type txtCenterFrequency 100M\n";
    script += "press cmdPlot\npress cmdFitSweep\nresponses\npress cmdDesign\n";
  }
  const Ended ended = Run("-", script);
  ASSERT_EQ(ended.status, 0) << ended.err;
  const std::vector<json> responses = OfKind(ended.Events(), "responses");
  ASSERT_EQ(responses.size(), options.size());
  for (std::size_t i = 0; i < options.size(); ++i) {
    const f64 edge = i < 4 ? 1e6 : 100.50125e6;
    EXPECT_EQ(std::fabs(DownAtEdge(responses[i], edge) - 3.01) < 0.1, options[i].second) << options[i].first;
  }
  const std::string trap = Plain(SectionOf(PageNamed("families"), "gaussian-to-12"));
  EXPECT_TRUE(Has(trap, "capacitor-input lowpass, shunt-input, series-input or mesh capacitor-coupled bandpass"));
}

// In 50 ohms the coupled forms of a family with unlike ends: the last value over the first.
TEST_F(Chapter, OfTheTopologiesQuotesTheLoadsOfUnlikeEnds) {
  const std::string page = Plain(PageNamed("topologies"));
  EXPECT_TRUE(Has(page, "wants " + Fixed(50 * 0.1743 / 2.2582, 2) + " ohms"));
  EXPECT_TRUE(Has(page, "gaussian one " + Fixed(50 * 2.2533 / 0.1312, 0) + " ohms"));
}

}  // namespace
}  // namespace quilm
