#include "pages/start/frmOpening.h"

#include <filesystem>

#include "core/Identity.h"
#include "files/modReadQuilmFiles.h"
#include "files/modWriteQuilmFile.h"
#include "schematic/LadderPicture.h"
#include "shell/HelpPages.h"
#include "shell/Session.h"
#include "shell/Version.h"
#include "shell/modWriteConfig.h"

namespace quilm {

frmOpening::frmOpening(Session& session) : Page(session, PageId::Opening, "Quilm") {
  lblTitle.emphasised = true;
  cmdDesignNew.onClick = [this] { GoTo(PageId::Design); };
  cmdManualEntry.onClick = [this] { GoTo(PageId::ManualEntry); };
  cmdGoTo.onClick = [this] { OpenHelp(session_, "updates.htm"); };
  cmdExitOpening.onClick = [this] { Leave(); };
  cmdLastSession.onClick = [this] { ContinueLastSession(); };
  cmdRetrieveOld.onClick = [this] { GoOn(GetDesign(session_, "Get Quilm File")); };
  acceptButton = &cmdDesignNew;
}

void frmOpening::Load() {
  // What the system cannot tell, of a folder that may not be searched or of links in a circle, is no session.
  std::error_code unknown;
  cmdLastSession.visible = std::filesystem::exists(InProgramFolder(session_, lastSessionFile), unknown);
  cmdManualEntry.enabled = session_.pages.Has(PageId::ManualEntry);
  lblVersion.caption = ProgramVersion();
  imgOpening.picture = TopologyPicture("A");
  imgOpening.description = "A lowpass of three parts, the sign of the program";
  SetFocus(cmdDesignNew);
}

void frmOpening::CloseBox() { Leave(); }

// Stores the design only if there is one: a start that was only looked at keeps the last session.
void frmOpening::Leave() {
  StoreLastSession(session_);
  throw ProgramEnd{};
}

void frmOpening::ContinueLastSession() {
  std::string path = InProgramFolder(session_, lastSessionFile);
  GoOn(modReadQuilmFiles(session_, path));
}

// An older design has brought up a page of its own.
void frmOpening::GoOn(Got got) {
  if (got == Got::Design) GoTo(PageId::Design);
  if (got == Got::OlderDesign) session_.pages.UnloadPage(Id());
}

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
