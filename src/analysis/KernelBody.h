// The kernel: points in, figures out, a pack at a time. Included once by each implementation (see LaneMath.h).
#pragma once

#include "analysis/KernelFinish.h"
#include "analysis/KernelResults.h"
#include "analysis/KernelVariants.h"
#include "core/ResponseArray.h"

namespace quilm {

template <class Target, int N, int K>
struct KernelBody {
  using Got = Results<Target, N, K>;
  static constexpr int points = N * K;
  static_assert(sweepPadding % points == 0);

  static bool Evaluate(const PointRange& range, const PointArrays& out, bool* doubtful) {
    bool any = false;
    for (int at = 0; at < range.count; at += points) {
      const int count = CountAt(range, at);
      const Got got = FiguresAt(range, at);
      if (count == points) {
        Keep(got, out, at);
      } else {
        KeepSome(got, out, at, count);
      }
      any |= MarkDoubtful(got, doubtful + at, count);
    }
    return any;
  }

  static void EvaluateFigures(const PointRange& range, Figures* figures) {
    for (int at = 0; at < range.count; at += points) {
      KeepFigures(FiguresAt(range, at), figures + at, CountAt(range, at));
    }
  }

  static void Steps(const StepRange& range) { TakeSteps<Target>(range); }
  static void Sums(SumRange& range) { TakeSums<Target, 2 * N>(range); }

  static constexpr Kernel kernel = {Evaluate, EvaluateFigures, Steps, Sums};

 private:
  [[gnu::always_inline]] static inline int CountAt(const PointRange& range, int at) {
    return range.count - at < points ? range.count - at : points;
  }

  [[gnu::always_inline]] static inline Got FiguresAt(const PointRange& range, int at) {
    Walk<Target, N, K> walk;
    walk.Start(range.ladder, range.w + at, range.wInverse + at);
    for (const CompiledStage* stage = range.firstStage; stage != range.lastStage; ++stage) walk.Pass(*stage);
    Got got;
    got.Take(range.ladder, walk);
    return got;
  }

  [[gnu::always_inline]] static inline void Keep(const Got& got, const PointArrays& out, int at) {
    got.transDB.Store(out.transDB + at);
    got.angle.Store(out.angle + at);
    got.angle.Store(out.exactAngle + at);
    got.zinMag.Store(out.zinMag + at);
    (-got.zinAngleRaw).Store(out.zinAngle + at);
    got.returnDB.Store(out.returnDB + at);
    got.vswr.Store(out.vswr + at);
  }

  // The last points of a range, fewer than a pack has: nothing beyond them may be written.
  static void KeepSome(const Got& got, const PointArrays& out, int at, int count) {
    f32 narrow[6][points];
    f64 exactAngle[points];
    Keep(got, {narrow[0], narrow[1], narrow[2], narrow[3], narrow[4], narrow[5], exactAngle}, 0);
    for (int i = 0; i < count; ++i) {
      out.transDB[at + i] = narrow[0][i];
      out.angle[at + i] = narrow[1][i];
      out.zinMag[at + i] = narrow[2][i];
      out.zinAngle[at + i] = narrow[3][i];
      out.returnDB[at + i] = narrow[4][i];
      out.vswr[at + i] = narrow[5][i];
      out.exactAngle[at + i] = exactAngle[i];
    }
  }

  [[gnu::always_inline]] static inline bool MarkDoubtful(const Got& got, bool* doubtful, int count) {
    for (int i = 0; i < count; ++i) doubtful[i] = false;
    if (!(~got.gotAll).Any()) [[likely]] {
      return false;
    }
    bool any = false;
    for (int i = 0; i < count; ++i) {
      doubtful[i] = !got.gotAll.At(i);
      any |= doubtful[i];
    }
    return any;
  }

  static void KeepFigures(const Got& got, Figures* figures, int count) {
    for (int i = 0; i < count; ++i) {
      const Reached reached = got.gotAll.At(i)            ? reachedAll
                              : got.gotImpedance.At(i)    ? reachedImpedance
                              : got.gotTransmission.At(i) ? reachedTransmission
                                                          : reachedNothing;
      figures[i] = {got.transDB.At(i),  got.angle.At(i), got.zinMag.At(i), got.zinAngleRaw.At(i),
                    got.returnDB.At(i), got.vswr.At(i),  reached};
    }
  }
};

}  // namespace quilm
