#include "support/LosslessLadder.h"

#include <cmath>
#include <complex>
#include <string>

#include "core/Fault.h"

namespace quilm {

namespace {

using Complex = std::complex<f64>;

struct Chain {
  Complex a = 1, b = 0, c = 0, d = 1;
};

void Series(Chain& chain, Complex z) {
  chain.b += chain.a * z;
  chain.d += chain.c * z;
}

void Shunt(Chain& chain, Complex y) {
  chain.a += chain.b * y;
  chain.c += chain.d * y;
}

// The element types that synthesis makes; anything else fails the test.
void Append(Chain& chain, const Stage& stage, f64 omega) {
  const Complex zl(0, omega * stage.Lval.value);
  const Complex yc(0, omega * stage.Cval.value);
  switch (stage.ElementType) {
    case SeriesL:
      return Series(chain, zl);
    case ShuntL:
      return Shunt(chain, 1.0 / zl);
    case SeriesC:
      return Series(chain, 1.0 / yc);
    case ShuntC:
      return Shunt(chain, yc);
    case SeriesSLC:
      return Series(chain, zl + 1.0 / yc);
    case ShuntSLC:
      return Shunt(chain, 1.0 / (zl + 1.0 / yc));
    case SeriesPLC:
      return Series(chain, 1.0 / (yc + 1.0 / zl));
    case ShuntPLC:
      return Shunt(chain, yc + 1.0 / zl);
    default:
      throw Fault("type " + std::to_string(stage.ElementType) + " in a synthesised ladder");
  }
}

}  // namespace

f64 LosslessLoss(const DesignRecord& record, f64 frequency) {
  Chain chain;
  for (int s = 1; s <= record.Stages; ++s) Append(chain, record.stage[s], 2 * Pi * frequency);
  const f64 rs = record.Rsource[1];
  const f64 rl = record.Rload[1];
  const Complex sum = chain.a * rl + chain.b + chain.c * rs * rl + chain.d * rs;
  return 10 * std::log10(std::norm(sum) / (4 * rs * rl));
}

}  // namespace quilm
