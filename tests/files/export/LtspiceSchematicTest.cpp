// Schematics and the symbol as whole files, byte by byte, and where they end in a failure.
#include "files/export/LtspiceSchematic.h"

#include <gmock/gmock.h>

#include "files/export/LtspiceBench.h"
#include "files/export/LtspiceSymbol.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* failure = "A problem was encountered and so we did not write the LTspice schematic file";

std::vector<std::string> Written(const DesignRecord& record) {
  const ExportText schematic = LtspiceSchematic(record);
  EXPECT_EQ(schematic.failure, "");
  return LinesOf(schematic.text);
}

void ExpectFailure(const DesignRecord& record) {
  const ExportText schematic = LtspiceSchematic(record);
  EXPECT_EQ(schematic.failure, failure);
  EXPECT_EQ(schematic.text, "");
}

// A lowpass of third order for 50 ohms and 1 MHz: C = 1 / (2 Pi f R) = 3.183099 nF, L = 2 R / (2 Pi f) = 15.91549 uH;
// the losses at Q of 200 and 1000 are 2 R / 200 = 0.5 ohms and 1000 R = 50 kilohms. The source has (50 + 50) / 50
// volts, the sweep 1000 intervals in four decades.
TEST(LtspiceSchematic, ALowpassIsThisFile) {
  DesignRecord record = LadderOf({ShuntC, SeriesL, ShuntC});
  record.stage[1].Cval.value = record.stage[3].Cval.value = 3.183099e-9F;
  record.stage[2].Lval.value = 15.91549e-6F;
  const std::vector<std::string> lines = {
      "Version 4",
      "SHEET 1  800  600",
      "SYMBOL voltage  0  144 R0",
      "WINDOW 123 24 132 Left 0",
      "SYMATTR InstName Vgen",
      "SYMATTR Value AC 2   ",
      "WIRE  0  80  48  80 ",
      "WIRE  0  160  0  80 ",
      "WIRE  0  240  0  336 ",
      "FLAG  0  336 0",
      "TEXT 0 544 Left 0  !.AC DEC  250  1000  1E+07 ",
      "TEXT 0 576 Left 0  ;Schematic drawn by Quilm",
      "SYMBOL res 192  64 R90",
      "WINDOW 0 0 56 Vbottom 0",
      "WINDOW 3 32 56 Vtop 0",
      "SYMATTR InstName RS",
      "SYMATTR Value 50  ",
      "WIRE  48  80  96  80 ",
      "WIRE  176  80  224  80 ",
      "SYMBOL cap  272  160 R0",
      "SYMATTR InstName C1",
      "SYMATTR Value 3.1831nF ",
      "SYMATTR SpiceLine Rpar=50k ",
      "WIRE  224  80  384  80 ",
      "WIRE  288  80  288  160 ",
      "WIRE  288  224  288  336 ",
      "FLAG  288  336 0",
      "TEXT  288 512 Center 0 ; 1 ",
      "SYMBOL ind  400  96 R270",
      "WINDOW 0 32 56 Vtop 0",
      "WINDOW 3 5 56 Vbottom 0",
      "SYMATTR InstName L2",
      "SYMATTR Value 15.9155uH ",
      "SYMATTR SpiceLine Rser=0.5  ",
      "WIRE  384  80  416  80 ",
      "WIRE  496  80  528  80 ",
      "TEXT  464 512 Center 0 ; 2 ",
      "SYMBOL cap  576  160 R0",
      "SYMATTR InstName C3",
      "SYMATTR Value 3.1831nF ",
      "SYMATTR SpiceLine Rpar=50k ",
      "WIRE  528  80  688  80 ",
      "WIRE  592  80  592  160 ",
      "WIRE  592  224  592  336 ",
      "FLAG  592  336 0",
      "TEXT  592 512 Center 0 ; 3 ",
      "SYMBOL res  736  144 R0",
      "SYMATTR InstName RL",
      "SYMATTR Value 50  ",
      "WIRE  688  80  752  80 ",
      "WIRE  752  80  752  160 ",
      "WIRE  752  336  752  240 ",
      "FLAG  752  336 0",
  };
  EXPECT_THAT(Written(record), testing::ElementsAreArray(lines));
}

TEST(LtspiceSchematic, ALinearSweepHasItsIntervalsAndAnotherModeNoDirective) {
  DesignRecord record = LadderOf({ShuntR});
  record.SweepMode = 1;
  record.Fstart = 0.5F;
  record.NrIntervals = 199.9995F;  // as a sweep from a file may have it
  EXPECT_THAT(Written(record), Contains("TEXT 0 544 Left 0  !.AC LIN  200  .5  1E+07 "));
  record.SweepMode = 0;
  EXPECT_THAT(LtspiceSchematic(record).text, testing::Not(HasSubstr(".AC")));
}

TEST(LtspiceSchematic, ADenseSweepHasAThousandPointsADecade) {
  DesignRecord record = LadderOf({ShuntR});
  record.Fstart = 9e6F;
  record.NrIntervals = 2000;
  EXPECT_THAT(Written(record), Contains("TEXT 0 544 Left 0  !.AC DEC  1000  9000000  1E+07 "));
}

// 304 for source and load, and by type; 10 coupled pairs 304 + 10 * 240.
TEST(LtspiceSchematic, TheSheetIsAsWideAsItsStagesAndAtLeast800) {
  const auto width = [](const std::vector<i16>& types) { return SheetWidthFor(LadderOf(types)); };
  const i16 of[] = {144, 96, 160, 160, 352, 176, 208, 352, 0, 0, 276, 276, 276, 320, 320, 0, 0, 0, 240, 352, 208};
  for (i16 type = 1; type <= 21; ++type) {
    const std::vector<i16> ten(10, type);
    EXPECT_EQ(width(ten), std::max(800, 304 + 10 * of[type - 1])) << type;
  }
  EXPECT_EQ(width({}), 800);
  EXPECT_EQ(width({SeriesSLC, SeriesL}), 800);
  EXPECT_EQ(width({SeriesSLC, SeriesL, SeriesR, Transformer}), 800);
  EXPECT_EQ(width({SeriesSLC, SeriesL, ShuntL}), 896);
  EXPECT_THAT(Written(LadderOf(std::vector<i16>(10, CoupledInductors))), Contains("SHEET 1  2704  600"));
}

// The losses of a bandpass are those at its centre, whatever the width and the sweep are: at 4 MHz four times the
// resistance of an inductor and a quarter of that of a capacitor at 1 MHz.
TEST(LtspiceSchematic, LossesAreThoseAtTheReferenceFrequency) {
  DesignRecord record = LadderOf({SeriesPLC});
  record.Fcenter = 4e6F;
  EXPECT_THAT(Written(record), Contains("SYMATTR SpiceLine Rser=1.2566  "));
  EXPECT_THAT(Written(record), Contains("SYMATTR SpiceLine Rpar=39.789k "));
  record.Fcenter = record.Width = 0;  // sqrt(1 kHz 10 MHz) = 100 kHz
  EXPECT_THAT(Written(record), Contains("SYMATTR SpiceLine Rser=0.03142  "));
  EXPECT_THAT(Written(record), Contains("SYMATTR SpiceLine Rpar=1.592Meg "));
}

// Neither loss has a floor or a ceiling. Five decimals of 31.4 microohms are .00003, in exponent form.
TEST(LtspiceSchematic, ASmallLossIsWrittenAsItIs) {
  DesignRecord record = LadderOf({SeriesPLC});
  record.stage[1].Lval.value = 1e-9F;   // 2 Pi 1 MHz 1 nH / 200 = 31.4 microohms
  record.stage[1].Cval.value = 1e-12F;  // 1000 / (2 Pi 1 MHz 1 pF) = 159 megohms
  EXPECT_THAT(Written(record), Contains("SYMATTR SpiceLine Rser=3E-05  "));
  EXPECT_THAT(Written(record), Contains("SYMATTR SpiceLine Rpar=159.155Meg "));
  EXPECT_THAT(Written(record), Contains("SYMATTR Value 1pF "));
  record.stage[1].Cval.value = 0.9e-12F;
  EXPECT_THAT(Written(record), Contains("SYMATTR Value 0   "));
  record.stage[1].Lval.value = 0;
  EXPECT_THAT(Written(record), Contains("SYMATTR SpiceLine Rser= 0.0000   "));
  EXPECT_THAT(Written(record), Contains("SYMATTR Value  "));
}

// Parts below zero, of coupled resonators of wide designs, lose their sign.
TEST(LtspiceSchematic, APartIsWrittenByItsMagnitude) {
  DesignRecord record = LadderOf({SeriesSLC});
  const std::vector<std::string> positive = Written(record);
  record.stage[1].Lval.value *= -1;
  record.stage[1].Cval.value *= -1;
  EXPECT_EQ(Written(record), positive);
}

TEST(LtspiceSchematic, WithoutALossThereIsNoFile) {
  DesignRecord record = LadderOf({ShuntL, SeriesC});
  record.Width = record.Fstart = 0;
  record.SweepMode = 1;
  ExpectFailure(record);  // reference frequency 0, at the capacitor
  record.Stages = 1;
  EXPECT_THAT(Written(record), Contains("SYMATTR SpiceLine Rser= 0.0000   "));
  record = LadderOf({SeriesC});
  record.stage[1].Cval.value = 0;
  ExpectFailure(record);
  record = LadderOf({ShuntL});
  record.Qind[1] = 0;
  ExpectFailure(record);
  record = LadderOf({TransLine});
  record.stage[1].TLval.freq = 0;
  ExpectFailure(record);
}

TEST(LtspiceSchematic, WithoutALoadOrASweepThereIsNoFile) {
  DesignRecord record = LadderOf({SeriesR});
  record.Rload[1] = 0;
  ExpectFailure(record);
  record = LadderOf({SeriesR});
  record.Fstart = 0;
  ExpectFailure(record);
  record.Fstart = record.Fstop;
  ExpectFailure(record);
}

// As the format has them: LTspice refuses a schematic with two parts, or two directives, of one name.
TEST(LtspiceSchematic, NamesOfAPathAndOfPairsMayBeTwice) {
  std::vector<i16> types(10, SeriesR);
  types[0] = SeriesShortStub;
  const std::vector<std::string> lines = Written(LadderOf(types));
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "SYMATTR InstName R10"), 2);
  const std::vector<std::string> pairs = Written(LadderOf({CoupledInductors, CoupledInductors}));
  EXPECT_THAT(pairs, Contains("TEXT  272  48 Left 2 !K L1a L1b 0.5  "));
  EXPECT_THAT(pairs, Contains("TEXT  576  48 Left 2 !K L2a L2b 0.5  "));
}

TEST(LtspiceSymbol, IsThisFile) {
  EXPECT_THAT(
      LinesOf(LtspiceSymbol()),
      ElementsAre("Version 4", "SymbolType BLOCK", "RECTANGLE Normal -160 -80 160 80", "WINDOW 0 0 -80 Bottom 2",
                  "SYMATTR Prefix X", "PIN -160 -32 LEFT 8", "PINATTR PinName Input", "PINATTR SpiceOrder 1",
                  "PIN 160 -32 RIGHT 8", "PINATTR PinName Output", "PINATTR SpiceOrder 2", "PIN 0 80 Bottom 8",
                  "PINATTR PinName Common", "PINATTR SpiceOrder 3"));
}

}  // namespace
}  // namespace quilm
