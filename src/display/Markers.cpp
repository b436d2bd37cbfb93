#include "display/Markers.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "core/Responses.h"
#include "display/PlotKinds.h"
#include "display/PlotSetup.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "display/modReadout.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 rowPitch = 225;
constexpr f32 rowsBegin = 7560;  // a row pitch above the first row

// The delay at a frequency of the sweep, linear between the points about it.
f32 DelayAt(const ResponseSpans& sweep, f32 frequency) {
  const auto at = std::find_if(sweep.freq.begin(), sweep.freq.end(), [frequency](f32 f) { return f >= frequency; });
  const auto above = static_cast<std::size_t>(at - sweep.freq.begin());
  // Rounding may leave the last point a little below the stop.
  if (above == sweep.Count()) return sweep.delay.back();
  if (above == 0 || sweep.freq[above] == frequency) return sweep.delay[above];
  const f64 from = sweep.freq[above - 1];
  const f64 part = (static_cast<f64>(frequency) - from) / (static_cast<f64>(sweep.freq[above]) - from);
  const f64 first = sweep.delay[above - 1];
  return static_cast<f32>(first + part * (static_cast<f64>(sweep.delay[above]) - first));
}

MarkerReading ReadingOf(const FrequencyResult& found, f64 peak) {
  MarkerReading reading;
  reading.trans = static_cast<f32>(found.TransDB - peak);
  reading.angle = static_cast<f32>(found.Angle);
  reading.returnLoss = static_cast<f32>(found.ReturnDB);
  reading.vswr = static_cast<f32>(found.VSWR);
  reading.zin = static_cast<f32>(found.ZinMag);
  reading.zinAngle = static_cast<f32>(-found.ZinAngleRaw);
  return reading;
}

std::array<std::string, readoutColumns> TextsOf(const MarkerReading& reading) {
  constexpr std::size_t delayColumn = 4;
  auto texts = ReadoutTexts(reading.Spans(), 0);
  if (!reading.inSweep) texts[delayColumn] = "-----";
  return texts;
}

void DrawRows(const std::vector<MarkerReading>& markers, Canvas& canvas) {
  canvas.FontSize = labelSize;
  canvas.Fit.anchor = 0;
  PrintReadoutHeadings(canvas);
  std::size_t row = 0;
  for (const MarkerReading& reading : markers) {
    const f32 y = MarkerRow(++row);
    PrintEndingAt(canvas, markerNumbersEnd, y, std::to_string(reading.number));
    PrintReadoutRow(y, TextsOf(reading), canvas);
  }
}

void DrawTicks(const PlotSetup& setup, Canvas& canvas) {
  for (const MarkerReading& reading : setup.markers) {
    if (!reading.inSweep) continue;
    for (const Point at : TracePoints(setup, reading.Spans(), 0)) DrawMarkerTick(at, reading.number, canvas);
  }
}

}  // namespace

ResponseSpans MarkerReading::Spans() const {
  const auto one = [](const f32& value) { return std::span<const f32>(&value, 1); };
  return {one(freq), one(trans), one(angle), one(delay), one(returnLoss), one(vswr), one(zin), one(zinAngle)};
}

std::vector<MarkerReading> ReadMarkers(const DesignRecord& record, const Responses& responses) {
  std::vector<MarkerReading> readings;
  const Ladder ladder = Compile(record, QualityFrequency(record, record));
  const ResponseSpans sweep = SpansOf(responses, LastPoint(record));
  for (int m = 1; m <= markerCount; ++m) {
    const f32 frequency = record.MarkerFreq[m];
    if (!(frequency > 0)) continue;
    FrequencyResult found;
    AnalyzeFrequency(record, ladder, 0, 0, frequency, found);
    MarkerReading reading = ReadingOf(found, record.RelativeMode == 1 ? responses.TransPeak : 0);
    reading.number = m;
    reading.freq = frequency;
    reading.inSweep = frequency >= record.Fstart && frequency <= record.Fstop;
    if (reading.inSweep) reading.delay = DelayAt(sweep, frequency);
    readings.push_back(reading);
  }
  return readings;
}

Scale WithMarkerRows(Scale scale, std::size_t markers) {
  constexpr f32 margin = 60;
  if (markers == 0) return scale;
  scale.height = MarkerRow(markers + 1) + margin - scale.top;
  return scale;
}

f32 MarkerRow(std::size_t row) { return rowsBegin + rowPitch * static_cast<f32>(row); }

// The number stands on the trace, the tick goes through it and shows the very frequency.
void DrawMarkerTick(Point at, int number, Canvas& canvas) {
  constexpr f32 above = 160;
  constexpr f32 below = 230;
  constexpr Point corner{45, 60};  // of the number, left of and above the place
  canvas.DrawWidth = 1;
  canvas.Line(at.x, std::max(at.y - above, plotFrame.top), at.x, std::min(at.y + below, plotFrame.Bottom()),
              colorBlack);
  canvas.FontSize = labelSize;
  PrintOnPatch(canvas, at.x - corner.x, at.y - corner.y, std::to_string(number));
}

void DrawMarkers(const PlotSetup& setup, Canvas& canvas) {
  if (setup.markers.empty()) return;
  const PenScope pen(canvas);
  canvas.ForeColor = colorBlack;
  if (!setup.inReport) DrawRows(setup.markers, canvas);
  if (IsRectangular(setup.scales.PlotCode)) DrawTicks(setup, canvas);
}

}  // namespace quilm
