#include "display/modPlot.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/modGeneral.h"
#include "display/LimitDrawing.h"
#include "display/Markers.h"
#include "display/PlotCurve.h"
#include "display/PlotGrid.h"
#include "display/PlotText.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

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

// Where the titles stand.
struct TitlePlace {
  f32 row;
  f32 left;
  f32 right;
};

TitlePlace TitlePlaceOf(const PlotSetup& setup) {
  constexpr f32 rowBelowCount = 680;
  constexpr f32 rowBelowProgress = 800;
  constexpr f32 besideTick = 60;
  switch (setup.dress) {
    case PlotDress::UnderCount:
      return {rowBelowCount, leftTitleStart, rightTitleEnd};
    case PlotDress::UnderProgress:
      return {rowBelowProgress, plotFrame.left + besideTick, plotFrame.Right() - besideTick};
    default:
      return {plotTitleRow, leftTitleStart, rightTitleEnd};
  }
}

// A piece of the trace beside the title of its scale, where colours may not tell.
void DrawSample(const PlotSetup& setup, const PlotTrace& trace, ScaleSide side, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = TraceWidth(setup.scales);
  canvas.DrawStyle = StyleOf(trace);
  canvas.ShowOn = Medium::Paper;
  canvas.FontSize = titleSize;
  const TitlePlace place = TitlePlaceOf(setup);
  const f32 y = place.row + canvas.TextHeight("0") / 2;
  const f32 from = side == ScaleSide::Left ? place.left - sampleGap - sampleLength : place.right + sampleGap;
  canvas.Line(from, y, from + sampleLength, y, ColorOf(setup, trace));
}

void PrintTitleAt(const TitlePlace& place, const std::string& title, Color color, ScaleSide side, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = titleSize;
  canvas.Fit.anchor = 0;
  canvas.ForeColor = color;
  if (side == ScaleSide::Left) {
    canvas.PrintAt(place.left, place.row, title);
  } else {
    PrintEndingAt(canvas, place.right, place.row, title);
  }
}

// The first axis of a plot is on the left.
ScaleSide SideOf(const PlotKind& kind, const PlotAxis& axis) {
  return &axis == &kind.axes.front() ? ScaleSide::Left : ScaleSide::Right;
}

void DrawScales(const PlotSetup& setup, const PlotKind& kind, Canvas& canvas) {
  for (const PlotAxis& axis : kind.axes) {
    const PlotTrace& trace = TraceOf(kind, axis);
    const ScaleSide side = SideOf(kind, axis);
    DrawScale(ScaleOf(setup.scales, axis.quantity), setup.scales.NrYints, side, canvas);
    const bool printed = setup.inReport && !axis.printedTitle.empty();
    PrintTitleAt(TitlePlaceOf(setup), printed ? axis.printedTitle : axis.title, ColorOf(setup, trace), side, canvas);
    if (kind.traces.size() > 1) DrawSample(setup, trace, side, canvas);
  }
}

}  // namespace

void PrintScaleTitle(const std::string& title, Color color, ScaleSide side, Canvas& canvas, f32 inset) {
  PrintTitleAt({plotTitleRow, leftTitleStart + inset, rightTitleEnd - inset}, title, color, side, canvas);
}

void DrawGridLines(const PlotSetup& setup, Canvas& canvas) {
  DrawHorizontalGrid(setup.scales.NrYints, canvas);
  DrawFrequencyLines(MakeFrequencyGrid(setup.axis, setup.scales.NrXints), canvas);
  DrawFrame(canvas);
}

void DrawScale(const ValueScale& scale, f32 intervals, ScaleSide side, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  canvas.Fit.anchor = 0;
  for (int k = 0; static_cast<f32>(k) <= intervals; ++k) {
    const f64 part = k / static_cast<f64>(intervals);
    const f32 y = static_cast<f32>(std::floor(part * static_cast<f64>(plotFrame.height))) + plotFrame.top - labelRise;
    if (side == ScaleSide::Left) {
      PrintEndingAt(canvas, leftLabelsEnd, y, ScaleLabel(scale, part));
    } else {
      canvas.PrintAt(rightLabelsStart, y, ScaleLabel(scale, part));
    }
  }
}

i16 TraceWidth(const PlotScales& scales) { return std::max<i16>(scales.PlotLineWidth, 1); }

void DrawTraces(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  for (const PlotTrace& trace : KindOf(setup.scales).traces) DrawTrace(setup, trace, responses, places, canvas);
}

void DrawTrace(const PlotSetup& setup, const PlotTrace& trace, const ResponseSpans& responses, AxisPlaces& places,
               Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = TraceWidth(setup.scales);
  canvas.DrawStyle = StyleOf(trace);
  std::vector<f64> derived;
  DrawCurve(CurveOf(responses, trace.quantity, derived), ScaleOf(setup.scales, trace.quantity), ColorOf(setup, trace),
            {setup.axis, places}, canvas);
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
  const Scale& scale = setup.dress == PlotDress::UnderProgress ? plotProgressScale : plotScale;
  BeginPlot(WithMarkerRows(scale, setup.inReport ? 0 : setup.markers.size()), canvas);
  DrawLimitAreas(setup, canvas);
  DrawHorizontalGrid(setup.scales.NrYints, canvas);
  DrawScales(setup, kind, canvas);
  DrawVerticalGrid(setup.axis, setup.scales.NrXints, canvas);
  DrawFrame(canvas);
  if (setup.dress != PlotDress::WithoutTraces) DrawTraces(setup, responses, places, canvas);
  if (!setup.inReport) DrawFooters(setup.title, setup.markers.empty() ? BelowPlot::Free : BelowPlot::Markers, canvas);
  DrawMarkers(setup, canvas);
}

}  // namespace quilm
