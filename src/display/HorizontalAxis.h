// The horizontal axis of a plot, of frequencies or times, by difference or by logarithm.
#pragma once

#include <span>

#include "core/AxisPlaces.h"
#include "core/RecordFwd.h"

namespace quilm {

class HorizontalAxis {
 public:
  // A logarithmic axis takes the logarithms of start and stop here, once. An axis without width can be made, but
  // nothing has a place on it.
  explicit HorizontalAxis(const AxisSettings& settings);
  explicit HorizontalAxis(const SweepSettings& sweep);

  const AxisSettings& Settings() const { return settings_; }

  // How far along the axis a value lies, 0 at the start and 1 at the stop; beyond them below 0 and above 1. Throws
  // NumericFault when the axis has no width.
  f64 Fraction(f32 value) const;

  bool operator==(const HorizontalAxis& other) const { return settings_ == other.settings_; }

 private:
  f64 Distance(f32 value) const;

  AxisSettings settings_;
  f64 origin_;
  f64 width_;
};

// The fractions of all values, in their order. They are those of `kept` if they were made for the same axis and the
// same values, else they are made anew and kept there; they stand until `kept` is used again. Throws like Fraction, and
// leaves `kept` as it was.
std::span<const f64> FractionsAlong(const HorizontalAxis& axis, std::span<const f32> values, AxisPlaces& kept);

}  // namespace quilm
