#include "reports/PrintTable.h"

#include "core/DesignRecord.h"
#include "display/ResponseCurves.h"
#include "display/modTabulate.h"
#include "reports/Report.h"

namespace quilm {

namespace {

// In twips of the sheet.
constexpr f32 leftMargin = 1008;  // 0.7 inch
constexpr f32 titleRow = 700;
constexpr f32 headingRow = 1200;
constexpr f32 rowPitch = 300;
constexpr f32 firstRow = headingRow + 3 * rowPitch;
constexpr f32 columnPitch = 1260;

void PrintHeadings(Canvas& printer) {
  PrintColumns(printer, leftMargin, headingRow, columnPitch, TableHeadings());
  PrintColumns(printer, leftMargin, headingRow + rowPitch, columnPitch, TableUnits());
}

}  // namespace

void PrintTable(const DesignRecord& record, const Responses& responses, Canvas& printer) {
  printer.FontName = "Courier New";
  printer.FontSize = 9;
  Report report(printer, {.left = leftMargin, .top = firstRow, .pitch = rowPitch, .lines = rowsPerSheet});
  printer.PrintAt(leftMargin, titleRow, "Tabulated Responses");
  report.SetHead(PrintHeadings);
  report.SetFoot({record.DesignFileName});
  const int last = LastPoint(record);
  for (int i = 0; i <= last; ++i) report.Line(TableFields(responses, i), columnPitch);
  report.End();
}

}  // namespace quilm
