// The ten rectangular plots, as a table.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "display/PlotFrame.h"

namespace quilm {

// What a trace shows.
enum class Quantity { Transmission, TransmissionTimes10, Return, Angle, Delay, VSWR, Zin, ZinAngle, Real, Imaginary };

struct PlotAxis {
  std::string title;
  Quantity quantity = Quantity::Transmission;  // decides the scale
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

// The plot of a code 1..7, 9, 10 or 13. With MagnifyMode 1 plot 1 has a second scale and a trace ten times as high.
// Throws Fault for other codes.
PlotKind KindOf(const DesignRecord& record, i16 code);

// Whether one of the twelve plots has the code, and whether it stands in the rectangular frame.
bool IsPlot(i16 code);
bool IsRectangular(i16 code);

// The scale of a quantity by the present settings.
ValueScale ScaleOf(const DesignRecord& record, Quantity quantity);

// The quantity at a sweep point.
f64 ValueOf(const Responses& responses, Quantity quantity, int point);

}  // namespace quilm
