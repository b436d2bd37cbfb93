#include "desk/Leaving.h"

#include "core/DesignRecord.h"
#include "files/modWriteQuilmFile.h"
#include "shell/History.h"
#include "shell/LongRun.h"
#include "shell/Page.h"
#include "shell/Session.h"
#include "shell/modWriteConfig.h"

namespace quilm {

namespace {

// Neither a run that is in progress must leave one of its trials, nor a page what nobody has accepted.
void PutBackProposals(const Session& session) {
  if (session.run != nullptr) session.run->PutBack();
  for (Page* page : session.pages.OpenPages()) page->PutBack();
}

}  // namespace

void LeaveByCloseBox(Session& session) {
  PutBackProposals(session);
  WriteConfig(session);
  StoreLastSession(session);
  throw ProgramEnd{};
}

void LeaveBySystem(Session& session) {
  PutBackProposals(session);
  const DesignRecord* found = session.history.FoundByAct();
  if (session.network.Stages == 0 && found != nullptr) session.record = *found;
  if (session.pages.Find(PageId::Opening) == nullptr) WriteConfig(session);
  StoreLastSession(session);
  throw ProgramEnd{};
}

}  // namespace quilm
