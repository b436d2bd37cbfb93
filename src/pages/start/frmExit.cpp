#include "pages/start/frmExit.h"

#include "core/Network.h"
#include "files/modWriteQuilmFile.h"
#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {

namespace {

constexpr f64 noteSeconds = 1.5;  // long enough to read one line

}  // namespace

frmExit::frmExit(Session& session) : Page(session, PageId::Exit, "Exit ?") {
  cmdExit.onClick = [this] { Leave(); };
  cmdIgnore.onClick = [this] { session_.pages.UnloadPage(Id()); };
  cmdSave.onClick = [this] { SaveAndLeave(); };
  acceptButton = &cmdExit;
  cancelButton = &cmdIgnore;
  SetFocus(cmdExit);
}

// With no network there is nothing to ask a file name for.
void frmExit::SaveAndLeave() {
  if (session_.network.Stages > 0 && !SaveDesign(session_, "Write Quilm File")) return;
  Leave();
}

// The configuration first: it leaves its own name in DesignFileName.
void frmExit::Leave() {
  WriteConfig(session_);
  lblNote.caption =
      StoreLastSession(session_) ? "This design was saved as LASTSESSION" : "This design was NOT saved as LASTSESSION";
  session_.platform.Pause(noteSeconds);
  throw ProgramEnd{};
}

Layout frmExit::MakeLayout() {
  return Column(
      {Put(lblQuestion), KeepPlace(Put(lblNote)), Row({Space(), Put(cmdSave), Put(cmdExit), Put(cmdIgnore)})});
}

}  // namespace quilm
