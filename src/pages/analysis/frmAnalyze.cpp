#include "pages/analysis/frmAnalyze.h"

#include <cmath>

#include "analysis/AnalysisEntries.h"
#include "analysis/SweepFit.h"
#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/Fault.h"
#include "core/modGeneral.h"
#include "desk/Leaving.h"
#include "desk/SweepRange.h"
#include "desk/modCheckEntries.h"
#include "display/PlotScaling.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"

namespace quilm {

namespace {

f32 Negative(f32 value) { return -std::fabs(value); }
f32 IntervalsHeld(f32 value) { return limitsOf::NrIntervals.Held(value); }

// A reference of 0 or less has no meaning; 50 ohms is what most are.
f32 ReferenceHeld(f32 value) { return value <= 0 ? 50.0F : value; }

}  // namespace

frmAnalyze::frmAnalyze(Session& session)
    : Page(session, PageId::Analyze, "Analysis"),
      navigation_(*this, session, [this](PageId target) { return MayGoTo(target); }),
      preview_(*this, session, DesignPreview::Of::Network, [this] { navigation_.GoTo(PageId::Plotted); }) {
  lblSweepFault_.emphasised = true;
  navigation_.onGet = [&session] { GetDesignFor(session, PageId::Analyze); };
  navigation_.onSave = [&session] { SaveDesign(session, "Save Quilm File"); };
  BindEntries();
  ConnectOptions();
  ConnectSpins();
  cmdAutoScale_.onClick = [this] { ScaleToResponse(); };
  cmdFitSweep_.onClick = [this] { FitToBand(); };
  cmdStepsize_.onClick = [this] {
    session_.pages.ShowModal(PageId::MonteCarloSetup);
    session_.pages.ShowPage(Id());
  };
  cmdModulation_.onClick = [this] { OpenStudy(PageId::ModulationPlot); };
  cmdPhase_.onClick = [this] { OpenStudy(PageId::PhaseSetup); };
  cmdNoise_.onClick = [this] { OpenStudy(PageId::Noise); };
  cmdTransient_.onClick = [this] { OpenStudy(PageId::TransientPlot); };
  cmdAssistance_.onClick = [this] { session_.pages.ShowModal(PageId::EntryAssistance); };
  for (Button* tool : {&cmdAutoScale_, &cmdFitSweep_, &cmdStepsize_, &cmdModulation_, &cmdPhase_, &cmdNoise_,
                       &cmdTransient_, &cmdAssistance_}) {
    tool->role = ButtonRole::Tool;
  }
}

void frmAnalyze::BindEntries() {
  DesignRecord& r = session_.record;
  const auto sweep = [this] { FollowWithSweep(); };
  entries.Bind({.box = txtFstart_, .field = r.Fstart, .format = FormatFrequency, .onTaken = sweep});
  entries.Bind({.box = txtFstop_, .field = r.Fstop, .format = FormatFrequency, .onTaken = sweep});
  entries.Bind(
      {.box = txtNrIntervals_, .field = r.NrIntervals, .format = PlainText, .hold = IntervalsHeld, .onTaken = sweep});
  BindScales();
  entries.Bind({.box = txtQinductor_, .field = r.Qind[1], .format = FormatValue, .onTaken = sweep});
  entries.Bind({.box = txtQcapacitor_, .field = r.Qcap[1], .format = FormatValue, .onTaken = sweep});
  entries.Bind({.box = txtRetLossRef_,
                .field = r.Rstandard,
                .format = FormatResistance,
                .hold = ReferenceHeld,
                .onTaken = sweep});
}

void frmAnalyze::BindScales() {
  DesignRecord& r = session_.record;
  const auto scale = [this] { Follow(); };
  entries.Bind(
      {.box = txtLossBottom_, .field = r.LossBottom, .format = FormatValue, .hold = Negative, .onTaken = scale});
  entries.Bind({.box = txtDelayTop_, .field = r.DelayTop, .format = FormatTime, .onTaken = scale});
  entries.Bind({.box = txtVSWRTop_, .field = r.VSWRTop, .format = FormatValue, .onTaken = scale});
  entries.Bind({.box = txtImpedanceTop_, .field = r.ImpedanceTop, .format = FormatResistance, .onTaken = scale});
}

void frmAnalyze::ConnectOptions() {
  optLinear_.onClick = [this] { SetSweepMode(1); };
  optLog_.onClick = [this] { SetSweepMode(2); };
  optAbsolute_.onClick = [this] { SetRelative(false); };
  optRelative_.onClick = [this] { SetRelative(true); };
  // A second trace of the same sweep: nothing to compute anew.
  optNormal_.onClick = [this] { session_.record.MagnifyMode = 0; };
  optMagnify_.onClick = [this] { session_.record.MagnifyMode = 1; };
}

void frmAnalyze::ConnectSpins() {
  DesignRecord& r = session_.record;
  UpDown1_.Count(lblNrXints_, [this](i32 intervals) { SetXints(intervals); });
  UpDown1_.onUp = [this, &r] { SetXints(r.NrXints + 1); };
  UpDown1_.onDown = [this, &r] { SetXints(r.NrXints - 1); };
  UpDown2_.Count(lblNrYints_, [this](i32 intervals) { SetYints(static_cast<f32>(intervals)); });
  UpDown2_.onUp = [this, &r] { SetYints(r.NrYints + 1); };
  UpDown2_.onDown = [this, &r] { SetYints(r.NrYints - 1); };
  UpDown3_.Count(lblLineWidthInput_, [this](i32 width) { SetLineWidth(width); });
  UpDown3_.onUp = [this, &r] { SetLineWidth(r.PlotLineWidth + 1); };
  UpDown3_.onDown = [this, &r] { SetLineWidth(r.PlotLineWidth - 1); };
  const auto range = [](Spin& spin, const EntryLimits& limits) {
    spin.lowest = static_cast<i32>(limits.lowest);
    spin.highest = static_cast<i32>(limits.highest);
  };
  range(UpDown1_, limitsOf::NrXints);
  range(UpDown2_, limitsOf::NrYintsAtSpin);
  range(UpDown3_, limitsOf::PlotLineWidth);
}

void frmAnalyze::Load() { Show(Missing::AreFilled); }

// A sweep without a start that an undo brings back keeps none.
void frmAnalyze::Reload() { Show(Missing::Stay); }

void frmAnalyze::Show(Missing missing) {
  navigation_.Load();
  cmdAssistance_.enabled = session_.pages.Has(PageId::EntryAssistance);
  try {
    if (missing == Missing::AreFilled) FillMissingEntries(session_.record, session_.configuration);
    entries.Fill();
    ShowOptions();
    ShowLabels();
    CatchUp();
  } catch (const Fault& fault) {
    session_.platform.MessageBox(std::string("Analyze 175\r\n") + fault.what(), Buttons::Ok, Icon::Critical, "");
  }
}

void frmAnalyze::CatchUp() { preview_.CatchUp(); }

void frmAnalyze::CloseBox() { LeaveByCloseBox(session_); }

// The labels follow each keystroke.
void frmAnalyze::Follow() {
  if (session_.record.NrXints < limitsOf::NrXints.lowest) session_.record.NrXints = 10;
  ShowLabels();
}

void frmAnalyze::FollowWithSweep() {
  ForgetResponses(session_.record);
  Follow();
}

void frmAnalyze::SetSweepMode(i16 mode) {
  session_.record.SweepMode = mode;
  ForgetResponses(session_.record);
  ShowLabels();
}

void frmAnalyze::SetRelative(bool relative) {
  session_.record.RelativeMode = relative ? 1 : 0;
  session_.record.AbsoluteMode = relative ? 0 : 1;
  ForgetResponses(session_.record);
}

void frmAnalyze::SetXints(i32 intervals) {
  session_.record.NrXints = static_cast<i16>(limitsOf::NrXints.Held(static_cast<f32>(intervals)));
  ForgetResponses(session_.record);
  ShowLabels();
}

void frmAnalyze::SetYints(f32 intervals) {
  session_.record.NrYints = limitsOf::NrYintsAtSpin.Held(intervals);
  ShowLabels();
}

void frmAnalyze::SetLineWidth(i32 width) {
  session_.record.PlotLineWidth = static_cast<i16>(limitsOf::PlotLineWidth.Held(static_cast<f32>(width)));
  ShowLabels();
}

// The entries are forced into their ranges, and the boxes show it.
bool frmAnalyze::CheckAll() {
  HoldAnalysisEntries(session_.record, session_.configuration);
  const bool passed = CheckEntries(session_);
  entries.Repair();
  ShowOptions();
  ShowLabels();
  return passed;
}

bool frmAnalyze::MayGoTo(PageId target) {
  if (target == PageId::Design) return true;
  if (!CheckAll()) return false;
  if (target == PageId::Tabulated) ForgetResponses(session_.record);
  if (target != PageId::Plotted) return true;
  AnalyzeSweep(session_);
  return session_.record.ResponsesValid == 1;
}

// The page is taken away and shown again, so that it reads the new scales; the responses are taken as they stand.
void frmAnalyze::ScaleToResponse() {
  session_.pages.ShowPage(PageId::Blank);
  AutoScale(session_.record, SpansOf(session_.responses, LastPoint(session_.record)));
  session_.pages.ShowPage(PageId::Analyze);
  session_.pages.UnloadPage(PageId::Blank);
}

void frmAnalyze::FitToBand() {
  FitSweep(session_);
  entries.Fill();
  ShowLabels();
}

// A study takes the place of this page; its exit shows it afresh.
void frmAnalyze::OpenStudy(PageId study) {
  if (session_.network.Stages == 0) {
    session_.platform.MessageBox("The parts list is empty", Buttons::Ok, Icon::Exclamation, "");
    return;
  }
  session_.pages.ShowPage(study);
  session_.pages.UnloadPage(Id());
}

void frmAnalyze::ShowOptions() {
  const DesignRecord& record = session_.record;
  (record.SweepMode == 1 ? optLinear_ : optLog_).Set();
  (record.RelativeMode == 1 ? optRelative_ : optAbsolute_).Set();
  (record.MagnifyMode == 1 ? optMagnify_ : optNormal_).Set();
}

void frmAnalyze::ShowLabels() {
  const DesignRecord& record = session_.record;
  lblSpanValue_.caption = SpanText(record);
  lblSweepFault_.caption = SweepFault(record);
  lblPerInterval_.caption = FrequencyPerIntervalText(record);
  lbldBper_.caption = LossPerIntervalText(record);
  lblDelayPer_.caption = DelayPerIntervalText(record);
  lblOhmsPer_.caption = ImpedancePerIntervalText(record);
  lblVSWRPer_.caption = VSWRPerIntervalText(record);
  lblNrXints_.caption = std::to_string(record.NrXints);
  lblNrYints_.caption = std::to_string(static_cast<int>(record.NrYints));
  lblLineWidthInput_.caption = std::to_string(record.PlotLineWidth);
  // A logarithmic grid goes by decades.
  const bool linear = record.SweepMode == 1;
  for (Control* control : {static_cast<Control*>(&lblXints_), static_cast<Control*>(&lblNrXints_),
                           static_cast<Control*>(&UpDown1_), static_cast<Control*>(&lblPerInterval_)}) {
    control->visible = linear;
  }
}

Layout frmAnalyze::SweepGroup() {
  return Group("Sweep", Column({Form({{Put(lblFstart_), Put(txtFstart_), Word("Hz", txtFstart_)},
                                      {Put(lblFstop_), Put(txtFstop_), Word("Hz", txtFstop_)},
                                      Under(Put(lblSpanValue_)),
                                      {Put(lblNrIntervals_), Put(txtNrIntervals_)},
                                      {KeepPlace(Put(lblXints_)), KeepPlace(Number(lblNrXints_, UpDown1_))},
                                      Under(KeepPlace(Put(lblPerInterval_)))}),
                                Group("Spacing", Row({Put(optLinear_), Put(optLog_)})), Put(lblSweepFault_), Space()}));
}

Layout frmAnalyze::ScaleGroup() {
  return Group("Scales", Column({Form({{Put(lblLossBottom_), Put(txtLossBottom_), Word("dB", txtLossBottom_)},
                                       Under(Put(lbldBper_)),
                                       {Put(lblDelayTop_), Put(txtDelayTop_), Word("s", txtDelayTop_)},
                                       Under(Put(lblDelayPer_)),
                                       {Put(lblVSWRTop_), Put(txtVSWRTop_)},
                                       Under(Put(lblVSWRPer_)),
                                       {Put(lblImpedanceTop_), Put(txtImpedanceTop_), Word("ohms", txtImpedanceTop_)},
                                       Under(Put(lblOhmsPer_)),
                                       {Put(lblYints_), Number(lblNrYints_, UpDown2_)},
                                       {Put(lblLineWidth_), Number(lblLineWidthInput_, UpDown3_)}}),
                                 Space()}));
}

Layout frmAnalyze::QualityGroup() {
  return Group(
      "Qualities",
      Column({Form({{Put(lblQinductor_), Put(txtQinductor_)}, {Put(lblQcapacitor_), Put(txtQcapacitor_)}}), Space()}));
}

Layout frmAnalyze::ReferenceGroup() {
  return Group("Reference", Column({Form({{Put(lblRetLossRef_), Put(txtRetLossRef_), Word("ohms", txtRetLossRef_)}}),
                                    Group("Level", Column({Put(optAbsolute_), Put(optRelative_)})),
                                    Group("Magnification", Column({Put(optNormal_), Put(optMagnify_)})), Space()}));
}

// Between the groups and the tools stands what is left of the window's height.
Layout frmAnalyze::MakeLayout() {
  return Column({navigation_.MakeLayout(), Row({SweepGroup(), ScaleGroup(), QualityGroup(), ReferenceGroup(), Space()}),
                 Fill(Put(preview_.picPreview)),
                 Group("Tools", Grid(8, {Put(cmdAutoScale_), Put(cmdFitSweep_), Put(cmdStepsize_), Put(cmdModulation_),
                                         Put(cmdPhase_), Put(cmdNoise_), Put(cmdTransient_), Put(cmdAssistance_)}))});
}

}  // namespace quilm
