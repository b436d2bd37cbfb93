#include "pages/transforms/frmDrawLines.h"

#include "core/Network.h"
#include "network/TubularLines.h"
#include "pages/transforms/TubularDrawing.h"
#include "shell/Session.h"

namespace quilm {

frmDrawLines::frmDrawLines(Session& session) : Page(session, PageId::DrawLines, "Mechanical drawing") {
  cmdExit_.onClick = [this] { session_.pages.UnloadPage(Id()); };
  acceptButton = cancelButton = &cmdExit_;
}

void frmDrawLines::Load() {
  SetFocus(cmdExit_);
  picLines_.picture.Clear();
  if (FindTubeFault(session_.tube)) return;
  const TubularLines lines = ComputeTubularLines(session_.network, session_.tube);
  DrawTubular(session_.network, lines, session_.tube, picLines_.picture);
  picLines_.description = "Total length " + MetricLength(lines.TotalMm);
}

Layout frmDrawLines::MakeLayout() { return Column({Fill(Put(picLines_)), Row({Space(), Put(cmdExit_)})}); }

}  // namespace quilm
