#include "display/modSmith.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/NumberText.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "display/ChartGrid.h"
#include "display/PlotGrid.h"
#include "display/PlotText.h"
#include "display/PlotTrace.h"

namespace quilm {

namespace {

constexpr PlotBox corner{1300, 1000, 2300, 2000};
constexpr f32 cornerTitleRow = 750;
constexpr f32 cornerGap = 50;  // between its frame and its labels
constexpr f32 chartTitleRow = 420;
constexpr Point noteEnd{12000, 6720};
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

std::vector<CornerTrace> CornerTraces(i16 plotCode, const TraceColors& colors) {
  std::vector<CornerTrace> traces = {{Quantity::Transmission, colors.TraceColor1}};
  if (plotCode == polarCode) traces.push_back({Quantity::Angle, cornerAngleColor});
  return traces;
}

// The zoom is the Smith chart's alone.
ChartScale ScaleFor(const DesignRecord& record, i16 plotCode, const SmithView& view) {
  return {record.SmithAspect, plotCode == smithCode ? view.ZoomFactor : 1};
}

const ChartBox& BoundsOf(i16 plotCode) { return plotCode == smithCode ? smithBounds : polarBounds; }

// The trace of a chart; in polar form a point beyond the right bound stands on it.
Point ChartPoint(const DesignRecord& record, const Responses& responses, i16 plotCode, const ChartScale& scale, int i) {
  if (plotCode == smithCode) {
    const Phasor s11 = InputReflection(record, responses, i);
    return scale.At(s11.u, s11.w);
  }
  const Phasor s21 = Transmission(responses, i);
  Point point = scale.At(s21.u, s21.w);
  point.x = std::min(point.x, polarBounds.right);
  return point;
}

void DrawChartTrace(const DesignRecord& record, const Responses& responses, i16 plotCode, const ChartScale& scale,
                    Color color, Canvas& canvas) {
  canvas.DrawWidth = std::max<i16>(record.PlotLineWidth, 1);
  {
    BoxedPath path(canvas, BoundsOf(plotCode), color);
    const int last = LastPoint(record);
    for (int i = 0; i <= last; ++i) path.To(ChartPoint(record, responses, plotCode, scale, i));
  }
  canvas.DrawWidth = 1;
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

void PrintCornerLabels(const DesignRecord& record, i16 plotCode, Canvas& canvas) {
  canvas.FontSize = labelSize;
  const auto left = [&canvas](f32 y, const std::string& text) {
    PrintOnPatch(canvas, corner.left - cornerGap - canvas.TextWidth(text), y - labelRise, text);
  };
  left(corner.top, "0");
  left(corner.Bottom(), ShortText(record.LossBottom, LeadingZero::Keep));
  if (plotCode == polarCode) {
    constexpr f32 pitch = corner.height / 2;
    f32 y = corner.top - labelRise;
    for (const char* text : {"180", "0", "-180"}) {
      PrintOnPatch(canvas, corner.Right() + cornerGap, y, text);
      y += pitch;
    }
  }
  canvas.PrintAt(corner.left, corner.Bottom() + cornerGap, FormatFrequency(record.Fstart));
  PrintEndingAt(canvas, corner.Right(), corner.Bottom() + cornerGap, FormatFrequency(record.Fstop));
  canvas.PrintAt(corner.left, cornerTitleRow, "S21");
  if (plotCode == polarCode) PrintEndingAt(canvas, corner.Right(), cornerTitleRow, "S21 angle");
}

void DrawCorner(const DesignRecord& record, const Responses& responses, i16 plotCode, const TraceColors& colors,
                Canvas& canvas) {
  // Its own paper: a chart that is zoomed or stretched goes below it.
  canvas.Rectangle(corner.left, corner.top, corner.Right(), corner.Bottom(), colorWhite, true);
  DrawFrequencyLines(MakeFrequencyGrid(record), canvas, corner);
  canvas.Rectangle(corner.left, corner.top, corner.Right(), corner.Bottom(), gridColor, false);
  PrintCornerLabels(record, plotCode, canvas);
  for (const CornerTrace& trace : CornerTraces(plotCode, colors)) {
    DrawTrace(record, responses, trace.quantity, trace.color, canvas, corner);
  }
}

void PrintNotes(const DesignRecord& record, i16 plotCode, Canvas& canvas) {
  canvas.FontSize = titleSize;
  const std::string title = plotCode == smithCode ? "S11" : "S21";
  PrintOnPatch(canvas, chartCenter.x - canvas.TextWidth(title) / 2, chartTitleRow, title);
  if (plotCode != smithCode) return;
  canvas.FontSize = labelSize;
  const std::string note = "Normalized to " + ShortText(record.Rstandard, LeadingZero::Keep) + " ohms";
  PrintOnPatch(canvas, noteEnd.x - canvas.TextWidth(note), noteEnd.y, note);
}

}  // namespace

Phasor InputReflection(const DesignRecord& record, const Responses& responses, int i) {
  if (record.Rstandard == 0) throw NumericFault("Division by zero");
  const f64 reference = record.Rstandard;
  const f64 r = ValueOf(responses, Quantity::Real, i) / reference;
  const f64 x = ValueOf(responses, Quantity::Imaginary, i) / reference;
  const f64 square = (r + 1) * (r + 1) + x * x;
  if (square == 0) throw NumericFault("Division by zero");
  return {(r * r + x * x - 1) / square, 2 * x / square};
}

Phasor Transmission(const Responses& responses, int i) {
  const f64 magnitude = std::pow(10.0, static_cast<f64>(responses.RespTrans[i]) / 20);
  const f64 angle = static_cast<f64>(responses.RespAngle[i]) / degreesPerRadian;
  return {magnitude * std::cos(angle), magnitude * std::sin(angle)};
}

void DrawChart(const DesignRecord& record, const Responses& responses, i16 plotCode, const SmithView& view,
               const TraceColors& colors, Canvas& canvas) {
  const ChartScale scale = ScaleFor(record, plotCode, view);
  BeginPlot(canvas);
  if (plotCode == smithCode) {
    DrawSmithGrid(scale, canvas);
  } else {
    DrawPolarGrid(scale, canvas);
  }
  DrawChartTrace(record, responses, plotCode, scale, colors.TraceColor1, canvas);
  if (plotCode == smithCode && view.VSWRCircleOn == 1) DrawVSWRCircle(scale, view.VSWRCircle, canvas);
  DrawCorner(record, responses, plotCode, colors, canvas);
  PrintNotes(record, plotCode, canvas);
  DrawFooters(canvas);
}

std::vector<Point> ChartPoints(const DesignRecord& record, const Responses& responses, i16 plotCode,
                               const SmithView& view, int i) {
  std::vector<Point> points;
  const Point onChart = ChartPoint(record, responses, plotCode, ScaleFor(record, plotCode, view), i);
  if (BoundsOf(plotCode).Holds(onChart)) points.push_back(onChart);
  for (const CornerTrace& trace : CornerTraces(plotCode, TraceColors{})) {
    points.push_back(TracePoint(record, responses, trace.quantity, i, corner));
  }
  return points;
}

}  // namespace quilm
