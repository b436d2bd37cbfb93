// Lowpass prototypes that are kept as tables: maximally flat delay and two Gaussian approximations, for a source of
// 1 ohm and 3 dB at 1 radian per second, from the source end to the load end.
#pragma once

#include <span>

#include "core/Types.h"

namespace quilm {

// Element values 1..order, in farads and henries in turn. Empty for an order that the table does not hold.
//
// Bessel holds the orders 2 to 17, though the prototype routine goes no further than 10; Gaussian 2 to 10; Gaussian to
// 12 dB 3 to 10. What such tables stand for: A. I. Zverev, Handbook of Filter Synthesis, 1967.
std::span<const f32> BesselRow(int order);
std::span<const f32> GaussianRow(int order);
std::span<const f32> Gaussian12Row(int order);

}  // namespace quilm
