#include "pages/design/frmEndSections.h"

#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "core/modGeneral.h"
#include "desk/ReturnToDesign.h"
#include "shell/Session.h"
#include "synthesis/EndSections.h"

namespace quilm {

frmEndSections::frmEndSections(Session& session) : Page(session, PageId::EndSections, "End sections") {
  entries.Bind(
      {.box = txtM_, .field = m_, .format = FormatValue, .ofZero = OfZero::Blank, .onTaken = [this] { ShowZero(); }});
  cmdOk_.onClick = [this] { Accept(); };
  cmdIgnore_.onClick = [this] { Return(); };
  acceptButton = &cmdOk_;
  cancelButton = &cmdIgnore_;
}

void frmEndSections::Load() {
  constexpr f32 bestMatch = 0.6F;
  m_ = bestMatch;
  entries.Fill();
  lblBandwidthValue_.caption = EntryText(session_.record.Width, FormatFrequency);
  ShowZero();
  SetFocus(txtM_);
}

bool frmEndSections::HasSection() const { return m_ > 0 && m_ < 1 && EndSectionObstacle(session_.record).empty(); }

void frmEndSections::ShowZero() {
  lblZeroValue_.caption.clear();
  if (!HasSection()) return;
  try {
    lblZeroValue_.caption = EntryText(EndSectionZero(session_.record, m_), FormatFrequency);
  } catch (const Fault&) {
    // An m so near to 0 or 1 that its parts leave the range of numbers has no zero to show.
  }
}

void frmEndSections::Accept() {
  try {
    AddEndSections(session_.record, m_);
  } catch (const Fault&) {
    session_.platform.MessageBox("Please enter an m above 0 and below 1", Buttons::Ok, Icon::Exclamation,
                                 "Error checker");
    SetFocus(txtM_);
    return;
  }
  session_.familyOption = familyManual;
  Return();
}

void frmEndSections::Return() {
  ReturnToDesign(session_);
  session_.pages.UnloadPage(Id());
}

Layout frmEndSections::MakeLayout() {
  const Layout form = Form(
      {{Put(lblBandwidth_), Put(lblBandwidthValue_)}, {Put(lblM_), Put(txtM_)}, {Put(lblZero_), Put(lblZeroValue_)}});
  return Row({Space(),
              Column({Space(), Group("End sections", form), Row({Space(), Put(cmdOk_), Put(cmdIgnore_)}), Space()}),
              Space()});
}

}  // namespace quilm
