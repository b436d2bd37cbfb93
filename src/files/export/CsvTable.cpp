#include "files/export/CsvTable.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core/Responses.h"
#include "core/Sweep.h"
#include "display/ResponseCurves.h"
#include "display/modTabulate.h"

namespace quilm {

namespace {

// Of several shortest texts the plain one, without an exponent.
std::string ShortestText(f32 value) {
  if (!std::isfinite(value)) return {};
  std::array<char, 64> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

template <class Texts>
std::string CsvLine(const Texts& fields) {
  std::string line;
  for (const std::string& field : fields) line += (line.empty() ? "" : ",") + field;
  return line + "\r\n";
}

}  // namespace

std::string CsvTable(const SweepSettings& sweep, const Responses& responses) {
  const ResponseSpans r = SpansOf(responses, LastPoint(sweep));
  std::string text = CsvLine(TableCaptions());
  for (std::size_t i = 0; i < r.Count(); ++i) {
    const std::array columns = {r.freq[i],  r.trans[i], r.angle[i], r.returnLoss[i],
                                r.delay[i], r.vswr[i],  r.zin[i],   r.zinAngle[i]};
    std::array<std::string, columns.size()> fields;
    for (std::size_t c = 0; c < columns.size(); ++c) fields[c] = ShortestText(columns[c]);
    text += CsvLine(fields);
  }
  return text;
}

}  // namespace quilm
