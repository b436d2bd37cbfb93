#include "pages/transforms/frmSpecifyInductor.h"

#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "core/modGeneral.h"
#include "network/DesignStanding.h"
#include "network/NetworkEdits.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr i32 rowsWithoutScrolling = 12;

// A line a stage; a negative inductance is none.
std::vector<std::string> InductorLines(const Network& network) {
  constexpr std::size_t numberWidth = 3;
  std::vector<std::string> lines;
  for (int s = 1; s <= network.Stages; ++s) {
    const f32 L = network.stage[s].Lval.value;
    const std::string number = std::to_string(s);
    lines.push_back(std::string(numberWidth - number.size(), ' ') + number + "   " +
                    (L > 0 ? EntryText(L, FormatInductance) : "-----"));
  }
  return lines;
}

}  // namespace

frmSpecifyInductor::frmSpecifyInductor(Session& session)
    : TransformPage(session, PageId::SpecifyInductor, "Inductor-specification", Proposes::OnPress) {
  entries.Bind({.box = txtEnterNewValue_,
                .field = newValue_,
                .format = FormatInductance,
                .ofZero = OfZero::Blank,
                .onTaken = [this] { cmdRescale_.enabled = newValue_ > 0; }});
  for (ListBox* list : {&lstOriginalInductors_, &lstNewInductors_}) {
    list->fixedPitch = true;
    list->mostRows = rowsWithoutScrolling;
  }
  lstNewInductors_.onClick = [this] { ChooseInductor(); };
  cmdRescale_.onClick = [this] { Rescale(); };
  cmdAcceptNew_.onClick = [this] { Accept(); };
  cmdIgnoreAndExit_.onClick = [this] { Ignore(); };
  acceptButton = &cmdRescale_;
  cancelButton = &cmdIgnoreAndExit_;
}

void frmSpecifyInductor::Begin() {
  lblOriginalTermination_.caption =
      "Original input termination: " + EntryText(session_.network.Rsource[1], FormatValue);
  lstOriginalInductors_.items = lstNewInductors_.items = InductorLines(session_.network);
  lstOriginalInductors_.selected = lstNewInductors_.selected = 0;
  lblNewTermination_.caption.clear();
  SpecifiedStage_ = 0;
  newValue_ = 0;
  entries.Fill();
  ShowInductor();
  SetFocus(lstNewInductors_);
}

void frmSpecifyInductor::ChooseInductor() {
  const auto stage = static_cast<i16>(lstNewInductors_.selected);
  // The value that was typed was meant for another inductor.
  if (stage != SpecifiedStage_) newValue_ = 0;
  SpecifiedStage_ = stage;
  entries.Fill();
  ShowInductor();
  if (txtEnterNewValue_.visible) SetFocus(txtEnterNewValue_);
}

void frmSpecifyInductor::ShowInductor() {
  const f32 L = SpecifiedStage_ == 0 ? 0 : session_.network.stage[SpecifiedStage_].Lval.value;
  const std::string stage = std::to_string(SpecifiedStage_);
  lblInductor_.caption = L > 0 ? "Inductor value at stage " + stage + " is " + EntryText(L, FormatInductance)
                               : "There is no inductor at stage " + stage;
  if (SpecifiedStage_ == 0) lblInductor_.caption.clear();
  lblEnterNewValue_.visible = txtEnterNewValue_.visible = lblEnterNewValueNote_.visible = L > 0;
  cmdRescale_.enabled = L > 0 && newValue_ > 0;
}

void frmSpecifyInductor::Rescale() {
  Network scaled = session_.network;
  const bool done = Computes([&] {
    NumericFaultScope scope;
    ScaleImpedance(scaled, scope.Store(f64{newValue_} / f64{scaled.stage[SpecifiedStage_].Lval.value}));
  });
  SetFocus(txtEnterNewValue_);
  if (!done) return;
  Propose(scaled);
  StandByHand(session_.identity);
  lstNewInductors_.items = InductorLines(scaled);
  lblNewTermination_.caption = "New input termination will be " + EntryText(scaled.Rsource[1], FormatValue);
  ShowInductor();
}

// The network alone: that it stands by hand stays, as users of the button are used to.
void frmSpecifyInductor::TakeBack() { session_.network = Found(); }

Layout frmSpecifyInductor::MakeLayout() {
  const Layout lists =
      Grid(2, {Put(lblOriginalInductors_), Put(lblNewInductors_), Put(lstOriginalInductors_), Put(lstNewInductors_)});
  const Layout entry = Column({KeepPlace(Put(lblInductor_)), KeepPlace(Put(lblEnterNewValue_)),
                               Row({KeepPlace(Put(txtEnterNewValue_)), Put(cmdRescale_), Space()}),
                               KeepPlace(Put(lblEnterNewValueNote_)), KeepPlace(Put(lblNewTermination_))});
  return Row({Space(),
              Column({Space(),
                      Group("Inductor-specification",
                            Column({Put(lblOriginalTermination_), Put(lblInstruction_), lists, entry})),
                      Row({Space(), Put(cmdAcceptNew_), Put(cmdIgnoreAndExit_)}), Space()}),
              Space()});
}

}  // namespace quilm
