// One stage of a network among its neighbours, with what is said of it below: what the dialogs show that walk the
// values of a network.
#pragma once

#include <span>
#include <string>

#include "core/RecordFwd.h"
#include "core/Types.h"
#include "shell/Canvas.h"

namespace quilm {

struct ItemLine {
  std::string text;
  bool negative = false;  // shows in red
};

// What the picture is about: a stage of the network, or one of the parts that belong to no stage.
struct ItemPlace {
  enum class Of { Stage, StageAlone, Source, Load, AnyInductor, AnyCapacitor };
  Of of = Of::Stage;
  i16 stage = 0;  // of a stage, shown among its neighbours or alone
};

// Draws it into an emptied canvas, at most three lines.
void DrawItem(const Network& network, const ItemPlace& place, std::span<const ItemLine> lines, Canvas& canvas);

}  // namespace quilm
