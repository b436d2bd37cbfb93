// The block symbol for the subcircuit of a network, as LTspice opens it (.ASY).
#pragma once

#include <string>

namespace quilm {

// A box with the pins Input, Output and Common, in the order of the nodes of the subcircuit. The same for every
// network: which subcircuit it stands for is entered where it is placed. Lines end with CR LF.
std::string LtspiceSymbol();

}  // namespace quilm
