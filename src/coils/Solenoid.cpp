#include "coils/Solenoid.h"

#include <cmath>
#include <string>

#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

constexpr f64 microhenries = 1e6;  // in a henry

struct Wide {
  f64 L;  // henries
  f64 D;
  f64 l;
  f64 N;
};

Wide Widened(const Coil& coil) { return {coil.inductance, coil.diameter, coil.length, coil.turns}; }

void RequireInductance(f32 inductance) {
  if (inductance > mostCoilInductance) {
    throw CoilRefused("Inductance value is " + FormatInductance(inductance) +
                      "\r\nThis routine accommodates values up to 100 millihenries");
  }
  if (!(inductance > 0)) throw CoilRefused("This routine requires a positive value of inductance");
}

void ComputeTurns(Coil& coil, NumericFaultScope& scope) {
  const auto [L, D, l, N] = Widened(coil);
  coil.turns = scope.Store(std::sqrt((L * 1.8e7 * D + L * 4e7 * l) / (D * D)));
  if (coil.turns > mostCoilTurns) {
    throw CoilRefused("Turns = " + TurnsText(coil.turns) + "\r\nThis routine accommodate 1000 turns maximum");
  }
}

// The positive root of D^2 N^2 - 18 L D - 40 L l = 0, L in microhenries.
void ComputeDiameter(Coil& coil, NumericFaultScope& scope) {
  const auto [L, D, l, N] = Widened(coil);
  const f64 u = L * microhenries;
  coil.diameter = scope.Store((9 * u + std::sqrt(81 * u * u + 40 * N * N * l * u)) / (N * N));
}

void ComputeLength(Coil& coil, NumericFaultScope& scope) {
  const auto [L, D, l, N] = Widened(coil);
  coil.length = scope.Store((D * D * N * N - L * 1.8e7 * D) / (L * 4e7));
  if (coil.length > 0) return;
  throw CoilRefused("For that diameter and turn specification,\r\nthe length is negative.");
}

// The thickest wire that the pitch of a winding takes goes by a rule of its own, which is not that of WireGauge: gauge
// 0 is 0.327 in, and 20 gauges are a ratio of 10.2. From gauge 0 to 40 the two agree within 1 %. Data sheets of coils
// that were wound before carry gauges by this rule, so it is kept.
constexpr f64 gaugeZeroInches = 0.327;
constexpr f64 ratioOfTwenty = 10.2;
constexpr f32 leastCriticalGauge = -100;

void AddCriticalWire(Winding& winding, NumericFaultScope& scope) {
  const f64 pitches = static_cast<f64>(winding.TurnsPerInch);
  winding.CriticalGauge =
      scope.Store(std::floor(20 * (std::log(pitches) + std::log(gaugeZeroInches)) / std::log(ratioOfTwenty) + 1));
  if (!(winding.CriticalGauge > leastCriticalGauge)) return;
  winding.CriticalDiameter =
      scope.Store(gaugeZeroInches / std::pow(ratioOfTwenty, static_cast<f64>(winding.CriticalGauge) / 20));
  // Copper of 8.1E-6 ohm feet per square inch of cross-section, which is Pi / 4 d^2.
  const f64 d = winding.CriticalDiameter;
  winding.DcResistance = scope.Store(8.1e-6 * static_cast<f64>(winding.WireFeet) / (std::atan(1.0) * d * d));
}

}  // namespace

std::string TurnsText(f32 turns) {
  constexpr f32 firstOfPlainDigits = 1000;
  if (turns >= firstOfPlainDigits) return ShortText(RoundedTo(turns, 1), LeadingZero::Keep);
  return Trimmed(FormatValue(turns));
}

Coil CompleteCoil(Coil asked) {
  RequireInductance(asked.inductance);
  NumericFaultScope scope;
  if (asked.diameter > 0 && asked.length > 0) {
    ComputeTurns(asked, scope);
  } else if (asked.length > 0 && asked.turns > 0) {
    ComputeDiameter(asked, scope);
  } else if (asked.diameter > 0 && asked.turns > 0) {
    ComputeLength(asked, scope);
  } else {
    throw CoilRefused(
        "We need exactly two entries; enter any two of these:\r\n   Diameter\r\n   Length\r\n   Number of turns\r\n"
        "(Inductance has been specified.)");
  }
  return asked;
}

f32 CoilInductance(const Coil& coil) {
  NumericFaultScope scope;
  const auto [L, D, l, N] = Widened(coil);
  return scope.Store(D * D * N * N / (40 * l + 18 * D) / microhenries);
}

Winding Wind(const Coil& coil) {
  constexpr f64 piOfWire = 3.14159;  // as tables of wire lengths have been printed with
  constexpr f64 inchesInFoot = 12;
  constexpr f64 quarterWave = 246000;  // feet times kilohertz
  NumericFaultScope scope;
  Winding winding;
  winding.coil = coil;
  winding.TurnsPerInch = scope.Store(static_cast<f64>(coil.turns) / static_cast<f64>(coil.length));
  winding.WireInches =
      scope.Store(static_cast<f64>(coil.turns) *
                  std::hypot(piOfWire * static_cast<f64>(coil.diameter), 1 / static_cast<f64>(winding.TurnsPerInch)));
  winding.WireFeet = scope.Store(static_cast<f64>(winding.WireInches) / inchesInFoot);
  winding.QuarterWaveKHz = scope.Store(quarterWave / static_cast<f64>(winding.WireFeet));
  AddCriticalWire(winding, scope);
  return winding;
}

std::optional<f32> ApproximateQ(const Coil& coil, f32 F) {
  if (!(F > 0)) return std::nullopt;
  NumericFaultScope scope;
  const f64 losses = 5.4 / static_cast<f64>(coil.length) + 13.8 / static_cast<f64>(coil.diameter);
  return scope.Store(std::floor(std::sqrt(static_cast<f64>(F) / losses)));
}

}  // namespace quilm
