#include "optimise/LimitScore.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <utility>

namespace quilm {

namespace {

constexpr int delayType = 4;

// Shapes 1, 3 and 5 are floors, 2, 4 and 6 ceilings. The others bound no response.
bool IsFloorShape(f32 shape) { return shape == 1 || shape == 3 || shape == 5; }
bool IsCeilingShape(f32 shape) { return shape == 2 || shape == 4 || shape == 6; }

}  // namespace

LimitScore::LimitScore(const LimitsAndMarkers& limits, f32 DelayTop, std::span<const f32> frequencies)
    : DelayTop_(DelayTop) {
  for (int type = 1; type <= plotTypes; ++type) {
    for (int j = 1; j <= limits.LimitCount[type]; ++j) TakeArea(limits, type, j, frequencies);
  }
  MakeStretches();
}

void LimitScore::TakeArea(const LimitsAndMarkers& limits, int plotType, int number, std::span<const f32> frequencies) {
  const f32 shape = limits.LimitShape[number][plotType];
  const bool isFloor = IsFloorShape(shape);
  if (!isFloor && !IsCeilingShape(shape)) return;
  const f32 start = limits.LimitStart[number][plotType];
  const f32 stop = limits.LimitStop[number][plotType];
  const auto isWithin = [start, stop](f32 frequency) { return frequency >= start && frequency <= stop; };
  const auto first = std::find_if(frequencies.begin(), frequencies.end(), isWithin);
  const auto end = std::find_if_not(first, frequencies.end(), isWithin);
  if (first == end) return;
  const f32 edge = isFloor ? limits.LimitTop[number][plotType] : limits.LimitBottom[number][plotType];
  areas_.push_back({plotType, isFloor, edge, static_cast<int>(first - frequencies.begin()),
                    static_cast<int>(end - frequencies.begin())});
}

void LimitScore::MakeStretches() {
  std::vector<int> bounds;
  for (const Area& area : areas_) bounds.insert(bounds.end(), {area.first, area.end});
  std::sort(bounds.begin(), bounds.end());
  bounds.erase(std::unique(bounds.begin(), bounds.end()), bounds.end());
  for (std::size_t i = 0; i + 1 < bounds.size(); ++i) {
    Stretch stretch{bounds[i], bounds[i + 1], {}};
    std::copy_if(areas_.begin(), areas_.end(), std::back_inserter(stretch.areas),
                 [&](const Area& area) { return area.first <= stretch.first && stretch.end <= area.end; });
    if (!stretch.areas.empty()) stretches_.push_back(std::move(stretch));
  }
}

LimitScore::Bounded LimitScore::BoundedOf(const Responses& r) {
  return {r.RespTrans.data(), r.RespReturn.data(), r.RespAngle.data(),
          r.RespDelay.data(), r.RespVSWR.data(),   r.RespZin.data()};
}

bool LimitScore::IsOutside(const Area& area, f32 response) {
  return area.isFloor ? response < area.edge : response > area.edge;
}

f32 LimitScore::Excess(const Area& area, f32 response) const {
  f32 excess = std::abs(area.edge) - std::abs(response);
  if (area.plotType == delayType && excess != 0) {
    excess = static_cast<f32>(static_cast<f64>(excess) * 100 / static_cast<f64>(DelayTop_));
  }
  return std::abs(excess);
}

f32 LimitScore::GetError(const Responses& responses) const {
  const Bounded bounded = BoundedOf(responses);
  f32 ErrorSum = 0;
  for (const Stretch& stretch : stretches_) {
    for (int i = stretch.first; i < stretch.end; ++i) {
      for (const Area& area : stretch.areas) {
        const f32 response = bounded[static_cast<std::size_t>(area.plotType - 1)][i];
        if (IsOutside(area, response)) ErrorSum += Excess(area, response);
      }
    }
  }
  return ErrorSum;
}

bool LimitScore::IsMet(const Responses& responses) const {
  const Bounded bounded = BoundedOf(responses);
  return std::all_of(areas_.begin(), areas_.end(), [&](const Area& area) {
    const f32* points = bounded[static_cast<std::size_t>(area.plotType - 1)];
    return std::none_of(points + area.first, points + area.end,
                        [&area](f32 response) { return IsOutside(area, response); });
  });
}

int LimitAreas(const LimitsAndMarkers& limits) {
  return std::accumulate(limits.LimitCount.begin(), limits.LimitCount.end(), 0);
}

}  // namespace quilm
