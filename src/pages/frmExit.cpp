#include "pages/frmExit.h"

#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {

namespace {

constexpr f64 noteSeconds = 1.5;  // long enough to read one line

}  // namespace

frmExit::frmExit(Session& session) : Page(session, PageId::Exit, "Exit ?") {
  cmdExit.onClick = [this] { Leave(); };
  cmdIgnore.onClick = [this] { session_.pages.UnloadPage(Id()); };
  // Saving waits for the writer of design files.
  cmdSave.enabled = false;
  acceptButton = &cmdExit;
  cancelButton = &cmdIgnore;
  SetFocus(cmdExit);
}

void frmExit::Leave() {
  WriteConfig(session_);
  lblNote.caption = "This design was NOT saved as LASTSESSION";
  session_.platform.Pause(noteSeconds);
  throw ProgramEnd{};
}

Layout frmExit::MakeLayout() {
  return Column(
      {Put(lblQuestion), KeepPlace(Put(lblNote)), Row({Space(), Put(cmdSave), Put(cmdExit), Put(cmdIgnore)})});
}

}  // namespace quilm
