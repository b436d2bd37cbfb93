#include "pages/analysis/frmAnalyze.h"

#include <algorithm>
#include <cmath>

#include "analysis/AnalysisEntries.h"
#include "analysis/modAnalysis.h"
#include "core/Fault.h"
#include "core/NumberText.h"
#include "core/modGeneral.h"
#include "desk/Leaving.h"
#include "desk/modCheckEntries.h"
#include "display/modPlot.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "network/DesignStanding.h"
#include "shell/EntryText.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr int mostXints = 30;
constexpr f32 mostYints = 30000;  // at the spin control; the check before a plot holds 30
constexpr int mostLineWidth = 6;

// A count reads as it is: 2049, not 2.049k.
std::string PlainText(f32 value) { return ShortText(value, LeadingZero::Keep); }

f32 AsTyped(f32 value) { return value; }
f32 Negative(f32 value) { return -std::fabs(value); }
f32 IntervalsHeld(f32 value) { return std::clamp(value, 4.0F, 2049.0F); }
f32 ReferenceHeld(f32 value) { return value <= 0 ? 50.0F : value; }

}  // namespace

frmAnalyze::frmAnalyze(Session& session)
    : Page(session, PageId::Analyze, "Analysis"),
      navigation_(*this, session, [this](PageId target) { return MayGoTo(target); }) {
  navigation_.helpFile = "analysis.htm";
  navigation_.onGet = [&session] { GetDesignFor(session, PageId::Analyze); };
  navigation_.onSave = [&session] { SaveDesign(session, "Save Quilm File"); };
  ConnectEntries();
  ConnectOptions();
  ConnectSpins();
  cmdAutoScale_.onClick = [this] { ScaleToResponse(); };
  cmdAssistance_.onClick = [this] { session_.pages.ShowModal(PageId::EntryAssistance); };
  // Their pages are still to come.
  for (Button* tool : {&cmdStepsize_, &cmdModulation_, &cmdPhase_, &cmdNoise_, &cmdTransient_}) tool->enabled = false;
}

void frmAnalyze::ConnectEntries() {
  using R = DesignRecord;
  entries_ = {
      {&txtFstart_, [](R& r) -> f32& { return r.Fstart; }, FormatFrequency, AsTyped, true},
      {&txtFstop_, [](R& r) -> f32& { return r.Fstop; }, FormatFrequency, AsTyped, true},
      {&txtNrIntervals_, [](R& r) -> f32& { return r.NrIntervals; }, PlainText, IntervalsHeld, true},
      {&txtLossBottom_, [](R& r) -> f32& { return r.LossBottom; }, FormatValue, Negative, false},
      {&txtDelayTop_, [](R& r) -> f32& { return r.DelayTop; }, FormatTime, AsTyped, false},
      {&txtVSWRTop_, [](R& r) -> f32& { return r.VSWRTop; }, FormatValue, AsTyped, false},
      {&txtImpedanceTop_, [](R& r) -> f32& { return r.ImpedanceTop; }, FormatResistance, AsTyped, false},
      {&txtQinductor_, [](R& r) -> f32& { return r.Qind[1]; }, FormatValue, AsTyped, true},
      {&txtQcapacitor_, [](R& r) -> f32& { return r.Qcap[1]; }, FormatValue, AsTyped, true},
      {&txtRetLossRef_, [](R& r) -> f32& { return r.Rstandard; }, FormatResistance, ReferenceHeld, true},
  };
  for (const Entry& entry : entries_) {
    entry.box->onChange = [this, &entry] { Take(entry); };
    entry.box->onLeave = [this, &entry] { entry.box->text = EntryText(entry.field(session_.record), entry.format); };
  }
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
  UpDown1_.onUp = [this] { StepXints(1); };
  UpDown1_.onDown = [this] { StepXints(-1); };
  UpDown2_.onUp = [this] { StepYints(1); };
  UpDown2_.onDown = [this] { StepYints(-1); };
  UpDown3_.onUp = [this] { StepLineWidth(1); };
  UpDown3_.onDown = [this] { StepLineWidth(-1); };
}

void frmAnalyze::Load() {
  navigation_.Load();
  cmdAssistance_.enabled = session_.pages.Has(PageId::EntryAssistance);
  try {
    FillMissingEntries(session_.record, session_.configuration);
    ShowEntries();
    ShowOptions();
    ShowLabels();
  } catch (const Fault& fault) {
    session_.platform.MessageBox(std::string("Analyze 175\r\n") + fault.what(), Buttons::Ok, Icon::Critical, "");
  }
}

void frmAnalyze::CloseBox() { LeaveByCloseBox(session_); }

// Each keystroke takes effect with the value as it is held; the box itself is rewritten when it is left.
void frmAnalyze::Take(const Entry& entry) {
  DesignRecord& record = session_.record;
  f32& field = entry.field(record);
  ParseBox(*entry.box, field, entry.format);
  field = entry.hold(field);
  if (entry.sweeps) ForgetResponses(record);
  if (record.NrXints < 1) record.NrXints = 10;
  ShowLabels();
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

void frmAnalyze::StepXints(int direction) {
  i16& intervals = session_.record.NrXints;
  intervals = static_cast<i16>(std::clamp(intervals + direction, 1, mostXints));
  ForgetResponses(session_.record);
  ShowLabels();
}

void frmAnalyze::StepYints(int direction) {
  f32& intervals = session_.record.NrYints;
  intervals = std::clamp(intervals + static_cast<f32>(direction), 1.0F, mostYints);
  ShowLabels();
}

void frmAnalyze::StepLineWidth(int direction) {
  i16& width = session_.record.PlotLineWidth;
  width = static_cast<i16>(std::clamp(width + direction, 1, mostLineWidth));
  ShowLabels();
}

// The entries are forced into their ranges, and the boxes show it.
bool frmAnalyze::CheckAll() {
  HoldAnalysisEntries(session_.record, session_.configuration);
  const bool passed = CheckEntries(session_);
  RepairEntries();
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
  AutoScale(session_.record, session_.responses);
  session_.pages.ShowPage(PageId::Analyze);
  session_.pages.UnloadPage(PageId::Blank);
}

void frmAnalyze::ShowEntries() {
  for (const Entry& entry : entries_) entry.box->text = EntryText(entry.field(session_.record), entry.format);
}

// What the check has changed shows as changed.
void frmAnalyze::RepairEntries() {
  for (const Entry& entry : entries_) {
    const std::string text = EntryText(entry.field(session_.record), entry.format);
    if (entry.box->text != text) entry.box->Repair(text);
  }
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
  return Group("Sweep", Column({Form({{Put(lblFstart_), Put(txtFstart_)},
                                      {Put(lblFstop_), Column({Put(txtFstop_), Put(lblSpanValue_)})},
                                      {Put(lblNrIntervals_), Put(txtNrIntervals_)}}),
                                Row({Put(optLinear_), Put(optLog_), Space()}),
                                KeepPlace(Row({KeepPlace(Put(lblXints_)), KeepPlace(Put(lblNrXints_)),
                                               KeepPlace(Put(UpDown1_)), Space()})),
                                KeepPlace(Put(lblPerInterval_)), Space()}));
}

Layout frmAnalyze::ScaleGroup() {
  return Group("Scales", Column({Form({{Put(lblLossBottom_), Column({Put(txtLossBottom_), Put(lbldBper_)})},
                                       {Put(lblDelayTop_), Column({Put(txtDelayTop_), Put(lblDelayPer_)})},
                                       {Put(lblVSWRTop_), Column({Put(txtVSWRTop_), Put(lblVSWRPer_)})},
                                       {Put(lblImpedanceTop_), Column({Put(txtImpedanceTop_), Put(lblOhmsPer_)})},
                                       {Put(lblYints_), Row({Put(lblNrYints_), Put(UpDown2_), Space()})},
                                       {Put(lblLineWidth_), Row({Put(lblLineWidthInput_), Put(UpDown3_), Space()})}}),
                                 Space()}));
}

Layout frmAnalyze::QualityGroup() {
  return Group(
      "Qualities",
      Column({Form({{Put(lblQinductor_), Put(txtQinductor_)}, {Put(lblQcapacitor_), Put(txtQcapacitor_)}}), Space()}));
}

Layout frmAnalyze::ReferenceGroup() {
  return Group("Reference", Column({Form({{Put(lblRetLossRef_), Put(txtRetLossRef_)}}), Put(optAbsolute_),
                                    Put(optRelative_), Put(optNormal_), Put(optMagnify_), Space()}));
}

Layout frmAnalyze::MakeLayout() {
  return Column({navigation_.MakeLayout(), Row({SweepGroup(), ScaleGroup(), QualityGroup(), ReferenceGroup(), Space()}),
                 Space(),
                 Group("Tools", Grid(7, {Put(cmdAutoScale_), Put(cmdStepsize_), Put(cmdModulation_), Put(cmdPhase_),
                                         Put(cmdNoise_), Put(cmdTransient_), Put(cmdAssistance_)}))});
}

}  // namespace quilm
