#include "display/PlotText.h"

#include "core/modGeneral.h"
#include "shell/PenScope.h"

namespace quilm {

void PrintEndingAt(Canvas& canvas, f32 x, f32 y, const std::string& text) {
  const PenScope pen(canvas);
  canvas.Fit.anchor = 1;
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

namespace {

constexpr f32 sharedRow = 7500;

// As large as fits below the plot.
void DrawTitle(const std::string& title, f32 row, Canvas& canvas) {
  constexpr f32 largest = 11;  // points
  constexpr f32 middle = 6500;
  constexpr f32 widest = 9000;
  const PenScope pen(canvas);
  canvas.ShowOn = Medium::Paper;
  canvas.FontBold = true;
  canvas.FontSize = largest;
  const f32 width = canvas.TextWidth(title);
  if (width > widest) canvas.FontSize *= widest / width;
  canvas.PrintAt(middle - canvas.TextWidth(title) / 2, row, title);
}

}  // namespace

void DrawPaperTitle(const std::string& title, BelowPlot below, Canvas& canvas) {
  constexpr f32 titleRowBelow = 7400;
  if (Trimmed(title).empty()) return;
  DrawTitle(Trimmed(title), below == BelowPlot::Markers ? sharedRow : titleRowBelow, canvas);
}

void DrawFooters(const std::string& title, BelowPlot below, Canvas& canvas) {
  constexpr Point start{1400, 7660};
  constexpr f32 sharedLeft = 3300;
  const bool shared = below == BelowPlot::Markers;
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  canvas.ShowOn = Medium::Screen;
  canvas.Fit.anchor = 0;
  canvas.PrintAt(footerLeft, shared ? sharedRow : footerRow, "Mousedown for data");
  canvas.PrintAt(shared ? sharedLeft : start.x, shared ? sharedRow : start.y, "Start");
  DrawPaperTitle(title, below, canvas);
}

}  // namespace quilm
