// Designs for the check of the entries: sound ones, and those that fail a rule with what is told of it.
#pragma once

#include <vector>

#include "core/DesignRecord.h"
#include "synthesis/EntryRules.h"

namespace quilm {

inline DesignRecord Sound() {
  DesignRecord record;
  record.Family = familyButterworth;
  record.Topology = "A";
  record.Order = 5;
  record.Width = 1e6F;
  record.Rsource[1] = 50;
  record.Rstandard = 50;
  record.SweepMode = 1;
  record.Fstart = 1e3F;
  record.Fstop = 1e7F;
  record.NrIntervals = 1000;
  record.NrXints = 10;
  record.NrYints = 6;
  record.ImpedanceTop = 1200;
  record.VSWRTop = 2.2F;
  record.Qind[1] = 200;
  record.Qcap[1] = 2000;
  record.ResponsesValid = 1;
  return record;
}

inline DesignRecord Cauer(f32 order) {
  DesignRecord record = Sound();
  record.Family = familyCauer;
  record.Order = order;
  record.Apass = 0.1F;
  record.Astop = 60;
  record.Fstopband = 2e6F;
  return record;
}

struct FailureCase {
  DesignRecord record;
  EntryFinding finding;
};

inline std::vector<FailureCase> Failures() {
  const auto changed = [](DesignRecord record, void (*change)(DesignRecord&)) {
    change(record);
    return record;
  };
  const EntryFinding width = {"Error checker 53", "Please enter a bandwidth", "txtBandwidth"};
  const EntryFinding source = {"Error checker 179", "Please enter an input termination greater than .01 ohms",
                               "txtInputTerm"};
  const EntryFinding center = {"Error checker 199", "Please enter a center frequency", "txtCenterFrequency"};
  const EntryFinding depth = {"Error checker 296",
                              "Please enter a stopband depth for the Cauer\r\nfamily of  10 minimum  to  180 maximum",
                              "txtStopbandDepth"};
  const EntryFinding reference = {"Error checker 346", "Please enter a value for return loss computation",
                                  "txtInputTerm"};
  std::vector<FailureCase> cases = {
      {changed(Sound(), [](DesignRecord& r) { r.Width = 0; }), width},
      {changed(Sound(), [](DesignRecord& r) { r.Width = -1; }), width},
      {changed(Sound(), [](DesignRecord& r) { r.Rsource[1] = 0.01F; }), source},
      {changed(Sound(), [](DesignRecord& r) { r.Family = familyChebyshev; }),
       {"Error checker 259", "Please enter a passband ripple for the Chebyshev filter family", "txtPassbandRipple"}},
      {changed(Cauer(4), [](DesignRecord& r) { r.Apass = 0; }),
       {"Error checker 268", "Please enter a passband ripple for the even-order Cauer filter family",
        "txtPassbandRipple"}},
      {changed(Cauer(5), [](DesignRecord& r) { r.Fstopband = 0; }),
       {"Error checker 283", "Please enter a stopband frequency for the Cauer filter family", "txtStopbandFreq"}},
      {changed(Cauer(5), [](DesignRecord& r) { r.Astop = 9.9F; }), depth},
      {changed(Cauer(5), [](DesignRecord& r) { r.Astop = 180.5F; }), depth},
      {Cauer(2), {"Error checker 305", "Cauer requires order of 3 minimum", "UpDown1"}},
      {changed(Sound(), [](DesignRecord& r) { r.Topology = "B", r.Rstandard = 0; }), reference},
      {changed(Sound(), [](DesignRecord& r) { r.Topology = "C", r.Fcenter = 1e7F, r.Rstandard = -1; }), reference},
  };
  for (const char* topology : {"C", "D", "E", "F", "G", "H", "K", "L"}) {
    FailureCase missing{Sound(), center};
    missing.record.Topology = topology;
    cases.push_back(missing);
  }
  return cases;
}

}  // namespace quilm
