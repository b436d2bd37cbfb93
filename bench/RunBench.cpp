// Optimiser and Monte Carlo as the user watches them, in the real window with their traces drawn, beside trials in
// ngspice in the same process and run; and the memory of the program while a run goes on.
//
//   xvfb-run -a --server-args="-screen 0 1920x1200x24" build/bench/bin/bench-run

// Before the toolkit's headers, which make a macro of "slots".
#include "NgspiceAnalysis.h"
#include "TrialLadder.h"

#include <unistd.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <fstream>

#include "app/Desktop.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "shell/Acts.h"
#include "shell/LongRun.h"
#include "shell/Page.h"

namespace {

using namespace quilm;
using Clock = std::chrono::steady_clock;

// Of the process, in kilobytes.
long ResidentMemory() {
  std::ifstream in("/proc/self/statm");
  long all = 0;
  long resident = 0;
  in >> all >> resident;
  return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

// A run from the press of its button to its end, and the memory after some hundred trials and at the end.
void Measure(Desktop& desktop, const char* button, f64 spice) {
  Session& session = desktop.session;
  long early = 0;
  long late = 0;
  int trials = 0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (session.run == nullptr) return;
    constexpr int some = 500;
    trials = session.run->Steps();
    late = ResidentMemory();
    if (early == 0 && trials > some) early = late;
  });
  constexpr int milliseconds = 20;
  watch.start(milliseconds);
  const auto start = Clock::now();
  Click(session, *session.pages.Top()->Find(button));
  const f64 seconds = std::chrono::duration<f64>(Clock::now() - start).count();
  constexpr int all = 2000;
  std::printf(
      "%s: %.4f ms a trial, %.0f times the trials of ngspice; memory %ld kB after 500 trials, %ld kB after %d\n",
      button, seconds / all * 1e3, spice / (seconds / all), early, late, trials);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication app(argc, argv);
  const QTemporaryDir folder;
  Desktop desktop(AllPages(), folder.path());
  desktop.Start(StartProgram);
  desktop.window.resize(1280, 860);
  NgspiceAnalysis spice(TrialLadder());
  const f64 seconds = NgspiceTrialSeconds(spice, trialPoints);
  std::printf("ngspice: %.3f ms a trial\n", seconds * 1e3);
  for (const i16 code : {i16{1}, i16{2}}) {
    desktop.session.record = TrialLadder();
    desktop.session.record.PlotCode = code;
    desktop.session.pages.ShowPage(PageId::Plotted);
    QApplication::processEvents();
    std::printf("plot %d\n", code);
    Measure(desktop, "cmdMonteCarlo", seconds);
    Measure(desktop, "cmdOptimize", seconds);
    desktop.session.pages.UnloadPage(PageId::Plotted);
  }
  return 0;
}
