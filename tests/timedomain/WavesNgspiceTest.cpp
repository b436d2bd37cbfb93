// Waves beside those that ngspice steps through time, in the steady state after some periods.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <sstream>

#include "core/DesignRecord.h"
#include "support/NgspiceBatch.h"
#include "support/NgspiceNetlist.h"
#include "synthesis/MakeNetwork.h"
#include "synthesis/modNormalized.h"
#include "timedomain/Waves.h"

namespace quilm {
namespace {

DesignRecord Design(i16 family, const char* topology, int order, f32 width, f32 center = 0) {
  DesignRecord record;
  record.Family = family;
  record.Topology = topology;
  record.Order = static_cast<f32>(order);
  record.Apass = 0.1F;
  record.Width = width;
  record.Fcenter = center;
  record.Rsource[1] = 50;
  EXPECT_TRUE(ComputePrototype(record, family).empty());
  MakeNetwork(record);
  // ngspice has no capacitor of constant Q in a transient analysis.
  record.Qind[1] = record.Qcap[1] = 1e7F;
  return record;
}

struct Trial {
  std::string name;
  DesignRecord record;
  WaveEntries signal;
};

constexpr int periods = 8;  // until the transient at the start has died out
constexpr int stepsPerPeriod = 20000;

f64 Period(const Trial& trial) { return 1 / static_cast<f64>(trial.signal.SquareFreq); }

// The squarewave that rises at 0, within a hundred thousandth of the period.
std::string Pulse(f64 low, f64 period) {
  std::ostringstream text;
  text.precision(15);
  const f64 edge = period * 1e-5;
  text << "PULSE(" << low << " 1 0 " << edge << ' ' << edge << ' ' << period / 2 - edge << ' ' << period << ')';
  return text.str();
}

NgspiceTransient CircuitOf(const Trial& trial) {
  const f64 period = Period(trial);
  const NgspiceNetlist netlist(trial.record, static_cast<f64>(trial.record.Width));
  std::ostringstream deck;
  deck.precision(15);
  for (const std::string& line : netlist.Lines()) {
    if (line != "V1 src 0 AC 1") {
      deck << line << '\n';
    } else if (trial.signal.WaveformType == squareWave) {
      deck << "V1 src 0 " << Pulse(-1, period) << '\n';
    } else {
      deck << "Vswitch switch 0 " << Pulse(0, period) << '\n';
      deck << "B1 src 0 V = V(switch) * sin(" << 2 * Pi * static_cast<f64>(trial.signal.CarrierFreq) << " * time)\n";
    }
  }
  std::ostringstream steps;
  steps.precision(15);
  const f64 step = period / stepsPerPeriod;
  steps << step << ' ' << periods * period << ' ' << (periods - 1) * period << ' ' << step;
  return {deck.str(), steps.str(), netlist.Output()};
}

// The voltage at a part of the last period, 0..1, between the two moments around it.
f64 VoltageAt(const std::vector<NgspiceMoment>& moments, f64 part, f64 period) {
  const f64 time = (periods - 1 + part) * period;
  auto after = std::lower_bound(moments.begin(), moments.end(), time,
                                [](const NgspiceMoment& moment, f64 at) { return moment.time < at; });
  if (after == moments.end()) --after;
  if (after == moments.begin()) return after->voltage;
  const auto before = after - 1;
  return before->voltage + (after->voltage - before->voltage) * (time - before->time) / (after->time - before->time);
}

struct Deviation {
  f64 mean = 0;
  f64 largest = 0;
};

// Relative to the swing from peak to peak. A wave counts 1 for the voltage at which all available power reaches the
// load, half the source's between equal terminations; and the sum of a burst is Pi / 2 times the carrier that is
// switched.
Deviation Compare(const Trial& trial, const std::vector<NgspiceMoment>& moments) {
  const Waves waves = ComputeWaves(trial.record, trial.signal);
  const f64 available = std::sqrt(static_cast<f64>(trial.record.Rload[1] / trial.record.Rsource[1])) / 2;
  const f64 scale = (trial.signal.WaveformType == squareWave ? 1 : Pi / 2) / available;
  Deviation deviation;
  int count = 0;
  for (std::size_t i = 0; i < waves.degrees.size(); ++i) {
    if (waves.degrees[i] < 0) continue;
    const f64 measured = scale * VoltageAt(moments, static_cast<f64>(waves.degrees[i]) / 360, Period(trial));
    const f64 peak = static_cast<f64>(waves.PeakNormal);
    const f64 off = std::fabs(static_cast<f64>(waves.WaveNormal[i]) * peak - measured) / (2 * peak);
    deviation.mean += off;
    deviation.largest = std::max(deviation.largest, off);
    ++count;
  }
  deviation.mean /= count;
  return deviation;
}

void ExpectAgreement(const std::vector<Trial>& trials, f64 mean, f64 largest) {
  std::vector<NgspiceTransient> circuits;
  for (const Trial& trial : trials) circuits.push_back(CircuitOf(trial));
  std::string log;
  const auto results = RunNgspiceTransients(circuits, &log);
  ASSERT_EQ(results.size(), trials.size());
  for (std::size_t i = 0; i < trials.size(); ++i) {
    ASSERT_GT(results[i].size(), static_cast<std::size_t>(stepsPerPeriod) / 2) << trials[i].name << '\n' << log;
    const Deviation deviation = Compare(trials[i], results[i]);
    EXPECT_LT(deviation.mean, mean) << trials[i].name;
    EXPECT_LT(deviation.largest, largest) << trials[i].name;
    testing::Test::RecordProperty(trials[i].name + "_mean_1e6", static_cast<int>(deviation.mean * 1e6));
    testing::Test::RecordProperty(trials[i].name + "_largest_1e6", static_cast<int>(deviation.largest * 1e6));
  }
}

WaveEntries Square(f32 frequency) { return {.WaveformType = squareWave, .SquareFreq = frequency}; }

WaveEntries Burst(f32 frequency, f32 carrier) {
  return {.WaveformType = burstWave, .SquareFreq = frequency, .CarrierFreq = carrier};
}

// Lowpasses whose higher lines die out well before the last one.
TEST(WavesInNgspice, TheSquarewaveOfALowpassIsTheSteppedOne) {
  ExpectAgreement({{"Butterworth5", Design(familyButterworth, "A", 5, 1e6F), Square(200e3F)},
                   {"Chebyshev7", Design(familyChebyshev, "B", 7, 1e6F), Square(130e3F)},
                   {"Bessel4", Design(familyBessel, "A", 4, 1e6F), Square(250e3F)},
                   {"Butterworth3", Design(familyButterworth, "B", 3, 1e6F), Square(500e3F)}},
                  5e-4, 3e-3);
}

// Narrow ones, whose lines die out before the taper tells.
TEST(WavesInNgspice, TheBurstOfABandpassIsTheSteppedOne) {
  ExpectAgreement({{"Butterworth3", Design(familyButterworth, "E", 3, 400e3F, 2e6F), Burst(50e3F, 2e6F)},
                   {"Chebyshev4", Design(familyChebyshev, "F", 4, 600e3F, 2e6F), Burst(100e3F, 1.9e6F)}},
                  3e-3, 1e-2);
}

}  // namespace
}  // namespace quilm
