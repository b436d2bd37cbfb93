// What the two pages of solenoids share: dimensions and their units, the wire at hand, how a coil is wound, and its
// drawing.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "coils/Solenoid.h"
#include "shell/Control.h"
#include "shell/Layout.h"

namespace quilm {

class Entry;
class Session;

// What the pages say differently. Captions name a length by what stands before its unit.
struct CoilWords {
  std::string diameter;
  std::string length;
  std::string afterUnit;     // of the captions of dimensions, turns and wire length
  bool toldInWords = false;  // gauges and fills that are off the scale
  std::string hint;
};

class CoilControls {
 public:
  CoilControls(Page& page, Session& session, CoilWords words);

  // The coil that was entered; 0 for what was not. Inches.
  Coil entered;

  // Shows the session's units, and empties everything else.
  void Load();

  // Shows a winding and draws it.
  void Show(const Winding& winding);
  void Clear();
  // The wire belongs to one winding: the next one asks for it again.
  void ClearWire();

  const std::optional<Winding>& Shown() const { return winding_; }

  // Writes the dimensions that were entered or computed into their boxes.
  void FillDimensions();

  Layout Dimensions(Control& compute);
  Layout Wire();
  Layout Results();

  Frame fraDimensions;
  OptionGroup units;
  OptionButton optEnglish, optMetric;
  Label lblHint;
  Label lblFormDiameter, lblFormLength, lblTurns;
  TextBox txtFormDiameter, txtFormLength, txtTurns;
  Label lblActualGauge, lblActualDiameter, lblWireDiameter;
  TextBox txtActualGauge, txtActualDiameter;
  Label lblResultingGauge, lblResultingDiameter, lblFill;
  Label lblTurnsPerInch, lblTurnsPerInch2;
  Label lblWireLength, lblWireLength2;
  Label lblQuarterWave, lblQuarterWave2;
  Label lblCriticalGauge, lblCriticalGauge2;
  Label lblCriticalDiameter, lblCriticalDiameter2;
  Label lblDcResistance, lblDcResistance2;
  PictureBox picCoil;

 private:
  i16 Units() const;
  void SetUnits(i16 chosen);
  void ShowCaptions();
  void ShowResults();
  void TypeGauge();
  void TypeDiameter();
  void ShowWire();
  void ShowFill();
  std::string GaugeText(f32 CriticalGauge) const;

  Page& page_;
  Session& session_;
  CoilWords words_;
  std::optional<Winding> winding_;
  f32 typedDiameter_ = 0;   // what the box of the wire's diameter holds
  f32 ActualGauge_;         // noGauge for none
  f32 ActualDiameter_ = 0;  // inches, 0 for none
  Entry* dimensions_[3] = {};
  Entry* wire_ = nullptr;
};

// A line of a list of inductors: the number of the stage, and its inductance or `none`.
std::string InductorLine(int stage, f32 inductance, const std::string& none);

}  // namespace quilm
