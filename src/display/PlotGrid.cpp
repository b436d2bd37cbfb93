#include "display/PlotGrid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "display/PlotFrame.h"

namespace quilm {

namespace {

constexpr std::size_t mostLabels = 21;
constexpr f32 linearDistance = 0.05F - 1e-6F;  // of the frame's width; the tolerance lets equal steps through
constexpr f32 logarithmicDistance = 0.04F - 1e-6F;
constexpr std::array<f64, 10> decade = {1, 1.5, 2, 3, 4, 5, 6, 7, 8, 9};

void Add(FrequencyGrid& grid, const DesignRecord& record, f32 frequency) {
  grid.GridFreq[++grid.GridLast] = frequency;
  grid.GridFraction[grid.GridLast] = static_cast<f32>(SweepFraction(record, frequency));
}

void AddLinear(FrequencyGrid& grid, const DesignRecord& record) {
  const f64 start = record.Fstart;
  const f64 span = static_cast<f64>(record.Fstop) - start;
  for (int k = 0; k <= record.NrXints; ++k) Add(grid, record, static_cast<f32>(start + span * k / record.NrXints));
}

void AddDecades(FrequencyGrid& grid, const DesignRecord& record) {
  const f64 last = static_cast<f64>(record.Fstop) * 1.0001;
  for (f64 base = 0.001;; base *= 10) {
    for (const f64 step : decade) {
      const f64 value = base * step;
      if (!(value <= last)) return;
      // Compared in 32 bits: the decades are multiplied up and may miss a whole number by a hair.
      const f32 frequency = static_cast<f32>(value);
      if (frequency >= record.Fstart) Add(grid, record, frequency);
    }
  }
}

// Whether a number is one of `digits` in any of the three decades of a multiplier.
bool IsMultipleOf(f64 number, std::span<const f64> digits) {
  return std::any_of(digits.begin(), digits.end(),
                     [number](f64 digit) { return number == digit || number == 10 * digit || number == 100 * digit; });
}

bool IsUnnamed(const DesignRecord& record, const std::string& text) {
  static constexpr f64 always[] = {1.5, 7, 9};
  static constexpr f64 overDecades[] = {2, 3, 4, 5, 6, 7, 8, 9};
  static constexpr f64 overOneDecade[] = {3, 4, 6, 7, 8, 9};
  const f64 number = LeadingNumber(text);  // "15k" counts as 15, whatever the multiplier
  if (IsMultipleOf(number, always)) return true;
  const f32 ratio = record.Fstop / record.Fstart;
  if (ratio > 1000) return IsMultipleOf(number, overDecades);
  return ratio > 10 && IsMultipleOf(number, overOneDecade);
}

}  // namespace

FrequencyGrid MakeFrequencyGrid(const DesignRecord& record) {
  FrequencyGrid grid;
  if (record.SweepMode == 1) {
    AddLinear(grid, record);
  } else {
    AddDecades(grid, record);
  }
  return grid;
}

std::vector<GridLabel> LabelsOf(const DesignRecord& record, const FrequencyGrid& grid) {
  const bool linear = record.SweepMode == 1;
  const f32 distance = linear ? linearDistance : logarithmicDistance;
  std::vector<GridLabel> labels;
  f32 lastLabelled = -1;
  for (int k = 0; k <= grid.GridLast && labels.size() < mostLabels; ++k) {
    const f32 fraction = grid.GridFraction[k];
    if (fraction - lastLabelled < distance) continue;
    // Nothing is crowded just before the label at the end of the frame.
    if (fraction > 0.95F && fraction < 0.999F) continue;
    const std::string text = Trimmed(FormatFrequency(grid.GridFreq[k]));
    if (!linear && IsUnnamed(record, text)) continue;
    labels.push_back({fraction, text});
    lastLabelled = fraction;
  }
  return labels;
}

f32 HorizontalStep(const DesignRecord& record) {
  if (record.NrYints == 0) throw NumericFault("Division by zero");
  return static_cast<f32>(ToI16(static_cast<f64>(plotFrame.height) / static_cast<f64>(record.NrYints) - 1));
}

}  // namespace quilm
