#include "reports/PrintSchematicSimple.h"

#include <string>

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "reports/Report.h"
#include "schematic/modSchematic.h"
#include "shell/Picture.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr f32 left = 1200;
constexpr f32 top = 700;
constexpr f32 middle = 6500;
constexpr f32 titleRow = 400;
constexpr f32 textSize = 8;  // points

}  // namespace

void DrawArtworkReport(const DesignRecord& record, SchematicMode mode, const DateTime& today, Canvas& printer) {
  printer.FontName = "Courier New";
  printer.FontSize = textSize;
  Report report(printer, {.left = left}, drawingSheet);
  report.SetHead([title = Trimmed(record.CircuitTitle)](Canvas& sheet) { PrintTitle(sheet, middle, titleRow, title); });
  report.SetFoot({FootLine(today)});
  Picture artwork;
  DrawArtwork(record, mode, artwork);
  const f32 x = middle - artwork.ScaleWidth / 2;
  artwork.ReplayInto(printer, {x, top}, {x + artwork.ScaleWidth, top + artwork.ScaleHeight});
  const std::string family = FamilyName(record.Family);
  if (!family.empty()) printer.PrintAt(left, top + artwork.ScaleHeight, "Family:  " + family);
  report.End();
}

void PrintSchematicSimple(Session& session) {
  PrintReport(session.platform, "We had a printer problem", [&session](Canvas& printer) {
    DrawArtworkReport(session.record, session.schematicView.mode, session.platform.Now(), printer);
  });
}

}  // namespace quilm
