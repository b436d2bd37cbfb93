#include "pages/transforms/MatchDrawing.h"

#include <algorithm>

#include "core/modGeneral.h"
#include "schematic/ElementPicture.h"
#include "schematic/LabelDrawing.h"
#include "schematic/StageLabels.h"
#include "schematic/Symbols.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 firstRail = 1500;
constexpr f32 rowPitch = 1500;
constexpr f32 aboveRail = 720;  // from the top of a row to its upper rail
constexpr f32 paperRows = 4;    // also where fewer are shown: what stays does not jump
constexpr f32 bottomMargin = 100;
constexpr f32 pictureWidth = 7600;
constexpr f32 headingLeft = 200;
constexpr f32 headingSize = 9;  // points
constexpr f32 circuitLeft = 2150;
constexpr f32 restWidth = 420;   // of the rails that go on to the rest of the network
constexpr f32 labelSize = 8;     // points
constexpr f32 labelMargin = 40;  // clear of the neighbours
constexpr f32 labelAbove = 330;  // of the lowest label over the rail
constexpr f32 labelPitch = 170;

class RowDrawing {
 public:
  RowDrawing(const MatchRow& row, f32 rail, Canvas& canvas) : row_(row), rail_(rail), canvas_(canvas) {}

  void Draw() {
    PrintHeading();
    if (row_.side == MatchSide::Input) {
      DrawSource();
      for (const Stage& stage : row_.stages) DrawNext(stage);
      DrawRest();
    } else {
      DrawRest();
      for (auto stage = row_.stages.rbegin(); stage != row_.stages.rend(); ++stage) DrawNext(*stage);
      DrawLoad();
    }
  }

 private:
  StageBox Next(f32 width) {
    const StageBox box{x_, rail_, width, narrowRailGap};
    x_ += width;
    return box;
  }

  void PrintHeading() {
    const PenScope pen(canvas_);
    canvas_.Fit = {.anchor = 0, .room = circuitLeft - headingLeft};
    canvas_.FontSize = headingSize;
    canvas_.FontBold = true;
    const f32 middle = rail_ + narrowRailGap / 2;
    canvas_.PrintAt(headingLeft, middle - canvas_.TextHeight(row_.heading), row_.heading);
    canvas_.FontSize = labelSize;
    canvas_.FontBold = false;
    canvas_.PrintAt(headingLeft, middle, row_.words);
  }

  void DrawSource() {
    const StageBox box = Next(sourceCell);
    DrawSourceCell(canvas_, box, colorBlack);
    PrintTermination(box);
  }

  void DrawLoad() {
    const StageBox box = Next(loadCell);
    DrawLoadCell(canvas_, box, colorBlack);
    PrintTermination(box);
  }

  void PrintTermination(const StageBox& box) {
    PrintLabel(canvas_, box.x + labelMargin, rail_ - labelAbove, box.width - 2 * labelMargin,
               {Trimmed(FormatResistance(row_.ohms)), row_.ohms < 0, ohmSign});
  }

  void DrawNext(const Stage& stage) {
    const StageBox box = Next(std::max(StageWidth(stage.ElementType), AnySymbolWidth(stage.ElementType)));
    DrawAnyStage(canvas_, stage.ElementType, box, colorBlack);
    const std::vector<StageLabel> labels = ValueLabels(stage);
    f32 y = rail_ - labelAbove - labelPitch * static_cast<f32>(std::max<std::size_t>(labels.size(), 1) - 1);
    for (const StageLabel& label : labels) {
      PrintLabel(canvas_, box.x + labelMargin, y, box.width - 2 * labelMargin, label);
      y += labelPitch;
    }
  }

  void DrawRest() {
    const PenScope pen(canvas_);
    canvas_.DrawStyle = LineStyle::Dash;
    DrawRails(canvas_, Next(restWidth), colorBlack);
  }

  const MatchRow& row_;
  f32 rail_;
  Canvas& canvas_;
  f32 x_ = circuitLeft;
};

}  // namespace

const char* MatchWords(i16 code) {
  static constexpr const char* words[] = {"As it is",          "Capacitor in the line",
                                          "Tap of capacitors", "Inductor in the line",
                                          "Tap of inductors",  "L-section"};
  return words[code % 10];
}

MatchBand BandOfRow(int index) {
  const f32 top = firstRail - aboveRail + rowPitch * static_cast<f32>(index);
  return {{0, top}, {pictureWidth, top + rowPitch}};
}

void DrawMatchRows(const std::vector<MatchRow>& rows, Canvas& canvas) {
  canvas.SetScale({0, firstRail - aboveRail, pictureWidth, paperRows * rowPitch + bottomMargin});
  canvas.Clear();
  const PenScope pen(canvas);
  canvas.FontName = "Arial";
  canvas.FontSize = labelSize;
  canvas.FontBold = false;
  canvas.Fit = asLaidOut;
  f32 rail = firstRail;
  for (const MatchRow& row : rows) {
    RowDrawing(row, rail, canvas).Draw();
    rail += rowPitch;
  }
}

}  // namespace quilm
