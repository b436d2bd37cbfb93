// How the schematic is looked at.
#pragma once

#include "core/Types.h"

namespace quilm {

enum class SchematicMode : i16 { Unbalanced = 0, BalancedB = 1, BalancedA = 2 };

struct SchematicView {
  f32 zoom = 1;         // 1 shows the whole width of the network, 2 half of it
  i32 SchemOffset = 0;  // x of the drawing's origin; scrolling moves it, without bounds
  SchematicMode mode = SchematicMode::Unbalanced;
  bool ShowQ = false;  // the losses of the parts as resistances
};

}  // namespace quilm
