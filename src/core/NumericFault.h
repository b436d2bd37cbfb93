// Arithmetic faults. C++ does not trap a division by zero, an overflow or an invalid operation; the routines of
// the program that must end on one evaluate inside a NumericFaultScope and pass what they store through it.
#pragma once

#include "core/Fault.h"
#include "core/Types.h"

namespace quilm {

// Watches the floating-point exception flags from its construction on. On destruction the flags that were set
// before come back, so scopes nest.
//
//   NumericFaultScope scope;
//   record.stage[s].Cval.value = scope.Store(1 / (g * rs * ww));   // throws NumericFault when g is 0
class NumericFaultScope {
 public:
  NumericFaultScope();
  ~NumericFaultScope();
  NumericFaultScope(const NumericFaultScope&) = delete;
  NumericFaultScope& operator=(const NumericFaultScope&) = delete;

  // Throws NumericFault ("Division by zero", "Overflow" or "Invalid procedure call or argument") when a division by
  // zero, an overflow or an invalid operation has happened since the scope began. Taking the value through the call
  // keeps the compiler from moving its computation past the test.
  f64 Checked(f64 value);

  // The value rounded to 32 bits; throws like Checked, also when the rounding itself overflows.
  f32 Store(f64 value);

 private:
  int before_;
};

// Rounds to the nearest whole number, ties to even. Throws NumericFault ("Overflow") outside -32768..32767 and for a
// NaN. Every conversion of a float to a 16-bit count in the program goes through it.
i16 ToI16(f64 value);

}  // namespace quilm
