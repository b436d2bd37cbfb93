#include "core/NumericFault.h"

#include <cfenv>
#include <cmath>

namespace quilm {

namespace {

constexpr int watched = FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID;

void ThrowIfRaised() {
  const int raised = std::fetestexcept(watched);
  if (raised == 0) return;
  std::feclearexcept(watched);
  if ((raised & FE_DIVBYZERO) != 0) throw NumericFault("Division by zero");
  if ((raised & FE_OVERFLOW) != 0) throw NumericFault("Overflow");
  throw NumericFault("Invalid procedure call or argument");
}

}  // namespace

NumericFaultScope::NumericFaultScope() : before_(std::fetestexcept(watched)) { std::feclearexcept(watched); }

NumericFaultScope::~NumericFaultScope() {
  std::feclearexcept(watched);
  if (before_ != 0) std::feraiseexcept(before_);
}

f64 NumericFaultScope::Checked(f64 value) {
  // A volatile copy: the value must exist before the flags are read.
  volatile f64 formed = value;
  ThrowIfRaised();
  return formed;
}

f32 NumericFaultScope::Store(f64 value) {
  volatile f32 formed = static_cast<f32>(value);
  ThrowIfRaised();
  return formed;
}

i16 ToI16(f64 value) {
  const f64 whole = std::nearbyint(value);
  if (!(whole >= -32768.0 && whole <= 32767.0)) throw NumericFault("Overflow");
  return static_cast<i16>(whole);
}

}  // namespace quilm
