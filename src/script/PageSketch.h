// A page as a drawing, from its layout: what a window would show of it, without a window.
#pragma once

#include "shell/Picture.h"

namespace quilm {

class Page;

// Every control that is shown stands where the layout places it, with its caption or text and its picture, in plain
// strokes. The proportions are those of the texts; a window spreads the spare room otherwise.
Picture SketchOf(Page& page);

}  // namespace quilm
