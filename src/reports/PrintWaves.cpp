#include "reports/PrintWaves.h"

#include "display/WaveDrawing.h"
#include "reports/PlotReport.h"
#include "shell/Picture.h"
#include "shell/Session.h"

namespace quilm {

void DrawWavesReport(const Identity& design, const Waves& waves, const DateTime& today, Canvas& printer) {
  constexpr i16 widestTrace = 1;
  Picture picture;
  PlotWaves(waves, widestTrace, {}, picture);  // the sheet has the title
  BeginPlotReport(design, picture, {FootLine(today)}, printer).End();
}

void PrintWaves(Session& session, const Waves& waves) {
  const std::string fault = TryReport(
      session.platform,
      [&](Canvas& printer) { DrawWavesReport(session.identity, waves, session.platform.Now(), printer); },
      Orientation::Landscape);
  if (!fault.empty()) TellPrinterError(session.platform, fault);
}

}  // namespace quilm
