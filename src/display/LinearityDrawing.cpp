#include "display/LinearityDrawing.h"

#include <span>
#include <vector>

#include "display/PlotCurve.h"
#include "display/PlotGrid.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 intervalsUpward = 10;
constexpr Color phaseColor = colorBlue;
constexpr Color lineColor = colorRed;

bool ShowsDeviation(const LinearityPlot& plot) { return plot.PhasePlotType == phaseDeviation; }

// Where the curves are drawn: the axis with the places of the sweep's frequencies on it.
struct Plane {
  const LinearityPlot& plot;
  HorizontalAxis axis{AxisSettings{false, plot.phase.RespFreq.front(), plot.phase.RespFreq.back()}};
  ValueScale scale{PhaseSpan(plot.PhaseScale), -PhaseSpan(plot.PhaseScale)};
  AxisPlaces places = {};

  template <class Number>
  void Draw(const std::vector<Number>& values, Color color, Canvas& canvas) {
    DrawCurve({plot.phase.RespFreq, std::span<const Number>(values)}, scale, color, {axis, places}, canvas);
  }
};

void DrawFrameAndScales(const Plane& plane, Canvas& canvas) {
  DrawLevelLines(intervalsUpward, canvas);
  DrawScale(plane.scale, intervalsUpward, ScaleSide::Left, canvas);
  PrintScaleTitle("Degrees:", colorBlack, ScaleSide::Left, canvas);
  DrawVerticalGrid(plane.axis, plane.plot.NrXints, canvas);
  DrawFrame(canvas);
}

void PrintCurveNames(const LinearityPlot& plot, Canvas& canvas) {
  constexpr f32 behindScale = 1000;
  const bool deviation = ShowsDeviation(plot);
  PrintScaleTitle(deviation ? "Deviation" : "Phase", phaseColor, ScaleSide::Left, canvas, behindScale);
  PrintScaleTitle(deviation ? "Straight line" : "Best-fit straight line", lineColor, ScaleSide::Right, canvas);
}

// Point by point, since it rides along the frame's edge where it leaves the scale. Of a deviation it is the zero line.
void DrawFitLine(Plane& plane, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawStyle = LineStyle::DashOnPaper;  // colours do not tell curves apart on every paper
  std::vector<f64> degrees(plane.plot.phase.RespFreq.size());
  if (!ShowsDeviation(plane.plot)) {
    for (std::size_t i = 0; i < degrees.size(); ++i) degrees[i] = plane.plot.phase.Line(i);
  }
  plane.Draw(degrees, lineColor, canvas);
}

}  // namespace

void DrawLinearity(const LinearityPlot& plot, Canvas& canvas) {
  const PenScope pen(canvas);
  Plane plane{plot};
  BeginPlot(plotScale, canvas);
  DrawFrameAndScales(plane, canvas);
  PrintCurveNames(plot, canvas);
  canvas.DrawWidth = plot.lineWidth;
  // The line over the phase, and the deviation over its zero line.
  if (ShowsDeviation(plot)) DrawFitLine(plane, canvas);
  plane.Draw(PhaseValues(plot.phase, plot.PhasePlotType), phaseColor, canvas);
  if (!ShowsDeviation(plot)) DrawFitLine(plane, canvas);
  DrawPaperTitle(plot.title, BelowPlot::Free, canvas);
}

}  // namespace quilm
