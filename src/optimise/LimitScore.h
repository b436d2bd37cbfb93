// How far a response lies outside the limit areas of the plots.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "core/LimitsAndMarkers.h"
#include "core/Responses.h"
#include "core/Types.h"

namespace quilm {

// The areas that bound a response, shapes 1 to 6 of all plot types, whichever plot is on display, each with the sweep
// points between its edges. Made once for as long as limits, sweep and DelayTop stand: for a run, for a tool.
class LimitScore {
 public:
  // `frequencies` are those of the sweep in Hz, in its order; an area is found on them by its edges, both included, so
  // that one whose edges are swapped has no points. DelayTop in seconds. Throws BoundFault when a plot has more areas
  // than the tables hold.
  LimitScore(const LimitsAndMarkers& limits, f32 DelayTop, std::span<const f32> frequencies);

  // The sum over points, plot types and areas, in this order, of what a response lies outside: dB, degrees, ratio,
  // ohms, and per cent of DelayTop for delays. 0 inside all areas. Each summand and each sum is rounded to 32 bits.
  //
  // What lies outside is told as |limit| - |response|, of which the magnitude counts: with a limit of 2 a response of
  // -2 adds nothing. Optimising rests on these figures, so the difference is not to be taken otherwise. A delay outside
  // its area with a DelayTop of 0 makes the sum infinite.
  f32 GetError(const Responses& responses) const;

  // Whether no point lies outside any area. Not the same as an error of 0, see there.
  bool IsMet(const Responses& responses) const;

  // Whether any area bounds a response at a point of the sweep.
  bool HasPoints() const { return !stretches_.empty(); }

 private:
  struct Area {
    int plotType;  // 1..6
    bool isFloor;  // the response is to stay at or above the edge, else at or below it
    f32 edge;
    int first;  // sweep points first..end-1
    int end;
  };

  // Points first..end-1, between the same areas all along.
  struct Stretch {
    int first;
    int end;
    std::vector<Area> areas;  // by plot type, then number
  };

  // What of the sweep a plot type bounds, by plot type less 1.
  using Bounded = std::array<const f32*, plotTypes>;

  static Bounded BoundedOf(const Responses& responses);
  static bool IsOutside(const Area& area, f32 response);
  f32 Excess(const Area& area, f32 response) const;
  void TakeArea(const LimitsAndMarkers& limits, int plotType, int number, std::span<const f32> frequencies);
  void MakeStretches();

  f32 DelayTop_;
  std::vector<Area> areas_;
  std::vector<Stretch> stretches_;
};

// The areas that the user has entered, of all plot types and shapes.
int LimitAreas(const LimitsAndMarkers& limits);

}  // namespace quilm
