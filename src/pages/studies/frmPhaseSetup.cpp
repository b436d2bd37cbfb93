#include "pages/studies/frmPhaseSetup.h"

#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/modGeneral.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"
#include "timedomain/PhaseLinearity.h"

namespace quilm {

frmPhaseSetup::frmPhaseSetup(Session& session) : StudyPage(session, PageId::PhaseSetup, "Phase Linearity") {
  lblHeading_.emphasised = true;
  entries.Bind({.box = txtPhaseFstart_, .field = PhaseFstart_, .format = FormatFrequency});
  entries.Bind({.box = txtPhaseFstop_, .field = PhaseFstop_, .format = FormatFrequency});
  entries.Bind({.box = txtPhaseNrInts_, .field = PhaseNrInts_, .format = PlainText});
  cmdLinearity_.onClick = [this] { Show(phaseAndLine); };
  cmdDeviation_.onClick = [this] { Show(phaseDeviation); };
  cmdExit_.onClick = [this] { Return(); };
  acceptButton = &cmdLinearity_;
  cancelButton = &cmdExit_;
}

void frmPhaseSetup::Load() {
  const SweepSettings& sweep = session_.sweep;
  PhaseFstart_ = sweep.Fstart;
  PhaseFstop_ = sweep.Fstop;
  PhaseNrInts_ = sweep.NrIntervals;
  entries.Fill();
  SetFocus(txtPhaseFstart_);
}

// The sweep becomes that of the design: linear, and with as many steps, so that the next plot has the same.
void frmPhaseSetup::Show(i16 PhasePlotType) {
  PhaseFstart_ = limitsOf::Fstart.Held(PhaseFstart_);
  PhaseFstop_ = limitsOf::Fstop.Held(PhaseFstop_);
  PhaseNrInts_ = std::floor(limitsOf::PhaseNrInts.Held(PhaseNrInts_));
  entries.Repair();
  if (PhaseFstop_ <= PhaseFstart_) {
    session_.platform.MessageBox("The stopping frequency entry is less than the starting frequency", Buttons::Ok,
                                 Icon::Exclamation, "Entry examination");
    SetFocus(txtPhaseFstop_);
    return;
  }
  session_.sweep = {1, PhaseFstart_, PhaseFstop_, PhaseNrInts_};
  ForgetResponses(session_.record);
  session_.studies.PhasePlotType = PhasePlotType;
  session_.pages.ShowPage(PageId::PhasePlot);
  session_.pages.UnloadPage(Id());
}

Layout frmPhaseSetup::MakeLayout() {
  const Layout sweep = Group("Sweep", Form({{Put(lblPhaseFstart_), Put(txtPhaseFstart_)},
                                            {Put(lblPhaseFstop_), Put(txtPhaseFstop_)},
                                            {Put(lblPhaseNrInts_), Put(txtPhaseNrInts_)}}));
  return Row(
      {Column({Put(lblHeading_), sweep, Grid(1, {Put(cmdLinearity_), Put(cmdDeviation_), Put(cmdExit_)}), Space()}),
       Space()});
}

}  // namespace quilm
