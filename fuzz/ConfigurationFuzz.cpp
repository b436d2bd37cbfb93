// Configuration files of any bytes. Reading either takes the file or leaves all the defaults, and what is written then
// is a file that reads.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "core/Configuration.h"
#include "core/DesignRecord.h"

namespace {

using namespace quilm;

void Require(bool holds) {
  if (!holds) std::abort();
}

bool Read(const std::string& text, DesignRecord& record, Configuration& configuration) {
  std::istringstream in(text);
  return ReadConfiguration(in, record, configuration);
}

bool IsDefault(const DesignRecord& record, const Configuration& configuration) {
  DesignRecord defaults;
  Configuration standard;
  ApplyDefaults(defaults, standard);
  return record == defaults && configuration.ConfigValue == standard.ConfigValue;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  DesignRecord record;
  Configuration configuration;
  const bool taken = Read(std::string(reinterpret_cast<const char*>(data), size), record, configuration);
  Require(taken || IsDefault(record, configuration));
  Require(record.SmithAspect >= 0.5F && record.PlotLineWidth >= 1);

  const std::string written = FormatConfiguration(record, configuration, "2026-01-02 03:04:05");
  Require(record.PlotLineWidth <= 6);
  DesignRecord again;
  Require(Read(written, again, configuration));
  Require(again.Units == record.Units && again.NrXints == record.NrXints && again.SweepMode == record.SweepMode);
  return 0;
}
