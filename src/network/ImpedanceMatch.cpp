#include "network/ImpedanceMatch.h"

#include <cmath>

#include "core/NumericFault.h"
#include "network/NetworkEdits.h"

namespace quilm {

namespace {

i16 StageAt(const Network& network, MatchSide side, int fromEnd) {
  return static_cast<i16>(side == MatchSide::Input ? fromEnd : network.Stages + 1 - fromEnd);
}

// The type of the stage `fromEnd` places from the termination, 1 for that at the end; 0 beyond the network.
i16 TypeAt(const Network& network, MatchSide side, int fromEnd) {
  if (fromEnd > network.Stages) return 0;
  return network.stage[StageAt(network, side, fromEnd)].ElementType;
}

bool EndsInSplitPair(const Network& network, MatchSide side) {
  return TypeAt(network, side, 1) == SeriesL && TypeAt(network, side, 2) == ShuntC &&
         TypeAt(network, side, 3) == SeriesC;
}

// The options of an end, by the type of its last stage. The input takes the split pair for the series-tuned stage that
// it was. The output goes by the last stage alone: a split pair there has no options for a higher termination, and for
// a lower one those of a parallel-tuned end. Designs that were matched so come out the same.
bool IsSeriesTuned(const Network& network, MatchSide side) {
  return TypeAt(network, side, 1) == SeriesSLC || (side == MatchSide::Input && EndsInSplitPair(network, side));
}

bool TakesDividers(const Network& network, MatchSide side) {
  return side == MatchSide::Input ? TypeAt(network, side, 1) == ShuntPLC : !IsSeriesTuned(network, side);
}

// The sections of one end, whose formulas keep the letters of the theory: R the termination that the network sees, N
// the one that is connected, W the angular frequency, L and C the parts of the end stage.
class Sections {
 public:
  Sections(const Stage& end, MatchSide side, f32 R, f32 N, f32 W)
      : end_(end), side_(side), R_(R), N_(N), W_(W), L_(end.Lval.value), C_(end.Cval.value) {}

  std::vector<MatchOption> Dividers() {
    const f64 n = scope_.Checked(std::sqrt(R_ / N_));
    const f64 X = LowerReactance();
    const f64 B = std::sqrt((R_ - N_) / (R_ * R_ * N_));
    const f64 Y = N_ * R_ / X;
    return {
        Option(1, {Part(SeriesC, 0, 1 / (W_ * X)), End(end_.ElementType, L_, C_ - B / W_)}),
        Option(2, {Part(ShuntC, 0, C_ * n), Part(SeriesC, 0, C_ * n / (n - 1)), End(ShuntL, L_, 0)}),
        Option(3, {Part(SeriesL, X / W_, 0), End(end_.ElementType, L_, C_ + 1 / (Y * W_))}),
        Option(4, {Part(ShuntL, L_ / n, 0), Part(SeriesL, L_ * (n - 1) / n, 0), End(ShuntC, 0, C_)}),
    };
  }

  MatchOption ForLower() {
    const f64 X = LowerReactance();
    const f64 Y = N_ * R_ / X;
    return Option(5, {Part(SeriesL, X / W_, 0), Part(ShuntC, 0, 1 / (Y * W_)), end_});
  }

  MatchOption ForHigher() {
    const f64 X = std::sqrt(N_ * R_ - R_ * R_);
    const f64 Y = N_ * R_ / X;
    return Option(5, {Part(ShuntC, 0, 1 / (Y * W_)), End(end_.ElementType, L_ + X / W_, C_)});
  }

 private:
  f64 LowerReactance() { return std::sqrt(N_ * R_ - N_ * N_); }

  MatchOption Option(int number, std::vector<Stage> stages) const {
    return {static_cast<i16>(AsItIs(side_) + number), std::move(stages)};
  }

  Stage Part(i16 elementType, f64 L, f64 C) {
    Stage part;
    part.ElementType = elementType;
    part.Lval.value = scope_.Store(L);
    part.Cval.value = scope_.Store(C);
    return part;
  }

  // The end stage with other parts; its other values stay.
  Stage End(i16 elementType, f64 L, f64 C) {
    Stage end = end_;
    end.ElementType = elementType;
    end.Lval.value = scope_.Store(L);
    end.Cval.value = scope_.Store(C);
    return end;
  }

  NumericFaultScope scope_;
  const Stage& end_;
  MatchSide side_;
  f64 R_;
  f64 N_;
  f64 W_;
  f64 L_;
  f64 C_;
};

// A part takes its place, whose tolerances stay where they are.
void TakeParts(Stage& place, const Stage& part) {
  place.ElementType = part.ElementType;
  place.Lval.value = part.Lval.value;
  place.Cval.value = part.Cval.value;
}

}  // namespace

f32 TerminationAt(const Network& network, MatchSide side) {
  return side == MatchSide::Input ? network.Rsource[1] : network.Rload[1];
}

bool HasMatchingPair(const Network& network, MatchSide side) {
  const i16 end = TypeAt(network, side, 1);
  return end == SeriesSLC || end == ShuntPLC || EndsInSplitPair(network, side);
}

NewTermination CompareTermination(const Network& network, MatchSide side, f32 ohms) {
  const bool input = side == MatchSide::Input;
  const f64 least = input ? 0 : 0.01;
  const f64 sameFrom = input ? 1 : 0.9999;
  const f64 sameTo = input ? 1 : 1.0001;
  const f64 R = f64{TerminationAt(network, side)};
  const f64 N = f64{ohms};
  if (!(N > least)) return NewTermination::TooLow;
  if (N < R * sameFrom) return NewTermination::Lower;
  return N > R * sameTo ? NewTermination::Higher : NewTermination::Same;
}

std::vector<MatchOption> MatchOptions(const Network& network, MatchSide side, f32 ohms, f32 OmegaCenter) {
  if (!HasMatchingPair(network, side)) return {};
  const NewTermination wish = CompareTermination(network, side, ohms);
  const Stage& end = network.stage[StageAt(network, side, 1)];
  Sections sections(end, side, TerminationAt(network, side), ohms, OmegaCenter);
  if (wish == NewTermination::Lower && TakesDividers(network, side)) return sections.Dividers();
  if (wish == NewTermination::Lower) return {sections.ForLower()};
  if (wish == NewTermination::Higher && IsSeriesTuned(network, side)) return {sections.ForHigher()};
  return {};
}

void SetMatch(Network& network, const MatchOption& option, f32 ohms) {
  const bool input = option.code < outputAsItIs;
  const MatchSide side = input ? MatchSide::Input : MatchSide::Output;
  const int places = static_cast<int>(option.stages.size()) - 1;
  MovePartsUp(network, input ? 1 : network.Stages + 1, places);
  int fromEnd = 0;
  for (const Stage& stage : option.stages) TakeParts(network.stage[StageAt(network, side, ++fromEnd)], stage);
  (input ? network.Rsource : network.Rload)[1] = ohms;
  if (input) network.Rstandard = ohms;
}

}  // namespace quilm
