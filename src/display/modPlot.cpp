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
constexpr f32 leftTitleStart = 1060;
constexpr f32 rightTitleEnd = 11840;
constexpr f32 sampleLength = 290;  // of a trace, between its title and the edge
constexpr f32 sampleGap = 40;
constexpr f32 leftLabelsEnd = 1800;
constexpr f32 rightLabelsStart = 11130;

std::string ScaleLabel(const ValueScale& scale, f64 part) {
  const f64 value = part * (static_cast<f64>(scale.bottom) - static_cast<f64>(scale.top)) + static_cast<f64>(scale.top);
  return Trimmed(FormatTime(static_cast<f32>(value)));
}

bool IsSecond(const PlotTrace& trace) { return trace.color == 2; }

Color ColorOf(const PlotSetup& setup, const PlotTrace& trace) {
  return IsSecond(trace) ? setup.colors.TraceColor2 : setup.colors.TraceColor1;
}

// Colours do not tell traces apart on every paper.
LineStyle StyleOf(const PlotTrace& trace) { return IsSecond(trace) ? LineStyle::DashOnPaper : LineStyle::Solid; }

const PlotTrace& TraceOf(const PlotKind& kind, const PlotAxis& axis) {
  const auto at = std::find_if(kind.traces.begin(), kind.traces.end(),
                               [&axis](const PlotTrace& trace) { return trace.quantity == axis.quantity; });
  return at == kind.traces.end() ? kind.traces.front() : *at;
}

// A piece of the trace beside the title of its scale, where colours may not tell.
void DrawSample(const PlotSetup& setup, const PlotTrace& trace, ScaleSide side, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = TraceWidth(setup.scales);
  canvas.DrawStyle = StyleOf(trace);
  canvas.ShowOn = Medium::Paper;
  canvas.FontSize = titleSize;
  const f32 y = titleRow + canvas.TextHeight("0") / 2;
  const f32 from = side == ScaleSide::Left ? leftTitleStart - sampleGap - sampleLength : rightTitleEnd + sampleGap;
  canvas.Line(from, y, from + sampleLength, y, ColorOf(setup, trace));
}

void DrawScales(const PlotSetup& setup, const PlotKind& kind, Canvas& canvas) {
  ScaleSide side = ScaleSide::Left;
  for (const PlotAxis& axis : kind.axes) {
    const PlotTrace& trace = TraceOf(kind, axis);
    DrawScale(ScaleOf(setup.scales, axis.quantity), axis.title, ColorOf(setup, trace), setup.scales.NrYints, side,
              canvas);
    if (kind.traces.size() > 1) DrawSample(setup, trace, side, canvas);
    side = ScaleSide::Right;
  }
}

}  // namespace

void DrawScale(const ValueScale& scale, const std::string& title, Color titleColor, f32 intervals, ScaleSide side,
               Canvas& canvas) {
  const PenScope pen(canvas);
  const bool left = side == ScaleSide::Left;
  canvas.FontSize = labelSize;
  canvas.Fit.anchor = 0;
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
  canvas.ForeColor = titleColor;
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
    canvas.DrawStyle = StyleOf(trace);
    DrawCurve(CurveOf(responses, trace.quantity, derived), ScaleOf(setup.scales, trace.quantity), ColorOf(setup, trace),
              plane, canvas);
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

void BeginPlot(const Scale& scale, Canvas& canvas) {
  canvas.SetScale(scale);
  canvas.Clear();
  canvas.DrawWidth = 1;
  canvas.ForeColor = colorBlack;
  canvas.FontName = "Arial";
}

void DrawPlot(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  const PenScope pen(canvas);
  const PlotKind kind = KindOf(setup.scales);
  BeginPlot(plotScale, canvas);
  DrawHorizontalGrid(setup.scales.NrYints, canvas);
  DrawScales(setup, kind, canvas);
  DrawVerticalGrid(setup.axis, setup.scales.NrXints, canvas);
  DrawFrame(canvas);
  DrawTraces(setup, responses, places, canvas);
  DrawFooters(setup.title, canvas);
}

}  // namespace quilm
