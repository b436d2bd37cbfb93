#include "analysis/SweepTable.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "analysis/KernelVariants.h"
#include "core/NumericFault.h"

namespace quilm {

namespace {

constexpr f64 smallestStep = 1e-27;  // Hz, so that two equal frequencies give a huge delay and no failure

bool SameBits(f32 a, f32 b) { return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b); }

bool IsFor(const SweepTable& table, const SweepSettings& settings) {
  return table.points > 0 && table.settings.SweepMode == settings.SweepMode &&
         SameBits(table.settings.Fstart, settings.Fstart) && SameBits(table.settings.Fstop, settings.Fstop) &&
         SameBits(table.settings.NrIntervals, settings.NrIntervals);
}

int LastPoint(const SweepSettings& settings) {
  const int last = ToI16(static_cast<f64>(settings.NrIntervals));
  if (last < 0 || last > responseBound) throw BoundFault();
  return last;
}

void FillFrequencies(const SweepSettings& settings, int last, SweepTable& table) {
  const f64 start = settings.Fstart;
  const f64 stop = settings.Fstop;
  const f64 intervals = settings.NrIntervals;
  f64* wide = table.w.data();
  NumericFaultScope scope;
  if (settings.SweepMode == 1) {
    for (int i = 0; i <= last; ++i) wide[i] = (stop - start) * i / intervals + start;
  } else {
    const f64 from = scope.Checked(std::log(start));
    const f64 span = scope.Checked(std::log(stop)) - from;
    for (int i = 0; i <= last; ++i) wide[i] = from + span * i / intervals;
    ExponentialsOf(wide, last + 1);
  }
  for (int i = 0; i <= last; ++i) table.frequency[static_cast<std::size_t>(i)] = static_cast<f32>(wide[i]);
  scope.Checked(static_cast<f64>(table.frequency[static_cast<std::size_t>(last)]));
}

// The delay is taken over the actual step of the sweep: a phase change of more than 180 degrees in one step aliases by
// design.
f64 StepBetween(f32 from, f32 to) {
  const f64 step = static_cast<f64>(to) - static_cast<f64>(from);
  return std::fabs(step) < smallestStep ? smallestStep : step;
}

}  // namespace

f64 DegreesPerDelay(f32 from, f32 to) { return 360 * StepBetween(from, to); }

void KeepTable(SweepTable& table, const SweepSettings& settings) {
  if (IsFor(table, settings)) return;
  table.points = 0;
  const int last = LastPoint(settings);
  FillFrequencies(settings, last, table);
  f32 before = 0;
  for (std::size_t i = 0; i < table.room; ++i) {
    // The padding repeats the last point.
    const f32 frequency = table.frequency[std::min(i, static_cast<std::size_t>(last))];
    table.w[i] = AngularFrequency(frequency);
    table.wInverse[i] = ReciprocalForKernel(table.w[i]);
    table.degreesPerDelay[i] = DegreesPerDelay(before, frequency);
    before = frequency;
  }
  table.settings = settings;
  table.points = last + 1;
}

}  // namespace quilm
