// The ten rectangular plots, as a table.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/PlotScales.h"
#include "display/PlotFrame.h"
#include "display/ResponseCurves.h"

namespace quilm {

struct PlotAxis {
  std::string title;
  Quantity quantity = Quantity::Transmission;  // decides the scale
  std::string printedTitle = {};               // in reports, where that is another one
};

struct PlotTrace {
  Quantity quantity;
  int color;  // 1 or 2: TraceColor1 or TraceColor2
};

// A plot with its scales and its traces in drawing order.
struct PlotKind {
  i16 code = 1;
  std::vector<PlotAxis> axes;  // left, then right if there is one
  std::vector<PlotTrace> traces;
};

// One of the buttons cmd1 to cmd12.
struct PlotButton {
  const char* name;
  const char* toolTip;
  i16 code;
};

std::span<const PlotButton> PlotButtons();

// The plot of PlotCode 1..7, 9, 10 or 13. With MagnifyMode 1 plot 1 has a second scale and a trace ten times as high.
// Throws Fault for other codes.
PlotKind KindOf(const PlotScales& scales);

// Whether one of the twelve plots has the code, and whether it stands in the rectangular frame.
bool IsPlot(i16 code);
bool IsRectangular(i16 code);

// The scale of a quantity by the present settings.
ValueScale ScaleOf(const PlotScales& scales, Quantity quantity);

}  // namespace quilm
