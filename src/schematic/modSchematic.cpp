#include "schematic/modSchematic.h"

#include <algorithm>
#include <string>
#include <vector>

#include "analysis/Ladder.h"
#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "schematic/DesignData.h"
#include "schematic/LabelDrawing.h"
#include "schematic/PartSymbols.h"
#include "schematic/StageLabels.h"
#include "schematic/Symbols.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 pageTop = 600;
constexpr f32 pageHeight = 7200;  // holds band and data
constexpr f32 SchemY = 1500;
constexpr f32 bandTop = 700;
constexpr f32 bandBottom = 5400;
constexpr f32 bandEnd = 42500;
constexpr f32 sourceWidth = 1620;
constexpr f32 loadWidth = 1300;
constexpr f32 endLead = 120;  // from the page's edge to the source
constexpr Color paperColor = 0xFFFFEE;
constexpr Color stageColor = 0xFFFFF8;
constexpr Color boundaryColor = 0xBBFF66;

constexpr f32 labelSize = 8;  // points
constexpr f32 labelPitch = 170;
constexpr f32 labelsRight = 40;  // clear of the stage's boundary, at its other side too
constexpr Color designatorColor = 0x8A4A1A;
constexpr f32 labelsAbove = -330;     // of the upper rail
constexpr f32 labelsBelow = 1160;     // of the upper rail: just below the lower one
constexpr std::size_t mostAbove = 2;  // more would run into the stage number
constexpr f32 numberRight = 280;
constexpr f32 numberAbove = -700;
constexpr f32 lossesBelow = 1750;
constexpr f32 lossPitch = 560;
constexpr f32 tolerancesRight = 240;
constexpr f32 tolerancesBelow = 3300;
constexpr f32 dataLeft = 400;
constexpr f32 dataTop = 5800;

int StagesToDraw(const Network& network) { return std::min(network.Stages, network.StagesMax); }

f32 RoomOf(f32 stageWidth) { return stageWidth - 2 * labelsRight; }

// The page in its scale: as wide as the network at a zoom of 1, and as high as band and data as long as that leaves a
// picture of useful proportions.
Scale PageScale(const Network& network, const SchematicView& view) {
  constexpr f32 leastPart = 0.6F;  // of the width
  const f32 width = SchematicWidth(network) / view.zoom;
  return {0, pageTop, width, std::max(pageHeight / view.zoom, std::min(pageHeight, width * leastPart))};
}

// One drawing of a whole schematic.
class Drawing {
 public:
  Drawing(const DesignRecord& record, const SchematicView& view, Canvas& canvas)
      : record_(record), view_(view), canvas_(canvas), Fq_(QualityFrequency(record, record)) {}

  void Draw() {
    const f32 SchemLeft = static_cast<f32>(view_.SchemOffset) + sourceWidth;
    f32 SchemRight = SchemLeft;
    for (int s = 1; s <= StagesToDraw(record_); ++s) SchemRight += StageWidth(record_.stage[s].ElementType);
    DrawBand(SchemLeft, SchemRight);
    DrawSource(static_cast<f32>(view_.SchemOffset));
    f32 SchemX = SchemLeft;
    for (int s = 1; s <= StagesToDraw(record_); ++s) DrawNext(s, SchemX);
    Boundary(SchemX);
    DrawLoad(SchemX);
    if (SchemX + loadWidth > canvas_.ScaleLeft + canvas_.ScaleWidth) {
      PrintMore(canvas_.ScaleLeft + canvas_.ScaleWidth - moreWidth, bandBottom - moreRise);
    }
  }

  void DrawRow(const SchematicRow& row) {
    const f32 left = row.source ? sourceWidth : 0;
    const f32 right = row.length - (row.load ? loadWidth : 0);
    bottom_ = RowBottom();
    canvas_.Rectangle(left, bandTop, right, bottom_, stageColor, true);
    for (const f32 y : {bandTop, bottom_}) canvas_.Line(left, y, right, y, boundaryColor);
    if (row.source) DrawSource(0);
    f32 SchemX = left;
    for (int s = row.first; s <= row.last; ++s) DrawNext(s, SchemX);
    Boundary(SchemX);
    if (row.load) {
      DrawLoad(SchemX);
    } else {
      PrintMore(SchemX, SchemY + (railGap - canvas_.TextHeight(" >")) / 2);
    }
  }

  // Where the band of a row ends: below what is written below the rails.
  f32 RowBottom() const {
    constexpr f32 values = 1900;  // below the upper rail
    constexpr f32 losses = 2950;
    bool toleranced = false;
    for (int s = 1; s <= StagesToDraw(record_); ++s) toleranced |= !ToleranceLabels(record_.stage[s]).empty();
    if (toleranced) return bandBottom;
    return SchemY + (view_.ShowQ ? losses : values);
  }

 private:
  static constexpr f32 moreWidth = 200;
  static constexpr f32 moreRise = 280;

  bool Balanced() const { return view_.mode != SchematicMode::Unbalanced; }
  RailForm Form() const { return Balanced() ? RailForm::Balanced : RailForm::Unbalanced; }
  // What each rail shows of a series value.
  f32 Share() const { return view_.mode == SchematicMode::BalancedA ? 0.5F : 1; }

  void DrawBand(f32 SchemLeft, f32 SchemRight) {
    canvas_.Rectangle(1, bandTop, std::max(bandEnd, canvas_.ScaleWidth), bandBottom, paperColor, true);
    canvas_.Rectangle(SchemLeft, bandTop, SchemRight, bandBottom, stageColor, true);
    for (const f32 y : {bandTop, bandBottom}) canvas_.Line(SchemLeft, y, SchemRight, y, boundaryColor);
  }

  void Boundary(f32 x) { canvas_.Line(x, bandTop + 5, x, bottom_, boundaryColor); }

  // Draws stage s at x and moves x on by its width.
  void DrawNext(int s, f32& x) {
    const Stage& stage = record_.stage[s];
    const f32 width = StageWidth(stage.ElementType);
    if (width == 0) return;
    Boundary(x);
    canvas_.PSet(x + numberRight, SchemY + numberAbove, colorWhite);
    canvas_.PrintAt(x + numberRight, SchemY + numberAbove, std::to_string(s));
    DrawStage(canvas_, stage.ElementType, StageBox{x, SchemY, width, railGap}, colorBlack, Form());
    if (stage.ElementType == CoupledInductors) PrintCoupling(x + width / 2);
    PrintValues(s, x);
    if (view_.ShowQ) PrintLosses(stage, x);
    f32 y = SchemY + tolerancesBelow;
    for (const std::string& text : ToleranceLabels(stage)) {
      PrintLabel(canvas_, x + tolerancesRight, y, width - tolerancesRight - labelsRight, {.text = text});
      y += labelPitch;
    }
    x += width;
  }

  // Reference designators, by the number of the stage: of series parts between the rails, below their symbol, of others
  // below the lower rail. `below` is the first free line there.
  void PrintDesignators(int s, f32 x, const std::vector<StageLabel>& labels, f32 below) {
    constexpr f32 gap = 60;
    std::vector<std::string> texts;
    for (const StageLabel& label : labels) {
      if (!label.designator.empty()) texts.push_back(label.designator + std::to_string(s));
    }
    if (texts.empty()) return;
    const i16 type = record_.stage[s].ElementType;
    const f32 width = StageWidth(type);
    const PenScope pen(canvas_);
    canvas_.ForeColor = designatorColor;
    const auto whole = [&] {
      f32 sum = gap * static_cast<f32>(texts.size() - 1);
      for (const std::string& text : texts) sum += canvas_.TextWidth(text);
      return sum;
    };
    if (whole() > RoomOf(width)) canvas_.FontSize *= RoomOf(width) / whole();
    f32 at = x + (width - whole()) / 2;
    const f32 drop = SymbolDrop(type, Form());
    const f32 y = drop > 0 ? SchemY + drop : below;
    for (const std::string& text : texts) {
      canvas_.PrintAt(at, y, text);
      at += canvas_.TextWidth(text) + gap;
    }
  }

  // The letter between the windings.
  void PrintCoupling(f32 middle) {
    constexpr f32 below = 60;
    canvas_.PrintAt(middle - canvas_.TextWidth("K") / 2, SchemY + below, "K");
  }

  // Above the upper rail one over the other; the third of a stage stands below the lower rail, as does the second
  // rail's share of a balanced series part.
  void PrintValues(int s, f32 x) {
    const Stage& stage = record_.stage[s];
    const f32 room = RoomOf(StageWidth(stage.ElementType));
    const bool bothRails = Balanced() && IsSeriesElement(stage.ElementType);
    const std::vector<StageLabel> labels = ValueLabels(stage, bothRails ? Share() : 1);
    const std::size_t above = std::min(labels.size(), mostAbove);
    for (std::size_t i = 0; i < above; ++i) {
      PrintLabel(canvas_, x + labelsRight, SchemY + labelsAbove - labelPitch * static_cast<f32>(above - 1 - i), room,
                 labels[i]);
    }
    f32 y = SchemY + labelsBelow;
    for (std::size_t i = bothRails ? 0 : above; i < labels.size(); ++i) {
      PrintLabel(canvas_, x + labelsRight, y, room, labels[i]);
      y += labelPitch;
    }
    PrintDesignators(s, x, labels, y);
  }

  void PrintLosses(const Stage& stage, f32 x) {
    constexpr f32 left = 60;
    constexpr f32 symbolWidth = 420;
    constexpr f32 symbolSize = 0.6F;
    constexpr f32 textBelow = 60;
    f32 y = SchemY + lossesBelow;
    for (const LossLabel& label : LossLabels(record_, stage, Fq_)) {
      const Part resistor = Part::Resistor;
      DrawChain(Run(canvas_, {x, y}, Run::Way::Right, colorBlack), {&resistor, 1}, left, left + symbolWidth,
                symbolSize);
      const f32 room = StageWidth(stage.ElementType) - left - labelsRight;
      PrintLabel(canvas_, x + left, y + textBelow, room, {.text = label.heading});
      PrintLabel(canvas_, x + left, y + textBelow + labelPitch, room, {.text = label.value, .unit = ohmSign});
      y += lossPitch;
    }
  }

  // A generator between the rails and its resistance in the line, on both rails of a balanced network.
  void DrawSource(f32 x) {
    constexpr f32 generator = 330;  // from the origin to its middle
    constexpr f32 radius = 150;
    const f32 middle = SchemY + railGap / 2;
    const f32 at = x + endLead + generator - radius;
    canvas_.Line(at, SchemY, at, middle - radius, colorBlack);
    canvas_.Circle(at, middle, radius, colorBlack);
    canvas_.Line(at, middle + radius, at, SchemY + railGap, colorBlack);
    SeriesResistance(at, x + sourceWidth, SchemY);
    if (Balanced()) {
      SeriesResistance(at, x + sourceWidth, SchemY + railGap);
    } else {
      canvas_.Line(at, SchemY + railGap, x + sourceWidth, SchemY + railGap, colorBlack);
    }
    const StageLabel label{Trimmed(FormatResistance(Share() * record_.Rsource[1])), record_.Rsource[1] < 0, ohmSign};
    const f32 room = x + sourceWidth - labelsRight - (at + radius);
    PrintLabel(canvas_, at + radius, SchemY + labelsAbove, room, label);
    if (Balanced()) PrintLabel(canvas_, at + radius, SchemY + labelsBelow, room, label);
  }

  void SeriesResistance(f32 from, f32 to, f32 y) {
    const Part resistor = Part::Resistor;
    DrawChain(Run(canvas_, {from, y}, Run::Way::Right, colorBlack), {&resistor, 1}, 0, to - from);
  }

  void DrawLoad(f32 x) {
    constexpr f32 resistance = 500;  // from the last stage
    constexpr f32 right = 160;       // of its middle
    DrawRails(canvas_, StageBox{x, SchemY, resistance, railGap}, colorBlack);
    const Part resistor = Part::Resistor;
    DrawChain(Run(canvas_, {x + resistance, SchemY}, Run::Way::Down, colorBlack), {&resistor, 1}, 0, railGap);
    PrintLabel(canvas_, x + resistance + right, SchemY + railGap / 2 - labelPitch / 2, loadWidth - resistance - right,
               {Trimmed(FormatResistance(record_.Rload[1])), record_.Rload[1] < 0, ohmSign});
  }

  // There is more at the right than the page or the row shows.
  void PrintMore(f32 x, f32 y) {
    const PenScope pen(canvas_);
    canvas_.FontBold = true;
    canvas_.PrintAt(x, y, " >");
  }

  const DesignRecord& record_;
  const SchematicView& view_;
  Canvas& canvas_;
  f32 Fq_;
  f32 bottom_ = bandBottom;
};

void Begin(const Scale& scale, Canvas& canvas) {
  canvas.SetScale(scale);
  canvas.Clear();
  canvas.FontName = "Arial";
  canvas.FontSize = labelSize;
  canvas.FontBold = false;
  canvas.ForeColor = colorBlack;
  canvas.DrawWidth = 1;
}

struct ArtworkStage {
  int number;
  StageBox box;
};

// The stages side by side, in as many rows as they need.
std::vector<ArtworkStage> ArtworkStages(const Network& network) {
  constexpr f32 left = 700;
  constexpr f32 right = 11500;
  constexpr f32 firstRow = 1000;
  constexpr f32 rowPitch = 1800;
  constexpr f32 room = 240;  // beside the symbols
  std::vector<ArtworkStage> stages;
  Point pen{left, firstRow};
  for (int s = 1; s <= StagesToDraw(network); ++s) {
    const f32 symbol = SymbolWidth(network.stage[s].ElementType);
    if (symbol == 0) continue;
    if (pen.x + symbol + room > right) pen = {left, pen.y + rowPitch};
    stages.push_back({s, StageBox{pen.x, pen.y, symbol + room, railGap}});
    pen.x += symbol + room;
  }
  return stages;
}

}  // namespace

f32 SchematicWidth(const Network& network) {
  f32 width = sourceWidth + loadWidth;
  for (int s = 1; s <= StagesToDraw(network); ++s) width += StageWidth(network.stage[s].ElementType);
  return std::max(width, schematicPage);
}

void DrawSchematic(const DesignRecord& record, const SchematicView& view, Canvas& canvas) {
  Begin(PageScale(record, view), canvas);
  const PenScope pen(canvas);
  canvas.Fit = asLaidOut;
  if (record.Stages < 1) return;
  Drawing(record, view, canvas).Draw();
  DrawDesignData(record, dataLeft, dataTop, canvas);
}

std::vector<SchematicRow> SchematicRows(const Network& network, f32 room) {
  std::vector<SchematicRow> rows;
  const int stages = StagesToDraw(network);
  if (stages < 1) return rows;
  rows.push_back({.source = true, .length = sourceWidth});
  for (int s = 1; s <= stages; ++s) {
    // The load follows the last stage into its row.
    const f32 width = StageWidth(network.stage[s].ElementType) + (s == stages ? loadWidth : 0);
    if (rows.back().length + width > room) rows.push_back({.first = s});
    rows.back().last = s;
    rows.back().length += width;
  }
  rows.back().load = true;
  return rows;
}

void DrawSchematicRow(const DesignRecord& record, const SchematicView& view, const SchematicRow& row, Canvas& canvas) {
  constexpr f32 moreRoom = 200;
  Drawing drawing(record, view, canvas);
  Begin({0, bandTop, row.length + moreRoom, drawing.RowBottom() - bandTop}, canvas);
  const PenScope pen(canvas);
  canvas.Fit = asLaidOut;
  drawing.DrawRow(row);
}

void DrawArtwork(const Network& network, SchematicMode mode, Canvas& canvas) {
  constexpr f32 numberAboveRail = 400;
  constexpr f32 ratiosBelow = 300;  // of the last row
  constexpr f32 margin = 500;
  constexpr f32 ratioPitch = 2200;
  constexpr f32 leastWidth = 5000;  // of the page, for the ratios
  const std::vector<ArtworkStage> stages = ArtworkStages(network);
  f32 width = leastWidth;
  f32 lastRail = 0;
  for (const ArtworkStage& stage : stages) {
    width = std::max(width, stage.box.x + stage.box.width + margin);
    lastRail = stage.box.y + railGap;
  }
  Begin(Scale{0, 0, width, lastRail + ratiosBelow + margin}, canvas);
  if (stages.empty()) return;
  const RailForm form = mode == SchematicMode::Unbalanced ? RailForm::Unbalanced : RailForm::Balanced;
  for (const ArtworkStage& stage : stages) {
    const StageBox& box = stage.box;
    const std::string number = std::to_string(stage.number);
    canvas.PrintAt(box.x + (box.width - canvas.TextWidth(number)) / 2, box.y - numberAboveRail, number);
    DrawStage(canvas, network.stage[stage.number].ElementType, box, colorBlack, form);
  }
  const StageBox& first = stages.front().box;
  const StageBox& last = stages.back().box;
  DrawTerminals(canvas, first.x - terminalRadius, first.y, railGap, colorBlack);
  DrawTerminals(canvas, last.x + last.width + terminalRadius, last.y, railGap, colorBlack);
  canvas.PrintAt(first.x, lastRail + ratiosBelow, CapacitorRatioText(network));
  canvas.PrintAt(first.x + ratioPitch, lastRail + ratiosBelow, InductorRatioText(network));
}

bool HasNegativePart(const Network& network) {
  for (int s = 1; s <= StagesToDraw(network); ++s) {
    if (HasNegativeValue(network.stage[s])) return true;
  }
  return false;
}

}  // namespace quilm
