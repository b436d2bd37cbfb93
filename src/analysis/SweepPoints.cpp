#include "analysis/SweepPoints.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "analysis/KernelVariants.h"
#include "analysis/SweepTable.h"

namespace quilm {

namespace {

// Points that are taken through all steps together, so that they stay in the nearest cache.
constexpr int blockPoints = 256;
static_assert(blockPoints % sweepPadding == 0);

constexpr f64 lowestPeak = -300;  // dB

struct Block {
  int first = 0;  // of the sweep
  int count = 0;
  alignas(64) std::array<f64, blockPoints> exactAngle;
  alignas(64) std::array<f64, blockPoints> phaseStep;
  std::array<bool, blockPoints> doubtful;
  std::array<Reached, blockPoints> reached;  // where doubtful
};

SumRange SumsOf(Responses& r, int first, int count) {
  const auto range = [first](const ResponseArray& values, ResponseArray& high, ResponseArray& low) {
    return ExtremesRange{values.data() + first, high.data() + first, low.data() + first};
  };
  return {count,
          nullptr,
          0,
          r.RespPhase.data() + first,
          r.RespTrans.data() + first,
          0,
          {range(r.RespTrans, r.MaxTrans, r.MinTrans), range(r.RespAngle, r.MaxAngle, r.MinAngle),
           range(r.RespDelay, r.MaxDelay, r.MinDelay), range(r.RespReturn, r.MaxReturn, r.MinReturn),
           range(r.RespVSWR, r.MaxVSWR, r.MinVSWR), range(r.RespZin, r.MaxZin, r.MinZin),
           range(r.RespZinAngle, r.MaxZinAngle, r.MinZinAngle)}};
}

// A sweep of a ladder, block by block.
class PointSweep {
 public:
  PointSweep(const Ladder& ladder, Responses& r, const Kernel& kernel) : ladder_(ladder), r_(r), kernel_(kernel) {}

  void Take(int first, int count) {
    block_.first = first;
    block_.count = count;
    if (EvaluateBlock()) {
      StepByStep();
    } else {
      StepTogether();
    }
    Finish();
  }

 private:
  PointArrays ArraysAt(int point) {
    return {r_.RespTrans.data() + point,    r_.RespAngle.data() + point,  r_.RespZin.data() + point,
            r_.RespZinAngle.data() + point, r_.RespReturn.data() + point, r_.RespVSWR.data() + point,
            block_.exactAngle.data()};
  }

  bool EvaluateBlock();
  bool EvaluateDoubtful();
  void StepTogether();
  void StepByStep();
  void StepAt(int i, Reached reached);
  void Finish();

  const Ladder& ladder_;
  Responses& r_;
  const Kernel& kernel_;
  Block block_;
  f64 lastStep_ = 0;  // of the phase, degrees
  f64 phase_ = 0;     // degrees
};

// Whether a point of the block fails.
bool PointSweep::EvaluateBlock() {
  if (ladder_.failsEverywhere) {
    block_.doubtful.fill(true);
    block_.reached.fill(reachedNothing);
    return true;
  }
  const SweepTable& table = r_.table;
  const PointRange range = RangeOf(ladder_, &table.w[static_cast<std::size_t>(block_.first)],
                                   &table.wInverse[static_cast<std::size_t>(block_.first)], block_.count);
  return kernel_.evaluate(range, ArraysAt(block_.first), block_.doubtful.data()) && EvaluateDoubtful();
}

bool PointSweep::EvaluateDoubtful() {
  bool anyFails = false;
  for (int i = 0; i < block_.count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    if (!block_.doubtful[at]) continue;
    const PointArrays out = ArraysAt(block_.first);
    const auto point = static_cast<std::size_t>(block_.first + i);
    const Figures figures = EvaluateSingle(ladder_, r_.table.w[point], r_.table.wInverse[point]);
    out.transDB[i] = static_cast<f32>(figures.transDB);
    out.angle[i] = static_cast<f32>(figures.angle);
    out.exactAngle[i] = figures.angle;
    out.zinMag[i] = static_cast<f32>(figures.zinMag);
    out.zinAngle[i] = static_cast<f32>(-figures.zinAngleRaw);
    out.returnDB[i] = static_cast<f32>(figures.returnDB);
    out.vswr[i] = static_cast<f32>(figures.vswr);
    block_.reached[at] = static_cast<Reached>(figures.reached);
    anyFails |= figures.reached != reachedAll;
  }
  return anyFails;
}

void PointSweep::StepTogether() {
  const int first = block_.first;
  kernel_.takeSteps({block_.count, block_.exactAngle.data(), r_.RespAngle.data() + first,
                     first > 0 ? r_.RespAngle.data()[first - 1] : 0,
                     &r_.table.degreesPerDelay[static_cast<std::size_t>(first)], block_.phaseStep.data(),
                     r_.RespDelay.data() + first});
  lastStep_ = block_.phaseStep[static_cast<std::size_t>(block_.count - 1)];
}

void PointSweep::StepByStep() {
  for (int i = 0; i < block_.count; ++i) {
    const auto at = static_cast<std::size_t>(i);
    StepAt(i, block_.doubtful[at] ? block_.reached[at] : reachedAll);
    block_.phaseStep[at] = lastStep_;
  }
}

// The figures that a point did not reach are those of the point before.
void PointSweep::StepAt(int i, Reached reached) {
  const int point = block_.first + i;
  const auto repeat = [&](ResponseArray& array, f32 atStart = 0) {
    array.data()[point] = point > 0 ? array.data()[point - 1] : atStart;
  };
  if (reached < reachedTransmission) {
    repeat(r_.RespTrans);
    repeat(r_.RespAngle);
    repeat(r_.RespDelay);
  } else {
    const f32 angleBefore = point > 0 ? r_.RespAngle.data()[point - 1] : 0;
    const StepRange step = {1,
                            &block_.exactAngle[static_cast<std::size_t>(i)],
                            r_.RespAngle.data() + point,
                            angleBefore,
                            &r_.table.degreesPerDelay[static_cast<std::size_t>(point)],
                            &lastStep_,
                            r_.RespDelay.data() + point};
    kernel_.takeSteps(step);
  }
  if (reached < reachedImpedance) {
    repeat(r_.RespZin);
    repeat(r_.RespZinAngle, -0.0F);
  }
  if (reached < reachedAll) {
    repeat(r_.RespReturn);
    repeat(r_.RespVSWR);
  }
}

// Sums up the phase, widens the extremes, and keeps the first of equal peaks.
void PointSweep::Finish() {
  SumRange sums = SumsOf(r_, block_.first, block_.count);
  sums.phaseStep = block_.phaseStep.data();
  sums.phase = phase_;
  sums.largest = static_cast<f32>(r_.TransPeak);
  kernel_.takeSums(sums);
  phase_ = sums.phase;
  if (!(sums.largest > static_cast<f32>(r_.TransPeak))) return;
  const auto at = std::find(sums.trans, sums.trans + sums.count, sums.largest) - sums.trans;
  r_.TransPeak = static_cast<f64>(sums.trans[at]);
  r_.TransPeakFreq = static_cast<f64>(r_.RespFreq.data()[block_.first + at]);
}

}  // namespace

void BeginSweep(Responses& r, const SweepSettings& settings) {
  KeepTable(r.table, settings);
  std::copy_n(r.table.frequency.data(), r.table.points, r.RespFreq.data());
  r.TransPeak = lowestPeak;
  r.TransPeakFreq = 0;
}

void SweepPoints(const Ladder& ladder, Responses& responses, VectorWidth width) {
  const Kernel& kernel = KernelFor(width);
  PointSweep sweep(ladder, responses, kernel);
  for (int first = 0; first < responses.table.points; first += blockPoints) {
    sweep.Take(first, std::min(blockPoints, responses.table.points - first));
  }
}

void SweepNothing(Responses& r, VectorWidth width) {
  const int points = r.table.points;
  for (ResponseArray* array :
       {&r.RespTrans, &r.RespAngle, &r.RespDelay, &r.RespReturn, &r.RespVSWR, &r.RespZin, &r.RespZinAngle}) {
    std::fill_n(array->data(), points, 0.0F);
  }
  SumRange sums = SumsOf(r, 0, points);
  static constexpr std::array<f64, responseBound + 1> noSteps{};
  sums.phaseStep = noSteps.data();
  KernelFor(width).takeSums(sums);
}

}  // namespace quilm
