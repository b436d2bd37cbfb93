#include "pages/plot/frmPlotted.h"

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "desk/Leaving.h"
#include "desk/SweepRange.h"
#include "display/LimitEntry.h"
#include "display/PlotKinds.h"
#include "display/PlotScaling.h"
#include "display/SheetDrawing.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "reports/PrintPlot.h"
#include "schematic/Icons.h"
#include "shell/History.h"
#include "shell/Session.h"
#include "synthesis/DesignSummary.h"

namespace quilm {

namespace {

bool RippleCanBeTuned(const DesignRecord& record) {
  if (record.Family == familyChebyshev) return record.Apass > 0;
  return record.Family == familyCauer && record.Order > 3 && static_cast<int>(record.Order) % 2 == 0;
}

}  // namespace

frmPlotted::frmPlotted(Session& session)
    : Page(session, PageId::Plotted, "Plot"),
      navigation(*this, session, NavigationRow::WithSoundEntries(session)),
      picPlot(*this, "picPlot", "Plot of the responses", session.plot.picture, session.plot.live),
      smithControls(*this, session, [&session] { RedrawPlot(session); }),
      limitTools(*this, session, picPlot),
      mouse_(session, picPlot),
      runs_(session, *this, {cmdOptimize, cmdMonteCarlo, cmdEnd, cmdExtremes, picPlot},
            [this](bool shown) { ShowTools(shown); }) {
  ClearSheet(session.plot);  // nothing of the design before shows when this one cannot be drawn
  navigation.onSave = [&session] { SaveDesign(session, "Save Quilm File"); };
  navigation.onGet = [&session] { GetDesignFor(session, PageId::Plotted); };
  navigation.onPrint = [&session] { PrintPlot(session); };
  int number = 0;
  for (const PlotButton& entry : PlotButtons()) {
    auto button = std::make_unique<Button>(*this, entry.name, "", entry.toolTip);
    button->role = ButtonRole::Thumbnail;
    button->picture = CurvePicture(++number);
    button->onClick = [this, code = entry.code] { Choose(code); };
    plotButtons.push_back(std::move(button));
  }
  cmdAutoScale.onClick = [this] { ScaleToResponse(); };
  cmdFitSweep.onClick = [this] { FitToBand(); };
  cmdLimits.onClick = [this] { OpenLimits(session_); };
  cmdMarkers.onClick = [this] { OpenMarkers(session_); };
  cmdTunePart.onClick = [this] { OpenTuning(PageId::TunePart); };
  cmdTuneWidth.onClick = [this] { OpenTuning(PageId::TuneWidthCenter); };
  cmdTuneApass.onClick = [this] { OpenTuning(PageId::TuneApass); };
  cmdStepSize.onClick = [this] { EnterStepsizes(); };
  cmdGetOverlay.onClick = [this] { session_.pages.ShowBeside(PageId::OverlayGetList); };
  cmdSaveOverlay.onClick = [this] { session_.pages.ShowBeside(PageId::OverlaySaveList); };
  for (Button* tool : tools_) tool->role = ButtonRole::Tool;
}

void frmPlotted::Load() {
  navigation.Load();
  smithControls.Load();
  cmdTuneWidth.enabled = true;  // tuning a part has switched it off until now
  for (const auto& button : plotButtons) button->visible = true;
  if (!IsPlot(session_.record.PlotCode)) session_.record.PlotCode = 1;
  Choose(session_.record.PlotCode);
}

// An area that was entered is taken back while more are entered.
void frmPlotted::Reload() {
  const LimitEntry entry = session_.plot.limitEntry;
  Load();
  if (entry.LimitEntryPlot != 0 && entry.LimitEntryPlot == session_.record.PlotCode) ResumeLimitEntry(session_, entry);
}

void frmPlotted::CatchUp() { limitTools.Refresh(); }

// The main pages' close box ends the program.
void frmPlotted::CloseBox() { LeaveByCloseBox(session_); }

// Sweeps, whatever ResponsesValid says, and draws the plot of the code.
void frmPlotted::Choose(i16 code) {
  RefreshTools();
  TellOfSweep(session_);
  AnalyzeSweep(session_);
  if (session_.record.ResponsesValid != 1) return;
  for (std::size_t i = 0; i < plotButtons.size(); ++i) {
    plotButtons[i]->pressed = PlotButtons()[i].code == code;
    if (!plotButtons[i]->pressed) continue;
    picPlot.description = std::string(PlotButtons()[i].toolTip) + "  |  " + DesignSummary(session_.record, true);
  }
  cmdLimits.visible = IsRectangular(code);
  smithControls.ShowFor(code);
  ChoosePlot(session_, code);
  runs_.OfferExtremes();
}

void frmPlotted::RefreshTools() { cmdTuneApass.visible = RippleCanBeTuned(session_.record); }

// All that a run takes away meanwhile.
void frmPlotted::ShowTools(bool shown) {
  for (const auto& button : plotButtons) button->visible = shown;
  for (Button* tool : tools_) tool->visible = shown;
  limitTools.Refresh();
  if (shown) {
    RefreshTools();
    cmdLimits.visible = IsRectangular(session_.record.PlotCode);
    smithControls.ShowFor(session_.record.PlotCode);
  } else {
    smithControls.Hide();
  }
}

// The page is taken away and shown again, so that everything on it is rebuilt with the new scales.
void frmPlotted::ScaleToResponse() {
  session_.pages.ShowPage(PageId::Blank);
  AutoScale(session_.record, SpansOf(session_.responses, LastPoint(session_.record)));
  session_.pages.ShowPage(PageId::Plotted);
  session_.pages.UnloadPage(PageId::Blank);
}

void frmPlotted::FitToBand() {
  FitSweep(session_);
  Choose(session_.record.PlotCode);
}

// Its acts are steps of their own to undo. The curves that it leaves stay. Meanwhile the mouse reads the plot, and
// enters no limits.
void frmPlotted::OpenTuning(PageId dialog) {
  session_.plot.limitEntry = {};
  const History::Tool tool(session_);
  session_.pages.ShowBeside(dialog, {&picPlot});
  RefreshTools();
  runs_.OfferExtremes();
}

void frmPlotted::EnterStepsizes() {
  for (const auto& button : plotButtons) button->visible = false;
  session_.pages.ShowModal(PageId::MonteCarloSetup);
  session_.pages.ShowPage(Id());
}

Layout frmPlotted::MakeLayout() {
  std::vector<Layout> strip;
  for (const auto& button : plotButtons) strip.push_back(KeepPlace(Put(*button)));
  strip.push_back(Space());
  std::vector<Layout> tools;
  for (Button* tool : tools_) tools.push_back(Put(*tool));
  const Layout side = SidePlace(Column({KeepPlace(Grid(1, std::move(tools))), Grid(1, {Put(cmdEnd), Put(cmdExtremes)}),
                                        limitTools.MakeLayout(), smithControls.MakeLayout(), Space()}));
  return Column({navigation.MakeLayout(), Row(std::move(strip)), Fill(Row({Fill(Put(picPlot)), side}))});
}

}  // namespace quilm
