// The arms of a diplexer: their names, their parts, and each of them as a network that is analysed by itself.
#pragma once

#include <array>

#include "core/Diplexer.h"
#include "core/RecordFwd.h"

namespace quilm {

// DipArm: the arms by number.
enum DiplexerArm : i16 { lowpassArm = 1, highpassArm = 2, bandpassArm = 3, bandstopArm = 4 };

// The two arms of a mode; any mode but 2 has the first pair.
std::array<i16, 2> ArmsOf(i16 DipMode);

const char* ArmName(i16 DipArm);       // "Lowpass"
const char* ArmShortName(i16 DipArm);  // "LP"

// The element type of part `k` of an arm, counted from 1 at the common port: odd ones are in line, even ones to common.
i16 ArmElement(i16 DipArm, int k);

// The inductor and the capacitor of part `k` (H, F), null where the part has none.
f32* ArmInductor(Diplexer& diplexer, i16 DipArm, int k);
f32* ArmCapacitor(Diplexer& diplexer, i16 DipArm, int k);
const f32* ArmInductor(const Diplexer& diplexer, i16 DipArm, int k);
const f32* ArmCapacitor(const Diplexer& diplexer, i16 DipArm, int k);

// The arm between the common port and its termination, with qualities of parts as in `losses`. The engine takes no
// source without resistance; a thousandth of the termination stands for one. The reference is the termination. The
// input impedance is that of the arm alone.
Network LoadDiplexerArm(const Diplexer& diplexer, i16 DipArm, const Network& losses);

// To be added to an arm's transmission as the engine tells it, over the power available from the small source: then it
// is the voltage of the termination over that of the source, in dB. 10 log 1000, and the 6.02 dB between a source's own
// voltage and that into a match.
inline constexpr f64 armTransOffset = 30 - 6.02;

}  // namespace quilm
