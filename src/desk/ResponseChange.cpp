#include "desk/ResponseChange.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <memory>

#include "analysis/AnalysisEntries.h"
#include "analysis/SweepFit.h"
#include "analysis/modAnalysis.h"
#include "core/DesignRecord.h"
#include "core/Fault.h"
#include "core/Responses.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// Sweeps the network in the place of the design's; false where that cannot be.
bool Sweep(const Session& session, const Network& network, Responses& responses) {
  DesignRecord design = session.record;
  static_cast<Network&>(design) = network;
  try {
    FillMissingEntries(design, session.configuration);
    HoldAnalysisEntries(design, session.configuration);
    design.RelativeMode = 0;
    return SweepFault(design).empty() && SweepLadder(design, responses).empty();
  } catch (const Fault&) {
    return false;
  }
}

std::string Decibels(f64 value, int decimals) {
  std::array<char, 400> text{};  // the largest number has 309 digits before its point
  const auto end = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, decimals).ptr;
  return std::string(text.begin(), end) + " dB";
}

}  // namespace

std::optional<f64> LargestChange(const Session& session, const Network& before, const Network& after) {
  const auto former = std::make_unique<Responses>();
  const auto latter = std::make_unique<Responses>();
  if (!Sweep(session, before, *former) || !Sweep(session, after, *latter)) return std::nullopt;
  f64 largest = 0;
  for (int i = 0; i < former->table.points; ++i) {
    largest = std::max(largest, std::abs(f64{former->RespTrans[i]} - f64{latter->RespTrans[i]}));
  }
  return largest;
}

std::string ResponseChangeText(std::optional<f64> decibels) {
  constexpr f64 kept = 0.01;
  if (!decibels) return "the response cannot be computed with these values";
  if (*decibels <= kept) return "response kept within " + Decibels(*decibels, 4);
  const int decimals = *decibels < 1 ? 3 : *decibels < 10 ? 2 : 1;
  return "response changed by up to " + Decibels(*decibels, decimals);
}

void NoteResponseChange(Session& session, const Network& before) {
  session.note = ResponseChangeText(LargestChange(session, before, session.network));
}

}  // namespace quilm
