// Pictures on buttons: drawn by the same symbol routines as everything else, in the palette's colours, sharp at any
// size.
#pragma once

#include <QIcon>
#include <QSize>

#include "shell/Picture.h"

namespace quilm {

// An icon that draws `picture` in its own proportions: black in the colour of the button's text, paler on a disabled
// button, the paper transparent.
QIcon SignIcon(const Picture& picture);

// The picture's proportions at the given height.
QSize SignSize(const Picture& picture, int height);

}  // namespace quilm
