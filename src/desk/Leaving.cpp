#include "desk/Leaving.h"

#include "core/DesignRecord.h"
#include "files/modWriteQuilmFile.h"
#include "shell/History.h"
#include "shell/LongRun.h"
#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {

namespace {

// A run that is in progress must not leave one of its trials.
void PutBackTrial(const Session& session) {
  if (session.run != nullptr) session.run->PutBack();
}

}  // namespace

void LeaveByCloseBox(Session& session) {
  PutBackTrial(session);
  WriteConfig(session);
  StoreLastSession(session);
  throw ProgramEnd{};
}

void LeaveBySystem(Session& session) {
  PutBackTrial(session);
  const DesignRecord* found = session.history.FoundByAct();
  if (session.network.Stages == 0 && found != nullptr) session.record = *found;
  if (session.pages.Find(PageId::Opening) == nullptr) WriteConfig(session);
  StoreLastSession(session);
  throw ProgramEnd{};
}

}  // namespace quilm
