#include "reports/PrintDiplexer.h"

#include <algorithm>
#include <memory>
#include <string>

#include "analysis/AnalysisEntries.h"
#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "diplexer/DiplexerSweep.h"
#include "display/DiplexerDrawing.h"
#include "display/DiplexerPlot.h"
#include "reports/Report.h"
#include "shell/EntryText.h"
#include "shell/Picture.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f32 left = 1200;
constexpr f32 right = 12100;
constexpr f32 middle = 6500;
constexpr f32 titleRow = 400;
constexpr f32 summaryRow = 900;
constexpr f32 circuitTop = 1300;
constexpr f32 circuitRoom = 5600;  // high, at most
constexpr f32 textSize = 8;        // points

constexpr f32 bottomLevel = -60;  // dB
constexpr f32 levelIntervals = 10;

std::string Shown(f32 value, Formatter format) { return EntryText(value, format); }

std::string Summary(const Diplexer& d) {
  const std::string order = std::to_string(d.DipOrder);
  const std::string ripple = Shown(d.DipRipple, FormatValue);
  const std::string Z = Shown(d.DipZ, FormatResistance);
  if (d.DipMode == 2) {
    return "Lower edge: " + Shown(d.DipFlower, FormatFrequency) +
           "     Upper edge: " + Shown(d.DipFupper, FormatFrequency) + "     Passband ripple: " + ripple +
           "       Order:  " + order + "       System Z:  " + Z;
  }
  return "Crossover:  " + Shown(d.DipCrossover, FormatFrequency) + "     Passband ripple:  " + ripple +
         "     Order:  " + order + "     System Z:  " + Z;
}

// As large as the width and the room allow, and no larger than on the page. Where it ends is returned.
f32 DrawCircuit(const Diplexer& diplexer, Canvas& printer) {
  const Scale scale = DiplexerCircuitScale(diplexer.DipOrder);
  Picture circuit(scale);
  DrawDiplexerCircuit(diplexer, circuit);
  const f32 size = std::min({1.0F, (right - left) / scale.width, circuitRoom / scale.height});
  const f32 half = scale.width * size / 2;
  const f32 bottom = circuitTop + scale.height * size;
  circuit.ReplayInto(printer, {middle - half, circuitTop}, {middle + half, bottom});
  return bottom;
}

void DrawResponses(const Diplexer& diplexer, const DesignRecord& record, f32 top, Canvas& printer) {
  const auto responses = std::make_unique<DiplexerResponses>();
  SweepDiplexer(diplexer, record, *responses);
  DiplexerSetup setup = DiplexerSetupOf(diplexer, record);
  setup.scales.LossBottom = bottomLevel;
  setup.scales.NrYints = levelIntervals;
  setup.showsReturn = false;
  setup.inReport = true;
  setup.summary.clear();
  setup.markers.clear();
  Picture plot;
  AxisPlaces places;
  DrawDiplexerPlot(setup, *responses, places, plot);
  const f32 width = right - left;
  plot.ReplayInto(printer, {left, top}, {right, top + width * plot.ScaleHeight / plot.ScaleWidth});
}

}  // namespace

void DrawDiplexerReport(const Diplexer& diplexer, const DesignRecord& record, const DateTime& today, Canvas& printer) {
  printer.FontName = "Courier New";
  printer.FontSize = textSize;
  Report report(printer, {.left = left}, drawingSheet);
  report.SetHead([title = Trimmed(record.CircuitTitle)](Canvas& sheet) { PrintTitle(sheet, middle, titleRow, title); });
  report.SetFoot({FootLine(today)});
  printer.PrintAt(left, summaryRow, Summary(diplexer));
  const f32 bottom = DrawCircuit(diplexer, printer);
  DrawResponses(diplexer, record, bottom, printer);
  report.End();
}

void PrintDiplexer(Session& session) {
  PrintReport(session.platform, "We had a printer problem", [&session](Canvas& printer) {
    const DesignRecord settings = WithAnalysisEntries(session.record, session.configuration);
    DrawDiplexerReport(session.diplexer, settings, session.platform.Now(), printer);
  });
}

}  // namespace quilm
