#include "pages/guidance/FamilyTexts.h"

#include <algorithm>

#include "core/Identity.h"

namespace quilm {

namespace {

// Users know these texts: they stand as they always have, "viewpont" and the small k of "Constant-k" included.
constexpr GuidedFamily families[] = {
    {familyButterworth, "Butterworth",
     "Butterworth:  Also called 'maximally-flat passband.'  Passband magnitude response and group delay are both "
     "smooth "
     "and modest. Descent into the stopband past the rolloff continues at about 6*N dB/octave, where N is order."},
    {familyChebyshev, "Chebyshev",
     "Chebyshev:  Characterized by both amplitude and phase ripple in the passband.  By relaxing passband flatness, "
     "the "
     "descent into the stopband immediately outside the passband can be made greater. Group delay near cutoff is "
     "greater than that of the Butterworth filter.  The ultimate rate of descent into the stopband is at the same rate "
     "as for Butterworth."},
    {familyCauer, "Cauer",
     "Cauer:  Has the various traits of the Chebyshev in the passband.  Faster descent into the stopband is achieved "
     "at "
     "the expense of a finite stopband depth. The stopband region has 'flareups' in the magnitude response."},
    {familyBessel, "Bessel",
     "Bessel:  Characterized by a constant time delay in the passband.  For higher orders this trait extends into the "
     "stopband.  (See red trace.) Transient response on pulses will show a small overshoot. Best magnitude response "
     "shape possible consistent with constant delay.  Commonly used for a time delay; performs well in defining the "
     "spectrum of a pulse."},
    {familyGaussian, "Gaussian",
     "Gaussian:  Characterized by no overshoot on a pulse.  Passband group delay is nearly constant. (See red trace.) "
     "Best magnitude response shape possible consistent with no overshoot.  Similar to the Bessel."},
    {familyConstantK, "Constant-K",
     "Constant-K:  Has repetitive component values, very good from a manufacturing viewpont. Both magnitude response "
     "and group delay show ripples which increase near the bandedge. Shouldn't be considered a 'precise' filter."},
    {familyMderived, "M-derived",
     "M-derived:  A very old attempt at getting better selectivity than Butterworth or Constant-k. It has been "
     "replaced "
     "by the more-efficient Cauer family."},
};

}  // namespace

std::span<const GuidedFamily> GuidedFamilies() { return families; }

i16 GuideOf(i16 family) {
  const i16 code = family == familyGaussian12 ? i16{familyGaussian} : family;
  const auto at = std::ranges::find(families, code, &GuidedFamily::code);
  return at == std::end(families) ? i16{1} : static_cast<i16>(at - std::begin(families) + 1);
}

}  // namespace quilm
