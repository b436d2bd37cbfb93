// The plot of a diplexer: the transmission of both arms and the return loss of the pair over the sweep, in the frame of
// the response plots.
#pragma once

#include <string>
#include <vector>

#include "core/PlotScales.h"
#include "core/RecordFwd.h"
#include "diplexer/DiplexerSweep.h"
#include "display/HorizontalAxis.h"
#include "shell/Canvas.h"

namespace quilm {

// What the diplexer does at a marked frequency.
struct DiplexerMarker {
  int number = 0;  // 1..9
  f32 freq = 0;    // Hz
  DiplexerFigures figures;
  bool inSweep = false;  // it has a place on the plot
};

// Everything that decides about the plot but the responses.
struct DiplexerSetup {
  HorizontalAxis axis;
  PlotScales scales;         // intervals, the lowest level and the width of traces
  i16 DipMode = 1;           // names the curves
  std::string summary = {};  // above the frame
  bool showsReturn = true;
  bool inReport = false;  // on a sheet that has a foot of its own
  std::vector<DiplexerMarker> markers = {};
};

// The setup for the settings of a record, which are held as before every plot: those that are missing or beyond their
// limits must have been filled in.
DiplexerSetup DiplexerSetupOf(const Diplexer& diplexer, const DesignRecord& record);

// The markers above 0 Hz in their order, each analysed at its very frequency, within the sweep or not.
std::vector<DiplexerMarker> ReadDiplexerMarkers(const Diplexer& diplexer, const DesignRecord& record);

// Draws the whole plot into an emptied canvas: grid, scales, names of the curves in their colours, curves, markers.
// `places` keeps what was computed for the frequencies. Throws NumericFault when the scale has no height or the sweep
// no width; what was drawn until then stays.
void DrawDiplexerPlot(const DiplexerSetup& setup, const DiplexerResponses& responses, AxisPlaces& places,
                      Canvas& canvas);

// Draws what the curves show at a point of the sweep over the plot: figures in the rows below it, a mark on each curve.
void DrawDiplexerReadout(const DiplexerSetup& setup, const DiplexerResponses& responses, std::size_t index,
                         Canvas& canvas);

}  // namespace quilm
