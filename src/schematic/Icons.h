// The small drawn signs on buttons. Black stands for the colour of the button's text, the paper is transparent; blue
// and red are the colours of the traces.
#pragma once

#include "shell/Picture.h"

namespace quilm {

enum class Sign {
  Design,
  Schematic,
  Edit,
  Analysis,
  Plot,
  Tabulate,
  Get,
  Save,
  Write,
  Print,
  Help,
  About,
  Exit,
  Nearest5,
  SpecifyL,
  SwapEnds,
  SinglyTerm,
  Diplexer,
  Tubular,
  ZMatch,
  WindL,
  FindL,
  Bisection,
  EndSections,
  Toroid,
  Norton,
  TeeToPi,
  Title,
  Info,
  Normalized,
  Manual,
};

// In a square of 1000 units.
Picture SignPicture(Sign sign);

// What one of the twelve plots looks like, in a frame of 1600 by 1000 units: 1 transmission, 2 with return, 3 with
// angle, 4 with delay, 5 VSWR, 6 with transmission, 7 input impedance, 8 with transmission, 9 with angle, 10 real and
// imaginary, 11 Smith chart, 12 polar.
Picture CurvePicture(int plotButton);

}  // namespace quilm
