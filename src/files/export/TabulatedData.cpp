#include "files/export/TabulatedData.h"

#include "core/modGeneral.h"

namespace quilm {

namespace {

using Cell = std::string (*)(f32);

// The cells of each kind of quantity.
struct Cells {
  Cell frequency;
  Cell delay;
  Cell number;
};

std::string AtTheRight(const std::string& text) {
  constexpr std::size_t width = 10;
  const std::string trimmed = Trimmed(text);
  return trimmed.size() < width ? std::string(width - trimmed.size(), ' ') + trimmed : trimmed;
}

std::string FrequencyCell(f32 value) { return AtTheRight(FormatFrequency(value)); }
std::string TimeCell(f32 value) { return AtTheRight(FormatTime(value)); }
std::string ValueCell(f32 value) { return AtTheRight(FormatValue(value)); }

std::string Table(const std::string& captions, const std::string& units, const ResponseSpans& sweep,
                  const Cells& cells) {
  const std::string lineEnd = "\r\n";
  std::string text = lineEnd + captions + lineEnd + units + lineEnd + lineEnd;
  for (std::size_t i = 0; i < sweep.Count(); ++i) {
    text += cells.frequency(sweep.freq[i]) + cells.number(sweep.trans[i]) + cells.number(sweep.angle[i]) +
            cells.number(sweep.returnLoss[i]) + cells.delay(sweep.delay[i]) + cells.number(sweep.vswr[i]) +
            cells.number(sweep.zin[i]) + cells.number(sweep.zinAngle[i]) + lineEnd;
  }
  return text + lineEnd;
}

}  // namespace

std::string ScientificTable(const ResponseSpans& sweep) {
  return Table(
      "Freq,          Trans,        Phase,         Return,       Delay,       VSWR,         Zin,           Zangle,",
      " Hz:            dB:          degrees:        dB:          secs:        v/v:          ohms:          degrees:",
      sweep, {PadCell, PadCell, PadCell});
}

std::string EasyTable(const ResponseSpans& sweep) {
  return Table("Freq,      Trans,    Phase,    Return,   Delay,   VSWR,     Zin,       Zangle,",
               " Hz:        dB:      degrees:   dB:      secs:    v/v:      ohms:      degrees:", sweep,
               {FrequencyCell, TimeCell, ValueCell});
}

}  // namespace quilm
