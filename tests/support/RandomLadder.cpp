#include "support/RandomLadder.h"

#include <cmath>
#include <vector>

#include "core/ElementCatalogue.h"

namespace quilm {

namespace {

// A value within a factor of 10 of the middle, evenly by logarithm.
f32 Around(std::mt19937& random, f64 middle) {
  std::uniform_real_distribution<f64> exponent(-1, 1);
  return static_cast<f32>(middle * std::pow(10, exponent(random)));
}

}  // namespace

std::span<const i16> AnalysableTypes() {
  static const std::vector<i16> types = [] {
    std::vector<i16> found;
    for (const Element& element : Elements()) {
      if (!element.slots.empty()) found.push_back(element.code);
    }
    return found;
  }();
  return types;
}

DesignRecord RandomLadder(std::mt19937& random, int stages, std::span<const i16> types) {
  std::uniform_int_distribution<std::size_t> pick(0, types.size() - 1);
  std::uniform_real_distribution<f32> unit(0.1F, 0.9F);
  DesignRecord record;
  record.Stages = static_cast<i16>(stages);
  for (int s = 1; s <= stages; ++s) {
    Stage& stage = record.stage[s];
    stage.ElementType = types[pick(random)];
    stage.Lval.value = Around(random, 8e-6);
    stage.Cval.value = Around(random, 3.2e-9);
    stage.Rval.value = Around(random, 50);
    stage.TLval = {Around(random, 30), 1e6F, Around(random, 50), 0, 0};
    stage.XfmrVal.value = Around(random, 1);
    stage.CoupledVal = {Around(random, 8e-6), Around(random, 8e-6), unit(random), 0, 0, 0};
  }
  record.Rsource[1] = Around(random, 50);
  record.Rload[1] = Around(random, 50);
  record.Rstandard = record.Rsource[1];
  record.Qind[1] = Around(random, 200);
  record.Qcap[1] = Around(random, 2000);
  record.Width = 1e6F;
  record.Fstart = 1e4F;
  record.Fstop = 1e8F;
  record.SweepMode = 2;
  record.NrIntervals = 2049;
  return record;
}

}  // namespace quilm
