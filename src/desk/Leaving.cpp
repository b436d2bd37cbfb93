#include "desk/Leaving.h"

#include "core/DesignRecord.h"
#include "files/modWriteQuilmFile.h"
#include "shell/History.h"
#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {

void LeaveByCloseBox(Session& session) {
  WriteConfig(session);
  StoreLastSession(session);
  throw ProgramEnd{};
}

void LeaveBySystem(Session& session) {
  const DesignRecord* found = session.history.FoundByAct();
  if (session.network.Stages == 0 && found != nullptr) session.record = *found;
  if (session.pages.Find(PageId::Opening) == nullptr) WriteConfig(session);
  StoreLastSession(session);
  throw ProgramEnd{};
}

}  // namespace quilm
