#include "analysis/modAnalysis.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "analysis/Kernel.h"
#include "core/NumericFault.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr int blockPoints = 128;
constexpr f64 smallestStep = 1e-27;  // Hz, so that two equal frequencies give a huge delay and no failure
constexpr f64 lowestPeak = -300;     // dB

f64 Wrapped(f64 degrees) {
  if (degrees > 180) return degrees - 360;
  if (degrees < -180) return degrees + 360;
  return degrees;
}

// The delay over the actual step of the sweep: a phase change of more than 180 degrees in one step aliases by design.
f32 DelayOver(f64 phaseStep, f32 from, f32 to) {
  f64 step = static_cast<f64>(to) - static_cast<f64>(from);
  if (std::fabs(step) < smallestStep) step = smallestStep;
  return static_cast<f32>(-phaseStep / (360 * step));
}

void Write(const Figures& figures, f32 PrevFreq, f32 PrevAngle, f32 Freq, FrequencyResult& result) {
  if (figures.reached < reachedTransmission) return;
  result.TransDB = figures.transDB;
  result.Angle = figures.angle;
  result.PhaseStep = Wrapped(figures.angle - static_cast<f64>(PrevAngle));
  const f32 delay = DelayOver(result.PhaseStep, PrevFreq, Freq);
  if (!std::isfinite(delay)) return;
  result.Delay = delay;
  if (figures.reached < reachedImpedance) return;
  result.ZinMag = figures.zinMag;
  result.ZinAngleRaw = figures.zinAngleRaw;
  if (figures.reached < reachedAll) return;
  result.ReturnDB = figures.returnDB;
  result.VSWR = figures.vswr;
}

// ---- the sweep ------------------------------------------------------------------------------------------------------

void FillFrequencies(const DesignRecord& record, int last, ResponseArray& freq) {
  const f64 start = record.Fstart;
  const f64 stop = record.Fstop;
  const f64 intervals = record.NrIntervals;
  f32* out = freq.data();
  NumericFaultScope scope;
  if (record.SweepMode == 1) {
    for (int i = 0; i <= last; ++i) out[i] = static_cast<f32>((stop - start) * i / intervals + start);
  } else {
    const f64 from = scope.Checked(std::log(start));
    const f64 span = scope.Checked(std::log(stop)) - from;
    for (int i = 0; i <= last; ++i) out[i] = static_cast<f32>(std::exp(from + span * i / intervals));
  }
  scope.Checked(static_cast<f64>(out[last]));
}

void Widen(ResponseArray& max, ResponseArray& min, const ResponseArray& values, int last) {
  f32* high = max.data();
  f32* low = min.data();
  const f32* value = values.data();
  for (int i = 0; i <= last; ++i) {
    high[i] = value[i] > high[i] ? value[i] : high[i];
    low[i] = value[i] < low[i] ? value[i] : low[i];
  }
}

void WidenExtremes(Responses& r, int last) {
  Widen(r.MaxTrans, r.MinTrans, r.RespTrans, last);
  Widen(r.MaxAngle, r.MinAngle, r.RespAngle, last);
  Widen(r.MaxDelay, r.MinDelay, r.RespDelay, last);
  Widen(r.MaxReturn, r.MinReturn, r.RespReturn, last);
  Widen(r.MaxVSWR, r.MinVSWR, r.RespVSWR, last);
  Widen(r.MaxZin, r.MinZin, r.RespZin, last);
  Widen(r.MaxZinAngle, r.MinZinAngle, r.RespZinAngle, last);
}

// The state that goes from point to point.
struct Running {
  FrequencyResult result;
  f32 PrevFreq = 0;
  f32 PrevAngle = 0;
  f64 phase = 0;
};

void StorePoint(Responses& r, int i, Running& running) {
  const FrequencyResult& result = running.result;
  running.phase += result.PhaseStep;
  r.RespTrans.data()[i] = static_cast<f32>(result.TransDB);
  r.RespAngle.data()[i] = static_cast<f32>(result.Angle);
  r.RespDelay.data()[i] = result.Delay;
  r.RespPhase.data()[i] = static_cast<f32>(running.phase);
  r.RespReturn.data()[i] = static_cast<f32>(result.ReturnDB);
  r.RespVSWR.data()[i] = static_cast<f32>(result.VSWR);
  r.RespZin.data()[i] = static_cast<f32>(result.ZinMag);
  r.RespZinAngle.data()[i] = static_cast<f32>(-result.ZinAngleRaw);
  running.PrevFreq = r.RespFreq.data()[i];
  running.PrevAngle = r.RespAngle.data()[i];
  if (r.RespTrans.data()[i] > static_cast<f32>(r.TransPeak)) {
    r.TransPeak = static_cast<f64>(r.RespTrans.data()[i]);
    r.TransPeakFreq = static_cast<f64>(r.RespFreq.data()[i]);
  }
}

void SweepPoints(const Ladder& ladder, Responses& r, int last) {
  std::array<Figures, blockPoints> figures;
  Running running;
  for (int first = 0; first <= last; first += blockPoints) {
    const auto count = static_cast<std::size_t>(std::min(blockPoints, last + 1 - first));
    const f32* freq = r.RespFreq.data() + first;
    Evaluate(ladder, {freq, count}, {figures.data(), count});
    for (std::size_t i = 0; i < count; ++i) {
      Write(figures[i], running.PrevFreq, running.PrevAngle, freq[i], running.result);
      StorePoint(r, first + static_cast<int>(i), running);
    }
  }
}

void StoreNothing(Responses& r, int last) {
  for (ResponseArray* array : {&r.RespTrans, &r.RespAngle, &r.RespDelay, &r.RespPhase, &r.RespReturn, &r.RespVSWR,
                               &r.RespZin, &r.RespZinAngle}) {
    for (int i = 0; i <= last; ++i) (*array)[i] = 0;
  }
}

void SubtractPeak(Responses& r, int last) {
  for (int i = 0; i <= last; ++i) r.RespTrans[i] = static_cast<f32>(static_cast<f64>(r.RespTrans[i]) - r.TransPeak);
}

// The guard of a quarter-wave line writes back 90, also over a 90.0001 that the user typed.
void RestoreQuarterWaves(DesignRecord& record) {
  for (int s = 1; s <= record.Stages; ++s) {
    Stage& stage = record.stage[s];
    const bool line = stage.ElementType >= TransLine && stage.ElementType <= ShuntOpenStub;
    if (line && stage.TLval.degrees == 90.0001F) stage.TLval.degrees = 90;
  }
}

// `mark` names the step for the message of a failure.
void Sweep(DesignRecord& record, Responses& r, const char*& mark) {
  mark = "48";
  const int last = ToI16(static_cast<f64>(record.NrIntervals));
  if (last < 0 || last > responseBound) throw BoundFault();
  FillFrequencies(record, last, r.RespFreq);
  mark = "60";
  r.TransPeak = lowestPeak;
  r.TransPeakFreq = 0;
  mark = "70";
  r.Fq = QualityFrequency(record);
  mark = "81";
  if (record.Stages > 0) {
    SweepPoints(Compile(record, r.Fq), r, last);
    RestoreQuarterWaves(record);
  } else {
    StoreNothing(r, last);
  }
  WidenExtremes(r, last);
  mark = "175";
  // At point 0 there is no step to take a delay from.
  r.RespDelay[0] = 2 * r.RespDelay[1] - r.RespDelay[2];
  mark = "181";
  if (record.RelativeMode == 1 && record.Stages > 0) SubtractPeak(r, last);
  mark = "189";
  record.ResponsesValid = 1;
}

}  // namespace

void AnalyzeFrequency(const DesignRecord& record, const Ladder& ladder, f32 PrevFreq, f32 PrevAngle, f32 Freq,
                      FrequencyResult& result) {
  if (record.Stages == 0) return;
  Write(EvaluateOne(ladder, Freq), PrevFreq, PrevAngle, Freq, result);
}

std::string SweepLadder(DesignRecord& record, Responses& responses) {
  const char* mark = "48";
  try {
    Sweep(record, responses, mark);
    return {};
  } catch (const Fault&) {
    return mark;
  }
}

void AnalyzeSweep(Session& session) {
  const std::string mark = SweepLadder(session.record, session.responses);
  if (mark.empty()) return;
  session.platform.MessageBox("We had a plotting routine problem.\r\nSee modAnalysis line " + mark +
                                  "\r\nCheck analysis starting and stopping frequencies\r\n"
                                  "and check the network component values.",
                              Buttons::Ok, Icon::Critical, "Error checker");
  session.pages.ShowPage(PageId::Schematic);
}

}  // namespace quilm
