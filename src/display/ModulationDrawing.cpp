#include "display/ModulationDrawing.h"

#include <cmath>

#include "core/modGeneral.h"
#include "display/PlotCurve.h"
#include "display/PlotGrid.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 ModYints = 6;  // intervals upward
constexpr Color curveColor = colorBlue;

std::vector<f32> Levels(const ModulationPlot& plot) {
  std::vector<f32> decibels;
  for (const f32 response : plot.response.ModResponse) {
    decibels.push_back(response > 0 ? 20 * std::log10(response) : plot.entries.ModBottom);
  }
  return decibels;
}

}  // namespace

void DrawModulation(const ModulationPlot& plot, Canvas& canvas) {
  const PenScope pen(canvas);
  const HorizontalAxis axis(AxisSettings{ModSweepMode != 1, plot.entries.ModFstart, plot.entries.ModFstop});
  const ValueScale scale{0, plot.entries.ModBottom};
  BeginPlot(plotScale, canvas);
  DrawLevelLines(ModYints, canvas);
  DrawScale(scale, ModYints, ScaleSide::Left, canvas);
  PrintScaleTitle("Response, dB", curveColor, ScaleSide::Left, canvas);
  PrintScaleTitle("Carrier " + Trimmed(FormatFrequency(plot.ModCarrier)) + "Hz", colorBlack, ScaleSide::Right, canvas);
  DrawVerticalGrid(axis, 0, canvas);
  DrawFrame(canvas);
  canvas.DrawWidth = plot.lineWidth;
  AxisPlaces places;
  const std::vector<f32> levels = Levels(plot);
  DrawCurve({plot.response.ModFreq, std::span<const f32>(levels)}, scale, curveColor, {axis, places}, canvas);
  DrawPaperTitle(plot.title, BelowPlot::Free, canvas);
}

}  // namespace quilm
