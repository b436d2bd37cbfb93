#include "display/modSmith.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "display/ChartGrid.h"
#include "display/Markers.h"
#include "display/PlotCurve.h"
#include "display/PlotGrid.h"
#include "display/PlotKinds.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr PlotBox corner{1300, 1000, 2300, 2000};
constexpr f32 cornerTitleRow = 750;
constexpr f32 cornerGap = 50;  // between its frame and its labels
constexpr f32 chartTitleRow = 420;
constexpr Point noteEnd{11300, 6720};
constexpr Color cornerAngleColor = 0x111177;
constexpr Color vswrColor = 0x6666FF;
constexpr ChartBox smithBounds{0, 0, 12000, 7300};
constexpr ChartBox polarBounds{0, 0, 12000, 8000};
constexpr f64 degreesPerRadian = 57.29578;

// What the small plot in the corner shows.
struct CornerTrace {
  Quantity quantity;
  Color color;
};

bool IsSmith(const PlotSetup& setup) { return setup.scales.PlotCode == smithCode; }

std::vector<CornerTrace> CornerTraces(const PlotSetup& setup) {
  std::vector<CornerTrace> traces = {{Quantity::Transmission, setup.colors.TraceColor1}};
  if (!IsSmith(setup)) traces.push_back({Quantity::Angle, cornerAngleColor});
  return traces;
}

// The zoom is the Smith chart's alone.
ChartScale ScaleFor(const PlotSetup& setup) {
  return {setup.scales.SmithAspect, IsSmith(setup) ? setup.chart.ZoomFactor : 1};
}

const ChartBox& BoundsOf(const PlotSetup& setup) { return IsSmith(setup) ? smithBounds : polarBounds; }

// The trace of a chart; in polar form a point beyond the right bound stands on it.
Point ChartPoint(const PlotSetup& setup, const ResponseSpans& responses, const ChartScale& scale, std::size_t i) {
  if (IsSmith(setup)) {
    const Phasor s11 = InputReflection(responses, setup.reference, i);
    return scale.At(s11.u, s11.w);
  }
  const Phasor s21 = Transmission(responses, i);
  Point point = scale.At(s21.u, s21.w);
  point.x = std::min(point.x, polarBounds.right);
  return point;
}

// All reflections of one VSWR. Of a VSWR of 1 it is a point at the centre.
void DrawVSWRCircle(const ChartScale& scale, f32 vswr, Canvas& canvas) {
  const f64 ratio = vswr;
  const f64 radius = (ratio - 1) / (ratio + 1);
  std::vector<Point> points;
  for (int t = 0; t <= 360; t += 5) {
    const f64 angle = t / degreesPerRadian;
    points.push_back(scale.At(radius * std::cos(angle), -radius * std::sin(angle)));
  }
  canvas.Polyline(points, vswrColor);
}

void PrintCornerLabels(const PlotSetup& setup, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  const auto left = [&canvas](f32 y, const std::string& text) {
    PrintOnPatch(canvas, corner.left - cornerGap - canvas.TextWidth(text), y - labelRise, text);
  };
  left(corner.top, "0");
  left(corner.Bottom(), ShortText(setup.scales.LossBottom, LeadingZero::Keep));
  if (!IsSmith(setup)) {
    constexpr f32 pitch = corner.height / 2;
    f32 y = corner.top - labelRise;
    for (const char* text : {"180", "0", "-180"}) {
      PrintOnPatch(canvas, corner.Right() + cornerGap, y, text);
      y += pitch;
    }
  }
  const AxisSettings& axis = setup.axis.Settings();
  canvas.PrintAt(corner.left, corner.Bottom() + cornerGap, FormatFrequency(axis.start));
  PrintEndingAt(canvas, corner.Right(), corner.Bottom() + cornerGap, FormatFrequency(axis.stop));
  canvas.PrintAt(corner.left, cornerTitleRow, "S21");
  if (!IsSmith(setup)) PrintEndingAt(canvas, corner.Right(), cornerTitleRow, "S21 angle");
}

void DrawCornerFrame(const PlotSetup& setup, Canvas& canvas) {
  // Its own paper: a chart that is zoomed or stretched goes below it.
  canvas.Rectangle(corner.left, corner.top, corner.Right(), corner.Bottom(), colorWhite, true);
  DrawFrequencyLines(MakeFrequencyGrid(setup.axis, setup.scales.NrXints), canvas, corner);
  DrawFrame(canvas, corner);
  PrintCornerLabels(setup, canvas);
}

void DrawCornerTraces(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = 1;
  const PlotPlane plane{setup.axis, places, corner};
  std::vector<f64> derived;
  for (const CornerTrace& trace : CornerTraces(setup)) {
    canvas.DrawStyle = trace.quantity == Quantity::Angle ? LineStyle::DashOnPaper : LineStyle::Solid;
    DrawCurve(CurveOf(responses, trace.quantity, derived), ScaleOf(setup.scales, trace.quantity), trace.color, plane,
              canvas);
  }
}

void PrintNote(const PlotSetup& setup, Canvas& canvas) {
  if (!IsSmith(setup)) return;
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  const std::string note = "Normalized to " + ShortText(setup.reference, LeadingZero::Drop) + " ohms";
  PrintOnPatch(canvas, noteEnd.x - canvas.TextWidth(note), noteEnd.y, note);
}

void DrawRoundGrid(const PlotSetup& setup, Canvas& canvas) {
  if (IsSmith(setup)) {
    DrawSmithGrid(ScaleFor(setup), canvas);
  } else {
    DrawPolarGrid(ScaleFor(setup), canvas);
  }
}

}  // namespace

Phasor InputReflection(const ResponseSpans& responses, f32 reference, std::size_t point) {
  if (reference == 0) throw NumericFault("Division by zero");
  const f64 r = ValueOf(responses, Quantity::Real, point) / reference;
  const f64 x = ValueOf(responses, Quantity::Imaginary, point) / reference;
  const f64 square = (r + 1) * (r + 1) + x * x;
  if (square == 0) throw NumericFault("Division by zero");
  return {(r * r + x * x - 1) / square, 2 * x / square};
}

Phasor Transmission(const ResponseSpans& responses, std::size_t point) {
  const f64 magnitude = std::pow(10.0, static_cast<f64>(responses.trans[point]) / 20);
  const f64 angle = static_cast<f64>(responses.angle[point]) / degreesPerRadian;
  return {magnitude * std::cos(angle), magnitude * std::sin(angle)};
}

void PrintChartTitle(const PlotSetup& setup, Canvas& canvas) {
  if (setup.dress == PlotDress::UnderProgress) return;
  const PenScope pen(canvas);
  canvas.FontSize = titleSize;
  const std::string title = IsSmith(setup) ? "S11" : "S21";
  PrintOnPatch(canvas, chartCenter.x - canvas.TextWidth(title) / 2, chartTitleRow, title);
}

void DrawRoundTrace(const PlotSetup& setup, const ResponseSpans& responses, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = TraceWidth(setup.scales);
  const ChartScale scale = ScaleFor(setup);
  BoxedPath path(canvas, BoundsOf(setup), setup.colors.TraceColor1);
  for (std::size_t i = 0; i < responses.Count(); ++i) path.To(ChartPoint(setup, responses, scale, i));
}

void DrawChart(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  const PenScope pen(canvas);
  const bool traced = setup.dress != PlotDress::WithoutTraces;
  const Scale& scale = setup.dress == PlotDress::UnderProgress ? chartProgressScale : chartScale;
  BeginPlot(WithMarkerRows(scale, setup.inReport ? 0 : setup.markers.size()), canvas);
  DrawRoundGrid(setup, canvas);
  if (traced) DrawRoundTrace(setup, responses, canvas);
  if (IsSmith(setup) && setup.chart.VSWRCircleOn == 1) DrawVSWRCircle(ScaleFor(setup), setup.chart.VSWRCircle, canvas);
  DrawCornerFrame(setup, canvas);
  if (traced) DrawCornerTraces(setup, responses, places, canvas);
  PrintChartTitle(setup, canvas);
  PrintNote(setup, canvas);
  if (!setup.inReport) DrawFooters(setup.title, setup.markers.empty() ? BelowPlot::Free : BelowPlot::Markers, canvas);
  DrawMarkers(setup, canvas);
}

void DrawChartTraces(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, Canvas& canvas) {
  DrawRoundTrace(setup, responses, canvas);
  DrawCornerTraces(setup, responses, places, canvas);
}

std::vector<Point> ChartPoints(const PlotSetup& setup, const ResponseSpans& responses, std::size_t point) {
  std::vector<Point> points;
  const Point onChart = ChartPoint(setup, responses, ScaleFor(setup), point);
  if (BoundsOf(setup).Holds(onChart)) points.push_back(onChart);
  const f32 x = FrameX(setup.axis.Fraction(responses.freq[point]), corner);
  for (const CornerTrace& trace : CornerTraces(setup)) {
    const ValueScale scale = ScaleOf(setup.scales, trace.quantity);
    points.push_back({x, FrameY(scale, ValueOf(responses, trace.quantity, point), corner)});
  }
  return points;
}

}  // namespace quilm
