#include "reports/Report.h"

#include <algorithm>
#include <utility>

#include "core/Fault.h"
#include "shell/Platform.h"

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

Scale SheetScale(const Scale& paper, f32 width, f32 height) {
  const f32 unitsPerTwip = std::max(width / paper.width, height / paper.height);
  return {0, 0, paper.width * unitsPerTwip, paper.height * unitsPerTwip};
}

Report::Report(Canvas& printer, const LineGrid& grid) : printer_(printer), grid_(grid) {
  printer_.SetScale(SheetScale(printer_.CurrentScale(), sheetWidth, sheetHeight));
  printer_.ForeColor = colorBlack;
}

void Report::SetHead(std::function<void(Canvas&)> head) {
  head_ = std::move(head);
  head_(printer_);
}

f32 Report::NextLine() {
  if (line_ >= grid_.lines) {
    PrintFoot();
    printer_.NewPage();
    line_ = 0;
    if (head_) head_(printer_);
  }
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

std::string TryReport(Platform& platform, const std::function<void(Canvas&)>& draw) {
  try {
    Canvas* printer = platform.PrintDialog();
    if (printer != nullptr) DrawAndClose(*printer, draw);
    return {};
  } catch (const Fault& fault) {
    return fault.what();
  }
}

void PrintReport(Platform& platform, const std::string& complaint, const std::function<void(Canvas&)>& draw) {
  const std::string fault = TryReport(platform, draw);
  if (fault.empty()) return;
  platform.MessageBox(complaint + "\r\n" + fault, Buttons::Ok, Icon::Exclamation, "Printer Error");
}

}  // namespace quilm
