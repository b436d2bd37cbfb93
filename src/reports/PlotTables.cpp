#include "reports/PlotTables.h"

#include <algorithm>
#include <cmath>

#include "core/modGeneral.h"
#include "display/LimitDrawing.h"

namespace quilm {

namespace {

constexpr const char* noFigure = "-----";
constexpr f32 lowestPrinted = -120;  // dB
constexpr f32 highestRatio = 1000;
constexpr f64 highestImpedance = 1e10;  // ohms

std::string Number(f64 value) {
  return std::isfinite(value) ? Trimmed(FormatValue(static_cast<f32>(value))) : noFigure;
}

std::string Decibels(f32 value) { return value < lowestPrinted ? "<-120" : Number(value); }

std::string Impedance(f64 value) { return std::fabs(value) <= highestImpedance ? Number(value) : noFigure; }

std::string Frequency(f32 value) { return Trimmed(FormatFrequency(value)); }

// As the readout shows a value of this plot.
std::string Value(f32 value, int type) {
  return Trimmed(LimitedQuantity(type) == Quantity::Delay ? FormatTime(value) : FormatValue(value));
}

// The value that the shape was pointed at: the upper edge of a floor, the lower one of a ceiling.
f32 Threshold(const LimitArea& area, LimitSide side) { return side == LimitSide::Ceiling ? area.bottom : area.top; }

std::string Reach(const LimitArea& area, LimitReach reach) {
  const std::string from = Frequency(std::min(area.start, area.stop));
  const std::string to = Frequency(std::max(area.start, area.stop));
  switch (reach) {
    case LimitReach::FromDC:
      return "From DC up to " + to;
    case LimitReach::Upward:
      return "From " + from + " upward;";
    case LimitReach::Band:
      return "From " + from + " to " + to + ";";
    case LimitReach::Single:
      break;
  }
  return "At " + from;
}

std::string PlotName(int type) {
  constexpr std::array names = {
      "transmission magnitude", "return magnitude", "transmission angle", "group delay", "VSWR", "input impedance"};
  return names.at(static_cast<std::size_t>(type - 1));
}

}  // namespace

std::array<std::string, markerColumns> MarkerHeadings() {
  return {"Frequency:", "Trans.:", "Angle:", "Return:", "Delay:", "VSWR:", "Zin:", "Zangle:", "Real:", "Imaginary:"};
}

std::array<std::string, markerColumns> MarkerTexts(const MarkerReading& reading) {
  const ResponseSpans spans = reading.Spans();
  return {Frequency(reading.freq),
          Decibels(reading.trans),
          Number(reading.angle),
          Decibels(reading.returnLoss),
          reading.inSweep ? Trimmed(FormatTime(reading.delay)) : noFigure,
          reading.vswr > highestRatio ? ">1000" : Number(reading.vswr),
          Impedance(reading.zin),
          Number(reading.zinAngle),
          Impedance(ValueOf(spans, Quantity::Real, 0)),
          Impedance(ValueOf(spans, Quantity::Imaginary, 0))};
}

std::string LimitSentence(const LimitArea& area, int type) {
  const auto& [reach, side] = ShapeOf(area.shape);
  const std::string value = Value(Threshold(area, side), type);
  if (side == LimitSide::Point) return "Marker point at " + Frequency(area.start) + ": " + value;
  const char* demand = side == LimitSide::Ceiling ? " magnitude is no more than " : " magnitude is at least ";
  return Reach(area, reach) + demand + value;
}

std::vector<LimitBlock> LimitBlocks(const LimitsAndMarkers& limits) {
  std::vector<LimitBlock> blocks;
  if (limits.LimitsShown == 0) return blocks;
  for (int type = 1; type <= plotTypes; ++type) {
    if (limits.LimitCount[type] < 1) continue;
    LimitBlock block{"Details of limits for " + PlotName(type) + " plot:", {}};
    for (int j = 1; j <= limits.LimitCount[type]; ++j)
      block.sentences.push_back(LimitSentence(AreaAt(limits, type, j), type));
    blocks.push_back(std::move(block));
  }
  return blocks;
}

}  // namespace quilm
