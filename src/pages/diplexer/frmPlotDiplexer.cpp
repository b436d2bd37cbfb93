#include "pages/diplexer/frmPlotDiplexer.h"

#include <functional>
#include <string>

#include "analysis/AnalysisEntries.h"
#include "analysis/SweepFit.h"
#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Fault.h"
#include "core/modGeneral.h"
#include "desk/ReturnToDesign.h"
#include "diplexer/DesignDiplexer.h"
#include "diplexer/DiplexerEntries.h"
#include "display/PlotFrame.h"
#include "display/PlotText.h"
#include "display/modPlot.h"
#include "display/modReadout.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// What keeps the sweep from showing where the arms part.
std::string SweepNote(const Diplexer& diplexer, const SweepSettings& sweep) {
  if (std::string fault = SweepFault(sweep); !fault.empty()) return fault;
  const auto holds = [&sweep](f32 frequency) { return frequency > sweep.Fstart && frequency < sweep.Fstop; };
  if (diplexer.DipMode != 2) return holds(diplexer.DipCrossover) ? "" : "The sweep does not hold the crossover";
  return holds(diplexer.DipFlower) && holds(diplexer.DipFupper) ? "" : "The sweep does not hold the band";
}

void ShowFrequency(Label& label, f32 frequency) { label.caption = EntryText(frequency, FormatFrequency) + "Hz"; }

}  // namespace

frmPlotDiplexer::frmPlotDiplexer(Session& session)
    : Page(session, PageId::PlotDiplexer, "Diplexer plot"), responses_(std::make_unique<DiplexerResponses>()) {
  Diplexer& diplexer = session_.diplexer;
  const auto connect = [this](Spin& spin, const std::function<bool(StepWay)>& step) {
    constexpr i32 roomForFrequency = 11;
    spin.room = roomForFrequency;
    spin.onUp = [this, step] { Change(step(StepWay::Up)); };
    spin.onDown = [this, step] { Change(step(StepWay::Down)); };
  };
  connect(UpDown1_, [&](StepWay way) { return StepDipOrder(diplexer, way, session_.record.OrderMax); });
  connect(UpDown2_, [&](StepWay way) { return StepCrossover(diplexer, way); });
  connect(UpDown3_, [&](StepWay way) { return StepDipRipple(diplexer, way); });
  connect(UpDown4_, [&](StepWay way) { return StepLowerEdge(diplexer, way); });
  connect(UpDown5_, [&](StepWay way) { return StepUpperEdge(diplexer, way); });
  UpDown1_.lowest = static_cast<i32>(limitsOf::DipOrder.lowest);
  UpDown1_.highest = static_cast<i32>(limitsOf::DipOrder.highest);
  UpDown1_.Count(lblOrder_, [&](i32 order) { Change(SetDipOrder(diplexer, order, session_.record.OrderMax)); });

  cmdTunePart_.onClick = [this] { OpenTool(PageId::TuneDipPart); };
  cmdMarkers_.onClick = [this] {
    OpenTool(PageId::DipMarkers);
    PlotDiplexer();
  };
  cmd5Caps_.onClick = [this] {
    RoundDipCapacitors(session_.diplexer);
    PlotDiplexer();
  };
  cmdExit_.onClick = [this] {
    session_.pages.ShowPage(PageId::Diplexer);
    session_.pages.UnloadPage(Id());
  };
  cmdReturn_.onClick = [this] {
    ReturnToDesign(session_);
    session_.pages.UnloadPage(PageId::Diplexer);
    session_.pages.UnloadPage(Id());
  };
  cancelButton = &cmdExit_;

  picPlot.onMouseDown = [this](f32 x, f32 y, MouseButton button) {
    reads_ = button == MouseButton::Left;
    if (reads_) ShowReadout(x, y);
  };
  picPlot.onMouseMove = [this](f32 x, f32 y, MouseButton /*button*/) {
    if (reads_) ShowReadout(x, y);
  };
  picPlot.onMouseUp = [this](f32 /*x*/, f32 /*y*/, MouseButton /*button*/) {
    reads_ = false;
    picPlot.mark.Clear();
  };
}

void frmPlotDiplexer::CloseBox() { cmdExit_.onClick(); }

void frmPlotDiplexer::Load() {
  if (session_.diplexer.DipMode == 0) StartDiplexer(session_.diplexer, session_.record);
  PlotDiplexer();
  SetFocus(UpDown1_);
}

void frmPlotDiplexer::Reload() { PlotDiplexer(); }

// A step at its limit is no step: what was tuned by hand stays.
void frmPlotDiplexer::Change(bool changed) {
  if (changed) PlotDiplexer();
}

// Meanwhile the mouse still reads the plot.
void frmPlotDiplexer::OpenTool(PageId tool) { session_.pages.ShowBeside(tool, {&picPlot}); }

void frmPlotDiplexer::PlotDiplexer() {
  Diplexer& diplexer = session_.diplexer;
  picPlot.mark.Clear();
  DesignDiplexer(diplexer);
  diplexer.DipZsmall = diplexer.DipZ * 0.001F;
  ShowValues();
  try {
    Draw();
  } catch (const Fault&) {
    const std::string fault = SweepFault(session_.sweep);
    TellOfNone(fault.empty() ? "The diplexer cannot be plotted over this sweep" : fault);
  }
}

// In the middle of an empty sheet.
void frmPlotDiplexer::TellOfNone(const std::string& why) {
  drawn_.reset();
  session_.note = picPlot.description = why;
  BeginPlot(plotScale, picPlot.picture);
  picPlot.picture.FontSize = titleSize;
  PrintAbout(picPlot.picture, {plotFrame.left + plotFrame.width / 2, plotFrame.top + plotFrame.height / 2}, why);
}

void frmPlotDiplexer::Draw() {
  const Diplexer& diplexer = session_.diplexer;
  const DesignRecord settings = WithAnalysisEntries(session_.record, session_.configuration);
  SweepDiplexer(diplexer, settings, *responses_);
  drawn_ = DiplexerSetupOf(diplexer, settings);
  drawn_->summary = DiplexerSummary(diplexer);
  if (diplexer.DipMarkersOn == 1) drawn_->markers = ReadDiplexerMarkers(diplexer, settings);
  DrawDiplexerPlot(*drawn_, *responses_, places_, picPlot.picture);
  picPlot.description = drawn_->summary;
  if (const std::string note = SweepNote(diplexer, settings); !note.empty()) session_.note = note;
}

void frmPlotDiplexer::ShowValues() {
  const Diplexer& diplexer = session_.diplexer;
  const bool bands = diplexer.DipMode == 2;
  lblOrder_.caption = std::to_string(diplexer.DipOrder);
  lblApass_.caption = EntryText(diplexer.DipRipple, FormatValue) + "dB";
  ShowFrequency(lblCrossover_, diplexer.DipCrossover);
  ShowFrequency(lblLowerEdge_, diplexer.DipFlower);
  ShowFrequency(lblUpperEdge_, diplexer.DipFupper);
  for (Control* control : std::initializer_list<Control*>{&lblCrossoverInput_, &lblCrossover_, &UpDown2_}) {
    control->visible = !bands;
  }
  for (Control* control : std::initializer_list<Control*>{&lblLowerEdgeEnter_, &lblLowerEdge_, &UpDown4_,
                                                          &lblUpperEdgeEnter_, &lblUpperEdge_, &UpDown5_}) {
    control->visible = bands;
  }
}

// Outside the frame the last readout stays.
void frmPlotDiplexer::ShowReadout(f32 x, f32 y) {
  if (!drawn_ || !InReadoutFrame(x, y)) return;
  picPlot.mark.SetScale(picPlot.picture.CurrentScale());
  picPlot.mark.Clear();
  SweepSettings swept;
  swept.NrIntervals = static_cast<f32>(responses_->Frequencies().size() - 1);
  const auto index = static_cast<std::size_t>(CursorIndex(swept, x));
  DrawDiplexerReadout(*drawn_, *responses_, index, picPlot.mark);
}

Layout frmPlotDiplexer::MakeLayout() {
  const Layout entriesForm = Form({{Put(lblOrderInput_), Number(lblOrder_, UpDown1_)},
                                   {Put(lblCrossoverInput_), Number(lblCrossover_, UpDown2_)},
                                   {Put(lblLowerEdgeEnter_), Number(lblLowerEdge_, UpDown4_)},
                                   {Put(lblUpperEdgeEnter_), Number(lblUpperEdge_, UpDown5_)},
                                   {Put(lblApassInput_), Number(lblApass_, UpDown3_)}});
  const Layout side = SidePlace(Column(
      {entriesForm, Grid(1, {Put(cmdTunePart_), Put(cmdMarkers_), Put(cmd5Caps_), Put(cmdExit_), Put(cmdReturn_)}),
       Space()}));
  return Fill(Row({Fill(Put(picPlot)), side}));
}

}  // namespace quilm
