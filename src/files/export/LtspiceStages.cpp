#include "files/export/LtspiceStages.h"

#include <iterator>
#include <string>

#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "files/export/SpiceTexts.h"

namespace quilm {

namespace {

// The symbol of a kind of part.
struct PartForm {
  std::string_view turnAlong;
  std::string_view windowsAlong[2];  // of name and value
};

constexpr PartForm inductorForm = {"R270", {"WINDOW 0 32 56 Vtop 0", "WINDOW 3 5 56 Vbottom 0"}};
constexpr PartForm capacitorForm = {"R90", {"WINDOW 0 0 32 Vbottom 0", "WINDOW 3 32 32 Vtop 0"}};
constexpr PartForm resistorForm = {"R90", {"WINDOW 0 0 56 Vbottom 0", "WINDOW 3 32 56 Vtop 0"}};

void Place(LtspiceSheet& sheet, std::string_view symbol, const PartForm& form, GridPoint place, Stance stance) {
  if (stance == Stance::Upright) return sheet.Symbol(symbol, place, "R0");
  sheet.Symbol(symbol, place, form.turnAlong);
  for (const std::string_view window : form.windowsAlong) sheet.Line(window);
}

void Name(LtspiceSheet& sheet, std::string_view name) { sheet.Line("SYMATTR InstName " + std::string(name)); }

void Value(LtspiceSheet& sheet, const std::string& text) { sheet.Line("SYMATTR Value " + SpiceFix(text)); }

std::string NumberOf(f32 value) { return Trimmed(NumText(value)); }

// Where the texts of a line stand.
struct LineForm {
  std::string_view turn;
  std::string_view nameWindow;
  std::string_view valueWindow;
};

// A stage that is being drawn. Its parts bear the letter of their kind and the number of the stage.
struct Drawing {
  LtspiceSheet& sheet;
  const DesignRecord& record;
  const Stage& stage;
  i16 number;
  f32 Fq;
  LtspiceWriting writing;

  std::string Numbered(char letter) const { return letter + std::to_string(number) + std::string(writing.suffix); }

  void SeriesLoss() const {
    sheet.Line("SYMATTR SpiceLine Rser=" + SpiceFix(SpiceQResistor(SpiceSeriesLoss(record, Fq, stage.Lval.value))));
  }
  void ParallelLoss() const {
    sheet.Line("SYMATTR SpiceLine Rpar=" + SpiceFix(SpiceQResistor(SpiceParallelLoss(record, Fq, stage.Cval.value))));
  }

  void Inductor(GridPoint place, Stance stance) const {
    Place(sheet, "SYMBOL ind ", inductorForm, place, stance);
    Name(sheet, Numbered('L'));
    Value(sheet, writing.fine ? SpiceFineInductance(stage.Lval.value) : SpiceInductance(stage.Lval.value));
    SeriesLoss();
  }

  void Capacitor(GridPoint place, Stance stance) const {
    Place(sheet, "SYMBOL cap ", capacitorForm, place, stance);
    Name(sheet, Numbered('C'));
    Value(sheet, writing.fine ? SpiceFineCapacitance(stage.Cval.value) : SpiceCapacitance(stage.Cval.value));
    ParallelLoss();
  }

  void Resistor(std::string_view symbol, GridPoint place, Stance stance) const {
    DrawLtspiceResistor(sheet, symbol, place, stance, Numbered('R'), stage.Rval.value);
  }

  // Td is the delay of the line, seconds.
  void Line(GridPoint place, const LineForm& form) const {
    NumericFaultScope scope;
    const LineValue& line = stage.TLval;
    const f32 Td = scope.Store(static_cast<f64>(line.degrees) / (static_cast<f64>(line.freq) * 360));
    sheet.Symbol("SYMBOL tline", place, form.turn);
    sheet.Line(form.nameWindow);
    sheet.Line("SYMATTR Value Td=" + NumberOf(Td) + " Z0=" + NumberOf(line.impedance));
    sheet.Line(form.valueWindow);
    Name(sheet, Numbered('T'));
  }

  // The loss of a coil is that of the stage's L, which a pair of coils does not have: 0.
  void Coil(GridPoint place, std::string_view turn, char end, f32 henries) const {
    sheet.Symbol("SYMBOL ind2 ", place, turn);
    Name(sheet, Numbered('L') + end);
    Value(sheet, SpiceInductance(henries));
    SeriesLoss();
    sheet.Line("WINDOW 0 5 29 Right 2");
    sheet.Line("WINDOW 3 4 82 Right 2");
  }
};

using enum Stance;

void DrawSeriesL(const Drawing& d) {
  d.Inductor({16, 16}, Along);
  d.sheet.Wires({{{0, 0}, {32, 0}}, {{112, 0}, {144, 0}}});
}

void DrawShuntL(const Drawing& d) {
  d.Inductor({32, 64}, Upright);
  d.sheet.Wires({{{0, 0}, {96, 0}}, {{48, 0}, {48, 80}}, {{48, 160}, {48, 256}}});
  d.sheet.Ground({48, 256});
}

void DrawSeriesC(const Drawing& d) {
  d.Capacitor({112, -16}, Along);
  d.sheet.Wires({{{0, 0}, {48, 0}}, {{112, 0}, {160, 0}}});
}

void DrawShuntC(const Drawing& d) {
  d.Capacitor({48, 80}, Upright);
  d.sheet.Wires({{{0, 0}, {160, 0}}, {{64, 0}, {64, 80}}, {{64, 144}, {64, 256}}});
  d.sheet.Ground({64, 256});
}

void DrawSeriesSLC(const Drawing& d) {
  d.Inductor({16, 16}, Along);
  d.sheet.Wires({{{0, 0}, {32, 0}}, {{112, 0}, {160, 0}}});
  d.Capacitor({224, -16}, Along);
  d.sheet.Wires({{{224, 0}, {256, 0}}});
}

void DrawShuntSLC(const Drawing& d) {
  d.Inductor({32, 32}, Upright);
  d.sheet.Wires({{{0, 0}, {176, 0}}, {{48, 0}, {48, 48}}, {{48, 128}, {48, 160}}});
  d.Capacitor({32, 160}, Upright);
  d.sheet.Wires({{{48, 224}, {48, 256}}});
  d.sheet.Ground({48, 256});
}

void DrawTank(const Drawing& d) {
  d.Inductor({48, 16}, Along);
  d.Capacitor({128, 80}, Along);
}

void WireTank(const Drawing& d) {
  d.sheet.Wires({{{0, 0}, {64, 0}},
                 {{32, 0}, {32, 96}},
                 {{32, 96}, {64, 96}},
                 {{128, 96}, {176, 96}},
                 {{176, 96}, {176, 0}},
                 {{144, 0}, {208, 0}}});
}

void DrawSeriesPLC(const Drawing& d) {
  DrawTank(d);
  WireTank(d);
}

void DrawShuntPLC(const Drawing& d) {
  d.Inductor({32, 64}, Upright);
  d.sheet.Wires({{{48, 0}, {48, 80}}, {{48, 160}, {48, 256}}});
  d.Capacitor({192, 80}, Upright);
  d.sheet.Wires({{{208, 0}, {208, 80}}, {{208, 144}, {208, 256}}, {{0, 0}, {288, 0}}});
  d.sheet.Ground({48, 256});
  d.sheet.Ground({208, 256});
}

void DrawSeriesR(const Drawing& d) {
  d.Resistor("SYMBOL res", {144, -16}, Along);
  d.sheet.Wires({{{0, 0}, {48, 0}}, {{128, 0}, {176, 0}}});
}

void DrawShuntR(const Drawing& d) {
  d.Resistor("SYMBOL res", {48, 64}, Upright);
  d.sheet.Wires({{{0, 0}, {160, 0}}, {{64, 0}, {64, 80}}, {{64, 160}, {64, 256}}});
  d.sheet.Ground({64, 256});
}

void DrawLine(const Drawing& d) {
  d.Line({128, 16}, {"R0", "WINDOW 0 0 -96 Top 2", "WINDOW 3 0 -32 Bottom 2"});
  d.sheet.Wires({{{0, 0}, {80, 0}},
                 {{48, 32}, {80, 32}},
                 {{48, 32}, {48, 64}},
                 {{48, 64}, {208, 64}},
                 {{208, 64}, {208, 32}},
                 {{208, 32}, {176, 32}},
                 {{176, 0}, {272, 0}},
                 {{48, 64}, {48, 256}}});
  d.sheet.Ground({48, 256});
}

constexpr LineForm seriesStub = {"R90", "WINDOW 0 -160 0 Vtop 2", "WINDOW 3 -96 0 Vbottom 2"};
constexpr LineForm shuntStub = {"R0", "WINDOW 0 1 -160 Top 2", "WINDOW 3 0 -96 Bottom 2"};

// The far end has a path to common of 1 G, whose name is ten times the stage's number: that of a loss ten stages on,
// where there is one.
void DrawSeriesShortStub(const Drawing& d) {
  d.Line({128, 80}, seriesStub);
  d.sheet.Wires({{{0, 0}, {112, 0}},
                 {{112, 0}, {112, 32}},
                 {{112, 128}, {112, 160}},
                 {{112, 160}, {144, 160}},
                 {{144, 160}, {144, 128}},
                 {{144, 32}, {144, 0}},
                 {{112, 160}, {112, 224}}});
  Place(d.sheet, "SYMBOL res", resistorForm, {96, 208}, Upright);
  Name(d.sheet, "R" + std::to_string(10 * d.number));
  d.sheet.Line("SYMATTR Value 1G");
  d.sheet.Wires({{{112, 304}, {112, 368}}, {{144, 0}, {272, 0}}});
  d.sheet.Ground({112, 368});
}

void DrawSeriesOpenStub(const Drawing& d) {
  d.Line({128, 80}, seriesStub);
  d.sheet.Wires({{{0, 0}, {112, 0}},
                 {{112, 0}, {112, 32}},
                 {{112, 128}, {112, 192}},
                 {{144, 160}, {144, 128}},
                 {{144, 32}, {144, 0}},
                 {{144, 160}, {176, 160}},
                 {{176, 160}, {176, 0}},
                 {{144, 0}, {272, 0}}});
}

void StartShuntStub(const Drawing& d) {
  d.Line({176, 80}, shuntStub);
  d.sheet.Wires({{{0, 0}, {96, 0}},
                 {{96, 0}, {96, 64}},
                 {{96, 64}, {128, 64}},
                 {{128, 96}, {96, 96}},
                 {{96, 96}, {96, 128}},
                 {{96, 128}, {256, 128}},
                 {{256, 128}, {256, 96}},
                 {{256, 96}, {224, 96}}});
}

void EndShuntStub(const Drawing& d) {
  d.sheet.Wires({{{96, 0}, {320, 0}}, {{96, 128}, {96, 256}}});
  d.sheet.Ground({96, 256});
}

void DrawShuntShortStub(const Drawing& d) {
  StartShuntStub(d);
  d.sheet.Wires({{{256, 96}, {256, 64}}, {{256, 64}, {224, 64}}});
  EndShuntStub(d);
}

void DrawShuntOpenStub(const Drawing& d) {
  StartShuntStub(d);
  d.sheet.Wires({{{224, 64}, {288, 64}}});
  EndShuntStub(d);
}

// Every pair's directive is named K: LTspice takes one pair, and refuses a second.
void DrawCoils(const Drawing& d) {
  const CoupledValue& coils = d.stage.CoupledVal;
  d.Coil({112, 48}, "R0", 'a', coils.primary);
  d.Coil({192, 48}, "M0", 'b', coils.secondary);
  d.sheet.Text({48, -32},
               "Left 2 !K " + d.Numbered('L') + "a " + d.Numbered('L') + "b " + SpiceFix(SpiceQResistor(coils.k)));
  d.sheet.Wires({{{0, 0}, {128, 0}},
                 {{128, 0}, {128, 64}},
                 {{128, 144}, {128, 256}},
                 {{176, 0}, {176, 64}},
                 {{176, 144}, {176, 256}},
                 {{176, 0}, {304, 0}}});
  d.sheet.Ground({128, 256});
  d.sheet.Ground({176, 256});
}

void DrawShuntRLC(const Drawing& d) {
  d.Inductor({16, 16}, Upright);
  d.Resistor("SYMBOL res ", {240, 48}, Upright);
  d.Capacitor({240, 160}, Upright);
  d.sheet.Wires({{{0, 0}, {352, 0}},
                 {{32, 0}, {32, 32}},
                 {{32, 112}, {32, 144}},
                 {{32, 144}, {192, 144}},
                 {{192, 144}, {192, 32}},
                 {{192, 32}, {256, 32}},
                 {{256, 32}, {256, 64}},
                 {{256, 144}, {256, 160}},
                 {{256, 224}, {256, 256}}});
  d.sheet.Ground({256, 256});
}

void DrawSeriesRLC(const Drawing& d) {
  DrawTank(d);
  d.Resistor("SYMBOL res", {160, 192}, Along);
  d.sheet.Wires({{{32, 96}, {32, 208}}, {{32, 208}, {64, 208}}, {{144, 208}, {176, 208}}, {{176, 208}, {176, 96}}});
  WireTank(d);
}

struct StageForm {
  void (*draw)(const Drawing&);
  i16 label;    // from the pen to the middle of the stage's number
  i16 advance;  // from the pen to the next stage
  i16 width;    // added to the sheet
};

constexpr StageForm nothing = {nullptr, 0, 0, 0};

// Type code 1 first.
constexpr StageForm forms[] = {
    {DrawSeriesL, 80, 144, 144},
    {DrawShuntL, 48, 96, 96},
    {DrawSeriesC, 80, 160, 160},
    {DrawShuntC, 64, 160, 160},
    {DrawSeriesSLC, 128, 256, 352},
    {DrawShuntSLC, 48, 176, 176},
    {DrawSeriesPLC, 112, 208, 208},
    {DrawShuntPLC, 112, 288, 352},
    {DrawSeriesR, 80, 176, 0},
    {DrawShuntR, 64, 160, 0},
    {DrawLine, 128, 272, 276},
    {DrawSeriesShortStub, 128, 272, 276},
    {DrawSeriesOpenStub, 128, 272, 276},
    {DrawShuntShortStub, 176, 320, 320},
    {DrawShuntOpenStub, 176, 320, 320},
    nothing,
    nothing,
    nothing,
    {DrawCoils, 144, 304, 240},
    {DrawShuntRLC, 160, 352, 352},
    {DrawSeriesRLC, 112, 208, 208},
};

const StageForm& FormOf(i16 elementType) {
  const bool known = elementType >= 1 && elementType <= static_cast<i16>(std::size(forms));
  return known ? forms[elementType - 1] : nothing;
}

}  // namespace

void DrawLtspiceResistor(LtspiceSheet& sheet, std::string_view symbol, GridPoint place, Stance stance,
                         std::string_view name, f32 ohms) {
  Place(sheet, symbol, resistorForm, place, stance);
  Name(sheet, name);
  Value(sheet, SpiceQResistor(ohms));
}

void DrawLtspiceGenerator(LtspiceSheet& sheet, const std::string& amplitude) {
  sheet.Symbol("SYMBOL voltage ", {0, 64}, "R0");
  sheet.Line("WINDOW 123 24 132 Left 0");
  sheet.Line("SYMATTR InstName Vgen");
  sheet.Line("SYMATTR Value AC " + amplitude);
  sheet.Wires({{{0, 0}, {48, 0}}, {{0, 80}, {0, 0}}, {{0, 160}, {0, 256}}});
  sheet.Ground({0, 256});
}

void DrawLtspiceSourceResistor(LtspiceSheet& sheet, std::string_view name, f32 ohms) {
  DrawLtspiceResistor(sheet, "SYMBOL res", {144, -16}, Along, name, ohms);
  sheet.Wires({{{0, 0}, {48, 0}}, {{128, 0}, {176, 0}}});
  sheet.Advance(176);
}

void DrawLtspiceLoad(LtspiceSheet& sheet, std::string_view name, f32 ohms) {
  DrawLtspiceResistor(sheet, "SYMBOL res ", {48, 64}, Upright, name, ohms);
  sheet.Wires({{{0, 0}, {64, 0}}, {{64, 0}, {64, 80}}, {{64, 256}, {64, 160}}});
  sheet.Ground({64, 256});
}

void DrawLtspiceParts(LtspiceSheet& sheet, const DesignRecord& record, i16 s, f32 Fq, const LtspiceWriting& writing) {
  const Stage& stage = record.stage[s];
  const StageForm& form = FormOf(stage.ElementType);
  if (form.draw == nullptr) return;
  form.draw({sheet, record, stage, s, Fq, writing});
  sheet.Advance(form.advance);
}

void DrawLtspiceStage(LtspiceSheet& sheet, const DesignRecord& record, i16 s, f32 Fq) {
  const StageForm& form = FormOf(record.stage[s].ElementType);
  if (form.draw == nullptr) return;
  DrawLtspiceParts(sheet, record, s, Fq, {});
  sheet.Label(static_cast<i16>(form.label - form.advance), s);
}

i16 LtspiceStageWidth(i16 elementType) { return FormOf(elementType).width; }

}  // namespace quilm
