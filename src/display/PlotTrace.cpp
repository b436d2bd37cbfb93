#include "display/PlotTrace.h"

#include <vector>

#include "display/PlotGrid.h"

namespace quilm {

namespace {

Point PointOn(const ValueScale& scale, const DesignRecord& record, const Responses& responses, Quantity quantity, int i,
              const PlotBox& box) {
  return {FrameX(record, responses.RespFreq[i], box), FrameY(scale, ValueOf(responses, quantity, i), box)};
}

}  // namespace

Point TracePoint(const DesignRecord& record, const Responses& responses, Quantity quantity, int i, const PlotBox& box) {
  return PointOn(ScaleOf(record, quantity), record, responses, quantity, i, box);
}

void DrawTrace(const DesignRecord& record, const Responses& responses, Quantity quantity, Color color, Canvas& canvas,
               const PlotBox& box) {
  const ValueScale scale = ScaleOf(record, quantity);
  const int last = LastPoint(record);
  std::vector<Point> points;
  points.reserve(static_cast<std::size_t>(last) + 2);
  for (int i = 0; i <= last; ++i) {
    points.push_back(PointOn(scale, record, responses, quantity, i, box));
    if (i == 0) points.push_back(points.front());
  }
  canvas.Polyline(points, color);
}

void DrawFrequencyLines(const FrequencyGrid& grid, Canvas& canvas, const PlotBox& box) {
  for (int k = 0; k <= grid.GridLast; ++k) {
    const f32 x = box.left + box.width * grid.GridFraction[k];
    canvas.Line(x, box.top, x, box.Bottom(), gridColor);
  }
}

}  // namespace quilm
