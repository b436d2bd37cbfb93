#include "display/PlotText.h"

#include "shell/PenScope.h"

namespace quilm {

void PrintEndingAt(Canvas& canvas, f32 x, f32 y, const std::string& text) {
  canvas.PrintAt(x - canvas.TextWidth(text), y, text);
}

void PrintOnPatch(Canvas& canvas, f32 x, f32 y, const std::string& text) {
  constexpr f32 margin = 15;
  canvas.Rectangle(x - margin, y, x + canvas.TextWidth(text) + margin, y + canvas.TextHeight(text), colorWhite, true);
  canvas.PrintAt(x, y, text);
}

void PrintAbout(Canvas& canvas, Point middle, const std::string& text) {
  PrintOnPatch(canvas, middle.x - canvas.TextWidth(text) / 2, middle.y - canvas.TextHeight(text) / 2, text);
}

void DrawFooters(Canvas& canvas) {
  constexpr f32 startLeft = 1400;
  constexpr f32 startRow = 7660;
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  canvas.PrintAt(footerLeft, footerRow, "Mousedown for data");
  canvas.PrintAt(startLeft, startRow, "Start");
}

}  // namespace quilm
