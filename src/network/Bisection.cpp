#include "network/Bisection.h"

#include <cmath>

#include "core/ElementCatalogue.h"
#include "core/NumericFault.h"

namespace quilm {

namespace {

bool AreAlike(f32 value, f32 mirrored) {
  constexpr f64 tolerance = 0.0001;
  return f64{mirrored} * (1 + tolerance) >= f64{value} && f64{mirrored} * (1 - tolerance) <= f64{value};
}

bool IsReactive(i16 elementType) { return elementType >= SeriesL && elementType <= ShuntPLC; }

bool IsInLine(i16 elementType) {
  return elementType == SeriesL || elementType == SeriesC || elementType == SeriesSLC || elementType == SeriesPLC;
}

// Both halves in series: half the impedance stays, the other half is K times as high.
f64 SplitInLine(f64 impedance, f64 K) { return impedance / 2 * K + impedance / 2; }

// Both halves side by side, each of twice the impedance.
f64 SplitToCommon(f64 impedance, f64 K) {
  const f64 a = 2 * impedance;
  const f64 b = 2 * impedance * K;
  return a * b / (a + b);
}

void SplitMiddle(Stage& stage, f64 K, NumericFaultScope& scope) {
  if (!IsReactive(stage.ElementType)) return;
  const auto split = IsInLine(stage.ElementType) ? SplitInLine : SplitToCommon;
  f32& L = stage.Lval.value;
  f32& C = stage.Cval.value;
  // A capacitor is the inverse of an impedance.
  if (L != 0) L = scope.Store(split(f64{L}, K));
  if (C != 0) C = scope.Store(1 / split(1 / f64{C}, K));
}

void Scale(Stage& stage, f64 K, NumericFaultScope& scope) {
  if (!IsReactive(stage.ElementType)) return;
  f32& L = stage.Lval.value;
  f32& C = stage.Cval.value;
  if (L != 0) L = scope.Store(f64{L} * K);
  if (C != 0) C = scope.Store(f64{C} / K);
}

}  // namespace

bool IsSymmetrical(const Network& network) {
  for (int s = 1; s <= network.Stages; ++s) {
    const Stage& stage = network.stage[s];
    const Stage& mirrored = network.stage[network.Stages + 1 - s];
    if (stage.ElementType > ShuntPLC) return false;
    if (!AreAlike(stage.Cval.value, mirrored.Cval.value)) return false;
    if (!AreAlike(stage.Lval.value, mirrored.Lval.value)) return false;
  }
  return network.Stages > 0;
}

Network Bisect(const Network& network, f32 newLoad) {
  NumericFaultScope scope;
  Network result = network;
  result.Rload[1] = result.Rstandard = newLoad;
  const f64 K = f64{scope.Store(f64{newLoad} / f64{network.Rsource[1]})};
  const int middle = network.Stages / 2 + 1;
  if (middle <= network.Stages) SplitMiddle(result.stage[middle], K, scope);
  for (int s = middle + 1; s <= network.Stages; ++s) Scale(result.stage[s], K, scope);
  return result;
}

f64 BisectionLoss(f64 K) { return -10 * std::log10(4 * K / ((K + 1) * (K + 1))); }

}  // namespace quilm
