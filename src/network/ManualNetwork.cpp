#include "network/ManualNetwork.h"

#include <algorithm>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "network/DesignStanding.h"

namespace quilm {

void BeginByHand(DesignRecord& design) {
  design.Topology.clear();
  StandByHand(design);
}

void ClearNetworkForManual(DesignRecord& design, Responses& responses) {
  design.stage.Fill({});
  ClearResponses(responses, design.NrIntervals);
  ForgetResponses(design);
  design.Rsource.Fill(0);
  design.Rload.Fill(0);
  design.Stages = 0;
  design.Family = familyNone;
  design.Apass = design.Astop = design.Width = design.Fcenter = design.Fstopband = design.Order = 0;
}

void ClearResponses(Responses& responses, f32 lastPoint) {
  const f32 points = std::clamp(lastPoint, 0.0F, static_cast<f32>(responseBound));
  for (ResponseArray* array :
       {&responses.RespFreq, &responses.RespTrans, &responses.RespAngle, &responses.RespDelay, &responses.RespPhase,
        &responses.RespReturn, &responses.RespVSWR, &responses.RespZin, &responses.RespZinAngle}) {
    for (int i = 1; static_cast<f32>(i) <= points; ++i) (*array)[i] = 0;
  }
}

}  // namespace quilm
