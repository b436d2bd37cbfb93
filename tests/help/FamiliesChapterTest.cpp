// The chapter on the families: a section for each, and its figures by the theory of each family.
#include <array>
#include <complex>
#include <functional>

#include "core/Identity.h"
#include "desk/FamilyRules.h"
#include "help/ChapterBench.h"
#include "support/ChainMatrix.h"

namespace quilm {
namespace {

using Complex = std::complex<f64>;

TEST_F(Chapter, OfTheFamiliesHasASectionForEachOfTheProgram) {
  const std::string page = PageNamed("families");
  for (const FamilyRule& rule : FamilyRules()) {
    const std::string name = FamilyName(rule.code);
    const std::string section = SectionOf(page, IdOf(name));
    EXPECT_NE(section.find(">" + name + "</h2>"), std::string::npos) << name;
    if (rule.code == familyManual) continue;
    EXPECT_NE(section.find("pictures/family-" + IdOf(name) + ".svg"), std::string::npos) << name;
    for (const char* row : {"Good for", "You enter", "Response", "Another one", "Source"}) {
      EXPECT_NE(section.find("<th>" + std::string(row)), std::string::npos) << name << ": " << row;
    }
  }
}

// The gain between source and load, 1 where nothing is lost, at a multiple of the edge.
using Gain = std::function<Complex(f64 x)>;

// A prototype in 1 ohm: shunt g at odd places, h in parallel with g in the line at even ones; without h plain g.
Gain OfPrototype(std::vector<f64> g, std::vector<f64> h = {}) {
  h.resize(g.size());
  return [g, h](f64 x) {
    ChainMatrix ladder;
    for (std::size_t j = 0; j < g.size(); ++j) {
      const f64 inductance = h[j] > 0 ? h[j] : g[j];
      const f64 across = h[j] > 0 ? g[j] : 0;
      if (j % 2 == 0) {
        ladder.Shunt({0, x * g[j]});
      } else {
        ladder.Series(1.0 / Complex(0, x * across - 1 / (x * inductance)));
      }
    }
    return 2.0 * ladder.Gain(1, 1);
  };
}

// coefficients of 1, s, s^2, ...
Complex Polynomial(const std::vector<f64>& coefficients, Complex s) {
  Complex sum = 0;
  for (auto at = coefficients.rbegin(); at != coefficients.rend(); ++at) sum = sum * s + *at;
  return sum;
}

f64 Loss(const Gain& gain, f64 x) { return -20 * std::log10(std::abs(gain(x))); }

// In seconds, for an edge of 1 MHz: the slope of the phase.
f64 Delay(const Gain& gain, f64 x) {
  constexpr f64 step = 1e-5;
  return -std::arg(gain(x + step) / gain(x - step)) / (2 * step) / firstEdge;
}

// Where `value` of a rising function lies.
f64 Solve(const std::function<f64(f64)>& rising, f64 value, f64 from, f64 to) {
  for (int i = 0; i < 200; ++i) {
    const f64 middle = (from + to) / 2;
    (rising(middle) < value ? from : to) = middle;
  }
  return from;
}

const f64 threeDecibels = 10 * std::log10(2.0);

// The reverse Bessel polynomial of order 5, scaled to 3.01 dB at 1 (W. E. Thomson, 1949).
Gain Bessel() {
  const auto of = [](f64 x) { return 945.0 / Polynomial({945, 945, 420, 105, 15, 1}, {0, x}); };
  const f64 edge = Solve([&](f64 x) { return Loss(of, x); }, threeDecibels, 0, 10);
  return [of, edge](f64 x) { return of(edge * x); };
}

// The loss of the Gaussian polynomial of order 5, dB: the exponential's series in x^2, cut behind x^10.
f64 GaussianLoss(f64 x) {
  const auto power = [](f64 y) {
    f64 sum = 1;
    f64 term = 1;
    for (int k = 1; k <= 5; ++k) sum += term *= y / k;
    return sum;
  };
  const f64 scale = Solve(power, 2, 0, 2);
  return 10 * std::log10(power(scale * x * x));
}

f64 ArithmeticGeometricMean(f64 a, f64 b) {
  for (int i = 0; i < 40; ++i) {
    const f64 mean = (a + b) / 2;
    b = std::sqrt(a * b);
    a = mean;
  }
  return a;
}

// K'(k) / K(k).
f64 PeriodRatio(f64 k) { return ArithmeticGeometricMean(1, std::sqrt(1 - k * k)) / ArithmeticGeometricMean(1, k); }

// The ripple of an elliptic filter from its degree equation (R. W. Daniels, Approximation Methods for Electronic Filter
// Design, 1974, chapter 5): order, stopband edge over passband edge, depth in dB.
f64 EllipticRipple(int order, f64 edge, f64 depth) {
  const f64 wanted = order * PeriodRatio(1 / edge);
  const f64 k1 = Solve([](f64 k) { return -PeriodRatio(k); }, -wanted, 1e-12, 0.999);
  const f64 epsilon = k1 * std::sqrt(std::pow(10, depth / 10) - 1);
  return 10 * std::log10(1 + epsilon * epsilon);
}

struct Row {
  const char* name;
  Gain gain;
};

// The values of tables are those of A. I. Zverev, Handbook of Filter Synthesis, 1967. The M-derived prototype has half
// sections of m = 0.6 about a constant-K section: m in the line with (1 - m^2) / m across it, then m + 1 to common,
// then 2.
std::vector<Row> RowsOfTheory() {
  std::vector<f64> butterworth;
  for (int j = 1; j <= 5; ++j) butterworth.push_back(2 * std::sin((2 * j - 1) * Pi / 10));
  return {{"butterworth", OfPrototype(butterworth)},
          {"chebyshev", OfPrototype(ChebyshevValues(5, 0.1))},
          {"bessel", Bessel()},
          {"gaussian", OfPrototype({0.1312, 0.3896, 0.6485, 0.9782, 2.2533})},
          {"gaussian-to-12", OfPrototype({2.3745, 0.966, 0.8112, 0.5837, 0.2909})},
          {"constant-k", OfPrototype({1, 2, 2, 2, 1})},
          {"m-derived", OfPrototype({0, 0.64 / 0.6, 1.6, 0, 1.6, 0.64 / 0.6, 0}, {0, 0.6, 0, 2, 0, 0.6, 0})}};
}

// The four figures of a family in the table, without their units.
std::array<std::string, 4> FiguresOf(const std::string& page, const std::string& id) {
  std::smatch found;
  const std::regex row("<tr><td><a href=\"#" + id +
                       "\">[^\n]*<td>([\\d.]+) dB<td>([\\d.]+) dB<td>([\\d.]+) us<td>([\\d.]+) us");
  if (!std::regex_search(page, found, row)) return {};
  return {found[1], found[2], found[3], found[4]};
}

std::array<f64, 4> FiguresOf(const Gain& gain) {
  return {Loss(gain, 1), Loss(gain, 2), 1e6 * Delay(gain, 0.1), 1e6 * Delay(gain, 1)};
}

// Half a unit of the last digit, and what the four digits of the tables leave.
constexpr std::array<f64, 4> tolerances = {0.0051, 0.051, 0.0055, 0.0055};

// `lateness` is by how much the delay at the edge may be off for want of points.
void ExpectFigures(const std::array<std::string, 4>& quoted, const std::array<f64, 4>& expected,
                   const std::string& name, f64 lateness = 0) {
  for (std::size_t i = 0; i < 4; ++i) {
    ASSERT_FALSE(quoted[i].empty()) << name;
    EXPECT_NEAR(std::stod(quoted[i]), expected[i], tolerances[i] + (i == 3 ? lateness * expected[i] : 0))
        << name << ", figure " << i + 1;
  }
}

TEST_F(Chapter, OfTheFamiliesQuotesTheFiguresOfTheory) {
  const std::string page = PageNamed("families");
  for (const Row& row : RowsOfTheory()) ExpectFigures(FiguresOf(page, row.name), FiguresOf(row.gain), row.name);
  // The polynomial behind the Gaussian table, and the name of the family that leaves it at 12 dB.
  EXPECT_NEAR(std::stod(FiguresOf(page, "gaussian")[1]), GaussianLoss(2), 0.06);
  EXPECT_NEAR(std::stod(FiguresOf(page, "gaussian-to-12")[1]), 12, 0.11);
}

// The texts of the pictures' marker rows: the row of a frequency is its text, then transmission, angle, return and
// delay.
std::array<std::string, 4> FiguresDrawn(const std::string& id) {
  std::vector<std::string> texts;
  for (const std::string& text :
       AllOf(Read(fs::path(QUILM_HELP) / "pictures" / ("family-" + id + ".svg")), "<text[^>]*>([^<]*)<")) {
    texts.push_back(std::regex_replace(text, std::regex(" "), ""));
  }
  const auto cell = [&](const std::string& frequency, std::ptrdiff_t column) {
    // The axis bears such a text, too: that of the row comes last.
    const auto at = std::find(texts.rbegin(), texts.rend(), frequency);
    return at == texts.rend() || at - texts.rbegin() < column ? std::string() : *(at - column);
  };
  return {cell("1M", 1), cell("2M", 1), cell("100k", 4), cell("1M", 4)};
}

f64 Microseconds(const std::string& text) { return std::stod(text) * (text.back() == 'u' ? 1 : 1e-3); }

TEST_F(Chapter, OfTheFamiliesShowsWhatItQuotes) {
  const std::string page = PageNamed("families");
  for (const FamilyRule& rule : FamilyRules()) {
    if (rule.code == familyManual) continue;
    const std::string id = IdOf(FamilyName(rule.code));
    const auto drawn = FiguresDrawn(id);
    ASSERT_FALSE(drawn[0].empty() || drawn[3].empty()) << id;
    ExpectFigures(FiguresOf(page, id),
                  {-std::stod(drawn[0]), -std::stod(drawn[1]), Microseconds(drawn[2]), Microseconds(drawn[3])}, id,
                  0.01);
  }
}

// Its prototype is computed, and compared with other programs elsewhere; here it is the one whose figures stand in the
// book.
TEST_F(Chapter, OfTheFamiliesQuotesTheCauerFilterOfItsScript) {
  const std::string page = PageNamed("families");
  const f64 ripple = EllipticRipple(5, 1.5, 43);
  for (const json& event : OfKind(EventsOf("help/families.qsc"), "record")) {
    const json& record = event["record"];
    if (record["Family"] != familyCauer) continue;
    EXPECT_NEAR(record["Apass"].get<f64>(), ripple, 1e-4);
    const Gain gain = OfPrototype(record["Gj"], record["Hj"]);
    ExpectFigures(FiguresOf(page, "cauer"), FiguresOf(gain), "cauer");
    EXPECT_GE(Loss(gain, 1.5), 42.99);
    return;
  }
  FAIL() << "no Cauer filter";
}

TEST_F(Chapter, OfTheFamiliesQuotesItsOtherFigures) {
  const std::string page = PageNamed("families");
  const std::string chebyshev = Plain(SectionOf(page, "chebyshev"));
  for (const auto& [ripple, text] : {std::pair{0.01, ".01 db"}, {0.1, ".1 db"}, {1.0, "1 db"}}) {
    const f64 returned = -10 * std::log10(1 - std::pow(10, -ripple / 10));
    EXPECT_TRUE(Has(chebyshev, std::string(text) + " is " + Fixed(returned, 1) + " db")) << text << " " << returned;
  }
  const f64 tanhQuarter = std::tanh(std::log(1 / std::tanh(0.1 * std::log(10.0) / 40)) / 4);
  EXPECT_TRUE(Has(chebyshev, Fixed(tanhQuarter * tanhQuarter, 3))) << "the load of an even order";

  const std::string transitional = Plain(SectionOf(page, "gaussian-to-12"));
  const Gain five = OfPrototype({2.3745, 0.966, 0.8112, 0.5837, 0.2909});
  EXPECT_TRUE(Has(transitional, Fixed(Loss(five, 3), 1) + " db at three times")) << Loss(five, 3);
  EXPECT_TRUE(Has(transitional, "where the gaussian has " + Fixed(GaussianLoss(3), 1) + " db")) << GaussianLoss(3);
  const Gain seven = OfPrototype({2.3829, 0.0649, 0.9241, 0.7753, 0.8091, 0.6267, 0.3207});
  EXPECT_TRUE(Has(transitional, "down by " + Fixed(Loss(seven, 1), 1) + " db at the edge")) << Loss(seven, 1);
  EXPECT_TRUE(Has(Plain(SectionOf(page, "constant-k")), Fixed(Loss(OfPrototype({1, 2, 1}), 1), 2) + " db at order 3"));
  EXPECT_NEAR(std::abs(RowsOfTheory().back().gain(1.25 + 1e-9)), 0, 1e-6) << "the zero at 1.25";
}

}  // namespace
}  // namespace quilm
