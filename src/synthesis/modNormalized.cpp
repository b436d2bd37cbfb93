#include "synthesis/modNormalized.h"

#include <cmath>
#include <span>

#include "core/NumericFault.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"
#include "synthesis/PrototypeTables.h"
#include "synthesis/modCauer.h"
#include "synthesis/modMderived.h"

namespace quilm {

namespace {

void ClearPrototype(DesignRecord& record) {
  record.Gj.Fill(0);
  record.Hj.Fill(0);
}

using ChebyshevValues = BoundedArray<f64, 1, orderLimit>;

// sin((2k - 1) Pi / (2n)). The first is taken from the angle of k = n, which has the same sine: the last bits of the
// element values rest on it.
ChebyshevValues ChebyshevSines(int n) {
  ChebyshevValues sines;
  for (int k = 1; k <= n; ++k) {
    const int angle = k == 1 ? n : k;
    sines[k] = std::sin((2 * angle - 1) * Pi / (2 * n));
  }
  return sines;
}

// The load over the source of 1 ohm, for the ripple factor e.
f64 ChebyshevLoad(int n, f64 e) {
  if (n % 2 == 1) return 1;
  const f64 t = std::sqrt(e * e + 1);
  const f64 u = std::sqrt(t * t - 1);
  return 2 * t * t - 2 * t * u - 1;
}

struct OrderLimits {
  i16 lowest;
  i16 highest;
  const char* familyName;
};

Messages HoldWithin(DesignRecord& record, const OrderLimits& limits) {
  if (record.Order > limits.highest) {
    record.Order = limits.highest;
    return {std::string("Order has been reset to ") + limits.familyName + " upper limit of " +
            std::to_string(limits.highest)};
  }
  if (record.Order < limits.lowest) {
    record.Order = limits.lowest;
    return {"Order has been reset to lower limit of " + std::to_string(limits.lowest)};
  }
  return {};
}

void TakeRow(DesignRecord& record, std::span<const f32> row) {
  ClearPrototype(record);
  int j = 0;
  for (const f32 value : row) record.Gj[++j] = value;
  record.Rratio = record.Gj[j] / record.Gj[1];
  record.CauerFlag = 0;
  record.Apass = 0;
  record.FstopNorm = 0;
  ForgetResponses(record);
}

// For the families without messages.
Messages Quietly(void (*routine)(DesignRecord&), DesignRecord& record) {
  routine(record);
  return {};
}

Messages RunFamily(DesignRecord& record, i16 family) {
  switch (family) {
    case familyButterworth:
      return Quietly(ComputeButterworth, record);
    case familyChebyshev:
      return Quietly(ComputeChebyshev, record);
    case familyBessel:
      return ComputeBessel(record);
    case familyGaussian:
      return ComputeGaussian(record);
    case familyConstantK:
      return Quietly(ComputeConstantK, record);
    case familyMderived:
      return Quietly(ComputeMderived, record);
    case familyGaussian12:
      return ComputeGaussian12(record);
    default:
      return {};
  }
}

void Show(Session& session, const Messages& messages) {
  for (const std::string& text : messages) session.platform.MessageBox(text, Buttons::Ok, Icon::Information, "");
}

}  // namespace

Messages HoldOrder(DesignRecord& record) {
  if (record.Order <= record.OrderMax) return {};
  record.Order = record.OrderMax;
  return {"The Order has been reset to the maximum-allowed value of " + std::to_string(record.OrderMax)};
}

void ComputeButterworth(DesignRecord& record) {
  ClearPrototype(record);
  const int n = ToI16(record.Order);
  for (int j = 1; j <= n; ++j) {
    record.Gj[j] = static_cast<f32>(2 * std::sin((2 * j - 1) * 4 * std::atan(1.0) / (n + n)));
  }
  record.FstopNorm = 0;
  record.Rratio = 1;
  record.CauerFlag = 0;
  record.Family = familyButterworth;
}

void ComputeChebyshev(DesignRecord& record) {
  ClearPrototype(record);
  NumericFaultScope scope;
  const int n = ToI16(record.Order);
  // The ripple factor rests in 32 bits, and all that follows is computed from that.
  const f32 e = scope.Store(std::sqrt(std::pow(10.0, 0.1 * record.Apass) - 1));
  const f64 reciprocal = scope.Checked(1.0 / e);
  const f64 x = scope.Checked(std::log(reciprocal + std::sqrt(reciprocal * reciprocal + 1)) / n);
  const f64 y = (std::exp(x) - std::exp(-x)) * 0.5;

  const ChebyshevValues a = ChebyshevSines(n);
  record.Gj[1] = scope.Store(2 * a[1] / y);
  for (int j = 2; j <= n; ++j) {
    const f64 sine = std::sin((j - 1) * Pi / n);
    const f32 b = scope.Store(sine * sine + y * y);
    const f32 product = b * record.Gj[j - 1];
    record.Gj[j] = scope.Store(4 * a[j] * a[j - 1] / product);
  }
  record.Rratio = scope.Store(ChebyshevLoad(n, e));
  record.FstopNorm = 0;
  record.CauerFlag = 0;
}

void ComputeConstantK(DesignRecord& record) {
  ClearPrototype(record);
  const int n = ToI16(record.Order);
  const f32 endValue = n == 2 ? static_cast<f32>(std::sqrt(2.0)) : 1;
  for (int j = 1; j <= n; ++j) record.Gj[j] = j == 1 || j == n ? endValue : 2;
  record.Rratio = 1;
  record.FstopNorm = 0;
  record.CauerFlag = 0;
  ForgetResponses(record);
}

// The table goes on to 17, but from order 11 on it is out of line with the rows before: the first value, which falls
// slowly up to 2.2641 at 10, jumps to 2.2846. Designs therefore end at 10.
Messages ComputeBessel(DesignRecord& record) {
  Messages messages = HoldWithin(record, {2, 10, "Bessel"});
  TakeRow(record, BesselRow(ToI16(record.Order)));
  return messages;
}

Messages ComputeGaussian(DesignRecord& record) {
  Messages messages = HoldWithin(record, {2, 10, "Gaussian"});
  TakeRow(record, GaussianRow(ToI16(record.Order)));
  return messages;
}

Messages ComputeGaussian12(DesignRecord& record) {
  Messages messages = HoldWithin(record, {3, 10, "Gaussian to 12"});
  TakeRow(record, Gaussian12Row(ToI16(record.Order)));
  return messages;
}

Messages ComputePrototype(DesignRecord& record, i16 family) {
  try {
    return RunFamily(record, family);
  } catch (const Fault&) {
    ClearPrototype(record);
    record.Rratio = 0;
    return {};
  }
}

void ComputeNormalized(Session& session) {
  DesignRecord& record = session.record;
  Show(session, HoldOrder(record));
  if (NetworkStands(record)) return;
  if (session.familyOption == familyMderived) {
    // The user gives the zeros on a page of their own. Left unaccepted, the prototype is that of the former zeros: the
    // bandwidth may be another one by now, and a prototype of another family must not stay.
    session.pages.ShowModal(PageId::Mderived);
    if (HasMderivedZeros(record)) {
      ComputePrototype(record, familyMderived);
    } else {
      ClearPrototype(record);
    }
    return;
  }
  if (session.familyOption == familyCauer) {
    ComputeCauer(session);
    return;
  }
  Show(session, ComputePrototype(record, session.familyOption));
}

}  // namespace quilm
