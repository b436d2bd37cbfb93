#include "schematic/LadderPicture.h"

#include <map>
#include <string>
#include <vector>

#include "schematic/Symbols.h"

namespace quilm {

namespace {

// Nearer rails than in the schematic: at the size of a button the parts count, not the space around them.
constexpr f32 buttonGap = 640;
constexpr f32 margin = 90;
constexpr f32 above = 330;  // room for branches over the rail
constexpr f32 below = 100;
constexpr f32 lead = 120;
constexpr f32 terminal = 45;

}  // namespace

Picture LadderPicture(std::span<const i16> elementTypes) {
  f32 width = 2 * (margin + lead);
  for (const i16 type : elementTypes) width += StageWidth(type);
  Picture picture(Scale{0, 0, width, above + buttonGap + below});
  f32 x = margin;
  const auto rails = [&picture](f32 from, f32 to) {
    picture.Line(from, above, to, above, colorBlack);
    picture.Line(from, above + buttonGap, to, above + buttonGap, colorBlack);
  };
  DrawTerminals(picture, x, above, buttonGap, colorBlack);
  rails(x + terminal, x + lead);
  x += lead;
  for (const i16 type : elementTypes) {
    DrawStage(picture, type, x, above, buttonGap, colorBlack);
    x += StageWidth(type);
  }
  rails(x, x + lead - terminal);
  DrawTerminals(picture, x + lead, above, buttonGap, colorBlack);
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

Picture TopologyPicture(std::string_view letter) { return LadderPicture(TopologyElements(letter)); }

}  // namespace quilm
