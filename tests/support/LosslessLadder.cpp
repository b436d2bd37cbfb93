#include "support/LosslessLadder.h"

#include <cmath>
#include <string>

#include "core/Fault.h"
#include "support/ChainMatrix.h"

namespace quilm {

namespace {

using Complex = ChainMatrix::Complex;

// The element types that synthesis makes; anything else fails the test.
void Append(ChainMatrix& chain, const Stage& stage, f64 omega) {
  const Complex zl(0, omega * stage.Lval.value);
  const Complex yc(0, omega * stage.Cval.value);
  switch (stage.ElementType) {
    case SeriesL:
      return chain.Series(zl);
    case ShuntL:
      return chain.Shunt(1.0 / zl);
    case SeriesC:
      return chain.Series(1.0 / yc);
    case ShuntC:
      return chain.Shunt(yc);
    case SeriesSLC:
      return chain.Series(zl + 1.0 / yc);
    case ShuntSLC:
      return chain.Shunt(1.0 / (zl + 1.0 / yc));
    case SeriesPLC:
      return chain.Series(1.0 / (yc + 1.0 / zl));
    case ShuntPLC:
      return chain.Shunt(yc + 1.0 / zl);
    default:
      throw Fault("type " + std::to_string(stage.ElementType) + " in a synthesised ladder");
  }
}

}  // namespace

f64 LosslessLoss(const DesignRecord& record, f64 frequency) {
  ChainMatrix chain;
  for (int s = 1; s <= record.Stages; ++s) Append(chain, record.stage[s], 2 * Pi * frequency);
  const f64 rs = record.Rsource[1];
  const f64 rl = record.Rload[1];
  return 10 * std::log10(rl / (4 * rs * std::norm(chain.Gain(rs, rl))));
}

}  // namespace quilm
