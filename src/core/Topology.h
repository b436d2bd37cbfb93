// What a topology letter says of a filter. "A" to "L" are the topologies; a network entered by hand bears "M" or none,
// and answers no to every question here.
#pragma once

#include <string_view>

#include "core/Types.h"

namespace quilm {

enum class FilterKind { None, Lowpass, Highpass, Bandpass, Bandstop };

// By the letter.
constexpr FilterKind FilterKindOf(std::string_view topology) {
  constexpr FilterKind kinds[] = {
      FilterKind::Lowpass,  FilterKind::Lowpass,  FilterKind::Bandpass, FilterKind::Bandpass,
      FilterKind::Bandpass, FilterKind::Bandpass, FilterKind::Bandpass, FilterKind::Bandpass,
      FilterKind::Highpass, FilterKind::Highpass, FilterKind::Bandstop, FilterKind::Bandstop,
  };
  if (topology.size() != 1 || topology[0] < 'A' || topology[0] > 'L') return FilterKind::None;
  return kinds[topology[0] - 'A'];
}

constexpr bool IsTopologyLetter(std::string_view topology) { return FilterKindOf(topology) != FilterKind::None; }

constexpr bool IsLowpass(std::string_view topology) { return FilterKindOf(topology) == FilterKind::Lowpass; }

constexpr bool IsHighpass(std::string_view topology) { return FilterKindOf(topology) == FilterKind::Highpass; }

// The topologies without a centre frequency.
constexpr bool IsLowOrHighpass(std::string_view topology) { return IsLowpass(topology) || IsHighpass(topology); }

// The topologies with one: bandpass and bandstop. Not the opposite of IsLowOrHighpass: no topology is neither.
constexpr bool NeedsCenter(std::string_view topology) {
  return IsTopologyLetter(topology) && !IsLowOrHighpass(topology);
}

// Where the stopband begins, Hz, given the edge of the passband and the stopband's edge of the normalised lowpass over
// that of its passband: as far below the cutoff of a highpass as above that of the others.
constexpr f32 StopbandEdge(std::string_view topology, f32 Width, f32 FstopNorm) {
  return IsHighpass(topology) ? Width / FstopNorm : Width * FstopNorm;
}

}  // namespace quilm
