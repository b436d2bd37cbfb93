#include "pages/coils/frmFindInductance.h"

#include "core/Fault.h"
#include "core/modGeneral.h"
#include "desk/ReturnToDesign.h"
#include "shell/Session.h"

namespace quilm {

frmFindInductance::frmFindInductance(Session& session)
    : Page(session, PageId::FindInductance, "Find L"),
      coil_(*this, session,
            {.diameter = "Coil median diameter",
             .length = "Coil length",
             .afterUnit = ": ",
             .toldInWords = true,
             .hint = "Enter all three of these\r\nto compute inductance"}) {
  lblHeading_.emphasised = true;
  cmdComputeInductance_.onClick = [this] { Compute(); };
  cmdExit_.onClick = [this] { Return(); };
  acceptButton = &cmdComputeInductance_;
  cancelButton = &cmdExit_;
}

void frmFindInductance::Load() {
  coil_.Load();
  lblInductance_.visible = false;
  lblInductance2_.caption.clear();
  SetFocus(coil_.txtFormDiameter);
}

void frmFindInductance::Compute() {
  coil_.ClearWire();
  Coil coil = coil_.entered;
  if (!(coil.diameter > 0 && coil.length > 0 && coil.turns > 0)) {
    session_.platform.MessageBox(
        "We need three entries:\r\n   Coil diameter,\r\n   Coil length,\r\n   and number of turns;\r\n"
        "Inductance will then be computed.",
        Buttons::Ok, Icon::Exclamation, "");
    return;
  }
  try {
    coil.inductance = CoilInductance(coil);
    coil_.Show(Wind(coil));
  } catch (const NumericFault&) {
    session_.platform.MessageBox("We could not calculate the parts values.", Buttons::Ok, Icon::Exclamation, "");
    return;
  }
  lblInductance_.visible = true;
  lblInductance2_.caption = FormatInductance(coil.inductance);
}

void frmFindInductance::Return() {
  ReturnToDesign(session_);
  session_.pages.UnloadPage(Id());
}

Layout frmFindInductance::MakeLayout() {
  const Layout results =
      Group("Coil", Column({Form({{KeepPlace(Put(lblInductance_)), KeepPlace(Put(lblInductance2_))}}), coil_.Results(),
                            Fill(Put(coil_.picCoil))}));
  return Column({Put(lblHeading_),
                 Row({Column({coil_.Dimensions(cmdComputeInductance_), coil_.Wire(), Space()}), results}),
                 Row({Space(), Put(cmdExit_)})});
}

}  // namespace quilm
