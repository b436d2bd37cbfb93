#include "support/LadderText.h"

#include <iomanip>

namespace quilm {

void WriteLadder(const DesignRecord& record, f32 Fq, std::ostream& out) {
  out << std::setprecision(9);
  out << record.Rsource[1] << ' ' << record.Rload[1] << ' ' << record.Rstandard << ' ' << record.Qind[1] << ' '
      << record.Qcap[1] << ' ' << Fq << ' ' << record.Stages << '\n';
  for (int s = 1; s <= record.Stages; ++s) {
    const Stage& stage = record.stage[s];
    out << stage.ElementType << ' ' << stage.Lval.value << ' ' << stage.Cval.value << '\n';
  }
}

}  // namespace quilm
