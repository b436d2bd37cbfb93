#include "schematic/ElementPicture.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>
#include <variant>
#include <vector>

#include "core/ElementCatalogue.h"
#include "core/Network.h"
#include "core/modGeneral.h"
#include "schematic/LabelDrawing.h"
#include "schematic/PartSymbols.h"
#include "shell/PenScope.h"
#include "shell/Picture.h"

namespace quilm {

namespace {

constexpr Part resistor = Part::Resistor;

struct Words {
  std::string_view name;
  std::string_view caption;
};

const Words& WordsOf(i16 elementType) {
  static constexpr std::array<Words, 22> words = {{
      {"Empty place", ""},
      {"Inductor in the line", "L in line"},
      {"Inductor to common", "L to common"},
      {"Capacitor in the line", "C in line"},
      {"Capacitor to common", "C to common"},
      {"Series-tuned L and C in the line", "Series LC in line"},
      {"Series-tuned L and C to common", "Series LC to common"},
      {"Parallel-tuned L and C in the line", "Parallel LC in line"},
      {"Parallel-tuned L and C to common", "Parallel LC to common"},
      {"Resistor in the line", "R in line"},
      {"Resistor to common", "R to common"},
      {"Transmission line", "Line"},
      {"Shorted stub in the line", "Shorted stub in line"},
      {"Open stub in the line", "Open stub in line"},
      {"Shorted stub to common", "Shorted stub to common"},
      {"Open stub to common", "Open stub to common"},
      {"Ideal transformer", "Transformer"},
      {"Reactance in the line, at a frequency", "jX in line"},
      {"Reactance to common, at a frequency", "jX to common"},
      {"Coupled inductors", "Coupled inductors"},
      {"R, L and C in series to common", "Series RLC to common"},
      {"R, L and C in parallel in the line", "Parallel RLC in line"},
  }};
  return FindElement(elementType) == nullptr ? words[0] : words[static_cast<std::size_t>(elementType)];
}

// A box that stands for a part: along the upper rail, or between the rails.
void DrawBoxStage(Canvas& canvas, const StageBox& box, std::string_view text, bool shunt, Color color) {
  constexpr f32 halfLong = 190;
  constexpr f32 halfWide = 110;
  const f32 x = box.x + box.width / 2;
  const f32 y = shunt ? box.y + box.gap / 2 : box.y;
  const f32 halfX = shunt ? halfWide : halfLong;
  const f32 halfY = shunt ? halfLong : halfWide;
  if (shunt) {
    DrawRails(canvas, box, color);
    canvas.Line(x, box.y, x, y - halfY, color);
    canvas.Line(x, y + halfY, x, box.y + box.gap, color);
  } else {
    canvas.Line(box.x, y, x - halfX, y, color);
    canvas.Line(x + halfX, y, box.x + box.width, y, color);
    canvas.Line(box.x, box.y + box.gap, box.x + box.width, box.y + box.gap, color);
  }
  canvas.Rectangle(x - halfX, y - halfY, x + halfX, y + halfY, color, false);
  if (text.empty()) return;
  const PenScope pen(canvas);
  canvas.ForeColor = color;
  canvas.Fit = {.anchor = 0.5F, .room = 2 * halfX};
  canvas.PrintAt(x - canvas.TextWidth(text) / 2, y - canvas.TextHeight(text) / 2, text);
}

// The box that lines and circles take.
struct Extent {
  f32 left = std::numeric_limits<f32>::max();
  f32 top = left;
  f32 right = std::numeric_limits<f32>::lowest();
  f32 bottom = right;

  f32 Width() const { return std::max(right - left, 1.0F); }
  f32 Height() const { return std::max(bottom - top, 1.0F); }

  void Add(Point p) {
    left = std::min(left, p.x);
    right = std::max(right, p.x);
    top = std::min(top, p.y);
    bottom = std::max(bottom, p.y);
  }

  void Add(const PictureOp& operation) {
    if (const auto* line = std::get_if<PolylineOp>(&operation)) {
      for (const Point p : line->points) Add(p);
    } else if (const auto* box = std::get_if<RectangleOp>(&operation)) {
      Add(box->from);
      Add(box->to);
    } else if (const auto* circle = std::get_if<CircleOp>(&operation)) {
      const f32 high = circle->r * circle->aspect;
      Add(Point{circle->center.x - circle->r, circle->center.y - high});
      Add(Point{circle->center.x + circle->r, circle->center.y + high});
    }
  }
};

bool IsLowerRail(const PictureOp& operation) {
  const auto* line = std::get_if<PolylineOp>(&operation);
  return line != nullptr && std::ranges::all_of(line->points, [](Point p) { return p.y == narrowRailGap; });
}

using DrawSymbol = void (*)(Canvas&, const StageBox&, Color);

// A drawing from (0, 0) on, `size` times as large and shifted to `corner`.
void DrawScaled(Canvas& canvas, const Picture& drawing, Point corner, f32 size) {
  const PenScope pen(canvas);
  for (const PictureOp& operation : drawing.Operations()) {
    DrawOperation(operation, canvas, {size, corner.x, size, corner.y});
  }
}

// The box of the enlarged view, and where its parts stand.
constexpr f32 viewLeft = 555;
constexpr f32 viewRight = 2800;
constexpr f32 viewText = 3550;
constexpr f32 viewRail = 6500;
constexpr f32 viewSize = 1.5F;
constexpr f32 headingSize = 10;
constexpr f32 textSize = 9;
constexpr f32 textPitch = 230;

// `text` from the left of the view on, in as many lines as it needs; the first free line is returned.
f32 PrintWrapped(Canvas& canvas, f32 y, std::string_view text) {
  std::string line;
  std::string rest(text);
  while (!rest.empty()) {
    const std::size_t blank = std::min(rest.find(' '), rest.size());
    const std::string word = rest.substr(0, blank);
    std::string longer = line;
    if (!longer.empty()) longer += ' ';
    longer += word;
    if (!line.empty() && canvas.TextWidth(longer) > viewRight - viewLeft) {
      canvas.PrintAt(viewLeft, y, line);
      y += textPitch;
      line = word;
    } else {
      line = longer;
    }
    rest.erase(0, std::min(blank + 1, rest.size()));
  }
  canvas.PrintAt(viewLeft, y, line);
  return y + textPitch;
}

void DrawView(Canvas& canvas, const std::string& heading, std::string_view name, const std::vector<StageLabel>& values,
              const Picture& symbol, f32 width) {
  const PenScope pen(canvas);
  canvas.Fit = {.anchor = 0};
  canvas.FontSize = headingSize;
  canvas.FontBold = true;
  if (!heading.empty()) canvas.PrintAt(viewLeft, viewText, heading);
  canvas.FontSize = textSize;
  canvas.FontBold = false;
  f32 y = PrintWrapped(canvas, viewText + 1.3F * textPitch, name) + textPitch / 2;
  for (const StageLabel& value : values) {
    PrintLabel(canvas, viewLeft, y, viewRight - viewLeft, value);
    y += textPitch;
  }
  DrawScaled(canvas, symbol, {(viewLeft + viewRight - width * viewSize) / 2, viewRail}, viewSize);
}

Picture Drawn(DrawSymbol draw, f32 width) {
  Picture drawing;
  draw(drawing, StageBox{0, 0, width, railGap}, colorBlack);
  return drawing;
}

// What the values of a stage are, by name.
std::vector<StageLabel> NamedValues(const Stage& stage) {
  std::vector<StageLabel> labels;
  for (const Slot& slot : SlotsOf(stage.ElementType)) {
    const f32 value = slot.value(stage);
    if (value == 0) continue;
    labels.push_back({std::string(slot.name) + " = " + ValueText(slot, value), value < 0});
  }
  return labels;
}

void DrawElementView(Canvas& canvas, i16 elementType, const std::string& heading,
                     const std::vector<StageLabel>& values) {
  const Element* element = FindElement(elementType);
  if (element == nullptr || element->joint == Joint::Reactance) return;
  Picture symbol;
  const f32 width = StageWidth(elementType);
  DrawStage(symbol, elementType, 0, 0, railGap, colorBlack);
  DrawView(canvas, heading, ElementWords(elementType), values, symbol, width);
}

}  // namespace

std::string_view ElementWords(i16 elementType) { return WordsOf(elementType).name; }

std::string_view ElementCaption(i16 elementType) { return WordsOf(elementType).caption; }

f32 AnySymbolWidth(i16 elementType) {
  constexpr f32 boxWidth = 560;
  const f32 width = SymbolWidth(elementType);
  return width > 0 ? width : boxWidth;
}

void DrawAnyStage(Canvas& canvas, i16 elementType, const StageBox& box, Color color) {
  const Element* element = FindElement(elementType);
  if (element != nullptr && element->joint != Joint::Reactance) return DrawStage(canvas, elementType, box, color);
  const bool shunt = element != nullptr && element->placement == Placement::Shunt;
  DrawBoxStage(canvas, box, element == nullptr ? "" : "jX", shunt, color);
}

void DrawSourceCell(Canvas& canvas, const StageBox& box, Color color) {
  constexpr f32 radius = 120;
  const f32 at = box.x + radius;
  const f32 middle = box.y + box.gap / 2;
  canvas.Line(at, box.y, at, middle - radius, color);
  canvas.Circle(at, middle, radius, color);
  canvas.Line(at, middle + radius, at, box.y + box.gap, color);
  DrawChain(Run(canvas, {at, box.y}, Run::Way::Right, color), {&resistor, 1}, 0, box.width - radius);
  canvas.Line(at, box.y + box.gap, box.x + box.width, box.y + box.gap, color);
}

void DrawLoadCell(Canvas& canvas, const StageBox& box, Color color) {
  const f32 half = box.width / 2;
  DrawRails(canvas, StageBox{box.x, box.y, half, box.gap}, color);
  DrawChain(Run(canvas, {box.x + half, box.y}, Run::Way::Down, color), {&resistor, 1}, 0, box.gap);
}

void DrawElement(Canvas& canvas, i16 elementType, Point from, Point to, Color color) {
  const f32 width = AnySymbolWidth(elementType);
  Picture symbol;
  DrawAnyStage(symbol, elementType, StageBox{0, 0, width, narrowRailGap}, color);
  const Element* element = FindElement(elementType);
  const bool inLine = element != nullptr && (element->placement == Placement::Series || element->joint == Joint::Line);
  Extent extent;
  Picture shown;
  for (const PictureOp& operation : symbol.Operations()) {
    if (inLine && IsLowerRail(operation)) continue;
    extent.Add(operation);
    DrawOperation(operation, shown);
  }
  const f32 size = std::min({1.0F, (to.x - from.x) / extent.Width(), (to.y - from.y) / extent.Height()});
  const Point corner{(from.x + to.x - size * (extent.left + extent.right)) / 2,
                     (from.y + to.y - size * (extent.top + extent.bottom)) / 2};
  DrawScaled(canvas, shown, corner, size);
}

void DrawLargePicture(const Network& network, int place, Canvas& canvas) {
  const auto termination = [](f32 ohms) {
    return std::vector<StageLabel>{{Trimmed(FormatValue(ohms)), ohms < 0, ohmSign}};
  };
  if (place == 0) {
    DrawView(canvas, "Source", "Input termination", termination(network.Rsource[1]), Drawn(DrawSourceCell, sourceCell),
             sourceCell);
  } else if (place > network.Stages) {
    DrawView(canvas, "Load", "Output termination", termination(network.Rload[1]), Drawn(DrawLoadCell, loadCell),
             loadCell);
  } else {
    const Stage& stage = network.stage[place];
    DrawElementView(canvas, stage.ElementType, "Stage " + std::to_string(place), NamedValues(stage));
  }
}

void DrawLargePicture(i16 elementType, Canvas& canvas) { DrawElementView(canvas, elementType, {}, {}); }

}  // namespace quilm
