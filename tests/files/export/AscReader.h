// A schematic of LTspice read back as a circuit, by its geometry alone.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/Types.h"

namespace quilm {

struct AscPart {
  std::string symbol;              // "res"
  std::string name;                // "R1"
  std::string value;               // as it stands, without blanks at its ends
  std::string spiceLine;           // "Rser=0.5"
  std::vector<std::string> nodes;  // in the order of the pins in a netlist; "0" is common
};

struct AscSheet {
  std::string sheetWidth;
  std::vector<AscPart> parts;           // in the order of the file
  std::vector<std::string> directives;  // ".AC DEC 250 1000 1E+07", "K L1a L1b 0.5"
  std::vector<std::string> comments;    // the other texts
  std::map<std::string, int> pinsAt;    // by node
};

// Throws Fault for a line, a symbol or a turn that such a schematic does not have, and for a part or wire off the grid.
AscSheet ReadAsc(const std::string& text);

// The part of a name; throws Fault when there is none.
const AscPart& PartNamed(const AscSheet& sheet, const std::string& name);

// The netlist of the sheet, a title first: what a simulator would make of it, with the losses of parts as resistors.
// Values stand as they are written.
std::string NetlistOf(const AscSheet& sheet);

// A value as simulators read it: a number, a multiplier (T, G, Meg, K, m, u, n, p, f) and whatever letters follow.
// Throws Fault for a text that does not begin with a number.
f64 SimulatorNumber(const std::string& text);

// The number behind `key` and "=" in the text.
f64 NumberAfter(const std::string& text, const std::string& key);

}  // namespace quilm
