// The line forms of an LTspice schematic.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "core/Types.h"

namespace quilm {

// On LTspice's grid, whose y counts downwards, seen from the pen.
struct GridPoint {
  i16 x = 0;
  i16 y = 0;
};

struct GridWire {
  GridPoint from;
  GridPoint to;
};

// A schematic that is written line by line, and the pen that goes along its main wire, at first along that at y 80.
//
// A number has a blank on either side, beside the blanks of the form, so that there are more than LTspice needs. The
// lines are kept that way: files of the same design stay comparable byte by byte.
class LtspiceSheet {
 public:
  // A line of any other form.
  void Line(std::string_view text);

  // `symbol` comes with the blanks that stand behind its name; `turn` is "R0", "R90", "R270" or "M0".
  void Symbol(std::string_view symbol, GridPoint place, std::string_view turn);
  void Wires(std::initializer_list<GridWire> wires);
  // Joins a place to common.
  void Ground(GridPoint place);
  // A text or directive at a place; `rest` is its alignment, size and content.
  void Text(GridPoint place, std::string_view rest);
  // The number of a stage in the row below the drawing, its middle at x.
  void Label(i16 x, i16 number);

  // Puts the pen on a main wire at y.
  void Begin(i16 x, i16 y) {
    x_ = x;
    y_ = y;
  }
  void Advance(i16 dx) { x_ = static_cast<i16>(x_ + dx); }
  std::string Take() { return std::move(text_); }

 private:
  std::string At(GridPoint place) const;

  std::string text_;
  i16 x_ = 0;
  i16 y_ = 80;
};

}  // namespace quilm
