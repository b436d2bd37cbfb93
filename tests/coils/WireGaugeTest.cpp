// American Wire Gauge, against the diameters of ASTM B258.
#include "coils/WireGauge.h"

#include "core/Fault.h"

namespace quilm {
namespace {

struct Row {
  f32 gauge;
  f32 inches;
};

// Printed to four decimals of an inch; -3 is the gauge 0000.
constexpr Row table[] = {{-3, 0.46F},   {0, 0.3249F},  {10, 0.1019F}, {16, 0.0508F},
                         {20, 0.0320F}, {30, 0.0100F}, {36, 0.005F},  {40, 0.0031F}};

TEST(WireGauge, DiametersAreThoseOfTheTable) {
  for (const Row& row : table) EXPECT_NEAR(WireDiameter(row.gauge), row.inches, 0.00005F) << row.gauge;
  EXPECT_FLOAT_EQ(WireDiameter(36), 0.005F);
  EXPECT_FLOAT_EQ(WireDiameter(-3), 0.46F);
}

TEST(WireGauge, IsTheInverseOfTheDiameter) {
  for (f32 gauge = -39; gauge <= 50; gauge += 0.5F) EXPECT_NEAR(WireGauge(WireDiameter(gauge)), gauge, 1e-5F);
}

TEST(WireGauge, NoWireHasNoGauge) {
  EXPECT_THROW(WireGauge(0), NumericFault);
  EXPECT_THROW(WireGauge(-1), NumericFault);
  EXPECT_THROW(WireDiameter(-1e6F), NumericFault);
}

TEST(FillPercent, IsTheWireOverThePitch) {
  EXPECT_FLOAT_EQ(FillPercent(0.05F, 20), 100);
  EXPECT_FLOAT_EQ(FillPercent(0.032F, 24), 76.8F);
}

}  // namespace
}  // namespace quilm
