// The program's sign in title bars, task lists and menus.
#pragma once

#include <QByteArray>
#include <QIcon>

namespace quilm {

// The response of a lowpass with ripple and a zero, white on a blue tile, sharp at each size that desktops show.
QIcon ProgramIcon();

// The same drawing as an SVG document, which an installation puts beside the entry of the menu.
QByteArray ProgramIconSvg();

}  // namespace quilm
