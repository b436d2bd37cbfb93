#include "core/Identity.h"

namespace quilm {

std::string FamilyName(i16 family) {
  switch (family) {
    case familyButterworth:
      return "Butterworth";
    case familyChebyshev:
      return "Chebyshev";
    case familyCauer:
      return "Cauer";
    case familyBessel:
      return "Bessel";
    case familyGaussian:
      return "Gaussian";
    case familyConstantK:
      return "Constant-K";
    case familyMderived:
      return "M-derived";
    case familyGaussian12:
      return "Gaussian to 12";
    case familyManual:
      return "Manual entry";
    default:
      return {};
  }
}

}  // namespace quilm
