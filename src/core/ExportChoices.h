// What the pages that write files for other programs remember for the run of the program.
#pragma once

#include <string>

#include "core/Types.h"

namespace quilm {

struct ExportChoices {
  i16 SnPPorts = 2;    // 1 S1P, 2 S2P
  i16 SnPVersion = 1;  // 1 version 1.0, 2 version 2.0
  i16 SnPUnit = 3;     // frequencies in 1 Hz, 2 kHz, 3 MHz, 4 GHz
  i16 SnPFormat = 1;   // magnitudes as 1 decibels, 2 volts per volt

  bool netlistForLTspice = false;  // the dialect of the verified netlist: LTspice, else ngspice

  // The file that was chosen last for each kind; empty before the first.
  std::string SnPFileName;
  std::string TabEasyFileName;
  std::string TabSciFileName;
  std::string SpiceCirFileName;
  std::string SpiceSubFileName;
  std::string SpiceSchematicFileName;
  std::string SpiceSymbolFileName;
  std::string DiplexerSchematicFileName;
  std::string VerifiedNetlistFileName;

  std::string folder;  // of the file that was chosen last of all; empty before the first
};

}  // namespace quilm
