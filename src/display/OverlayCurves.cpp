#include "display/OverlayCurves.h"

#include <algorithm>

#include "display/PlotKinds.h"
#include "display/modPlot.h"
#include "display/modSmith.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

using Quantities = std::vector<Quantity>;

// What a trace is computed from.
Quantities SourcesOf(Quantity quantity) {
  if (quantity == Quantity::Real || quantity == Quantity::Imaginary) return {Quantity::Zin, Quantity::ZinAngle};
  return {quantity};
}

Quantities SourcesOfChart(i16 plotCode) {
  if (plotCode == smithCode) return {Quantity::Zin, Quantity::ZinAngle};
  return {Quantity::Transmission, Quantity::Angle};
}

// The traces of a plot; magnified ones are of the present response alone.
std::vector<PlotTrace> TracesOf(PlotScales scales) {
  scales.MagnifyMode = 0;
  return KindOf(scales).traces;
}

// Views of the curves as responses, over the frequencies of the first and as long as the shortest.
ResponseSpans SpansOf(const StoredCurves& curves, const Quantities& sources) {
  std::size_t count = curves.at(sources.front()).freq.size();
  for (const Quantity quantity : sources) count = std::min(count, curves.at(quantity).value.size());
  const auto of = [&](Quantity quantity) {
    const bool held = std::find(sources.begin(), sources.end(), quantity) != sources.end();
    return held ? std::span<const f32>(curves.at(quantity).value).first(count) : std::span<const f32>();
  };
  return {std::span<const f32>(curves.at(sources.front()).freq).first(count),
          of(Quantity::Transmission),
          of(Quantity::Angle),
          of(Quantity::Delay),
          of(Quantity::Return),
          of(Quantity::VSWR),
          of(Quantity::Zin),
          of(Quantity::ZinAngle)};
}

}  // namespace

std::vector<Quantity> OverlaidQuantities(i16 plotCode) {
  if (plotCode == smithCode || plotCode == polarCode) return SourcesOfChart(plotCode);
  PlotScales scales;
  scales.PlotCode = plotCode;
  Quantities all;
  for (const PlotTrace& trace : TracesOf(scales)) {
    for (const Quantity source : SourcesOf(trace.quantity)) {
      if (std::find(all.begin(), all.end(), source) == all.end()) all.push_back(source);
    }
  }
  return all;
}

void DrawOverlay(const PlotSetup& setup, const StoredCurves& curves, Canvas& canvas) {
  const i16 code = setup.scales.PlotCode;
  if (!IsRectangular(code)) {
    DrawRoundTrace(setup, SpansOf(curves, SourcesOfChart(code)), canvas);
    return;
  }
  AxisPlaces places;  // the frequencies are no sweep's that comes again
  for (const PlotTrace& trace : TracesOf(setup.scales)) {
    DrawTrace(setup, trace, SpansOf(curves, SourcesOf(trace.quantity)), places, canvas);
  }
}

}  // namespace quilm
