#include "diplexer/DiplexerEntries.h"

#include <cmath>

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/modGeneral.h"
#include "shell/EntryText.h"

namespace quilm {

namespace {

constexpr f32 leastDesigned = 0.1F;  // Hz: a width or centre of the design above this is one

// An order is a whole number; a part of one is dropped.
i16 HeldOrder(f32 order, i16 OrderMax) {
  const f32 most = order > static_cast<f32>(OrderMax) ? static_cast<f32>(OrderMax) : order;
  return static_cast<i16>(limitsOf::DipOrder.Held(most));
}

void SplitAt(Diplexer& d, f32 crossover, f32 lower, f32 upper) {
  d.DipMode = 1;
  d.DipCrossover = limitsOf::DipCrossover.Held(crossover);
  d.DipFlower = lower;
  d.DipFupper = upper;
}

// Mode and frequencies as the design has them.
void FollowDesign(Diplexer& d, const DesignRecord& record) {
  if (record.Width > leastDesigned && record.Fcenter > leastDesigned) {
    d.DipMode = 2;
    d.DipFupper = record.Fcenter + 0.5F * record.Width;
    d.DipFlower = record.Fcenter - 0.5F * record.Width;
  } else if (record.Width > leastDesigned) {
    SplitAt(d, record.Width, record.Width, record.Width * 1.2F);
  } else {
    const f32 middle = static_cast<f32>(std::sqrt(f64{record.Fstart} * f64{record.Fstop}));
    SplitAt(d, middle, middle / 1.2F, middle * 1.2F);
  }
}

void TakeImpedance(Diplexer& d, f32 Z) {
  d.DipZ = limitsOf::DipZ.Held(Z);
  d.DipZsmall = d.DipZ * 0.001F;
}

std::string Shown(f32 value, Formatter format) { return EntryText(value, format); }

}  // namespace

DiplexerEntered EntriesOf(const Diplexer& diplexer) {
  return {.order = static_cast<f32>(diplexer.DipOrder),
          .ripple = diplexer.DipRipple,
          .Z = diplexer.DipZ,
          .crossover = diplexer.DipCrossover,
          .lower = diplexer.DipFlower,
          .upper = diplexer.DipFupper,
          .exact3dB = diplexer.exact3dB};
}

bool StartDiplexer(Diplexer& diplexer, const DesignRecord& record) {
  if (diplexer.DipOrder == 0) diplexer.DipOrder = HeldOrder(record.Order, record.OrderMax);
  if (diplexer.DipRipple == 0) diplexer.DipRipple = limitsOf::DipRipple.Held(record.Apass);
  TakeImpedance(diplexer, diplexer.DipZ == 0 ? record.Rsource[1] : diplexer.DipZ);
  if (diplexer.DipMode != 1 && diplexer.DipMode != 2) FollowDesign(diplexer, record);
  return HoldDiplexerEdges(diplexer) && diplexer.DipMode == 2;
}

bool AcceptDiplexer(Diplexer& diplexer, const DiplexerEntered& entered, const DesignRecord& record) {
  diplexer.DipOrder = HeldOrder(std::fabs(entered.order), record.OrderMax);
  diplexer.DipRipple = limitsOf::DipRipple.Held(entered.ripple);
  diplexer.exact3dB = entered.exact3dB;
  TakeImpedance(diplexer, entered.Z);
  if (diplexer.DipMode == 2) {
    diplexer.DipFlower = std::fabs(entered.lower);
    diplexer.DipFupper = std::fabs(entered.upper);
  } else {
    const bool takesWidth = entered.crossover <= 0 && record.Width > 0;
    diplexer.DipCrossover = limitsOf::DipCrossover.Held(takesWidth ? record.Width : entered.crossover);
  }
  diplexer.DipFrozen = 0;
  return HoldDiplexerEdges(diplexer);
}

bool HoldDiplexerEdges(Diplexer& diplexer) {
  using limitsOf::DipBandEdge;
  diplexer.DipFlower = DipBandEdge.Held(diplexer.DipFlower);
  diplexer.DipFupper = DipBandEdge.Held(diplexer.DipFupper);
  const f32 least = limitsOf::leastDipEdges * diplexer.DipFlower;
  if (least <= diplexer.DipFupper) return false;
  diplexer.DipFupper = least;
  if (least > DipBandEdge.highest) {
    diplexer.DipFupper = DipBandEdge.highest;
    diplexer.DipFlower = DipBandEdge.highest / limitsOf::leastDipEdges;
  }
  return true;
}

std::string DiplexerSummary(const Diplexer& diplexer) {
  const std::string where = diplexer.DipMode == 2 ? "Lower edge=" + Shown(diplexer.DipFlower, FormatFrequency) +
                                                        "   Upper edge=" + Shown(diplexer.DipFupper, FormatFrequency)
                                                  : "Crossover=" + Shown(diplexer.DipCrossover, FormatFrequency);
  return where + "   Passband ripple=" + Shown(diplexer.DipRipple, FormatValue) +
         "   Order=" + std::to_string(diplexer.DipOrder) + "   System Z=" + Shown(diplexer.DipZ, FormatResistance);
}

}  // namespace quilm
