#include "synthesis/DesignSummary.h"

#include <array>
#include <vector>

#include "core/DesignRecord.h"
#include "core/Topology.h"
#include "core/modGeneral.h"

namespace quilm {

namespace {

constexpr std::array<const char*, 12> captions = {
    "Capacitor-input lowpass",         "Inductor-input lowpass", "Nodal capacitor-coupled bandpass",
    "Nodal inductor-coupled bandpass", "Shunt-input bandpass",   "Series-input bandpass",
    "Mesh capacitor-coupled bandpass", "Cauer-only bandpass",    "Capacitor-input highpass",
    "Inductor-input highpass",         "Series-input bandstop",  "Shunt-input bandstop",
};

std::string Hertz(f32 value) { return Trimmed(FormatFrequency(value)) + "Hz"; }

std::string Ohms(f32 value) { return Trimmed(FormatResistance(value)); }

std::string OrderText(const DesignRecord& record) {
  if (record.Family == familyManual || record.Order < 1) return {};
  return "order " + std::to_string(static_cast<int>(record.Order));
}

std::string Band(const DesignRecord& record) {
  if (record.Width <= 0) return {};
  if (record.Fcenter <= 0) return Hertz(record.Width);
  return Hertz(record.Width) + " wide at " + Hertz(record.Fcenter);
}

// The load is known once there is a network.
std::string Terminations(const DesignRecord& record) {
  if (record.Rsource[1] <= 0) return {};
  if (record.Stages == 0) return Ohms(record.Rsource[1]) + " ohms";
  return Ohms(record.Rsource[1]) + " to " + Ohms(record.Rload[1]) + " ohms";
}

}  // namespace

std::string TopologyCaption(const std::string& letter) {
  if (!IsTopologyLetter(letter)) return {};
  return captions[static_cast<std::size_t>(letter[0] - 'A')];
}

std::string DesignName(const DesignRecord& record, bool saved) {
  const std::string& path = record.DesignFileName;
  if (path.empty()) return {};
  return path.substr(path.find_last_of("/\\") + 1) + (saved ? "" : "*");
}

std::string DesignSummary(const DesignRecord& record, bool saved) {
  if (record.Family == familyNone) return {};
  const std::vector<std::string> parts = {
      FamilyName(record.Family),
      OrderText(record),
      TopologyCaption(record.Topology),
      Band(record),
      Terminations(record),
      record.NetworkEdited == 1 ? "edited by hand" : "",
      DesignName(record, saved),
  };
  std::string summary;
  for (const std::string& part : parts) {
    if (part.empty()) continue;
    if (!summary.empty()) summary += "  |  ";
    summary += part;
  }
  return summary;
}

}  // namespace quilm
