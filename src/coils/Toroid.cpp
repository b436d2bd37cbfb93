#include "coils/Toroid.h"

#include <cmath>

#include "core/NumericFault.h"

namespace quilm {

f32 ToroidTurns(f32 inductance, f32 AL) {
  NumericFaultScope scope;
  // Through 32 bits, so that entries which ask for a half turn are one in spite of their own last bits.
  const f32 turns = scope.Store(100 * std::sqrt(static_cast<f64>(inductance) * 1e6 / static_cast<f64>(AL)));
  return scope.Store(std::floor(static_cast<f64>(turns) + 0.5));
}

}  // namespace quilm
