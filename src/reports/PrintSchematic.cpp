#include "reports/PrintSchematic.h"

#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "reports/Report.h"
#include "schematic/DesignData.h"
#include "schematic/modSchematic.h"
#include "shell/PenScope.h"
#include "shell/Picture.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f32 rowLeft = 1200;
constexpr f32 rowRight = 12100;
constexpr f32 firstRow = 900;
constexpr f32 rowGap = 250;
constexpr f32 lastRow = 15700;  // nothing but the foot stands lower
constexpr f32 middle = 6500;
constexpr f32 titleRow = 400;
constexpr f32 textSize = 8;  // points

// Puts one thing below the other, on a new sheet where there is no room left.
class Stack {
 public:
  explicit Stack(Report& report) : report_(report) {}

  // The place of the next thing.
  f32 Take(f32 height) {
    if (next_ + height > lastRow && next_ > firstRow) {
      report_.NextSheet();
      next_ = firstRow;
    }
    const f32 y = next_;
    next_ += height + rowGap;
    return y;
  }

 private:
  Report& report_;
  f32 next_ = firstRow;
};

void DrawRows(const DesignRecord& record, const SchematicView& view, Stack& stack, Canvas& printer) {
  for (const SchematicRow& row : SchematicRows(record, rowRight - rowLeft)) {
    Picture drawing;
    DrawSchematicRow(record, view, row, drawing);
    const f32 y = stack.Take(drawing.ScaleHeight);
    drawing.ReplayInto(printer, {rowLeft, y}, {rowLeft + drawing.ScaleWidth, y + drawing.ScaleHeight});
  }
}

}  // namespace

void DrawSchematicReport(const DesignRecord& record, const SchematicView& view, const DateTime& today,
                         Canvas& printer) {
  printer.FontName = "Courier New";
  printer.FontSize = textSize;
  Report report(printer, {.left = rowLeft}, drawingSheet);
  report.SetHead([title = Trimmed(record.CircuitTitle)](Canvas& sheet) { PrintTitle(sheet, middle, titleRow, title); });
  report.SetFoot({FootLine(today)});
  Stack stack(report);
  if (record.Stages < 1) {
    printer.PrintAt(rowLeft, firstRow, "The parts list is empty");
  } else {
    DrawRows(record, view, stack, printer);
    const f32 y = stack.Take(DesignDataHeight(record));
    const PenScope pen(printer);
    printer.FontName = "Arial";
    DrawDesignData(record, rowLeft, y, printer, DataFor::Report);
  }
  report.End();
}

void PrintSchematic(Session& session) {
  const std::string fault = TryReport(session.platform, [&session](Canvas& printer) {
    DrawSchematicReport(session.record, session.schematicView, session.platform.Now(), printer);
  });
  if (!fault.empty()) TellPrinterError(session.platform, "Schematic 1956; we had a printer error; " + fault);
}

}  // namespace quilm
