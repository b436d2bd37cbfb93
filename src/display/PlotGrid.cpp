#include "display/PlotGrid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "display/PlotText.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr std::size_t mostLabels = 21;
constexpr f32 labelsLeft = 1900;  // of the label at the frame's left edge
constexpr f32 labelRow = 7100;
constexpr f32 linearDistance = 0.05F - 1e-6F;  // of the frame's width; the tolerance lets equal steps through
constexpr f32 logarithmicDistance = 0.04F - 1e-6F;
constexpr std::array<f64, 10> decade = {1, 1.5, 2, 3, 4, 5, 6, 7, 8, 9};

void Add(FrequencyGrid& grid, const HorizontalAxis& axis, f32 frequency) {
  grid.GridFreq[++grid.GridLast] = frequency;
  grid.GridFraction[grid.GridLast] = static_cast<f32>(axis.Fraction(frequency));
}

void AddLinear(FrequencyGrid& grid, const HorizontalAxis& axis, i16 intervals) {
  const f64 start = axis.Settings().start;
  const f64 span = static_cast<f64>(axis.Settings().stop) - start;
  for (int k = 0; k <= intervals; ++k) Add(grid, axis, static_cast<f32>(start + span * k / intervals));
}

void AddDecades(FrequencyGrid& grid, const HorizontalAxis& axis) {
  const f64 last = static_cast<f64>(axis.Settings().stop) * 1.0001;
  for (f64 base = 0.001;; base *= 10) {
    for (const f64 step : decade) {
      const f64 value = base * step;
      if (!(value <= last)) return;
      // Compared in 32 bits: the decades are multiplied up and may miss a whole number by a hair.
      const f32 frequency = static_cast<f32>(value);
      if (frequency >= axis.Settings().start) Add(grid, axis, frequency);
    }
  }
}

// Whether a number is one of `digits` in any of the three decades of a multiplier.
bool IsMultipleOf(f64 number, std::span<const f64> digits) {
  return std::any_of(digits.begin(), digits.end(),
                     [number](f64 digit) { return number == digit || number == 10 * digit || number == 100 * digit; });
}

bool IsUnnamed(const HorizontalAxis& axis, const std::string& text) {
  static constexpr f64 always[] = {1.5, 7, 9};
  static constexpr f64 overDecades[] = {2, 3, 4, 5, 6, 7, 8, 9};
  static constexpr f64 overOneDecade[] = {3, 4, 6, 7, 8, 9};
  const f64 number = LeadingNumber(text);  // "15k" counts as 15, whatever the multiplier
  if (IsMultipleOf(number, always)) return true;
  const f32 ratio = axis.Settings().stop / axis.Settings().start;
  if (ratio > 1000) return IsMultipleOf(number, overDecades);
  return ratio > 10 && IsMultipleOf(number, overOneDecade);
}

}  // namespace

FrequencyGrid MakeFrequencyGrid(const HorizontalAxis& axis, i16 intervals) {
  FrequencyGrid grid;
  if (axis.Settings().logarithmic) {
    AddDecades(grid, axis);
  } else {
    AddLinear(grid, axis, intervals);
  }
  return grid;
}

namespace {

std::string LabelText(f32 frequency) { return Trimmed(FormatFrequency(frequency)); }

std::vector<GridLabel> ToldLabels(const HorizontalAxis& axis, const FrequencyGrid& grid) {
  const bool logarithmic = axis.Settings().logarithmic;
  const f32 distance = logarithmic ? logarithmicDistance : linearDistance;
  std::vector<GridLabel> labels;
  f32 lastLabelled = -1;
  for (int k = 0; k <= grid.GridLast && labels.size() < mostLabels; ++k) {
    const f32 fraction = grid.GridFraction[k];
    if (fraction - lastLabelled < distance) continue;
    // Nothing is crowded just before the label at the end of the frame.
    if (fraction > 0.95F && fraction < 0.999F) continue;
    const std::string text = LabelText(grid.GridFreq[k]);
    if (logarithmic && IsUnnamed(axis, text)) continue;
    labels.push_back({fraction, text});
    lastLabelled = fraction;
  }
  return labels;
}

// Start and stop, and what stands apart from both.
std::vector<GridLabel> EndLabels(const HorizontalAxis& axis, const std::vector<GridLabel>& told) {
  constexpr f32 distance = 0.08F;
  std::vector<GridLabel> labels = {{0, LabelText(axis.Settings().start)}};
  for (const GridLabel& label : told) {
    if (label.fraction > distance && label.fraction < 1 - distance) labels.push_back(label);
  }
  labels.push_back({1, LabelText(axis.Settings().stop)});
  return labels;
}

}  // namespace

std::vector<GridLabel> LabelsOf(const HorizontalAxis& axis, const FrequencyGrid& grid) {
  std::vector<GridLabel> labels = ToldLabels(axis, grid);
  return labels.size() < 2 ? EndLabels(axis, labels) : labels;
}

f32 HorizontalStep(f32 intervals) {
  if (intervals == 0) throw NumericFault("Division by zero");
  return static_cast<f32>(ToI16(static_cast<f64>(plotFrame.height) / static_cast<f64>(intervals) - 1));
}

void DrawFrame(Canvas& canvas, const PlotBox& box) {
  const PenScope pen(canvas);
  canvas.DrawWidth = 1;
  canvas.Rectangle(box.left, box.top, box.Right(), box.Bottom(), frameColor, false);
}

void DrawFrequencyLines(const FrequencyGrid& grid, Canvas& canvas, const PlotBox& box) {
  const PenScope pen(canvas);
  canvas.DrawWidth = 0;
  for (int k = 0; k <= grid.GridLast; ++k) {
    const f32 x = box.left + box.width * grid.GridFraction[k];
    canvas.Line(x, box.top, x, box.Bottom(), gridColor);
  }
}

void PrintGridLabels(const std::vector<GridLabel>& labels, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  for (const GridLabel& label : labels) {
    canvas.PrintAt(labelsLeft + plotFrame.width * label.fraction, labelRow, label.text);
  }
}

void DrawVerticalGrid(const HorizontalAxis& axis, i16 intervals, Canvas& canvas) {
  const FrequencyGrid grid = MakeFrequencyGrid(axis, intervals);
  DrawFrequencyLines(grid, canvas);
  PrintGridLabels(LabelsOf(axis, grid), canvas);
}

void DrawLevelLines(f32 intervals, Canvas& canvas, const PlotBox& box) {
  const PenScope pen(canvas);
  canvas.DrawWidth = 0;
  for (int k = 1; static_cast<f32>(k) < intervals; ++k) {
    const f32 y = box.top + box.height * static_cast<f32>(k) / intervals;
    canvas.Line(box.left, y, box.Right(), y, gridColor);
  }
}

void DrawHorizontalGrid(f32 intervals, Canvas& canvas) {
  const f32 step = HorizontalStep(intervals);
  if (!(step > 0)) throw NumericFault("Division by zero");
  const PenScope pen(canvas);
  canvas.DrawWidth = 0;
  for (f32 y = plotFrame.top; y <= plotFrame.Bottom(); y += step) {
    canvas.Line(plotFrame.left, y, plotFrame.Right(), y, gridColor);
  }
}

}  // namespace quilm
