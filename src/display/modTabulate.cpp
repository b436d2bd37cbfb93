#include "display/modTabulate.h"

#include <array>
#include <string_view>

#include "core/modGeneral.h"
#include "display/ResponseCurves.h"

namespace quilm {

namespace {

constexpr std::size_t columns = 8;
constexpr std::size_t fieldWidth = 10;
constexpr f32 lowestPrinted = -120;  // dB

constexpr std::array<const char*, columns> headings = {"Frequency,", "Trans.,", "Phase,", "Return,",
                                                       "Delay,",     "VSWR",    "Zin,",   "Zangle,"};
constexpr std::array<const char*, columns> units = {
    "   Hz:", "dB:", "degrees:", "dB:", "seconds:", "", "ohms:", "degrees:"};

// Paper, in twips.
constexpr f32 leftMargin = 1008;  // 0.7 inch
constexpr f32 titleRow = 700;
constexpr f32 headingRow = 1200;
constexpr f32 rowPitch = 300;
constexpr f32 columnPitch = 1260;
constexpr f32 footRow = 15000;
constexpr Scale paper{0, 0, 12240, 15840};

using Fields = std::array<std::string, columns>;

std::string Decibels(f32 value) { return value < lowestPrinted ? "<-120" : FormatValue(value); }

Fields FieldsAt(const Responses& r, int i) {
  return {FormatFrequency(r.RespFreq[i]), Decibels(r.RespTrans[i]),      FormatValue(r.RespAngle[i]),
          Decibels(r.RespReturn[i]),      FormatTime(r.RespDelay[i]),    FormatValue(r.RespVSWR[i]),
          FormatValue(r.RespZin[i]),      FormatValue(r.RespZinAngle[i])};
}

template <class Texts>
std::string Justified(const Texts& texts) {
  std::string row;
  for (const std::string_view text : texts) {
    if (text.size() < fieldWidth) row.append(fieldWidth - text.size(), ' ');
    row += text;
  }
  return row;
}

template <class Texts>
void PrintRow(Canvas& printer, f32 y, const Texts& texts) {
  f32 x = leftMargin;
  for (const std::string_view text : texts) {
    printer.PrintAt(x, y, text);
    x += columnPitch;
  }
}

void PrintHeadings(Canvas& printer) {
  PrintRow(printer, headingRow, headings);
  PrintRow(printer, headingRow + rowPitch, units);
}

void PrintFoot(const DesignRecord& record, Canvas& printer) {
  printer.PrintAt(leftMargin, footRow, record.DesignFileName);
}

}  // namespace

std::vector<std::string> TabulatedRows(const DesignRecord& record, const Responses& responses) {
  std::vector<std::string> rows;
  const int last = LastPoint(record);
  rows.reserve(static_cast<std::size_t>(last) + 1);
  for (int i = 0; i <= last; ++i) rows.push_back(Justified(FieldsAt(responses, i)));
  return rows;
}

std::string TabulatedHeadings() { return Justified(headings); }

std::string TabulatedUnits() { return Justified(units); }

void PrintTable(const DesignRecord& record, const Responses& responses, Canvas& printer) {
  printer.SetScale(paper);
  printer.FontName = "Courier New";
  printer.FontSize = 9;
  printer.PrintAt(leftMargin, titleRow, "Tabulated Responses");
  const int last = LastPoint(record);
  for (int i = 0; i <= last; ++i) {
    const int line = i % rowsPerSheet;
    if (line == 0 && i > 0) {
      PrintFoot(record, printer);
      printer.NewPage();
    }
    if (line == 0) PrintHeadings(printer);
    PrintRow(printer, headingRow + rowPitch * static_cast<f32>(line + 3), FieldsAt(responses, i));
  }
  PrintFoot(record, printer);
  printer.EndDoc();
}

}  // namespace quilm
