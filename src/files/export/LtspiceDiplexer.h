// A diplexer as a schematic that LTspice opens (.ASC).
#pragma once

#include "core/Diplexer.h"
#include "core/RecordFwd.h"
#include "files/export/ExportText.h"

namespace quilm {

class Session;

// Both arms, one below the other, from one generator to their terminations, with the sweep of the record as a directive
// and the entries as comments. Each arm has the small source resistance that it is analysed with, so that its response
// over the generator's voltage is that of the plot. Losses stand as Rser and Rpar at the frequency of the Q.
//
// Fails where a division has no result: Qind or the frequency of the Q of exactly 0. There is no text then.
ExportText LtspiceDiplexer(const Diplexer& diplexer, const DesignRecord& record);

// Asks for the file and writes it.
void WriteDiplexerSchematic(Session& session);

}  // namespace quilm
