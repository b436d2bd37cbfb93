// What the plot of a diplexer steps: its entries, and single parts of its arms.
#pragma once

#include "core/Diplexer.h"
#include "network/TuneList.h"

namespace quilm {

inline constexpr f32 EdgeStep = 0.01F;     // by which a step moves a band edge
inline constexpr f32 DipTuneStep = 0.01F;  // and a part

// Each moves one entry a step and gives up what was tuned by hand (DipFrozen 0), so that the next drawing designs anew.
// The entry stays within its limits; false when it stands at one already, and then nothing has changed.

// Order 1 to 10, and not above `OrderMax`.
bool StepDipOrder(Diplexer& diplexer, StepWay way, i16 OrderMax);
// By 1.01, within 10 Hz to 10 GHz.
bool StepCrossover(Diplexer& diplexer, StepWay way);
// By 1.1, within 0.0001 to 3 dB.
bool StepDipRipple(Diplexer& diplexer, StepWay way);
// By 1.01, within 0.1 Hz to 10 GHz. The lower edge goes up while it is below 0.99 of the upper one, the upper edge down
// while 1.01 of the lower one is left.
bool StepLowerEdge(Diplexer& diplexer, StepWay way);
bool StepUpperEdge(Diplexer& diplexer, StepWay way);

// The same for an order that is given as a number.
bool SetDipOrder(Diplexer& diplexer, i32 order, i16 OrderMax);

// Every capacitor of the arms of the mode becomes the nearest value of the 5 % series, by hand: DipFrozen 1.
void RoundDipCapacitors(Diplexer& diplexer);

// Multiplies a part of an arm by 1 + DipTuneStep, or divides it, by hand. False, with nothing changed, where the range
// of numbers ends.
bool StepDipPart(Diplexer& diplexer, f32& part, StepWay way);

}  // namespace quilm
