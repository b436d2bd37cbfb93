// Curves in a frame, whatever they show and whatever the size of the frame.
#pragma once

#include "display/HorizontalAxis.h"
#include "display/PlotFrame.h"
#include "display/ResponseCurves.h"
#include "shell/Canvas.h"

namespace quilm {

// Where curves are drawn: a frame along a horizontal axis, with the places on that axis of what was drawn last.
struct PlotPlane {
  HorizontalAxis axis;
  AxisPlaces& kept;
  PlotBox box = plotFrame;
};

// Draws a curve from point to point; it begins with a line of no length at its first point. Throws NumericFault when
// the scale has no height or the axis no width.
void DrawCurve(const Curve& curve, const ValueScale& scale, Color color, const PlotPlane& plane, Canvas& canvas);

}  // namespace quilm
