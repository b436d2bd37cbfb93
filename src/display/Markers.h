// The marked frequencies: what the network does there, in rows below the plot, and a tick on each trace.
#pragma once

#include <vector>

#include "core/RecordFwd.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

struct PlotSetup;

// The responses at a marked frequency, in the units and with the precision of a sweep's.
struct MarkerReading {
  int number = 0;  // of the marker, 1..8
  f32 freq = 0;
  f32 trans = 0;  // as the plot shows it: below the peak when that is chosen
  f32 angle = 0;
  f32 delay = 0;
  f32 returnLoss = 0;
  f32 vswr = 0;
  f32 zin = 0;
  f32 zinAngle = 0;
  bool inSweep = false;  // the frequency lies in the sweep: the delay stands, and the marker has a place on the plot

  // Views of the reading as responses at one frequency.
  ResponseSpans Spans() const;
};

// The markers above 0 Hz in their order, each analysed at its very frequency. The delay is that of the sweep, between
// its two points about the marker. Nothing of the responses changes.
std::vector<MarkerReading> ReadMarkers(const DesignRecord& record, const Responses& responses);

// A sheet's scale with the rows of so many markers at its foot.
Scale WithMarkerRows(Scale scale, std::size_t markers);

// The top of a row below a plot, counted from 1, and where the numbers of the markers end.
f32 MarkerRow(std::size_t row);
inline constexpr f32 markerNumbersEnd = 1200;

// A tick through a trace at a place in the frame, with the number of the marker.
void DrawMarkerTick(Point at, int number, Canvas& canvas);

// Draws the headings and rows of the setup's markers below the plot, which a report has as a table, and, on a
// rectangular plot, their ticks; nothing without markers. Throws NumericFault when a scale has no height or the axis no
// width.
void DrawMarkers(const PlotSetup& setup, Canvas& canvas);

}  // namespace quilm
