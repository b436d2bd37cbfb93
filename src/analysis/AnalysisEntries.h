// What the Analysis page sets: the ranges and defaults of the sweep and of the scales of the graphs.
#pragma once

#include <string>

#include "core/Configuration.h"
#include "core/RecordFwd.h"

namespace quilm {

// A Q of 0 or below is none: it becomes the configured value, else 200 for inductors and 2000 for capacitors.
void FillMissingQualities(Network& network, const Configuration& configuration);

// Fills in what is missing when the page loads: the configured value if there is one, else a figure that suits most
// designs. A delay scale follows from the order and the bandwidth where both are known. More grid intervals upward than
// a spin control can have, as a file may bring, become the most that it can.
void FillMissingEntries(DesignRecord& record, const Configuration& configuration);

// Forces the scales, Q values and counts into their ranges before a plot or a table; the design's own entries and the
// sweep limits are CheckEntries' affair. The default of the delay scale is not the page's: the page offers a round
// figure, 1 ms, to be changed, while here nobody is asked and 1.2 ms makes six round intervals.
void HoldAnalysisEntries(DesignRecord& record, const Configuration& configuration);

// The record as the page would hand it to a plot, for what shows no design and leaves it alone.
DesignRecord WithAnalysisEntries(const DesignRecord& record, const Configuration& configuration);

// What one interval of a scale is worth, as the labels under the boxes say it.
std::string SpanText(const DesignRecord& record);
std::string FrequencyPerIntervalText(const DesignRecord& record);
std::string LossPerIntervalText(const DesignRecord& record);
std::string DelayPerIntervalText(const DesignRecord& record);
std::string ImpedancePerIntervalText(const DesignRecord& record);
std::string VSWRPerIntervalText(const DesignRecord& record);

}  // namespace quilm
