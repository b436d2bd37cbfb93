#include "pages/edit/frmEditCircuit.h"

#include <algorithm>
#include <string>

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "desk/Leaving.h"
#include "desk/modCheckEntries.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "network/DesignStanding.h"
#include "network/NetworkEdits.h"
#include "pages/edit/PartRules.h"
#include "reports/PartsList.h"
#include "schematic/ElementPicture.h"
#include "schematic/StageLabels.h"
#include "schematic/StageStrip.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr BoxCaptions captions = {"L value (H):", "C value (F):",  "R value (ohms):",        "Len. (deg):",
                                  "Freq. (Hz):",  "Imp. (ohms):",  "Turns ratio (pri:sec):", "Pri. L (H):",
                                  "Sec. L (H):",  "Coupling (k):", "Reactance value:",       "Reactance frequency:"};

constexpr f32 shortMove = 200;
constexpr f32 longMove = 2000;
constexpr f32 lastOrigin = 400;      // no mover brings the strip further right
constexpr f32 leastMovable = 10001;  // a strip as long as this does not fit
constexpr f32 movableOrigin = 600;
constexpr f32 leastTermination = 0.01F;

// Of L, C and R the capacitor comes last.
std::vector<ValueBox> EntryOrder(i16 element) {
  std::vector<ValueBox> boxes = BoxesOf(element);
  if (HasSlot(element, SlotCode::Resistance)) {
    std::stable_partition(boxes.begin(), boxes.end(), [](ValueBox box) { return box != ValueBox::Capacitance; });
  }
  return boxes;
}

// An impedance of a line shows as a plain number here.
std::string BoxText(const Slot& slot, f32 value) {
  return slot.code == SlotCode::LineImpedance ? Trimmed(FormatValue(value)) : ValueText(slot, value);
}

// At least `leastTermination`; whether it was lower.
bool Hold(f32& ohms) {
  if (!(ohms < leastTermination)) return false;
  ohms = leastTermination;
  return true;
}

}  // namespace

frmEditCircuit::frmEditCircuit(Session& session)
    : Page(session, PageId::Edit, "Edit"),
      navigation_(*this, session, [this](PageId target) { return MayGoTo(target); }),
      boxes_(*this, captions, [this] { cmdAccept_.enabled = true; }) {
  navigation_.onGet = [&session] { GetDesignFor(session, PageId::Edit, PageId::Schematic); };
  navigation_.onPrint = [&session] { PrintPartsList(session); };
  navigation_.onSave = [&session] { SaveDesign(session, "Save Quilm File"); };
  picEdit_.onMouseDown = [this](f32 x, f32 y, MouseButton) { Press(x, y); };
  picEdit_.onMouseMove = [this](f32 x, f32, MouseButton) { Drag(x); };
  picEdit_.onMouseUp = [this](f32, f32, MouseButton) { grip_.reset(); };
  entries.Bind({.box = txtRetLossRef_, .field = reference_, .format = FormatResistance, .onTaken = [this] {
                  cmdAccept_.enabled = true;
                }});
  for (TextBox* unused : {&txtQcapacitors_, &txtQinductors_}) unused->visible = unused->stepsDigits = false;
  ConnectButtons();
}

void frmEditCircuit::ConnectButtons() {
  // The strip moves right to show what is further left.
  cmdLeft_.onClick = [this] { MoveStrip(shortMove); };
  cmdLeftLeft_.onClick = [this] { MoveStrip(longMove); };
  cmdRight_.onClick = [this] { MoveStrip(-shortMove); };
  cmdRightRight_.onClick = [this] { MoveStrip(-longMove); };
  cmdEditValues_.onClick = [this] { EditValues(); };
  cmdInsertPart_.onClick = [this] { InsertPart(); };
  cmdDeletePart_.onClick = [this] { DeletePart(); };
  cmdChangeTopology_.onClick = [this] { ChangeTopology(); };
  cmdAccept_.onClick = [this] { Accept(); };
  cmdAssistance_.onClick = [this] { session_.pages.ShowModal(PageId::EntryAssistance); };
  cmdAssistance_.role = ButtonRole::Tool;
  acceptButton = &cmdAccept_;
}

void frmEditCircuit::Load() {
  CutTooManyStages();
  Browse();
  SetFocus(picEdit_);
}

// After an undo: browsing again, and the strip where the user looks at it.
void frmEditCircuit::Reload() {
  const bool scrolled = !StageEdge_.empty() && cmdLeft_.enabled;
  const f32 origin = StripOrigin_;
  Browse();
  if (scrolled && cmdLeft_.enabled) {
    StripOrigin_ = std::max(origin, -StripLength_);
    Draw();
  }
  SetFocus(picEdit_);
}

void frmEditCircuit::CloseBox() { LeaveByCloseBox(session_); }

void frmEditCircuit::Browse() {
  change_.reset();
  SelectedStage_ = 0;
  PaletteActive_ = 0;
  PaletteColor_ = paletteOff;
  marked_ = enlarged_ = inserting_ = false;
  grip_.reset();
  navigation_.Lock(false);
  cmdAssistance_.enabled = session_.pages.Has(PageId::EntryAssistance);
  HideEntries();
  ShowReference(EntryText(session_.network.Rstandard, FormatResistance));
  lblSelectStage_.visible = true;
  lblClickOn_.visible = false;
  LockCommands();
  cmdEditValues_.enabled = cmdAccept_.enabled = false;
  PlaceStrip();
  ShowRoom();
  Draw();
}

void frmEditCircuit::PlaceStrip() {
  StripLength_ = StripLength(session_.network);
  const bool movable = StripLength_ >= leastMovable;
  StripOrigin_ = movable ? movableOrigin : sheetMiddle - StripLength_ / 2;
  for (Button* mover : {&cmdLeft_, &cmdLeftLeft_, &cmdRight_, &cmdRightRight_}) mover->enabled = movable;
}

void frmEditCircuit::CutTooManyStages() {
  if (!CutStages(session_.network)) return;
  Tell("Only the first " + std::to_string(session_.network.Stages) + " stages are shown or used.");
}

bool frmEditCircuit::MayGoTo(PageId target) {
  change_.reset();
  if (target == PageId::Design) return true;
  if (!CheckEntries(session_)) return false;
  if (target == PageId::Schematic) CutTooManyStages();
  if (target == PageId::Plotted || target == PageId::Tabulated) ForgetResponses(session_.record);
  return true;
}

bool frmEditCircuit::IsStage(int cell) const { return cell >= 1 && cell <= session_.network.Stages; }

void frmEditCircuit::Press(f32 x, f32 y) {
  if (PaletteActive_ == 1) {
    const i16 element = PaletteElementAt(PaletteOf::EditPage, {x, y});
    if (element != 0) ChooseElement(element);
  }
  if (!(y > stripTop && y < stripBottom)) return;
  if (PaletteActive_ == 0) {
    if (const auto cell = CellAt(StageEdge_, x)) Select(*cell);
  }
  grip_ = x - StripOrigin_;
}

// A strip that the sheet shows whole stays where it is; of another one some part stays in sight.
void frmEditCircuit::Drag(f32 x) {
  constexpr f32 leastShown = 2000;
  const bool whole = StageEdge_.front() >= sheetScale.left && StageEdge_.back() <= sheetRight;
  if (!grip_ || (whole && !cmdLeft_.enabled)) return;
  const f32 right = std::max(lastOrigin, sheetMiddle - StripLength_ / 2);
  const f32 origin = std::clamp(x - *grip_, std::min(leastShown - StripLength_, right), right);
  if (origin == StripOrigin_) return;
  StripOrigin_ = origin;
  Draw();
}

void frmEditCircuit::MoveStrip(f32 distance) {
  const f32 moved = StripOrigin_ + distance;
  StripOrigin_ = distance > 0 ? std::min(moved, lastOrigin) : std::max(moved, -StripLength_);
  Draw();
}

void frmEditCircuit::Select(int cell) {
  inserting_ = false;
  HideEntries();
  cmdAccept_.enabled = false;
  // An entry that the last accept left open for another try is dropped like any other.
  lblClickOn_.visible = false;
  PaletteColor_ = paletteOff;
  SelectedStage_ = static_cast<i16>(cell);
  marked_ = enlarged_ = true;
  const bool stage = IsStage(cell);
  cmdChangeTopology_.enabled = cmdDeletePart_.enabled = stage;
  cmdInsertPart_.enabled = cell > 0;
  cmdEditValues_.enabled = true;
  ShowRoom();
  BringIntoView(cell);
  Draw();
}

// Whoever goes along the strip by keys comes to cells that the sheet does not show.
void frmEditCircuit::BringIntoView(int cell) {
  constexpr f32 margin = 300;
  const f32 left = StageEdge_[static_cast<std::size_t>(cell)];
  const f32 right = StageEdge_[static_cast<std::size_t>(cell) + 1];
  const f32 middle = (left + right) / 2;
  if (middle < sheetScale.left) StripOrigin_ += sheetScale.left + margin - left;
  if (middle > sheetRight) StripOrigin_ += sheetRight - margin - right;
}

void frmEditCircuit::ChooseElement(i16 element) {
  inserting_ = false;
  session_.network.stage[SelectedStage_].ElementType = element;
  const std::vector<ValueBox> boxes = EntryOrder(element);
  boxes_.Show(boxes);
  SetFocus(boxes_.Box(boxes.front()));
  cmdAccept_.enabled = true;
  Draw();
}

void frmEditCircuit::EditValues() {
  HideEntries();
  const Network& network = session_.network;
  if (SelectedStage_ == 0) {
    ShowTermination(network.Rsource[1]);
  } else if (!IsStage(SelectedStage_)) {
    ShowTermination(network.Rload[1]);
  } else {
    const Stage& stage = network.stage[SelectedStage_];
    const std::vector<ValueBox> boxes = EntryOrder(stage.ElementType);
    boxes_.Show(boxes);
    for (const ValueBox box : boxes) {
      if (const Slot* slot = SlotBehind(box)) boxes_.SetText(box, BoxText(*slot, slot->value(stage)));
    }
    if (!boxes.empty()) SetFocus(boxes_.Box(boxes.front()));
  }
  cmdAccept_.enabled = true;
}

void frmEditCircuit::ShowTermination(f32 ohms) {
  boxes_.SetText(ValueBox::Resistance, Trimmed(FormatSignedResistance(ohms)));
  boxes_.Show(std::array{ValueBox::Resistance});
  lblRetLossRef_.visible = txtRetLossRef_.visible = true;
  SetFocus(boxes_.Box(ValueBox::Resistance));
}

void frmEditCircuit::ShowReference(const std::string& text) {
  txtRetLossRef_.text = text;
  reference_ = ParsedText(text);
}

// The pages are locked, so that nothing but an accept, or an undo, ends an insert.
void frmEditCircuit::InsertPart() {
  BeginChoosing("Insert part");
  navigation_.Lock(true);
  InsertStage(session_.network, SelectedStage_);
  StandByHand(session_.record);
  inserting_ = true;
  Draw();
}

void frmEditCircuit::ChangeTopology() {
  BeginChoosing("Change topology");
  ClearValues(session_.network.stage[SelectedStage_]);
  StandByHand(session_.record);
  Draw();
}

void frmEditCircuit::BeginChoosing(const char* what) {
  change_.emplace(session_, what, History::Group::Meanwhile::UndoTakesAllBack);
  lblSelectStage_.visible = false;
  lblClickOn_.visible = true;
  LockCommands();
  cmdEditValues_.enabled = false;
  cmdAccept_.enabled = true;
  HideEntries();
  PaletteActive_ = 1;
  PaletteColor_ = colorBlack;
  grip_.reset();
  SetFocus(picEdit_);
}

// The number of the selected stage now names the one that has moved into its place, with no mark until the next press.
void frmEditCircuit::DeletePart() {
  DeleteStage(session_.network, SelectedStage_);
  StandByHand(session_.record);
  lblSelectStage_.visible = true;
  marked_ = enlarged_ = false;
  LockCommands();
  cmdAccept_.enabled = cmdEditValues_.enabled = false;
  HideEntries();
  ShowRoom();
  Draw();
  SetFocus(picEdit_);
}

void frmEditCircuit::Accept() {
  // What cannot be computed leaves the network as it is.
  Stage stage = session_.network.stage[SelectedStage_];
  std::vector<const PartRule*> corrected;
  if (IsStage(SelectedStage_)) {
    corrected = TakeEditedPart(stage, [this](ValueBox box) { return boxes_.Value(box); });
  }
  inserting_ = false;
  StandByHand(session_.record);
  lblSelectStage_.visible = true;
  cmdEditValues_.enabled = false;
  PaletteActive_ = 0;
  navigation_.Lock(false);
  TakeTerminations();
  if (IsStage(SelectedStage_)) session_.network.stage[SelectedStage_] = stage;
  for (const PartRule* rule : corrected) {
    Tell(rule->message);
    if (rule->boxText != nullptr) boxes_.SetText(rule->box, rule->boxText);
  }
  EndAccept(!corrected.empty() && corrected.front()->box == ValueBox::TurnsRatio);
}

// The reference is read at each accept, whatever is selected.
void frmEditCircuit::TakeTerminations() {
  Network& network = session_.network;
  const f32 entered = boxes_.Value(ValueBox::Resistance);
  if (SelectedStage_ == 0) {
    network.Rsource[1] = entered;
    if (Hold(network.Rsource[1])) {
      Tell("Input termination less than .01 is disallowed\r\nand so has been reset to .01 ohms");
    }
  }
  if (SelectedStage_ > network.Stages) {
    network.Rload[1] = entered;
    if (Hold(network.Rload[1])) {
      Tell("Output termination less than .01 is disallowed\r\nand so has been reset to .01 ohms");
    }
  }
  network.Rstandard = reference_;
  if (!Hold(network.Rstandard)) return;
  Tell("Return loss reference less than .01 is disallowed.\r\nIt has been reset to .01 ohms");
  ShowReference(".01");
}

// A turns ratio out of its limits stays in its box to be entered anew: another accept checks it again.
void frmEditCircuit::EndAccept(bool keepsEntry) {
  if (!keepsEntry) {
    boxes_.Hide();
    lblClickOn_.visible = false;
    enlarged_ = false;
    PaletteColor_ = paletteOff;
    cmdAccept_.enabled = false;
    SetFocus(picEdit_);
  }
  LockCommands();
  lblRetLossRef_.visible = txtRetLossRef_.visible = false;
  Draw();
  change_.reset();
}

void frmEditCircuit::HideEntries() {
  boxes_.Hide();
  lblRetLossRef_.visible = txtRetLossRef_.visible = false;
}

void frmEditCircuit::LockCommands() {
  cmdChangeTopology_.enabled = cmdDeletePart_.enabled = cmdInsertPart_.enabled = false;
}

void frmEditCircuit::ShowRoom() {
  const bool full = session_.network.Stages >= session_.network.StagesMax;
  lblCantInsert_.visible = full;
  if (full) cmdInsertPart_.enabled = false;
  lblEmptyList_.visible = session_.network.Stages == 0;
}

void frmEditCircuit::Tell(const std::string& text) {
  session_.platform.MessageBox(text, Buttons::Ok, Icon::Exclamation, "Parts checker");
}

void frmEditCircuit::Draw() {
  const Network& network = session_.network;
  StripLength_ = StripLength(network);
  if (StripLength_ >= leastMovable) {
    for (Button* mover : {&cmdLeft_, &cmdLeftLeft_, &cmdRight_, &cmdRightRight_}) mover->enabled = true;
  }
  StageEdge_ = StageEdges(network, StripOrigin_);
  lblEmptyList_.visible = network.Stages == 0;
  CircuitSheet sheet{.page = PaletteOf::EditPage, .origin = StripOrigin_, .paletteColor = PaletteColor_};
  if (marked_) sheet.marked = SelectedStage_;
  if (inserting_) sheet.notice = "Insert: stage " + std::to_string(SelectedStage_);
  if (enlarged_) sheet.largePicture = [&](Canvas& canvas) { DrawLargePicture(network, SelectedStage_, canvas); };
  DrawCircuitSheet(network, sheet, picEdit_.picture);
  picEdit_.areas = StripAreas(network, StripOrigin_, sheet.marked, PaletteActive_ == 0);
  const HitAreas palette = PaletteAreas(PaletteOf::EditPage, PaletteActive_ == 1);
  picEdit_.areas.insert(picEdit_.areas.end(), palette.begin(), palette.end());
  picEdit_.description = std::to_string(network.Stages) + " stages";
  if (marked_)
    picEdit_.description += ", selected: " + picEdit_.areas[static_cast<std::size_t>(SelectedStage_)].toolTip;
}

Layout frmEditCircuit::MakeLayout() {
  std::vector<FormRow> values;
  for (const ValueBox box :
       {ValueBox::Inductance, ValueBox::Resistance, ValueBox::Capacitance, ValueBox::LineLength,
        ValueBox::LineFrequency, ValueBox::LineImpedance, ValueBox::TurnsRatio, ValueBox::PrimaryInductance,
        ValueBox::SecondaryInductance, ValueBox::Coupling, ValueBox::Reactance, ValueBox::ReactanceFrequency}) {
    values.push_back(boxes_.Row(box));
  }
  values.push_back({Put(lblRetLossRef_), Put(txtRetLossRef_)});
  const Layout side = Column(
      {Grid(4, {Put(cmdLeftLeft_), Put(cmdLeft_), Put(cmdRight_), Put(cmdRightRight_)}),
       Group("Stage",
             Column({KeepPlace(Put(lblSelectStage_)),
                     Grid(1, {Put(cmdEditValues_), Put(cmdInsertPart_), Put(cmdDeletePart_), Put(cmdChangeTopology_)}),
                     KeepPlace(Put(lblCantInsert_)), KeepPlace(Put(lblEmptyList_))})),
       Group("Values", Column({KeepPlace(Put(lblClickOn_)), Put(cmdAccept_), Form(std::move(values)),
                               Put(txtQcapacitors_), Put(txtQinductors_)})),
       Space(), Put(cmdAssistance_)});
  return Column({navigation_.MakeLayout(), Fill(Row({Fill(Put(picEdit_)), side}))});
}

}  // namespace quilm
