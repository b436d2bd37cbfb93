#include "pages/frmOpening.h"

#include <filesystem>

#include "schematic/LadderPicture.h"
#include "shell/Session.h"
#include "shell/Version.h"
#include "shell/modWriteConfig.h"

namespace quilm {

frmOpening::frmOpening(Session& session) : Page(session, PageId::Opening, "Quilm") {
  lblTitle.emphasised = true;
  cmdDesignNew.onClick = [this] { GoTo(PageId::Design); };
  cmdManualEntry.onClick = [this] { GoTo(PageId::ManualEntry); };
  cmdGoTo.onClick = [this] { session_.platform.ShellOpen(session_.platform.HelpFolder() + "/updates.htm"); };
  cmdExitOpening.onClick = [] { throw ProgramEnd{}; };
  // Design files cannot be read yet: both buttons wait for their reader.
  cmdLastSession.enabled = false;
  cmdRetrieveOld.enabled = false;
  acceptButton = &cmdDesignNew;
}

void frmOpening::Load() {
  cmdLastSession.visible = std::filesystem::exists(InProgramFolder(session_, lastSessionFile));
  cmdManualEntry.enabled = session_.pages.Has(PageId::ManualEntry);
  lblVersion.caption = ProgramVersion();
  imgOpening.picture = TopologyPicture("A");
  SetFocus(cmdDesignNew);
}

// Leaving from the opening page changes nothing: no design was begun.
void frmOpening::CloseBox() { throw ProgramEnd{}; }

void frmOpening::GoTo(PageId target) {
  session_.pages.ShowPage(target);
  session_.pages.UnloadPage(Id());
}

Layout frmOpening::MakeLayout() {
  return Row({Space(),
              Column({Space(), Put(lblTitle), Put(lblPurpose), Put(imgOpening),
                      Grid(1, {Put(cmdDesignNew), Put(cmdLastSession), Put(cmdRetrieveOld), Put(cmdManualEntry),
                               Put(cmdGoTo), Put(cmdExitOpening)}),
                      Put(lblVersion), Space()}),
              Space()});
}

}  // namespace quilm
