// The reader that the proofs of schematics rest on.
#include "files/export/AscReader.h"

#include <gmock/gmock.h>

#include "core/Fault.h"

namespace quilm {
namespace {

const std::string upper = "SYMBOL res 0 0 R0\r\nSYMATTR InstName R1\r\n";    // pins at (16, 16) and (16, 96)
const std::string lower = "SYMBOL res 0 112 R0\r\nSYMATTR InstName R2\r\n";  // at (16, 128) and (16, 208)

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

bool AreJoined(const std::vector<std::string>& wires) {
  const AscSheet sheet = ReadAsc(upper + lower + Lines(wires));
  return PartNamed(sheet, "R1").nodes[1] == PartNamed(sheet, "R2").nodes[0];
}

TEST(AscReader, JoinsPinsByWiresThatEndOnOneAnother) {
  EXPECT_FALSE(AreJoined({}));
  EXPECT_TRUE(AreJoined({"WIRE 16 96 16 128"}));
  EXPECT_TRUE(AreJoined({"WIRE 16 128 48 128", "WIRE 48 128 48 96", "WIRE 16 96 48 96"}));
  EXPECT_TRUE(AreJoined({"WIRE 16 96 48 96", "WIRE 32 96 32 128", "WIRE 32 128 16 128"}));   // on the middle of one
  EXPECT_FALSE(AreJoined({"WIRE 16 96 48 96", "WIRE 32 80 32 128", "WIRE 32 128 16 128"}));  // across it
  EXPECT_TRUE(AreJoined({"WIRE 16 64 16 144"}));                                             // over both pins
  EXPECT_FALSE(AreJoined({"WIRE 16 96 16 112"}));                                            // short of one
  EXPECT_TRUE(AreJoined({"FLAG 16 96 0", "FLAG 16 128 0"}));
}

TEST(AscReader, JoinsPinsThatMeet) {
  const AscSheet sheet = ReadAsc(upper + "SYMBOL res 0 80 R0\r\nSYMATTR InstName R2\r\n");
  EXPECT_EQ(PartNamed(sheet, "R1").nodes[1], PartNamed(sheet, "R2").nodes[0]);
  EXPECT_NE(PartNamed(sheet, "R1").nodes[0], PartNamed(sheet, "R2").nodes[1]);
}

// A resistor along the line that lies between a flag and another part, in each turn: which pin is at common.
TEST(AscReader, TurnsSymbols) {
  const auto firstIsCommon = [](const std::string& symbol, const std::string& flag) {
    const AscSheet sheet = ReadAsc("SYMBOL " + symbol + "\r\nSYMATTR InstName X\r\nFLAG " + flag + " 0\r\n");
    const std::vector<std::string>& nodes = PartNamed(sheet, "X").nodes;
    EXPECT_EQ(std::count(nodes.begin(), nodes.end(), "0"), 1) << symbol;
    return nodes[0] == "0";
  };
  EXPECT_TRUE(firstIsCommon("res 0 0 R0", "16 16"));
  EXPECT_TRUE(firstIsCommon("res 0 0 R90", "-16 16"));
  EXPECT_FALSE(firstIsCommon("res 0 0 R90", "-96 16"));
  EXPECT_TRUE(firstIsCommon("ind 0 0 R270", "16 -16"));
  EXPECT_FALSE(firstIsCommon("ind 0 0 R270", "96 -16"));
  EXPECT_FALSE(firstIsCommon("ind2 0 0 M0", "-16 96"));
  EXPECT_FALSE(firstIsCommon("cap 0 0 R90", "-64 16"));
  EXPECT_TRUE(firstIsCommon("voltage 0 0 R0", "0 16"));
  EXPECT_FALSE(firstIsCommon("tline 0 0 R90", "16 48"));
}

TEST(AscReader, ReadsValuesAsSimulatorsDo) {
  EXPECT_DOUBLE_EQ(SimulatorNumber("22.5uH"), 22.5e-6);
  EXPECT_DOUBLE_EQ(SimulatorNumber("1.2Meg"), 1.2e6);
  EXPECT_DOUBLE_EQ(SimulatorNumber("3mH"), 3e-3);
  EXPECT_DOUBLE_EQ(SimulatorNumber("3.5K"), 3500);
  EXPECT_DOUBLE_EQ(SimulatorNumber("2F"), 2e-15);
  EXPECT_DOUBLE_EQ(SimulatorNumber("1H"), 1);
  EXPECT_DOUBLE_EQ(NumberAfter("Td=2.5E-07 Z0=75", "Z0"), 75);
  EXPECT_THROW(SimulatorNumber("Meg"), Fault);
}

TEST(AscReader, RefusesWhatASchematicDoesNotHave) {
  for (const char* line : {"WIRE 0 0 8 0", "WIRE 0 0 16", "SYMBOL cat 0 0 R0", "SYMBOL res 0 0 R180", "FLAG 0 0 out",
                           "SYMATTR Value 5", "LINE 0 0 0 0", "TEXT 0 0 Left 2 word"}) {
    EXPECT_THROW(ReadAsc(std::string(line) + "\r\n"), Fault) << line;
  }
}

}  // namespace
}  // namespace quilm
