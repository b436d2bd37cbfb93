#include "display/modPlot.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/modGeneral.h"
#include "display/PlotCurve.h"
#include "display/PlotGrid.h"
#include "display/PlotText.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 titleRow = 540;
constexpr f32 leftTitleStart = 1000;
constexpr f32 rightTitleEnd = 12000;
constexpr f32 leftLabelsEnd = 1800;
constexpr f32 rightLabelsStart = 11130;

std::string ScaleLabel(const ValueScale& scale, f64 part) {
  const f64 value = part * (static_cast<f64>(scale.bottom) - static_cast<f64>(scale.top)) + static_cast<f64>(scale.top);
  return Trimmed(FormatTime(static_cast<f32>(value)));
}

void DrawScales(const PlotSetup& setup, const PlotKind& kind, Canvas& canvas) {
  ScaleSide side = ScaleSide::Left;
  for (const PlotAxis& axis : kind.axes) {
    DrawScale(ScaleOf(setup.scales, axis.quantity), axis.title, setup.scales.NrYints, side, canvas);
    side = ScaleSide::Right;
  }
}

}  // namespace

void DrawScale(const ValueScale& scale, const std::string& title, f32 intervals, ScaleSide side, Canvas& canvas) {
  const PenScope pen(canvas);
  const bool left = side == ScaleSide::Left;
  canvas.FontSize = labelSize;
  for (int k = 0; static_cast<f32>(k) <= intervals; ++k) {
    const f64 part = k / static_cast<f64>(intervals);
    const f32 y = static_cast<f32>(std::floor(part * static_cast<f64>(plotFrame.height))) + plotFrame.top - labelRise;
    if (left) {
      PrintEndingAt(canvas, leftLabelsEnd, y, ScaleLabel(scale, part));
    } else {
      canvas.PrintAt(rightLabelsStart, y, ScaleLabel(scale, part));
    }
  }
  canvas.FontSize = titleSize;
  if (left) {
    canvas.PrintAt(leftTitleStart, titleRow, title);
  } else {
    PrintEndingAt(canvas, rightTitleEnd, titleRow, title);
  }
}

i16 TraceWidth(const PlotScales& scales) { return std::max<i16>(scales.PlotLineWidth, 1); }

void DrawTraces(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = TraceWidth(setup.scales);
  const PlotPlane plane{setup.axis, places};
  std::vector<f64> derived;
  for (const PlotTrace& trace : KindOf(setup.scales).traces) {
    const Color color = trace.color == 1 ? setup.colors.TraceColor1 : setup.colors.TraceColor2;
    DrawCurve(CurveOf(responses, trace.quantity, derived), ScaleOf(setup.scales, trace.quantity), color, plane, canvas);
  }
}

std::vector<Point> TracePoints(const PlotSetup& setup, const ResponseSpans& responses, std::size_t i) {
  std::vector<Point> points;
  const f32 x = FrameX(setup.axis.Fraction(responses.freq[i]));
  for (const PlotTrace& trace : KindOf(setup.scales).traces) {
    points.push_back({x, FrameY(ScaleOf(setup.scales, trace.quantity), ValueOf(responses, trace.quantity, i))});
  }
  return points;
}

void BeginPlot(Canvas& canvas) {
  canvas.SetScale(plotScale);
  canvas.Clear();
  canvas.DrawWidth = 1;
  canvas.ForeColor = colorBlack;
  canvas.FontName = "Arial";
}

void DrawPlot(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  const PenScope pen(canvas);
  const PlotKind kind = KindOf(setup.scales);
  BeginPlot(canvas);
  DrawHorizontalGrid(setup.scales.NrYints, canvas);
  DrawScales(setup, kind, canvas);
  DrawVerticalGrid(setup.axis, setup.scales.NrXints, canvas);
  DrawTraces(setup, responses, places, canvas);
  DrawFooters(canvas);
}

}  // namespace quilm
