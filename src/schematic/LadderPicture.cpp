#include "schematic/LadderPicture.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

#include "core/ElementTypes.h"
#include "schematic/PartSymbols.h"
#include "schematic/Symbols.h"

namespace quilm {

namespace {

// Nearer rails than in the schematic: at the size of a button the parts count, not the space around them.
constexpr f32 margin = 70;
constexpr f32 above = 170;  // half a capacitor's plate, and some air
constexpr f32 below = 90;
constexpr f32 lead = 130;  // from a terminal's middle to the first stage
constexpr f32 ends = 2 * (margin + lead);

i32 CountElements(std::span<const i16> elementTypes) {
  return static_cast<i32>(
      std::count_if(elementTypes.begin(), elementTypes.end(), [](i16 type) { return SymbolWidth(type) > 0; }));
}

f32 LadderWidth(std::span<const i16> elementTypes) {
  f32 width = ends;
  for (const i16 type : elementTypes) width += SymbolWidth(type);
  return width;
}

}  // namespace

Picture LadderPicture(std::span<const i16> elementTypes, f32 least) {
  const f32 needed = LadderWidth(elementTypes);
  const f32 width = std::fmax(needed, least);
  const i32 elements = CountElements(elementTypes);
  const f32 spare = elements == 0 ? 0 : (width - needed) / static_cast<f32>(elements);
  Picture picture(Scale{0, 0, width, above + narrowRailGap + below});
  const auto rails = [&picture](f32 from, f32 to) {
    DrawRails(picture, StageBox{from, above, to - from, narrowRailGap}, colorBlack);
  };
  DrawTerminals(picture, margin, above, narrowRailGap, colorBlack);
  rails(margin + terminalRadius, margin + lead);
  f32 x = margin + lead;
  for (const i16 type : elementTypes) {
    if (SymbolWidth(type) == 0) continue;
    const StageBox box{x, above, SymbolWidth(type) + spare, narrowRailGap};
    DrawStage(picture, type, box, colorBlack);
    x += box.width;
  }
  rails(x, width - margin - terminalRadius);
  DrawTerminals(picture, width - margin, above, narrowRailGap, colorBlack);
  return picture;
}

std::span<const i16> TopologyElements(std::string_view letter) {
  static const std::map<std::string_view, std::vector<i16>> elements = {
      {"A", {ShuntC, SeriesL, ShuntC}},
      {"B", {SeriesL, ShuntC, SeriesL}},
      {"C", {ShuntPLC, SeriesC, ShuntPLC, SeriesC, ShuntPLC}},
      {"D", {ShuntPLC, SeriesL, ShuntPLC, SeriesL, ShuntPLC}},
      {"E", {ShuntPLC, SeriesSLC, ShuntPLC}},
      {"F", {SeriesSLC, ShuntPLC, SeriesSLC}},
      {"G", {SeriesSLC, ShuntC, SeriesSLC, ShuntC, SeriesSLC}},
      {"H", {ShuntPLC, SeriesPLC, SeriesPLC, ShuntPLC}},
      {"I", {SeriesC, ShuntL, SeriesC}},
      {"J", {ShuntL, SeriesC, ShuntL}},
      {"K", {SeriesPLC, ShuntSLC, SeriesPLC}},
      {"L", {ShuntSLC, SeriesPLC, ShuntSLC}},
  };
  const auto at = elements.find(letter);
  return at == elements.end() ? std::span<const i16>() : std::span<const i16>(at->second);
}

Picture TopologyPicture(std::string_view letter) {
  static const f32 width = [] {
    f32 widest = 0;
    for (const std::string_view each : {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L"}) {
      widest = std::fmax(widest, LadderWidth(TopologyElements(each)));
    }
    return widest;
  }();
  const std::span<const i16> elements = TopologyElements(letter);
  return elements.empty() ? Picture() : LadderPicture(elements, width);
}

}  // namespace quilm
