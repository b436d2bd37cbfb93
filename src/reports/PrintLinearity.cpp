#include "reports/PrintLinearity.h"

#include "reports/PlotReport.h"
#include "shell/Picture.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr i16 widestLine = 1;

}  // namespace

void DrawLinearityReport(const Identity& design, const LinearityPlot& plot, const DateTime& today, Canvas& printer) {
  LinearityPlot onPaper = plot;
  onPaper.title.clear();  // the sheet has it
  onPaper.lineWidth = widestLine;
  Picture picture;
  DrawLinearity(onPaper, picture);
  BeginPlotReport(design, picture, {FootLine(today)}, printer).End();
}

void PrintLinearity(Session& session, const LinearityPlot& plot) {
  const std::string fault = TryReport(
      session.platform,
      [&](Canvas& printer) { DrawLinearityReport(session.identity, plot, session.platform.Now(), printer); },
      Orientation::Landscape);
  if (!fault.empty()) TellPrinterError(session.platform, fault);
}

}  // namespace quilm
