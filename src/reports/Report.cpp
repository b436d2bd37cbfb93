#include "reports/Report.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "core/Fault.h"
#include "shell/PenScope.h"
#include "shell/Version.h"

namespace quilm {

namespace {

constexpr f32 footAboveEdge = 840;  // twips from the lower edge of the sheet up to the last line

// The document is lost already; that it cannot be closed either changes nothing.
void CloseDocument(Canvas& printer) {
  try {
    printer.EndDoc();
  } catch (const Fault&) {
  }
}

void DrawAndClose(Canvas& printer, const std::function<void(Canvas&)>& draw) {
  try {
    draw(printer);
  } catch (const Fault&) {
    CloseDocument(printer);
    throw;
  }
}

}  // namespace

Scale SheetScale(const Scale& paper, const Scale& sheet) {
  const f32 unitsPerTwip = std::max(sheet.width / paper.width, sheet.height / paper.height);
  const f32 width = paper.width * unitsPerTwip;
  return {sheet.left - (width - sheet.width) / 2, sheet.top, width, paper.height * unitsPerTwip};
}

Report::Report(Canvas& printer, const LineGrid& grid, const Scale& sheet) : printer_(printer), grid_(grid) {
  printer_.SetScale(SheetScale(printer_.CurrentScale(), sheet));
  printer_.ForeColor = colorBlack;
}

void Report::SetHead(std::function<void(Canvas&)> head) {
  head_ = std::move(head);
  head_(printer_);
}

void Report::NextSheet() {
  PrintFoot();
  printer_.NewPage();
  line_ = 0;
  if (head_) head_(printer_);
}

f32 Report::NextLine() {
  if (line_ >= grid_.lines) NextSheet();
  return grid_.top + grid_.pitch * static_cast<f32>(line_++);
}

void Report::Line(std::string_view text) { printer_.PrintAt(grid_.left, NextLine(), text); }

void Report::Line(std::span<const std::string> columns, f32 columnPitch) {
  PrintColumns(printer_, grid_.left, NextLine(), columnPitch, columns);
}

void Report::PrintFoot() {
  f32 y = printer_.ScaleTop + printer_.ScaleHeight - footAboveEdge;
  for (auto line = foot_.rbegin(); line != foot_.rend(); ++line) {
    if (!line->empty()) printer_.PrintAt(grid_.left, y, *line);
    y -= grid_.pitch;
  }
}

void Report::End() {
  PrintFoot();
  printer_.EndDoc();
}

void PrintColumns(Canvas& printer, f32 left, f32 y, f32 columnPitch, std::span<const std::string> columns) {
  f32 x = left;
  for (const std::string& text : columns) {
    printer.PrintAt(x, y, text);
    x += columnPitch;
  }
}

std::string FootLine(const DateTime& today) {
  std::array<char, 32> date{};
  std::snprintf(date.data(), date.size(), "%04d-%02d-%02d", today.year, today.month, today.day);
  return std::string(date.data()) + "   -   Quilm " + ProgramVersion();
}

void PrintTitle(Canvas& printer, f32 middle, f32 y, const std::string& title) {
  constexpr f32 largest = 12;  // points
  constexpr f32 widest = 10000;
  const PenScope pen(printer);
  printer.ForeColor = colorBlack;
  printer.FontBold = true;
  printer.FontSize = largest;
  const f32 width = printer.TextWidth(title);
  if (width > widest) printer.FontSize *= widest / width;
  if (!title.empty()) printer.PrintAt(middle - printer.TextWidth(title) / 2, y, title);
}

std::string TryReport(Platform& platform, const std::function<void(Canvas&)>& draw, Orientation paper) {
  try {
    Canvas* printer = platform.PrintDialog(paper);
    if (printer != nullptr) DrawAndClose(*printer, draw);
    return {};
  } catch (const Fault& fault) {
    return fault.what();
  }
}

void TellPrinterError(Platform& platform, const std::string& text) {
  platform.MessageBox(text, Buttons::Ok, Icon::Exclamation, "Printer Error");
}

void PrintReport(Platform& platform, const std::string& complaint, const std::function<void(Canvas&)>& draw,
                 Orientation paper) {
  const std::string fault = TryReport(platform, draw, paper);
  if (!fault.empty()) TellPrinterError(platform, complaint + "\r\n" + fault);
}

}  // namespace quilm
