#include "core/Configuration.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quilm {
namespace {

class ConfigurationFile : public testing::Test {
 protected:
  bool Read(const std::string& text) {
    std::istringstream in(text);
    return ReadConfiguration(in, record, configuration);
  }
  std::string Line(int number) {
    std::istringstream in(FormatConfiguration(record, configuration, "2026-01-02 03:04:05"));
    std::string line;
    for (int i = 0; i < number + 4; ++i) std::getline(in, line);
    return line;
  }

  DesignRecord record;
  Configuration configuration;
};

TEST_F(ConfigurationFile, AnEmptyOneGivesTheDefaults) {
  EXPECT_TRUE(Read(""));
  EXPECT_EQ(record.Qcap[1], 2000);
  EXPECT_EQ(record.Units, 1);
  EXPECT_EQ(record.Qind[1], 200);
  EXPECT_EQ(record.Rsource[1], 50);
  EXPECT_EQ(record.SweepMode, 2);
  EXPECT_EQ(record.NrXints, 10);
  EXPECT_EQ(record.NrYints, 6);
  EXPECT_EQ(record.NrIntervals, 1000);
  EXPECT_EQ(record.DelayTop, 0.0001F);
  EXPECT_EQ(record.ImpedanceTop, 1200);
  EXPECT_EQ(record.LossBottom, -60);
  EXPECT_EQ(record.Rstandard, 50);
  EXPECT_EQ(record.Fstart, 1000);
  EXPECT_EQ(record.Fstop, 1e7F);
  EXPECT_EQ(record.VSWRTop, 2.2F);
  EXPECT_EQ(record.SmithAspect, 0.75F);
  EXPECT_EQ(record.PlotLineWidth, 1);
  EXPECT_EQ(configuration.ConfigValue[14], 1e7F);
}

TEST_F(ConfigurationFile, CommentsAndEmptyLinesAreNoSettings) {
  EXPECT_TRUE(
      Read("* head\r\n\r\n  ! more\n'x: 1\n/y: 2\n\\z: 3\nCapacitor Q values: 1.5k\n* between: 9\nEnglishMetric: 2\n"));
  EXPECT_EQ(record.Qcap[1], 1500);
  EXPECT_EQ(record.Units, 2);
  EXPECT_EQ(record.Qind[1], 200);  // the file ends here
}

TEST_F(ConfigurationFile, TheTerminationOfTheDesignIsNotRead) {
  Read("a:1\na:1\na:1\nInput termination: 75\n");
  EXPECT_EQ(record.Rsource[1], 50);
  EXPECT_EQ(configuration.ConfigValue[4], 75);
}

TEST_F(ConfigurationFile, ALineWithoutAColonReadsZero) {
  Read("Capacitor Q values 900\n");
  EXPECT_EQ(record.Qcap[1], 0);
}

TEST_F(ConfigurationFile, OnlySeventeenSettingsAreTaken) {
  std::string text;
  for (int i = 0; i < 18; ++i) text += "x: " + std::to_string(i == 17 ? 5 : 2) + "\n";
  Read(text);
  EXPECT_EQ(record.PlotLineWidth, 2);
}

TEST_F(ConfigurationFile, AspectAndLineWidthHaveAFloor) {
  std::string text;
  for (int i = 0; i < 17; ++i) text += "x: .1\n";
  Read(text);
  EXPECT_EQ(record.SmithAspect, 0.5F);
  EXPECT_EQ(record.PlotLineWidth, 1);
}

TEST_F(ConfigurationFile, AValueThatDoesNotFitIsAReadFailure) {
  EXPECT_FALSE(Read("Capacitor Q values: 5\nEnglishMetric: 1G\n"));
  EXPECT_EQ(record.Qcap[1], 2000);
  EXPECT_EQ(configuration.ConfigValue[1], 2000);
}

TEST_F(ConfigurationFile, WritesItsHeadAndLines) {
  Read("");
  EXPECT_EQ(FormatConfiguration(record, configuration, "2026-01-02 03:04:05").substr(0, 62),
            "* Quilm Configuration File\r\n\r\n* 2026-01-02 03:04:05\r\n\r\nCapacit");
  EXPECT_EQ(Line(1), "Capacitor Q values: 2000 \r");
  EXPECT_EQ(Line(9), "Plot delay top: .0001 \r");
  EXPECT_EQ(Line(11), "Plot loss bottom:-60 \r");
  EXPECT_EQ(Line(14), "Stopping test freq: 1E+07 \r");
  EXPECT_EQ(Line(17), "Plot data line width: 1 \r");
}

TEST_F(ConfigurationFile, WhatIsWrittenReadsBack) {
  Read("");
  record.Fstart = 12345;
  record.LossBottom = -80;
  const std::string text = FormatConfiguration(record, configuration, "now");
  DesignRecord other;
  std::istringstream in(text);
  EXPECT_TRUE(ReadConfiguration(in, other, configuration));
  EXPECT_EQ(other.Fstart, 12345);
  EXPECT_EQ(other.LossBottom, -80);
}

TEST_F(ConfigurationFile, AnEmptyFieldKeepsThePreference) {
  Read("a:900\n");
  record.Qcap[1] = 0;
  record.Fstart = 0;
  record.SweepMode = 0;
  EXPECT_EQ(Line(1), "Capacitor Q values: 900 \r");
  EXPECT_EQ(record.Qcap[1], 900);
  EXPECT_EQ(record.Fstart, 1000);
  EXPECT_EQ(record.SweepMode, 2);
}

TEST_F(ConfigurationFile, UnitsAreWrittenAsTheyStand) {
  Read("");
  record.Units = 0;
  EXPECT_EQ(Line(2), "EnglishMetric: 0 \r");
}

TEST_F(ConfigurationFile, VerticalStepsNeedAPreferenceAboveThree) {
  Read("");
  configuration.ConfigValue[7] = 8;
  record.NrYints = 0;
  EXPECT_EQ(Line(7), "Number of plot Y steps: 8 \r");
  configuration.ConfigValue[7] = 3;
  record.NrYints = 0;
  EXPECT_EQ(Line(7), "Number of plot Y steps: 6 \r");
  EXPECT_EQ(configuration.ConfigValue[7], 6);
}

TEST_F(ConfigurationFile, AspectAndLineWidthAreHeld) {
  Read("");
  record.SmithAspect = -1;
  record.PlotLineWidth = 9;
  EXPECT_EQ(Line(16), "Smith aspect ratio: .75 \r");
  EXPECT_EQ(Line(17), "Plot data line width: 6 \r");
  EXPECT_EQ(record.PlotLineWidth, 6);
  record.PlotLineWidth = -2;
  EXPECT_EQ(Line(17), "Plot data line width: 1 \r");
}

}  // namespace
}  // namespace quilm
