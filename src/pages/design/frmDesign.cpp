#include "pages/design/frmDesign.h"

#include <algorithm>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "desk/FamilyRules.h"
#include "desk/Leaving.h"
#include "desk/ResponseChange.h"
#include "desk/modCheckEntries.h"
#include "desk/modComputeReals.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "network/DesignStanding.h"
#include "network/NetworkEdits.h"
#include "pages/design/ValidateDesign.h"
#include "schematic/Icons.h"
#include "shell/History.h"
#include "shell/Session.h"
#include "synthesis/EndSections.h"
#include "synthesis/modNormalized.h"

namespace quilm {

frmDesign::frmDesign(Session& session)
    : Page(session, PageId::Design, "Design"),
      navigation_(*this, session, [this](PageId) { return MakeNetwork(); }),
      controls_(*this, session.record, [this] { MarkChanged(); }),
      preview_(*this, session, DesignPreview::Of::Entries, [this] { navigation_.GoTo(PageId::Plotted); }) {
  navigation_.onGet = [&session] { GetDesignFor(session, PageId::Design); };
  // What is saved is a network, so that one is made first.
  navigation_.onSave = [this, &session] {
    if (MakeNetwork()) SaveDesign(session, "Save Quilm File");
  };
  ConnectSpins();
  ConnectOptions();
  ConnectButtons();
}

void frmDesign::ConnectSpins() {
  controls_.UpDown1.Count(controls_.lblOrderInput, [this](i32 order) { SetOrder(static_cast<f32>(order)); });
  controls_.UpDown1.onUp = [this] { SetOrder(session_.record.Order + 1); };
  controls_.UpDown1.onDown = [this] { SetOrder(session_.record.Order - 1); };
  UpDown2_.Count(lblLineWidthInput_, [this](i32 width) { SetLineWidth(width); });
  UpDown2_.onUp = [this] { SetLineWidth(session_.record.PlotLineWidth + 1); };
  UpDown2_.onDown = [this] { SetLineWidth(session_.record.PlotLineWidth - 1); };
  UpDown2_.lowest = static_cast<i32>(limitsOf::PlotLineWidth.lowest);
  UpDown2_.highest = static_cast<i32>(limitsOf::PlotLineWidth.highest);
}

void frmDesign::ConnectOptions() {
  controls_.families.OnChoice([this](i16 family) { ChooseFamily(family); });
  controls_.topologies.OnChoice([this](const std::string& letter) { ChooseTopology(letter); });
  controls_.optCauerTermBest.onClick = [this] { ChooseCauerType(); };
  controls_.optCauerTermsEqual.onClick = [this] { ChooseCauerType(); };
  controls_.optCauerTopNormal.onClick = [this] { ChooseCauerTop(0); };
  controls_.optCauerTopZigZag.onClick = [this] { ChooseCauerTop(1); };
  optEnglish_.onClick = [this] { session_.record.Units = 1; };
  optMetric_.onClick = [this] { session_.record.Units = 2; };
}

void frmDesign::ConnectButtons() {
  for (int number = 1; number <= topologyCount; ++number) {
    controls_.guides.Guide(number).onClick = [this, number] { ShowTopologyHelp(number); };
  }
  cmdSeeNorms_.onClick = [this] { SeeNormalized(); };
  ConnectTools();
  cmdManual_.onClick = [this] { EnterByHand(); };
  cmdTitle_.onClick = [this] { session_.pages.ShowModal(PageId::ChangeTitle); };
  cmdInfo_.onClick = [this] { session_.pages.ShowModal(PageId::AddInfo); };
  cmdHelpFamily_.onClick = [this] { session_.pages.ShowModal(PageId::HelpFamily); };
  cmdAssistance_.onClick = [this] { session_.pages.ShowModal(PageId::EntryAssistance); };
  for (Button* button : {&cmdSeeNorms_, &cmdManual_, &cmdTitle_, &cmdInfo_, &cmdHelpFamily_, &cmdAssistance_}) {
    button->role = ButtonRole::Tool;
  }
  cmdSeeNorms_.picture = SignPicture(Sign::Normalized);
  cmdManual_.picture = SignPicture(Sign::Manual);
  cmdTitle_.picture = SignPicture(Sign::Title);
  cmdInfo_.picture = SignPicture(Sign::Info);
  cmdHelpFamily_.picture = SignPicture(Sign::Plot);
  cmdAssistance_.picture = SignPicture(Sign::Help);
}

void frmDesign::ConnectTools() {
  const auto offer = [this](int tool, PageId page, void (frmDesign::*open)(PageId)) {
    if (session_.pages.Has(page)) controls_.tools.Offer(tool, [this, page, open] { (this->*open)(page); });
  };
  offer(nearest5Tool, PageId::Nearest5, &frmDesign::OpenOnNetwork);
  offer(specifyInductorTool, PageId::SpecifyInductor, &frmDesign::OpenOnNetwork);
  offer(singlyTerminatedTool, PageId::SinglyTermCheby, &frmDesign::OpenAnyway);
  offer(diplexerTool, PageId::Diplexer, &frmDesign::OpenAnyway);
  offer(tubularTool, PageId::LumpedToTubular, &frmDesign::OpenOnNetwork);
  offer(windTool, PageId::WindInductor, &frmDesign::OpenAnyway);
  offer(findTool, PageId::FindInductance, &frmDesign::OpenAnyway);
  offer(bisectionTool, PageId::Bisection, &frmDesign::OpenOnNetwork);
  offer(toroidTool, PageId::ToroidDesign, &frmDesign::OpenAnyway);
  offer(nortonTool, PageId::Norton, &frmDesign::OpenOnNetwork);
  offer(teeToPiTool, PageId::MeshTeePi, &frmDesign::OpenOnNetwork);
  controls_.tools.Offer(reversalTool, [this] { ReverseEndForEnd(); });
  if (session_.pages.Has(PageId::EndSections)) controls_.tools.Offer(endSectionsTool, [this] { AddEnds(); });
  if (session_.pages.Has(PageId::ImpedanceMatch)) controls_.tools.Offer(matchTool, [this] { MatchImpedances(); });
}

void frmDesign::Load() {
  const History::Following following(session_);
  controls_.Settle();
  Reload();
}

void frmDesign::Reload() {
  controls_.Fill();
  session_.familyOption = controls_.families.Chosen();
  navigation_.Load();
  ShowSettings();
  const PageDesk& pages = session_.pages;
  cmdSeeNorms_.enabled = pages.Has(PageId::SeeNormalized);
  cmdManual_.enabled = pages.Has(PageId::ManualEntry);
  cmdTitle_.enabled = pages.Has(PageId::ChangeTitle);
  cmdInfo_.enabled = pages.Has(PageId::AddInfo);
  cmdHelpFamily_.enabled = pages.Has(PageId::HelpFamily);
  cmdAssistance_.enabled = pages.Has(PageId::EntryAssistance);
  CatchUp();
}

void frmDesign::CatchUp() { preview_.CatchUp(); }

void frmDesign::CloseBox() { LeaveByCloseBox(session_); }

void frmDesign::ShowSettings() {
  (session_.record.Units == 2 ? optMetric_ : optEnglish_).Set();
  lblLineWidthInput_.caption = std::to_string(session_.record.PlotLineWidth);
}

void frmDesign::MarkChanged() {
  ForgetNetwork(session_.record);
  controls_.txtDesignChange.visible = true;
}

void frmDesign::ChooseFamily(i16 family) {
  const FamilyRule* rule = FindFamily(family);
  DesignRecord& record = session_.record;
  MarkChanged();
  record.Family = family;
  session_.familyOption = family;
  record.CauerFlag = rule->cauer ? 1 : 0;
  if (!rule->cauer) record.FstopNorm = 0;
  if (rule->ripple == RippleEntry::None) {
    record.Apass = 0;
    controls_.ripple.Fill();
  }
  if (family == familyManual) SettleByHand(record);
  if (family == familyCauer) record.Order = std::max(record.Order, limitsOf::CauerOrder.lowest);
  controls_.TakeTopology(TopologyUnder(family, record.Topology));
  controls_.SettleCauer();
  ComputeNormalized(session_);
  // The prototype may have held the order to a limit of its own.
  controls_.Refresh();
}

void frmDesign::ChooseTopology(const std::string& letter) {
  MarkChanged();
  controls_.TakeTopology(letter);
  controls_.Refresh();
}

void frmDesign::ChooseCauerType() {
  MarkChanged();
  controls_.SettleCauer();
}

void frmDesign::ChooseCauerTop(i16 layout) {
  MarkChanged();
  session_.record.CauerTop = layout;
}

void frmDesign::SetOrder(f32 order) {
  DesignRecord& record = session_.record;
  const f32 held = std::clamp(order, static_cast<f32>(LowestOrder(record)), static_cast<f32>(record.OrderMax));
  if (held == record.Order) return;
  record.Order = held;
  MarkChanged();
  controls_.SettleCauer();
  controls_.Refresh();
}

void frmDesign::SetLineWidth(i32 width) {
  session_.record.PlotLineWidth = static_cast<i16>(limitsOf::PlotLineWidth.Held(static_cast<f32>(width)));
  ShowSettings();
}

void frmDesign::ShowTopologyHelp(int number) {
  session_.record.TopologyHelpCode = static_cast<i16>(number);
  if (session_.pages.Has(PageId::Help)) session_.pages.ShowModal(PageId::Help);
}

void frmDesign::SeeNormalized() {
  if (!MakeNetwork()) return;
  if (NetworkStands(session_.record)) {
    session_.platform.MessageBox(
        "The parts were entered or changed by hand.\r\nThere are no normalized values that belong to them.",
        Buttons::Ok, Icon::Information, "");
    return;
  }
  session_.pages.ShowModal(PageId::SeeNormalized);
}

void frmDesign::OpenOnNetwork(PageId tool) {
  if (MakeNetwork()) GoTo(tool);
}

// A design that has not been begun is no hindrance; one that has must be sound.
void frmDesign::OpenAnyway(PageId tool) {
  const bool begun = session_.network.Stages > 0 || session_.record.Width > limitsOf::leastEntered;
  if (!begun || MakeNetwork()) GoTo(tool);
}

void frmDesign::AddEnds() {
  if (!MakeNetwork()) return;
  const std::string obstacle = EndSectionObstacle(session_.record);
  if (!obstacle.empty()) {
    session_.platform.MessageBox(obstacle, Buttons::Ok, Icon::Exclamation, "Error checker");
    return;
  }
  GoTo(PageId::EndSections);
}

void frmDesign::MatchImpedances() {
  if (!MakeNetwork()) return;
  if (!(session_.record.Fcenter > 0)) {
    session_.platform.MessageBox("Please enter a center frequency", Buttons::Ok, Icon::Exclamation,
                                 "Error checker 199");
    SetFocus(controls_.txtCenterFrequency);
    return;
  }
  GoTo(PageId::ImpedanceMatch);
}

void frmDesign::ReverseEndForEnd() {
  if (!MakeNetwork()) return;
  const Network before = session_.network;
  SwapEndForEnd(session_.network);
  StandByHand(session_.record);
  session_.familyOption = familyManual;
  controls_.Fill();
  NoteResponseChange(session_, before);
  session_.platform.MessageBox("Topology and parts values have been reversed, end for end", Buttons::Ok,
                               Icon::Information, "");
}

// That page asks first whether this design may go; if not, this one has never been left.
void frmDesign::EnterByHand() {
  session_.ManualFromDesign = 1;
  session_.pages.ShowPage(PageId::ManualEntry);
  if (session_.pages.Find(PageId::ManualEntry) != nullptr) session_.pages.UnloadPage(Id());
}

bool frmDesign::MakeNetwork() {
  const History::Following following(session_);
  ValidateDesign(session_, controls_);
  if (!CheckEntries(session_)) return false;
  ComputeNormalized(session_);
  controls_.Refresh();
  return ComputeReals(session_);
}

// The target is shown before this page is unloaded, so that its load step sees nothing but the session.
void frmDesign::GoTo(PageId target) {
  session_.pages.ShowPage(target);
  session_.pages.UnloadPage(Id());
}

}  // namespace quilm
