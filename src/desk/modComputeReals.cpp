#include "desk/modComputeReals.h"

#include <string_view>

#include "core/Entries.h"
#include "core/Fault.h"
#include "desk/ReturnToDesign.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"
#include "synthesis/MakeNetwork.h"

namespace quilm {

namespace {

bool Refuse(Session& session, const char* text, std::string_view focus) {
  session.platform.MessageBox(text, Buttons::Ok, Icon::Exclamation, "");
  ReturnToDesign(session, focus);
  return false;
}

}  // namespace

bool ComputeReals(Session& session) {
  if (NetworkStands(session.identity)) return true;
  if (!(session.entries.Width > 0)) {
    return Refuse(session, "We need a bandwidth entry; please enter the bandwidth", "txtBandwidth");
  }
  try {
    MakeNetwork(session.record);
    return true;
  } catch (const Fault&) {
    return Refuse(session,
                  "We could not calculate the parts values.\r\n"
                  "Some critical design item is missing.\r\n"
                  "Examine the entries on the Design page.",
                  {});
  }
}

}  // namespace quilm
