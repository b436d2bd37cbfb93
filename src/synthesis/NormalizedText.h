// The normalised values of a design as text, for the page and for paper.
#pragma once

#include <string>
#include <vector>

#include "core/DesignRecord.h"

namespace quilm {

// "Chebyshev family"; empty for a design without one.
std::string FamilyHeading(const DesignRecord& record);

// What was asked of a family with a ripple: "Apass: .1 dB   (Return: -16.43 dB)", and for Cauer depth and edge. One
// text a line; none for the other families.
std::vector<std::string> NormalizedEntries(const DesignRecord& record);

// Which prototype the values belong to.
std::string NormalizedCaption(const DesignRecord& record);

// The values by position: "C(1) = 1.0316", "L(2) = ...", and of a tuned branch also its capacitor and its zero "W(2)".
std::vector<std::string> NormalizedRows(const DesignRecord& record);

}  // namespace quilm
