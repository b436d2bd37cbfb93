// The faults of the program's own making. Handlers catch them at the one place that a behaviour names.
#pragma once

#include <stdexcept>

namespace quilm {

// Any fault that ends an operation. what() says what happened in plain words.
class Fault : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// An array was indexed outside its declared bounds: a mistake of ours.
class BoundFault : public Fault {
 public:
  BoundFault() : Fault("Subscript out of range") {}
};

// Arithmetic left the range of numbers: a division by zero, an overflow or an invalid operation.
class NumericFault : public Fault {
 public:
  using Fault::Fault;
};

}  // namespace quilm
