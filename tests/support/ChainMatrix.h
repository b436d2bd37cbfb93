// Chain matrices of two-ports in 64-bit complex arithmetic: independent of the program's own analysis.
//
// V1 = a V2 + b I2, I1 = c V2 + d I2, with I2 flowing out of the two-port.
#pragma once

#include <cmath>
#include <complex>

#include "core/Types.h"

namespace quilm {

struct ChainMatrix {
  using Complex = std::complex<f64>;

  Complex a = 1, b = 0, c = 0, d = 1;

  // Each appends a two-port behind what there is.
  void Then(const ChainMatrix& next) {
    *this = {a * next.a + b * next.c, a * next.b + b * next.d, c * next.a + d * next.c, c * next.b + d * next.d};
  }
  void Series(Complex z) { Then({1, z, 0, 1}); }
  void Shunt(Complex y) { Then({1, 0, y, 1}); }

  // A lossless line of so many radians.
  void Line(f64 Z0, f64 radians) {
    const Complex j(0, 1);
    Then({std::cos(radians), j * Z0 * std::sin(radians), j * std::sin(radians) / Z0, std::cos(radians)});
  }

  // Two coils to common, both wound the same way.
  void Coils(f64 L1, f64 L2, f64 k, f64 omega) {
    const f64 M = k * std::sqrt(L1 * L2);
    const Complex jw(0, omega);
    Then({L1 / M, jw * (L1 * L2 - M * M) / M, 1.0 / (jw * M), L2 / M});
  }

  // The voltage across the load over that of the source, between resistances.
  Complex Gain(f64 rs, f64 rl) const { return rl / (a * rl + b + c * rs * rl + d * rs); }
};

}  // namespace quilm
