#include "display/TraceCycle.h"

#include <array>

namespace quilm {

namespace {

constexpr std::array<TraceColors, 8> trialColors = {{{0x780000, 0x000078},
                                                     {0xA00000, 0x0000A0},
                                                     {0xB90000, 0x0000B9},
                                                     {0xDC0000, 0x0000DC},
                                                     {0xFF0000, 0x0000FF},
                                                     {0xFF3C3C, 0x3C3CFF},
                                                     {0xFF6E6E, 0x6E6EFF},
                                                     {0xFFA0A0, 0xA0A0FF}}};

constexpr std::array<TraceColors, 6> entryStepColors = {{{0xFF0000, 0x0000FF},
                                                         {0xFF3300, 0x0033FF},
                                                         {0xFF6600, 0x0066FF},
                                                         {0xFF9900, 0x0099FF},
                                                         {0xFFBB00, 0x00BBFF},
                                                         {0x000000, 0x000000}}};

}  // namespace

std::span<const TraceColors> TrialColors() { return trialColors; }
std::span<const TraceColors> EntryStepColors() { return entryStepColors; }

const TraceColors& TraceCycle::Next() {
  drawn_ = drawn_ % colors_.size() + 1;
  return colors_[drawn_ - 1];
}

}  // namespace quilm
