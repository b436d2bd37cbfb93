// M-derived half sections at both ends of a lowpass or highpass ladder: a zero in the stopband, and with m near 0.6 a
// better match.
//
// Source: O. J. Zobel, "Theory and design of uniform and composite electric wave filters", Bell System Technical
// Journal 2 (1923): the half section of the shunt-derived kind, whose tuned arm stands in the line, before a shunt
// element, and of the series-derived kind before a series element.
#pragma once

#include <string>

#include "core/DesignRecord.h"

namespace quilm {

// Why the ladder cannot take end sections, or empty when it can: it must be a lowpass ("A", "B") or highpass ("I", "J")
// of at least two stages, with plain elements at both ends and room for two stages more.
std::string EndSectionObstacle(const DesignRecord& record);

// Where the section at the source end has its zero, in Hz, for 0 < m < 1. Throws NumericFault for an m without a zero.
f32 EndSectionZero(const DesignRecord& record, f32 m);

// Adds a section at each end. The stages move up one place, stage 1 and the new last stage are the tuned arms, and the
// old end elements take the sections' shares. The network then stands as one edited by hand: Family 11, NetworkEdited
// 1. Throws NumericFault for an m without a section; the record is then as it was.
void AddEndSections(DesignRecord& record, f32 m);

}  // namespace quilm
