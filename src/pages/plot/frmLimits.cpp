#include "pages/plot/frmLimits.h"

#include "core/DesignRecord.h"
#include "core/LimitArea.h"
#include "display/LimitDrawing.h"
#include "display/LimitEntry.h"
#include "display/SheetDrawing.h"
#include "shell/History.h"
#include "shell/Session.h"

namespace quilm {

frmLimits::frmLimits(Session& session) : Page(session, PageId::Limits, "Limits") {
  cmdLimitsOn.onClick = [this] { Leave(1); };
  cmdLimitsHide.onClick = [this] { Leave(0); };
  cmdEnter.onClick = [this] { Enter(); };
  cmdLimitsEdit.onClick = [this] { Edit(); };
  cmdLimitsEraseAll.onClick = [this] {
    EraseAllAreas(session_.record);
    Leave(0);
  };
  // The limits of the other plots stay, but hidden like the erased ones, until they are shown again.
  cmdLimitsEraseLocal.onClick = [this] {
    if (const int type = LimitTypeOf(session_.record.PlotCode); type != 0) EraseAreas(session_.record, type);
    Leave(0);
  };
}

void frmLimits::Load() { SetFocus(cmdEnter); }

// Back to the plot, drawn anew.
void frmLimits::Leave(i16 shown) {
  session_.record.LimitsShown = shown;
  session_.pages.UnloadPage(Id());
  ChoosePlot(session_, session_.record.PlotCode);
}

void frmLimits::Enter() {
  session_.pages.UnloadPage(Id());
  BeginLimitEntry(session_, LimitsWantedBy::LimitsPage);
  session_.note = "Choose the shape of the limit, then click on the plot";
}

void frmLimits::Edit() {
  if (!HasAreas(session_.record)) {
    session_.platform.MessageBox("No limits areas have been entered for this network", Buttons::Ok, Icon::Information,
                                 "");
    return;
  }
  session_.pages.UnloadPage(Id());
  const History::Tool tool(session_);  // each change can be taken back while the page is open
  session_.pages.ShowModal(PageId::EditLimits);
}

Layout frmLimits::MakeLayout() {
  return Column({Grid(1, {Put(cmdEnter), Put(cmdLimitsEdit), Put(cmdLimitsOn), Put(cmdLimitsHide),
                          Put(cmdLimitsEraseLocal), Put(cmdLimitsEraseAll)}),
                 Space()});
}

}  // namespace quilm
