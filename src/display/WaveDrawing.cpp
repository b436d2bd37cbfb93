#include "display/WaveDrawing.h"

#include <string>
#include <vector>

#include "core/AxisPlaces.h"
#include "core/NumberText.h"
#include "core/modGeneral.h"
#include "display/PlotCurve.h"
#include "display/PlotGrid.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr ValueScale peaks{1, -1};
constexpr i16 intervalsAlong = 11;
constexpr f32 intervalsUp = 10;
constexpr f32 zeroLine = 4000;
constexpr f32 headingInset = 940;  // to the left edge of the frame
constexpr f32 headingGap = 900;
constexpr f32 namesEnd = 11840;
constexpr Color normalColor = colorBlue;
constexpr Color equalizedColor = colorRed;

HorizontalAxis Degrees() { return HorizontalAxis(AxisSettings{false, -36, 360}); }

void DrawDegrees(Canvas& canvas) {
  const FrequencyGrid grid = MakeFrequencyGrid(Degrees(), intervalsAlong);
  DrawFrequencyLines(grid, canvas);
  std::vector<GridLabel> labels;
  for (int k = 0; k <= grid.GridLast; ++k) {
    labels.push_back({grid.GridFraction[k], ShortText(grid.GridFreq[k], LeadingZero::Keep)});
  }
  PrintGridLabels(labels, canvas);
}

void PrintScale(Canvas& canvas) {
  constexpr f32 labelsEnd = 1900;
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  PrintEndingAt(canvas, labelsEnd, plotFrame.top - labelRise, "1");
  PrintEndingAt(canvas, labelsEnd, plotFrame.Bottom() - labelRise, "-1");
  const std::string along = "Degrees of the squarewave";
  canvas.PrintAt(plotFrame.left + (plotFrame.width - canvas.TextWidth(along)) / 2, footerRow, along);
}

bool IsBurst(const WaveEntries& signal) { return signal.WaveformType != squareWave; }

f32 WidthOfTitle(const std::string& title, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = titleSize;
  return canvas.TextWidth(title);
}

void PrintHeading(const WaveEntries& signal, Canvas& canvas) {
  const std::string square = "Squarewave frequency: " + Trimmed(FormatFrequency(signal.SquareFreq));
  PrintScaleTitle(square, colorBlack, ScaleSide::Left, canvas, headingInset);
  if (!IsBurst(signal)) return;
  PrintScaleTitle("Carrier frequency: " + Trimmed(FormatFrequency(signal.CarrierFreq)), colorBlack, ScaleSide::Left,
                  canvas, headingInset + WidthOfTitle(square, canvas) + headingGap);
}

// On paper colours may not tell the two apart.
LineStyle StyleOfEqualized(const WaveEntries& signal) {
  return ShowsNormal(signal) ? LineStyle::DashOnPaper : LineStyle::Solid;
}

// The names of two waves, on paper each behind a piece of its line.
void PrintNames(const WaveEntries& signal, Canvas& canvas) {
  constexpr f32 sample = 290;
  constexpr f32 gap = 80;
  constexpr f32 row = plotTitleRow + titleSize * static_cast<f32>(twipsPerPoint) / 2;
  const PenScope pen(canvas);
  f32 inset = 0;
  const auto print = [&](const std::string& name, Color color, LineStyle style) {
    PrintScaleTitle(name, color, ScaleSide::Right, canvas, inset);
    inset += WidthOfTitle(name, canvas) + gap;
    canvas.DrawStyle = style;
    canvas.ShowOn = Medium::Paper;
    canvas.Line(namesEnd - inset - sample, row, namesEnd - inset, row, color);
    canvas.ShowOn = Medium::Everywhere;
    inset += sample + 3 * gap;
  };
  print("Equalized", equalizedColor, StyleOfEqualized(signal));
  print("Normal", normalColor, LineStyle::Solid);
}

void DrawWave(const Waves& waves, const std::vector<f32>& values, Color color, Canvas& canvas) {
  AxisPlaces places;
  DrawCurve({waves.degrees, std::span<const f32>(values)}, peaks, color, {Degrees(), places}, canvas);
}

bool AnyLow(const Waves& waves) {
  return (ShowsNormal(waves.signal) && IsLow(waves.PeakNormal)) ||
         (ShowsEqualized(waves.signal) && IsLow(waves.PeakEqualized));
}

void PrintLow(Canvas& canvas) {
  constexpr Point place{500, 4000};
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  canvas.ForeColor = colorRed;
  canvas.Fit.anchor = 0;
  canvas.PrintAt(place.x, place.y, "LOW AMPLITUDE");
}

}  // namespace

void DrawWaveFrame(Canvas& canvas) {
  BeginPlot(waveScale, canvas);
  DrawLevelLines(intervalsUp, canvas);
  DrawDegrees(canvas);
  canvas.Line(plotFrame.left, zeroLine, plotFrame.Right(), zeroLine, frameColor);
  PrintScale(canvas);
  DrawFrame(canvas);
}

void PlotWaves(const Waves& waves, i16 lineWidth, const std::string& title, Canvas& canvas) {
  const PenScope pen(canvas);
  DrawWaveFrame(canvas);
  PrintHeading(waves.signal, canvas);
  canvas.DrawWidth = lineWidth;
  if (ShowsNormal(waves.signal) && ShowsEqualized(waves.signal)) PrintNames(waves.signal, canvas);
  if (ShowsNormal(waves.signal)) DrawWave(waves, waves.WaveNormal, normalColor, canvas);
  if (ShowsEqualized(waves.signal)) {
    canvas.DrawStyle = StyleOfEqualized(waves.signal);
    DrawWave(waves, waves.WaveEqualized, equalizedColor, canvas);
  }
  if (AnyLow(waves)) PrintLow(canvas);
  DrawPaperTitle(title, BelowPlot::Free, canvas);
}

}  // namespace quilm
