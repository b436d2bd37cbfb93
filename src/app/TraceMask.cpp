#include "app/TraceMask.h"

#include <algorithm>
#include <cmath>

namespace quilm {

namespace {

// Wide enough for what an int holds, and beyond every surface.
constexpr f32 farAway = 1e6F;

// A straight stretch of a trace while it is walked: which directions from its start pass all its points closely enough.
// Williams, Bounded straight-line approximation of digitized planar curves and lines, Computer Graphics and Image
// Processing 16 (1981).
class Stretch {
 public:
  explicit Stretch(Point start) : start_(start), end_(start) {}

  Point Start() const { return start_; }
  Point End() const { return end_; }

  // Goes on to a point. False when a line to it would miss the points before, or turn back.
  bool Take(Point to) {
    const f32 dx = to.x - start_.x;
    const f32 dy = to.y - start_.y;
    if (!aimed_ && !Aim(dx, dy)) {
      end_ = to;
      return true;
    }
    const f32 along = dx * aimX_ + dy * aimY_;
    const f32 across = dy * aimX_ - dx * aimY_;
    if (along < reached_ || across < least_ * along || across > most_ * along) return false;
    least_ = std::max(least_, (across - tolerance) / along);
    most_ = std::min(most_, (across + tolerance) / along);
    reached_ = along;
    end_ = to;
    return true;
  }

 private:
  static constexpr f32 tolerance = 0.05F;  // of a pixel
  static constexpr f32 everyDirection = 1e9F;

  // The first point far enough from the start gives the direction. False while there is none.
  bool Aim(f32 dx, f32 dy) {
    const f32 length = std::sqrt(dx * dx + dy * dy);
    if (length <= tolerance) return false;
    aimX_ = dx / length;
    aimY_ = dy / length;
    aimed_ = true;
    return true;
  }

  Point start_;
  Point end_;
  bool aimed_ = false;
  f32 aimX_ = 0;
  f32 aimY_ = 0;
  f32 reached_ = 0;
  f32 least_ = -everyDirection;  // sideways a unit forward
  f32 most_ = everyDirection;
};

int FirstPixel(f32 from, int least) { return std::max(least, static_cast<int>(std::ceil(std::max(from, -farAway)))); }
int LastPixel(f32 to, int most) { return std::min(most, static_cast<int>(std::floor(std::min(to, farAway)))); }

}  // namespace

// A line in coordinates where whole numbers are the centres of pixels.
struct TraceMask::Line {
  f32 x;
  f32 y;
  f32 dx;
  f32 dy;
  f32 reach;          // no pixel farther away is touched
  f32 inverseSquare;  // of its length; 0 for a point
  f32 slant;          // half the length of a row's cut through the endless line
  f32 inverseRise;    // 1 / dy
  bool flat;          // so that rows do not cut it

  // Widens [least, most] to where the line comes within reach of row `row`; false when it does not.
  bool Span(f32 row, f32& least, f32& most) const;
};

bool TraceMask::Line::Span(f32 row, f32& least, f32& most) const {
  f32 first = 0;
  f32 last = 1;
  if (!flat) {
    const f32 a = (row - reach - y) * inverseRise;
    const f32 b = (row + reach - y) * inverseRise;
    first = std::max(first, std::min(a, b));
    last = std::min(last, std::max(a, b));
    if (first > last) return false;
  }
  const f32 from = x + first * dx;
  const f32 to = x + last * dx;
  least = std::min(from, to) - reach;
  most = std::max(from, to) + reach;
  if (flat) return true;
  const f32 crossing = x + (row - y) * inverseRise * dx;
  least = std::max(least, crossing - slant);
  most = std::min(most, crossing + slant);
  return true;
}

TraceMask::TraceMask(const PixelBox& room)
    : room_(room),
      columns_((std::max(room.right - room.left, 0) + tileSize - 1) / tileSize),
      tileIndex_(static_cast<std::size_t>(columns_ * ((std::max(room.bottom - room.top, 0) + tileSize - 1) / tileSize)),
                 -1) {}

std::uint8_t* TraceMask::CoverAt(int x, int y) {
  const int column = (x - room_.left) / tileSize;
  const int row = (y - room_.top) / tileSize;
  i32& index = tileIndex_[static_cast<std::size_t>(row * columns_ + column)];
  if (index < 0) {
    index = static_cast<i32>(tiles_.size());
    tiles_.push_back({room_.left + column * tileSize, room_.top + row * tileSize, {}});
  }
  Tile& tile = tiles_[static_cast<std::size_t>(index)];
  return tile.cover.data() + (y - tile.top) * tileSize + (x - tile.left);
}

void TraceMask::AddTrace(std::span<const Point> points, f32 width) {
  if (points.empty()) return;
  Stretch stretch(points.front());
  for (const Point point : points.subspan(1)) {
    if (stretch.Take(point)) continue;
    AddLine(stretch.Start(), stretch.End(), width);
    stretch = Stretch(stretch.End());
    stretch.Take(point);
  }
  AddLine(stretch.Start(), stretch.End(), width);
}

void TraceMask::AddLine(Point from, Point to, f32 width) {
  constexpr f32 halfPixel = 0.5F;
  Line line{.x = from.x - halfPixel,
            .y = from.y - halfPixel,
            .dx = to.x - from.x,
            .dy = to.y - from.y,
            .reach = halfPixel * width + halfPixel,
            .inverseSquare = 0,
            .slant = 0,
            .inverseRise = 0,
            .flat = true};
  const f32 square = line.dx * line.dx + line.dy * line.dy;
  constexpr f32 noLength = 1e-12F;
  if (square > noLength) line.inverseSquare = 1 / square;
  constexpr f32 noRise = 1e-4F;
  line.flat = std::fabs(line.dy) < noRise;
  if (!line.flat) {
    line.inverseRise = 1 / line.dy;
    line.slant = line.reach * std::sqrt(square) * std::fabs(line.inverseRise);
  }
  const int top = FirstPixel(std::min(line.y, line.y + line.dy) - line.reach, room_.top);
  const int bottom = LastPixel(std::max(line.y, line.y + line.dy) + line.reach, room_.bottom - 1);
  for (int row = top; row <= bottom; ++row) AddRow(line, row);
}

void TraceMask::AddRow(const Line& line, int row) {
  f32 least = 0;
  f32 most = 0;
  const auto height = static_cast<f32>(row);
  if (!line.Span(height, least, most)) return;
  const int end = LastPixel(most, room_.right - 1) + 1;
  const f32 down = height - line.y;
  for (int x = FirstPixel(least, room_.left); x < end;) {
    const int tileEnd = x - (x - room_.left) % tileSize + tileSize;
    const int count = std::min(end, tileEnd) - x;
    std::uint8_t* cover = CoverAt(x, row);
    const f32 start = static_cast<f32>(x) - line.x;
    for (int i = 0; i < count; ++i) {
      const f32 right = start + static_cast<f32>(i);
      const f32 along = (right * line.dx + down * line.dy) * line.inverseSquare;
      const f32 nearest = std::min(std::max(along, 0.0F), 1.0F);
      const f32 across = right - nearest * line.dx;
      const f32 below = down - nearest * line.dy;
      const f32 distance = std::sqrt(across * across + below * below);
      const f32 covered = std::min(std::max(line.reach - distance, 0.0F), 1.0F);
      constexpr f32 whole = 255;
      constexpr f32 toNearest = 0.5F;
      cover[i] = std::max(cover[i], static_cast<std::uint8_t>(covered * whole + toNearest));
    }
    x += count;
  }
}

}  // namespace quilm
