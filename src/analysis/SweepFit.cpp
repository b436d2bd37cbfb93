#include "analysis/SweepFit.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Topology.h"

namespace quilm {

namespace {

bool HasCenter(const DesignRecord& record) {
  const FilterKind kind = FilterKindOf(record.Topology);
  return kind == FilterKind::None ? record.Fcenter > 0 : NeedsCenter(record.Topology);
}

// f2 - f1 = width and f1 f2 = center^2.
FrequencySpan EdgesAbout(f64 center, f64 width) {
  const f64 half = width / 2;
  const f64 lower = std::hypot(half, center) - half;
  return {static_cast<f32>(lower), static_cast<f32>(lower + width)};
}

// The power of ten at or below a value above 0.
f64 DecadeOf(f64 value) { return std::pow(10.0, std::floor(std::log10(value))); }

// A hair is forgiven, so that what is round in 32 bits stays as it is.
constexpr f64 hair = 1e-5;
f64 RoundedDown(f64 value, f64 step) { return std::floor(value / step + hair) * step; }
f64 RoundedUp(f64 value, f64 step) { return std::ceil(value / step - hair) * step; }

FrequencySpan RoundSweep(f64 from, f64 to, f64 lowStep, f64 highStep) {
  return {limitsOf::Fstart.Held(static_cast<f32>(RoundedDown(from, lowStep))),
          limitsOf::Fstop.Held(static_cast<f32>(RoundedUp(to, highStep)))};
}

FrequencySpan SweepAboutEdge(f64 edge) {
  return RoundSweep(edge / 10, edge * 10, DecadeOf(edge / 10 * (1 + hair)), DecadeOf(edge * 10 * (1 + hair)));
}

FrequencySpan SweepAboutCenter(f64 center, f64 width) {
  constexpr f64 halfWidths = 2.5;
  const f64 step = DecadeOf(width * (1 + hair)) / 2;
  const f64 lower = center - halfWidths * width;
  const f64 least = static_cast<f64>(EdgesAbout(center, width).from) / 10;
  // Steps of the width would lose a start far below it.
  return lower - step > least ? RoundSweep(lower, center + halfWidths * width, step, step)
                              : RoundSweep(least, center + halfWidths * width, DecadeOf(least), step);
}

}  // namespace

std::optional<FrequencySpan> BandOf(const DesignRecord& record) {
  if (!(record.Width > 0)) return std::nullopt;
  if (!HasCenter(record)) return FrequencySpan{record.Width, record.Width};
  if (!(record.Fcenter > 0)) return std::nullopt;
  return EdgesAbout(record.Fcenter, record.Width);
}

std::optional<FrequencySpan> FittingSweep(const DesignRecord& record) {
  if (!BandOf(record)) return std::nullopt;
  return HasCenter(record) ? SweepAboutCenter(record.Fcenter, record.Width) : SweepAboutEdge(record.Width);
}

bool HoldsBand(const DesignRecord& record) {
  const auto band = BandOf(record);
  return !band || (record.Fstart < band->from && band->to < record.Fstop);
}

std::string SweepFault(const SweepSettings& sweep) {
  if (sweep.Fstart == sweep.Fstop) return "Start and stop are equal";
  return sweep.Fstop < sweep.Fstart ? "Stop is below start" : "";
}

}  // namespace quilm
