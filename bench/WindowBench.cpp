// Painting pictures in a real window, the pixels included: traces that pile up, two traces, a step of tuning.
//
//   xvfb-run -a --server-args="-screen 0 3840x2160x24" build/bench/bin/bench-window
//   QT_QPA_PLATFORM=offscreen build/bench/bin/bench-window
//
// Each scale of the screen is measured in a process of its own, because the toolkit knows one scale a run. Sizes are of
// the picture's widget, of the tuning step those of the window, in device pixels.

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <cmath>
#include <memory>

#include "WideLowpass.h"
#include "analysis/modAnalysis.h"
#include "app/Desktop.h"
#include "app/PictureSheet.h"
#include "app/PictureView.h"
#include "core/Responses.h"
#include "display/HorizontalAxis.h"
#include "display/SheetDrawing.h"
#include "display/WaveDrawing.h"
#include "pages/PageDirectory.h"
#include "shell/LiveLayer.h"
#include "shell/Page.h"
#include "shell/Picture.h"
#include "support/PlainAnalysis.h"
#include "support/RandomLadder.h"

namespace {

using namespace quilm;

constexpr int points = 2050;
constexpr int usualStages = 11;
constexpr i16 plotCode = 2;

struct ScreenSize {
  int scale;
  int width;
  int height;
};

constexpr ScreenSize screens[] = {{1, 1280, 860},  {1, 1920, 1080}, {1, 3840, 2160},
                                  {2, 1920, 1080}, {2, 2560, 1720}, {2, 3840, 2160}};

DesignRecord Ladder(int stages) {
  std::mt19937 random(1);
  DesignRecord record = RandomLadder(random, stages, AnalysableTypes());
  record.NrIntervals = points - 1;
  record.NrXints = 10;
  record.NrYints = 6;
  record.LossBottom = -60;
  record.PlotCode = plotCode;
  return record;
}

// A picture with the view that shows it.
class Plot {
 public:
  explicit Plot(benchmark::State& state) {
    const auto scale = static_cast<int>(state.range(0));
    view.resize(static_cast<int>(state.range(1)) / scale, static_cast<int>(state.range(2)) / scale);
    view.show();
    while (!view.windowHandle()->isExposed()) QApplication::processEvents();
    SweepLadder(record, *responses);
    Draw();
    Show();
  }

  void Draw() {
    DrawSheet({HorizontalAxis(record), record, {}, {}, 50}, SpansOf(*responses, LastPoint(record)), places_, picture);
  }

  // A ripple that runs through the plot, another one each time.
  void DrawTrial(Canvas& canvas) {
    ++trial_;
    for (Point& point : trace_) {
      const f32 x = 2000 + 9000 * static_cast<f32>(&point - trace_.data()) / points;
      point = {x, 4000 + 2500 * std::sin(x / 600 + static_cast<f32>(trial_) / 50)};
    }
    canvas.Polyline(trace_, colorBlue);
  }

  void Show() {
    view.Show(picture, live, mark);
    view.repaint();
  }

  DesignRecord record = Ladder(usualStages);
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
  Picture picture;
  LiveLayer live;
  Picture mark;
  PictureView view;

 private:
  AxisPlaces places_;
  std::vector<Point> trace_{points};
  int trial_ = 0;
};

// One more trace over those of the trials before it: the first of a run, or those after `before` others.
void Trial(benchmark::State& state) {
  Plot plot(state);
  const std::int64_t before = state.range(3);
  for (std::int64_t i = 0; i < before; ++i) plot.DrawTrial(plot.live);
  plot.Show();
  for (auto _ : state) {
    if (before == 0) {
      state.PauseTiming();
      plot.live.Clear();
      plot.Show();
      state.ResumeTiming();
    }
    plot.DrawTrial(plot.live);
    plot.Show();
  }
}

// What a trial of a run adds by itself: its trace painted into the layer that is kept, whoever shows it.
void TrialTrace(benchmark::State& state) {
  const auto scale = static_cast<int>(state.range(0));
  Plot plot(state);
  PictureSheet sheet;
  sheet.SetPaper(QSize(static_cast<int>(state.range(1)), static_cast<int>(state.range(2))) / scale, scale);
  for (auto _ : state) {
    state.PauseTiming();
    plot.DrawTrial(plot.live);
    sheet.Take(plot.picture, plot.live, plot.mark);
    state.ResumeTiming();
    sheet.CatchUpWithLive();
  }
}

// The picture's own growth: two more traces on a sheet that stands.
void TwoTraces(benchmark::State& state) {
  Plot plot(state);
  for (auto _ : state) {
    state.PauseTiming();
    plot.picture.Clear();
    plot.picture.DrawWidth = static_cast<i16>(state.range(3));
    plot.Show();
    state.ResumeTiming();
    plot.DrawTrial(plot.picture);
    plot.DrawTrial(plot.picture);
    plot.Show();
  }
}

void RepaintUnchanged(benchmark::State& state) {
  Plot plot(state);
  for (auto _ : state) plot.view.repaint();
}

// A signal of the type given from the entries to the pixels: both waves of a squarewave, the one of a burst.
void TransientPainted(benchmark::State& state) {
  Plot plot(state);
  const DesignRecord lowpass = WideLowpass();
  const auto waveform = static_cast<i16>(state.range(3));
  const WaveEntries signal{waveform, waveform == squareWave ? 'B' : 'N', squareFreq, carrierFreq};
  for (auto _ : state) {
    PlotWaves(ComputeWaves(lowpass, signal), 1, {}, plot.picture);
    plot.Show();
  }
}

// The program in its window with a plot beside which Tune part is opened.
class TuningWindow {
 public:
  TuningWindow(benchmark::State& state, const std::function<void(Session&)>& showPlot) {
    const auto scale = static_cast<int>(state.range(0));
    desktop_.Start(showPlot);
    desktop_.window.resize(static_cast<int>(state.range(1)) / scale, static_cast<int>(state.range(2)) / scale);
    while (!desktop_.window.windowHandle()->isExposed()) QApplication::processEvents();
    QApplication::processEvents();
  }

  // Opens the dialog, does `act` and closes it.
  void With(const std::function<void()>& act) {
    QTimer::singleShot(0, &desktop_.window, [this, &act] {
      if (QWidget* box = Find("txtPercentageValue")) Type(*box, "1");
      AwaitFrame();
      act();
      Press("cmdExit");
    });
    Press("cmdTunePart");
  }

  // From the key to the pixels: the handler, the sweep, the new curves and readings painted. The frame before must be
  // over, since a view paints once a frame at most.
  void Step(Qt::Key key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(Find("UpDown1"), &press);
    QApplication::processEvents();
  }

  void Press(const char* name) { qobject_cast<QAbstractButton*>(Find(name))->click(); }

  static void AwaitFrame() {
    constexpr int frame = 20;
    QEventLoop loop;
    QTimer::singleShot(frame, &loop, &QEventLoop::quit);
    loop.exec();
  }

 private:
  QWidget* Find(const char* name) { return desktop_.TopView()->Find(QString::fromLatin1(name)); }
  static void Type(QWidget& box, const char* text) {
    box.setFocus();
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromLatin1(text));
    QApplication::sendEvent(&box, &press);
  }

  QTemporaryDir folder_;
  Desktop desktop_{AllPages(), folder_.path()};
};

// What a user has before him who tunes a long network.
void TuningStep(benchmark::State& state) {
  TuningWindow window(state, [](Session& session) {
    session.record = Ladder(stagesLimit);
    session.pages.ShowPage(PageId::Plotted);
  });
  window.With([&] {
    constexpr int untilCleared = 100;
    int steps = 0;
    for (auto _ : state) {
      window.Step(steps % 2 == 0 ? Qt::Key_Up : Qt::Key_Down);
      state.PauseTiming();
      if (++steps % untilCleared == 0) window.Press("cmdClear");
      window.AwaitFrame();
      state.ResumeTiming();
    }
  });
}

// The same of a diplexer: both arms of the longest pair of bands swept and drawn anew with the return of the pair.
void DiplexerStep(benchmark::State& state) {
  TuningWindow window(state, [](Session& session) {
    session.record = Ladder(stagesLimit);
    session.record.SweepMode = 1;
    session.record.Fstart = 5e6F;
    session.record.Fstop = 15e6F;
    Diplexer& diplexer = session.diplexer;
    diplexer.DipMode = 2;
    diplexer.DipOrder = 10;
    diplexer.DipRipple = 0.1F;
    diplexer.DipZ = 50;
    diplexer.DipFlower = 9.5e6F;
    diplexer.DipFupper = 10.5e6F;
    session.pages.ShowPage(PageId::PlotDiplexer);
  });
  window.With([&] {
    int steps = 0;
    for (auto _ : state) {
      window.Step(++steps % 2 == 0 ? Qt::Key_Up : Qt::Key_Down);
      state.PauseTiming();
      window.AwaitFrame();
      state.ResumeTiming();
    }
  });
}

// What the machine is worth: the plain evaluation of the same ladder's formulas.
void PlainSweep(benchmark::State& state) {
  DesignRecord record = Ladder(stagesLimit);
  const auto responses = std::make_unique<Responses>();
  SweepLadder(record, *responses);
  for (auto _ : state) plain::Sweep(record, responses->Fq, *responses);
}

void Register(const ScreenSize& screen) {
  using Runner = void (*)(benchmark::State&);
  const auto add = [&screen](const char* name, Runner run, std::vector<std::string> more,
                             std::vector<std::int64_t> values) {
    std::vector<std::string> names{"scale", "width", "height"};
    std::vector<std::int64_t> arguments{screen.scale, screen.width, screen.height};
    names.insert(names.end(), more.begin(), more.end());
    arguments.insert(arguments.end(), values.begin(), values.end());
    return benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMicrosecond)->ArgNames(names)->Args(arguments);
  };
  add("RepaintUnchanged", RepaintUnchanged, {}, {});
  add("TuningStep", TuningStep, {}, {});
  add("DiplexerStep", DiplexerStep, {}, {});
  add("PlainSweep", PlainSweep, {}, {});
  for (const i16 waveform : {squareWave, burstWave}) {
    add("TransientPainted", TransientPainted, {"waveform"}, {waveform});
  }
  for (const int pen : {1, 2}) add("TwoTraces", TwoTraces, {"pen"}, {pen});
  constexpr int traces = 1000;
  add("TrialTrace", TrialTrace, {}, {})->Iterations(traces);
  constexpr int trials = 50;
  for (const int before : {0, 99, 1999}) add("Trial", Trial, {"before"}, {before})->Iterations(trials);
}

int RunAt(int scale, int argc, char** argv) {
  qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
  const QApplication app(argc, argv);
  for (const ScreenSize& screen : screens) {
    if (screen.scale == scale) Register(screen);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  for (const int scale : {1, 2}) {
    const pid_t child = fork();
    if (child == 0) return RunAt(scale, argc, argv);
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) < 0 || status != 0) return 1;
  }
  return 0;
}
