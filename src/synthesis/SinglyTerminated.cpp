#include "synthesis/SinglyTerminated.h"

#include <cmath>

#include "core/DesignRecord.h"
#include "core/NumericFault.h"
#include "network/DesignStanding.h"
#include "synthesis/MakeNetwork.h"

namespace quilm {

namespace {

constexpr f32 sourceImpedance = 0.01F;  // ohms: nearly none, and still above what the analysis needs

// How far the ripple's ellipse is from a circle: sinh(arsinh(1 / e) / n).
f64 EllipseAxis(int n, f32 Apass, NumericFaultScope& scope) {
  const f64 p = scope.Store(std::exp(f64{Apass} / (10 / std::log(10.0))));
  const f64 e = scope.Store(std::sqrt(p - 1));
  const f64 y = scope.Store(std::log(1 / e + std::sqrt(1 / e / e + 1)));
  return scope.Store((std::exp(y / n) - std::exp(-y / n)) * 0.5);
}

}  // namespace

BoundedArray<f32, 0, orderLimit> SinglyTerminatedChebyshev(int order, f32 Apass) {
  NumericFaultScope scope;
  const f64 n = order;
  const f64 s = EllipseAxis(order, Apass, scope);
  const auto a = [n](int k) { return static_cast<f64>(static_cast<f32>(std::sin((2 * k - 1) * Pi / (2 * n)))); };
  BoundedArray<f32, 0, orderLimit> Gj;
  Gj.Fill(0);
  f64 g = a(1) / s;
  Gj[order] = scope.Store(g);
  for (int i = 2; i <= order; ++i) {
    const f64 t = (i - 1) * Pi / (2 * n);
    const f64 sine = std::sin(t);
    const f64 cosine = std::cos(t);
    g = a(i - 1) * a(i) / (g * cosine * cosine * (sine * sine + s * s));
    Gj[order + 1 - i] = scope.Store(g);
  }
  return Gj;
}

void MakeSinglyTerminated(DesignRecord& record, const SinglyTerminatedEntries& entries) {
  DesignRecord made = record;
  made.Topology = entries.Topology;
  made.Order = entries.Order;
  made.Apass = entries.Apass;
  made.Width = entries.Width;
  made.Fcenter = entries.Fcenter;
  made.FstopNorm = 0;
  made.CauerFlag = 0;
  made.Family = familyChebyshev;
  made.Hj.Fill(0);
  made.Gj = SinglyTerminatedChebyshev(ToI16(f64{entries.Order}), entries.Apass);
  made.Rratio = 1;
  // The parts are scaled to the end that is terminated.
  made.Rsource[1] = entries.outputTermination;
  MakeNetwork(made);
  made.Rsource[1] = sourceImpedance;
  made.Rload[1] = entries.outputTermination;
  made.Rratio = made.Rload[1] / made.Rsource[1];
  ForgetNetwork(made);
  StandByHand(made);
  record = made;
}

}  // namespace quilm
