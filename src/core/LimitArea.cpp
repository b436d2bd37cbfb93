#include "core/LimitArea.h"

#include <algorithm>
#include <array>

namespace quilm {

namespace {

using Reach = LimitReach;
using Side = LimitSide;

constexpr std::array<LimitShapeRow, limitShapes> shapes = {{{Reach::FromDC, Side::Floor},
                                                            {Reach::Upward, Side::Ceiling},
                                                            {Reach::Upward, Side::Floor},
                                                            {Reach::FromDC, Side::Ceiling},
                                                            {Reach::Band, Side::Floor},
                                                            {Reach::Band, Side::Ceiling},
                                                            {Reach::Single, Side::Floor},
                                                            {Reach::Single, Side::Ceiling},
                                                            {Reach::Single, Side::Point}}};

}  // namespace

const LimitShapeRow& ShapeOf(f32 shape) {
  if (!(shape >= 1 && shape <= limitShapes)) throw BoundFault();
  return shapes[static_cast<std::size_t>(shape) - 1];
}

LimitArea AreaAt(const LimitsAndMarkers& limits, int type, int j) {
  return {limits.LimitShape[j][type], limits.LimitStart[j][type], limits.LimitStop[j][type], limits.LimitTop[j][type],
          limits.LimitBottom[j][type]};
}

void SetArea(LimitsAndMarkers& limits, int type, int j, const LimitArea& area) {
  limits.LimitShape[j][type] = area.shape;
  limits.LimitStart[j][type] = area.start;
  limits.LimitStop[j][type] = area.stop;
  limits.LimitTop[j][type] = area.top;
  limits.LimitBottom[j][type] = area.bottom;
}

bool AddArea(LimitsAndMarkers& limits, int type, const LimitArea& area) {
  const int count = std::max<int>(limits.LimitCount[type], 0);
  if (count >= limitsPerPlot) return false;
  SetArea(limits, type, count + 1, area);
  limits.LimitCount[type] = static_cast<i16>(count + 1);
  return true;
}

bool HasAreas(const LimitsAndMarkers& limits) {
  return std::any_of(limits.LimitCount.begin(), limits.LimitCount.end(), [](i16 count) { return count > 0; });
}

void EraseAreas(LimitsAndMarkers& limits, int type) {
  limits.LimitCount[type] = 0;
  for (int j = 1; j <= limitsPerPlot; ++j) SetArea(limits, type, j, {});
}

void EraseAllAreas(LimitsAndMarkers& limits) {
  for (int type = 1; type <= plotTypes; ++type) EraseAreas(limits, type);
}

}  // namespace quilm
