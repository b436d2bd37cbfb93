#include "diplexer/DiplexerArms.h"

#include "core/Network.h"

namespace quilm {

namespace {

struct ArmRow {
  const char* name;
  const char* shortName;
  i16 odd, even;                       // element types
  DiplexerParts Diplexer::*inductors;  // of the odd parts, or of all
  DiplexerParts Diplexer::*capacitors;
};

constexpr ArmRow rows[] = {
    {"Lowpass", "LP", SeriesL, ShuntC, &Diplexer::DipLowElem, &Diplexer::DipLowElem},
    {"Highpass", "HP", SeriesC, ShuntL, &Diplexer::DipHighElem, &Diplexer::DipHighElem},
    {"Bandpass", "BP", SeriesSLC, ShuntPLC, &Diplexer::DipBpL, &Diplexer::DipBpC},
    {"Bandstop", "BS", SeriesPLC, ShuntSLC, &Diplexer::DipBsL, &Diplexer::DipBsC},
};

const ArmRow& Row(i16 DipArm) {
  if (DipArm < lowpassArm || DipArm > bandstopArm) throw BoundFault();
  return rows[DipArm - 1];
}

bool HasInductor(i16 type) { return type != SeriesC && type != ShuntC; }
bool HasCapacitor(i16 type) { return type != SeriesL && type != ShuntL; }

template <class Dip>
auto Inductor(Dip& diplexer, i16 DipArm, int k) {
  return HasInductor(ArmElement(DipArm, k)) ? &(diplexer.*Row(DipArm).inductors)[k] : nullptr;
}

template <class Dip>
auto Capacitor(Dip& diplexer, i16 DipArm, int k) {
  return HasCapacitor(ArmElement(DipArm, k)) ? &(diplexer.*Row(DipArm).capacitors)[k] : nullptr;
}

}  // namespace

std::array<i16, 2> ArmsOf(i16 DipMode) {
  if (DipMode == 2) return {bandpassArm, bandstopArm};
  return {lowpassArm, highpassArm};
}

const char* ArmName(i16 DipArm) { return Row(DipArm).name; }

const char* ArmShortName(i16 DipArm) { return Row(DipArm).shortName; }

i16 ArmElement(i16 DipArm, int k) { return k % 2 == 1 ? Row(DipArm).odd : Row(DipArm).even; }

f32* ArmInductor(Diplexer& diplexer, i16 DipArm, int k) { return Inductor(diplexer, DipArm, k); }

f32* ArmCapacitor(Diplexer& diplexer, i16 DipArm, int k) { return Capacitor(diplexer, DipArm, k); }

const f32* ArmInductor(const Diplexer& diplexer, i16 DipArm, int k) { return Inductor(diplexer, DipArm, k); }

const f32* ArmCapacitor(const Diplexer& diplexer, i16 DipArm, int k) { return Capacitor(diplexer, DipArm, k); }

Network LoadDiplexerArm(const Diplexer& diplexer, i16 DipArm, const Network& losses) {
  Network arm;
  arm.Stages = diplexer.DipOrder;
  arm.Rsource[1] = diplexer.DipZ * 0.001F;
  arm.Rload[1] = diplexer.DipZ;
  arm.Rstandard = diplexer.DipZ;
  arm.Qind[1] = losses.Qind[1];
  arm.Qcap[1] = losses.Qcap[1];
  for (int k = 1; k <= diplexer.DipOrder; ++k) {
    Stage& stage = arm.stage[k];
    stage.ElementType = ArmElement(DipArm, k);
    if (const f32* L = ArmInductor(diplexer, DipArm, k)) stage.Lval.value = *L;
    if (const f32* C = ArmCapacitor(diplexer, DipArm, k)) stage.Cval.value = *C;
  }
  return arm;
}

}  // namespace quilm
