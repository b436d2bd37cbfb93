#include "schematic/Palette.h"

#include <array>
#include <string_view>

#include "core/ElementTypes.h"
#include "schematic/ElementPicture.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr std::size_t bandCount = 21;
using Bands = std::array<PaletteBand, bandCount>;

constexpr std::array<i16, bandCount> order = {
    SeriesL,        ShuntL,         SeriesC,       ShuntC,          SeriesSLC,        ShuntSLC,  SeriesPLC,
    ShuntPLC,       SeriesR,        ShuntR,        SeriesReactance, ShuntReactance,   TransLine, SeriesShortStub,
    SeriesOpenStub, ShuntShortStub, ShuntOpenStub, Transformer,     CoupledInductors, SeriesRLC, ShuntRLC};
constexpr std::size_t firstColumn = 12;

struct Column {
  f32 left;
  f32 right;
  std::span<const f32> tops;
};

constexpr Bands MakeBands(const Column& first, const Column& second) {
  Bands bands{};
  for (std::size_t i = 0; i < bandCount; ++i) {
    const Column& column = i < firstColumn ? first : second;
    const std::size_t row = i < firstColumn ? i : i - firstColumn;
    const bool last = row + 1 == column.tops.size();
    bands[i] = {order[i], column.left, column.right, column.tops[row], last ? PaletteBand::open : column.tops[row + 1]};
  }
  return bands;
}

constexpr std::array<f32, 12> editTops = {4337, 5217, 5795, 6316, 6922, 8077, 8589, 9431, 10104, 10672, 11004, 11572};
constexpr std::array<f32, 9> editTops2 = {4400, 5180, 5830, 6430, 7340, 8220, 8800, 9400, 10200};
constexpr std::array<f32, 12> manualTops = {4350, 5200, 5700, 6200, 6650, 7750, 8250, 9100, 9770, 10370, 10700, 11250};
constexpr std::array<f32, 9> manualTops2 = {4400, 5160, 5810, 6430, 7330, 8200, 8800, 9400, 10200};

constexpr Bands editBands = MakeBands({5000, 6250, editTops}, {6550, 7790, editTops2});
constexpr Bands manualBands = MakeBands({5100, 6310, manualTops}, {6600, 7800, manualTops2});

constexpr Color bandLine = 0xDDDDDD;

void DrawBand(const PaletteBand& band, bool captionLeft, Color color, Canvas& canvas) {
  constexpr f32 beside = 130;
  constexpr f32 above = 45;
  constexpr f32 captionGap = 70;
  const f32 bottom = band.ShownBottom();
  canvas.Rectangle(band.left, band.top, band.right, bottom, bandLine, false);
  DrawElement(canvas, band.element, {band.left + beside, band.top + above}, {band.right - beside, bottom - above},
              color);
  const std::string_view caption = ElementCaption(band.element);
  const f32 x = captionLeft ? band.left - captionGap - canvas.TextWidth(caption) : band.right + captionGap;
  canvas.Fit = {.anchor = captionLeft ? 1.0F : 0.0F};
  canvas.PrintAt(x, (band.top + bottom - canvas.TextHeight(caption)) / 2, caption);
}

}  // namespace

f32 PaletteBand::ShownBottom() const {
  constexpr f32 lastHeight = 600;
  return bottom < open ? bottom : top + lastHeight;
}

std::span<const PaletteBand> PaletteBands(PaletteOf page) {
  return page == PaletteOf::EditPage ? editBands : manualBands;
}

i16 PaletteElementAt(PaletteOf page, Point at) {
  for (const PaletteBand& band : PaletteBands(page)) {
    if (band.Contains(at)) return band.element;
  }
  return 0;
}

void DrawPalette(PaletteOf page, Color color, Canvas& canvas) {
  constexpr f32 captionSize = 8;
  const PenScope pen(canvas);
  canvas.FontSize = captionSize;
  canvas.ForeColor = color;
  const std::span<const PaletteBand> bands = PaletteBands(page);
  for (std::size_t i = 0; i < bands.size(); ++i) DrawBand(bands[i], i < firstColumn, color, canvas);
}

}  // namespace quilm
