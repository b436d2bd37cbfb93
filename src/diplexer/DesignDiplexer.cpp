#include "diplexer/DesignDiplexer.h"

#include <cmath>

#include "core/modGeneral.h"
#include "synthesis/SinglyTerminated.h"

namespace quilm {

namespace {

constexpr f64 twoPi = 6.2831853;  // as short as this where the crossover is scaled

bool IsOdd(int k) { return k % 2 == 1; }

void DesignPrototype(Diplexer& d) {
  const int n = d.DipOrder;
  const auto bandEdge = SinglyTerminatedChebyshev(n, d.DipRipple);
  d.DipGa.Fill(0);
  d.DipG.Fill(0);
  for (int k = 1; k <= n; ++k) {
    const bool odd = IsOdd(d.exact3dB ? n : k);
    d.DipGa[k] = static_cast<f32>(f64{bandEdge[n + 1 - k]} * Chebyshev3dBFrequency(d.DipOrder, odd, d.DipRipple));
    d.DipG[n + 1 - k] = d.DipGa[k];
  }
}

void DesignLowAndHighpass(Diplexer& d) {
  d.DipLowElem.Fill(0);
  d.DipHighElem.Fill(0);
  const f64 W = f64{d.DipCrossover} * twoPi;
  const f64 Z = f64{d.DipZ};
  for (int k = 1; k <= d.DipOrder; ++k) {
    const f64 g = f64{d.DipG[k]};
    d.DipLowElem[k] = static_cast<f32>(IsOdd(k) ? Z * g / W : g / (Z * W));
    d.DipHighElem[k] = static_cast<f32>(IsOdd(k) ? 1 / g / (Z * W) : Z / g / W);
  }
}

void DesignBandpassAndBandstop(Diplexer& d) {
  for (DiplexerParts* parts : {&d.DipBpC, &d.DipBpL, &d.DipBsC, &d.DipBsL}) parts->Fill(0);
  const f64 F1 = f64{d.DipFlower};
  const f64 F2 = f64{d.DipFupper};
  const f64 Z = f64{d.DipZ};
  const f64 w1 = 2 * Pi * F1;
  const f64 w2 = 2 * Pi * F2;
  for (int k = 1; k <= d.DipOrder; ++k) {
    const f64 g = f64{d.DipG[k]};
    // (F2 - F1) / (F2 w1) is (w2 - w1) / (w1 w2), the inverse of what a part resonates with.
    d.DipBpC[k] = static_cast<f32>(IsOdd(k) ? (F2 - F1) / (F2 * w1 * Z * g) : g / ((w2 - w1) * Z));
    d.DipBpL[k] = static_cast<f32>(IsOdd(k) ? Z * g / (w2 - w1) : (F2 - F1) * Z / (F2 * w1 * g));
    d.DipBsC[k] = static_cast<f32>(IsOdd(k) ? 1 / ((w2 - w1) * g * Z) : (F2 - F1) * g / (F1 * w2 * Z));
    d.DipBsL[k] = static_cast<f32>(IsOdd(k) ? (F2 - F1) * g * Z / (F1 * w2) : Z / ((w2 - w1) * g));
  }
}

}  // namespace

f64 Chebyshev3dBFrequency(i16 order, bool odd, f32 ripple) {
  const f64 e2 = std::pow(10, f64{ripple} / 10) - 1;
  const f64 fallen = odd ? 1 / e2 : (2 * e2 + 1) / e2;  // the square of the Chebyshev polynomial there
  return CosH(ArcCosh(std::sqrt(fallen)) / order);
}

f32 ResonatingCapacitor(f32 L, f32 frequency) {
  const f64 w = 2 * Pi * f64{frequency};
  return static_cast<f32>(1 / (w * w * f64{L}));
}

void DesignDiplexer(Diplexer& diplexer) {
  if (diplexer.DipFrozen == 1) return;
  DesignPrototype(diplexer);
  if (diplexer.DipMode == 2) {
    DesignBandpassAndBandstop(diplexer);
  } else {
    DesignLowAndHighpass(diplexer);
  }
}

}  // namespace quilm
