#include "analysis/modAnalysis.h"

#include <cmath>

#include "analysis/Kernel.h"
#include "analysis/SweepPoints.h"
#include "analysis/SweepTable.h"
#include "core/DesignRecord.h"
#include "core/ElementCatalogue.h"
#include "core/NumericFault.h"
#include "core/Responses.h"
#include "shell/Session.h"

namespace quilm {

namespace {

f64 Wrapped(f64 degrees) {
  if (degrees > 180) return degrees - 360;
  if (degrees < -180) return degrees + 360;
  return degrees;
}

void Write(const Figures& figures, f32 PrevFreq, f32 PrevAngle, f32 Freq, FrequencyResult& result) {
  if (figures.reached < reachedTransmission) return;
  result.TransDB = figures.transDB;
  result.Angle = figures.angle;
  result.PhaseStep = Wrapped(figures.angle - static_cast<f64>(PrevAngle));
  const f32 delay = static_cast<f32>(-result.PhaseStep / DegreesPerDelay(PrevFreq, Freq));
  if (!std::isfinite(delay)) return;
  result.Delay = delay;
  if (figures.reached < reachedImpedance) return;
  result.ZinMag = figures.zinMag;
  result.ZinAngleRaw = figures.zinAngleRaw;
  if (figures.reached < reachedAll) return;
  result.ReturnDB = figures.returnDB;
  result.VSWR = figures.vswr;
}

void SubtractPeak(Responses& r) {
  f32* trans = r.RespTrans.data();
  for (int i = 0; i < r.table.points; ++i) trans[i] = static_cast<f32>(static_cast<f64>(trans[i]) - r.TransPeak);
}

// The guard of a quarter-wave line writes back 90, also over a 90.0001 that the user typed.
void RestoreQuarterWaves(Network& network) {
  for (int s = 1; s <= network.Stages; ++s) {
    Stage& stage = network.stage[s];
    f32& degrees = stage.TLval.degrees;
    if (degrees == 90.0001F && HasSlot(stage.ElementType, SlotCode::LineLength)) degrees = 90;
  }
}

// `mark` names the step for the message of a failure.
void Sweep(DesignRecord& record, Responses& r, VectorWidth width, const char*& mark) {
  mark = "48";
  BeginSweep(r, record);
  mark = "70";
  r.Fq = QualityFrequency(record, record);
  mark = "81";
  if (record.Stages > 0) {
    SweepPoints(Compile(record, r.Fq), r, width);
    RestoreQuarterWaves(record);
  } else {
    SweepNothing(r, width);
  }
  mark = "175";
  // At point 0 there is no step to take a delay from.
  r.RespDelay[0] = 2 * r.RespDelay[1] - r.RespDelay[2];
  mark = "181";
  if (record.RelativeMode == 1 && record.Stages > 0) SubtractPeak(r);
  mark = "189";
  record.ResponsesValid = 1;
}

}  // namespace

void AnalyzeFrequency(const Network& network, const Ladder& ladder, f32 PrevFreq, f32 PrevAngle, f32 Freq,
                      FrequencyResult& result) {
  if (network.Stages == 0) return;
  Write(EvaluateOne(ladder, Freq), PrevFreq, PrevAngle, Freq, result);
}

std::string SweepLadder(DesignRecord& record, Responses& responses, VectorWidth width) {
  const char* mark = "48";
  try {
    Sweep(record, responses, width, mark);
    return {};
  } catch (const Fault&) {
    return mark;
  }
}

std::span<const f32> SweptFrequencies(const Responses& responses) {
  return {responses.RespFreq.data(), static_cast<std::size_t>(responses.table.points)};
}

void AnalyzeSweep(Session& session) {
  const std::string mark = SweepLadder(session.record, session.responses);
  if (!mark.empty()) TellOfFailedSweep(session, mark);
}

bool HaveResponses(Session& session) {
  if (session.record.ResponsesValid != 1) AnalyzeSweep(session);
  return session.record.ResponsesValid == 1;
}

void TellOfFailedSweep(Session& session, const std::string& mark) {
  session.platform.MessageBox("We had a plotting routine problem.\r\nSee modAnalysis line " + mark +
                                  "\r\nCheck analysis starting and stopping frequencies\r\n"
                                  "and check the network component values.",
                              Buttons::Ok, Icon::Critical, "Error checker");
  session.pages.ShowPage(PageId::Schematic);
}

}  // namespace quilm
