#include "display/modTabulate.h"

#include "core/modGeneral.h"
#include "display/ResponseCurves.h"

namespace quilm {

namespace {

constexpr std::size_t fieldWidth = 10;
constexpr f32 lowestPrinted = -120;  // dB

std::string Decibels(f32 value) { return value < lowestPrinted ? "<-120" : FormatValue(value); }

std::string Justified(const TableRow& texts) {
  std::string row;
  for (const std::string& text : texts) {
    if (text.size() < fieldWidth) row.append(fieldWidth - text.size(), ' ');
    row += text;
  }
  return row;
}

}  // namespace

TableRow TableHeadings() { return {"Frequency,", "Trans.,", "Phase,", "Return,", "Delay,", "VSWR", "Zin,", "Zangle,"}; }

TableRow TableUnits() { return {"   Hz:", "dB:", "degrees:", "dB:", "seconds:", "", "ohms:", "degrees:"}; }

TableRow TableFields(const Responses& r, int i) {
  return {FormatFrequency(r.RespFreq[i]), Decibels(r.RespTrans[i]),      FormatValue(r.RespAngle[i]),
          Decibels(r.RespReturn[i]),      FormatTime(r.RespDelay[i]),    FormatValue(r.RespVSWR[i]),
          FormatValue(r.RespZin[i]),      FormatValue(r.RespZinAngle[i])};
}

std::vector<std::string> TabulatedRows(const DesignRecord& record, const Responses& responses) {
  std::vector<std::string> rows;
  const int last = LastPoint(record);
  rows.reserve(static_cast<std::size_t>(last) + 1);
  for (int i = 0; i <= last; ++i) rows.push_back(Justified(TableFields(responses, i)));
  return rows;
}

std::string TabulatedHeadings() { return Justified(TableHeadings()); }

std::string TabulatedUnits() { return Justified(TableUnits()); }

}  // namespace quilm
