#include "analysis/Ladder.h"

#include <algorithm>
#include <cmath>

#include "core/ElementCatalogue.h"
#include "core/Entries.h"
#include "core/Network.h"
#include "core/NumericFault.h"
#include "core/Sweep.h"

namespace quilm {

namespace {

constexpr f64 noCapacitor = 1e11;  // ohms, the reactance of a capacitor of exactly 0
constexpr f64 leakage = 1 / 1e11;  // siemens, across every tank
constexpr f32 quarterWave = 90;
constexpr f32 beyondQuarterWave = 90.0001F;

struct Compiler {
  const Network& network;
  f64 lossPerHenry;  // 2 Pi Fq / Qind
  f64 q;             // |Qcap|
  bool fails = false;

  void Inductor(CompiledStage& out, const Stage& stage);
  void SeriesCapacitor(CompiledStage& out, const Stage& stage);
  void ParallelCapacitor(CompiledStage& out, const Stage& stage);
  void SeriesPair(CompiledStage& out, const Stage& stage);
  void ShuntCapacitor(CompiledStage& out, const Stage& stage);
  void ShuntInductor(CompiledStage& out, const Stage& stage);
  void ShuntSeriesPair(CompiledStage& out, const Stage& stage, f64 resistance);
  void Tank(CompiledStage& out, const Stage& stage, StageForm form);
  void LineOf(CompiledStage& out, const Stage& stage, StageForm form, bool open);
  void TransformerOf(CompiledStage& out, const Stage& stage);
  void Coil(CompiledStage& out, const Stage& stage);
  void InLine(CompiledStage& out, const Stage& stage, const Element& element);
  void ToCommon(CompiledStage& out, const Stage& stage, const Element& element);
  void SideBySide(CompiledStage& out, const Stage& stage, const Element& element);
  bool Take(CompiledStage& out, const Stage& stage);
};

void Compiler::Inductor(CompiledStage& out, const Stage& stage) {
  if (network.Qind[1] == 0) fails = true;
  out.xl = stage.Lval.value;
  out.r = lossPerHenry * out.xl;
}

// Adds a capacitor in series form.
void Compiler::SeriesCapacitor(CompiledStage& out, const Stage& stage) {
  const f64 real = q / (q * q + 1);
  const f64 imaginary = q * q / (q * q + 1);
  const f64 C = stage.Cval.value;
  if (C == 0) {
    out.r += real * noCapacitor;
    out.x += imaginary * noCapacitor;
    return;
  }
  out.failsAtZero = true;
  out.rc = real / std::fabs(C);
  out.xc = -imaginary / C;
}

// A capacitor as conductance and susceptance.
void Compiler::ShuntCapacitor(CompiledStage& out, const Stage& stage) {
  out.form = StageForm::ShuntArm;
  const f64 C = stage.Cval.value;
  if (q == 0) fails = true;
  if (C == 0) {
    out.g = 1 / (q * noCapacitor);
    out.b = -1 / noCapacitor;
    return;
  }
  out.failsAtZero = true;
  out.gc = std::fabs(C) / q;
  out.bc = C;
}

// The capacitor of a tank; without one its loss resistance is 1e11 ohms too.
void Compiler::ParallelCapacitor(CompiledStage& out, const Stage& stage) {
  const f64 C = stage.Cval.value;
  if (C == 0) {
    out.g += 1 / noCapacitor;
    out.capacitiveOffset = 1 / noCapacitor;
    return;
  }
  if (q == 0) fails = true;
  out.gc = std::fabs(C) / q;
  out.capacitive = -C;
}

void Compiler::SeriesPair(CompiledStage& out, const Stage& stage) {
  Inductor(out, stage);
  SeriesCapacitor(out, stage);
}

void Compiler::ShuntInductor(CompiledStage& out, const Stage& stage) {
  out.form = StageForm::ShuntSeries;
  Inductor(out, stage);
  out.r = std::fabs(out.r);
  out.failsAtZero = true;
  if (out.r == 0 || out.xl == 0) fails = true;
}

void Compiler::ShuntSeriesPair(CompiledStage& out, const Stage& stage, f64 resistance) {
  out.form = StageForm::ShuntSeries;
  out.guardsZeroX = true;
  SeriesPair(out, stage);
  out.r += resistance;
}

void Compiler::Tank(CompiledStage& out, const Stage& stage, StageForm form) {
  out.form = form;
  if (network.Qind[1] == 0) fails = true;
  out.L = stage.Lval.value;
  out.Rs = lossPerHenry * out.L;
  out.g = leakage;
  out.failsAtZero = true;
  if (out.Rs == 0) fails = true;
  ParallelCapacitor(out, stage);
}

void Compiler::LineOf(CompiledStage& out, const Stage& stage, StageForm form, bool open) {
  const LineValue& line = stage.TLval;
  out.form = form;
  out.open = open;
  out.z = line.impedance;
  out.t = LineDelay(stage);
  const bool dividesByImpedance = form == StageForm::Line || (form == StageForm::ShuntStub && open);
  if (line.freq == 0 || (dividesByImpedance && line.impedance == 0)) fails = true;
}

// The reciprocal rests in 32 bits, and its overflow is a failure.
bool ReciprocalIn32Bits(f32 value, f64& reciprocal) {
  if (value == 0) return false;
  const f32 rounded = static_cast<f32>(1 / static_cast<f64>(value));
  reciprocal = rounded;
  return std::isfinite(rounded);
}

void Compiler::TransformerOf(CompiledStage& out, const Stage& stage) {
  out.form = StageForm::Transformer;
  out.n = stage.XfmrVal.value;
  if (!ReciprocalIn32Bits(stage.XfmrVal.value, out.reciprocal)) fails = true;
}

void Compiler::Coil(CompiledStage& out, const Stage& stage) {
  const f64 L1 = stage.CoupledVal.primary;
  const f64 L2 = stage.CoupledVal.secondary;
  out.form = StageForm::Coupled;
  out.failsAtZero = true;
  out.M = static_cast<f64>(stage.CoupledVal.k) * std::sqrt(L1 * L2);
  if (L1 * L2 < 0 || out.M == 0) fails = true;
  out.l1M = L1 / out.M;
  out.l2M = L2 / out.M;
  out.leakage = (L1 * L2 - out.M * out.M) / out.M;
}

// A single part has a formula of its own.
void Compiler::InLine(CompiledStage& out, const Stage& stage, const Element& element) {
  const bool inductor = element.Has(SlotCode::Inductance);
  const bool capacitor = element.Has(SlotCode::Capacitance);
  if (inductor && capacitor) return SeriesPair(out, stage);
  if (capacitor) return SeriesCapacitor(out, stage);
  if (!inductor) {
    out.r = stage.Rval.value;
    return;
  }
  Inductor(out, stage);
  out.r = std::fabs(out.r);
}

void Compiler::ToCommon(CompiledStage& out, const Stage& stage, const Element& element) {
  const bool inductor = element.Has(SlotCode::Inductance);
  const bool capacitor = element.Has(SlotCode::Capacitance);
  if (inductor && capacitor) {
    return ShuntSeriesPair(out, stage, element.Has(SlotCode::Resistance) ? stage.Rval.value : 0);
  }
  if (inductor) return ShuntInductor(out, stage);
  if (capacitor) return ShuntCapacitor(out, stage);
  out.form = StageForm::ShuntArm;
  if (!ReciprocalIn32Bits(stage.Rval.value, out.g)) fails = true;
}

void Compiler::SideBySide(CompiledStage& out, const Stage& stage, const Element& element) {
  Tank(out, stage, element.placement == Placement::Series ? StageForm::SeriesTank : StageForm::ShuntTank);
  if (!element.Has(SlotCode::Resistance)) return;
  if (stage.Rval.value == 0) fails = true;
  out.g += 1 / static_cast<f64>(stage.Rval.value);
}

// False for a stage that passes the signal unchanged.
bool Compiler::Take(CompiledStage& out, const Stage& stage) {
  const Element* element = FindElement(stage.ElementType);
  if (element == nullptr) return false;
  const bool series = element->placement == Placement::Series;
  switch (element->joint) {
    case Joint::Chain:
      series ? InLine(out, stage, *element) : ToCommon(out, stage, *element);
      break;
    case Joint::Parallel:
      SideBySide(out, stage, *element);
      break;
    case Joint::Line:
      LineOf(out, stage, StageForm::Line, false);
      break;
    case Joint::ShortStub:
    case Joint::OpenStub:
      LineOf(out, stage, series ? StageForm::SeriesStub : StageForm::ShuntStub, element->joint == Joint::OpenStub);
      break;
    case Joint::Transformer:
      TransformerOf(out, stage);
      break;
    case Joint::Coupled:
      Coil(out, stage);
      break;
    case Joint::Reactance:
      return false;
  }
  return true;
}

StageForm Simplest(const CompiledStage& s) {
  const bool inductor = s.rc == 0 && s.x == 0 && s.xc == 0;
  const bool capacitor = s.r == 0 && s.x == 0 && s.xl == 0;
  if (s.form == StageForm::SeriesArm && inductor) return StageForm::SeriesInductor;
  if (s.form == StageForm::SeriesArm && capacitor) return StageForm::SeriesCapacitor;
  if (s.form == StageForm::ShuntArm && s.g == 0 && s.b == 0) return StageForm::ShuntCapacitor;
  if (s.form == StageForm::ShuntSeries && inductor && !s.guardsZeroX) return StageForm::ShuntInductor;
  return s.form;
}

// Signs that hold at every frequency spare the kernel its tests. (A sum of losses can vanish only with a negative
// part.)
bool IsLossy(const CompiledStage& s) {
  if (s.form == StageForm::ShuntSeries) return s.r > 0 && s.rc >= 0;
  return s.Rs > 0 && s.g >= 0 && s.gc >= 0;
}

}  // namespace

f32 QualityFrequency(const Entries& entries, const SweepSettings& sweep) {
  if (entries.Fcenter > 0) return entries.Fcenter;
  if (entries.Width > 0) return entries.Width;
  NumericFaultScope scope;
  return scope.Store(std::sqrt(static_cast<f64>(sweep.Fstop) * static_cast<f64>(sweep.Fstart)));
}

f64 LineDelay(const Stage& stage) {
  const LineValue& line = stage.TLval;
  const f64 degrees = line.degrees == quarterWave ? beyondQuarterWave : line.degrees;
  return degrees / (static_cast<f64>(line.freq) * 360);
}

Ladder Compile(const Network& network, f32 Fq) {
  Compiler compiler{network, 2 * Pi * static_cast<f64>(Fq) / static_cast<f64>(network.Qind[1]),
                    std::fabs(static_cast<f64>(network.Qcap[1]))};
  Ladder ladder;
  ladder.Rsource = network.Rsource[1];
  ladder.Rload = network.Rload[1];
  ladder.Rstandard = network.Rstandard;
  ladder.stages.reserve(static_cast<std::size_t>(std::max<i16>(network.Stages, 0)));
  for (int s = network.Stages; s >= 1; --s) {
    CompiledStage compiled;
    if (!compiler.Take(compiled, network.stage[s])) continue;
    compiled.lossy = IsLossy(compiled);
    compiled.form = Simplest(compiled);
    ladder.failsAtZero = ladder.failsAtZero || compiled.failsAtZero;
    ladder.stages.push_back(compiled);
  }
  ladder.failsEverywhere = compiler.fails || ladder.Rload == 0 || ladder.Rsource == 0;
  return ladder;
}

}  // namespace quilm
