#include "core/DesignRecord.h"
#include "synthesis/DesignSummary.h"

#include <string>

#include "gtest/gtest.h"

namespace quilm {
namespace {

DesignRecord Design(const std::string& topology = "A") {
  DesignRecord record;
  record.Family = familyChebyshev;
  record.Order = 7;
  record.Topology = topology;
  record.Width = 1e6F;
  record.Rsource[1] = 50;
  return record;
}

TEST(DesignSummary, NamesFamiliesAndTopologies) {
  const char* const families[] = {"",         "Butterworth", "Chebyshev", "Cauer",          "Bessel",
                                  "Gaussian", "Constant-K",  "M-derived", "Gaussian to 12", ""};
  for (i16 code = 0; code <= 9; ++code) EXPECT_EQ(FamilyName(code), families[code]);
  EXPECT_EQ(FamilyName(familyManual), "Manual entry");
  EXPECT_EQ(TopologyCaption("A"), "Capacitor-input lowpass");
  EXPECT_EQ(TopologyCaption("F"), "Series-input bandpass");
  EXPECT_EQ(TopologyCaption("H"), "Cauer-only bandpass");
  EXPECT_EQ(TopologyCaption("L"), "Shunt-input bandstop");
  for (const std::string letter : {"", "M", "a", "AB", "@"}) EXPECT_EQ(TopologyCaption(letter), "") << letter;
}

TEST(DesignSummary, SaysTheEntriesBeforeThereIsANetwork) {
  EXPECT_EQ(DesignSummary(Design(), true), "Chebyshev  |  order 7  |  Capacitor-input lowpass  |  1MHz  |  50 ohms");
}

TEST(DesignSummary, SaysTheLoadOfANetworkAndTheFile) {
  DesignRecord record = Design();
  record.Stages = 7;
  record.Rload[1] = 1000;
  record.DesignFileName = "/home/someone/filters/MINE.QLM";
  EXPECT_EQ(DesignSummary(record, true),
            "Chebyshev  |  order 7  |  Capacitor-input lowpass  |  1MHz  |  50 to 1k ohms  |  MINE.QLM");
  record.DesignFileName = "C:\\filters\\OTHER.QLM";
  EXPECT_TRUE(DesignSummary(record, true).ends_with("|  OTHER.QLM"));
}

TEST(DesignSummary, ADesignThatIsNotSavedBearsAnAsterisk) {
  DesignRecord record = Design();
  EXPECT_EQ(DesignName(record, false), "");  // it has no name yet
  EXPECT_EQ(DesignSummary(record, false), DesignSummary(record, true));
  record.DesignFileName = "/home/someone/MINE.QLM";
  EXPECT_EQ(DesignName(record, true), "MINE.QLM");
  EXPECT_EQ(DesignName(record, false), "MINE.QLM*");
  EXPECT_TRUE(DesignSummary(record, false).ends_with("|  MINE.QLM*"));
}

TEST(DesignSummary, SaysTheBandOfABandpass) {
  DesignRecord record = Design("F");
  record.Width = 1e5F;
  record.Fcenter = 1e7F;
  EXPECT_NE(DesignSummary(record, true).find("  |  Series-input bandpass  |  100kHz wide at 10MHz  |  "),
            std::string::npos);
}

TEST(DesignSummary, SaysThatANetworkIsEditedByHand) {
  DesignRecord record = Design("M");
  record.NetworkEdited = 1;
  EXPECT_TRUE(DesignSummary(record, true).ends_with("  |  edited by hand"));
  record.Family = familyManual;
  EXPECT_EQ(DesignSummary(record, true), "Manual entry  |  1MHz  |  50 ohms  |  edited by hand");
}

TEST(DesignSummary, AnEmptyDesignSaysNothing) { EXPECT_EQ(DesignSummary(DesignRecord{}, true), ""); }

}  // namespace
}  // namespace quilm
