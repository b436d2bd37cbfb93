#include "display/modReadout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "core/Fault.h"
#include "core/NumericFault.h"
#include "core/ResponseArray.h"
#include "core/Sweep.h"
#include "core/modGeneral.h"
#include "display/PlotKinds.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "display/modSmith.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 ReadoutColumnStep = 1000;  // room for a frequency of six digits
constexpr Point stripCorner{800, 7270};
constexpr f32 stripBottom = 7680;
constexpr f32 lowestPrinted = -120;  // dB
constexpr f32 highestRatio = 1000;
constexpr i16 markWidth = 10;
constexpr Color markColor = 0xFF44FF;

constexpr std::array<const char*, readoutColumns> headings = {
    "Freq.:", "Trans.:", "Angle:", "Return:", "Delay:", "VSWR:", "Zmag.:", "Zangle:", "Real:", "Imag.:"};

std::string Number(f64 value) { return FormatValue(static_cast<f32>(value)); }

template <class Texts>
void PrintColumns(f32 row, const Texts& texts, Canvas& canvas) {
  f32 x = footerLeft;
  for (const auto& text : texts) {
    canvas.PrintAt(x, row, text);
    x += ReadoutColumnStep;
  }
}

std::vector<Point> MarkedPoints(const PlotSetup& setup, const ResponseSpans& responses, std::size_t i) {
  if (IsRectangular(setup.scales.PlotCode)) return TracePoints(setup, responses, i);
  return ChartPoints(setup, responses, i);
}

}  // namespace

std::string TransmissionText(f32 dB) { return dB < lowestPrinted ? "<-120" : Number(dB); }
std::string ReturnText(f32 dB) { return dB < lowestPrinted ? "< -120" : Number(dB); }

std::array<std::string, readoutColumns> ReadoutTexts(const ResponseSpans& r, std::size_t i) {
  return {FormatFrequency(r.freq[i]),
          TransmissionText(r.trans[i]),
          Number(r.angle[i]),
          ReturnText(r.returnLoss[i]),
          FormatTime(r.delay[i]),
          r.vswr[i] > highestRatio ? ">1000" : Number(r.vswr[i]),
          Number(r.zin[i]),
          Number(r.zinAngle[i]),
          Number(ValueOf(r, Quantity::Real, i)),
          Number(ValueOf(r, Quantity::Imaginary, i))};
}

void PrintReadoutHeadings(Canvas& canvas) { PrintColumns(readoutHeadingRow, headings, canvas); }

void PrintReadoutRow(f32 y, std::span<const std::string> texts, Canvas& canvas) { PrintColumns(y, texts, canvas); }

void ClearReadoutStrip(Canvas& canvas) {
  const f32 right = canvas.ScaleLeft + canvas.ScaleWidth;
  canvas.Rectangle(stripCorner.x, stripCorner.y, right, stripBottom, colorWhite, true);
}

bool InReadoutFrame(f32 x, f32 y) { return x > plotFrame.left && x < plotFrame.Right() && y > plotFrame.top; }

i16 CursorIndex(const SweepSettings& sweep, f32 x) {
  const f64 part = (static_cast<f64>(x) - static_cast<f64>(plotFrame.left)) / static_cast<f64>(plotFrame.width);
  // At the right edge, and with intervals that are no whole number, the last point is the nearest.
  const f64 index = std::min(std::floor(part * (static_cast<f64>(sweep.NrIntervals) + 1)), f64(LastPoint(sweep)));
  if (!(index >= 0 && index <= responseBound)) throw BoundFault();
  return static_cast<i16>(index);
}

void DrawReadoutMarks(std::span<const Point> places, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawMode = PenMode::ExclusiveOr;
  canvas.DrawWidth = markWidth;
  for (const Point at : places) canvas.PSet(at.x, at.y, markColor);
}

void DrawReadout(const PlotSetup& setup, const ResponseSpans& responses, std::size_t index, Canvas& canvas) {
  const PenScope pen(canvas);
  ClearReadoutStrip(canvas);
  canvas.ForeColor = colorBlack;
  canvas.FontSize = labelSize;
  canvas.Fit.anchor = 0;
  PrintReadoutHeadings(canvas);
  PrintReadoutRow(readoutValueRow, ReadoutTexts(responses, index), canvas);
  try {
    DrawReadoutMarks(MarkedPoints(setup, responses, index), canvas);
  } catch (const NumericFault&) {
    // The plot has told of its missing scale already; the values are worth reading all the same.
  }
}

}  // namespace quilm
