// Bandpass and bandstop ladders.

#include <cmath>

#include "synthesis/Topologies.h"

namespace quilm {

namespace {

// Each is a pair tuned to the centre.
void PutShuntTank(Scales& k, int j) {
  k.Put(j, ShuntPLC, k.Rs / (f64{k.QLoaded} * k.OmegaCenter * k.G(j)), k.G(j) / (k.OmegaWidth * k.Rs));
}

void PutSeriesTank(Scales& k, int j) {
  k.Put(j, SeriesSLC, k.G(j) * k.Rs / k.OmegaWidth, 1 / (f64{k.QLoaded} * k.OmegaCenter * k.Rs * k.G(j)));
}

void PutSeriesStop(Scales& k, int j) {
  k.Put(j, SeriesPLC, k.G(j) * k.Rs / (f64{k.QLoaded} * k.OmegaCenter), 1 / (k.G(j) * k.Rs * k.OmegaWidth));
}

void PutShuntStop(Scales& k, int j) {
  k.Put(j, ShuntSLC, k.Rs / (k.OmegaWidth * k.G(j)), k.G(j) / (f64{k.QLoaded} * k.OmegaCenter * k.Rs));
}

using PutBranch = void (*)(Scales&, int);

int BuildBandpass(Scales& k, PutBranch odd, PutBranch even) {
  for (int j = 1; j <= k.n; ++j) (j % 2 == 1 ? odd : even)(k, j);
  return k.n;
}

int BuildBandstop(Scales& k, PutBranch odd, PutBranch even) {
  for (int j = 1; j <= k.n; ++j) {
    if (k.G(j) > 0) {
      (j % 2 == 1 ? odd : even)(k, j);
    } else {
      k.Put(j, emptyPlace, 0, 0);
    }
  }
  return k.n;
}

// Working values of the coupled forms, 32 bits each. Element 0 stays 0: the first resonator has no coupling before it.
using CouplingValues = BoundedArray<f32, 0, orderLimit>;

// The coupling between the resonators j and j + 1, in seconds.
f64 Coupling(const Scales& k, int j) { return k.G(1) / k.OmegaCenter * std::sqrt(1 / (k.G(j + 1) * k.G(j))); }

// x times the square of the centre frequency in radians.
f64 TimesCenterSquared(const Scales& k, f64 x) { return f64{k.OmegaCenter} * k.OmegaCenter * x; }

CouplingValues CouplingCapacitors(Scales& k) {
  CouplingValues CoupC;
  for (int j = 1; j <= k.n - 1; ++j) {
    CoupC[j] = k.scope.Store(k.G(1) / (k.OmegaCenter * k.Rs) * std::sqrt(1 / (k.G(j + 1) * k.G(j))));
  }
  return CoupC;
}

CouplingValues CouplingInductors(Scales& k) {
  CouplingValues SeriesLc;
  for (int j = 1; j <= k.n - 1; ++j) {
    const f32 CoupK = k.scope.Store(Coupling(k, j));
    SeriesLc[j] = k.scope.Store(k.Rs / TimesCenterSquared(k, CoupK));
  }
  return SeriesLc;
}

// What is left of a tank inductor beside the coupling inductors at its node. With order 1 there is no coupling and the
// division faults: the topology has no such form.
CouplingValues NodeInductors(Scales& k, const CouplingValues& SeriesLc, f64 tank) {
  CouplingValues ShuntLn;
  ShuntLn[1] = k.scope.Store(1 / (1 / tank - 1.0 / SeriesLc[1]));
  for (int j = 2; j <= k.n - 1; ++j) {
    ShuntLn[j] = k.scope.Store(1 / (1 / tank - 1.0 / SeriesLc[j - 1] - 1.0 / SeriesLc[j]));
  }
  ShuntLn[k.n] = k.scope.Store(1 / (1 / tank - 1.0 / SeriesLc[k.n - 1]));
  return ShuntLn;
}

// The coupling of mesh j to mesh j + 1; 0 behind the last. The first is written without the factor G(1), to which it
// comes down: the last bit rests on it.
CouplingValues MeshCouplings(Scales& k) {
  CouplingValues CoupK;
  CoupK[1] = k.scope.Store(1.0 / k.OmegaCenter * std::sqrt(k.G(1) / k.G(2)));
  for (int j = 2; j <= k.n - 1; ++j) CoupK[j] = k.scope.Store(Coupling(k, j));
  return CoupK;
}

// The capacitors that tune the meshes, in series with the coupling capacitors beside them.
void PutMeshCapacitors(Scales& k, const CouplingValues& CoupC, f64 mesh) {
  const auto put = [&k](int s, f64 farads) { k.network.stage[s].Cval.value = k.scope.Store(farads); };
  put(1, 1 / (1 / mesh - 1.0 / CoupC[2]));
  for (int j = 2; j <= k.n - 1; ++j) put(2 * j - 1, 1 / (1 / mesh - 1.0 / CoupC[j] - 1.0 / CoupC[j + 1]));
  put(2 * k.n - 1, 1 / (1 / mesh - 1.0 / CoupC[k.n]));
}

}  // namespace

int BuildShuntInBandpass(Scales& scales) { return BuildBandpass(scales, PutShuntTank, PutSeriesTank); }

int BuildSeriesInBandpass(Scales& scales) { return BuildBandpass(scales, PutSeriesTank, PutShuntTank); }

int BuildSeriesInBandstop(Scales& scales) { return BuildBandstop(scales, PutSeriesStop, PutShuntStop); }

int BuildShuntInBandstop(Scales& scales) { return BuildBandstop(scales, PutShuntStop, PutSeriesStop); }

// All nodes resonate at the centre with one and the same inductor.
int BuildNodalCapacitorCoupled(Scales& scales) {
  const int n = scales.n;
  const f64 tank = scales.Rs / (f64{scales.QLoaded} * scales.OmegaCenter * scales.G(1));
  const f64 node = scales.G(1) / (scales.OmegaWidth * scales.Rs);
  const CouplingValues CoupC = CouplingCapacitors(scales);
  CouplingValues NodeC;
  for (int j = 1; j <= n; ++j) NodeC[j] = scales.scope.Store(node - CoupC[j - 1] - CoupC[j]);

  for (int j = 1; j <= n; ++j) scales.Put(2 * j - 1, ShuntPLC, tank, NodeC[j]);
  for (int j = 1; j <= n - 1; ++j) scales.Put(2 * j, SeriesC, 0, CoupC[j]);
  return 2 * n - 1;
}

// The dual: one and the same capacitor at all nodes.
int BuildNodalInductorCoupled(Scales& scales) {
  const int n = scales.n;
  const f64 node = scales.G(1) / (scales.OmegaWidth * scales.Rs);
  const CouplingValues SeriesLc = CouplingInductors(scales);
  const CouplingValues ShuntLn = NodeInductors(scales, SeriesLc, 1 / TimesCenterSquared(scales, node));

  for (int j = 1; j <= n; ++j) scales.Put(2 * j - 1, ShuntPLC, ShuntLn[j], node);
  for (int j = 1; j <= n - 1; ++j) scales.Put(2 * j, SeriesL, SeriesLc[j], 0);
  return 2 * n - 1;
}

// All meshes resonate at the centre with one and the same inductor.
int BuildMeshCapacitorCoupled(Scales& scales) {
  const int n = scales.n;
  const f64 mesh = scales.Rs * scales.G(1) / scales.OmegaWidth;
  const f64 root = 1 / (scales.OmegaCenter * std::sqrt(mesh));
  const CouplingValues CoupK = MeshCouplings(scales);

  for (int j = 1; j <= n; ++j) scales.Put(2 * j - 1, SeriesSLC, mesh, 0);
  CouplingValues CoupC;
  for (int j = 2; j <= n; ++j) {
    CoupC[j] = scales.scope.Store(1 / (TimesCenterSquared(scales, scales.Rs) * CoupK[j - 1]));
    scales.Put(2 * (j - 1), ShuntC, 0, CoupC[j]);
  }
  PutMeshCapacitors(scales, CoupC, root * root);
  return 2 * n - 1;
}

}  // namespace quilm
