// Design files of any bytes: reading ends, and what was read can be written and read again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "files/ReadDesign.h"
#include "files/WriteDesign.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quilm;
  const auto record = std::make_unique<DesignRecord>();
  const auto responses = std::make_unique<Responses>();
  ClearCircuit(*record, *responses);
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  const ReadOutcome outcome = ReadDesign(in, *record);
  if (outcome.failed && (record->Stages != 0 || outcome.description.empty())) std::abort();
  if (record->Stages < 0 || record->Stages > record->StagesMax || record->Order > record->OrderMax) std::abort();
  DesignText(*record, "2026-01-02");
  return 0;
}
