#include "pages/Leaving.h"

#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {

void LeaveByCloseBox(Session& session) {
  WriteConfig(session);
  throw ProgramEnd{};
}

}  // namespace quilm
