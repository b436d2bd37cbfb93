// Lowpass and highpass ladders.
//
// In a prototype without transmission zeros Gj holds every element. With CauerFlag 1 the even positions are tuned
// branches, Hj the inductor and Gj the capacitor across it, and a Gj of 0 leaves the plain inductor.

#include "synthesis/Topologies.h"

namespace quilm {

namespace {

// Lowpass scaling of a prototype value.
f64 Henries(const Scales& k, f64 value) { return value * k.Rs / k.OmegaWidth; }
f64 Farads(const Scales& k, f64 value) { return value / (k.OmegaWidth * k.Rs); }

// Highpass scaling: a prototype capacitor becomes an inductor and the other way round.
f64 HighHenries(const Scales& k, f64 value) { return k.Rs / (k.OmegaWidth * value); }
f64 HighFarads(const Scales& k, f64 value) { return 1 / (value * k.Rs * k.OmegaWidth); }

// A series branch, with a capacitor across it where the prototype has one.
void PutTrap(Scales& k, int j, f64 inductor, f64 capacitor) {
  if (capacitor > 0) {
    k.Put(j, SeriesPLC, Henries(k, inductor), Farads(k, capacitor));
  } else {
    k.Put(j, SeriesL, Henries(k, inductor), 0);
  }
}

void PutSeriesOfA(Scales& k, int j) {
  if (k.record.CauerFlag != 1) {
    PutTrap(k, j, k.G(j), k.H(j));
  } else if (j == k.n) {
    k.Put(j, SeriesL, Henries(k, k.H(j)), 0);  // a zero at infinity: the last element of an even order stands alone
  } else {
    PutTrap(k, j, k.H(j), k.G(j));
  }
}

void PutShuntOfB(Scales& k, int j) {
  const f64 g = k.G(j);
  const f64 h = k.H(j);
  if (k.record.CauerFlag != 1) {
    if (h > 0) {
      k.Put(j, ShuntSLC, Henries(k, h), Farads(k, g));
    } else {
      k.Put(j, ShuntC, 0, Farads(k, g));
    }
  } else if (h > 0) {
    const f64 capacitor = h / k.Rs / k.OmegaWidth;
    if (g > 0) {
      k.Put(j, ShuntSLC, Henries(k, g), capacitor);
    } else {
      k.Put(j, ShuntC, 0, capacitor);
    }
  }
}

void PutShuntOfI(Scales& k, int j) {
  const f64 g = k.G(j);
  const f64 h = k.H(j);
  if (g <= 0) {
    k.Put(j, ShuntL, HighHenries(k, h), 0);
  } else if (k.record.CauerFlag != 1) {
    if (h <= 0) {
      k.Put(j, ShuntL, HighHenries(k, g), 0);
    } else {
      k.Put(j, ShuntSLC, HighHenries(k, g), HighFarads(k, h));
    }
  } else if (j == k.n) {
    k.Put(j, ShuntL, HighHenries(k, h), 0);
  } else {
    k.Put(j, ShuntSLC, HighHenries(k, h), HighFarads(k, g));
  }
}

void PutSeriesOfJ(Scales& k, int j) {
  const f64 g = k.G(j);
  const f64 h = k.H(j);
  if (g <= 0) {
    k.Put(j, SeriesC, 0, HighFarads(k, h));
  } else if (k.record.CauerFlag != 1) {
    if (h <= 0) {
      k.Put(j, SeriesC, 0, HighFarads(k, g));
    } else {
      // Both from H. A prototype without zeros has no H, so only values that a file brought come here; the network
      // computed from such a file must stay the one that was built.
      k.Put(j, SeriesPLC, HighHenries(k, h), HighFarads(k, h));
    }
  } else if (j == k.n) {
    k.Put(j, SeriesC, 0, HighFarads(k, h));
  } else {
    k.Put(j, SeriesPLC, HighHenries(k, g), HighFarads(k, h));
  }
}

}  // namespace

int BuildCapInLowpass(Scales& scales) {
  for (int j = 1; j <= scales.n; j += 2) scales.Put(j, ShuntC, 0, Farads(scales, scales.G(j)));
  for (int j = 2; j <= scales.n; j += 2) PutSeriesOfA(scales, j);
  return scales.n;
}

int BuildIndInLowpass(Scales& scales) {
  for (int j = 1; j <= scales.n; j += 2) scales.Put(j, SeriesL, scales.Rs / scales.OmegaWidth * scales.G(j), 0);
  for (int j = 2; j <= scales.n; j += 2) PutShuntOfB(scales, j);
  return scales.n;
}

int BuildCapInHighpass(Scales& scales) {
  for (int j = 1; j <= scales.n; j += 2) {
    if (scales.G(j) > 0) {
      scales.Put(j, SeriesC, 0, HighFarads(scales, scales.G(j)));
    } else {
      scales.Put(j, emptyPlace, 0, 0);
    }
  }
  for (int j = 2; j <= scales.n; j += 2) PutShuntOfI(scales, j);
  return scales.n;
}

int BuildIndInHighpass(Scales& scales) {
  for (int j = 1; j <= scales.n; j += 2) {
    if (scales.G(j) > 0) {
      scales.Put(j, ShuntL, HighHenries(scales, scales.G(j)), 0);
    } else {
      scales.Put(j, emptyPlace, 0, 0);
    }
  }
  for (int j = 2; j <= scales.n; j += 2) PutSeriesOfJ(scales, j);
  return scales.n;
}

}  // namespace quilm
