// The drawings of the stages of a ladder in an LTspice schematic, and of the parts that they are made of.
#pragma once

#include <string>
#include <string_view>

#include "core/DesignRecord.h"
#include "files/export/LtspiceSheet.h"

namespace quilm {

// How a part stands: upright, or along the main wire, with its texts moved out of the wire's way.
enum class Stance { Upright, Along };

// A resistor; the place is that of the symbol, some way off its pins. `symbol` comes with the blanks behind its name.
void DrawLtspiceResistor(LtspiceSheet& sheet, std::string_view symbol, GridPoint place, Stance stance,
                         std::string_view name, f32 ohms);

// The generator with its name, its amplitude as told, and common below it: its upper end lies at the pen.
void DrawLtspiceGenerator(LtspiceSheet& sheet, const std::string& amplitude);

// A resistor in the line, from the pen on, and the pen behind it.
void DrawLtspiceSourceResistor(LtspiceSheet& sheet, std::string_view name, f32 ohms);

// A resistor from the pen to common.
void DrawLtspiceLoad(LtspiceSheet& sheet, std::string_view name, f32 ohms);

// How the parts of a stage are written.
struct LtspiceWriting {
  std::string_view suffix;  // behind the letter and number of their names
  bool fine = false;        // values of nine digits
};

// The parts of stage s as DrawLtspiceStage draws them, without its number below.
void DrawLtspiceParts(LtspiceSheet& sheet, const DesignRecord& record, i16 s, f32 Fq, const LtspiceWriting& writing);

// Draws stage s at the pen and moves the pen behind it. Losses are those at Fq, Hz. A type without a drawing
// (transformers and forms of entry) draws nothing and leaves the pen where it is, so that the main wire runs on.
// Throws NumericFault where a loss or a delay does not exist: Qind, a capacitance, a line's frequency or Fq of 0.
void DrawLtspiceStage(LtspiceSheet& sheet, const DesignRecord& record, i16 s, f32 Fq);

// What a stage of a type adds to the width of the sheet. Not quite what its drawing takes: LTspice does not mind, and
// files of the same design stay comparable.
i16 LtspiceStageWidth(i16 elementType);

}  // namespace quilm
