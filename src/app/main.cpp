// The program in its window.
#include <QApplication>
#include <QSessionManager>
#include <QTimer>
#include <cstdio>

#include "app/Desktop.h"
#include "app/EndSignal.h"
#include "app/Palettes.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"
#include "synthesis/DesignSummary.h"

namespace {

// The toolkit aborts when it finds no display; a person should read why instead.
bool HasDisplay() {
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  if (!platform.isEmpty() && !platform.startsWith("xcb") && !platform.startsWith("wayland")) return true;
  return !qgetenv("DISPLAY").isEmpty() || !qgetenv("WAYLAND_DISPLAY").isEmpty();
}

}  // namespace

int main(int argc, char** argv) {
  using namespace quilm;
  if (!HasDisplay()) {
    std::fputs("quilm: there is no display to open a window on; quilm-script runs designs without one\n", stderr);
    return 1;
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Quilm"));
  SetAppearance(qEnvironmentVariable("QUILM_PALETTE"));

  Desktop desktop(AllPages());
  const auto saved = [&desktop] { return desktop.session.history.IsSaved(desktop.session); };
  desktop.window.summary = [&] { return DesignSummary(desktop.session.record, saved()); };
  desktop.window.designName = [&] { return DesignName(desktop.session.record, saved()); };
  desktop.onEnded = [] { QCoreApplication::exit(0); };

  // The system's own end of the session is the close box: what was designed is kept.
  const auto close = [&desktop] { desktop.platform.Stage().PressCloseBox(); };
  const EndSignal endSignal(close);
  QObject::connect(&app, &QGuiApplication::commitDataRequest, &app, [&close](QSessionManager&) { close(); });

  QTimer::singleShot(0, &app, [&desktop] { desktop.Start(StartProgram); });
  return QApplication::exec();
}
