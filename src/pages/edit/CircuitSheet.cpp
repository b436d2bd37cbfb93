#include "pages/edit/CircuitSheet.h"

#include <cmath>
#include <string>

#include "core/ElementCatalogue.h"
#include "core/Network.h"
#include "schematic/ElementPicture.h"
#include "schematic/StageStrip.h"
#include "shell/PenScope.h"

namespace quilm {

void DrawCircuitSheet(const Network& network, const CircuitSheet& sheet, Canvas& canvas) {
  constexpr Point noticeAt{30, 320};
  canvas.SetScale(sheetScale);
  canvas.Clear();
  const PenScope pen(canvas);
  canvas.FontName = "Arial";
  DrawStageStrip(network, sheet.origin, sheet.marked, canvas);
  if (sheet.largePicture) sheet.largePicture(canvas);
  DrawPalette(sheet.page, sheet.paletteColor, canvas);
  if (sheet.notice.empty()) return;
  canvas.Fit = {.anchor = 0};
  canvas.PrintAt(noticeAt.x, noticeAt.y, sheet.notice);
}

HitAreas PaletteAreas(PaletteOf page, bool enabled) {
  HitAreas areas;
  for (const PaletteBand& band : PaletteBands(page)) {
    areas.push_back({.name = std::string(FindElement(band.element)->name),
                     .from = {band.left, std::nextafter(band.top, band.bottom)},
                     .to = {band.right, band.ShownBottom()},
                     .toolTip = std::string(ElementWords(band.element)),
                     .enabled = enabled,
                     .onPress = {}});
  }
  return areas;
}

HitAreas StripAreas(const Network& network, f32 origin, std::optional<int> present, bool enabled) {
  const std::vector<f32> edges = StageEdges(network, origin);
  HitAreas areas;
  for (int cell = 0; cell <= network.Stages + 1; ++cell) {
    const auto at = static_cast<std::size_t>(cell);
    HitArea area{.name = "stage" + std::to_string(cell),
                 .from = {edges[at], std::nextafter(stripTop, stripBottom)},
                 .to = {std::nextafter(edges[at + 1], edges[at]), std::nextafter(stripBottom, stripTop)},
                 .toolTip = {},
                 .enabled = enabled,
                 .onPress = {},
                 .walked = true,
                 .present = present == cell};
    if (cell == 0) {
      area.name = "source";
      area.toolTip = "Source";
    } else if (cell > network.Stages) {
      area.name = "load";
      area.toolTip = "Load";
    } else {
      area.toolTip = "Stage " + std::to_string(cell) + ": ";
      area.toolTip += ElementWords(network.stage[cell].ElementType);
    }
    areas.push_back(std::move(area));
  }
  return areas;
}

}  // namespace quilm
