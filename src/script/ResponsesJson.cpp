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

// A response array with its extremes over the sweeps since the last Monte Carlo run began.
struct Column {
  const char* name;
  ResponseArray Responses::*values;
  const char* maxName = nullptr;
  ResponseArray Responses::*max = nullptr;
  const char* minName = nullptr;
  ResponseArray Responses::*min = nullptr;
};

constexpr Column columns[] = {
    {"RespFreq", &Responses::RespFreq},
    {"RespTrans", &Responses::RespTrans, "MaxTrans", &Responses::MaxTrans, "MinTrans", &Responses::MinTrans},
    {"RespAngle", &Responses::RespAngle, "MaxAngle", &Responses::MaxAngle, "MinAngle", &Responses::MinAngle},
    {"RespDelay", &Responses::RespDelay, "MaxDelay", &Responses::MaxDelay, "MinDelay", &Responses::MinDelay},
    {"RespPhase", &Responses::RespPhase},
    {"RespReturn", &Responses::RespReturn, "MaxReturn", &Responses::MaxReturn, "MinReturn", &Responses::MinReturn},
    {"RespVSWR", &Responses::RespVSWR, "MaxVSWR", &Responses::MaxVSWR, "MinVSWR", &Responses::MinVSWR},
    {"RespZin", &Responses::RespZin, "MaxZin", &Responses::MaxZin, "MinZin", &Responses::MinZin},
    {"RespZinAngle", &Responses::RespZinAngle, "MaxZinAngle", &Responses::MaxZinAngle, "MinZinAngle",
     &Responses::MinZinAngle},
};

Json PointJson(const Responses& responses, int i) {
  Json point = {{"index", i}};
  for (const Column& column : columns) {
    point[column.name] = NumberJson((responses.*column.values)[i]);
    if (column.max == nullptr) continue;
    point[column.maxName] = NumberJson((responses.*column.max)[i]);
    point[column.minName] = NumberJson((responses.*column.min)[i]);
  }
  return point;
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
