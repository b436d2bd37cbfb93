// What all printed reports share: sheets of true proportions on whatever paper the printer holds, lines from top to
// bottom, the break between sheets, the foot, and the fault of the printer.
#pragma once

#include <algorithm>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/Canvas.h"
#include "shell/Platform.h"

namespace quilm {

// The sheets that reports are laid out for. Everything a report places lies within its sheet. Text is US letter in
// twips; what pages draw has their own coordinates in the middle of a letter sheet, plots one that lies crosswise.
inline constexpr Scale textSheet{0, 0, 12240, 15840};
inline constexpr Scale plotSheet{0, -600, 13000, 10045};
inline constexpr Scale drawingSheet{0, 0, 13000, 16824};

// A scale for `paper`, a printer's own in twips, that holds a sheet whole and counts alike in x and y. What the paper
// is wider than the sheet comes as room at both sides, what it is higher as room at the bottom.
Scale SheetScale(const Scale& paper, const Scale& sheet);

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
  Report(Canvas& printer, const LineGrid& grid, const Scale& sheet = textSheet);

  // Drawn on each sheet: the head at once on the present one, the foot on its last lines when the sheet ends.
  void SetHead(std::function<void(Canvas&)> head);
  void SetFoot(std::vector<std::string> lines) { foot_ = std::move(lines); }

  // The next line, on a new sheet when the present one is full.
  void Line(std::string_view text);
  // The same with texts in columns, so many twips apart.
  void Line(std::span<const std::string> columns, f32 columnPitch);
  void Skip(int lines = 1) { line_ += lines; }

  // The place of the next line, for texts that are no plain line.
  f32 NextLine();

  // How many lines the present sheet still takes.
  int LinesLeft() const { return std::max(grid_.lines - line_, 0); }

  // Ends the present sheet and begins another one.
  void NextSheet();

  // Ends the last sheet and the document.
  void End();

 private:
  void PrintFoot();

  Canvas& printer_;
  LineGrid grid_;
  std::function<void(Canvas&)> head_;
  std::vector<std::string> foot_;
  int line_ = 0;
};

// Texts side by side at a height, the first at `left`.
void PrintColumns(Canvas& printer, f32 left, f32 y, f32 columnPitch, std::span<const std::string> columns);

// The last line at the foot of a sheet: the date and the program with its version.
std::string FootLine(const DateTime& today);

// Prints a title in bold letters about the middle of a sheet, as large as fits; nothing for an empty one.
void PrintTitle(Canvas& printer, f32 middle, f32 y, const std::string& title);

// Offers a printer and draws a report on it. Cancelling is quiet. A fault, the printer's or the report's, ends the
// report and closes the document; its words are the result, which is empty otherwise.
std::string TryReport(Platform& platform, const std::function<void(Canvas&)>& draw,
                      Orientation paper = Orientation::Portrait);

// Tells of a fault in a box "Printer Error".
void TellPrinterError(Platform& platform, const std::string& text);

// TryReport, where a fault is told: `complaint`, and the words of the fault under it.
void PrintReport(Platform& platform, const std::string& complaint, const std::function<void(Canvas&)>& draw,
                 Orientation paper = Orientation::Portrait);

}  // namespace quilm
