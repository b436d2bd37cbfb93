// Prototypes by hand and the parts expected of them, for the tests of the topologies.
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "gtest/gtest.h"

namespace quilm {

// A prototype by hand, order and family with it. 50 ohms, 1 MHz wide, about 10 MHz.
inline DesignRecord HandMade(const std::string& topology, const std::vector<f32>& g, const std::vector<f32>& h = {},
                             i16 cauerFlag = 0) {
  DesignRecord record;
  record.Family = familyButterworth;
  record.Topology = topology;
  record.Order = static_cast<f32>(g.size());
  record.CauerFlag = cauerFlag;
  for (std::size_t k = 0; k < g.size(); ++k) record.Gj[static_cast<int>(k) + 1] = g[k];
  for (std::size_t k = 0; k < h.size(); ++k) record.Hj[static_cast<int>(k) + 1] = h[k];
  record.Width = 1e6F;
  record.Fcenter = 1e7F;
  record.Rsource[1] = 50;
  record.Rratio = 1;
  return record;
}

struct Part {
  i16 type;
  f64 henries;
  f64 farads;
};

inline void ExpectNear(f64 actual, f64 expected) { EXPECT_NEAR(actual, expected, std::abs(expected) * 3e-7); }

inline void ExpectParts(const DesignRecord& record, const std::vector<Part>& parts) {
  ASSERT_EQ(record.Stages, static_cast<i16>(parts.size()));
  for (std::size_t k = 0; k < parts.size(); ++k) {
    SCOPED_TRACE(testing::Message() << "stage " << k + 1);
    const Stage& stage = record.stage[static_cast<int>(k) + 1];
    EXPECT_EQ(stage.ElementType, parts[k].type);
    ExpectNear(stage.Lval.value, parts[k].henries);
    ExpectNear(stage.Cval.value, parts[k].farads);
  }
}

// The units that the hand calculations below are made of.
inline const f64 ww = 2 * Pi * 1e6;
inline const f64 wc = 2 * Pi * 1e7;
inline const f64 henry = 50 / ww;        // 7.957747 uH
inline const f64 farad = 1 / (50 * ww);  // 3.183099 nF

}  // namespace quilm
