// The M-derived prototype: image-parameter sections, each with a transmission zero of the user's choice.
//
// Source: O. J. Zobel, "Theory and design of uniform and composite electric wave filters", Bell System Technical
// Journal 2 (1923): a section of parameter m has its zero at 1 / sqrt(1 - m^2) times the cutoff, and half sections of
// m near 0.6 at both ends match the ladder to its terminations.
#pragma once

#include "core/RecordFwd.h"
#include "core/Types.h"

namespace quilm {

inline constexpr int mostMderivedZeros = 5;

// Whether a zero (Hz) lies in the stopband: above Width, and for a highpass between 0 and Width. No frequency at or
// below 0 does.
bool IsInStopband(const DesignRecord& record, f32 zero);

// Whether MderivedZero[1..5] holds any zero.
bool HasMderivedZeros(const Entries& entries);

// Makes the prototype of the zeros, after closing the gaps between them: sets Gj, Hj, Order (7 to 13), FstopNorm 0,
// Rratio 1, CauerFlag 1 and ResponsesValid 0. Without zeros Order and Stages are 0. Throws NumericFault for a zero that
// is not in the stopband or a Width of 0 under a zero of a highpass.
//
// A half section of the first zero and one of the last stand at the ends, with a constant-K section behind the first;
// the zeros between add full sections. A single zero serves both ends. With two zeros or less the order is 7.
void ComputeMderived(DesignRecord& record);

}  // namespace quilm
