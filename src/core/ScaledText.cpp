#include "core/ScaledText.h"

#include <algorithm>
#include <cmath>

#include "core/NumberText.h"

namespace quilm {

namespace {

int DecimalsOf(f32 scaled, const DecimalMask& mask) {
  const f32 limits[] = {1000, 100, 10, 1};
  const auto* at = std::find_if(std::begin(limits), std::end(limits), [scaled](f32 limit) { return scaled > limit; });
  return mask.decimals[at - std::begin(limits)];
}

}  // namespace

const ScaleRow& RowOf(f32 magnitude, std::span<const ScaleRow> rows) {
  const auto at = std::find_if(rows.begin(), rows.end() - 1,
                               [magnitude](const ScaleRow& row) { return magnitude >= row.threshold; });
  return *at;
}

std::string ScaledText(f32 value, const ScaleRow& row, const DecimalMask& mask, bool signedMask) {
  const f32 scaled = static_cast<f32>(static_cast<f64>(value) / row.divisor);
  const int decimals =
      row.decimals != byMask ? row.decimals : DecimalsOf(signedMask ? scaled : std::fabs(scaled), mask);
  return ShortText(RoundedTo(scaled, decimals), LeadingZero::Keep) + row.unit;
}

std::string TextByMagnitude(f32 value, std::span<const ScaleRow> rows, const DecimalMask& mask) {
  return ScaledText(value, RowOf(std::fabs(value), rows), mask, false);
}

}  // namespace quilm
