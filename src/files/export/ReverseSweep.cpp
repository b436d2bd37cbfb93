#include "files/export/ReverseSweep.h"

#include <memory>

#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "network/NetworkEdits.h"

namespace quilm {

std::string SweepReverse(const DesignRecord& record, ReverseResponses& reverse) {
  DesignRecord turned = record;
  SwapEndForEnd(turned);
  const auto responses = std::make_unique<Responses>();
  std::string mark = SweepLadder(turned, *responses);
  if (!mark.empty()) return mark;
  reverse.RevTrans = responses->RespTrans;
  reverse.RevAngle = responses->RespAngle;
  reverse.RevReturn = responses->RespReturn;
  reverse.RevZin = responses->RespZin;
  reverse.RevZinAngle = responses->RespZinAngle;
  return {};
}

}  // namespace quilm
