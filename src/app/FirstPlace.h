// Where a window stands that has no place yet.
#pragma once

#include <QRect>

namespace quilm {

// What is left for a window's content of the part of a screen that panels leave free: its frame and title bar, which
// the window manager adds and tells only afterwards, must find room too.
QRect RoomOn(const QRect& available);

// In the middle of that room, of the wished size if it fits.
QRect FirstPlace(const QRect& available, QSize wished);

}  // namespace quilm
