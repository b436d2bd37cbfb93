#include "pages/edit/frmManualEntry.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "network/DesignStanding.h"
#include "network/ManualNetwork.h"
#include "network/NetworkEdits.h"
#include "pages/edit/PartRules.h"
#include "schematic/ElementPicture.h"
#include "schematic/StageStrip.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr BoxCaptions captions = {"L value:",
                                  "C value:",
                                  "R value:",
                                  "Length, deg:",
                                  "Frequency, Hz:",
                                  "Impedance:",
                                  "Turns ratio, pri to sec:",
                                  "Primary L:",
                                  "Secondary L:",
                                  "Coupling coefficient:",
                                  "X, ohms:",
                                  "Frequency, Hz:"};

constexpr const char* partsChecker = "Parts checker";

f32 Magnitude(f32 value) { return std::fabs(value); }

// Of R, L and C the resistor comes first.
std::vector<ValueBox> EntryOrder(i16 element) {
  std::vector<ValueBox> boxes = BoxesOf(element);
  std::stable_partition(boxes.begin(), boxes.end(), [](ValueBox box) { return box == ValueBox::Resistance; });
  return boxes;
}

// "Topology" of a network that no letter of a filter describes.
constexpr const char* manualTopology = "M";

}  // namespace

frmManualEntry::frmManualEntry(Session& session)
    : Page(session, PageId::ManualEntry, "Manual Network Entry"),
      boxes_(*this, captions),
      input_{txtInputTermination_, session.network.Rsource[1], InputTyped_},
      output_{txtOutputTermination_, session.network.Rload[1], OutputTyped_} {
  BindEntries();
  picEntry_.onMouseDown = [this](f32 x, f32 y, MouseButton) { Press(x, y); };
  cmdAccept_.onClick = [this] { Accept(); };
  cmdDeleteLast_.onClick = [this] { DeleteLast(); };
  cmdExitEntry_.onClick = [this] { Finish(); };
  cmdEscape_.onClick = [this] { GoTo(PageId::Opening); };
}

void frmManualEntry::BindEntries() {
  for (Termination* each : {&input_, &output_}) {
    entries.Bind({.box = each->box,
                  .field = each->entered,
                  .format = FormatResistance,
                  .hold = Magnitude,
                  .ofZero = OfZero::Blank,
                  .onTaken = [this, each] {
                    each->typed = 1;
                    each->field = each->entered;
                    FollowTerminations();
                  }});
  }
  entries.Bind({.box = txtBandEdge_, .field = bandEdge_, .format = FormatFrequency, .ofZero = OfZero::Blank});
  entries.Bind({.box = txtBandCenter_, .field = bandCenter_, .format = FormatFrequency, .ofZero = OfZero::Blank});
}

// The design of the Design page stays as it is until its user has agreed to lose it.
void frmManualEntry::Load() {
  if (session_.ManualFromDesign == 1) {
    session_.pages.ShowModal(PageId::ManualEntryOptions);
    if (!IsOpen()) return;
  } else {
    BeginByHand(session_.record);
  }
  InputTyped_ = OutputTyped_ = 0;
  for (Termination* each : {&input_, &output_}) {
    each->found = each->field;
    each->entered = 0;
    each->box.text.clear();
  }
  Show();
  SetFocus(txtInputTermination_);
}

// After an undo. A termination that is as the page found it has not been typed.
void frmManualEntry::Reload() {
  ShowTermination(input_);
  ShowTermination(output_);
  Show();
}

void frmManualEntry::ShowTermination(Termination& termination) {
  if (termination.typed == 1 && termination.entered == termination.field) return;
  termination.typed = termination.field == termination.found ? 0 : 1;
  termination.entered = termination.typed == 1 ? termination.field : 0;
  termination.box.text = FilledText(termination.entered, FormatResistance);
}

void frmManualEntry::Show() {
  ChosenElement_ = 0;
  PaletteOpen_ = 0;
  PaletteColor_ = paletteOff;
  EndEntry();
  boxes_.Hide();
  cmdExitEntry_.enabled = false;
  lblEnterTerminations_.visible = true;
  lblClickOnAnElement_.visible = false;
  const bool hasParts = session_.network.Stages > 0;
  lblBandEdge_.visible = txtBandEdge_.visible = lblBandCenter_.visible = txtBandCenter_.visible = hasParts;
  if (InputTyped_ == 1 && OutputTyped_ == 1) OpenPalette();
  Draw();
}

void frmManualEntry::FollowTerminations() {
  Network& network = session_.network;
  if (InputTyped_ == 1) network.Rstandard = network.Rsource[1];
  ForgetResponses(session_.record);
  if (PaletteOpen_ == 0 && InputTyped_ == 1 && OutputTyped_ == 1) OpenPalette();
  Draw();
}

void frmManualEntry::OpenPalette() {
  PaletteOpen_ = 1;
  PaletteColor_ = colorBlack;
  cmdExitEntry_.enabled = true;
  lblEnterTerminations_.visible = false;
  lblClickOnAnElement_.visible = true;
}

void frmManualEntry::Press(f32 x, f32 y) {
  if (PaletteOpen_ == 0) return;
  if (const i16 element = PaletteElementAt(PaletteOf::ManualPage, {x, y})) ChooseElement(element);
}

void frmManualEntry::ChooseElement(i16 element) {
  ChosenElement_ = element;
  const std::vector<ValueBox> boxes = EntryOrder(element);
  boxes_.Show(boxes);
  cmdAccept_.visible = true;
  acceptButton = &cmdAccept_;
  SetFocus(boxes_.Box(boxes.front()));
  Draw();
}

void frmManualEntry::Accept() {
  constexpr const char* full = "We have reached the upper limit of the number of stages allowed.";
  Network& network = session_.network;
  if (network.Stages >= stageBound) return Tell(full, "Entry checker", false);
  const EnteredPart part = ReadEnteredPart(ChosenElement_, [this](ValueBox box) { return boxes_.Value(box); });
  if (part.refused != nullptr) return Refuse(*part.refused);
  AppendStage(network, part.stage);
  StandByHand(session_.record);
  lblBandEdge_.visible = txtBandEdge_.visible = lblBandCenter_.visible = txtBandCenter_.visible = true;
  EndEntry();
  Draw();
  SetFocus(picEntry_);
  // A warning alone: three more places can be filled, which the pages that show the network cut.
  if (network.Stages == network.StagesMax) Tell(full, "Entry checker", false);
}

void frmManualEntry::Refuse(const PartRule& rule) {
  Network& network = session_.network;
  Tell(rule.message, partsChecker, true);
  if (rule.box != ValueBox::Reactance && rule.box != ValueBox::ReactanceFrequency) {
    network.stage[network.Stages + 1] = {};
    SetFocus(boxes_.Box(rule.box));
    return;
  }
  // The place of a refused reactance stays in the list, to be deleted or to be filled in later on the Edit page, whose
  // box the focus is meant for: none of this page gets it.
  Stage placeholder;
  placeholder.ElementType = ChosenElement_;
  AppendStage(network, placeholder);
  StandByHand(session_.record);
  Draw();
}

// The boxes of transformers and coupled inductors stay in view with what was entered until another element is chosen:
// such parts come in pairs.
void frmManualEntry::EndEntry() {
  for (const ValueBox box :
       {ValueBox::Inductance, ValueBox::Capacitance, ValueBox::Resistance, ValueBox::LineLength,
        ValueBox::LineFrequency, ValueBox::LineImpedance, ValueBox::Reactance, ValueBox::ReactanceFrequency}) {
    boxes_.Hide(box);
  }
  cmdAccept_.visible = false;
  acceptButton = nullptr;
}

void frmManualEntry::DeleteLast() {
  DropLastStage(session_.network);
  StandByHand(session_.record);
  Draw();
}

// The limits differ tenfold: a source drives the network with a current through its resistance, a load may be nearly a
// short circuit.
void frmManualEntry::Finish() {
  constexpr f32 leastSource = 0.01F;
  constexpr f32 leastLoad = 0.001F;
  DesignRecord& record = session_.record;
  if (record.Rsource[1] < leastSource) {
    Tell("The input termination value entry is too low", partsChecker, true);
    return SetFocus(txtInputTermination_);
  }
  if (record.Rload[1] < leastLoad) {
    Tell("The output termination value entry is too low", partsChecker, true);
    return SetFocus(txtOutputTermination_);
  }
  if (!Trimmed(txtBandEdge_.text).empty()) {
    record.Width = bandEdge_;
  } else if (!Trimmed(txtBandCenter_.text).empty()) {
    record.Fcenter = bandCenter_;
  }
  BeginByHand(record);
  record.Topology = manualTopology;
  GoTo(PageId::Analyze);
}

void frmManualEntry::GoTo(PageId target) {
  session_.pages.ShowPage(target);
  session_.pages.UnloadPage(Id());
}

void frmManualEntry::CloseBox() {
  const Answer answer = session_.platform.MessageBox(
      "Do you really want to exit this program?\r\n"
      "All data will be lost and last-session file will not be written\r\n"
      "(Use menubar item Exit to correctly end the program)",
      Buttons::YesNo, Icon::Question, "");
  if (answer == Answer::Yes) throw ProgramEnd{};
}

void frmManualEntry::Tell(const char* text, const char* heading, bool stops) {
  session_.platform.MessageBox(text, Buttons::Ok, stops ? Icon::Critical : Icon::Exclamation, heading);
}

// Where the strip begins. One that is longer than the sheet shows its end, where parts are added.
f32 frmManualEntry::Origin() const {
  constexpr f32 start = 1380;
  constexpr f32 behind = 300;
  return std::min(start, sheetRight - behind - StripLength(session_.network));
}

void frmManualEntry::Draw() {
  const Network& network = session_.network;
  lblEmptyList_.visible = PaletteOpen_ == 1 && network.Stages == 0;
  cmdDeleteLast_.visible = network.Stages > 0;
  CircuitSheet sheet{.page = PaletteOf::ManualPage, .origin = Origin(), .paletteColor = PaletteColor_};
  if (cmdAccept_.visible) {
    sheet.largePicture = [element = ChosenElement_](Canvas& canvas) { DrawLargePicture(element, canvas); };
  }
  DrawCircuitSheet(network, sheet, picEntry_.picture);
  picEntry_.areas = PaletteAreas(PaletteOf::ManualPage, PaletteOpen_ == 1);
  picEntry_.description = std::to_string(network.Stages) + " stages";
}

Layout frmManualEntry::MakeLayout() {
  std::vector<FormRow> values;
  for (const ValueBox box :
       {ValueBox::Resistance, ValueBox::Inductance, ValueBox::Capacitance, ValueBox::LineLength,
        ValueBox::LineFrequency, ValueBox::LineImpedance, ValueBox::TurnsRatio, ValueBox::PrimaryInductance,
        ValueBox::SecondaryInductance, ValueBox::Coupling, ValueBox::Reactance, ValueBox::ReactanceFrequency}) {
    values.push_back(boxes_.Row(box));
  }
  const Layout side = Column(
      {Group("Terminations", Column({Form({{Put(lblInputTermination_), Put(txtInputTermination_)},
                                           {Put(lblOutputTermination_), Put(txtOutputTermination_)}}),
                                     KeepPlace(Put(lblEnterTerminations_))})),
       Group("Part",
             Column({KeepPlace(Put(lblClickOnAnElement_)), KeepPlace(Put(cmdAccept_)), Form(std::move(values))})),
       Space(),
       Group("Network", Column({KeepPlace(Put(cmdDeleteLast_)),
                                Form({{KeepPlace(Put(lblBandEdge_)), KeepPlace(Put(txtBandEdge_))},
                                      {KeepPlace(Put(lblBandCenter_)), KeepPlace(Put(txtBandCenter_))}})})),
       Grid(1, {Put(cmdExitEntry_), Put(cmdEscape_)})});
  return Column({KeepPlace(Put(lblEmptyList_)), Fill(Row({Fill(Put(picEntry_)), side}))});
}

}  // namespace quilm
