#include "schematic/StageStrip.h"

#include <algorithm>
#include <string>

#include "core/ElementCatalogue.h"
#include "core/Network.h"
#include "core/NumberText.h"
#include "core/modGeneral.h"
#include "schematic/ElementPicture.h"
#include "schematic/LabelDrawing.h"
#include "schematic/Symbols.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 placeholderCell = 960;
constexpr f32 rail = 1500;
constexpr f32 markTop = 500;
constexpr f32 numberTop = 740;
constexpr f32 labelSize = 8;  // points
constexpr f32 labelPitch = 170;
constexpr f32 lastAbove = 1170;   // the label just above the upper rail
constexpr f32 firstBelow = 2620;  // the one just below the lower rail
constexpr f32 labelMargin = 40;   // clear of the cell's edges
constexpr f32 edgeEnd = stripBottom - labelPitch;
constexpr Color markColor = 0xFFFF00;
constexpr Color selectedColor = 0xFFFFE4;
constexpr Color edgeColor = 0xDDDDDD;

// Whether return loss is measured against another resistance than that of the source: a tenth of a percent counts.
bool HasOwnReference(const Network& network) {
  constexpr f64 nearest = 0.001;
  const f64 source = f64{network.Rsource[1]};
  const f64 reference = f64{network.Rstandard};
  return reference < source * (1 - nearest) || reference > source * (1 + nearest);
}

class StripDrawing {
 public:
  StripDrawing(const Network& network, f32 origin, Canvas& canvas)
      : network_(network), edges_(StageEdges(network, origin)), canvas_(canvas) {}

  void Draw(std::optional<int> marked) {
    if (marked && *marked + 1 < static_cast<int>(edges_.size())) {
      canvas_.Rectangle(Left(*marked), stripTop, Left(*marked + 1), edgeEnd, selectedColor, true);
      canvas_.Rectangle(Left(*marked), markTop, Left(*marked + 1), stripTop, markColor, true);
    }
    DrawSource();
    for (int s = 1; s <= network_.Stages; ++s) DrawCell(s);
    DrawLoad();
  }

 private:
  f32 Left(int cell) const { return edges_[static_cast<std::size_t>(cell)]; }
  StageBox BoxOf(int cell) const { return {Left(cell), rail, Left(cell + 1) - Left(cell), railGap}; }
  f32 RoomOf(const StageBox& box) const { return box.width - 2 * labelMargin; }

  void Edge(f32 x) { canvas_.Line(x, stripTop, x, edgeEnd, edgeColor); }

  void DrawSource() {
    const StageBox box = BoxOf(0);
    DrawSourceCell(canvas_, box, colorBlack);
    const f32 ohms = network_.Rsource[1];
    PrintLabel(canvas_, box.x + labelMargin, lastAbove, RoomOf(box), {Trimmed(FormatValue(ohms)), ohms < 0, ohmSign});
    if (!HasOwnReference(network_)) return;
    const PenScope pen(canvas_);
    canvas_.ForeColor = colorBlue;
    canvas_.PrintAt(box.x + labelMargin, lastAbove - labelPitch, Trimmed(FormatValue(network_.Rstandard)) + " >");
  }

  void DrawLoad() {
    const StageBox box = BoxOf(network_.Stages + 1);
    Edge(box.x);
    DrawLoadCell(canvas_, box, colorBlack);
    const f32 ohms = network_.Rload[1];
    PrintLabel(canvas_, box.x + labelMargin, lastAbove, RoomOf(box), {Trimmed(FormatValue(ohms)), ohms < 0, ohmSign});
  }

  void DrawCell(int s) {
    const Stage& stage = network_.stage[s];
    const StageBox box = BoxOf(s);
    Edge(box.x);
    const std::string number = std::to_string(s);
    canvas_.PrintAt(box.x + (box.width - canvas_.TextWidth(number)) / 2, numberTop, number);
    DrawAnyStage(canvas_, stage.ElementType, box, colorBlack);
    if (stage.ElementType == CoupledInductors) {
      constexpr f32 belowRail = 60;
      canvas_.PrintAt(box.x + (box.width - canvas_.TextWidth("K")) / 2, rail + belowRail, "K");
    }
    PrintValues(stage, box);
  }

  // Two above the upper rail, one over the other, and what is left below the lower one, tolerances last.
  void PrintValues(const Stage& stage, const StageBox& box) {
    constexpr std::size_t mostAbove = 2;
    const std::vector<StageLabel> labels = ValueLabels(stage);
    const std::size_t above = std::min(labels.size(), mostAbove);
    for (std::size_t i = 0; i < above; ++i) {
      const f32 y = lastAbove - labelPitch * static_cast<f32>(above - 1 - i);
      PrintLabel(canvas_, box.x + labelMargin, y, RoomOf(box), labels[i]);
    }
    f32 y = firstBelow;
    const auto below = [&](const StageLabel& label) {
      PrintLabel(canvas_, box.x + labelMargin, y, RoomOf(box), label);
      y += labelPitch;
    };
    for (std::size_t i = above; i < labels.size(); ++i) below(labels[i]);
    // The three belong together: they show as soon as the first of them is set.
    if (stage.ElementType != CoupledInductors || !(stage.CoupledVal.primaryTolerance > 0)) return;
    for (const Slot& slot : SlotsOf(stage.ElementType)) {
      below({std::string(slot.name) + ": " + ShortText(slot.tolerance(stage), LeadingZero::Drop) + "%"});
    }
  }

  const Network& network_;
  std::vector<f32> edges_;
  Canvas& canvas_;
};

}  // namespace

f32 StripCellWidth(i16 elementType) {
  // Wider than in the schematic: its three labels stand beside those of its neighbours here.
  constexpr f32 shortedStubCell = 1120;
  if (elementType == SeriesShortStub) return shortedStubCell;
  const f32 width = StageWidth(elementType);
  return width > 0 ? width : placeholderCell;
}

f32 StripLength(const Network& network) {
  f32 length = sourceCell + loadCell;
  for (int s = 1; s <= network.Stages; ++s) length += StripCellWidth(network.stage[s].ElementType);
  return length;
}

std::vector<f32> StageEdges(const Network& network, f32 origin) {
  std::vector<f32> edges{origin, origin + sourceCell};
  for (int s = 1; s <= network.Stages; ++s) {
    edges.push_back(edges.back() + StripCellWidth(network.stage[s].ElementType));
  }
  edges.push_back(edges.back() + loadCell);
  return edges;
}

std::optional<int> CellAt(const std::vector<f32>& edges, f32 x) {
  const auto behind = std::upper_bound(edges.begin(), edges.end(), x);
  if (behind == edges.begin() || behind == edges.end()) return std::nullopt;
  return static_cast<int>(behind - edges.begin()) - 1;
}

void DrawStageStrip(const Network& network, f32 origin, std::optional<int> marked, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.FontSize = labelSize;
  canvas.Fit = asLaidOut;
  StripDrawing(network, origin, canvas).Draw(marked);
}

}  // namespace quilm
