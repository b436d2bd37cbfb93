// What the reports of plots share: a sheet that lies crosswise, with the title of the design over the plot.
#pragma once

#include <string>
#include <vector>

#include "core/RecordFwd.h"
#include "reports/Report.h"
#include "shell/Picture.h"

namespace quilm {

// The lines of text: the last four of them stand below the plot, all of them on a further sheet.
inline constexpr LineGrid plotLines = {.left = 1000, .top = 930, .pitch = 160, .lines = 44};

// Begins such a report and puts the plot on its first sheet; what is told below the plot comes next. `foot` are the
// last lines of each sheet.
Report BeginPlotReport(const Identity& design, const Picture& plot, std::vector<std::string> foot, Canvas& printer);

}  // namespace quilm
