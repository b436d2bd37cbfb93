#include "desk/Leaving.h"

#include "files/modWriteQuilmFile.h"
#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {

void LeaveByCloseBox(Session& session) {
  WriteConfig(session);
  StoreLastSession(session);
  throw ProgramEnd{};
}

}  // namespace quilm
