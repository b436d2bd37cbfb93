#include "pages/guidance/FamilyDrawing.h"

#include <array>

#include "core/NumberText.h"
#include "display/PlotCurve.h"
#include "display/PlotGrid.h"
#include "display/PlotKinds.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr i16 transmissionAndDelay = 4;

// Far enough from one another on white paper; in the order of the guide.
constexpr std::array<Color, 7> familyColors = {colorBlue, colorRed, 0x008000, 0xB000B0, 0x0080FF, 0x909000, 0x404040};

constexpr f32 namesRow = 420;  // the first of two rows above the frame
constexpr f32 namesStep = 240;
constexpr int namesInRow = 4;

PlotSetup SetupFor(const DesignRecord& design) {
  PlotSetup setup{.axis = HorizontalAxis(static_cast<const SweepSettings&>(design)),
                  .scales = design,
                  .colors = {},
                  .chart = {},
                  .reference = 0};
  return setup;
}

// The order is told where it is not the one that was asked for.
std::string NameOf(const FamilySweep& sweep, const DesignRecord& design) {
  std::string name(sweep.family->name);
  if (sweep.order != design.Order) name += " (order " + ShortText(sweep.order, LeadingZero::Keep) + ")";
  return name;
}

void PrintNames(const Comparison& all, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = titleSize;
  canvas.Fit.anchor = 0;
  int place = 0;
  for (std::size_t i = 0; i < all.families.size(); ++i) {
    if (!all.families[i].responses) continue;
    canvas.ForeColor = familyColors[i];
    const f32 x = plotFrame.left + plotFrame.width * static_cast<f32>(place % namesInRow) / namesInRow;
    const int row = place / namesInRow;
    canvas.PrintAt(x, namesRow + namesStep * static_cast<f32>(row), NameOf(all.families[i], all.design));
    ++place;
  }
}

void DrawFamily(const Comparison& all, std::size_t i, Quantity quantity, const PlotPlane& plane, Canvas& canvas) {
  if (!all.families[i].responses) return;
  const ResponseSpans spans = SpansOf(*all.families[i].responses, LastPoint(all.design));
  std::vector<f64> derived;
  DrawCurve(CurveOf(spans, quantity, derived), ScaleOf(all.design, quantity), familyColors[i], plane, canvas);
}

}  // namespace

void DrawExample(const Comparison& example, Canvas& canvas) {
  PlotSetup setup = SetupFor(example.design);
  setup.scales.PlotCode = transmissionAndDelay;
  // The text of the guide speaks of the red trace for the delay, which stands first in this plot.
  setup.colors = {.TraceColor1 = colorRed, .TraceColor2 = colorBlue};
  // There is no readout here to invite to.
  setup.inReport = true;
  AxisPlaces places;
  DrawPlot(setup, SpansOf(*example.families.front().responses, LastPoint(example.design)), places, canvas);
}

void DrawFamilies(const Comparison& all, Quantity quantity, i16 chosen, Canvas& canvas) {
  const PenScope pen(canvas);
  const PlotSetup setup = SetupFor(all.design);
  BeginPlot(plotScale, canvas);
  DrawHorizontalGrid(setup.scales.NrYints, canvas);
  DrawScale(ScaleOf(setup.scales, quantity), setup.scales.NrYints, ScaleSide::Left, canvas);
  DrawVerticalGrid(setup.axis, setup.scales.NrXints, canvas);
  DrawFrame(canvas);
  PrintNames(all, canvas);
  AxisPlaces places;
  const PlotPlane plane{setup.axis, places};
  for (std::size_t i = 0; i < all.families.size(); ++i) DrawFamily(all, i, quantity, plane, canvas);
  canvas.DrawWidth = 3;
  DrawFamily(all, static_cast<std::size_t>(chosen - 1), quantity, plane, canvas);
}

}  // namespace quilm
