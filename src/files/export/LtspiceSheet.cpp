#include "files/export/LtspiceSheet.h"

#include "core/NumberText.h"

namespace quilm {

namespace {

std::string Printed(int x) { return NumText(static_cast<i16>(x)); }

}  // namespace

void LtspiceSheet::Line(std::string_view text) { text_.append(text).append("\r\n"); }

std::string LtspiceSheet::At(GridPoint place) const { return Printed(x_ + place.x) + Printed(y_ + place.y); }

void LtspiceSheet::Symbol(std::string_view symbol, GridPoint place, std::string_view turn) {
  Line(std::string(symbol) + At(place) + std::string(turn));
}

void LtspiceSheet::Wires(std::initializer_list<GridWire> wires) {
  for (const GridWire& wire : wires) Line("WIRE " + At(wire.from) + At(wire.to));
}

void LtspiceSheet::Ground(GridPoint place) { Line("FLAG " + At(place) + "0"); }

void LtspiceSheet::Text(GridPoint place, std::string_view rest) { Line("TEXT " + At(place) + std::string(rest)); }

void LtspiceSheet::Label(i16 x, i16 number) { Line("TEXT " + Printed(x_ + x) + "512 Center 0 ;" + NumText(number)); }

}  // namespace quilm
