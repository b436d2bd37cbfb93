#include "desk/StartUp.h"

#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {

void StartProgram(Session& session) {
  ReadConfig(session);
  session.pages.ShowPage(PageId::Opening);
}

}  // namespace quilm
