#include "pages/coils/frmWindInductor.h"

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "desk/ReturnToDesign.h"
#include "reports/modPrintWinding.h"
#include "shell/Session.h"

namespace quilm {

frmWindInductor::frmWindInductor(Session& session)
    : Page(session, PageId::WindInductor, "Wind L"),
      coil_(*this, session,
            {.diameter = "Median diameter",
             .length = "Length",
             .afterUnit = ":",
             .hint = "Enter any two of these;\r\nthird will be computed"}) {
  fraSource_.Hold({&lblList_, &lstInductors_, &Option1_, &Option2_, &txtArbitraryInductance_});
  lblHeading_.emphasised = true;
  lstInductors_.fixedPitch = true;
  Option1_.onClick = [this] { TakeFromList(); };
  Option2_.onClick = [this] { TakeEntered(); };
  lstInductors_.onClick = [this] {
    Option1_.Set();
    TakeFromList();
  };
  // Whoever types an inductance means that one.
  entries.Bind({.box = txtArbitraryInductance_,
                .field = arbitrary_,
                .format = FormatInductance,
                .ofZero = OfZero::Blank,
                .onTaken = [this] {
                  if (!Option2_.Value()) {
                    Option2_.Set();
                    TakeEntered();
                  }
                }});
  cmdCompute0_.onClick = [this] { Compute(); };
  cmdPrint_.onClick = [this] { PrintCoil(session_, *coil_.Shown(), woundStage_); };
  cmdExit_.onClick = [this] { Return(); };
  acceptButton = &cmdCompute0_;
  cancelButton = &cmdExit_;
}

void frmWindInductor::Load() {
  source_.Clear();
  arbitrary_ = 0;
  entries.Fill();
  coil_.Load();
  lstInductors_.items.clear();
  lstInductors_.selected = 0;
  for (int s = 1; s <= session_.network.Stages; ++s) {
    lstInductors_.items.push_back(InductorLine(s, session_.network.stage[s].Lval.value, "-----"));
  }
  TakeInductance(0, 0);
  cmdCompute0_.enabled = true;
  if (lstInductors_.items.empty()) {
    SetFocus(txtArbitraryInductance_);
  } else {
    SetFocus(lstInductors_);
  }
}

// Another inductance: what was computed for the last one goes.
void frmWindInductor::TakeInductance(f32 inductance, int stage) {
  CoilInductance_ = inductance;
  QuotedStage_ = static_cast<i16>(stage);
  lblInductance_.visible = lblInductance2_.visible = inductance > 0;
  lblInductance2_.caption = FormatInductance(inductance);
  coil_.Clear();
  ShowQ();
  cmdPrint_.enabled = false;
}

void frmWindInductor::TakeFromList() {
  const int stage = lstInductors_.selected;
  const f32 inductance = stage > 0 ? session_.network.stage[stage].Lval.value : 0;
  if (stage > 0 && !(inductance > 0)) {
    cmdCompute0_.enabled = cmdPrint_.enabled = false;
    session_.platform.MessageBox("Stage " + std::to_string(stage) + " has no inductor", Buttons::Ok, Icon::Exclamation,
                                 "");
    return;
  }
  TakeInductance(inductance, stage);
  cmdCompute0_.enabled = true;
}

void frmWindInductor::TakeEntered() {
  TakeInductance(0, 0);
  cmdCompute0_.enabled = true;
  if (!Trimmed(txtArbitraryInductance_.text).empty()) return;
  SetFocus(txtArbitraryInductance_);
}

void frmWindInductor::Compute() {
  if (Option2_.Value()) {
    QuotedStage_ = 0;
    CoilInductance_ = arbitrary_;
  }
  Coil asked = coil_.entered;
  asked.inductance = CoilInductance_;
  try {
    const Winding winding = Wind(CompleteCoil(asked));
    coil_.entered = winding.coil;
    coil_.FillDimensions();
    coil_.Show(winding);
  } catch (const CoilRefused& refused) {
    session_.platform.MessageBox(refused.what(), Buttons::Ok, Icon::Exclamation, "");
    return;
  } catch (const NumericFault&) {
    session_.platform.MessageBox("We could not calculate the parts values.", Buttons::Ok, Icon::Exclamation, "");
    return;
  }
  woundStage_ = QuotedStage_;
  lblInductance_.visible = lblInductance2_.visible = true;
  lblInductance2_.caption = FormatInductance(CoilInductance_);
  cmdPrint_.enabled = true;
  ShowQ();
}

void frmWindInductor::ShowQ() {
  lblQ_.caption.clear();
  const std::optional<Winding>& shown = coil_.Shown();
  if (!shown) return;
  const DesignRecord& record = session_.record;
  const std::optional<f32> Q = ApproximateQ(shown->coil, record.Fcenter > 0 ? record.Fcenter : record.Width);
  if (Q) lblQ_.caption = "Approximate Q: " + PlainText(*Q);
}

void frmWindInductor::Return() {
  ReturnToDesign(session_);
  session_.pages.UnloadPage(Id());
}

Layout frmWindInductor::MakeLayout() {
  const Layout source =
      Group(fraSource_, Row({Column({Put(lblList_), Put(lstInductors_)}),
                             Column({Put(Option1_), Put(Option2_), Put(txtArbitraryInductance_), Space()})}));
  const Layout results = Group(
      "Coil",
      Column({Row({Form({{Put(lblInductance_), KeepPlace(Put(lblInductance2_))}}), KeepPlace(Put(lblQ_)), Space()}),
              coil_.Results(), Fill(Put(coil_.picCoil))}));
  return Column({Put(lblHeading_),
                 Row({Column({source, coil_.Dimensions(cmdCompute0_), coil_.Wire(), Space()}), results}),
                 Row({Space(), Put(cmdPrint_), Put(cmdExit_)})});
}

}  // namespace quilm
