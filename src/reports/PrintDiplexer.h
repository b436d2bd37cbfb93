// The printed report of a diplexer: summary, circuit, and the responses of both arms.
#pragma once

#include "core/Diplexer.h"
#include "core/RecordFwd.h"
#include "shell/Canvas.h"
#include "shell/Platform.h"

namespace quilm {

class Session;

// On one sheet. The arms are swept anew over the frequencies of the record, and shown from 0 to -60 dB in ten
// intervals. Throws as SweepDiplexer and the printer do.
void DrawDiplexerReport(const Diplexer& diplexer, const DesignRecord& record, const DateTime& today, Canvas& printer);

// Offers a printer and prints the report.
void PrintDiplexer(Session& session);

}  // namespace quilm
