// What all printed reports share: sheets of true proportions on whatever paper the printer holds, lines from top to
// bottom, the break between sheets, the foot, and the fault of the printer.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/Canvas.h"

namespace quilm {

class Platform;

// The sheet that reports are laid out for, in twips: US letter. Everything a report places lies within it.
inline constexpr f32 sheetWidth = 12240;
inline constexpr f32 sheetHeight = 15840;

// A scale for `paper`, a printer's own in twips, that holds a sheet of the given size whole and counts alike in x and
// y. What the paper is wider or higher than the sheet comes as room at the right or at the bottom.
Scale SheetScale(const Scale& paper, f32 width, f32 height);

// Where the lines of a sheet stand, in twips.
struct LineGrid {
  f32 left = 1440;
  f32 top = 1440;
  f32 pitch = 300;
  int lines = 44;
};

class Report {
 public:
  // Begins on the printer's first sheet, whose scale becomes the sheet's. The font is the printer's present one.
  Report(Canvas& printer, const LineGrid& grid);

  // Drawn on each sheet: the head at once on the present one, the foot on its last lines when the sheet ends.
  void SetHead(std::function<void(Canvas&)> head);
  void SetFoot(std::vector<std::string> lines) { foot_ = std::move(lines); }

  // The next line, on a new sheet when the present one is full.
  void Line(std::string_view text);
  // The same with texts in columns, so many twips apart.
  void Line(std::span<const std::string> columns, f32 columnPitch);
  void Skip() { ++line_; }

  // Ends the last sheet and the document.
  void End();

 private:
  f32 NextLine();
  void PrintFoot();

  Canvas& printer_;
  LineGrid grid_;
  std::function<void(Canvas&)> head_;
  std::vector<std::string> foot_;
  int line_ = 0;
};

// Texts side by side at a height, the first at `left`.
void PrintColumns(Canvas& printer, f32 left, f32 y, f32 columnPitch, std::span<const std::string> columns);

// Offers a printer and draws a report on it. Cancelling is quiet. A fault, the printer's or the report's, ends the
// report and closes the document; its words are the result, which is empty otherwise.
std::string TryReport(Platform& platform, const std::function<void(Canvas&)>& draw);

// The same, where a fault is told in a box "Printer Error": `complaint`, and the words of the fault under it.
void PrintReport(Platform& platform, const std::string& complaint, const std::function<void(Canvas&)>& draw);

}  // namespace quilm
