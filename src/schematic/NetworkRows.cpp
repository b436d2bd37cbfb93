#include "schematic/NetworkRows.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "core/DesignRecord.h"
#include "schematic/modSchematic.h"
#include "shell/PenScope.h"
#include "shell/Picture.h"

namespace quilm {

namespace {

constexpr f32 titleHeight = 330;
constexpr f32 titleSize = 9;  // points
constexpr f32 rowGap = 120;
constexpr f32 margin = 200;

// A title or a row of a network, with its place on the sheet.
struct Piece {
  f32 y = 0;
  std::string title;
  Picture row;
};

struct Sheet {
  std::vector<Piece> pieces;
  f32 width = schematicPage;
  f32 height = margin;
};

Sheet LayOut(const DesignRecord& design, std::span<const TitledNetwork> networks, f32 room) {
  Sheet sheet;
  const auto record = std::make_unique<DesignRecord>(design);
  for (const TitledNetwork& titled : networks) {
    sheet.pieces.push_back({.y = sheet.height, .title = titled.title, .row = {}});
    sheet.height += titleHeight;
    static_cast<Network&>(*record) = titled.network;
    for (const SchematicRow& row : SchematicRows(*record, room)) {
      sheet.pieces.push_back({.y = sheet.height, .title = {}, .row = {}});
      Picture& drawing = sheet.pieces.back().row;
      DrawSchematicRow(*record, {}, row, drawing);
      sheet.width = std::max(sheet.width, drawing.ScaleWidth + 2 * margin);
      sheet.height += drawing.ScaleHeight + rowGap;
    }
  }
  sheet.height += margin;
  return sheet;
}

// Longer rows for longer networks, so that the picture does not become a tower.
Sheet LayOutWell(const DesignRecord& design, std::span<const TitledNetwork> networks) {
  constexpr f32 highest = 0.8F;  // of the width
  constexpr f32 longer = 1.2F;
  constexpr f32 longest = 6 * schematicPage;
  f32 room = schematicPage;
  Sheet sheet = LayOut(design, networks, room);
  while (sheet.height > highest * sheet.width && room < longest) {
    room *= longer;
    sheet = LayOut(design, networks, room);
  }
  return sheet;
}

}  // namespace

void DrawNetworks(const DesignRecord& design, std::span<const TitledNetwork> networks, Canvas& canvas) {
  const Sheet sheet = LayOutWell(design, networks);
  canvas.SetScale({0, 0, sheet.width, sheet.height});
  canvas.Clear();
  const PenScope pen(canvas);
  canvas.FontName = "Arial";
  canvas.FontSize = titleSize;
  canvas.FontBold = true;
  canvas.Fit = {.anchor = 0};
  for (const Piece& piece : sheet.pieces) {
    if (!piece.title.empty()) canvas.PrintAt(margin, piece.y, piece.title);
    const Picture& row = piece.row;
    row.ReplayInto(canvas, {margin, piece.y}, {margin + row.ScaleWidth, piece.y + row.ScaleHeight});
  }
}

}  // namespace quilm
