// Round copper wire by its American Wire Gauge.
#pragma once

#include "core/Types.h"

namespace quilm {

// The gauge that stands for no wire at all: thicker than any that is drawn.
inline constexpr f32 noGauge = -40;

// The gauge of a wire of so many inches, above 0; not rounded. Gauge 36 is 0.005 in, gauge -3 (0000) 0.46 in, and the
// 39 steps between them are alike by ratio (ASTM B258): G = 36 - 39 ln(d / 0.005) / ln 92. Throws NumericFault for a
// diameter that is not above 0.
f32 WireGauge(f32 inches);

// The other way round: d = 0.005 * 92^((36 - G) / 39) inches. Throws NumericFault where that leaves the range of
// numbers.
f32 WireDiameter(f32 gauge);

// How much of the pitch of a winding a wire of so many inches takes, in percent.
f32 FillPercent(f32 inches, f32 turnsPerInch);

}  // namespace quilm
