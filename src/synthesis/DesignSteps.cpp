#include "synthesis/DesignSteps.h"

#include "core/DesignRecord.h"
#include "core/EntryLimits.h"
#include "core/NumericFault.h"
#include "network/DesignStanding.h"
#include "network/NetworkEdits.h"
#include "synthesis/MakeNetwork.h"
#include "synthesis/modCauer.h"
#include "synthesis/modNormalized.h"

namespace quilm {

namespace {

f32 Stepped(f32 value, f32 multiplier, StepWay way) {
  NumericFaultScope scope;
  return scope.Store(way == StepWay::Up ? f64{value} * f64{multiplier} : f64{value} / f64{multiplier});
}

// Takes the design over with the network that follows from its entries.
void Accept(DesignRecord& design, DesignRecord& stepped) {
  ForgetResponses(stepped);
  if (!NetworkStands(stepped)) MakeNetwork(stepped);
  design = stepped;
}

void MakePrototype(DesignRecord& design) {
  if (design.Family == familyCauer) {
    if (!TryCauer(design)) throw Fault("The ripple of this Cauer design would be too low");
  } else {
    ComputePrototype(design, design.Family);
  }
}

}  // namespace

void StepWidth(DesignRecord& design, f32 multiplier, StepWay way) {
  if (IsByHand(design)) {
    ScaleFrequency(design, multiplier, way == StepWay::Up ? Shift::Down : Shift::Up);
    StandByHand(design);
    return;
  }
  DesignRecord stepped = design;
  stepped.Width = Stepped(design.Width, multiplier, way);
  stepped.Fstopband = stepped.FstopNorm * stepped.Width;
  Accept(design, stepped);
}

void StepCenter(DesignRecord& design, f32 percent, StepWay way) {
  DesignRecord stepped = design;
  const f64 multiplier = 1 + f64{percent} * 0.01 / (f64{design.Fcenter} / f64{design.Width});
  stepped.Fcenter = Stepped(design.Fcenter, static_cast<f32>(multiplier), way);
  Accept(design, stepped);
}

void StepRipple(DesignRecord& design, f32 multiplier, StepWay way) {
  DesignRecord stepped = design;
  stepped.Apass = limitsOf::Apass.Held(Stepped(design.Apass, multiplier, way));
  if (!NetworkStands(stepped)) MakePrototype(stepped);
  Accept(design, stepped);
}

}  // namespace quilm
