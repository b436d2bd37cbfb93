#include "display/SheetDrawing.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "core/Responses.h"
#include "display/LimitDrawing.h"
#include "display/LimitEntry.h"
#include "display/PlotKinds.h"
#include "display/PlotScaling.h"
#include "display/modPlot.h"
#include "display/modSmith.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// The mark that a failed plot's message names: 508, 512, ... in the order of the plot codes.
std::string MarkOf(i16 code) {
  constexpr i16 codes[] = {1, 2, 3, 4, 5, 6, 7, 9, 10, 11, 12, 13};
  const auto position = std::find(std::begin(codes), std::end(codes), code) - std::begin(codes);
  return std::to_string(508 + 4 * position);
}

void ShowPlotFault(Session& session) {
  session.platform.MessageBox(
      "We had a plotting routine problem.\r\nSee frmPlotted line " + MarkOf(session.record.PlotCode), Buttons::Ok,
      Icon::Critical, "Error checker");
}

}  // namespace

PlotSetup SetupOf(const Session& session) {
  const DesignRecord& record = session.record;
  return {.axis = HorizontalAxis(record),
          .scales = record,
          .colors = session.plot.colors,
          .chart = session.smithView,
          .reference = record.Rstandard,
          .title = record.CircuitTitle,
          .areas = ShownAreas(record, record)};
}

void DrawSheet(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  if (IsRectangular(setup.scales.PlotCode)) {
    DrawPlot(setup, responses, places, canvas);
  } else {
    DrawChart(setup, responses, places, canvas);
  }
}

void AddTraces(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  if (IsRectangular(setup.scales.PlotCode)) {
    DrawTraces(setup, responses, places, canvas);
  } else {
    DrawChartTraces(setup, responses, places, canvas);
  }
}

void ClearSheet(PlotSheet& sheet) {
  sheet.picture = Picture();
  sheet.live.Clear();
  sheet.colors = {};
  sheet.limitEntry = {};
  sheet.overlays.fetched.clear();
  sheet.shown.reset();
  sheet.extremesShown = false;
}

void ChoosePlot(Session& session, i16 code) {
  session.record.PlotCode = code;
  session.plot.colors = {};
  session.plot.limitEntry = {};
  RedrawPlot(session);
}

void RedrawPlot(Session& session, PlotDress dress) {
  PlotSheet& sheet = session.plot;
  sheet.live.Clear();
  sheet.overlays.fetched.clear();
  sheet.shown = std::make_shared<const Responses>(session.responses);
  sheet.extremesShown = false;
  try {
    HoldLossBottom(session.record);
    const ResponseSpans responses = SpansOf(session.responses, LastPoint(session.record));
    PlotSetup setup = SetupOf(session);
    setup.dress = dress;
    if (session.record.MarkersShown != 0) setup.markers = ReadMarkers(session.record, session.responses);
    DrawSheet(setup, responses, sheet.places, sheet.picture);
    DrawLimitEntry(sheet.limitEntry, sheet.picture);
  } catch (const Fault&) {
    ShowPlotFault(session);
  }
  sheet.live.SetScale(sheet.picture.CurrentScale());
}

void RedrawWithExtremes(Session& session) {
  RedrawPlot(session, PlotDress::WithoutTraces);
  PlotSheet& sheet = session.plot;
  AddExtremes(SetupOf(session), session.responses, LastPoint(session.record), sheet.places, sheet.picture);
  sheet.extremesShown = true;
}

void AddExtremes(PlotSetup setup, const Responses& responses, int last, AxisPlaces& places, Canvas& canvas) {
  constexpr i16 extremeWidth = 2;  // pixels
  constexpr Color nominalColor = 0x119911;
  constexpr TraceColors extremeColors{0xFF1111, 0x1111FF};
  setup.colors = {nominalColor, nominalColor};
  AddTraces(setup, SpansOf(responses, last), places, canvas);
  setup.colors = extremeColors;
  if (!setup.inReport) setup.scales.PlotLineWidth = extremeWidth;
  std::vector<f32> relative;
  for (const ExtremeSelect which : {ExtremeSelect::Max, ExtremeSelect::Min}) {
    AddTraces(setup, ExtremesOf(responses, last, which, setup.scales, relative), places, canvas);
  }
}

void AddTraces(Session& session, const ResponseSpans& responses, Canvas& canvas) {
  AddTraces(SetupOf(session), responses, session.plot.places, canvas);
}

}  // namespace quilm
