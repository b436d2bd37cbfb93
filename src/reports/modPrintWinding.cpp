#include "reports/modPrintWinding.h"

#include <string>

#include "coils/CoilUnits.h"
#include "coils/WindingDrawing.h"
#include "core/Identity.h"
#include "core/NumberText.h"
#include "core/modGeneral.h"
#include "reports/Report.h"
#include "shell/Picture.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f32 textSize = 11;  // points

// The coil as large as the width of the text allows, below the line that comes next.
void DrawBelow(Report& report, const Coil& coil, i16 units, Canvas& printer) {
  constexpr f32 left = 1440;
  constexpr f32 width = 12240 - 2 * left;
  Picture drawing;
  DrawCoil(coil, units, drawing);
  const f32 top = report.NextLine();
  drawing.ReplayInto(printer, {left, top}, {left + width, top + width * coilSheet.height / coilSheet.width});
}

}  // namespace

void PrintWinding(const Identity& design, const Winding& winding, i16 QuotedStage, const DateTime& today,
                  Canvas& printer) {
  printer.FontName = "Arial";
  printer.FontSize = textSize;
  const std::string unit = UnitName(design.Units);
  Report report(printer, {});
  report.SetFoot({FootLine(today)});
  report.Line("Coil-winding Information");
  if (!design.CircuitTitle.empty()) report.Line(design.CircuitTitle);
  report.Skip();
  if (QuotedStage > 0) report.Line("Inductor number: " + std::to_string(QuotedStage));
  report.Line("Inductance: " + FormatInductance(winding.coil.inductance));
  report.Line("Number of turns: " + TurnsText(winding.coil.turns));
  report.Line("Turns per " + unit + ": " + TurnsPerUnitText(winding.TurnsPerInch, design.Units));
  report.Line("Wire length: " + LengthText(winding.WireInches, design.Units) + " " + unit);
  report.Line("Critical gauge: " + ShortText(winding.CriticalGauge, LeadingZero::Keep));
  report.Skip();
  DrawBelow(report, winding.coil, design.Units, printer);
  report.End();
}

void PrintCoil(Session& session, const Winding& winding, i16 QuotedStage) {
  PrintReport(session.platform, "We had a printer problem", [&](Canvas& printer) {
    PrintWinding(session.identity, winding, QuotedStage, session.platform.Now(), printer);
  });
}

}  // namespace quilm
