#include "app/TraceMask.h"

#include <algorithm>
#include <cmath>

namespace quilm {

namespace {

// Wide enough for what an int holds, and beyond every surface.
constexpr f32 farAway = 1e6F;

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
  bool flat;          // so that rows do not cut it

  // Widens [least, most] to where the line comes within reach of row `row`; false when it does not.
  bool Span(f32 row, f32& least, f32& most) const;
};

bool TraceMask::Line::Span(f32 row, f32& least, f32& most) const {
  f32 first = 0;
  f32 last = 1;
  if (!flat) {
    const f32 a = (row - reach - y) / dy;
    const f32 b = (row + reach - y) / dy;
    first = std::max(first, std::min(a, b));
    last = std::min(last, std::max(a, b));
    if (first > last) return false;
  }
  const f32 from = x + first * dx;
  const f32 to = x + last * dx;
  least = std::min(from, to) - reach;
  most = std::max(from, to) + reach;
  if (flat) return true;
  const f32 crossing = x + (row - y) / dy * dx;
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

void TraceMask::AddLine(f32 x1, f32 y1, f32 x2, f32 y2, f32 width) {
  constexpr f32 halfPixel = 0.5F;
  Line line{.x = x1 - halfPixel,
            .y = y1 - halfPixel,
            .dx = x2 - x1,
            .dy = y2 - y1,
            .reach = halfPixel * width + halfPixel,
            .inverseSquare = 0,
            .slant = 0,
            .flat = true};
  const f32 square = line.dx * line.dx + line.dy * line.dy;
  constexpr f32 noLength = 1e-12F;
  if (square > noLength) line.inverseSquare = 1 / square;
  constexpr f32 noRise = 1e-4F;
  line.flat = std::fabs(line.dy) < noRise;
  if (!line.flat) line.slant = line.reach * std::sqrt(square) / std::fabs(line.dy);
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
      cover[i] = std::max(cover[i], static_cast<std::uint8_t>(covered * whole + 0.5F));
    }
    x += count;
  }
}

}  // namespace quilm
