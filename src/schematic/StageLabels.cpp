#include "schematic/StageLabels.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/NumberText.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

constexpr f64 highestLoss = 1e7;  // ohms

// The parts of an element type in the order of their labels.
enum class Kind { R, L, C, Line, Turns, Coupling };

const std::vector<Kind>& KindsOf(i16 elementType) {
  static const std::vector<Kind> none;
  static const std::vector<Kind> inductor = {Kind::L};
  static const std::vector<Kind> capacitor = {Kind::C};
  static const std::vector<Kind> resistor = {Kind::R};
  static const std::vector<Kind> both = {Kind::L, Kind::C};
  static const std::vector<Kind> allThree = {Kind::L, Kind::C, Kind::R};
  static const std::vector<Kind> line = {Kind::Line};
  static const std::vector<Kind> turns = {Kind::Turns};
  static const std::vector<Kind> coupling = {Kind::Coupling};
  switch (elementType) {
    case SeriesL:
    case ShuntL:
      return inductor;
    case SeriesC:
    case ShuntC:
      return capacitor;
    case SeriesR:
    case ShuntR:
      return resistor;
    case SeriesSLC:
    case ShuntSLC:
    case SeriesPLC:
    case ShuntPLC:
      return both;
    case SeriesRLC:
    case ShuntRLC:
      return allThree;
    case TransLine:
    case SeriesShortStub:
    case SeriesOpenStub:
    case ShuntShortStub:
    case ShuntOpenStub:
      return line;
    case Transformer:
      return turns;
    case CoupledInductors:
      return coupling;
    default:
      return none;
  }
}

bool Has(i16 elementType, Kind kind) {
  const std::vector<Kind>& kinds = KindsOf(elementType);
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

StageLabel Label(f32 value, std::string (*format)(f32)) { return {Trimmed(format(value)), value < 0}; }

// The format of resistances knows none below 0.
StageLabel ResistanceLabel(f32 value) {
  return {(value < 0 ? "-" : "") + Trimmed(FormatResistance(std::fabs(value))), value < 0};
}

void AddLine(std::vector<StageLabel>& labels, const LineValue& line) {
  labels.push_back({Trimmed(FormatValue(line.degrees)) + "deg", line.degrees < 0});
  labels.push_back({"@" + Trimmed(FormatFrequency(line.freq)), line.freq < 0});
  labels.push_back({"Z=" + Trimmed(FormatResistance(line.impedance)), line.impedance < 0});
}

void AddCoupling(std::vector<StageLabel>& labels, const CoupledValue& coils) {
  labels.push_back(Label(coils.primary, FormatInductance));
  labels.push_back(Label(coils.secondary, FormatInductance));
  labels.push_back({"K=" + Trimmed(FormatValue(coils.k)), coils.k < 0});
}

void AddTolerance(std::vector<std::string>& labels, const char* heading, f32 tolerance) {
  if (tolerance > 0) labels.push_back(heading + ShortText(tolerance, LeadingZero::Keep) + "%");
}

void AddLoss(std::vector<LossLabel>& labels, const char* heading, f64 ohms) {
  if (!std::isfinite(ohms)) return;
  labels.push_back({heading, Trimmed(FormatResistance(static_cast<f32>(ohms)))});
}

}  // namespace

std::vector<StageLabel> ValueLabels(const Stage& stage, f32 share) {
  std::vector<StageLabel> labels;
  for (const Kind kind : KindsOf(stage.ElementType)) {
    switch (kind) {
      case Kind::R:
        labels.push_back(ResistanceLabel(share * stage.Rval.value));
        break;
      case Kind::L:
        labels.push_back(Label(share * stage.Lval.value, FormatInductance));
        break;
      case Kind::C:
        labels.push_back(Label(share * stage.Cval.value, FormatCapacitance));
        break;
      case Kind::Line:
        AddLine(labels, stage.TLval);
        break;
      case Kind::Turns:
        labels.push_back({"N=" + Trimmed(FormatValue(stage.XfmrVal.value)) + ": 1", stage.XfmrVal.value < 0});
        break;
      case Kind::Coupling:
        AddCoupling(labels, stage.CoupledVal);
        break;
    }
  }
  return labels;
}

std::vector<std::string> ToleranceLabels(const Stage& stage) {
  std::vector<std::string> labels;
  for (const Kind kind : KindsOf(stage.ElementType)) {
    switch (kind) {
      case Kind::R:
        AddTolerance(labels, "R: ", stage.Rval.tolerance);
        break;
      case Kind::L:
        AddTolerance(labels, "L: ", stage.Lval.tolerance);
        break;
      case Kind::C:
        AddTolerance(labels, "C: ", stage.Cval.tolerance);
        break;
      case Kind::Line:
        AddTolerance(labels, "Len: ", stage.TLval.degreesTolerance);
        AddTolerance(labels, "Z: ", stage.TLval.impedanceTolerance);
        break;
      case Kind::Turns:
        AddTolerance(labels, "N: ", stage.XfmrVal.tolerance);
        break;
      case Kind::Coupling:
        AddTolerance(labels, "Pri: ", stage.CoupledVal.primaryTolerance);
        AddTolerance(labels, "Sec: ", stage.CoupledVal.secondaryTolerance);
        AddTolerance(labels, "K: ", stage.CoupledVal.kTolerance);
        break;
    }
  }
  return labels;
}

std::vector<LossLabel> LossLabels(const DesignRecord& record, const Stage& stage, f32 Fq) {
  std::vector<LossLabel> labels;
  const f64 omega = 2 * Pi * f64{Fq};
  if (HasInductor(stage.ElementType)) {
    AddLoss(labels, "L-rseries:", omega * f64{stage.Lval.value} / f64{record.Qind[1]});
  }
  if (HasCapacitor(stage.ElementType)) {
    const f64 ohms = std::fabs(f64{record.Qcap[1]} / (omega * f64{stage.Cval.value}));
    if (ohms <= highestLoss) AddLoss(labels, "C-rshunt:", ohms);
  }
  return labels;
}

bool IsSeriesElement(i16 elementType) {
  constexpr std::array series = {SeriesL, SeriesC, SeriesSLC, SeriesPLC, SeriesR, SeriesRLC, TransLine};
  return std::find(series.begin(), series.end(), elementType) != series.end();
}

bool HasInductor(i16 elementType) { return Has(elementType, Kind::L); }
bool HasCapacitor(i16 elementType) { return Has(elementType, Kind::C); }

bool HasNegativeValue(const Stage& stage) {
  const f32 values[] = {stage.Cval.value,    stage.Lval.value,         stage.Rval.value,
                        stage.TLval.degrees, stage.TLval.freq,         stage.TLval.impedance,
                        stage.XfmrVal.value, stage.CoupledVal.primary, stage.CoupledVal.secondary,
                        stage.CoupledVal.k};
  return std::any_of(std::begin(values), std::end(values), [](f32 value) { return value < 0; });
}

}  // namespace quilm
