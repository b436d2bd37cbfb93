// The program in its window.
#include <QApplication>
#include <QSessionManager>
#include <QTimer>
#include <iostream>
#include <memory>
#include <optional>

#include "app/CommandLine.h"
#include "app/Desktop.h"
#include "app/DisplayCheck.h"
#include "app/EndSignal.h"
#include "app/Palettes.h"
#include "app/ProgramIcon.h"
#include "app/SuddenEnd.h"
#include "desk/Leaving.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"
#include "synthesis/DesignSummary.h"

namespace {

using namespace quilm;

// The toolkit takes its own options out of argc and argv.
std::unique_ptr<QApplication> MakeApplication(int& argc, char** argv) {
  const DisplayCheck check;
  return std::make_unique<QApplication>(argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  const CommandLine line = ReadCommandLine(argc, argv, std::cout, std::cerr);
  if (line.status) return *line.status;
  const std::unique_ptr<QApplication> app = MakeApplication(argc, argv);
  if (line.onlyLooks) return 0;
  QApplication::setApplicationName(QStringLiteral("Quilm"));
  QApplication::setWindowIcon(ProgramIcon());
  QGuiApplication::setDesktopFileName(QStringLiteral(QUILM_APPLICATION_ID));
  SetAppearance(qEnvironmentVariable("QUILM_PALETTE"));

  Desktop desktop(AllPages(), QString::fromStdString(line.folder));
  const auto saved = [&desktop] { return desktop.session.history.IsSaved(desktop.session); };
  desktop.window.summary = [&] { return DesignSummary(desktop.session.record, saved()); };
  desktop.window.designName = [&] { return DesignName(desktop.session.record, saved()); };
  desktop.onEnded = [] { QCoreApplication::exit(0); };

  // However the system ends the program, what was designed is kept; not before the preferences were read, which would
  // be written over.
  const auto leave = [&desktop] { desktop.platform.Stage().EndBySystem(LeaveBySystem); };
  std::optional<EndSignal> endSignal;
  std::optional<SuddenEnd> suddenEnd;
  QTimer::singleShot(0, app.get(), [&] {
    desktop.Start(StartProgram);
    endSignal.emplace(leave);
    suddenEnd.emplace([&desktop] { desktop.platform.Stage().EndWithoutDisplay(LeaveBySystem); });
    QObject::connect(app.get(), &QGuiApplication::commitDataRequest, app.get(),
                     [&leave](QSessionManager&) { leave(); });
    if (!line.file.empty()) desktop.OpenFile(QString::fromStdString(line.file));
  });
  return QApplication::exec();
}
