#include "display/PlotKinds.h"

#include <algorithm>
#include <array>

#include "core/Fault.h"

namespace quilm {

namespace {

constexpr std::array<PlotButton, 12> buttons = {{{"cmd1", "Transmission (S21)", 1},
                                                 {"cmd2", "Transmission (S21); Return (S11)", 2},
                                                 {"cmd3", "Transmission and its angle", 3},
                                                 {"cmd4", "Transmission; envelope delay", 4},
                                                 {"cmd5", "VSWR", 5},
                                                 {"cmd6", "VSWR; transmission ", 13},
                                                 {"cmd7", "Input impedance", 6},
                                                 {"cmd8", "Input impedance; transmission", 9},
                                                 {"cmd9", "Input impedance and its angle", 7},
                                                 {"cmd10", "Input - real and imaginary", 10},
                                                 {"cmd11", "Smith S11", 11},
                                                 {"cmd12", "Smith polar plot (of S21)", 12}}};

const PlotAxis transmission{"Transmission, dB", Quantity::Transmission};
const PlotAxis vswr{"VSWR", Quantity::VSWR};
const PlotAxis impedance{"Input Impedance", Quantity::Zin};

using Q = Quantity;

const std::array<PlotKind, 10> kinds = {
    {{1, {transmission}, {{Q::Transmission, 1}}},
     {2, {transmission, {"Return, dB", Q::Return}}, {{Q::Transmission, 1}, {Q::Return, 2}}},
     {3, {transmission, {"Angle of Transmission", Q::Angle}}, {{Q::Angle, 1}, {Q::Transmission, 2}}},
     {4, {transmission, {"Envelope Delay", Q::Delay}}, {{Q::Delay, 1}, {Q::Transmission, 2}}},
     {5, {vswr}, {{Q::VSWR, 1}}},
     {6, {impedance}, {{Q::Zin, 1}}},
     {7, {impedance, {"Angle of Input Impedance", Q::ZinAngle}}, {{Q::Zin, 1}, {Q::ZinAngle, 2}}},
     {9, {impedance, transmission}, {{Q::Zin, 1}, {Q::Transmission, 2}}},
     {10,
      {{"Input (real)", Q::Real, "Input Impedance (real)"},
       {"Input (imaginary)", Q::Imaginary, "Input impedance (imaginary)"}},
      {{Q::Real, 1}, {Q::Imaginary, 2}}},
     {13, {vswr, transmission}, {{Q::VSWR, 1}, {Q::Transmission, 2}}}}};

}  // namespace

std::span<const PlotButton> PlotButtons() { return buttons; }

bool IsPlot(i16 code) {
  return std::any_of(buttons.begin(), buttons.end(), [code](const PlotButton& button) { return button.code == code; });
}

bool IsRectangular(i16 code) {
  return std::any_of(kinds.begin(), kinds.end(), [code](const PlotKind& kind) { return kind.code == code; });
}

PlotKind KindOf(const PlotScales& scales) {
  const i16 code = scales.PlotCode;
  const auto at = std::find_if(kinds.begin(), kinds.end(), [code](const PlotKind& kind) { return kind.code == code; });
  if (at == kinds.end()) throw Fault("There is no rectangular plot of code " + std::to_string(code));
  PlotKind kind = *at;
  if (code == 1 && scales.MagnifyMode == 1) {
    kind.axes.push_back({transmission.title, Quantity::TransmissionTimes10});
    kind.traces.insert(kind.traces.begin(), {Quantity::TransmissionTimes10, 2});
  }
  return kind;
}

ValueScale ScaleOf(const PlotScales& scales, Quantity quantity) {
  switch (quantity) {
    case Quantity::Transmission:
    case Quantity::Return:
      return {0, scales.LossBottom};
    case Quantity::TransmissionTimes10:
      return {0, 0.1F * scales.LossBottom};
    case Quantity::Angle:
      return {180, -180};
    case Quantity::Delay:
      return {scales.DelayTop, scales.DelayBottom};
    case Quantity::VSWR:
      return {scales.VSWRTop, 1};
    case Quantity::Zin:
    case Quantity::Real:
      return {scales.ImpedanceTop, 0};
    case Quantity::ZinAngle:
      return {90, -90};
    case Quantity::Imaginary:
      return {scales.ImpedanceTop, -scales.ImpedanceTop};
  }
  return {};
}

}  // namespace quilm
