// Sums of the odd lines of a spectrum at many angles.
#pragma once

#include <span>
#include <vector>

#include "core/Types.h"

namespace quilm {

// Complex numbers, real and imaginary parts apart.
struct Phasors {
  std::vector<f64> re;
  std::vector<f64> im;

  explicit Phasors(std::size_t count) : re(count), im(count) {}
  std::size_t Count() const { return re.size(); }

  // Sets one by its magnitude and angle (radians).
  void SetPolar(std::size_t at, f64 magnitude, f64 angle);
};

// The sum of lines[k] e^(j (2 k + 1) t) over all k, at each angle t (radians). A Horner scheme in e^(2 j t): one sine
// and one cosine an angle, whatever the number of lines. The error grows no faster than that number times a rounding.
Phasors SumOfOddLines(const Phasors& lines, std::span<const f64> angles);

}  // namespace quilm
