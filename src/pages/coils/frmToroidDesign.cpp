#include "pages/coils/frmToroidDesign.h"

#include "coils/Toroid.h"
#include "coils/WindingDrawing.h"
#include "core/Fault.h"
#include "core/Network.h"
#include "core/modGeneral.h"
#include "desk/ReturnToDesign.h"
#include "pages/coils/CoilControls.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr Color lackingColor = 0xEEEEFF;
constexpr i32 rowsWithoutScrolling = 9;

}  // namespace

frmToroidDesign::frmToroidDesign(Session& session) : Page(session, PageId::ToroidDesign, "Toroid") {
  lblHeading_.emphasised = true;
  lblTurns2_.emphasised = true;
  lstInductors_.fixedPitch = true;
  lstInductors_.mostRows = rowsWithoutScrolling;
  lstInductors_.onClick = [this] { TakeFromList(); };
  entries.Bind({.box = txtToroidAL_, .field = ToroidAL_, .format = FormatValue, .ofZero = OfZero::Blank});
  entries.Bind({.box = txtInductance_, .field = ToroidL_, .format = FormatInductance, .ofZero = OfZero::Blank});
  cmdCalculate_.onClick = [this] { Calculate(); };
  cmdExit_.onClick = [this] { Return(); };
  acceptButton = &cmdCalculate_;
  cancelButton = &cmdExit_;
}

void frmToroidDesign::Load() {
  ToroidAL_ = ToroidL_ = 0;
  ToroidStage_ = 0;
  entries.Fill();
  txtToroidAL_.backColor = txtInductance_.backColor = colorWhite;
  lstInductors_.items.clear();
  lstInductors_.selected = 0;
  for (int s = 1; s <= session_.network.Stages; ++s) {
    lstInductors_.items.push_back(InductorLine(s, session_.network.stage[s].Lval.value, "(no inductor)"));
  }
  ClearTurns();
  SetFocus(txtToroidAL_);
}

bool frmToroidDesign::Lacks(TextBox& box, f32 value) {
  const bool lacks = !(value > 0);
  box.backColor = lacks ? lackingColor : colorWhite;
  if (lacks) SetFocus(box);
  return lacks;
}

void frmToroidDesign::TakeFromList() {
  ToroidStage_ = static_cast<i16>(lstInductors_.selected);
  const f32 inductance = session_.network.stage[ToroidStage_].Lval.value;
  ToroidL_ = inductance > 0 ? inductance : 0;
  entries.Refresh();
  ClearTurns();
  txtInductance_.backColor = inductance > 0 ? colorWhite : lackingColor;
  if (inductance > 0 && !Lacks(txtToroidAL_, ToroidAL_)) ComputeTurns();
}

void frmToroidDesign::Calculate() {
  if (Lacks(txtToroidAL_, ToroidAL_) || Lacks(txtInductance_, ToroidL_)) return;
  ComputeTurns();
}

void frmToroidDesign::ComputeTurns() {
  try {
    const f32 turns = ToroidTurns(ToroidL_, ToroidAL_);
    lblTurns_.visible = true;
    lblTurns2_.caption = turns > 0 ? EntryText(turns, FormatValue) : "0";
    DrawToroid(turns, picToroid_.picture);
    picToroid_.description = lblTurns2_.caption + " turns";
  } catch (const NumericFault&) {
    ClearTurns();
    session_.platform.MessageBox("We could not calculate the parts values.", Buttons::Ok, Icon::Exclamation, "");
  }
}

void frmToroidDesign::ClearTurns() {
  lblTurns_.visible = false;
  lblTurns2_.caption.clear();
  picToroid_.picture.Clear();
  picToroid_.description.clear();
}

void frmToroidDesign::Return() {
  ReturnToDesign(session_);
  session_.pages.UnloadPage(Id());
}

Layout frmToroidDesign::MakeLayout() {
  const Layout core = Group("Core", Form({{Put(lblToroidAL_), Put(txtToroidAL_), Word("uH / 100T   ", txtToroidAL_)},
                                          {Put(lblInductance_), Put(txtInductance_)},
                                          {Space(), Put(cmdCalculate_)},
                                          {KeepPlace(Put(lblTurns_)), KeepPlace(Put(lblTurns2_))}}));
  return Column({Put(lblHeading_),
                 Row({Group("Inductors of the design", Column({Put(lblList_), Put(lstInductors_)})),
                      Column({core, Space()}), Group("Wound core", Fill(Put(picToroid_)))}),
                 Row({Space(), Put(cmdExit_)})});
}

}  // namespace quilm
