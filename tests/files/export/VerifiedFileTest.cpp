// Verified netlists as whole files, byte by byte, and where they end in a failure.
#include <gmock/gmock.h>

#include <cmath>

#include "core/DesignRecord.h"
#include "files/export/LtspiceBench.h"
#include "files/export/VerifiedNetlist.h"

namespace quilm {
namespace {

using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Not;

constexpr SpiceDialect dialects[] = {SpiceDialect::Ngspice, SpiceDialect::LTspice};

std::string Written(const DesignRecord& record, SpiceDialect dialect) {
  const ExportText file = VerifiedNetlist(record, dialect, "2026-11-22");
  EXPECT_EQ(file.failure, "");
  return file.text;
}

// Powers of two, whose decimals are short: 2^-17 H, 2^-30 F, Q of 128 and 1024 at 2^20 Hz. The loss of an inductor is
// 2 Pi 2^20 2^-17 / 128 = Pi / 8 ohms, the conductance of a capacitor 2^-30 / 1024 = 2^-40 siemens per rad/s, 2 Pi
// times that per hertz; a delay is 45 / 360 / 2^20 s, the source 2 sqrt(64 / 256) volts.
DesignRecord OfPowersOfTwo(const std::vector<i16>& types) {
  DesignRecord record = LadderOf(types);
  for (int s = 1; s <= record.Stages; ++s) {
    Stage& stage = record.stage[s];
    stage.Lval.value = 0x1p-17F;
    stage.Cval.value = 0x1p-30F;
    stage.TLval = {45, 0x1p20F, 50, 0, 0};
    stage.XfmrVal.value = 2;
    stage.CoupledVal = {0x1p-17F, 0x1p-15F, 0.5F, 0, 0, 0};
  }
  record.Rsource[1] = 64;
  record.Rload[1] = 256;
  record.Qind[1] = 128;
  record.Qcap[1] = 1024;
  record.Width = 0x1p20F;
  record.Fstart = 1e4F;
  record.Fstop = 1e6F;
  record.NrIntervals = 200;
  return record;
}

const std::vector<i16> allTypes = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 19, 20, 21, 17, 0};

const char* const ngspiceFile[] = {
    "* Netlist for ngspice by Quilm",
    "* 2026-11-22",
    "* V(out) in dB is the transmission, its phase the transmission angle. For ac analyses only.",
    "* Inductors: Q 128 at 1048576 Hz, by a constant resistance. Capacitors: Q 1024 at every frequency.",
    "Vin src 0 0 AC 1",
    "Rsource src in 64",
    "L1 in l1 7.62939453125e-06",
    "Rl1 l1 n1 0.39269908169872414",
    "L2 n1 l2 7.62939453125e-06",
    "Rl2 l2 0 0.39269908169872414",
    "C3 n1 n2 9.313225746154785e-10",
    "B3 n1 n2 I=v(n1,n2)*(hertz > 0 ? hertz*5.714523747137342e-12 : 1)",
    "C4 n2 0 9.313225746154785e-10",
    "B4 n2 0 I=v(n2)*(hertz > 0 ? hertz*5.714523747137342e-12 : 1)",
    "L5 n2 l5 7.62939453125e-06",
    "Rl5 l5 lc5 0.39269908169872414",
    "C5 lc5 n3 9.313225746154785e-10",
    "B5 lc5 n3 I=v(lc5,n3)*(hertz > 0 ? hertz*5.714523747137342e-12 : 1)",
    "L6 n3 l6 7.62939453125e-06",
    "Rl6 l6 lc6 0.39269908169872414",
    "C6 lc6 0 9.313225746154785e-10",
    "B6 lc6 0 I=v(lc6)*(hertz > 0 ? hertz*5.714523747137342e-12 : 1)",
    "L7 n3 l7 7.62939453125e-06",
    "Rl7 l7 n4 0.39269908169872414",
    "C7 n3 n4 9.313225746154785e-10",
    "B7 n3 n4 I=v(n3,n4)*(hertz > 0 ? hertz*5.714523747137342e-12 : 1)",
    "Rt7 n3 n4 1e+11",
    "L8 n4 l8 7.62939453125e-06",
    "Rl8 l8 0 0.39269908169872414",
    "C8 n4 0 9.313225746154785e-10",
    "B8 n4 0 I=v(n4)*(hertz > 0 ? hertz*5.714523747137342e-12 : 1)",
    "Rt8 n4 0 1e+11",
    "R9 n4 n5 75",
    "R10 n5 0 75",
    "T11 n5 0 n6 0 Z0=50 Td=1.1920928955078125e-07",
    "Rd12 d12 0 1 ac=1e-12",
    "T12 n6 n7 d12 0 Z0=50 Td=1.1920928955078125e-07",
    "Bd13 n7 n8 I=v(n7,n8)*(hertz > 0 ? 0 : 1)",
    "T13 n7 n8 t13 0 Z0=50 Td=1.1920928955078125e-07",
    "Rd14 d14 0 1 ac=1e-12",
    "T14 n8 0 d14 0 Z0=50 Td=1.1920928955078125e-07",
    "T15 n8 0 t15 0 Z0=50 Td=1.1920928955078125e-07",
    "E16 n8 e16 n9 0 2",
    "V16 e16 0 0",
    "F16 0 n9 V16 2",
    "Lp17 n9 d17 7.62939453125e-06",
    "Rd17 d17 0 1 ac=1e-12",
    "Ls17 n10 ds17 3.0517578125e-05",
    "Rds17 ds17 0 1 ac=1e-12",
    "K17 Lp17 Ls17 0.5",
    "L18 n10 l18 7.62939453125e-06",
    "Rl18 l18 lc18 0.39269908169872414",
    "C18 lc18 cr18 9.313225746154785e-10",
    "B18 lc18 cr18 I=v(lc18,cr18)*(hertz > 0 ? hertz*5.714523747137342e-12 : 1)",
    "R18 cr18 0 75",
    "L19 n10 l19 7.62939453125e-06",
    "Rl19 l19 out 0.39269908169872414",
    "C19 n10 out 9.313225746154785e-10",
    "B19 n10 out I=v(n10,out)*(hertz > 0 ? hertz*5.714523747137342e-12 : 1)",
    "Rt19 n10 out 1e+11",
    "R19 n10 out 75",
    "Rload out 0 256",
    ".ac dec 100 10000 1e+06",
    ".print ac vdb(out) vp(out)",
    ".end",
};

const char* const ltspiceFile[] = {
    "* Netlist for LTspice by Quilm",
    "* 2026-11-22",
    "* V(out) in dB is the transmission, its phase the transmission angle. For ac analyses only.",
    "* Inductors: Q 128 at 1048576 Hz, by a constant resistance. Capacitors: Q 1024 at every frequency.",
    "Vin src 0 0 AC 1",
    "Rsource src in 64",
    "L1 in l1 7.62939453125e-06 Rser=0",
    "Rl1 l1 n1 0.39269908169872414",
    "L2 n1 l2 7.62939453125e-06 Rser=0",
    "Rl2 l2 0 0.39269908169872414",
    "C3 n1 n2 9.313225746154785e-10",
    "G3 n1 n2 n1 n2 Laplace=9.094947017729282e-13*sqrt(-s*s)",
    "Rd3 n1 n2 1e15",
    "C4 n2 0 9.313225746154785e-10",
    "G4 n2 0 n2 0 Laplace=9.094947017729282e-13*sqrt(-s*s)",
    "Rd4 n2 0 1e15",
    "L5 n2 l5 7.62939453125e-06 Rser=0",
    "Rl5 l5 lc5 0.39269908169872414",
    "C5 lc5 n3 9.313225746154785e-10",
    "G5 lc5 n3 lc5 n3 Laplace=9.094947017729282e-13*sqrt(-s*s)",
    "Rd5 lc5 n3 1e15",
    "L6 n3 l6 7.62939453125e-06 Rser=0",
    "Rl6 l6 lc6 0.39269908169872414",
    "C6 lc6 0 9.313225746154785e-10",
    "G6 lc6 0 lc6 0 Laplace=9.094947017729282e-13*sqrt(-s*s)",
    "Rd6 lc6 0 1e15",
    "L7 n3 l7 7.62939453125e-06 Rser=0",
    "Rl7 l7 n4 0.39269908169872414",
    "C7 n3 n4 9.313225746154785e-10",
    "G7 n3 n4 n3 n4 Laplace=9.094947017729282e-13*sqrt(-s*s)",
    "Rd7 n3 n4 1e15",
    "Rt7 n3 n4 1e+11",
    "L8 n4 l8 7.62939453125e-06 Rser=0",
    "Rl8 l8 0 0.39269908169872414",
    "C8 n4 0 9.313225746154785e-10",
    "G8 n4 0 n4 0 Laplace=9.094947017729282e-13*sqrt(-s*s)",
    "Rd8 n4 0 1e15",
    "Rt8 n4 0 1e+11",
    "R9 n4 n5 75",
    "R10 n5 0 75",
    "T11 n5 0 n6 0 Z0=50 Td=1.1920928955078125e-07",
    "Rd12 d12 0 1e-12",
    "T12 n6 n7 d12 0 Z0=50 Td=1.1920928955078125e-07",
    "Rd13 n7 n8 1e15",
    "T13 n7 n8 t13 0 Z0=50 Td=1.1920928955078125e-07",
    "Rd14 d14 0 1e-12",
    "T14 n8 0 d14 0 Z0=50 Td=1.1920928955078125e-07",
    "T15 n8 0 t15 0 Z0=50 Td=1.1920928955078125e-07",
    "E16 n8 e16 n9 0 2",
    "V16 e16 0 0",
    "F16 0 n9 V16 2",
    "Lp17 n9 d17 7.62939453125e-06 Rser=0",
    "Rd17 d17 0 1e-12",
    "Ls17 n10 ds17 3.0517578125e-05 Rser=0",
    "Rds17 ds17 0 1e-12",
    "K17 Lp17 Ls17 0.5",
    "L18 n10 l18 7.62939453125e-06 Rser=0",
    "Rl18 l18 lc18 0.39269908169872414",
    "C18 lc18 cr18 9.313225746154785e-10",
    "G18 lc18 cr18 lc18 cr18 Laplace=9.094947017729282e-13*sqrt(-s*s)",
    "Rd18 lc18 cr18 1e15",
    "R18 cr18 0 75",
    "L19 n10 l19 7.62939453125e-06 Rser=0",
    "Rl19 l19 out 0.39269908169872414",
    "C19 n10 out 9.313225746154785e-10",
    "G19 n10 out n10 out Laplace=9.094947017729282e-13*sqrt(-s*s)",
    "Rd19 n10 out 1e15",
    "Rt19 n10 out 1e+11",
    "R19 n10 out 75",
    "Rload out 0 256",
    ".ac dec 100 10000 1e+06",
    ".end",
};

TEST(VerifiedFile, EveryTypeForNgspiceIsThisFile) {
  EXPECT_THAT(LinesOf(Written(OfPowersOfTwo(allTypes), SpiceDialect::Ngspice)), ElementsAreArray(ngspiceFile));
}

TEST(VerifiedFile, EveryTypeForLTspiceIsThisFile) {
  EXPECT_THAT(LinesOf(Written(OfPowersOfTwo(allTypes), SpiceDialect::LTspice)), ElementsAreArray(ltspiceFile));
}

TEST(VerifiedFile, BearsTheTitleOfTheCircuit) {
  DesignRecord record = OfPowersOfTwo({ShuntR});
  record.CircuitTitle = "Antenna filter";
  EXPECT_THAT(Written(record, SpiceDialect::LTspice), HasSubstr("\r\n* 2026-11-22\r\n* Antenna filter\r\n* V(out)"));
}

// As many points as the program sweeps; from 0 Hz, where the analysis has no figure, it starts with the second.
TEST(VerifiedFile, SweepsAsTheProgramDoes) {
  for (const SpiceDialect dialect : dialects) {
    DesignRecord record = OfPowersOfTwo({ShuntR});
    record.SweepMode = 1;
    EXPECT_THAT(Written(record, dialect), HasSubstr(".ac lin 201 10000 1e+06\r\n"));
    record.Fstart = 0;
    EXPECT_THAT(Written(record, dialect), HasSubstr(".ac lin 200 5000 1e+06\r\n"));
    record.SweepMode = 2;
    EXPECT_THAT(Written(record, dialect), HasSubstr("* The design has no sweep.\r\n"));
    EXPECT_THAT(Written(record, dialect), Not(HasSubstr(".ac")));
    record.Fstart = 9e5F;
    record.NrIntervals = 2049;  // over .04576 decades
    EXPECT_THAT(Written(record, dialect), HasSubstr(".ac dec 44780 9e+05 1e+06\r\n"));
    record.Fstop = record.Fstart;
    EXPECT_THAT(Written(record, dialect), Not(HasSubstr(".ac")));
  }
}

TEST(VerifiedFile, AShortOfZeroOhmsIsASource) {
  DesignRecord record = OfPowersOfTwo({SeriesR});
  record.stage[1].Rval.value = 0;
  EXPECT_THAT(Written(record, SpiceDialect::LTspice), HasSubstr("Vr1 in out 0\r\n"));
}

TEST(VerifiedFile, AnInductorOfZeroHasNoLoss) {
  DesignRecord record = OfPowersOfTwo({SeriesL});
  record.stage[1].Lval.value = 0;
  EXPECT_THAT(Written(record, SpiceDialect::LTspice), HasSubstr("L1 in out 0 Rser=0\r\nRload"));
}

TEST(VerifiedFile, ACapacitorOfZeroIsTheAnalysisOpenCircuit) {
  DesignRecord record = OfPowersOfTwo({SeriesC});
  record.stage[1].Cval.value = 0;
  EXPECT_THAT(Written(record, SpiceDialect::Ngspice), HasSubstr("Rc1 in out 1e+11\r\nRload"));
}

TEST(VerifiedFile, FailsWhereTheAnalysisHasNoFigure) {
  for (const SpiceDialect dialect : dialects) {
    DesignRecord record = OfPowersOfTwo({SeriesL});
    record.Rload[1] = 0;
    EXPECT_EQ(VerifiedNetlist(record, dialect, "").failure,
              "The network holds a value of 0 by which its analysis divides");
    record = OfPowersOfTwo({SeriesL});
    record.Width = 0;
    record.Fstart = -1;
    EXPECT_EQ(VerifiedNetlist(record, dialect, "").failure, "Invalid procedure call or argument");
    record = OfPowersOfTwo({SeriesL, TransLine});
    record.stage[2].TLval.degrees = -45;
    EXPECT_EQ(VerifiedNetlist(record, dialect, "").failure,
              "Stage 2 is a line whose length or impedance is not above 0");
    record.stage[2].TLval = {45, 1e6F, -50, 0, 0};
    EXPECT_EQ(VerifiedNetlist(record, dialect, "").failure,
              "Stage 2 is a line whose length or impedance is not above 0");
  }
}

}  // namespace
}  // namespace quilm
