// The Design page's own check, before a network is needed.
#pragma once

namespace quilm {

class DesignControls;
class Session;

// Goes through the entries in order and replaces what is missing, telling the user each time: with a default, or with
// what an entry form asks for. Repaired entries show in their boxes, options and labels at once. Clears ResponsesValid
// with every repair. A network entered by hand makes the design one of manual entry and disables the family options
// until the page is loaded again.
//
// An entry form that is left without a usable value changes nothing here and is not opened twice: the checks that
// follow (CheckEntries, ComputeReals) keep the user on the page, and the next press asks again.
void ValidateDesign(Session& session, DesignControls& controls);

}  // namespace quilm
