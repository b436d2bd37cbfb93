#include "synthesis/modCauer.h"

#include <algorithm>
#include <cmath>

#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"
#include "synthesis/CauerPrototype.h"

namespace quilm {

namespace {

constexpr f32 leastOrder = 3;

int OrderOf(const DesignRecord& record) { return ToI16(static_cast<f64>(record.Order)); }

void Take(DesignRecord& record, const CauerPrototype& prototype) {
  record.Gj = prototype.Gj;
  record.Hj = prototype.Hj;
  record.FstopNorm = prototype.FstopNorm;
  record.Rratio = prototype.Rratio;
}

CauerVariant VariantOf(const DesignRecord& record) {
  if (record.CauerType == "C") return CauerVariant::EqualTerminations;
  return record.CauerType == "A" ? CauerVariant::Natural : CauerVariant::BestSelectivity;
}

// The stopband edge over the passband edge, whichever way round they were entered: a highpass has its stopband below.
f64 EdgeRatio(const DesignRecord& record) {
  const f64 stop = record.Fstopband;
  const f64 pass = record.Width;
  if (!(std::min(stop, pass) > 0) || stop == pass) throw NumericFault("Division by zero");
  return std::max(stop, pass) / std::min(stop, pass);
}

// False when the user has left the failure page by its close box. A retry need not have changed anything: the order
// cannot go below 3, and then the page opens again.
bool AskForOtherEntries(Session& session) {
  session.retriesCauer = false;
  if (session.pages.Has(PageId::Bailout)) session.pages.ShowModal(PageId::Bailout);
  return session.retriesCauer;
}

bool TryOdd(DesignRecord& record) {
  const f32 ratio = static_cast<f32>(EdgeRatio(record));
  record.Apass = OddCauerRipple(OrderOf(record), ratio, record.Astop);
  if (!(record.Apass > leastCauerRipple)) return false;
  Take(record, OddCauerPrototype(OrderOf(record), ratio, record.Astop));
  return true;
}

void ComputeEven(DesignRecord& record) {
  Take(record, EvenCauerPrototype(OrderOf(record), record.Apass, record.Astop, VariantOf(record)));
}

}  // namespace

bool TryCauer(DesignRecord& record) {
  record.CauerFlag = 1;
  if (OrderOf(record) % 2 == 1) return TryOdd(record);
  ComputeEven(record);
  return true;
}

void ComputeCauer(Session& session) {
  DesignRecord& record = session.record;
  if (record.Order < leastOrder) {
    record.Order = leastOrder;
    session.platform.MessageBox(
        "The Cauer family requires a minimum order of three.\r\nThe order has been reset to three.", Buttons::Ok,
        Icon::Information, "");
  }
  record.CauerFlag = 1;
  ForgetResponses(record);
  try {
    while (!TryCauer(record)) {
      if (!AskForOtherEntries(session)) throw NumericFault("The ripple is too low");
    }
  } catch (const Fault&) {
    Take(record, CauerPrototype{});
  }
}

}  // namespace quilm
