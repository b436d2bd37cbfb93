// Painting pictures in a real window, the pixels included: traces that pile up, two traces, a step of tuning.
//
//   xvfb-run -a --server-args="-screen 0 3840x2160x24" build/bench/bin/bench-window
//   QT_QPA_PLATFORM=offscreen build/bench/bin/bench-window
//
// Each scale of the screen is measured in a process of its own, because the toolkit knows one scale a run. Sizes are of
// the picture's widget, in device pixels.

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QWindow>
#include <cmath>
#include <memory>

#include "analysis/modAnalysis.h"
#include "app/PictureView.h"
#include "core/Responses.h"
#include "display/HorizontalAxis.h"
#include "display/SheetDrawing.h"
#include "shell/LiveLayer.h"
#include "shell/Picture.h"
#include "support/RandomLadder.h"

namespace {

using namespace quilm;

constexpr int points = 2050;
constexpr i16 plotCode = 2;

struct ScreenSize {
  int scale;
  int width;
  int height;
};

constexpr ScreenSize screens[] = {{1, 1280, 860}, {1, 1920, 1080}, {1, 3840, 2160}, {2, 1920, 1080}, {2, 3840, 2160}};

DesignRecord Ladder() {
  std::mt19937 random(1);
  DesignRecord record = RandomLadder(random, 11, AnalysableTypes());
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

  DesignRecord record = Ladder();
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

// From an entry to the pixels: the sweep, the whole plot drawn anew, painted.
void TuningStep(benchmark::State& state) {
  Plot plot(state);
  constexpr f32 finer = 1.0001F;
  for (auto _ : state) {
    plot.record.stage[1].Lval.value *= finer;
    plot.record.stage[1].Cval.value *= finer;
    SweepLadder(plot.record, *plot.responses);
    plot.Draw();
    plot.Show();
  }
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
  for (const int pen : {1, 2}) add("TwoTraces", TwoTraces, {"pen"}, {pen});
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
