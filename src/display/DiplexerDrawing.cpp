#include "display/DiplexerDrawing.h"

#include <algorithm>
#include <string>

#include "core/Network.h"
#include "core/modGeneral.h"
#include "diplexer/DiplexerArms.h"
#include "diplexer/DiplexerEntries.h"
#include "schematic/DesignData.h"
#include "schematic/ElementPicture.h"
#include "schematic/LabelDrawing.h"
#include "schematic/PartSymbols.h"
#include "schematic/StageLabels.h"
#include "schematic/Symbols.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 firstRail = 2500;
constexpr f32 armPitch = 2080;  // from one upper rail to the other
constexpr f32 partPitch = 800;
constexpr f32 middle = 4000;          // of the first arm's parts
constexpr f32 secondArmRight = 1420;  // of the first one
constexpr f32 busLeft = 300;          // of the first part
constexpr f32 sourceLeft = 950;
constexpr f32 sourceRadius = 150;
constexpr f32 margin = 400;
constexpr f32 termination = 360;       // from the last part to its middle
constexpr f32 terminationRoom = 1000;  // from there to the right
constexpr f32 circuitTop = 1850;
constexpr f32 circuitBottom = 6200;

constexpr f32 pageTop = 1000;
constexpr f32 pageBottom = 7250;
constexpr f32 leastPage = 8200;  // wide, for the summary
constexpr f32 summaryTop = 1150;
constexpr f32 noteTop = 1430;
constexpr f32 ratiosTop = 6400;
constexpr f32 textSize = 9;  // points
constexpr f32 textPitch = 240;

constexpr f32 labelSize = 8;  // points
constexpr f32 labelPitch = 170;
constexpr f32 labelsAbove = 330;  // of the rail
constexpr f32 labelMargin = 30;
constexpr f32 nameAbove = 370;
constexpr f32 numbersBelow = 310;  // of common: below the bars of a ground
constexpr f32 numbersDrop = 40;    // further below a symbol in the line
constexpr Color numberColor = 0x8A4A1A;
constexpr Color noteColor = 0x0060C0;

f32 FirstPart(i16 DipOrder) { return middle - partPitch / 2 * static_cast<f32>(DipOrder); }

class CircuitDrawing {
 public:
  CircuitDrawing(const Diplexer& diplexer, Canvas& canvas) : diplexer_(diplexer), canvas_(canvas) {}

  void Draw() const {
    const f32 first = FirstPart(diplexer_.DipOrder);
    const f32 second = first + secondArmRight;
    DrawSource(first);
    // What feeds the second arm passes below the first one.
    const f32 bus = first - busLeft;
    canvas_.Line(bus, firstRail, bus, firstRail + armPitch, colorBlack);
    canvas_.Line(bus, firstRail + armPitch, second, firstRail + armPitch, colorBlack);
    const auto arms = ArmsOf(diplexer_.DipMode);
    DrawArm(arms[0], first, firstRail, firstArmColor);
    DrawArm(arms[1], second, firstRail + armPitch, secondArmColor);
  }

 private:
  // A generator without resistance, from common to the point where both arms begin.
  void DrawSource(f32 first) const {
    const f32 x = first - sourceLeft;
    const f32 y = firstRail + railGap / 2;
    canvas_.Line(x, firstRail, x, y - sourceRadius, colorBlack);
    canvas_.Circle(x, y, sourceRadius, colorBlack);
    canvas_.Line(x, y + sourceRadius, x, firstRail + railGap, colorBlack);
    DrawGround(canvas_, x, firstRail + railGap, 1, colorBlack);
    canvas_.Line(x, firstRail, first, firstRail, colorBlack);
    PrintMiddle(x, firstRail - labelsAbove, "Source");
  }

  void DrawArm(i16 DipArm, f32 x, f32 rail, Color color) const {
    const Network arm = LoadDiplexerArm(diplexer_, DipArm, Network());
    for (int k = 1; k <= arm.Stages; ++k) {
      const Stage& stage = arm.stage[k];
      DrawStage(canvas_, stage.ElementType, StageBox{x, rail, partPitch, railGap}, colorBlack, RailForm::Grounded);
      PrintValues(k, stage, x, rail);
      x += partPitch;
    }
    DrawTermination(x, rail);
    PrintName(DipArm, x, rail, color);
  }

  void DrawTermination(f32 x, f32 rail) const {
    constexpr f32 labelRight = 150;  // of its middle
    constexpr Part resistor = Part::Resistor;
    const f32 at = x + termination;
    canvas_.Line(x, rail, at, rail, colorBlack);
    DrawChain(Run(canvas_, {at, rail}, Run::Way::Down, colorBlack), {&resistor, 1}, 0, railGap);
    DrawGround(canvas_, at, rail + railGap, 1, colorBlack);
    PrintLabel(canvas_, at + labelRight, rail + railGap / 2 - labelPitch / 2, terminationRoom - labelRight,
               {Trimmed(FormatResistance(diplexer_.DipZ)), false, ohmSign});
  }

  // Above the termination that the arm feeds.
  void PrintName(i16 DipArm, f32 x, f32 rail, Color color) const {
    const PenScope pen(canvas_);
    canvas_.FontSize = textSize;
    canvas_.FontBold = true;
    canvas_.ForeColor = color;
    canvas_.PrintAt(x + termination / 2, rail - nameAbove, ArmName(DipArm));
  }

  // The values above the part, and its designators at the other side of its symbol.
  void PrintValues(int k, const Stage& stage, f32 x, f32 rail) const {
    const std::vector<StageLabel> labels = ValueLabels(stage);
    f32 y = rail - labelsAbove - labelPitch * static_cast<f32>(labels.size() - 1);
    std::string designators;
    for (const StageLabel& label : labels) {
      constexpr f32 room = partPitch - 2 * labelMargin;
      const f32 spare = std::max(room - canvas_.TextWidth(label.text), 0.0F);
      PrintLabel(canvas_, x + labelMargin + spare / 2, y, room, label);
      y += labelPitch;
      if (!designators.empty()) designators += ' ';
      designators += label.designator + std::to_string(k);
    }
    const f32 drop = SymbolDrop(stage.ElementType, RailForm::Unbalanced);
    const PenScope pen(canvas_);
    canvas_.ForeColor = numberColor;
    PrintMiddle(x + partPitch / 2, rail + (drop > 0 ? drop + numbersDrop : railGap + numbersBelow), designators);
  }

  void PrintMiddle(f32 x, f32 y, std::string_view text) const {
    canvas_.PrintAt(x - canvas_.TextWidth(text) / 2, y, text);
  }

  const Diplexer& diplexer_;
  Canvas& canvas_;
};

// Both arms one behind the other, for what is told of all parts.
Network AllParts(const Diplexer& diplexer) {
  Network all;
  for (const i16 DipArm : ArmsOf(diplexer.DipMode)) {
    const Network arm = LoadDiplexerArm(diplexer, DipArm, Network());
    for (int k = 1; k <= arm.Stages; ++k) all.stage[++all.Stages] = arm.stage[k];
  }
  return all;
}

void PrintRatios(const Diplexer& diplexer, f32 x, Canvas& canvas) {
  constexpr f32 indent = 200;
  canvas.PrintAt(x, ratiosTop, "Maximum / minimum ratios:");
  canvas.PrintAt(x + indent, ratiosTop + textPitch, DiplexerCapacitorRatio(diplexer));
  canvas.PrintAt(x + indent, ratiosTop + 2 * textPitch, DiplexerInductorRatio(diplexer));
}

}  // namespace

Scale DiplexerCircuitScale(i16 DipOrder) {
  const f32 first = FirstPart(DipOrder);
  const f32 left = first - sourceLeft - margin;
  const f32 right = first + secondArmRight + partPitch * static_cast<f32>(DipOrder) + termination + terminationRoom;
  return {left, circuitTop, right - left, circuitBottom - circuitTop};
}

void DrawDiplexerCircuit(const Diplexer& diplexer, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.Fit = asLaidOut;
  canvas.FontSize = labelSize;
  CircuitDrawing(diplexer, canvas).Draw();
}

std::string DiplexerCapacitorRatio(const Diplexer& diplexer) { return CapacitorRatioText(AllParts(diplexer)); }

std::string DiplexerInductorRatio(const Diplexer& diplexer) { return InductorRatioText(AllParts(diplexer)); }

void DrawDiplexer(const Diplexer& diplexer, std::string_view note, Canvas& canvas) {
  const Scale circuit = DiplexerCircuitScale(diplexer.DipOrder);
  const f32 width = std::max(circuit.width, leastPage);
  const f32 left = circuit.left - (width - circuit.width) / 2;
  canvas.SetScale({left, pageTop, width, pageBottom - pageTop});
  canvas.Clear();
  canvas.FontName = "Arial";
  canvas.FontBold = false;
  canvas.FontSize = textSize;
  canvas.ForeColor = colorBlack;
  canvas.DrawWidth = 1;
  const PenScope pen(canvas);
  canvas.Fit = asLaidOut;
  const f32 textLeft = left + margin;
  PrintLabel(canvas, textLeft, summaryTop, width - 2 * margin, {DiplexerSummary(diplexer)});
  DrawDiplexerCircuit(diplexer, canvas);
  PrintRatios(diplexer, textLeft, canvas);
  canvas.ForeColor = noteColor;
  if (!note.empty()) canvas.PrintAt(textLeft, noteTop, note);
}

void DrawTrap(f32 L, f32 C, Canvas& canvas) {
  constexpr Scale scale{0, 0, 3600, 2000};
  constexpr f32 symbolTop = 700;
  constexpr f32 symbolBottom = 1250;
  canvas.SetScale(scale);
  canvas.Clear();
  const PenScope pen(canvas);
  canvas.FontName = "Arial";
  canvas.FontSize = textSize;
  canvas.FontBold = false;
  canvas.ForeColor = colorBlack;
  canvas.DrawWidth = 2;
  DrawElement(canvas, SeriesPLC, {0, symbolTop}, {scale.width, symbolBottom}, colorBlack);
  const auto print = [&](f32 y, const std::string& text) {
    canvas.PrintAt((scale.width - canvas.TextWidth(text)) / 2, y, text);
  };
  print(symbolTop - textPitch, Trimmed(FormatInductance(L)));
  print(symbolBottom + textPitch / 4, Trimmed(FormatCapacitance(C)));
}

}  // namespace quilm
