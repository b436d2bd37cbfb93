#include "reports/PlotReport.h"

#include <utility>

#include "core/Identity.h"
#include "core/modGeneral.h"
#include "display/ChartGrid.h"

namespace quilm {

namespace {

constexpr int linesBesidePlot = 40;
constexpr f32 middle = 6500;
constexpr f32 titleRow = -180;
constexpr f32 textSize = 7;  // points

// Where a plot of a scale stands on the sheet. Charts keep the length of their units of x, and their centre.
struct PlotPlace {
  Point from;
  Point to;
};

PlotPlace PlaceOf(const Scale& scale) {
  if (scale.shape.xUnit == 1) {
    return {{scale.left, scale.top}, {scale.left + scale.width, scale.top + scale.height}};
  }
  constexpr f32 size = 0.84F;  // the largest that leaves the small plot in its corner on the sheet
  const auto place = [&scale](f32 x, f32 y) {
    return Point{chartCenter.x + (x - chartCenter.x) * scale.shape.xUnit * size,
                 chartCenter.y + (y - chartCenter.y) * size};
  };
  return {place(scale.left, scale.top), place(scale.left + scale.width, scale.top + scale.height)};
}

}  // namespace

Report BeginPlotReport(const Identity& design, const Picture& plot, std::vector<std::string> foot, Canvas& printer) {
  printer.FontName = "Courier New";
  printer.FontSize = textSize;
  Report report(printer, plotLines, plotSheet);
  report.SetHead([title = Trimmed(design.CircuitTitle)](Canvas& sheet) { PrintTitle(sheet, middle, titleRow, title); });
  report.SetFoot(std::move(foot));
  const PlotPlace place = PlaceOf(plot.CurrentScale());
  plot.ReplayInto(printer, place.from, place.to);
  report.Skip(linesBesidePlot);
  return report;
}

}  // namespace quilm
