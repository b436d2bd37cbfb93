#include "app/DisplayCheck.h"

#include <QByteArray>
#include <QString>
#include <cstdio>
#include <cstdlib>

namespace quilm {

namespace {

// What the toolkit said before it gave up.
QByteArray& Reasons() {
  static QByteArray reasons;
  return reasons;
}

[[noreturn]] void EndWithoutDisplay() {
  QByteArray named = qgetenv("WAYLAND_DISPLAY");
  if (named.isEmpty()) named = qgetenv("DISPLAY");
  const QByteArray what = named.isEmpty() ? QByteArray("there is no display to open a window on")
                                          : "no window can be opened on the display " + named;
  std::fprintf(stderr, "quilm: %s; quilm-script runs designs without one\n%s", what.constData(), Reasons().constData());
  std::fflush(stderr);
  std::_Exit(EXIT_FAILURE);
}

void Keep(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type == QtFatalMsg) EndWithoutDisplay();
  Reasons() += text.toLocal8Bit() + '\n';
}

bool NamesDisplay() {
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  if (!platform.isEmpty() && !platform.startsWith("xcb") && !platform.startsWith("wayland")) return true;
  return !qgetenv("DISPLAY").isEmpty() || !qgetenv("WAYLAND_DISPLAY").isEmpty();
}

}  // namespace

DisplayCheck::DisplayCheck() : former_(qInstallMessageHandler(Keep)) {
  if (!NamesDisplay()) EndWithoutDisplay();
}

// The toolkit has found what it wanted: what it said is passed on.
DisplayCheck::~DisplayCheck() {
  qInstallMessageHandler(former_);
  std::fputs(Reasons().constData(), stderr);
  Reasons().clear();
}

}  // namespace quilm
