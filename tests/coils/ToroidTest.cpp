// Turns of toroids by their AL.
#include "coils/Toroid.h"

#include "core/Fault.h"

namespace quilm {
namespace {

TEST(ToroidTurns, AsManyMicrohenriesAsALTakeAHundred) { EXPECT_EQ(ToroidTurns(10e-6F, 10), 100); }

// AL 49 is that of a common core for 1 to 30 MHz: 4.9 uH need 31.6 turns.
TEST(ToroidTurns, GoToTheNearestTurn) {
  EXPECT_EQ(ToroidTurns(4.9e-6F, 49), 32);
  EXPECT_EQ(ToroidTurns(1e-3F, 49), 452);  // 451.75
  EXPECT_EQ(ToroidTurns(1e-6F, 49), 14);   // 14.29
}

// 100 sqrt(0.11025 / 10) = 10.5.
TEST(ToroidTurns, AHalfTurnIsAWholeOne) {
  EXPECT_EQ(ToroidTurns(0.11025e-6F, 10), 11);
  EXPECT_EQ(ToroidTurns(0.1102e-6F, 10), 10);
}

TEST(ToroidTurns, ACoreThatIsNoneIsAFault) { EXPECT_THROW(ToroidTurns(1e-6F, 0), NumericFault); }

}  // namespace
}  // namespace quilm
