#include "display/modPlot.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "display/PlotFrame.h"
#include "display/PlotGrid.h"
#include "display/PlotKinds.h"
#include "display/PlotText.h"
#include "display/PlotTrace.h"

namespace quilm {

namespace {

constexpr f32 titleRow = 540;
constexpr f32 leftTitleStart = 1000;
constexpr f32 rightTitleEnd = 12000;
constexpr f32 leftLabelsEnd = 1800;
constexpr f32 rightLabelsStart = 11130;
constexpr f32 frequencyLabelRow = 7100;
constexpr f32 highestLossBottom = -0.3F;
constexpr f32 highestVSWR = 7;

void DrawHorizontalGrid(const DesignRecord& record, Canvas& canvas) {
  const f32 step = HorizontalStep(record);
  if (!(step > 0)) throw NumericFault("Division by zero");
  for (f32 y = plotFrame.top; y <= plotFrame.Bottom(); y += step) {
    canvas.Line(plotFrame.left, y, plotFrame.Right(), y, gridColor);
  }
}

std::string ScaleLabel(const ValueScale& scale, f64 part) {
  const f64 value = part * (static_cast<f64>(scale.bottom) - static_cast<f64>(scale.top)) + static_cast<f64>(scale.top);
  return Trimmed(FormatTime(static_cast<f32>(value)));
}

void DrawScale(const DesignRecord& record, const PlotAxis& axis, bool left, Canvas& canvas) {
  const ValueScale scale = ScaleOf(record, axis.quantity);
  canvas.FontSize = labelSize;
  for (int k = 0; static_cast<f32>(k) <= record.NrYints; ++k) {
    const f64 part = k / static_cast<f64>(record.NrYints);
    const f32 y = static_cast<f32>(std::floor(part * static_cast<f64>(plotFrame.height))) + plotFrame.top - labelRise;
    if (left) {
      PrintEndingAt(canvas, leftLabelsEnd, y, ScaleLabel(scale, part));
    } else {
      canvas.PrintAt(rightLabelsStart, y, ScaleLabel(scale, part));
    }
  }
  canvas.FontSize = titleSize;
  if (left) {
    canvas.PrintAt(leftTitleStart, titleRow, axis.title);
  } else {
    PrintEndingAt(canvas, rightTitleEnd, titleRow, axis.title);
  }
}

void DrawVerticalGrid(const DesignRecord& record, Canvas& canvas) {
  const FrequencyGrid grid = MakeFrequencyGrid(record);
  DrawFrequencyLines(grid, canvas);
  canvas.FontSize = labelSize;
  for (const GridLabel& label : LabelsOf(record, grid)) {
    canvas.PrintAt(1900 + plotFrame.width * label.fraction, frequencyLabelRow, label.text);
  }
}

// The round plots have theirs in the corner.
bool HasDecibelScale(const DesignRecord& record, i16 plotCode) {
  if (!IsRectangular(plotCode)) return true;
  const PlotKind kind = KindOf(record, plotCode);
  return std::any_of(kind.axes.begin(), kind.axes.end(), [](const PlotAxis& axis) {
    return axis.quantity == Quantity::Transmission || axis.quantity == Quantity::Return;
  });
}

}  // namespace

void DrawTraces(const DesignRecord& record, const Responses& responses, i16 plotCode, const TraceColors& colors,
                Canvas& canvas) {
  canvas.DrawWidth = std::max<i16>(record.PlotLineWidth, 1);
  for (const PlotTrace& trace : KindOf(record, plotCode).traces) {
    DrawTrace(record, responses, trace.quantity, trace.color == 1 ? colors.TraceColor1 : colors.TraceColor2, canvas);
  }
  canvas.DrawWidth = 1;
}

void BeginPlot(Canvas& canvas) {
  canvas.SetScale(plotScale);
  canvas.Clear();
  canvas.DrawWidth = 1;
  canvas.ForeColor = colorBlack;
  canvas.FontName = "Arial";
}

void DrawPlot(const DesignRecord& record, const Responses& responses, i16 plotCode, const TraceColors& colors,
              Canvas& canvas) {
  const PlotKind kind = KindOf(record, plotCode);
  BeginPlot(canvas);
  DrawHorizontalGrid(record, canvas);
  for (std::size_t i = 0; i < kind.axes.size(); ++i) DrawScale(record, kind.axes[i], i == 0, canvas);
  DrawVerticalGrid(record, canvas);
  DrawTraces(record, responses, plotCode, colors, canvas);
  DrawFooters(canvas);
}

void HoldLossBottom(DesignRecord& record, i16 plotCode) {
  if (!HasDecibelScale(record, plotCode)) return;
  record.LossBottom = std::min(record.LossBottom, highestLossBottom);
}

void AutoScale(DesignRecord& record, const Responses& responses) {
  f32 lowestTransmission = 0;
  f32 highestDelay = 0;
  f32 highestRatio = 0;
  f32 highestImpedance = 0;
  const int last = LastPoint(record);
  for (int i = 0; i <= last; ++i) {
    lowestTransmission = std::min(lowestTransmission, responses.RespTrans[i]);
    highestDelay = std::max(highestDelay, responses.RespDelay[i]);
    highestRatio = std::max(highestRatio, responses.RespVSWR[i]);
    highestImpedance = std::max(highestImpedance, responses.RespZin[i]);
  }
  record.LossBottom = lowestTransmission;
  record.DelayTop = highestDelay;
  record.VSWRTop = std::min(highestRatio, highestVSWR);
  record.ImpedanceTop = highestImpedance;
}

}  // namespace quilm
