// Ladders drawn at random, for comparing one way of analysis with another.
#pragma once

#include <random>
#include <span>

#include "core/DesignRecord.h"

namespace quilm {

// All element types that an analysis knows.
std::span<const i16> AnalysableTypes();

// A ladder of so many stages with element types drawn from `types` and parts around 50 ohms at 1 MHz, swept
// logarithmically from 10 kHz to 100 MHz.
DesignRecord RandomLadder(std::mt19937& random, int stages, std::span<const i16> types);

}  // namespace quilm
