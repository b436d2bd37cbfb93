#include "display/modTabulate.h"

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "core/modGeneral.h"
#include "display/ResponseCurves.h"

namespace quilm {

namespace {

constexpr std::size_t fieldWidth = 10;
constexpr f32 lowestPrinted = -120;  // dB

std::string Decibels(f32 value) { return value < lowestPrinted ? "<-120" : FormatValue(value); }

// A heading of the print without its blanks, comma and colon.
std::string Bare(const std::string& heading) {
  const std::size_t from = heading.find_first_not_of(' ');
  return from == std::string::npos ? std::string() : heading.substr(from, heading.find_first_of(",:", from) - from);
}

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

std::vector<std::string> TableCaptions() {
  const TableRow headings = TableHeadings();
  const TableRow units = TableUnits();
  std::vector<std::string> captions;
  for (std::size_t column = 0; column < headings.size(); ++column) {
    const std::string unit = Bare(units[column]);
    captions.push_back(Bare(headings[column]) + (unit.empty() ? "" : " (" + unit + ")"));
  }
  return captions;
}

}  // namespace quilm
