#include "coils/WireGauge.h"

#include <cmath>

#include "core/NumericFault.h"

namespace quilm {

namespace {

// The two wires that define the series.
constexpr f64 thinGauge = 36;
constexpr f64 thinInches = 0.005;
constexpr f64 steps = 39;  // from there to gauge -3
constexpr f64 ratio = 92;  // 0.46 in over 0.005 in

}  // namespace

f32 WireGauge(f32 inches) {
  NumericFaultScope scope;
  return scope.Store(-steps * std::log(static_cast<f64>(inches) / thinInches) / std::log(ratio) + thinGauge);
}

f32 WireDiameter(f32 gauge) {
  NumericFaultScope scope;
  return scope.Store(thinInches * std::pow(ratio, (thinGauge - static_cast<f64>(gauge)) / steps));
}

f32 FillPercent(f32 inches, f32 turnsPerInch) {
  NumericFaultScope scope;
  return scope.Store(static_cast<f64>(inches) * 100 * static_cast<f64>(turnsPerInch));
}

}  // namespace quilm
