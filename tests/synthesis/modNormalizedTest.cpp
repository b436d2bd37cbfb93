#include "synthesis/modNormalized.h"

#include <cmath>

#include "support/DesignBench.h"

namespace quilm {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

DesignRecord Lowpass(f32 order, f32 ripple = 0) {
  DesignRecord record;
  record.Order = order;
  record.Apass = ripple;
  return record;
}

void ExpectValues(const DesignRecord& record, const std::vector<f64>& expected, f64 tolerance) {
  for (std::size_t k = 0; k < expected.size(); ++k) {
    EXPECT_NEAR(record.Gj[static_cast<int>(k) + 1], expected[k], tolerance) << "element " << k + 1;
  }
  for (int j = static_cast<int>(expected.size()) + 1; j <= orderLimit; ++j) EXPECT_EQ(record.Gj[j], 0) << j;
  for (int j = 0; j <= orderLimit; ++j) EXPECT_EQ(record.Hj[j], 0) << j;
}

TEST(Butterworth, FollowsTheSines) {
  DesignRecord record = Lowpass(1);
  ComputeButterworth(record);
  ExpectValues(record, {2}, 0);
  record.Order = 2;
  ComputeButterworth(record);
  ExpectValues(record, {std::sqrt(2.0), std::sqrt(2.0)}, 6e-8);
  record.Order = 5;  // golden section and its inverse
  ComputeButterworth(record);
  ExpectValues(record, {0.6180340, 1.6180340, 2, 1.6180340, 0.6180340}, 1e-7);
}

TEST(Butterworth, SetsItsFieldsAndClearsWhatAnotherFamilyLeft) {
  DesignRecord record = Lowpass(3);
  record.Gj.Fill(9);
  record.Hj.Fill(9);
  record.FstopNorm = 2;
  record.Rratio = 0.5F;
  record.CauerFlag = 1;
  record.Family = familyCauer;
  ComputeButterworth(record);
  ExpectValues(record, {1, 2, 1}, 1e-7);
  EXPECT_EQ(record.FstopNorm, 0);
  EXPECT_EQ(record.Rratio, 1);
  EXPECT_EQ(record.CauerFlag, 0);
  EXPECT_EQ(record.Family, familyButterworth);
}

struct ChebyshevCase {
  f32 ripple;
  std::vector<f64> values;
  f64 load;  // as a resistance for the capacitor-input form, at most 1
};

// Matthaei, Young, Jones, Microwave Filters, table 4.05-2: four decimals, of which the last is cut rather than rounded.
// The table's last column is the inverse of the load here: 1.3554 for 0.1 dB, 1.9841 for 0.5 dB, 5.8095 for 3 dB.
TEST(Chebyshev, MeetsThePublishedTable) {
  const std::vector<ChebyshevCase> table = {
      {0.1F, {0.3052}, 1},
      {0.1F, {0.8430, 0.6220}, 1 / 1.3554},
      {0.1F, {1.0315, 1.1474, 1.0315}, 1},
      {0.1F, {1.1088, 1.3061, 1.7703, 0.8180}, 1 / 1.3554},
      {0.1F, {1.1468, 1.3712, 1.9750, 1.3712, 1.1468}, 1},
      {0.1F, {1.1681, 1.4039, 2.0562, 1.5170, 1.9029, 0.8618}, 1 / 1.3554},
      {0.1F, {1.1811, 1.4228, 2.0966, 1.5733, 2.0966, 1.4228, 1.1811}, 1},
      {0.1F, {1.1897, 1.4346, 2.1199, 1.6010, 2.1699, 1.5640, 1.9444, 0.8778}, 1 / 1.3554},
      {0.5F, {1.5963, 1.0967, 1.5963}, 1},
      {0.5F, {1.6703, 1.1926, 2.3661, 0.8419}, 1 / 1.9841},
      {3.0F, {3.3487, 0.7117, 3.3487}, 1},
      {3.0F, {3.1013, 0.5339}, 1 / 5.8095},
  };
  for (const ChebyshevCase& row : table) {
    SCOPED_TRACE(testing::Message() << row.ripple << " dB, order " << row.values.size());
    DesignRecord record = Lowpass(static_cast<f32>(row.values.size()), row.ripple);
    ComputeChebyshev(record);
    ExpectValues(record, row.values, 1.2e-4);
    EXPECT_NEAR(record.Rratio, row.load, 3e-5);
  }
}

// Worked by hand from the closed form with one digit more than the published table.
TEST(Chebyshev, WorkedFigures) {
  DesignRecord record = Lowpass(3, 0.1F);
  ComputeChebyshev(record);
  ExpectValues(record, {1.03156, 1.14740, 1.03156}, 5e-6);
  EXPECT_EQ(record.Rratio, 1);
  record.Order = 4;
  ComputeChebyshev(record);
  ExpectValues(record, {1.10879, 1.30618, 1.77035, 0.81808}, 5e-6);
  EXPECT_NEAR(record.Rratio, 0.7378, 5e-5);
}

TEST(Chebyshev, NeedsAnUnequalLoadForEvenOrdersOnly) {
  for (int n = 1; n <= orderLimit; ++n) {
    DesignRecord record = Lowpass(static_cast<f32>(n), 0.25F);
    ComputeChebyshev(record);
    if (n % 2 == 1) {
      EXPECT_EQ(record.Rratio, 1) << n;
    } else {
      EXPECT_LT(record.Rratio, 1) << n;
      EXPECT_GT(record.Rratio, 0) << n;
    }
    EXPECT_EQ(record.FstopNorm, 0);
    EXPECT_EQ(record.CauerFlag, 0);
  }
}

TEST(Chebyshev, LeavesResponsesAndFamilyAlone) {
  DesignRecord record = Lowpass(5, 0.1F);
  record.ResponsesValid = 1;
  record.Family = familyBessel;
  ComputeChebyshev(record);
  EXPECT_EQ(record.ResponsesValid, 1);
  EXPECT_EQ(record.Family, familyBessel);
}

TEST(Chebyshev, WithoutRippleOrOrderIsAFault) {
  DesignRecord noRipple = Lowpass(5, 0);
  EXPECT_THROW(ComputeChebyshev(noRipple), NumericFault);
  DesignRecord noOrder = Lowpass(0, 0.1F);
  EXPECT_THROW(ComputeChebyshev(noOrder), NumericFault);
  DesignRecord hugeRipple = Lowpass(5, 1e10F);
  EXPECT_THROW(ComputeChebyshev(hugeRipple), NumericFault);
  DesignRecord negative = Lowpass(5, -1);
  EXPECT_THROW(ComputeChebyshev(negative), NumericFault);
}

TEST(ConstantK, RepeatsItsValue) {
  DesignRecord record = Lowpass(1);
  record.ResponsesValid = 1;
  ComputeConstantK(record);
  ExpectValues(record, {1}, 0);
  EXPECT_EQ(record.ResponsesValid, 0);
  EXPECT_EQ(record.Rratio, 1);
  record.Order = 2;
  ComputeConstantK(record);
  ExpectValues(record, {1.41421356, 1.41421356}, 6e-8);
  record.Order = 3;
  ComputeConstantK(record);
  ExpectValues(record, {1, 2, 1}, 0);
  record.Order = 6;
  ComputeConstantK(record);
  ExpectValues(record, {1, 2, 2, 2, 2, 1}, 0);
}

TEST(TableFamilies, TakeTheRowOfTheirOrder) {
  DesignRecord record = Lowpass(2);
  EXPECT_THAT(ComputeBessel(record), IsEmpty());
  ExpectValues(record, {2.1478, 0.5755}, 1e-7);
  EXPECT_NEAR(record.Rratio, 0.5755 / 2.1478, 1e-7);
  record.Order = 10;
  EXPECT_THAT(ComputeBessel(record), IsEmpty());
  ExpectValues(record, {2.2641, 1.0781, 0.8561, 0.7420, 0.6493, 0.5528, 0.4454, 0.3270, 0.1998, 0.0672}, 2e-7);
  record.Order = 2;
  EXPECT_THAT(ComputeGaussian(record), IsEmpty());
  ExpectValues(record, {0.4728, 2.185}, 2e-7);
  EXPECT_NEAR(record.Rratio, 4.62140, 1e-5);
  record.Order = 10;
  EXPECT_THAT(ComputeGaussian(record), IsEmpty());
  ExpectValues(record, {0.0512, 0.1525, 0.2509, 0.3451, 0.4353, 0.5250, 0.6244, 0.7597, 1.0147, 2.2594}, 2e-7);
  record.Order = 3;
  EXPECT_THAT(ComputeGaussian12(record), IsEmpty());
  ExpectValues(record, {2.3452, 0.9050, 0.4152}, 2e-7);
  record.Order = 7;  // the second value is out of line with its neighbours, and is kept
  EXPECT_THAT(ComputeGaussian12(record), IsEmpty());
  ExpectValues(record, {2.3829, 0.0649, 0.9241, 0.7753, 0.8091, 0.6267, 0.3207}, 2e-7);
}

TEST(TableFamilies, ClearWhatBelongsToOtherFamilies) {
  for (Messages (*routine)(DesignRecord&) : {ComputeBessel, ComputeGaussian, ComputeGaussian12}) {
    DesignRecord record = Lowpass(4, 0.5F);
    record.CauerFlag = 1;
    record.FstopNorm = 2;
    record.ResponsesValid = 1;
    record.Gj.Fill(7);
    record.Hj.Fill(7);
    routine(record);
    EXPECT_EQ(record.CauerFlag, 0);
    EXPECT_EQ(record.Apass, 0);
    EXPECT_EQ(record.FstopNorm, 0);
    EXPECT_EQ(record.ResponsesValid, 0);
    EXPECT_EQ(record.Gj[5], 0);
    EXPECT_EQ(record.Hj[1], 0);
  }
}

struct LimitCase {
  Messages (*routine)(DesignRecord&);
  f32 order;
  f32 held;
  const char* message;
};

TEST(TableFamilies, HoldTheirOrderAndSaySo) {
  const std::vector<LimitCase> table = {
      {ComputeBessel, 12, 10, "Order has been reset to Bessel upper limit of 10"},
      {ComputeBessel, 11, 10, "Order has been reset to Bessel upper limit of 10"},
      {ComputeBessel, 1, 2, "Order has been reset to lower limit of 2"},
      {ComputeGaussian, 11, 10, "Order has been reset to Gaussian upper limit of 10"},
      {ComputeGaussian, 1, 2, "Order has been reset to lower limit of 2"},
      {ComputeGaussian12, 11, 10, "Order has been reset to Gaussian to 12 upper limit of 10"},
      {ComputeGaussian12, 2, 3, "Order has been reset to lower limit of 3"},
  };
  for (const LimitCase& row : table) {
    DesignRecord record = Lowpass(row.order);
    EXPECT_THAT(row.routine(record), ElementsAre(row.message));
    EXPECT_EQ(record.Order, row.held);
    EXPECT_GT(record.Gj[static_cast<int>(row.held)], 0);
  }
}

TEST(ComputePrototype, AnImpossiblePrototypeIsLeftEmpty) {
  DesignRecord record = Lowpass(5, 0);
  record.Gj.Fill(3);
  record.Rratio = 1;
  EXPECT_THAT(ComputePrototype(record, familyChebyshev), IsEmpty());
  EXPECT_EQ(record.Gj[1], 0);
  EXPECT_EQ(record.Rratio, 0);
}

TEST(ComputeNormalized, ReadsTheOptionAndNotTheFamily) {
  DesignBench bench;
  bench.record.Order = 3;
  bench.record.Family = familyBessel;
  bench.session.familyOption = familyConstantK;
  ComputeNormalized(bench.session);
  ExpectValues(bench.record, {1, 2, 1}, 0);
  EXPECT_EQ(bench.record.Family, familyBessel);
  EXPECT_THAT(bench.platform.messages, IsEmpty());
}

TEST(ComputeNormalized, ShowsTheLimitsInPlainBoxes) {
  DesignBench bench;
  bench.record.Order = 25;
  bench.session.familyOption = familyBessel;
  ComputeNormalized(bench.session);
  ASSERT_EQ(bench.platform.messages.size(), 2U);
  EXPECT_EQ(bench.platform.messages[0].text, "The Order has been reset to the maximum-allowed value of 21");
  EXPECT_EQ(bench.platform.messages[1].text, "Order has been reset to Bessel upper limit of 10");
  for (const MessageShown& message : bench.platform.messages) {
    EXPECT_EQ(message.title, "");
    EXPECT_EQ(message.icon, Icon::Information);
    EXPECT_EQ(message.buttons, Buttons::Ok);
  }
  EXPECT_EQ(bench.record.Order, 10);
}

TEST(ComputeNormalized, AHandMadeNetworkStandsAndOnlyTheOrderIsHeld) {
  for (int guard = 0; guard < 3; ++guard) {
    DesignBench bench;
    bench.record.Order = 30;
    bench.record.Gj[1] = 5;
    if (guard == 0) bench.record.NetworkEdited = 1;
    if (guard == 1) bench.record.Family = familyManual;
    if (guard == 2) bench.record.MatchAccepted = 1;
    DesignRecord expected = bench.record;
    expected.Order = 21;
    bench.session.familyOption = familyButterworth;
    ComputeNormalized(bench.session);
    EXPECT_EQ(bench.record, expected) << guard;
    EXPECT_EQ(bench.platform.messages.size(), 1U) << guard;
  }
}

TEST(ComputeNormalized, ManualEntryAndNoChoiceRunNothing) {
  for (const i16 option : {familyManual, familyNone}) {
    DesignBench bench;
    bench.record.Order = 3;
    bench.record.Gj[1] = 5;
    const DesignRecord before = bench.record;
    bench.session.familyOption = option;
    ComputeNormalized(bench.session);
    EXPECT_EQ(bench.record, before);
  }
}

TEST(ComputeNormalized, AFaultEndsInAnEmptyPrototypeWithoutAMessage) {
  DesignBench bench;
  bench.record.Order = 3;
  bench.session.familyOption = familyChebyshev;
  ComputeNormalized(bench.session);
  EXPECT_EQ(bench.record.Gj[1], 0);
  EXPECT_THAT(bench.platform.messages, IsEmpty());
}

}  // namespace
}  // namespace quilm
