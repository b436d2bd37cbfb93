#include "desk/SweepRange.h"

#include <string>

#include "analysis/SweepFit.h"
#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"

namespace quilm {

namespace {

std::string Shown(f32 frequency) { return Trimmed(FormatFrequency(frequency)) + "Hz"; }

}  // namespace

void FitSweep(Session& session) {
  const auto fitted = FittingSweep(session.record);
  if (!fitted) {
    session.note = "No band to fit the sweep to: the design has no bandwidth";
    return;
  }
  session.record.Fstart = fitted->from;
  session.record.Fstop = fitted->to;
  ForgetResponses(session.record);
  session.note = "The sweep goes from " + Shown(fitted->from) + " to " + Shown(fitted->to);
}

void TellOfSweep(Session& session) {
  const std::string fault = SweepFault(session.sweep);
  if (!fault.empty()) {
    session.note = fault + ": Ctrl+F fits the sweep to the band";
  } else if (!HoldsBand(session.record)) {
    session.note = "The sweep does not hold the band: Ctrl+F fits it";
  }
}

}  // namespace quilm
