// How much of each pixel a trace covers, computed line by line: the toolkit strokes a pen wider than a pixel by
// outlining the whole trace and filling the outline, which takes ten times as long.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "shell/Canvas.h"

namespace quilm {

// A rectangle of whole pixels; right and bottom are the first ones beyond it.
struct PixelBox {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

// Coverage falls off over one pixel along the edge of the pen, by the distance of the pixel's centre from the line.
// Lines that meet or overlap cover a pixel as much as the nearest of them does, so joints are round, without gaps and
// without beads, however short the lines are.
class TraceMask {
 public:
  // Covers nothing outside `room`.
  explicit TraceMask(const PixelBox& room);

  // Lines from point to point with round ends and joints, `width` pixels wide. Coordinates are in pixels, (0.5, 0.5)
  // the centre of the first. Points that lie within a twentieth of a pixel of a straight stretch make one line with it.
  void AddTrace(std::span<const Point> points, f32 width);

  // Calls paint(x, y, cover, count) for runs of pixels; cover[i] is the coverage of pixel x + i in row y, 0 to 255.
  // Pixels that no line came near are in no run.
  template <class Paint>
  void ForEachRun(Paint paint) const {
    for (const Tile& tile : tiles_) {
      for (int row = 0; row < tileSize && tile.top + row < room_.bottom; ++row) {
        const int count = tile.left + tileSize < room_.right ? tileSize : room_.right - tile.left;
        paint(tile.left, tile.top + row, tile.cover.data() + row * tileSize, count);
      }
    }
  }

 private:
  static constexpr int tileSize = 32;
  struct Tile {
    int left;
    int top;
    std::array<std::uint8_t, tileSize * tileSize> cover;
  };
  struct Line;

  void AddLine(Point from, Point to, f32 width);
  void AddRow(const Line& line, int y);
  std::uint8_t* CoverAt(int x, int y);

  PixelBox room_;
  int columns_;                 // of tiles
  std::vector<i32> tileIndex_;  // of the tile at a place, -1 where none was needed yet
  std::vector<Tile> tiles_;
};

}  // namespace quilm
