#include "app/FirstPlace.h"

#include <QSize>

namespace quilm {

QRect RoomOn(const QRect& available) {
  // As much as the common desktops take, in pixels of the toolkit, which grow with the screen's density.
  constexpr int titleBar = 48;
  constexpr int border = 8;
  return available.adjusted(border, titleBar, -border, -border);
}

QRect FirstPlace(const QRect& available, QSize wished) {
  const QRect room = RoomOn(available);
  QRect place(QPoint(), wished.boundedTo(room.size()));
  place.moveCenter(room.center());
  return place;
}

}  // namespace quilm
