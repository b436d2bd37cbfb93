// The page that writes the design and its responses for other programs.
#pragma once

#include "files/export/SpiceNetlist.h"
#include "shell/Page.h"

namespace quilm {

struct ExportKind;
struct ResponseSpans;

class frmWriteFiles : public Page {
 public:
  explicit frmWriteFiles(Session& session);
  void Load() override;
  void CloseBox() override;
  Layout MakeLayout() override;

 private:
  void WriteSpice(const ExportKind& kind, SpiceFileKind file);
  void WriteVerified();
  void WriteTable(const ExportKind& kind, std::string (*table)(const ResponseSpans&));
  void GoTo(PageId target);

  Label lblHeading_{*this, "lblHeading", "File-writing routine"};

  Button cmdWriteSnP_{*this, "cmdWriteSnP", "Write S-parameter file",
                      "S1P or S2P, for simulators and for comparison with measurements"};
  Button cmdWriteTabulatedS_{*this, "cmdWriteTabulatedS", "Write tabulated data file (scientific format)",
                             "The responses as plain numbers, for spreadsheets"};
  Button cmdWriteTabulatedE_{*this, "cmdWriteTabulatedE", "Write tabulated data file (easy-to-read format)",
                             "The responses with multipliers, for reading"};
  Button cmdWriteNetlist_{*this, "cmdWriteNetlist", "Write generic SPICE netlist (.CIR)",
                          "A deck with source, load and analysis for any SPICE"};
  Button cmdWriteSubcircuit_{*this, "cmdWriteSubcircuit", "Write SPICE subcircuit file (.SUB)",
                             "The network alone, to be called from other netlists"};
  Button cmdWriteSpiceSchematic_{*this, "cmdWriteSpiceSchematic", " Write LTspice schematic file (.ASC)",
                                 "The network with source and load as a drawing for LTspice"};
  Button cmdWriteSpiceSymbol_{*this, "cmdWriteSpiceSymbol", " Write LTspice symbol file (.ASY)",
                              "A block for schematics that goes with the subcircuit file"};
  OptionGroup dialects_;
  OptionButton optNgspice_{*this, dialects_, "optNgspice", "For ngspice", "In the dialect of ngspice"};
  OptionButton optLTspice_{*this, dialects_, "optLTspice", "For LTspice", "In the dialect of LTspice"};
  Button cmdWriteVerified_{*this, "cmdWriteVerified", "Write verified netlist (.CIR)",
                           "A deck whose results are those of the Plot page at every frequency"};
  Label lblWhich_{*this, "lblWhich", "Take this one for ngspice or LTspice: the generic netlist has known limits."};

  Button cmdExit_{*this, "cmdExit", "Return to Quilm", "Go to the Analysis page"};
};

}  // namespace quilm
