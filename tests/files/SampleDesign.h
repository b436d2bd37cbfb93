// Designs for writing and reading.
#pragma once

#include "core/DesignRecord.h"

namespace quilm {

// The settings that a new design has, without a network.
DesignRecord PlainDesign();

// One stage of every type that a file holds.
DesignRecord DesignOfEveryType();

}  // namespace quilm
