// Lowpass prototypes: element values for a source of 1 ohm and a cutoff of 1 radian per second.
//
// The routines below fill Gj and Hj (1..Order) and set Rratio, the ratio of load to source that the prototype needs;
// the values are scaled to real parts by ComputeReals. They are cheap, so nothing is cached, and they never touch the
// stage list.
#pragma once

#include <string>
#include <vector>

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

class Session;

// What the user is to be told, in order.
using Messages = std::vector<std::string>;

// Cuts an Order above OrderMax to OrderMax and says so.
Messages HoldOrder(DesignRecord& record);

// Maximally flat: g(j) = 2 sin((2j - 1) Pi / (2 Order)); 3.0103 dB at the cutoff. Any order from 1. Sets Family to
// Butterworth, Rratio 1, FstopNorm and CauerFlag 0. (G. L. Matthaei, L. Young, E. M. T. Jones, Microwave Filters, 1964,
// section 4.05.)
void ComputeButterworth(DesignRecord& record);

// Equal ripple of Apass dB (above 0) up to the cutoff, from order 1. An even order needs the unequal load Rratio < 1.
// Throws NumericFault when the ripple or the order gives no filter (Apass 0, Order 0), with the prototype incomplete.
// Formulas as for Butterworth, section 4.05.
void ComputeChebyshev(DesignRecord& record);

// Image-parameter sections of repetitive values: 1, 2, 2, ..., 1; order 2 is sqrt(2), sqrt(2). Rratio 1.
void ComputeConstantK(DesignRecord& record);

// Families of tables (PrototypeTables.h): constant delay, Gaussian magnitude, and Gaussian down to 12 dB. Each first
// holds Order to its limits, 2..10, 2..10 and 3..10, and says when it did. They set Rratio to the last value over the
// first, and Apass, FstopNorm, CauerFlag and ResponsesValid to 0.
Messages ComputeBessel(DesignRecord& record);
Messages ComputeGaussian(DesignRecord& record);
Messages ComputeGaussian12(DesignRecord& record);

// The routine of a family code; nothing for a family that has none here. A prototype that cannot be computed leaves
// Gj, Hj and Rratio at 0: ComputeReals then says that a design item is missing. The families that need no ripple are
// chosen with Apass 0, so that Chebyshev meets it whenever it is chosen next, and a message would only be in the way.
Messages ComputePrototype(DesignRecord& record, i16 family);

// Computes the prototype of the family option that stands on the Design page (session.familyOption, not Family), after
// holding Order to OrderMax, and shows the messages. When the network stands (NetworkStands), only the order is held.
// The order box of the page is not rewritten.
void ComputeNormalized(Session& session);

}  // namespace quilm
