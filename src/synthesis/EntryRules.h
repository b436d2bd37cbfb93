// The check before an analysis: limits of order, stages, sweep and scales, and entries that must not be missing.
#pragma once

#include <string>
#include <vector>

#include "core/RecordFwd.h"
#include "shell/PageId.h"

namespace quilm {

// Whether the source can drive a network: its resistance is above 0.01 ohm. A network made by hand may have 0.01
// itself, from which a singly terminated design is driven.
bool HasInputTermination(const DesignRecord& record);

// A message of the check. With a control to put the focus on, the check has failed; without, it repaired the entry and
// went on.
struct EntryFinding {
  std::string title;
  std::string text;
  std::string focus;  // a control of the Design page
  bool operator==(const EntryFinding&) const = default;
};

// A repaired entry as its box shows it. An option button is set, a label takes the text as its caption.
struct RepairedEntry {
  PageId page;
  std::string control;
  std::string text;
  bool operator==(const RepairedEntry&) const = default;
};

struct EntryReport {
  std::vector<EntryFinding> findings;  // in order of the rules; only the last can be a failure
  std::vector<RepairedEntry> boxes;
  bool Passed() const { return findings.empty() || findings.back().focus.empty(); }
};

// Applies the rules one after the other up to the first failure. Repairs what is out of range, with a message only
// where the rule has one; a repair clears ResponsesValid. The configuration stands by for a Q that is missing. Nothing
// is a fault.
EntryReport ExamineEntries(DesignRecord& record, const Configuration& configuration);

}  // namespace quilm
