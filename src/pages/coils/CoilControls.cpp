#include "pages/coils/CoilControls.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "coils/CoilUnits.h"
#include "coils/WindingDrawing.h"
#include "coils/WireGauge.h"
#include "core/Identity.h"
#include "core/modGeneral.h"
#include "shell/Entry.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr Color overfullColor = 0x9999FF;

// Kilohertz that nobody scales again: whole ones from a thousand up.
std::string KilohertzText(f32 kilohertz) {
  constexpr f32 firstOfWhole = 1000;
  const std::string text =
      kilohertz >= firstOfWhole ? PlainText(std::floor(kilohertz)) : EntryText(kilohertz, FormatValue);
  return text + " kHz";
}

bool HasDigit(const std::string& text) { return text.find_first_of("0123456789") != std::string::npos; }

}  // namespace

CoilControls::CoilControls(Page& page, Session& session, CoilWords words)
    : fraDimensions(page, "fraDimensions", "Dimensions"),
      optEnglish(page, units, "optEnglish", "English", "Dimensions in inches"),
      optMetric(page, units, "optMetric", "Metric", "Dimensions in centimeters"),
      lblHint(page, "lblHint", words.hint),
      lblFormDiameter(page, "lblFormDiameter", ""),
      lblFormLength(page, "lblFormLength", ""),
      lblTurns(page, "lblTurns", "Number of turns:"),
      txtFormDiameter(page, "txtFormDiameter", "Median diameter", "Between the middles of opposite wires"),
      txtFormLength(page, "txtFormLength", "Length", "Of the winding"),
      txtTurns(page, "txtTurns", "Number of turns"),
      lblActualGauge(page, "lblActualGauge", "Enter the actual gauge"),
      lblActualDiameter(page, "lblActualDiameter", "or the actual diameter"),
      lblWireDiameter(page, "lblWireDiameter", ""),
      txtActualGauge(page, "txtActualGauge", "Actual gauge", "American Wire Gauge; -3 for 0000"),
      txtActualDiameter(page, "txtActualDiameter", "Actual diameter of the wire", "With its insulation"),
      lblResultingGauge(page, "lblResultingGauge", ""),
      lblResultingDiameter(page, "lblResultingDiameter", ""),
      lblFill(page, "lblFill", ""),
      lblTurnsPerInch(page, "lblTurnsPerInch", ""),
      lblTurnsPerInch2(page, "lblTurnsPerInch2", ""),
      lblWireLength(page, "lblWireLength", ""),
      lblWireLength2(page, "lblWireLength2", ""),
      lblQuarterWave(page, "lblQuarterWave", "Quarter-wave frequency: "),
      lblQuarterWave2(page, "lblQuarterWave2", ""),
      lblCriticalGauge(page, "lblCriticalGauge", "Critical gauge: "),
      lblCriticalGauge2(page, "lblCriticalGauge2", ""),
      lblCriticalDiameter(page, "lblCriticalDiameter", ""),
      lblCriticalDiameter2(page, "lblCriticalDiameter2", ""),
      lblDcResistance(page, "lblDcResistance", "DC resistance: "),
      lblDcResistance2(page, "lblDcResistance2", ""),
      picCoil(page, "picCoil", "Coil"),
      page_(page),
      session_(session),
      words_(std::move(words)),
      ActualGauge_(noGauge) {
  fraDimensions.Hold({&optEnglish, &optMetric, &lblHint, &lblFormDiameter, &lblFormLength, &lblTurns, &txtFormDiameter,
                      &txtFormLength, &txtTurns});
  const auto perInch = [this] { return UnitsPerInch(Units()); };
  const auto bindLength = [&](TextBox& box, f32& field, std::function<void()> onTaken = {}) {
    return &page_.entries.Bind({.box = box,
                                .field = field,
                                .format = FormatValue,
                                .ofZero = OfZero::Blank,
                                .onTaken = std::move(onTaken),
                                .perUnit = perInch});
  };
  dimensions_[0] = bindLength(txtFormDiameter, entered.diameter);
  dimensions_[1] = bindLength(txtFormLength, entered.length);
  dimensions_[2] =
      &page_.entries.Bind({.box = txtTurns, .field = entered.turns, .format = TurnsText, .ofZero = OfZero::Blank});
  wire_ = bindLength(txtActualDiameter, typedDiameter_, [this] { TypeDiameter(); });
  txtActualGauge.onChange = [this] { TypeGauge(); };
  optEnglish.onClick = [this] { SetUnits(englishUnits); };
  optMetric.onClick = [this] { SetUnits(metricUnits); };
}

i16 CoilControls::Units() const { return session_.identity.Units; }

void CoilControls::Load() {
  entered = {};
  (Units() == metricUnits ? optMetric : optEnglish).Set();
  FillDimensions();
  ShowCaptions();
  Clear();
}

void CoilControls::SetUnits(i16 chosen) {
  session_.identity.Units = chosen;
  ShowCaptions();
  FillDimensions();
  wire_->Fill();
  ShowResults();
  ShowWire();
}

void CoilControls::FillDimensions() {
  for (Entry* dimension : dimensions_) dimension->Fill();
}

void CoilControls::ShowCaptions() {
  const std::string unit = UnitName(Units());
  const auto inUnit = [&](const std::string& what) { return what + " (" + unit + ")" + words_.afterUnit; };
  lblFormDiameter.caption = inUnit(words_.diameter);
  lblFormLength.caption = inUnit(words_.length);
  lblTurnsPerInch.caption = "Turns per " + unit + words_.afterUnit;
  lblWireLength.caption = inUnit("Wire length");
  lblWireDiameter.caption = inUnit("Wire diameter");
  lblCriticalDiameter.caption = "Critical diameter (" + unit + "): ";
}

void CoilControls::Show(const Winding& winding) {
  winding_ = winding;
  ClearWire();
  ShowResults();
}

void CoilControls::Clear() {
  winding_.reset();
  ClearWire();
  ShowResults();
}

void CoilControls::ClearWire() {
  ActualGauge_ = noGauge;
  ActualDiameter_ = typedDiameter_ = 0;
  txtActualGauge.text.clear();
  wire_->Fill();
  ShowWire();
}

std::string CoilControls::GaugeText(f32 CriticalGauge) const {
  if (words_.toldInWords && CriticalGauge <= noGauge) return "< -40";
  return PlainText(CriticalGauge);
}

void CoilControls::ShowResults() {
  const i16 in = Units();
  const bool wound = winding_.has_value();
  const bool wired = wound && winding_->CriticalDiameter > 0;
  const auto show = [](Label& caption, Label& value, bool there, const std::string& text) {
    caption.visible = value.visible = there;
    value.caption = text;
  };
  const Winding shown = winding_.value_or(Winding{});
  show(lblTurnsPerInch, lblTurnsPerInch2, wound, TurnsPerUnitText(shown.TurnsPerInch, in));
  show(lblWireLength, lblWireLength2, wound, LengthText(shown.WireInches, in));
  show(lblQuarterWave, lblQuarterWave2, wound, KilohertzText(shown.QuarterWaveKHz));
  show(lblCriticalGauge, lblCriticalGauge2, wound, GaugeText(shown.CriticalGauge));
  show(lblCriticalDiameter, lblCriticalDiameter2, wired, LengthText(shown.CriticalDiameter, in));
  show(lblDcResistance, lblDcResistance2, wired, EntryText(shown.DcResistance, FormatValue) + " ohms");
  picCoil.picture.Clear();
  picCoil.description.clear();
  if (!wound) return;
  DrawCoil(shown.coil, in, picCoil.picture);
  picCoil.description = TurnsText(shown.coil.turns) + " turns";
}

void CoilControls::TypeDiameter() {
  txtActualGauge.text.clear();
  ActualDiameter_ = typedDiameter_;
  ActualGauge_ = noGauge;
  try {
    if (ActualDiameter_ > 0) ActualGauge_ = WireGauge(ActualDiameter_);
  } catch (const NumericFault&) {
    // A wire beyond all gauges has none to show.
  }
  ShowWire();
}

void CoilControls::TypeGauge() {
  typedDiameter_ = ActualDiameter_ = 0;
  wire_->Fill();
  ActualGauge_ = noGauge;
  if (HasDigit(txtActualGauge.text)) {
    std::string text = txtActualGauge.text;
    f32 gauge = 0;
    ParseEntry(text, gauge);
    ActualGauge_ = std::max(gauge, noGauge);
    try {
      if (gauge >= noGauge) ActualDiameter_ = WireDiameter(gauge);
    } catch (const NumericFault&) {
      // Likewise.
    }
  }
  ShowWire();
}

// The box that was typed in is answered by the value of the other one.
void CoilControls::ShowWire() {
  const bool byGauge = !txtActualGauge.text.empty();
  const bool byDiameter = !txtActualDiameter.text.empty();
  lblResultingDiameter.caption =
      byGauge && ActualDiameter_ > 0 ? "Resulting diameter: " + LengthText(ActualDiameter_, Units()) : "";
  lblResultingGauge.caption.clear();
  if (byDiameter && ActualDiameter_ > 0) {
    if (ActualGauge_ > noGauge) {
      lblResultingGauge.caption = "Resulting gauge: " + EntryText(ActualGauge_, FormatValue);
    } else if (words_.toldInWords) {
      lblResultingGauge.caption = " Resulting gauge: < -40";
    }
  }
  ShowFill();
}

void CoilControls::ShowFill() {
  constexpr f32 full = 100;
  lblFill.caption.clear();
  lblFill.backColor = colorWhite;
  if (!winding_ || !(winding_->TurnsPerInch > 0) || !(ActualDiameter_ > 0)) return;
  try {
    const f32 fill = FillPercent(ActualDiameter_, winding_->TurnsPerInch);
    if (fill <= full) {
      lblFill.caption = "Fill: " + EntryText(fill, FormatValue) + "%";
    } else {
      lblFill.caption = words_.toldInWords ? " Fill: > 100%" : "Fill: >100%";
      lblFill.backColor = overfullColor;
    }
  } catch (const NumericFault&) {
    // What leaves the range of numbers stays blank.
  }
}

Layout CoilControls::Dimensions(Control& compute) {
  return Group(fraDimensions, Column({Row({Put(optEnglish), Put(optMetric)}), Put(lblHint),
                                      Form({{Put(lblFormDiameter), Put(txtFormDiameter)},
                                            {Put(lblFormLength), Put(txtFormLength)},
                                            {Put(lblTurns), Put(txtTurns)}}),
                                      Put(compute)}));
}

Layout CoilControls::Wire() {
  return Group("Wire at hand", Form({{Put(lblActualGauge), Put(txtActualGauge)},
                                     Under(KeepPlace(Put(lblResultingDiameter))),
                                     {Put(lblActualDiameter), Space()},
                                     {Put(lblWireDiameter), Put(txtActualDiameter)},
                                     Under(KeepPlace(Put(lblResultingGauge))),
                                     Under(KeepPlace(Put(lblFill)))}));
}

Layout CoilControls::Results() {
  const auto row = [](Label& caption, Label& value) { return FormRow{KeepPlace(Put(caption)), KeepPlace(Put(value))}; };
  return Form({row(lblTurnsPerInch, lblTurnsPerInch2), row(lblWireLength, lblWireLength2),
               row(lblQuarterWave, lblQuarterWave2), row(lblCriticalGauge, lblCriticalGauge2),
               row(lblCriticalDiameter, lblCriticalDiameter2), row(lblDcResistance, lblDcResistance2)});
}

std::string InductorLine(int stage, f32 inductance, const std::string& none) {
  const std::string value = inductance > 0 ? "L=" + FormatInductance(inductance) : none;
  return (stage < 10 ? " " : "") + std::to_string(stage) + "   " + value;
}

}  // namespace quilm
