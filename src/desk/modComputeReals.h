// From the entries to a network, as the user sees it.
#pragma once

namespace quilm {

class Session;

// Recomputes the network. When it stands (NetworkStands) nothing happens, and the result is true. On a fault, or
// without a bandwidth above 0, shows a message, brings up the Design page (with the focus on the bandwidth if that is
// what is missing) and returns false: the caller goes no further.
bool ComputeReals(Session& session);

}  // namespace quilm
