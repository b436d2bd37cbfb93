#include "display/PreviewPlot.h"

#include <sstream>
#include <vector>

#include "core/NumberText.h"
#include "core/modGeneral.h"
#include "display/PlotCurve.h"
#include "display/PlotGrid.h"
#include "display/PlotKinds.h"
#include "display/PlotText.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr i16 transmissionAndReturn = 2;
constexpr f32 titleRow = 60;
constexpr f32 labelGap = 60;  // from the frame to its labels

void Begin(const Scale& scale, Canvas& canvas) {
  canvas.SetScale(scale);
  canvas.Clear();
  canvas.DrawWidth = 1;
  canvas.ForeColor = colorBlack;
  canvas.FontName = "Arial";
  canvas.FontSize = labelSize;
}

void DrawGrid(const PlotSetup& setup, const PlotBox& box, Canvas& canvas) {
  DrawFrequencyLines(MakeFrequencyGrid(setup.axis, setup.scales.NrXints), canvas, box);
  DrawLevelLines(setup.scales.NrYints, canvas, box);
}

void PrintLabels(const PlotSetup& setup, const PlotBox& box, Canvas& canvas) {
  const ValueScale scale = ScaleOf(setup.scales, Quantity::Transmission);
  const auto value = [&canvas, &box](f32 y, f32 decibels) {
    PrintEndingAt(canvas, box.left - labelGap, y - labelRise, ShortText(decibels, LeadingZero::Keep));
  };
  value(box.top, scale.top);
  value(box.Bottom(), scale.bottom);
  const AxisSettings& axis = setup.axis.Settings();
  const auto hertz = [](f32 frequency) { return Trimmed(FormatFrequency(frequency)) + "Hz"; };
  canvas.PrintAt(box.left, box.Bottom() + labelGap, hertz(axis.start));
  PrintEndingAt(canvas, box.Right(), box.Bottom() + labelGap, hertz(axis.stop));
}

Color ColorOf(const PlotSetup& setup, const PlotTrace& trace) {
  return trace.color == 1 ? setup.colors.TraceColor1 : setup.colors.TraceColor2;
}

// The titles in the colours of their traces.
void PrintTitles(const PlotSetup& setup, const PlotKind& kind, const PlotBox& box, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.ForeColor = ColorOf(setup, kind.traces.front());
  canvas.PrintAt(box.left, titleRow, kind.axes.front().title);
  canvas.ForeColor = ColorOf(setup, kind.traces.back());
  PrintEndingAt(canvas, box.Right(), titleRow, kind.axes.back().title);
}

// The words in lines that are no wider.
std::vector<std::string> Lines(const std::string& text, f32 width, const Canvas& canvas) {
  std::vector<std::string> lines{""};
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const std::string longer = lines.back().empty() ? word : lines.back() + " " + word;
    const bool fits = canvas.TextWidth(longer) <= width;
    if (fits || lines.back().empty()) {
      lines.back() = longer;
    } else {
      lines.push_back(word);
    }
  }
  return lines;
}

}  // namespace

void DrawPreview(const PlotSetup& setup, const ResponseSpans& responses, AxisPlaces& places, const Scale& scale,
                 Canvas& canvas) {
  const PenScope pen(canvas);
  Begin(scale, canvas);
  const PlotBox box = PreviewFrame(scale);
  PlotScales scales = setup.scales;
  scales.PlotCode = transmissionAndReturn;
  const PlotKind kind = KindOf(scales);
  DrawGrid(setup, box, canvas);
  PrintLabels(setup, box, canvas);
  PrintTitles(setup, kind, box, canvas);
  const PlotPlane plane{setup.axis, places, box};
  std::vector<f64> derived;
  for (const PlotTrace& trace : kind.traces) {
    canvas.DrawStyle = trace.color == 1 ? LineStyle::Solid : LineStyle::DashOnPaper;
    DrawCurve(CurveOf(responses, trace.quantity, derived), ScaleOf(scales, trace.quantity), ColorOf(setup, trace),
              plane, canvas);
  }
  DrawFrame(canvas, box);
}

void DrawNoPreview(const std::string& reason, const Scale& scale, Canvas& canvas) {
  const PenScope pen(canvas);
  Begin(scale, canvas);
  const PlotBox box = PreviewFrame(scale);
  DrawFrame(canvas, box);
  const std::vector<std::string> lines = Lines(reason, box.width - 2 * labelGap, canvas);
  const f32 line = canvas.TextHeight("X");
  f32 y = box.top + (box.height - line * static_cast<f32>(lines.size())) / 2;
  for (const std::string& text : lines) {
    canvas.PrintAt(box.left + (box.width - canvas.TextWidth(text)) / 2, y, text);
    y += line;
  }
}

}  // namespace quilm
