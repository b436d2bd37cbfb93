#include "display/LimitEntry.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "core/modGeneral.h"
#include "display/LimitDrawing.h"
#include "display/PlotKinds.h"
#include "display/PlotText.h"
#include "display/SheetDrawing.h"
#include "display/modReadout.h"
#include "shell/PenScope.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr Point promptCorner{1000, 360};

// Of the plots that have a type of their own.
std::string PromptOf(i16 code, LimitsWantedBy who) {
  static constexpr std::array<const char*, plotTypes> names = {"transmission", "return", "angle",
                                                               "delay",        "VSWR",   "input impedance"};
  constexpr i16 angleCode = 3;
  if (code < 1 || code > plotTypes || (code == angleCode && who == LimitsWantedBy::LimitsPage)) return {};
  return std::string("Enter ") + names[static_cast<std::size_t>(code - 1)] + " limits";
}

const char* PointerHeading(int type) {
  static constexpr std::array<const char*, plotTypes> headings = {
      "Frequency:    Transmission: ", "Frequency:    Return: ", "Frequency:    Angle: ",
      "Frequency:    Delay: ",        "Frequency:    VSWR: ",   "Frequency:    Input impedance: "};
  return headings.at(static_cast<std::size_t>(type - 1));
}

// What the pointer says.
struct Pointed {
  f32 frequency = 0;
  f32 value = 0;  // in the unit of the plot type; below the frame it goes on
};

int TypeOf(const Session& session) { return LimitTypeOf(session.plot.limitEntry.LimitEntryPlot); }

std::optional<Pointed> At(const Session& session, f32 x, f32 y) {
  const DesignRecord& record = session.record;
  if (record.ResponsesValid != 1 || !InReadoutFrame(x, y)) return std::nullopt;
  const ValueScale scale = ScaleOf(record, LimitedQuantity(TypeOf(session)));
  const f64 part = (static_cast<f64>(y) - static_cast<f64>(plotFrame.top)) / static_cast<f64>(plotFrame.height);
  const f64 top = scale.top;
  return Pointed{session.responses.RespFreq[CursorIndex(record, x)],
                 static_cast<f32>(top + part * (static_cast<f64>(scale.bottom) - top))};
}

bool TakesTwoClicks(i16 shape) { return ShapeOf(shape).reach == LimitReach::Band; }

LimitArea AreaFor(const Session& session, const Pointed& pointed) {
  const LimitEntry& entry = session.plot.limitEntry;
  const f32 first = entry.first ? entry.first->frequency : pointed.frequency;
  return MakeLimitArea(entry.LimitShapeChoice, first, pointed.frequency, pointed.value,
                       LimitEnds(session.record, TypeOf(session)));
}

void PrintPointed(int type, const Pointed& pointed, Canvas& canvas) {
  constexpr int delayType = 4;
  const std::string heading = PointerHeading(type);
  const f32 valueLeft = footerLeft + canvas.TextWidth(heading.substr(0, heading.find(' ') + 4));
  ClearReadoutStrip(canvas);
  canvas.PrintAt(footerLeft, readoutHeadingRow, heading);
  canvas.PrintAt(footerLeft, readoutValueRow, FormatFrequency(pointed.frequency));
  canvas.PrintAt(valueLeft, readoutValueRow,
                 type == delayType ? FormatTime(pointed.value) : FormatValue(pointed.value));
}

// Where a band begins.
void DrawStub(Point at, Canvas& canvas) {
  constexpr f32 half = 60;
  canvas.Line(at.x, at.y - half, at.x, at.y + half, limitOutline);
  canvas.Line(at.x - half, at.y, at.x + half, at.y, limitOutline);
}

void DrawCell(int shape, bool chosen, Canvas& canvas) {
  constexpr Color chosenPaper = 0xF8D8A8;
  constexpr Color chosenEdge = 0xB06010;
  constexpr Color edge = 0x999999;
  const PenScope pen(canvas);
  canvas.ShowOn = Medium::Screen;
  const PlotBox cell = LimitCell(shape);
  canvas.Rectangle(cell.left, cell.top, cell.Right(), cell.Bottom(), chosen ? chosenPaper : colorWhite, true);
  DrawLimitShape(shape, cell, canvas);
  canvas.Rectangle(cell.left, cell.top, cell.Right(), cell.Bottom(), chosen ? chosenEdge : edge, false);
}

}  // namespace

bool EntersLimits(const Session& session) { return session.plot.limitEntry.LimitEntryPlot != 0; }

void BeginLimitEntry(Session& session, LimitsWantedBy who) {
  const i16 code = session.record.PlotCode;
  session.record.LimitsShown = 1;
  session.plot.limitEntry = {};
  if (LimitTypeOf(code) != 0) session.plot.limitEntry = {code, 0, PromptOf(code, who), {}};
  RedrawPlot(session);
}

void ResumeLimitEntry(Session& session, LimitEntry entry) {
  entry.first.reset();
  session.plot.limitEntry = std::move(entry);
  RedrawPlot(session);
}

void EndLimitEntry(Session& session) {
  session.plot.limitEntry = {};
  RedrawPlot(session);
}

void ChooseLimitShape(Session& session, i16 shape) {
  LimitEntry& entry = session.plot.limitEntry;
  const i16 before = entry.LimitShapeChoice;
  entry.LimitShapeChoice = shape;
  entry.first.reset();
  if (!EntersLimits(session)) return;
  if (before != 0) DrawCell(before, false, session.plot.picture);
  DrawCell(shape, true, session.plot.picture);
}

LimitClick TakeLimitClick(Session& session, f32 x, f32 y) {
  LimitEntry& entry = session.plot.limitEntry;
  const std::optional<Pointed> pointed = At(session, x, y);
  if (!pointed || entry.LimitShapeChoice == 0) return LimitClick::Nothing;
  const int type = TypeOf(session);
  if (session.record.LimitCount[type] >= limitsPerPlot) {
    EndLimitEntry(session);
    return LimitClick::NoRoom;
  }
  if (TakesTwoClicks(entry.LimitShapeChoice) && !entry.first) {
    entry.first = {{x, y}, pointed->frequency};
    return LimitClick::FirstOfTwo;
  }
  AddArea(session.record, type, AreaFor(session, *pointed));
  entry.first.reset();
  RedrawPlot(session);
  return LimitClick::Area;
}

void DrawLimitPointer(const Session& session, f32 x, f32 y, Canvas& canvas) {
  const std::optional<Pointed> pointed = At(session, x, y);
  if (!pointed) return;
  const LimitEntry& entry = session.plot.limitEntry;
  const PenScope pen(canvas);
  canvas.ForeColor = colorBlack;
  canvas.FontSize = labelSize;
  canvas.Fit.anchor = 0;
  PrintPointed(TypeOf(session), *pointed, canvas);
  if (entry.first) DrawStub(entry.first->at, canvas);
  if (entry.LimitShapeChoice == 0 || (TakesTwoClicks(entry.LimitShapeChoice) && !entry.first)) return;
  PlotSetup setup = SetupOf(session);
  setup.areas = {AreaFor(session, *pointed)};
  DrawLimitOutlines(setup, canvas);
}

void DrawLimitEntry(const LimitEntry& entry, Canvas& canvas) {
  if (entry.LimitEntryPlot == 0) return;
  const PenScope pen(canvas);
  canvas.ShowOn = Medium::Screen;
  canvas.ForeColor = colorBlack;
  canvas.FontSize = labelSize;
  canvas.Fit.anchor = 0;
  if (!entry.prompt.empty()) canvas.PrintAt(promptCorner.x, promptCorner.y, entry.prompt);
  for (int shape = 1; shape <= limitShapes; ++shape) DrawCell(shape, shape == entry.LimitShapeChoice, canvas);
}

PlotBox LimitCell(int shape) {
  constexpr f32 pitch = 635;
  constexpr f32 before = 3195;
  return {pitch * static_cast<f32>(shape) + before, 500, 600, 400};
}

ValueScale LimitEnds(const PlotScales& scales, int type) {
  constexpr f32 lowestLoss = -300;  // dB
  const Quantity quantity = LimitedQuantity(type);
  if (quantity == Quantity::Transmission || quantity == Quantity::Return) return {0, lowestLoss};
  return ScaleOf(scales, quantity);
}

LimitArea MakeLimitArea(i16 shape, f32 first, f32 second, f32 value, const ValueScale& ends) {
  const LimitShapeRow& row = ShapeOf(shape);
  LimitArea area{static_cast<f32>(shape), first, second, value, value};
  if (row.reach == LimitReach::FromDC) area.start = lowestLimitFrequency;
  if (row.reach == LimitReach::Upward) area.stop = highestLimitFrequency;
  if (row.side == LimitSide::Floor) area.bottom = ends.bottom;
  if (row.side == LimitSide::Ceiling) area.top = ends.top;
  return area;
}

}  // namespace quilm
