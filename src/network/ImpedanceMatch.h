// New terminations for a bandpass ladder: an L-section, or a divider made of one of its parts, goes into the resonator
// at an end, so that the network sees there what it was designed for, at the center frequency.
//
// The formulas are those of the L-section (a series reactance X and a shunt reactance Y that turn a resistance N into R
// at one frequency, as in any book on matching networks) and of the tapped resonator, whose divider of ratio
// n = sqrt(R / N) takes the place of its capacitor or inductor.
//
// Ohms, henries, farads, radians per second. Routines throw NumericFault where a part leaves the range of numbers, and
// BoundFault where the network would pass the bound of the stage list; nothing is changed then.
#pragma once

#include <vector>

#include "core/Network.h"

namespace quilm {

enum class MatchSide { Input, Output };

// What is done at a side, in codes: that of leaving it as it is, and above it those of options 1 to 5.
inline constexpr i16 inputAsItIs = 10;
inline constexpr i16 outputAsItIs = 20;
inline constexpr i16 AsItIs(MatchSide side) { return side == MatchSide::Input ? inputAsItIs : outputAsItIs; }

// The termination at a side.
f32 TerminationAt(const Network& network, MatchSide side);

// Whether the network has at this side what a matching section can go into: a parallel- or series-tuned stage, or the
// inductor in the line, capacitor to common and capacitor in the line that a series-tuned stage becomes when the tees
// behind it are made pis.
bool HasMatchingPair(const Network& network, MatchSide side);

// How a new termination lies beside the present one.
enum class NewTermination { TooLow, Lower, Same, Higher };

// At the input anything above 0 will do and the comparison is exact. At the output 0.01 and less is too low, and a
// hundredth of a percent makes no difference.
NewTermination CompareTermination(const Network& network, MatchSide side, f32 ohms);

// One way to match a side: the stages, from the termination inward, that take the place of the stage at the end. Those
// before the last are new; the last is what becomes of the end stage.
struct MatchOption {
  i16 code = 0;  // 11 to 15 at the input, 21 to 25 at the output
  std::vector<Stage> stages;
};

// What the network offers at a side for a new termination of `ohms` at the angular frequency OmegaCenter, in order of
// their codes; none for a termination that is too low or the same.
//
// A lower one has options 1 to 4 at a parallel-tuned end: 1 a capacitor in the line, 2 a tap of capacitors, 3 an
// inductor in the line, 4 a tap of inductors; and option 5, an L-section, at a series-tuned one. A higher one has
// option 5 at a series-tuned end alone. 1, 3 and 5 are exact at the center; the taps are exact for a resonator that is
// loaded lightly. Parts may be negative.
std::vector<MatchOption> MatchOptions(const Network& network, MatchSide side, f32 ohms, f32 OmegaCenter);

// Sets the option into its side and `ohms` as the termination there; at the input also as the reference.
void SetMatch(Network& network, const MatchOption& option, f32 ohms);

}  // namespace quilm
