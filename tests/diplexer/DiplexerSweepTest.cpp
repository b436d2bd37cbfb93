#include "diplexer/DiplexerSweep.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "diplexer/DesignDiplexer.h"
#include "diplexer/DiplexerArms.h"
#include "support/NgspiceBatch.h"

namespace quilm {
namespace {

Diplexer Designed(i16 mode, i16 order) {
  Diplexer d;
  d.DipMode = mode;
  d.DipOrder = order;
  d.DipRipple = 0.1F;
  d.DipZ = 50;
  d.DipCrossover = 1e6F;
  d.DipFlower = 9.5e6F;
  d.DipFupper = 10.5e6F;
  DesignDiplexer(d);
  return d;
}

DesignRecord Swept(f32 start, f32 stop, f32 intervals) {
  DesignRecord record;
  record.SweepMode = 1;
  record.Fstart = start;
  record.Fstop = stop;
  record.NrIntervals = intervals;
  record.Qind[1] = record.Qcap[1] = 1e7F;
  return record;
}

std::unique_ptr<DiplexerResponses> Sweep(const Diplexer& d, const DesignRecord& record) {
  auto responses = std::make_unique<DiplexerResponses>();
  SweepDiplexer(d, record, *responses);
  return responses;
}

// The parts of an arm as ngspice reads them, with the losses that they have at one frequency: an inductor the series
// resistance that gives it Qind at Fq, a capacitor the parallel one that gives it Qcap.
class ArmDeck {
 public:
  ArmDeck(const DesignRecord& losses, f64 Fq, f64 frequency)
      : Qind_(losses.Qind[1]), Qcap_(losses.Qcap[1]), Fq_(Fq), w_(2 * M_PI * frequency) {
    text_.precision(17);
  }

  // From the port p to a termination of Z; the node of that is returned.
  std::string Add(const Diplexer& d, i16 arm) {
    std::string at = "p";
    for (int k = 1; k <= d.DipOrder; ++k) {
      const f32* L = ArmInductor(d, arm, k);
      const f32* C = ArmCapacitor(d, arm, k);
      const bool inLine = k % 2 == 1;
      const std::string to = inLine ? Node() : "0";
      // Bandpass arms have their pairs in series in the line and in parallel to common, bandstop arms the other way.
      const bool chained = inLine == (arm == bandpassArm);
      if (L != nullptr && C != nullptr && chained) {
        const std::string between = Node();
        Inductor(at, between, *L);
        Capacitor(between, to, *C);
      } else {
        if (L != nullptr) Inductor(at, to, *L);
        if (C != nullptr) Capacitor(at, to, *C);
      }
      if (inLine) at = to;
    }
    Line('R', at, "0", d.DipZ);
    return at;
  }

  void Line(char kind, const std::string& from, const std::string& to, f64 value) {
    text_ << kind << ++parts_ << ' ' << from << ' ' << to << ' ' << value << '\n';
  }
  void Source(const std::string& line) { text_ << line << '\n'; }

  NgspiceCircuit Circuit(const std::string& output) const {
    std::ostringstream sweep;
    sweep.precision(17);
    sweep << "lin 1 " << w_ / (2 * M_PI) << ' ' << w_ / (2 * M_PI);
    return {"arms\n" + text_.str() + ".end\n", sweep.str(), output};
  }

 private:
  std::string Node() { return std::to_string(++nodes_); }
  void Inductor(const std::string& from, const std::string& to, f64 L) {
    const std::string between = Node();
    Line('L', from, between, L);
    Line('R', between, to, 2 * M_PI * Fq_ * L / Qind_);
  }
  void Capacitor(const std::string& from, const std::string& to, f64 C) {
    Line('C', from, to, C);
    Line('R', from, to, Qcap_ / (w_ * C));
  }

  f64 Qind_, Qcap_, Fq_, w_;
  std::ostringstream text_;
  int parts_ = 0;
  int nodes_ = 0;
};

// Each arm behind a thousandth of its termination, and both at one port into which a current of 1 A flows: the port's
// voltage is the impedance of the pair.
std::vector<NgspiceCircuit> CircuitsAt(const Diplexer& d, const DesignRecord& record, f64 Fq, f64 frequency) {
  std::vector<NgspiceCircuit> circuits;
  for (const i16 arm : ArmsOf(d.DipMode)) {
    ArmDeck deck(record, Fq, frequency);
    deck.Source("V1 src 0 AC 1");
    deck.Line('R', "src", "p", 0.001 * d.DipZ);
    circuits.push_back(deck.Circuit(deck.Add(d, arm)));
    circuits.back() = deck.Circuit(circuits.back().output);
  }
  ArmDeck pair(record, Fq, frequency);
  pair.Source("I1 0 p AC 1");
  for (const i16 arm : ArmsOf(d.DipMode)) pair.Add(d, arm);
  circuits.push_back(pair.Circuit("p"));
  return circuits;
}

void ExpectAsNgspice(const Diplexer& d, const DesignRecord& record, f64 Fq) {
  const auto responses = Sweep(d, record);
  const auto frequencies = responses->Frequencies();
  ASSERT_EQ(frequencies.size(), static_cast<std::size_t>(record.NrIntervals) + 1);
  std::vector<NgspiceCircuit> circuits;
  for (const f32 f : frequencies) {
    for (NgspiceCircuit& circuit : CircuitsAt(d, record, Fq, f)) circuits.push_back(std::move(circuit));
  }
  const auto results = RunNgspice(circuits);
  // The formula's 6.02 dB are 0.0006 dB short of the match of a source.
  const auto trans = [](const std::vector<NgspicePoint>& points) {
    return 20 * std::log10(std::abs(points.at(0).voltage)) + 30 - 6.02 - 10 * std::log10(250.0);
  };
  f64 worstTrans = 0;
  f64 worstReflection = 0;
  for (std::size_t i = 0; i < frequencies.size(); ++i) {
    const int point = static_cast<int>(i);
    worstTrans = std::max(worstTrans, std::abs(responses->DipArm1Trans[point] - trans(results[3 * i])));
    worstTrans = std::max(worstTrans, std::abs(responses->DipArm2Trans[point] - trans(results[3 * i + 1])));
    const std::complex<f64> Z = results[3 * i + 2].at(0).voltage;
    const f64 R = d.DipZ;
    // As a ratio: the match of a pair of order 1 is as good as 32 bits make it.
    const f64 reflection = std::pow(10, f64{responses->DipReturn[point]} / 20);
    worstReflection = std::max(worstReflection, std::abs(reflection - std::abs((Z - R) / (Z + R))));
  }
  EXPECT_LT(worstTrans, 2e-4) << "mode " << d.DipMode << " order " << d.DipOrder;
  EXPECT_LT(worstReflection, 1e-6) << "mode " << d.DipMode << " order " << d.DipOrder;
}

TEST(DiplexerSweep, LowpassAndHighpassAreThoseOfNgspice) {
  DesignRecord record = Swept(0.2e6F, 3.2e6F, 15);
  for (const int order : {1, 3, 4, 10}) ExpectAsNgspice(Designed(1, static_cast<i16>(order)), record, 1e6);
  record.Width = 1.5e6F;
  record.Qind[1] = 80;
  record.Qcap[1] = 500;
  ExpectAsNgspice(Designed(1, 5), record, 1.5e6);
}

TEST(DiplexerSweep, BandpassAndBandstopAreThoseOfNgspice) {
  DesignRecord record = Swept(8.1e6F, 12.2e6F, 14);
  for (const int order : {1, 2, 5}) ExpectAsNgspice(Designed(2, static_cast<i16>(order)), record, 1e7);
  record.Fcenter = 9e6F;
  record.Width = 1e6F;
  record.Qind[1] = 200;
  record.Qcap[1] = 1000;
  ExpectAsNgspice(Designed(2, 3), record, 9e6);
}

// Without centre and width the Q of inductors is quoted at the geometric mean of the sweep.
TEST(DiplexerSweep, TheQOfInductorsIsQuotedWhereTheRecordSays) {
  DesignRecord record = Swept(0.5e6F, 2e6F, 6);
  record.Qind[1] = 30;
  ExpectAsNgspice(Designed(1, 3), record, 1e6);
}

TEST(DiplexerSweep, OneFrequencyHasTheFiguresOfTheSweep) {
  const DesignRecord record = Swept(0.4e6F, 2.4e6F, 10);
  const Diplexer d = Designed(1, 3);
  const auto responses = Sweep(d, record);
  for (const int i : {0, 3, 10}) {
    const DiplexerFigures at = DiplexerAt(d, record, responses->Frequencies()[static_cast<std::size_t>(i)]);
    EXPECT_NEAR(at.arm1Trans, responses->DipArm1Trans[i], 1e-5);
    EXPECT_NEAR(at.arm2Trans, responses->DipArm2Trans[i], 1e-5);
    EXPECT_NEAR(at.returnLoss, responses->DipReturn[i], 1e-4);
  }
}

// At the crossover both arms of order 3 and 0.1 dB lose 3.0561 dB of the voltage at the port.
TEST(DiplexerSweep, TheArmsCrossAtTheCrossover) {
  const DiplexerFigures at = DiplexerAt(Designed(1, 3), Swept(1e5F, 1e7F, 100), 1e6F);
  EXPECT_NEAR(at.arm1Trans, -3.0561, 6e-3);  // the small source loads the port a little
  EXPECT_NEAR(at.arm1Trans, at.arm2Trans, 1e-4);
}

TEST(DiplexerSweep, IsAlwaysInAbsoluteDecibels) {
  DesignRecord record = Swept(0.4e6F, 2.4e6F, 10);
  const Diplexer d = Designed(1, 4);  // even orders have a crest above 0 dB
  const auto absolute = Sweep(d, record);
  record.RelativeMode = 1;
  record.AbsoluteMode = 0;
  const auto relative = Sweep(d, record);
  for (int i = 0; i <= 10; ++i) EXPECT_EQ(relative->DipArm1Trans[i], absolute->DipArm1Trans[i]);
}

TEST(DiplexerSweep, ASecondSweepHasNothingOfTheFirst) {
  const DesignRecord record = Swept(0.4e6F, 2.4e6F, 10);
  auto again = Sweep(Designed(2, 7), Swept(8e6F, 12e6F, 100));
  SweepDiplexer(Designed(1, 3), record, *again);
  const auto fresh = Sweep(Designed(1, 3), record);
  ASSERT_EQ(again->Frequencies().size(), 11U);
  for (int i = 0; i <= 10; ++i) {
    EXPECT_EQ(again->DipArm1Trans[i], fresh->DipArm1Trans[i]);
    EXPECT_EQ(again->DipReturn[i], fresh->DipReturn[i]);
  }
}

TEST(DiplexerSweep, ASweepThatDoesNotExistIsAFault) {
  DiplexerResponses responses;
  DesignRecord record = Swept(0, 1e6F, 10);
  record.SweepMode = 2;
  EXPECT_THROW(SweepDiplexer(Designed(1, 3), record, responses), Fault);
}

// By hand: 50 beside 50 ohms are 25, a reflection of a third.
TEST(CombineDiplexer, TakesTheArmsInParallel) {
  EXPECT_NEAR(CombineDiplexer({50, 0}, {50, 0}, 50), -9.542425, 1e-5);
  // 1 / (1 / j100 + 1 / 50) = 40 + j20: |(-10 + j20) / (90 + j20)|^2 = 500 / 8500.
  EXPECT_NEAR(CombineDiplexer({100, 90}, {50, 0}, 50), 10 * std::log10(500.0 / 8500), 1e-6);
  EXPECT_NEAR(CombineDiplexer({100, -90}, {50, 0}, 50), 10 * std::log10(500.0 / 8500), 1e-6);
}

TEST(CombineDiplexer, IsHeldBetweenAMatchAndAFullReflection) {
  constexpr f64 full = -8.685889638e-7;  // 20 log 0.9999999
  EXPECT_NEAR(CombineDiplexer({100, 0}, {100, 0}, 50), -140, 1e-9);
  EXPECT_NEAR(CombineDiplexer({0, 0}, {80, 20}, 50), full, 1e-12);     // one arm shorted
  EXPECT_NEAR(CombineDiplexer({0, 0}, {0, 0}, 50), full, 1e-12);       // both
  EXPECT_NEAR(CombineDiplexer({70, 90}, {70, -90}, 50), full, 1e-12);  // in resonance
}

}  // namespace
}  // namespace quilm
