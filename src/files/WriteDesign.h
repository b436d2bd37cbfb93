// The text of a design file.
#pragma once

#include <string>

#include "core/RecordFwd.h"

namespace quilm {

// The whole file with CR LF line ends. `date` is today's date in the system's short form.
//
// Changes the record in the small ways that later reads rest on: AddedInfo of a single character or with a parenthesis
// in front becomes a blank, Fcenter is forced to 0 for a lowpass or highpass and FstopNorm to 0 without a Cauer
// prototype, LimitCount is counted anew, and stubs that must not be 0 long get their floor of 1E-06 degrees.
std::string DesignText(DesignRecord& record, const std::string& date);

// The first stage that the file has no line for, an empty place that an insert has left; 0 when there is none. Reading
// takes the line after it in its place, as it always has, so such a file is of no use until the place is filled or
// deleted.
int StageWithoutLine(const Network& network);

}  // namespace quilm
