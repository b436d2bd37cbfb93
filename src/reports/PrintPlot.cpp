#include "reports/PrintPlot.h"

#include <algorithm>
#include <string>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/OverlayCurves.h"
#include "display/PlotKinds.h"
#include "display/SheetDrawing.h"
#include "files/modOverlays.h"
#include "reports/PlotReport.h"
#include "shell/PenScope.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f32 firstColumn = 1240;  // room for the number of a marker before it
constexpr f32 columnPitch = 990;
constexpr i16 widestTrace = 1;

// Whatever a run has drawn over the plot, its traces no wider than all traces on paper.
void AddLive(const LiveLayer& live, Canvas& canvas) {
  const PenScope pen(canvas);
  for (PictureOp operation : live.Present().kept) {
    auto* trace = std::get_if<PolylineOp>(&operation);
    const bool straight = trace == nullptr || trace->points.size() == 2;
    if (!straight) trace->pen.width = std::min(trace->pen.width, widestTrace);
    DrawOperation(operation, canvas);
  }
}

void PrintMarkers(const std::vector<MarkerReading>& markers, Report& report, Canvas& printer) {
  constexpr int headingLines = 2;
  if (markers.empty()) return;
  if (report.LinesLeft() <= headingLines) report.NextSheet();
  const auto row = [&](const std::string& number, const std::array<std::string, markerColumns>& texts) {
    const f32 y = report.NextLine();
    printer.PrintAt(plotLines.left, y, number);
    PrintColumns(printer, firstColumn, y, columnPitch, texts);
  };
  report.Line("Details of markers:");
  row("", MarkerHeadings());
  for (const MarkerReading& reading : markers) {
    if (report.LinesLeft() == 0) row("", MarkerHeadings());
    row(std::to_string(reading.number), MarkerTexts(reading));
  }
}

void PrintLimits(const LimitsAndMarkers& limits, bool first, Report& report) {
  for (const LimitBlock& block : LimitBlocks(limits)) {
    if (!first && report.LinesLeft() > 0) report.Skip();
    first = false;
    if (report.LinesLeft() <= 1) report.NextSheet();
    report.Line(block.heading);
    for (const std::string& sentence : block.sentences) report.Line(sentence);
  }
}

void NoteMissing(Session& session, const std::vector<int>& missing) {
  if (missing.empty()) return;
  std::string numbers;
  for (const int slot : missing) numbers += (numbers.empty() ? "" : ", ") + std::to_string(slot);
  session.note = "Without overlay " + numbers + ", whose files cannot be read any more";
}

}  // namespace

Picture PlotForPaper(const Session& session, const std::vector<MarkerReading>& markers, std::vector<int>& missing) {
  const PlotSheet& sheet = session.plot;
  const Responses& shown = sheet.shown ? *sheet.shown : session.responses;
  const int last = LastPoint(session.record);
  PlotSetup setup = SetupOf(session);
  setup.inReport = true;
  setup.markers = markers;
  setup.scales.PlotLineWidth = widestTrace;
  if (sheet.extremesShown) setup.dress = PlotDress::WithoutTraces;
  AxisPlaces places;
  Picture plot;
  DrawSheet(setup, SpansOf(shown, last), places, plot);
  if (sheet.extremesShown) AddExtremes(setup, shown, last, places, plot);
  for (const int slot : sheet.overlays.fetched) {
    const OverlaySet overlay = ReadOverlaySet(session.platform.ProgramFolder(), slot, session.record.PlotCode);
    if (overlay.complete) {
      DrawOverlay(setup, overlay.curves, plot);
    } else {
      missing.push_back(slot);
    }
  }
  AddLive(sheet.live, plot);
  return plot;
}

void DrawPlotReport(const DesignRecord& record, const Picture& plot, const std::vector<MarkerReading>& markers,
                    const DateTime& today, Canvas& printer) {
  Report report = BeginPlotReport(record, plot, {record.DesignFileName, FootLine(today)}, printer);
  PrintMarkers(markers, report, printer);
  PrintLimits(record, markers.empty(), report);
  report.End();
}

void PrintPlot(Session& session) {
  std::vector<int> missing;
  PrintReport(
      session.platform, "We had a printing routine problem",
      [&session, &missing](Canvas& printer) {
        std::vector<MarkerReading> markers;
        if (session.record.MarkersShown != 0) markers = ReadMarkers(session.record, session.responses);
        DrawPlotReport(session.record, PlotForPaper(session, markers, missing), markers, session.platform.Now(),
                       printer);
      },
      Orientation::Landscape);
  NoteMissing(session, missing);
}

}  // namespace quilm
