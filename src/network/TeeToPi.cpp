#include "network/TeeToPi.h"

#include "core/NumericFault.h"
#include "network/NetworkEdits.h"

namespace quilm {

namespace {

bool IsMesh(const Network& network) {
  if (network.Stages < 3 || network.Stages % 2 == 0) return false;
  for (int s = 1; s <= network.Stages; ++s) {
    if (network.stage[s].ElementType != (s % 2 == 1 ? SeriesSLC : ShuntC)) return false;
  }
  return true;
}

// The share of tee `k` in the series capacitor of stage s.
f64 ShareOfTee(const Network& network, int s) {
  const bool atEnd = s == 1 || s == network.Stages;
  return (atEnd ? 1 : 2) * f64{network.stage[s].Cval.value};
}

}  // namespace

void TeeToPi(f64 a, f64 b, f64 c, f64& x, f64& y, f64& z) {
  const f64 s = a + b + c;
  x = a * b / s;
  y = a * c / s;
  z = b * c / s;
}

bool HasMeshForm(const Network& network, f32 order) {
  return IsMesh(network) && static_cast<f32>(network.Stages) == 2 * order - 1;
}

std::vector<CapacitorPi> PisOfMesh(const Network& network) {
  NumericFaultScope scope;
  std::vector<CapacitorPi> pis;
  for (int shunt = 2; shunt < network.Stages; shunt += 2) {
    const f64 a = ShareOfTee(network, shunt - 1);
    const f64 b = f64{network.stage[shunt].Cval.value};
    const f64 c = ShareOfTee(network, shunt + 1);
    CapacitorPi pi;
    TeeToPi(a, b, c, pi.first, pi.series, pi.second);
    scope.Checked(pi.second);
    pis.push_back(pi);
  }
  return pis;
}

Network MeshTeeToPi(const Network& network) {
  if (!IsMesh(network) || network.Stages > 2 * mostTeeToPiOrder - 1) throw BoundFault();
  const std::vector<CapacitorPi> pis = PisOfMesh(network);
  NumericFaultScope scope;
  Network result = network;
  result.Stages = static_cast<i16>(1 + 4 * static_cast<int>(pis.size()));
  int place = 1;
  int resonator = 1;
  MakePart(result.stage[place++], SeriesL, network.stage[resonator].Lval.value, 0);
  for (const CapacitorPi& pi : pis) {
    resonator += 2;
    MakePart(result.stage[place++], ShuntC, 0, scope.Store(pi.first));
    MakePart(result.stage[place++], SeriesC, 0, scope.Store(pi.series));
    MakePart(result.stage[place++], ShuntC, 0, scope.Store(pi.second));
    MakePart(result.stage[place++], SeriesL, network.stage[resonator].Lval.value, 0);
  }
  return result;
}

}  // namespace quilm
