#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <functional>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

using Complex = std::complex<f64>;

constexpr f64 L = 10e-6F;
constexpr f64 C = 2.2e-9F;
constexpr f64 R = 33;
constexpr f64 Qind = 150;
constexpr f64 Qcap = 900;
constexpr f64 Fq = 1e6;
constexpr Complex j(0, 1);

DesignRecord OneStage(i16 type) {
  DesignRecord record;
  record.Stages = 1;
  record.stage[1].ElementType = type;
  record.stage[1].Lval.value = static_cast<f32>(L);
  record.stage[1].Cval.value = static_cast<f32>(C);
  record.stage[1].Rval.value = static_cast<f32>(R);
  record.stage[1].TLval = {60, 1e6F, 75, 0, 0};
  record.stage[1].XfmrVal.value = 2;
  record.stage[1].CoupledVal = {10e-6F, 40e-6F, 0.5F, 0, 0, 0};
  record.Rsource[1] = 50;
  record.Rload[1] = 100;
  record.Rstandard = 50;
  record.Qind[1] = static_cast<f32>(Qind);
  record.Qcap[1] = static_cast<f32>(Qcap);
  record.Width = static_cast<f32>(Fq);
  return record;
}

FrequencyResult Analyze(const DesignRecord& record, f64 frequency) {
  FrequencyResult result;
  AnalyzeFrequency(record, Compile(record, QualityFrequency(record, record)), 0, 0, static_cast<f32>(frequency),
                   result);
  return result;
}

// The chain matrix of one stage.
struct Chain {
  Complex a = 1, b = 0, c = 0, d = 1;
};

Chain Series(Complex z) { return {1, z, 0, 1}; }
Chain Shunt(Complex y) { return {1, 0, y, 1}; }

// An inductor has the series resistance that gives it its Q at Fq; a capacitor has a parallel resistance of constant Q.
Complex Inductor(f64 w) { return 2 * Pi * Fq * L / Qind + j * w * L; }
Complex Capacitance(f64 w) { return w * C / Qcap + j * w * C; }
constexpr f64 leak = 1e-11;

struct Row {
  i16 type;
  std::function<Chain(f64 w)> chain;
};

f64 Turn(f64 w) { return 60 * w / (1e6 * 360); }  // of the 60 degree line, radians

const Row rows[] = {
    {SeriesL, [](f64 w) { return Series(Inductor(w)); }},
    {ShuntL, [](f64 w) { return Shunt(1.0 / Inductor(w)); }},
    {SeriesC, [](f64 w) { return Series(1.0 / Capacitance(w)); }},
    {ShuntC, [](f64 w) { return Shunt(Capacitance(w)); }},
    {SeriesSLC, [](f64 w) { return Series(Inductor(w) + 1.0 / Capacitance(w)); }},
    {ShuntSLC, [](f64 w) { return Shunt(1.0 / (Inductor(w) + 1.0 / Capacitance(w))); }},
    {SeriesPLC, [](f64 w) { return Series(1.0 / (1.0 / Inductor(w) + Capacitance(w) + leak)); }},
    {ShuntPLC, [](f64 w) { return Shunt(1.0 / Inductor(w) + Capacitance(w) + leak); }},
    {SeriesR, [](f64) { return Series(R); }},
    {ShuntR, [](f64) { return Shunt(static_cast<f64>(static_cast<f32>(1 / R))); }},
    {TransLine,
     [](f64 w) {
       return Chain{std::cos(Turn(w)), j * 75.0 * std::sin(Turn(w)), j * std::sin(Turn(w)) / 75.0, std::cos(Turn(w))};
     }},
    {SeriesShortStub, [](f64 w) { return Series(j * 75.0 * std::tan(Turn(w))); }},
    {SeriesOpenStub, [](f64 w) { return Series(-j * 75.0 / std::tan(Turn(w))); }},
    {ShuntShortStub, [](f64 w) { return Shunt(-j / (75.0 * std::tan(Turn(w)))); }},
    {ShuntOpenStub, [](f64 w) { return Shunt(j * std::tan(Turn(w)) / 75.0); }},
    {Transformer,
     [](f64) {
       return Chain{2, 0, 0, 0.5};
     }},
    {SeriesReactance, [](f64) { return Chain{}; }},
    {ShuntReactance, [](f64) { return Chain{}; }},
    // 10 uH and 40 uH with k = 0.5: M = 10 uH.
    {CoupledInductors,
     [](f64 w) {
       const f64 l1 = 10e-6F;
       const f64 l2 = 40e-6F;
       const f64 m = 0.5 * std::sqrt(l1 * l2);
       return Chain{l1 / m, j * w * (l1 * l2 - m * m) / m, -j / (w * m), l2 / m};
     }},
    {ShuntRLC, [](f64 w) { return Shunt(1.0 / (R + Inductor(w) + 1.0 / Capacitance(w))); }},
    {SeriesRLC, [](f64 w) { return Series(1.0 / (1 / R + 1.0 / Inductor(w) + Capacitance(w) + leak)); }},
};

f64 Degrees(Complex x) { return std::arg(x) * 180 / Pi; }

// The formulas of circuit theory in complex form, at frequencies below, near and above the resonance of 1.073 MHz.
TEST(Element, HasTheResponseOfItsChainMatrix) {
  for (const Row& row : rows) {
    for (const f64 frequency : {1e5, 9e5, 1.073e6, 4e6}) {
      const DesignRecord record = OneStage(row.type);
      const FrequencyResult result = Analyze(record, frequency);
      const Chain m = row.chain(2 * Pi * static_cast<f64>(static_cast<f32>(frequency)));
      const Complex H = (m.b + 100.0 * m.a + 5000.0 * m.c + 50.0 * m.d) / 100.0;
      const Complex Z = (100.0 * m.a + m.b) / (100.0 * m.c + m.d);
      const f64 rho = std::abs((Z - 50.0) / (Z + 50.0));
      SCOPED_TRACE("type " + std::to_string(row.type) + " at " + std::to_string(frequency));
      EXPECT_NEAR(result.TransDB, -10 * std::log10(std::norm(H) * 100 / 200), 1e-9);
      EXPECT_NEAR(std::remainder(result.Angle + Degrees(H), 360), 0, 1e-8);
      EXPECT_NEAR(result.ZinMag, std::abs(Z), 1e-9 * std::abs(Z));
      EXPECT_NEAR(std::remainder(result.ZinAngleRaw + Degrees(Z), 360), 0, 1e-8);
      EXPECT_NEAR(result.ReturnDB, 20 * std::log10(rho), 1e-8);
      EXPECT_NEAR(result.VSWR, (1 + rho) / (1 - rho), 1e-8 * result.VSWR);
    }
  }
}

TEST(Element, ACapacitorOfZeroIsAReactanceOf1E11Ohms) {
  DesignRecord record = OneStage(SeriesC);
  record.stage[1].Cval.value = 0;
  // 150 ohms of terminations against 1e11 ohms: 20 log10(1e11 / (2 sqrt(50 * 100))) dB.
  EXPECT_NEAR(Analyze(record, 1e6).TransDB, -20 * std::log10(1e11 / (2 * std::sqrt(5000.0))), 1e-4);
  record = OneStage(ShuntC);
  record.stage[1].Cval.value = 0;
  EXPECT_NEAR(Analyze(record, 1e6).TransDB, 10 * std::log10(4.0 * 50 * 100 / (150 * 150)), 1e-6);
}

TEST(Element, AQuarterWaveLineIsTakenAs90Point0001Degrees) {
  DesignRecord record = OneStage(ShuntOpenStub);
  record.stage[1].TLval = {90, 1e6F, 50, 0, 0};
  const f64 t = static_cast<f64>(90.0001F) * Pi / 180;
  const Complex y = j * std::tan(t) / 50.0;
  EXPECT_NEAR(Analyze(record, 1e6).TransDB, -20 * std::log10(std::abs(1.5 + 50.0 * y) / std::sqrt(2.0)), 1e-6);
}

// A resonant shunt branch without loss but that of its capacitor keeps a finite admittance.
TEST(Element, AnExactlyResonantTankStaysFinite) {
  DesignRecord record = OneStage(ShuntPLC);
  record.stage[1].Lval.value = 1;
  record.stage[1].Cval.value = 1;
  record.Qind[1] = 1e7F;
  record.Qcap[1] = 1e7F;
  const f64 resonance = 1 / (2 * Pi);
  const FrequencyResult result = Analyze(record, resonance);
  EXPECT_TRUE(std::isfinite(result.TransDB));
  EXPECT_GT(result.TransDB, -100);
}

TEST(Element, NegativeInductanceTurnsTheReactanceOfASeriesTank) {
  DesignRecord record = OneStage(SeriesPLC);
  record.stage[1].Cval.value = 0;
  const f64 positive = Analyze(record, 1e6).ZinAngleRaw;
  record.stage[1].Lval.value = -record.stage[1].Lval.value;
  const f64 negative = Analyze(record, 1e6).ZinAngleRaw;
  // Both parts of the inductor's impedance change sign; the resistance is taken positive, the reactance goes with it.
  EXPECT_NEAR(positive, negative, 1e-6);
}

}  // namespace
}  // namespace quilm
