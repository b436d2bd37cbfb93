#include <algorithm>
#include <cmath>

#include "core/Identity.h"
#include "core/Responses.h"
#include "core/Sweep.h"
#include "script/Commands.h"
#include "script/Json.h"

namespace quilm {

namespace {

// The last point of a sweep. What no sweep can have counts as the nearest one that it can.
int LastPoint(const SweepSettings& sweep) {
  const f64 intervals = static_cast<f64>(sweep.NrIntervals);
  if (std::isnan(intervals)) return 0;
  return static_cast<int>(std::nearbyint(std::clamp<f64>(intervals, 0, responseBound)));
}

Json PointJson(const Responses& responses, int i) {
  return {{"index", i},
          {"RespFreq", NumberJson(responses.RespFreq[i])},
          {"RespTrans", NumberJson(responses.RespTrans[i])},
          {"RespAngle", NumberJson(responses.RespAngle[i])},
          {"RespDelay", NumberJson(responses.RespDelay[i])},
          {"RespPhase", NumberJson(responses.RespPhase[i])},
          {"RespReturn", NumberJson(responses.RespReturn[i])},
          {"RespVSWR", NumberJson(responses.RespVSWR[i])},
          {"RespZin", NumberJson(responses.RespZin[i])},
          {"RespZinAngle", NumberJson(responses.RespZinAngle[i])}};
}

}  // namespace

Json ResponsesEvent(const Identity& identity, const SweepSettings& sweep, const Responses& responses,
                    const std::vector<std::string>& indices) {
  const int last = LastPoint(sweep);
  Json points = Json::array();
  for (const std::string& index : indices) points.push_back(PointJson(responses, CountArgument(index, 0, last)));
  for (int i = 0; i <= last && indices.empty(); ++i) points.push_back(PointJson(responses, i));
  // The peak rests in 64 bits; the library prints infinities as null of itself.
  return {{"event", "responses"},
          {"points", std::move(points)},
          {"TransPeak", responses.TransPeak},
          {"TransPeakFreq", responses.TransPeakFreq},
          {"ResponsesValid", identity.ResponsesValid}};
}

}  // namespace quilm
