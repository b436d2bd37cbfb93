#include "pages/design/frmSeeNormalized.h"

#include "core/NumberText.h"
#include "reports/Report.h"
#include "reports/modPrintNorms.h"
#include "shell/Session.h"
#include "synthesis/NormalizedText.h"

namespace quilm {

frmSeeNormalized::frmSeeNormalized(Session& session) : Page(session, PageId::SeeNormalized, "Normalized values") {
  lblFamily_.emphasised = true;
  lstValues_.table = true;
  cmdPrint_.onClick = [this] { Print(); };
  cmdExit_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = cancelButton = &cmdExit_;
}

void frmSeeNormalized::Load() {
  const DesignRecord& record = session_.record;
  lblFamily_.caption = FamilyHeading(record);
  lblEntries_.caption.clear();
  for (const std::string& line : NormalizedEntries(record)) {
    lblEntries_.caption += (lblEntries_.caption.empty() ? "" : "\r\n") + line;
  }
  lblEntries_.visible = !lblEntries_.caption.empty();
  lblCaption_.caption = NormalizedCaption(record);
  lstValues_.items = NormalizedRows(record);
  lblOutputTermination_.caption = "Output termination: " + ShortText(record.Rratio, LeadingZero::Keep);
  SetFocus(lstValues_);
}

void frmSeeNormalized::Print() {
  PrintReport(session_.platform, "We had a printer problem",
              [this](Canvas& printer) { PrintNorms(session_.record, printer); });
}

Layout frmSeeNormalized::MakeLayout() {
  return Column({Put(lblFamily_), Put(lblEntries_), Put(lblCaption_), Put(lblInputTermination_), Fill(Put(lstValues_)),
                 Put(lblOutputTermination_), Row({Space(), Put(cmdPrint_), Put(cmdExit_)})});
}

}  // namespace quilm
