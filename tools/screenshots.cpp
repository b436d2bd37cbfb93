// Drives the real window through the program's pages and saves a picture of each.
//
// Usage: quilm-screenshots DIR
// For each palette, pixel density and window size a folder of its own: DIR/light-100-1280x860/plot.png and so on. Runs
// on the toolkit's offscreen platform unless another one is asked for by QT_QPA_PLATFORM.
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <functional>

#include "app/Desktop.h"
#include "app/Palettes.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "shell/Page.h"
#include "synthesis/DesignSummary.h"

namespace {

using namespace quilm;

void Settle() {
  constexpr int turns = 5;
  for (int i = 0; i < turns; ++i) QApplication::processEvents();
}

// One walk through the program at one size.
class Walk {
 public:
  Walk(const QString& folder, QSize size) : folder_(folder), desktop_(AllPages(), data_.path()) {
    QDir().mkpath(folder);
    desktop_.window.summary = [this] { return DesignSummary(desktop_.session.record, true); };
    desktop_.Start(StartProgram);
    desktop_.window.resize(size);
    Settle();
  }

  void Run() {
    Save("opening");
    Press("cmdDesignNew");
    Save("design-new");
    Design();
    Save("design-lowpass");
    Press("cmdPlot");
    Plots();
    Schematic();
    Edit();
    Visit("cmdAnalysis", "analysis");
    Studies();
    Transient();
    WriteFiles();
    Visit("cmdTabulate", "tabulated");
    Visit("cmdDesign", "design-return");
    Cauer();
    Specials();
    Transforms();
    Modal("cmdAbout", "about");
    Modal("cmdExit", "exit");
    ManualEntry();
  }

 private:
  QWidget* Find(const char* name) { return desktop_.TopView()->Find(QString::fromLatin1(name)); }

  bool Press(const char* name) {
    auto* button = qobject_cast<QAbstractButton*>(Find(name));
    if (button == nullptr) std::fprintf(stderr, "no button %s\n", name);
    if (button == nullptr || !button->isVisible() || !button->isEnabled()) return false;
    button->click();
    Settle();
    return true;
  }

  void Type(const char* name, const char* text) {
    Control* control = desktop_.session.pages.Top()->Find(name);
    auto* box = dynamic_cast<TextBox*>(control);
    if (box == nullptr || !box->Usable()) {
      std::fprintf(stderr, "no entry box %s\n", name);
      return;
    }
    desktop_.platform.Stage().Perform([&](Session& session) {
      quilm::Type(session, *box, text);
      quilm::Leave(session, *box);
    });
    Settle();
  }

  // A 7th-order Chebyshev lowpass of 0.1 dB ripple, 1 MHz and 50 ohms.
  void Design() {
    Press("optChebycheff");
    Press("optCapInLowpass");
    Type("txtPassbandRipple", "0.1");
    Type("txtBandwidth", "1M");
    Type("txtInputTerm", "50");
    StepUp("UpDown1", 4);
  }

  // An 8th-order bandpass, which shows every entry of the page.
  void Cauer() {
    Press("optCauer");
    Press("optCauerBandpass");
    Type("txtCenterFrequency", "10M");
    Type("txtStopbandDepth", "60");
    StepUp("UpDown1", 1);
    Save("design-cauer");
  }

  // A squarewave with both waves, a burst beyond the band.
  void Transient() {
    if (!Press("cmdTransient")) return;
    Save("transient-frame");
    Type("txtSquarewaveFreq", "200k");
    Press("Option6");
    Press("cmdPlot");
    Save("transient-both");
    Press("Option2");
    Type("txtSquarewaveFreq", "100k");
    Type("txtCarrierFreq", "4M");
    Press("cmdPlot");
    Save("transient-burst");
    Press("cmdExitTransient");
  }

  void Schematic() {
    if (!Press("cmdSchematic")) return;
    Save("schematic");
    Press("Option2");
    Press("optYes");
    Save("schematic-balanced");
    Modal("cmdSimple", "artwork");
  }

  // The options of both ends and what becomes of these, one part of it negative.
  void Matching() {
    Press("optButterworth");
    Press("optNodCapBandpass");
    Type("txtCenterFrequency", "10M");
    Type("txtInputTerm", "5k");
    if (!Press("Command7")) return;
    Save("match-input-present");
    Type("txtNewInputTermValue", "500");
    Press("cmdPreviewInputOptions");
    Save("match-input");
    Press("cmdInputTwo");
    Type("txtNewOutputTermValue", "5");
    Press("cmdPreviewOutputOptions");
    Save("match-output");
    Press("cmdOutputOne");
    Save("match-both");
    Press("cmdIgnore");
    Type("txtInputTerm", "50");
  }

  // The small pages that are opened from the Design page.
  void Specials() {
    Matching();
    Press("optConstantK");
    Press("optCapInLowpass");
    Modal("cmdSeeNorms", "normalized");
    Modal("cmdHelpFamily", "family-guide");
    Modal("cmdAssistance", "entry-assistance");
    Tool("Command1", "nearest-5", "cmdExit");
    Tool("Command4", "singly-terminated", "cmdIgnore");
    Tool("Command11", "end-sections", "cmdIgnore");
    Modal("optMderived", "m-derived");
    Press("optButterworth");  // an M-derived design would ask for its zeros again
    Press("optCapInLowpass");
    Coils();
    Diplexers();
    Tubular();
  }

  void Coils() {
    if (Press("Command8")) {
      ChooseLine("lstInductors", 2);
      Type("txtFormDiameter", "1");
      Type("txtFormLength", "1");
      Press("cmdCompute0");
      Type("txtActualGauge", "14");
      Save("wind-inductor");
      Press("cmdExit");
    }
    if (Press("Command9")) {
      Type("txtFormDiameter", "1");
      Type("txtFormLength", "2");
      Type("txtTurns", "12");
      Press("cmdComputeInductance");
      Save("find-inductance");
      Press("cmdExit");
    }
    if (Press("Command12")) {
      Type("txtToroidAL", "49");
      ChooseLine("lstInductors", 2);
      Save("toroid");
      ChooseLine("lstInductors", 1);
      Save("toroid-none");
      Press("cmdExit");
    }
  }

  void Diplexers() {
    if (!Press("Command5")) return;
    Type("txtOrder", "5");
    Press("cmdAccept");
    Save("diplexer");
    Modal("cmdResonate", "diplexer-resonate");
    Press("cmdTopology");
    Type("txtFlower", "9.5M");
    Type("txtFupper", "10.5M");
    Press("cmdAccept");
    Save("diplexer-bands");
    DiplexerPlot();
    Press("cmdExit");
  }

  void DiplexerPlot() {
    Press("cmdPlot");
    Save("diplexer-plot");
    Beside("cmdTunePart", [this] {
      StepUp("UpDown2", 3);
      Save("diplexer-tune");
      Press("cmdExit");
    });
    Beside("cmdMarkers", [this] {
      Type("Text0", "9.6M");
      Type("Text1", "10M");
      Save("diplexer-markers");
      Press("cmdShow");
    });
    Save("diplexer-marked");
    Press("cmdExit");
  }

  void Tubular() {
    Type("txtBandwidth", "500M");
    if (!Press("Command6")) return;
    Type("txtFrequencyNormalization", "500M");
    Press("cmdCalculate");
    Save("tubular");
    Modal("cmdDrawPicture", "tubular-drawing");
    Press("cmdExit");
    Type("txtBandwidth", "1M");
  }

  void ChooseLine(const char* name, int line) {
    auto& list = dynamic_cast<ListBox&>(*desktop_.session.pages.Top()->Find(name));
    desktop_.platform.Stage().Perform([&](Session& session) { Choose(session, list, line); });
    Settle();
  }

  // The pages that transform the network of a design, each with what it proposes.
  void Transforms() {
    Press("optButterworth");
    Press("optCapInLowpass");
    StepDownTo("UpDown1", 5);
    if (Press("Command2")) {
      desktop_.platform.Stage().Perform([](Session& session) {
        Choose(session, dynamic_cast<ListBox&>(*session.pages.Top()->Find("lstNewInductors")), 2);
      });
      Type("txtEnterNewValue", "10u");
      Press("cmdRescale");
      Save("specify-inductor");
      Press("cmdIgnoreAndExit");
    }
    Press("optButterworth");
    if (Press("Command10")) {
      Type("txtNewOutput", "200");
      Press("cmdCompute");
      Save("bisection");
      Press("cmdIgnore");
    }
    Press("optShuntInGeoSymm");
    Type("txtCenterFrequency", "10M");
    StepDownTo("UpDown1", 3);
    Tool("Command13", "norton", "cmdExit");
    Press("optMeshCapBandpass");
    StepUp("UpDown1", 4);
    Tool("Command14", "tee-to-pi", "cmdExit");
  }

  // From the Analysis page and back to it.
  void Studies() {
    if (Press("cmdModulation")) {
      Type("txtMFstop", "5M");
      Press("cmdPlot");
      Save("modulation");
      Press("cmdExitModulation");
    }
    if (Press("cmdPhase")) {
      Save("phase-setup");
      Type("txtPhaseFstart", "1k");
      Type("txtPhaseFstop", "1M");
      Press("cmdLinearity");
      Save("phase-linearity");
      Press("cmdBack");
      Press("cmdDeviation");
      Save("phase-deviation");
      desktop_.platform.Stage().Perform(Undo);
      Press("cmdExit");
    }
    if (Press("cmdNoise")) {
      Save("noise");
      Type("txtStoppingFrequency", "1.2M");
      Press("cmdCompute");
      Save("noise-early-end");
      Type("txtStoppingFrequency", "10M");
      Press("cmdCompute");
      Save("noise-bandwidth");
      Press("cmdExit");
    }
  }

  void WriteFiles() {
    Visit("cmdSpice", "write-files");
    Visit("cmdWriteSnP", "s-parameters");
    Press("cmdExit");
  }

  void StepUp(const char* name, int count) {
    auto* spin = dynamic_cast<Spin*>(desktop_.session.pages.Top()->Find(name));
    if (spin == nullptr) {
      std::fprintf(stderr, "no spin control %s\n", name);
      return;
    }
    for (int i = 0; i < count; ++i) {
      desktop_.platform.Stage().Perform([&](Session& session) { Step(session, *spin, 1); });
    }
    Settle();
  }

  void StepDownTo(const char* name, i32 number) {
    auto& spin = dynamic_cast<Spin&>(*desktop_.session.pages.Top()->Find(name));
    while (spin.Value() > number) desktop_.platform.Stage().Perform([&](Session& session) { Step(session, spin, -1); });
    Settle();
  }

  // The main plot, then what every picture button of the page shows.
  void Plots() {
    Save("plot");
    std::vector<std::string> kinds;
    for (const Control* control : desktop_.session.pages.Top()->Controls()) {
      if (control->kind != ControlKind::Button) continue;
      const auto& button = static_cast<const Button&>(*control);
      if (button.role == ButtonRole::Thumbnail && button.Usable()) kinds.push_back(button.name);
    }
    for (const std::string& kind : kinds) {
      if (Press(kind.c_str())) Save(("plot-" + kind).c_str());
    }
    SmithTools();
    Readout();
    Modal("cmdStepSize", "stepsize");
    Tuning("cmdTunePart", "tune-part");
    Tuning("cmdTuneWidth", "tune-width");
    Tuning("cmdTuneApass", "tune-ripple");
    Limits();
    Overlays();
    Markers();
  }

  // A dialog beside the plot after a few steps, which are taken back.
  void Tuning(const char* button, const char* name) {
    QTimer::singleShot(0, qApp, [this, name] {
      Type("txtPercentageValue", "5");
      StepUp("UpDown1", 5);
      Save(name);
      desktop_.platform.Stage().Perform(Undo);
      Press("cmdExit");
    });
    Press(button);
  }

  void SmithTools() {
    if (!Press("cmd11")) return;
    Press("cmdVSWR");
    Press("cmdZoomIn");
    Press("cmdZoomIn");
    Save("plot-smith-zoom4");
    Press("cmdZoomOut");
    Press("cmdZoomOut");
    Type("txtAspect", "1.5");
    Save("plot-smith-wide");
  }

  // With the button held at the middle of the second plot.
  void Readout() {
    if (!Press("cmd2")) return;
    auto& box = dynamic_cast<PictureBox&>(*desktop_.session.pages.Top()->Find("picPlot"));
    const auto act = [&](MouseAct what) {
      desktop_.platform.Stage().Perform(
          [&](Session& session) { Mouse(session, box, what, 6500, 4000, MouseButton::Left); });
    };
    act(MouseAct::Down);
    Save("plot-readout");
    act(MouseAct::Up);
  }

  void PressArea(const char* box, const char* area) {
    auto& picture = dynamic_cast<PictureBox&>(*desktop_.session.pages.Top()->Find(box));
    desktop_.platform.Stage().Perform([&](Session& session) { quilm::PressArea(session, picture, area); });
    Settle();
  }

  void Edit() {
    if (!Press("cmdEdit")) return;
    Save("edit");
    PressArea("picEdit", "stage4");
    Press("cmdEditValues");
    Save("edit-values");
    Press("cmdChangeTopology");
    PressArea("picEdit", "CoupledInductors");
    Save("edit-topology");
    desktop_.platform.Stage().Perform(Undo);
    PressArea("picEdit", "load");
    Press("cmdInsertPart");
    Save("edit-insert");
    desktop_.platform.Stage().Perform(Undo);
  }

  // Over the design, as its user has agreed to lose it.
  void ManualEntry() {
    Modal("cmdManual", "manual-options");
    QTimer::singleShot(0, qApp, [this] {
      auto* go =
          desktop_.platform.Stage().FrontWindow()->findChild<QAbstractButton*>(QStringLiteral("cmdContinueToManual"));
      if (go != nullptr) go->click();
    });
    Press("cmdManual");
    Save("manual-new");
    Type("txtInputTermination", "50");
    Type("txtOutputTermination", "75");
    Save("manual-palette");
    const auto part = [&](const char* area, std::initializer_list<std::pair<const char*, const char*>> boxes) {
      PressArea("picEntry", area);
      for (const auto& [box, text] : boxes) Type(box, text);
    };
    part("ShuntC", {{"txtCapacitorsValue", "47p"}});
    Press("cmdAccept");
    part("TransLine", {{"txtLineLength", "30"}, {"txtLineFrequency", "100M"}, {"txtLineImpedance", "75"}});
    Press("cmdAccept");
    part("ShuntRLC", {{"txtResistorsValue", "5"}, {"txtInductorsValue", "22u"}, {"txtCapacitorsValue", "47p"}});
    Save("manual-part");
    Press("cmdAccept");
    Save("manual-parts");
  }

  // A tool that stands beside the plot is used from a timer.
  void Beside(const char* button, const std::function<void()>& act) {
    QTimer::singleShot(0, qApp, act);
    Press(button);
  }

  void PlotMouse(f32 x, f32 y) {
    auto& box = dynamic_cast<PictureBox&>(*desktop_.session.pages.Top()->Find("picPlot"));
    desktop_.platform.Stage().Perform([&](Session& session) {
      Mouse(session, box, MouseAct::Move, x, y, MouseButton::Left);
      Mouse(session, box, MouseAct::Down, x, y, MouseButton::Left);
      Mouse(session, box, MouseAct::Up, x, y, MouseButton::Left);
    });
    Settle();
  }

  void Limits() {
    Press("cmd1");
    Beside("cmdLimits", [this] {
      Save("limits");
      Press("cmdEnter");
    });
    Press("cmdLimit1");
    PlotMouse(7900, 1200);
    Press("cmdLimit2");
    PlotMouse(9000, 5000);
    Press("cmdLimit9");
    PlotMouse(8400, 2600);
    Press("cmdLimit6");
    PlotMouse(3000, 4000);
    PlotMouse(5000, 3000);
    Save("limits-entry");
    constexpr int milliseconds = 100;
    QTimer::singleShot(milliseconds, qApp, [this] {
      QWidget* front = desktop_.platform.Stage().FrontWindow();
      desktop_.platform.Stage().Perform([&](Session& session) {
        Choose(session, dynamic_cast<ListBox&>(*session.pages.Top()->Find("lstSelect")), 4);
      });
      Settle();
      front->grab().save(folder_ + QStringLiteral("/limits-edit.png"));
      front->close();
    });
    Beside("cmdLimits", [this] { Press("cmdLimitsEdit"); });
  }

  void Overlays() {
    Beside("cmdSaveOverlay", [this] {
      Save("overlays-save");
      Press("cmdSave3");
    });
    Beside("cmdGetOverlay", [this] {
      Save("overlays-get");
      Press("cmdGet3");
    });
    Save("overlay");
  }

  void Markers() {
    Press("cmd2");
    Beside("cmdMarkers", [this] {
      Type("txtMarkerFrequency1", "500k");
      Type("txtMarkerFrequency2", "1M");
      Type("txtMarkerFrequency3", "1.3M");
      Type("txtMarkerFrequency4", "20M");
      Press("cmdMarkerOn");
      Save("markers");
      Press("cmdExit");
    });
    Save("plot-markers");
    if (Press("cmd11")) Save("plot-smith-markers");
    Beside("cmdMarkers", [this] {
      Press("cmdMarkerErase");
      Press("cmdExit");
    });
    Press("cmd1");
  }

  void Visit(const char* button, const char* name) {
    if (Press(button)) Save(name);
  }

  // A tool that takes the place of the Design page, and the button that leads back.
  void Tool(const char* button, const char* name, const char* back) {
    if (!Press(button)) return;
    Save(name);
    Press(back);
  }

  // A modal page waits in its own event loop: it is looked at and closed from a timer.
  void Modal(const char* button, const char* name) {
    constexpr int milliseconds = 100;
    QTimer::singleShot(milliseconds, qApp, [this, name] {
      QWidget* front = desktop_.platform.Stage().FrontWindow();
      if (front == &desktop_.window) return;
      Settle();
      front->grab().save(folder_ + QLatin1Char('/') + QString::fromLatin1(name) + QStringLiteral(".png"));
      front->close();
    });
    Press(button);
  }

  void Save(const char* name) {
    Settle();
    const QString path = folder_ + QLatin1Char('/') + QString::fromLatin1(name) + QStringLiteral(".png");
    if (!desktop_.window.grab().save(path)) std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
  }

  QString folder_;
  QTemporaryDir data_;
  Desktop desktop_;
};

// One process for each pixel density: the toolkit takes it from the environment at start.
int RunAllDensities(const QString& program, const QString& folder) {
  for (const char* percent : {"100", "200"}) {
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(QByteArray(percent).toInt() / 100.0));
    environment.insert(QStringLiteral("QUILM_SCREENSHOT_PERCENT"), QString::fromLatin1(percent));
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(program, {folder});
    if (!child.waitForFinished(-1) || child.exitCode() != 0) return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);  // takes the toolkit's options out
  if (argc != 2) {
    std::fputs("usage: quilm-screenshots DIR\n", stderr);
    return 2;
  }
  const QString folder = QString::fromLocal8Bit(argv[1]);
  const QString percent = qEnvironmentVariable("QUILM_SCREENSHOT_PERCENT");
  if (percent.isEmpty()) return RunAllDensities(QApplication::applicationFilePath(), folder);

  for (const char* palette : {"light", "dark"}) {
    // What users see: the palette that the program starts with where the system gives none, and its dark one.
    SetAppearance(QLatin1String(palette) == QLatin1String("dark") ? QStringLiteral("dark") : QString());
    for (const QSize size : {QSize(1024, 700), QSize(1280, 860), QSize(1920, 1080)}) {
      const QString name = QStringLiteral("%1/%2-%3-%4x%5")
                               .arg(folder, QString::fromLatin1(palette), percent)
                               .arg(size.width())
                               .arg(size.height());
      Walk(name, size).Run();
    }
  }
  return 0;
}
