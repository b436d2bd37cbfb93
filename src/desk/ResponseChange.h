// What a change of the network does to the response, so that nobody is misled by one that does not keep it.
#pragma once

#include <optional>
#include <string>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

class Session;

// The largest difference of the transmissions of two networks of the present design over its present sweep, in dB.
// Both are absolute, losses and terminations included, whatever the plots are relative to. Nothing where the design has
// no sweep or one of the networks cannot be swept. Changes neither the record nor its responses.
std::optional<f64> LargestChange(const Session& session, const Network& before, const Network& after);

// "response kept within 0.0000 dB" up to a hundredth of a dB, "response changed by up to 23.4 dB" above it.
std::string ResponseChangeText(std::optional<f64> decibels);

// Says in the status line what has become of the response since the network was `before`.
void NoteResponseChange(Session& session, const Network& before);

}  // namespace quilm
