#include "reports/modPrintNorms.h"

#include <string>
#include <vector>

#include "core/NumberText.h"
#include "reports/Report.h"
#include "synthesis/NormalizedText.h"

namespace quilm {

namespace {

constexpr std::size_t longestLine = 90;  // characters that fit between the margins

// A text broken at blanks into lines that fit the paper.
std::vector<std::string> Wrapped(std::string text) {
  std::vector<std::string> lines;
  while (text.size() > longestLine) {
    const std::size_t blank = text.rfind(' ', longestLine);
    lines.push_back(text.substr(0, blank));
    text.erase(0, blank + 1);
  }
  lines.push_back(text);
  return lines;
}

}  // namespace

void PrintNorms(const DesignRecord& record, Canvas& printer) {
  printer.FontName = "Arial";
  printer.FontSize = 10;
  Report report(printer, {.left = 1440, .top = 1440, .pitch = 300, .lines = 44});
  report.Line("Normalized values");
  report.Line(FamilyHeading(record));
  for (const std::string& line : NormalizedEntries(record)) report.Line(line);
  for (const std::string& line : Wrapped(NormalizedCaption(record))) report.Line(line);
  report.Skip();
  report.Line("Input termination: 1");
  for (const std::string& row : NormalizedRows(record)) report.Line(row);
  report.Line("Output termination: " + ShortText(record.Rratio, LeadingZero::Keep));
  report.End();
}

}  // namespace quilm
