#include "shell/HitArea.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quilm {

namespace {

bool Between(f32 value, f32 one, f32 other) { return value >= std::min(one, other) && value <= std::max(one, other); }

bool SameToTheUser(const HitArea& one, const HitArea& other) {
  return one.name == other.name && one.from == other.from && one.to == other.to && one.toolTip == other.toolTip &&
         one.enabled == other.enabled && one.walked == other.walked && one.present == other.present;
}

// How far `to` lies from `from` in the direction, and how far aside.
struct Way {
  f32 ahead = 0;
  f32 aside = 0;
};

Way WayBetween(Point from, Point to, Direction direction) {
  const f32 right = to.x - from.x;
  const f32 down = to.y - from.y;
  switch (direction) {
    case Direction::Left:
      return {-right, std::abs(down)};
    case Direction::Right:
      return {right, std::abs(down)};
    case Direction::Up:
      return {-down, std::abs(right)};
    case Direction::Down:
      return {down, std::abs(right)};
  }
  return {};
}

// The walked area that is present; `instead` where none is.
std::size_t PresentOfWalk(const HitAreas& areas, std::size_t instead) {
  const auto at = std::find_if(areas.begin(), areas.end(),
                               [](const HitArea& area) { return area.walked && area.present && area.enabled; });
  return at == areas.end() ? instead : static_cast<std::size_t>(at - areas.begin());
}

}  // namespace

bool HitArea::Contains(Point at) const { return Between(at.x, from.x, to.x) && Between(at.y, from.y, to.y); }

Point HitArea::Middle() const { return {(from.x + to.x) / 2, (from.y + to.y) / 2}; }

bool SameToTheUser(const HitAreas& one, const HitAreas& other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](const HitArea& a, const HitArea& b) { return SameToTheUser(a, b); });
}

std::optional<std::size_t> AreaToward(const HitAreas& areas, std::size_t start, Direction direction) {
  std::optional<std::size_t> nearest;
  f32 shortest = std::numeric_limits<f32>::max();
  for (std::size_t i = 0; i < areas.size(); ++i) {
    const Way way = WayBetween(areas[start].Middle(), areas[i].Middle(), direction);
    const f32 distance = way.ahead + 2 * way.aside;
    if (!areas[i].enabled || way.ahead <= 0 || distance >= shortest) continue;
    shortest = distance;
    nearest = i;
  }
  return nearest;
}

std::optional<std::size_t> AreaAfter(const HitAreas& areas, std::optional<std::size_t> start, int step) {
  const int count = static_cast<int>(areas.size());
  const int before = step > 0 ? -1 : count;
  for (int i = (start ? static_cast<int>(*start) : before) + step; i >= 0 && i < count; i += step) {
    const HitArea& area = areas[static_cast<std::size_t>(i)];
    if (!area.enabled) continue;
    if (!area.walked) return static_cast<std::size_t>(i);
    if (start && areas[*start].walked) continue;
    return PresentOfWalk(areas, static_cast<std::size_t>(i));
  }
  return std::nullopt;
}

}  // namespace quilm
