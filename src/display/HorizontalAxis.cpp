#include "display/HorizontalAxis.h"

#include <cmath>
#include <cstring>
#include <utility>

#include "core/NumericFault.h"
#include "core/Sweep.h"

namespace quilm {

namespace {

AxisSettings SettingsOf(const SweepSettings& sweep) { return {sweep.SweepMode != 1, sweep.Fstart, sweep.Fstop}; }

// Compared bit by bit, in one go: a list is compared for every trace, and differs nowhere as a rule.
bool SameNumbers(std::span<const f32> a, std::span<const f32> b) {
  return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size_bytes()) == 0);
}

}  // namespace

HorizontalAxis::HorizontalAxis(const AxisSettings& settings)
    : settings_(settings), origin_(Distance(settings.start)), width_(Distance(settings.stop) - origin_) {}

HorizontalAxis::HorizontalAxis(const SweepSettings& sweep) : HorizontalAxis(SettingsOf(sweep)) {}

// From zero, or from a value of one.
f64 HorizontalAxis::Distance(f32 value) const {
  const f64 distance = value;
  return settings_.logarithmic ? std::log(distance) : distance;
}

f64 HorizontalAxis::Fraction(f32 value) const {
  if (width_ == 0) throw NumericFault("Division by zero");
  return (Distance(value) - origin_) / width_;
}

std::span<const f64> FractionsAlong(const HorizontalAxis& axis, std::span<const f32> values, AxisPlaces& kept) {
  if (kept.axis == axis.Settings() && SameNumbers(kept.values, values)) return kept.fractions;
  AxisPlaces made{axis.Settings(), {values.begin(), values.end()}, {}};
  made.fractions.reserve(values.size());
  for (const f32 value : values) made.fractions.push_back(axis.Fraction(value));
  kept = std::move(made);
  return kept.fractions;
}

}  // namespace quilm
