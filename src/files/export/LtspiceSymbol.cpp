#include "files/export/LtspiceSymbol.h"

namespace quilm {

std::string LtspiceSymbol() {
  constexpr const char* lines[] = {
      "Version 4",
      "SymbolType BLOCK",
      "RECTANGLE Normal -160 -80 160 80",
      "WINDOW 0 0 -80 Bottom 2",
      "SYMATTR Prefix X",
      "PIN -160 -32 LEFT 8",
      "PINATTR PinName Input",
      "PINATTR SpiceOrder 1",
      "PIN 160 -32 RIGHT 8",
      "PINATTR PinName Output",
      "PINATTR SpiceOrder 2",
      "PIN 0 80 Bottom 8",
      "PINATTR PinName Common",
      "PINATTR SpiceOrder 3",
  };
  std::string text;
  for (const char* line : lines) text.append(line).append("\r\n");
  return text;
}

}  // namespace quilm
