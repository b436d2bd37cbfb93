#include "schematic/ItemPicture.h"

#include <vector>

#include "core/Network.h"
#include "schematic/Symbols.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr Scale pictureScale{0, 0, 3600, 2520};
constexpr f32 railAt = 330;
constexpr f32 gap = 1000;
constexpr f32 spacer = 160;  // plain rails between two symbols
constexpr f32 textLeft = 150;
constexpr f32 textAt = railAt + gap + 190;
constexpr f32 textSize = 10;
constexpr f32 lineStep = 310;
constexpr Color neighbourColor = 0xB8B8B8;

// The elements from the source to the load; a termination is a resistor.
struct Strip {
  std::vector<i16> types;
  std::size_t present = 0;
};

Strip StripOf(const Network& network, const ItemPlace& place) {
  using Of = ItemPlace::Of;
  if (place.of == Of::AnyInductor) return {{SeriesL}, 0};
  if (place.of == Of::AnyCapacitor) return {{SeriesC}, 0};
  if (place.of == Of::StageAlone) return {{network.stage[place.stage].ElementType}, 0};
  Strip strip;
  strip.types.push_back(SeriesR);
  for (int s = 1; s <= network.Stages; ++s) strip.types.push_back(network.stage[s].ElementType);
  strip.types.push_back(ShuntR);
  if (place.of == Of::Stage) strip.present = static_cast<std::size_t>(place.stage);
  if (place.of == Of::Load) strip.present = strip.types.size() - 1;
  return strip;
}

class StripDrawing {
 public:
  StripDrawing(const Strip& strip, Canvas& canvas) : strip_(strip), canvas_(canvas) {}

  // The present element in the middle, its neighbours as far as there is room.
  void Draw() {
    const f32 width = SymbolWidth(TypeAt(strip_.present));
    const f32 left = pictureScale.left + (pictureScale.width - width) / 2;
    f32 x = left;
    for (std::size_t i = strip_.present; i-- > 0 && x > pictureScale.left;) {
      x -= spacer + SymbolWidth(TypeAt(i));
      DrawNeighbour(i, x);
      Space(x + SymbolWidth(TypeAt(i)));
    }
    if (x > pictureScale.left) End(x - spacer, x);
    x = left + width;
    for (std::size_t i = strip_.present + 1; i < strip_.types.size() && x < pictureScale.width; ++i) {
      Space(x);
      x += spacer;
      DrawNeighbour(i, x);
      x += SymbolWidth(TypeAt(i));
    }
    if (x < pictureScale.width) End(x + spacer, x);
    const PenScope pen(canvas_);
    canvas_.DrawWidth = 2;
    DrawStage(canvas_, TypeAt(strip_.present), {left, railAt, width, gap}, colorBlack);
  }

 private:
  i16 TypeAt(std::size_t i) const { return strip_.types[i]; }

  void DrawNeighbour(std::size_t i, f32 x) {
    DrawStage(canvas_, TypeAt(i), {x, railAt, SymbolWidth(TypeAt(i)), gap}, neighbourColor);
  }

  void Space(f32 x) { DrawRails(canvas_, {x, railAt, spacer, gap}, neighbourColor); }

  // A lead with the terminals at `at`.
  void End(f32 at, f32 from) {
    DrawRails(canvas_, {from, railAt, at - from, gap}, neighbourColor);
    DrawTerminals(canvas_, at, railAt, gap, neighbourColor);
  }

  const Strip& strip_;
  Canvas& canvas_;
};

}  // namespace

void DrawItem(const Network& network, const ItemPlace& place, std::span<const ItemLine> lines, Canvas& canvas) {
  canvas.SetScale(pictureScale);
  canvas.Clear();
  StripDrawing(StripOf(network, place), canvas).Draw();
  canvas.FontSize = textSize;
  f32 y = textAt;
  for (const ItemLine& line : lines) {
    canvas.ForeColor = line.negative ? colorRed : colorBlack;
    canvas.PrintAt(textLeft, y, line.text);
    y += lineStep;
  }
}

}  // namespace quilm
