#include "display/DiplexerPlot.h"

#include <array>
#include <span>

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "diplexer/DiplexerArms.h"
#include "display/DiplexerDrawing.h"
#include "display/Markers.h"
#include "display/PlotCurve.h"
#include "display/PlotFrame.h"
#include "display/PlotGrid.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "display/modReadout.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

constexpr f32 summaryRow = 440;
constexpr f32 legendRow = 715;

struct CurveFace {
  Color color;
  LineStyle style;  // colours do not tell curves apart on every paper
  std::string name;
  const ResponseArray DiplexerResponses::*values;
  f32 DiplexerFigures::*figure;
};

std::vector<CurveFace> FacesOf(const DiplexerSetup& setup) {
  constexpr Color returnColor = 0x008000;
  const auto [one, other] = ArmsOf(setup.DipMode);
  std::vector<CurveFace> faces = {
      {firstArmColor, LineStyle::Solid, ArmName(one), &DiplexerResponses::DipArm1Trans, &DiplexerFigures::arm1Trans},
      {secondArmColor, LineStyle::DashOnPaper, ArmName(other), &DiplexerResponses::DipArm2Trans,
       &DiplexerFigures::arm2Trans}};
  if (setup.showsReturn) {
    faces.push_back(
        {returnColor, LineStyle::Solid, "Return", &DiplexerResponses::DipReturn, &DiplexerFigures::returnLoss});
  }
  return faces;
}

ValueScale ScaleOf(const DiplexerSetup& setup) { return {0, setup.scales.LossBottom}; }

// A piece of each curve with its name.
void DrawLegend(const DiplexerSetup& setup, Canvas& canvas) {
  constexpr f32 sample = 420;
  constexpr f32 gap = 90;
  constexpr f32 pitch = 1650;
  const PenScope pen(canvas);
  canvas.FontSize = titleSize;
  canvas.Fit.anchor = 0;
  f32 x = plotFrame.left;
  for (const CurveFace& face : FacesOf(setup)) {
    const f32 y = legendRow + canvas.TextHeight("0") / 2;
    canvas.DrawWidth = TraceWidth(setup.scales);
    canvas.DrawStyle = face.style;
    canvas.Line(x, y, x + sample, y, face.color);
    canvas.ForeColor = face.color;
    canvas.PrintAt(x + sample + gap, legendRow, face.name);
    x += pitch;
  }
}

void DrawTexts(const DiplexerSetup& setup, Canvas& canvas) {
  constexpr f32 unitEnd = 1800;  // where the labels of the scale end
  const PenScope pen(canvas);
  canvas.ForeColor = colorBlack;
  canvas.FontSize = titleSize;
  PrintEndingAt(canvas, unitEnd, legendRow, "dB");
  canvas.Fit.anchor = 0;
  if (!setup.summary.empty()) canvas.PrintAt(plotFrame.left, summaryRow, setup.summary);
}

void DrawCurves(const DiplexerSetup& setup, const DiplexerResponses& responses, AxisPlaces& places, Canvas& canvas) {
  const PenScope pen(canvas);
  canvas.DrawWidth = TraceWidth(setup.scales);
  const std::span<const f32> frequencies = responses.Frequencies();
  for (const CurveFace& face : FacesOf(setup)) {
    canvas.DrawStyle = face.style;
    DrawCurve({frequencies, std::span((responses.*face.values).data(), frequencies.size())}, ScaleOf(setup), face.color,
              {setup.axis, places}, canvas);
  }
}

std::vector<std::string> Headings(const DiplexerSetup& setup) {
  std::vector<std::string> headings = {"Freq.:"};
  for (const CurveFace& face : FacesOf(setup)) headings.push_back(face.name + ":");
  return headings;
}

std::vector<std::string> RowOf(const DiplexerSetup& setup, f32 freq, const DiplexerFigures& figures) {
  std::vector<std::string> texts = {FormatFrequency(freq), TransmissionText(figures.arm1Trans),
                                    TransmissionText(figures.arm2Trans)};
  if (setup.showsReturn) texts.push_back(ReturnText(figures.returnLoss));
  return texts;
}

// Where a frequency stands on each curve.
std::vector<Point> PlacesOf(const DiplexerSetup& setup, f32 freq, const DiplexerFigures& figures) {
  const f32 x = FrameX(setup.axis.Fraction(freq));
  std::vector<Point> places;
  for (const CurveFace& face : FacesOf(setup)) {
    places.push_back({x, FrameY(ScaleOf(setup), static_cast<f64>(figures.*face.figure))});
  }
  return places;
}

void BeginRows(const DiplexerSetup& setup, Canvas& canvas) {
  canvas.ForeColor = colorBlack;
  canvas.FontSize = labelSize;
  canvas.Fit.anchor = 0;
  PrintReadoutRow(readoutHeadingRow, Headings(setup), canvas);
}

void DrawDiplexerMarkers(const DiplexerSetup& setup, Canvas& canvas) {
  if (setup.markers.empty()) return;
  const PenScope pen(canvas);
  BeginRows(setup, canvas);
  std::size_t row = 0;
  for (const DiplexerMarker& marker : setup.markers) {
    const f32 y = MarkerRow(++row);
    PrintEndingAt(canvas, markerNumbersEnd, y, std::to_string(marker.number));
    PrintReadoutRow(y, RowOf(setup, marker.freq, marker.figures), canvas);
  }
  for (const DiplexerMarker& marker : setup.markers) {
    if (!marker.inSweep) continue;
    for (const Point at : PlacesOf(setup, marker.freq, marker.figures)) DrawMarkerTick(at, marker.number, canvas);
  }
}

}  // namespace

DiplexerSetup DiplexerSetupOf(const Diplexer& diplexer, const DesignRecord& record) {
  return {.axis = HorizontalAxis(record), .scales = record, .DipMode = diplexer.DipMode};
}

std::vector<DiplexerMarker> ReadDiplexerMarkers(const Diplexer& diplexer, const DesignRecord& record) {
  std::vector<DiplexerMarker> markers;
  int number = 0;
  for (const f32 freq : diplexer.DipMarker) {
    ++number;
    if (!(freq > 0)) continue;
    markers.push_back(
        {number, freq, DiplexerAt(diplexer, record, freq), freq >= record.Fstart && freq <= record.Fstop});
  }
  return markers;
}

void DrawDiplexerPlot(const DiplexerSetup& setup, const DiplexerResponses& responses, AxisPlaces& places,
                      Canvas& canvas) {
  const PenScope pen(canvas);
  BeginPlot(WithMarkerRows(plotScale, setup.markers.size()), canvas);
  DrawTexts(setup, canvas);
  DrawLegend(setup, canvas);
  DrawHorizontalGrid(setup.scales.NrYints, canvas);
  DrawScale(ScaleOf(setup), setup.scales.NrYints, ScaleSide::Left, canvas);
  DrawVerticalGrid(setup.axis, setup.scales.NrXints, canvas);
  DrawFrame(canvas);
  DrawCurves(setup, responses, places, canvas);
  if (!setup.inReport) DrawFooters({}, setup.markers.empty() ? BelowPlot::Free : BelowPlot::Markers, canvas);
  DrawDiplexerMarkers(setup, canvas);
}

void DrawDiplexerReadout(const DiplexerSetup& setup, const DiplexerResponses& responses, std::size_t index,
                         Canvas& canvas) {
  const PenScope pen(canvas);
  const DiplexerFigures figures = {responses.DipArm1Trans.data()[index], responses.DipArm2Trans.data()[index],
                                   responses.DipReturn.data()[index]};
  const f32 freq = responses.Frequencies()[index];
  ClearReadoutStrip(canvas);
  BeginRows(setup, canvas);
  PrintReadoutRow(readoutValueRow, RowOf(setup, freq, figures), canvas);
  DrawReadoutMarks(PlacesOf(setup, freq, figures), canvas);
}

}  // namespace quilm
