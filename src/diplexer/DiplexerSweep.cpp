#include "diplexer/DiplexerSweep.h"

#include <algorithm>
#include <cmath>
#include <complex>

#include "analysis/Kernel.h"
#include "analysis/SweepPoints.h"
#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "diplexer/DiplexerArms.h"

namespace quilm {

namespace {

Ladder CompiledArm(const Diplexer& diplexer, i16 DipArm, const DesignRecord& record) {
  return Compile(LoadDiplexerArm(diplexer, DipArm, record), QualityFrequency(record, record));
}

f32 ArmTrans(f64 analysed) { return static_cast<f32>(analysed + armTransOffset); }

void SweepArm(const Ladder& ladder, const SweepSettings& sweep, Responses& responses, ResponseArray& trans) {
  BeginSweep(responses, sweep);
  SweepPoints(ladder, responses, DefaultWidth());
  const int points = responses.table.points;
  const f32* analysed = responses.RespTrans.data();
  std::transform(analysed, analysed + points, trans.data(), [](f32 dB) { return ArmTrans(static_cast<f64>(dB)); });
}

std::complex<f64> Rectangular(const PolarImpedance& z) { return std::polar(z.magnitude, z.degrees * Pi / 180); }

}  // namespace

std::span<const f32> DiplexerResponses::Frequencies() const { return SweptFrequencies(first); }

// With Z = Z1 Z2 / (Z1 + Z2), rho = |Z - R| / |Z + R| is formed over the common denominator, so that a short in one arm
// and branches that resonate with each other divide by nothing.
f64 CombineDiplexer(const PolarImpedance& one, const PolarImpedance& other, f32 DipZ) {
  constexpr f64 least = 1e-7;
  constexpr f64 most = 0.9999999;
  const std::complex<f64> z1 = Rectangular(one);
  const std::complex<f64> z2 = Rectangular(other);
  const std::complex<f64> product = z1 * z2;
  const std::complex<f64> sum = (z1 + z2) * static_cast<f64>(DipZ);
  const f64 rho = std::sqrt(std::norm(product - sum)) / std::sqrt(std::norm(product + sum));
  const f64 held = rho < most ? std::max(rho, least) : most;
  return -20 * std::log(1 / held) / std::log(10.0);
}

void SweepDiplexer(const Diplexer& diplexer, const DesignRecord& record, DiplexerResponses& r) {
  const auto [one, other] = ArmsOf(diplexer.DipMode);
  SweepArm(CompiledArm(diplexer, one, record), record, r.first, r.DipArm1Trans);
  SweepArm(CompiledArm(diplexer, other, record), record, r.second, r.DipArm2Trans);
  const auto impedance = [](const Responses& arm, int point) {
    return PolarImpedance{static_cast<f64>(arm.RespZin.data()[point]),
                          static_cast<f64>(arm.RespZinAngle.data()[point])};
  };
  for (int i = 0; i < r.first.table.points; ++i) {
    r.DipReturn.data()[i] =
        static_cast<f32>(CombineDiplexer(impedance(r.first, i), impedance(r.second, i), diplexer.DipZ));
  }
}

DiplexerFigures DiplexerAt(const Diplexer& diplexer, const DesignRecord& record, f32 frequency) {
  const auto [one, other] = ArmsOf(diplexer.DipMode);
  const Figures first = EvaluateOne(CompiledArm(diplexer, one, record), frequency);
  const Figures second = EvaluateOne(CompiledArm(diplexer, other, record), frequency);
  const auto impedance = [](const Figures& arm) { return PolarImpedance{arm.zinMag, -arm.zinAngleRaw}; };
  return {ArmTrans(first.transDB), ArmTrans(second.transDB),
          static_cast<f32>(CombineDiplexer(impedance(first), impedance(second), diplexer.DipZ))};
}

}  // namespace quilm
