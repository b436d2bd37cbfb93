// The program's sign in title bars, task lists and menus.
#pragma once

#include <QIcon>

namespace quilm {

// The response of a lowpass with ripple and a zero, white on a blue tile, sharp at each size that desktops show.
// packaging/linux/org.quilm.Quilm.svg, which an installation puts beside the entry of the menu, is the same drawing.
QIcon ProgramIcon();

}  // namespace quilm
