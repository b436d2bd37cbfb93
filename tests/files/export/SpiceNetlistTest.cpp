// Netlists and subcircuits as whole files, byte by byte, and where they end in a failure. The expected texts are worked
// out by hand from the positions of the fields: name 1, nodes 8 and 14, value 20, comment 32.
#include "files/export/SpiceNetlist.h"

#include <gmock/gmock.h>

#include "core/DesignRecord.h"
#include "files/export/CardText.h"

namespace quilm {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

constexpr const char* date = "2026-11-22";

// The text with the line ends of the file.
std::string CrLf(std::string_view text) {
  std::string file;
  for (const char c : text) file += c == '\n' ? "\r\n" : std::string(1, c);
  return file;
}

std::string Circuit(const DesignRecord& record) {
  const ExportText file = SpiceNetlist(record, SpiceFileKind::CIR, date);
  EXPECT_EQ(file.failure, "");
  return file.text;
}

std::string Subcircuit(const DesignRecord& record) {
  const ExportText file = SpiceNetlist(record, SpiceFileKind::SUB, date);
  EXPECT_EQ(file.failure, "");
  return file.text;
}

// Between 50 ohms, Q of 200 and 1000 at 1 MHz, swept over two decades: at 1 MHz an inductor of 10 uH has
// 2 Pi 10 / 200 = 0.314159 ohms, a capacitor of 4.7 nF 1000 / (2 Pi 4.7e-3) = 33862.75 ohms.
DesignRecord Bare() {
  DesignRecord record;
  record.Width = 1e6F;
  record.Rsource[1] = record.Rload[1] = 50;
  record.Qind[1] = 200;
  record.Qcap[1] = 1000;
  record.SweepMode = 2;
  record.Fstart = 1e5F;
  record.Fstop = 1e7F;
  record.NrIntervals = 200;
  return record;
}

DesignRecord Lowpass() {
  DesignRecord record = Bare();
  record.Family = familyChebyshev;
  record.Topology = "A";
  record.Order = 3;
  record.Apass = 0.1F;
  record.Stages = 3;
  record.stage[1].ElementType = record.stage[3].ElementType = ShuntC;
  record.stage[1].Cval.value = record.stage[3].Cval.value = 4.7e-9F;
  record.stage[2].ElementType = SeriesL;
  record.stage[2].Lval.value = 10e-6F;
  return record;
}

// One stage of each type with cards, then one without and a place that is empty.
DesignRecord AllTypes() {
  DesignRecord record = Bare();
  record.Topology = "M";
  record.Qind[1] = 100;
  const i16 types[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 19, 20, 21, 17, 0};
  record.Stages = static_cast<i16>(std::size(types));
  for (int s = 1; s <= record.Stages; ++s) {
    Stage& stage = record.stage[s];
    stage.ElementType = types[s - 1];
    stage.Lval.value = 1e-6F;
    stage.Cval.value = 1e-9F;
    stage.TLval = {45, 1e6F, 75, 0, 0};
  }
  record.stage[1].Lval.value = 10e-6F;
  record.stage[2].Lval.value = 22e-6F;
  record.stage[4].Cval.value = 100e-12F;
  record.stage[6].Lval.value = 2.2e-6F;
  record.stage[6].Cval.value = 470e-12F;
  record.stage[9].Rval.value = 0.5F;
  record.stage[10].Rval.value = 1000;
  record.stage[16].XfmrVal.value = 2;
  record.stage[17].CoupledVal = {10e-6F, 22e-6F, 0.5F, 0, 0, 0};
  record.stage[18].Rval.value = 33;
  return record;
}

TEST(CardText, FillsUpToAColumnOrGoesOnBelow) {
  CardText card;
  card.Print("R1");
  card.At(8);
  card.Print("1234567");
  card.At(15);  // reached, not passed
  card.Print("x");
  card.At(15);  // passed by one
  card.Print("y");
  card.EndLine();
  card.At(1);
  card.Print("z");
  EXPECT_EQ(card.Take(), "R1     1234567x\r\n              y\r\nz");
}

TEST(SpiceNetlist, ALowpassIsThisFile) {
  EXPECT_EQ(Circuit(Lowpass()), CrLf("* SPICE .CIR file by Quilm\n"
                                     "* 2026-11-22\n"
                                     "\n"
                                     "* Topology: Capacitor-input LPF\n"
                                     "* Order: 3 \n"
                                     "* Fwidth: 1M  \n"
                                     "* Family: Chebyshev\n"
                                     "* Apass: 0.1  dB\n"
                                     "\n"
                                     "* Excitation:\n"
                                     "Vin    1     0     AC    2   \n"
                                     "\n"
                                     "* Input termination:\n"
                                     "RS     1     2     50\n"
                                     "\n"
                                     "C1     2     0     4.7nF \n"
                                     "Rpar1  2     0     33.863k     ;Qcap\n"
                                     "L1     2     20    10uH \n"
                                     "R1     20    3     0.31416     ;Qind\n"
                                     "C2     3     0     4.7nF \n"
                                     "Rpar2  3     0     33.863k     ;Qcap\n"
                                     "\n"
                                     "* Output termination:\n"
                                     "RL     3      0    50\n"
                                     "\n"
                                     "* Output is at node 3 \n"
                                     "\n"
                                     "* Analysis:\n"
                                     ".AC DEC 100  100000  1E+07 \n"
                                     "\n"
                                     ".PROBE\n"
                                     "\n"
                                     ".END\n"));
}

// Losses at 1 MHz: an inductor has 2 Pi / 100 = 0.0628319 ohms a microhenry, a capacitor 159.1549 kilohms over its
// nanofarads. The line moves on from node 2 by eleven nodes; a delay is 45 / 360 / 1 MHz.
TEST(SpiceNetlist, ASubcircuitOfEveryTypeIsThisFile) {
  EXPECT_EQ(Subcircuit(AllTypes()), CrLf("* Subcircuit .SUB file by Quilm\n"
                                         "* 2026-11-22\n"
                                         "\n"
                                         "* Original terminations:\n"
                                         "* Input: 50        Output: 50\n"
                                         "\n"
                                         "*               in out common\n"
                                         ".SUBCKT  Filter  2   13   1000 \n"
                                         "L1     2     10    10uH \n"
                                         "R1     10    3     0.62832     ;Qind\n"
                                         "L2     3     20    22uH \n"
                                         "R2     20    1000  1.3823      ;Qind\n"
                                         "C1     3     4     1nF \n"
                                         "Rpar1  3     4     159.155k    ;Qcap\n"
                                         "C2     4     1000  100pF \n"
                                         "Rpar2  4     1000  1.592Meg    ;Qcap\n"
                                         "L3     4     50    1uH \n"
                                         "R3     50    5     0.06283     ;Qind\n"
                                         "C3     5     6     1nF \n"
                                         "Rpar3  5     6     159.155k    ;Qcap\n"
                                         "L4     6     60    2.2uH \n"
                                         "R4     60    61    0.13823     ;Qind\n"
                                         "C4     61    1000  470pF \n"
                                         "Rpar4  61    1000  338.628k    ;Qcap\n"
                                         "L5     6     70    1uH \n"
                                         "R5     70    7     0.06283     ;Qind\n"
                                         "C5     6     7     1nF \n"
                                         "Rpar5  6     7     159.155k    ;Qcap\n"
                                         "L6     7     80    1uH \n"
                                         "R6     80    1000  0.06283     ;Qind\n"
                                         "C6     7     1000  1nF \n"
                                         "Rpar6  7     1000  159.155k    ;Qcap\n"
                                         "R7     7     8     .5\n"
                                         "R8     8     1000  1000\n"
                                         "T1     8     1000  9    1000   Zo=75 Td=1.25E-07\n"
                                         "T2     9     10    120   120   Zo=75 Td=1.25E-07\n"
                                         "R120   120    1000 1G          ;path\n"
                                         "\n"
                                         "T3     10    11    130   131   Zo=75 Td=1.25E-07\n"
                                         "R130   130    1000 1G          ;path\n"
                                         "\n"
                                         "T4     11    1000  140   140   Zo=75 Td=1.25E-07\n"
                                         "R140   140    1000 1G          ;path\n"
                                         "\n"
                                         "T5     11    1000  150   1000  Zo=75 Td=1.25E-07\n"
                                         "R150   150    1000 1G          ;path\n"
                                         "\n"
                                         "L7     11    1000   4          ;pri\n"
                                         "L8     12    1000  1           ;sec\n"
                                         "K78    L7    L8    .999999     ;K\n"
                                         "L9     12    1000  10uH        ;pri\n"
                                         "L10    13    1000  22uH        ;sec\n"
                                         "K910   L9    L10    .5         ;K\n"
                                         "L11    13    180   1uH \n"
                                         "R9     180   14    0.06283     ;Qind\n"
                                         "R10    14    15    33\n"
                                         "C7     15    1000  1nF \n"
                                         "Rpar7  15    1000  159.155k    ;Qcap\n"
                                         ".ENDS Filter\n"));
}

// The head of a deck, from the third line to the excitation.
std::string DesignLines(const DesignRecord& record) {
  const std::string text = Circuit(record);
  const std::size_t from = text.find("\r\n\r\n") + 4;
  return text.substr(from, text.find("\r\n\r\n", from) - from);
}

TEST(SpiceNetlist, NamesEachTopology) {
  const char* names[] = {"Capacitor-input LPF",
                         "Inductor-input LPF",
                         "Nodal capacitor-coupled BPF",
                         "Nodal inductor-coupled BPF",
                         "Shunt-input geometrically-symmetrical BPF",
                         "Series-input geometrically-symmetrical BPF",
                         "Mesh-capacitor-coupled BPF",
                         "Cauer-topology BPF",
                         "Capacitor-input HPF",
                         "Capacitor-input HPF",
                         "Series-input Bandstop",
                         "Shunt-input Bandstop",
                         "Manually-entered circuit"};
  for (char letter = 'A'; letter <= 'M'; ++letter) {
    DesignRecord record = Bare();
    record.Topology = letter;
    EXPECT_THAT(DesignLines(record), testing::StartsWith(std::string("* Topology: ") + names[letter - 'A']));
  }
}

TEST(SpiceNetlist, ANetworkByHandHasNoLinesOfADesign) {
  DesignRecord record = Bare();
  record.Family = familyManual;
  record.Order = 5;
  record.Fcenter = 2e6F;
  record.Topology = "M";
  EXPECT_EQ(DesignLines(record), "* Topology: Manually-entered circuit");
  record.Topology = "";
  EXPECT_EQ(DesignLines(record), CrLf("* Order: 5 \n* Fwidth: 1M  \n* Fcenter: 2M  "));
  record.Topology = "0";
  EXPECT_EQ(DesignLines(record), CrLf("* Order: 5 \n* Fwidth: 1M  \n* Fcenter: 2M  "));
  record.Order = record.Width = record.Fcenter = 0;
  record.stage[1] = {};
  EXPECT_THAT(Circuit(record), HasSubstr("\r\n\r\n\r\n* Excitation:"));
}

// The stopband edge of a highpass, and of each topology behind it, lies below.
TEST(SpiceNetlist, ACauerDesignHasItsStopband) {
  DesignRecord record = Bare();
  record.Family = familyCauer;
  record.Order = 5;
  record.FstopNorm = 1.25F;
  record.Apass = 0.25F;
  record.Astop = 60;
  record.Topology = "H";
  record.Fcenter = 10.7e6F;
  EXPECT_EQ(DesignLines(record), CrLf("* Topology: Cauer-topology BPF\n"
                                      "* Order: 5 \n"
                                      "* Fwidth: 1M  \n"
                                      "* Fstop: 1.25M  \n"
                                      "* Fcenter: 10.7M  \n"
                                      "* Family: Cauer\n"
                                      "* Apass: 0.25  dB\n"
                                      "* Astop: 60  dB"));
  for (const char* topology : {"I", "J", "K", "L"}) {
    record.Topology = topology;
    EXPECT_THAT(DesignLines(record), HasSubstr("* Fstop: 800K  \r\n")) << topology;
  }
}

TEST(SpiceNetlist, NamesFamiliesUpToConstantK) {
  const char* names[] = {"Butterworth", "Chebyshev", "Cauer", "Bessel", "Gaussian", "Constant-K"};
  for (i16 family = 0; family <= 11; ++family) {
    DesignRecord record = Bare();
    record.Family = family;
    record.Apass = record.Astop = 1;
    const std::string lines = DesignLines(record);
    if (family < 1 || family > 6) {
      EXPECT_THAT(lines, Not(HasSubstr("Family"))) << family;
    } else {
      EXPECT_THAT(lines, HasSubstr(std::string("* Family: ") + names[family - 1])) << family;
    }
    EXPECT_EQ(lines.find("Apass") != std::string::npos, family == 2 || family == 3) << family;
    EXPECT_EQ(lines.find("Astop") != std::string::npos, family == 3) << family;
  }
}

TEST(SpiceNetlist, TheSweepByItsMode) {
  DesignRecord record = Bare();
  record.SweepMode = 1;
  record.NrIntervals = 199.9996F;  // as a file of a step may give it
  EXPECT_THAT(Circuit(record), EndsWith(CrLf("* Analysis:\n.AC LIN 200  100000  1E+07 \n\n.PROBE\n\n.END\n")));
  record.SweepMode = 2;
  record.NrIntervals = 2049;
  record.Fstart = 8e6F;
  EXPECT_THAT(Circuit(record), HasSubstr(".AC DEC 1000  8000000  1E+07 \r\n"));
  record.SweepMode = 0;
  EXPECT_THAT(Circuit(record), EndsWith(CrLf("* Analysis:\n\n.PROBE\n\n.END\n")));
}

// The amplitude is (Rsource + Rload) / Rload.
TEST(SpiceNetlist, UnequalTerminations) {
  DesignRecord record = Bare();
  record.Rsource[1] = 600;
  record.Rload[1] = 2400;
  const std::string text = Circuit(record);
  EXPECT_THAT(text, HasSubstr("Vin    1     0     AC    1.25   \r\n"));
  EXPECT_THAT(text, HasSubstr("RS     1     2     600\r\n"));
  EXPECT_THAT(text, HasSubstr("RL     2      0    2.4K\r\n"));
  EXPECT_THAT(Subcircuit(record), HasSubstr("* Input: 600       Output: 2.4K\r\n"));
}

TEST(SpiceNetlist, ShuntStagesLeaveTheOutputAtNode2) {
  DesignRecord record = Bare();
  record.Stages = 2;
  record.stage[1].ElementType = record.stage[2].ElementType = ShuntR;
  record.stage[1].Rval.value = record.stage[2].Rval.value = 75;
  EXPECT_THAT(Subcircuit(record), HasSubstr(".SUBCKT  Filter  2   2   1000 \r\n"));
  EXPECT_THAT(Circuit(record), HasSubstr("* Output is at node 2 \r\n"));
}

// 0.0001 at the least, and 1E+7 at the most.
TEST(SpiceNetlist, LossesHaveAFloorAndACeiling) {
  DesignRecord record = Lowpass();
  record.Qind[1] = record.Qcap[1] = 1e6F;
  const std::string text = Circuit(record);
  EXPECT_THAT(text, HasSubstr("R1     20    3     0.0001      ;Qind\r\n"));
  EXPECT_THAT(text, HasSubstr("Rpar1  2     0     10Meg       ;Qcap\r\n"));
}

// At the centre of a bandpass, whatever its width is.
TEST(SpiceNetlist, LossesAreThoseAtTheReferenceFrequency) {
  DesignRecord record = Lowpass();
  record.Fcenter = 4e6F;
  const std::string text = Circuit(record);
  EXPECT_THAT(text, HasSubstr("R1     20    3     1.2566      ;Qind\r\n"));
  EXPECT_THAT(text, HasSubstr("Rpar1  2     0     8.466k      ;Qcap\r\n"));
}

TEST(SpiceNetlist, AZeroInductanceHasNoValue) {
  DesignRecord record = Lowpass();
  record.stage[2].Lval.value = 0;
  EXPECT_THAT(Circuit(record), HasSubstr("L1     2     20     \r\nR1     20    3     0.0001      ;Qind\r\n"));
}

TEST(SpiceNetlist, ACapacitorBelowAPicofaradIsZero) {
  DesignRecord record = Lowpass();
  record.stage[1].Cval.value = 0.5e-12F;
  EXPECT_THAT(Circuit(record), HasSubstr("C1     2     0     0   \r\nRpar1  2     0     10Meg"));
}

TEST(SpiceNetlist, ALineWithoutLengthSaysSo) {
  DesignRecord record = Bare();
  record.Stages = 1;
  record.stage[1].ElementType = TransLine;
  record.stage[1].TLval = {-36, 1e6F, 50, 0, 0};
  EXPECT_THAT(Circuit(record), HasSubstr("T1     2     0     3    0      Zo=50 Td=-1E-07 ;observe length\r\n"));
  record.stage[1].TLval.degrees = 0;
  EXPECT_THAT(Circuit(record), HasSubstr("Td=0 ;observe length\r\n"));
}

// 100 / 360 / 3 MHz in seven digits.
TEST(SpiceNetlist, ADelayHasSevenDigits) {
  DesignRecord record = Bare();
  record.Stages = 1;
  record.stage[1].ElementType = TransLine;
  record.stage[1].TLval = {100, 3e6F, 50, 0, 0};
  EXPECT_THAT(Circuit(record), HasSubstr("Zo=50 Td=9.259259E-08\r\n"));
}

// .001111 squared has fourteen characters, from column 20 to 33.
TEST(SpiceNetlist, AFieldThatPassesTheCommentPushesItToTheNextLine) {
  DesignRecord record = Bare();
  record.Stages = 1;
  record.stage[1].ElementType = Transformer;
  record.stage[1].XfmrVal.value = 0.001111F;
  EXPECT_THAT(Circuit(record), HasSubstr("L1     2     0      1.234321E-06 \r\n" + std::string(31, ' ') + ";pri\r\n"));
}

// The line does not move on: the coil's inner nodes 3 and 4 are those of the resistors behind it.
TEST(SpiceNetlist, AShuntCoilWithLossLetsItsInnerNodesMeetTheLine) {
  DesignRecord record = AllTypes();
  record.stage[1] = record.stage[18];
  record.stage[2] = record.stage[3] = record.stage[9];
  record.Stages = 3;
  EXPECT_THAT(Circuit(record), HasSubstr(CrLf("L1     2     10    1uH \n"
                                              "R1     10    3     0.06283     ;Qind\n"
                                              "R2     3     4     33\n"
                                              "C1     4     0     1nF \n"
                                              "Rpar1  4     0     159.155k    ;Qcap\n"
                                              "R3     2     3     .5\n"
                                              "R4     3     4     .5\n")));
}

// ---- failures -------------------------------------------------------------------------------------------------------

TEST(SpiceNetlist, ACapacitanceOfZeroEndsTheFileAtItsCard) {
  DesignRecord record = Lowpass();
  const std::string whole = Circuit(record);
  record.stage[3].Cval.value = 0;
  const ExportText file = SpiceNetlist(record, SpiceFileKind::CIR, date);
  EXPECT_EQ(file.failure, "Division by zero in stage 3");
  EXPECT_EQ(file.text, whole.substr(0, whole.find("C2 ")) + "C2     3     0      \r\n");
}

TEST(SpiceNetlist, ALoadOfZeroEndsTheFileAtTheSource) {
  DesignRecord record = Lowpass();
  record.Rload[1] = 0;
  const ExportText file = SpiceNetlist(record, SpiceFileKind::CIR, date);
  EXPECT_EQ(file.failure, "Division by zero");
  EXPECT_THAT(file.text, EndsWith("* Excitation:\r\n"));
}

TEST(SpiceNetlist, ALogarithmicSweepFromZeroEndsTheFileAtTheAnalysis) {
  DesignRecord record = Lowpass();
  record.Fstart = 0;
  const ExportText file = SpiceNetlist(record, SpiceFileKind::CIR, date);
  EXPECT_EQ(file.failure, "Division by zero");
  EXPECT_THAT(file.text, EndsWith("* Analysis:\r\n"));
  EXPECT_EQ(SpiceNetlist(record, SpiceFileKind::SUB, date).failure, "");
}

TEST(SpiceNetlist, AQualityOfZeroEndsTheFileAtTheCoil) {
  DesignRecord record = Lowpass();
  record.Qind[1] = 0;
  const ExportText file = SpiceNetlist(record, SpiceFileKind::SUB, date);
  EXPECT_EQ(file.failure, "Division by zero in stage 2");
  EXPECT_THAT(file.text, EndsWith("L1     2     20    10uH \r\n"));
}

TEST(SpiceNetlist, ALineOfNoFrequencyEndsTheFileBeforeItsCard) {
  DesignRecord record = Bare();
  record.Stages = 1;
  record.stage[1].ElementType = TransLine;
  record.stage[1].TLval = {45, 0, 50, 0, 0};
  const ExportText file = SpiceNetlist(record, SpiceFileKind::SUB, date);
  EXPECT_EQ(file.failure, "Division by zero in stage 1");
  EXPECT_THAT(file.text, EndsWith("1000 \r\n"));
}

// No centre, no width, a sweep from 0.
TEST(SpiceNetlist, AReferenceFrequencyOfZeroFailsAtTheFirstCapacitor) {
  DesignRecord record = Lowpass();
  record.Width = record.Fstart = 0;
  EXPECT_EQ(SpiceNetlist(record, SpiceFileKind::CIR, date).failure, "Division by zero in stage 1");
}

}  // namespace
}  // namespace quilm
