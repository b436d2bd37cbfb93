// The printed report of the plot on display.
#pragma once

#include "core/RecordFwd.h"
#include "reports/PlotTables.h"
#include "shell/Canvas.h"
#include "shell/Picture.h"
#include "shell/Platform.h"

namespace quilm {

class Session;

// The plot on display as it is drawn on paper: one of the twelve with its traces 1 wide, what a run or tuning has laid
// over it, and the overlays of the numbers that were fetched since it was drawn, read again from their files. `missing`
// gets the numbers whose files are gone. The markers are those of `markers`. Throws what drawing a plot throws.
Picture PlotForPaper(const Session& session, const std::vector<MarkerReading>& markers, std::vector<int>& missing);

// Draws the title, the plot with its frame from (2000, 1000) to (11000, 7000), the markers as a table and the limit
// areas in sentences on a printer, the name of the design file and the date at the foot of each sheet, and ends the
// document. Texts that do not fit above 8000 go on on further sheets with the same title and foot.
void DrawPlotReport(const DesignRecord& record, const Picture& plot, const std::vector<MarkerReading>& markers,
                    const DateTime& today, Canvas& printer);

// Offers a printer for the plot on display. Nothing of the design changes. A fault is told in a box "Printer Error",
// overlays that cannot be read any more in the status line.
void PrintPlot(Session& session);

}  // namespace quilm
