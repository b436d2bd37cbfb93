// The guided chapters: their figures by theory, and by what the program prints when their scripts are run.
#include "desk/StartUp.h"
#include "help/ChapterBench.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

plain::Point FirstLowpassAt(f32 frequency) {
  plain::Point point;
  plain::AnalyzePoint(FirstLowpass(), 1e6F, frequency, 0, frequency, point);
  return point;
}

std::string Drawn(const std::string& picture) { return Read(fs::path(QUILM_HELP) / "pictures" / (picture + ".svg")); }

TEST_F(Chapter, OfTheFirstDesignQuotesTheFiguresOfTheory) {
  const std::string page = Plain(PageNamed("first-design"));
  EXPECT_TRUE(Has(page, Fixed(-FirstLowpassAt(2e6F).TransDB, 2) + " db at 2 mhz"));
  EXPECT_TRUE(Has(page, Fixed(-FirstLowpassAt(1e6F).TransDB, 2) + " db down, not 0.1"));
  EXPECT_TRUE(Has(page, "without losses theory gives " + Fixed(ChebyshevLoss(5, 0.1, 2), 2) + " db"));
  EXPECT_TRUE(Has(page, "order 4 has " + Fixed(ChebyshevLoss(4, 0.1, 2), 0) + " db"));
  EXPECT_TRUE(Has(page, "order 3 has " + Fixed(ChebyshevLoss(3, 0.1, 2), 0) + " db"));
  EXPECT_TRUE(Has(page, "return loss of " + Fixed(-10 * std::log10(1 - std::pow(10, -0.01)), 1) + " db"));
  const f64 tanhQuarter = std::tanh(std::log(1 / std::tanh(0.1 * std::log(10.0) / 40)) / 4);
  EXPECT_TRUE(Has(page, "a load of " + Fixed(50 * tanhQuarter * tanhQuarter, 1) + " ohms"));
}

// The parts, as the chapter and the schematic write them.
TEST_F(Chapter, OfTheFirstDesignShowsItsParts) {
  const std::string page = Plain(PageNamed("first-design"));
  const std::vector<f64> g = ChebyshevValues(5, 0.1);
  const std::string ends = Fixed(1e12 * g[0] / (firstEdge * 50), 2);
  const std::string middle = Fixed(1e12 * g[2] / (firstEdge * 50), 2);
  const std::string coils = Fixed(1e6 * g[1] * 50 / firstEdge, 4);
  EXPECT_TRUE(Has(page, "c1 and c5 " + ends + " pf, c3 " + middle + " pf, l2 and l4 " + coils + " uh"));
  const std::string schematic = Drawn("first-schematic");
  for (const std::string& text : {ends + "pF", middle + "pF", coils + "uH"}) {
    EXPECT_NE(schematic.find(">" + text + "<"), std::string::npos) << text;
  }
  EXPECT_NE(Drawn("first-markers").find(Fixed(FirstLowpassAt(2e6F).TransDB, 3)), std::string::npos);
}

f64 NearestOfSeries(f64 value) {
  constexpr int series[] = {10, 11, 12, 13, 15, 16, 18, 20, 22, 24, 27, 30, 33,
                            36, 39, 43, 47, 51, 56, 62, 68, 75, 82, 91, 100};
  const f64 decade = std::pow(10, std::floor(std::log10(value)) - 1);
  f64 nearest = 0;
  for (const int figure : series) {
    if (std::fabs(figure * decade - value) < std::fabs(nearest - value)) nearest = figure * decade;
  }
  return nearest;
}

TEST_F(Chapter, OfTheSolderingIronQuotesTheFiguresOfTheory) {
  const std::string page = Plain(PageNamed("soldering-iron"));
  const std::vector<f64> g = ChebyshevValues(5, 0.1);
  for (const f64 value : {g[0], g[2]}) {
    const f64 picofarads = 1e12 * value / (firstEdge * 50);
    EXPECT_TRUE(Has(page, Fixed(picofarads, 2) + " pf become " + Fixed(NearestOfSeries(picofarads), 0) + " pf"));
  }
  const f64 microhenries = 1e6 * g[1] * 50 / firstEdge;
  EXPECT_TRUE(Has(page, Fixed(microhenries, 4) + " uh become " + Fixed(NearestOfSeries(microhenries), 0) + " uh"));
  const auto lost = [&](f64 Q) { return Fixed(20 * std::log10(1 + (g[1] + g[3]) / Q / 2), 2) + " db with"; };
  EXPECT_TRUE(Has(page, lost(200)));
  EXPECT_TRUE(Has(page, lost(50)));
  // Wheeler's formula, radius and length in inches.
  const f64 radius = 0.5 / 2.54;
  const f64 length = 1.5 / 2.54;
  const auto wound = [](f64 microhenriesOf, f64 r, f64 l) { return std::sqrt(microhenriesOf * (9 * r + 10 * l)) / r; };
  EXPECT_TRUE(Has(page, Fixed(wound(11, radius, length), 3) + " turns"));
  // A mesh of 200 ohms and 1 MHz, and the section from 200 to 50 ohms at 10.7 MHz.
  const f64 section = 1e6 * std::sqrt(50.0 * 150) / (2 * Pi * 10.7e6);
  EXPECT_TRUE(Has(page, Fixed(wound(200 / (2 * Pi), 0.25, 1), 3) + " turns for 31.8 uh"));
  EXPECT_TRUE(Has(page, Fixed(wound(section, 0.25, 1), 2) + " for the sections"));
  EXPECT_TRUE(Has(page, Fixed(section, 3) + " uh in the line"));
  const f64 turns = std::round(100 * std::sqrt(11 / 57.0));
  EXPECT_TRUE(Has(page, Fixed(turns, 0) + " turns give " + Fixed(57 * turns * turns * 1e-4, 2) + " uh"));
}

f64 Worst(const json& responses, const char* quantity, f64 upTo) {
  f64 worst = -1000;
  for (const json& point : responses["points"]) {
    if (point["RespFreq"] <= upTo) worst = std::max(worst, point[quantity].get<f64>());
  }
  return worst;
}

// The tolerances are tried at random: their figures are those of the chapter's own run.
TEST_F(Chapter, OfTheSolderingIronQuotesItsRun) {
  const std::string page = Plain(PageNamed("soldering-iron"));
  const std::vector<json> responses = OfKind(EventsOf("help/soldering-iron.qsc"), "responses");
  ASSERT_EQ(responses.size(), 2U);
  EXPECT_TRUE(Has(page, "of " + Fixed(-Worst(responses[1], "RespReturn", 0.9e6), 1) + " db becomes one of " +
                            Fixed(-Worst(responses[1], "MaxReturn", 0.9e6), 0) + " db"));
  EXPECT_TRUE(Has(page, "at the very edge of " + Fixed(-Worst(responses[1], "MaxReturn", 1e6), 0) + " db"));
  f64 edge = 0;
  for (const json& point : responses[0]["points"]) {
    if (point["RespFreq"] == 1e6) edge = point["RespTrans"];
  }
  EXPECT_TRUE(Has(page, "become " + Fixed(-edge, 2) + " db")) << edge;
  EXPECT_NE(Drawn("solder-air-coil").find(">46.683<"), std::string::npos);
  EXPECT_NE(Drawn("solder-toroid").find(">44<"), std::string::npos);
}

// The parts as the example leaves them; that they meet their limits is tested with the examples.
TEST_F(Chapter, OfTheBenchQuotesTheExample) {
  const std::vector<json> records = OfKind(EventsOf("examples/the-bench.qsc"), "record");
  ASSERT_EQ(records.size(), 3U);
  const json& stages = records[2]["stages"];
  const auto C = [&](std::size_t s) { return 1e9 * stages[s]["Cval"][0].get<f64>(); };
  const auto L = [&](std::size_t s) { return 1e6 * stages[s]["Lval"][0].get<f64>(); };
  const std::string page = Plain(PageNamed("at-the-bench"));
  EXPECT_TRUE(Has(page, Fixed(C(0), 1) + " nf, " + Fixed(L(1), 2) + " uh, " + Fixed(C(2), 1) + " nf, " +
                            Fixed(L(3), 3) + " uh with " + Fixed(1000 * C(3), 0) + " pf, " + Fixed(C(4), 1) + " nf"));
}

class ProgramsChapter : public PageBench {
 protected:
  ProgramsChapter() : PageBench(AllPages()) {
    StartProgram(session);
    MakeLowpass();
    Press("cmdSpice");
  }
};

TEST_F(ProgramsChapter, NamesEveryFileThatIsWritten) {
  const std::string page = Plain(WithoutContents(Read(fs::path(QUILM_HELP) / "programs.htm")));
  int writers = 0;
  for (const Control* control : Top().Controls()) {
    const std::string caption = std::regex_replace(control->caption, std::regex("^ +"), "");
    if (caption.rfind("Write ", 0) != 0) continue;
    ++writers;
    EXPECT_TRUE(Has(page, Plain(caption))) << caption;
  }
  EXPECT_GE(writers, 8);
}

}  // namespace
}  // namespace quilm
