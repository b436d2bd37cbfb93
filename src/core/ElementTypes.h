// The element types of a ladder's stages.
#pragma once

#include "core/Types.h"

namespace quilm {

// "Series" is in line between two stages, "Shunt" from the line to common; SLC is an L and a C in series with each
// other, PLC an L and a C in parallel. 17 and 18 are forms of entry that become plain parts.
enum ElementCode : i16 {
  SeriesL = 1,
  ShuntL = 2,
  SeriesC = 3,
  ShuntC = 4,
  SeriesSLC = 5,
  ShuntSLC = 6,
  SeriesPLC = 7,
  ShuntPLC = 8,
  SeriesR = 9,
  ShuntR = 10,
  TransLine = 11,
  SeriesShortStub = 12,
  SeriesOpenStub = 13,
  ShuntShortStub = 14,
  ShuntOpenStub = 15,
  Transformer = 16,
  SeriesReactance = 17,
  ShuntReactance = 18,
  CoupledInductors = 19,
  ShuntRLC = 20,
  SeriesRLC = 21,
};

}  // namespace quilm
