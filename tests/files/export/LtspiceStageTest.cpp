// The drawing of each type of stage, byte by byte. The lines are worked by hand from the drawing's offsets, with the
// pen at (224, 80) behind the source. At 1 MHz 2 Pi f L / Q of 10 uH is 0.3141593 ohms, Q / (2 Pi f C) of 1 nF 159154.9
// ohms; a line of 90 degrees at 1 MHz delays by a quarter of a period.
#include <gmock/gmock.h>

#include "files/export/LtspiceBench.h"
#include "files/export/LtspiceSchematic.h"

namespace quilm {
namespace {

std::string At(int x, int y) {
  return std::string(" ").append(std::to_string(x)).append("  ").append(std::to_string(y)).append(" ");
}

// The load with the pen at x.
std::vector<std::string> Load(int x) {
  return {"SYMBOL res " + At(x + 48, 144) + "R0",
          "SYMATTR InstName RL",
          "SYMATTR Value 50  ",
          "WIRE " + At(x, 80) + At(x + 64, 80),
          "WIRE " + At(x + 64, 80) + At(x + 64, 160),
          "WIRE " + At(x + 64, 336) + At(x + 64, 240),
          "FLAG " + At(x + 64, 336) + "0"};
}

constexpr std::ptrdiff_t headLines = 19;

// Alone between source and load; the load follows at `next`.
void ExpectStage(i16 type, std::vector<std::string> expected, int next) {
  const ExportText schematic = LtspiceSchematic(LadderOf({type}));
  EXPECT_EQ(schematic.failure, "");
  const std::vector<std::string> lines = LinesOf(schematic.text);
  ASSERT_GT(lines.size(), static_cast<std::size_t>(headLines));
  const std::vector<std::string> load = Load(next);
  expected.insert(expected.end(), load.begin(), load.end());
  EXPECT_THAT(std::vector<std::string>(lines.begin() + headLines, lines.end()), testing::ElementsAreArray(expected));
}

TEST(LtspiceStage, SeriesL) {
  ExpectStage(SeriesL,
              {"SYMBOL ind  240  96 R270", "WINDOW 0 32 56 Vtop 0", "WINDOW 3 5 56 Vbottom 0", "SYMATTR InstName L1",
               "SYMATTR Value 10uH ", "SYMATTR SpiceLine Rser=0.31416  ", "WIRE  224  80  256  80 ",
               "WIRE  336  80  368  80 ", "TEXT  304 512 Center 0 ; 1 "},
              368);
}

TEST(LtspiceStage, ShuntL) {
  ExpectStage(ShuntL,
              {"SYMBOL ind  256  144 R0", "SYMATTR InstName L1", "SYMATTR Value 10uH ",
               "SYMATTR SpiceLine Rser=0.31416  ", "WIRE  224  80  320  80 ", "WIRE  272  80  272  160 ",
               "WIRE  272  240  272  336 ", "FLAG  272  336 0", "TEXT  272 512 Center 0 ; 1 "},
              320);
}

TEST(LtspiceStage, SeriesC) {
  ExpectStage(SeriesC,
              {"SYMBOL cap  336  64 R90", "WINDOW 0 0 32 Vbottom 0", "WINDOW 3 32 32 Vtop 0", "SYMATTR InstName C1",
               "SYMATTR Value 1nF ", "SYMATTR SpiceLine Rpar=159.155k ", "WIRE  224  80  272  80 ",
               "WIRE  336  80  384  80 ", "TEXT  304 512 Center 0 ; 1 "},
              384);
}

TEST(LtspiceStage, ShuntC) {
  ExpectStage(ShuntC,
              {"SYMBOL cap  272  160 R0", "SYMATTR InstName C1", "SYMATTR Value 1nF ",
               "SYMATTR SpiceLine Rpar=159.155k ", "WIRE  224  80  384  80 ", "WIRE  288  80  288  160 ",
               "WIRE  288  224  288  336 ", "FLAG  288  336 0", "TEXT  288 512 Center 0 ; 1 "},
              384);
}

TEST(LtspiceStage, SeriesSLC) {
  ExpectStage(SeriesSLC,
              {"SYMBOL ind  240  96 R270", "WINDOW 0 32 56 Vtop 0", "WINDOW 3 5 56 Vbottom 0", "SYMATTR InstName L1",
               "SYMATTR Value 10uH ", "SYMATTR SpiceLine Rser=0.31416  ", "WIRE  224  80  256  80 ",
               "WIRE  336  80  384  80 ", "SYMBOL cap  448  64 R90", "WINDOW 0 0 32 Vbottom 0", "WINDOW 3 32 32 Vtop 0",
               "SYMATTR InstName C1", "SYMATTR Value 1nF ", "SYMATTR SpiceLine Rpar=159.155k ",
               "WIRE  448  80  480  80 ", "TEXT  352 512 Center 0 ; 1 "},
              480);
}

TEST(LtspiceStage, ShuntSLC) {
  ExpectStage(
      ShuntSLC,
      {"SYMBOL ind  256  112 R0", "SYMATTR InstName L1", "SYMATTR Value 10uH ", "SYMATTR SpiceLine Rser=0.31416  ",
       "WIRE  224  80  400  80 ", "WIRE  272  80  272  128 ", "WIRE  272  208  272  240 ", "SYMBOL cap  256  240 R0",
       "SYMATTR InstName C1", "SYMATTR Value 1nF ", "SYMATTR SpiceLine Rpar=159.155k ", "WIRE  272  304  272  336 ",
       "FLAG  272  336 0", "TEXT  272 512 Center 0 ; 1 "},
      400);
}

TEST(LtspiceStage, SeriesPLC) {
  ExpectStage(
      SeriesPLC,
      {"SYMBOL ind  272  96 R270", "WINDOW 0 32 56 Vtop 0", "WINDOW 3 5 56 Vbottom 0", "SYMATTR InstName L1",
       "SYMATTR Value 10uH ", "SYMATTR SpiceLine Rser=0.31416  ", "SYMBOL cap  352  160 R90", "WINDOW 0 0 32 Vbottom 0",
       "WINDOW 3 32 32 Vtop 0", "SYMATTR InstName C1", "SYMATTR Value 1nF ", "SYMATTR SpiceLine Rpar=159.155k ",
       "WIRE  224  80  288  80 ", "WIRE  256  80  256  176 ", "WIRE  256  176  288  176 ", "WIRE  352  176  400  176 ",
       "WIRE  400  176  400  80 ", "WIRE  368  80  432  80 ", "TEXT  336 512 Center 0 ; 1 "},
      432);
}

TEST(LtspiceStage, ShuntPLC) {
  ExpectStage(ShuntPLC,
              {"SYMBOL ind  256  144 R0", "SYMATTR InstName L1", "SYMATTR Value 10uH ",
               "SYMATTR SpiceLine Rser=0.31416  ", "WIRE  272  80  272  160 ", "WIRE  272  240  272  336 ",
               "SYMBOL cap  416  160 R0", "SYMATTR InstName C1", "SYMATTR Value 1nF ",
               "SYMATTR SpiceLine Rpar=159.155k ", "WIRE  432  80  432  160 ", "WIRE  432  224  432  336 ",
               "WIRE  224  80  512  80 ", "FLAG  272  336 0", "FLAG  432  336 0", "TEXT  336 512 Center 0 ; 1 "},
              512);
}

TEST(LtspiceStage, SeriesR) {
  ExpectStage(
      SeriesR,
      {"SYMBOL res 368  64 R90", "WINDOW 0 0 56 Vbottom 0", "WINDOW 3 32 56 Vtop 0", "SYMATTR InstName R1",
       "SYMATTR Value 75  ", "WIRE  224  80  272  80 ", "WIRE  352  80  400  80 ", "TEXT  304 512 Center 0 ; 1 "},
      400);
}

TEST(LtspiceStage, ShuntR) {
  ExpectStage(
      ShuntR,
      {"SYMBOL res 272  144 R0", "SYMATTR InstName R1", "SYMATTR Value 75  ", "WIRE  224  80  384  80 ",
       "WIRE  288  80  288  160 ", "WIRE  288  240  288  336 ", "FLAG  288  336 0", "TEXT  288 512 Center 0 ; 1 "},
      384);
}

TEST(LtspiceStage, TransLine) {
  ExpectStage(
      TransLine,
      {"SYMBOL tline 352  96 R0", "WINDOW 0 0 -96 Top 2", "SYMATTR Value Td=2.5E-07 Z0=75", "WINDOW 3 0 -32 Bottom 2",
       "SYMATTR InstName T1", "WIRE  224  80  304  80 ", "WIRE  272  112  304  112 ", "WIRE  272  112  272  144 ",
       "WIRE  272  144  432  144 ", "WIRE  432  144  432  112 ", "WIRE  432  112  400  112 ", "WIRE  400  80  496  80 ",
       "WIRE  272  144  272  336 ", "FLAG  272  336 0", "TEXT  352 512 Center 0 ; 1 "},
      496);
}

TEST(LtspiceStage, SeriesShortStub) {
  ExpectStage(SeriesShortStub,
              {"SYMBOL tline 352  160 R90", "WINDOW 0 -160 0 Vtop 2", "SYMATTR Value Td=2.5E-07 Z0=75",
               "WINDOW 3 -96 0 Vbottom 2", "SYMATTR InstName T1", "WIRE  224  80  336  80 ", "WIRE  336  80  336  112 ",
               "WIRE  336  208  336  240 ", "WIRE  336  240  368  240 ", "WIRE  368  240  368  208 ",
               "WIRE  368  112  368  80 ", "WIRE  336  240  336  304 ", "SYMBOL res 320  288 R0",
               "SYMATTR InstName R10", "SYMATTR Value 1G", "WIRE  336  384  336  448 ", "WIRE  368  80  496  80 ",
               "FLAG  336  448 0", "TEXT  352 512 Center 0 ; 1 "},
              496);
}

TEST(LtspiceStage, SeriesOpenStub) {
  ExpectStage(SeriesOpenStub,
              {"SYMBOL tline 352  160 R90", "WINDOW 0 -160 0 Vtop 2", "SYMATTR Value Td=2.5E-07 Z0=75",
               "WINDOW 3 -96 0 Vbottom 2", "SYMATTR InstName T1", "WIRE  224  80  336  80 ", "WIRE  336  80  336  112 ",
               "WIRE  336  208  336  272 ", "WIRE  368  240  368  208 ", "WIRE  368  112  368  80 ",
               "WIRE  368  240  400  240 ", "WIRE  400  240  400  80 ", "WIRE  368  80  496  80 ",
               "TEXT  352 512 Center 0 ; 1 "},
              496);
}

TEST(LtspiceStage, ShuntShortStub) {
  ExpectStage(ShuntShortStub,
              {"SYMBOL tline 400  160 R0", "WINDOW 0 1 -160 Top 2", "SYMATTR Value Td=2.5E-07 Z0=75",
               "WINDOW 3 0 -96 Bottom 2", "SYMATTR InstName T1", "WIRE  224  80  320  80 ", "WIRE  320  80  320  144 ",
               "WIRE  320  144  352  144 ", "WIRE  352  176  320  176 ", "WIRE  320  176  320  208 ",
               "WIRE  320  208  480  208 ", "WIRE  480  208  480  176 ", "WIRE  480  176  448  176 ",
               "WIRE  480  176  480  144 ", "WIRE  480  144  448  144 ", "WIRE  320  80  544  80 ",
               "WIRE  320  208  320  336 ", "FLAG  320  336 0", "TEXT  400 512 Center 0 ; 1 "},
              544);
}

TEST(LtspiceStage, ShuntOpenStub) {
  ExpectStage(
      ShuntOpenStub,
      {"SYMBOL tline 400  160 R0", "WINDOW 0 1 -160 Top 2", "SYMATTR Value Td=2.5E-07 Z0=75", "WINDOW 3 0 -96 Bottom 2",
       "SYMATTR InstName T1", "WIRE  224  80  320  80 ", "WIRE  320  80  320  144 ", "WIRE  320  144  352  144 ",
       "WIRE  352  176  320  176 ", "WIRE  320  176  320  208 ", "WIRE  320  208  480  208 ",
       "WIRE  480  208  480  176 ", "WIRE  480  176  448  176 ", "WIRE  448  144  512  144 ", "WIRE  320  80  544  80 ",
       "WIRE  320  208  320  336 ", "FLAG  320  336 0", "TEXT  400 512 Center 0 ; 1 "},
      544);
}

TEST(LtspiceStage, CoupledInductors) {
  ExpectStage(CoupledInductors,
              {"SYMBOL ind2  336  128 R0",
               "SYMATTR InstName L1a",
               "SYMATTR Value 1uH ",
               "SYMATTR SpiceLine Rser= 0.0000   ",
               "WINDOW 0 5 29 Right 2",
               "WINDOW 3 4 82 Right 2",
               "SYMBOL ind2  416  128 M0",
               "SYMATTR InstName L1b",
               "SYMATTR Value 4uH ",
               "SYMATTR SpiceLine Rser= 0.0000   ",
               "WINDOW 0 5 29 Right 2",
               "WINDOW 3 4 82 Right 2",
               "TEXT  272  48 Left 2 !K L1a L1b 0.5  ",
               "WIRE  224  80  352  80 ",
               "WIRE  352  80  352  144 ",
               "WIRE  352  224  352  336 ",
               "WIRE  400  80  400  144 ",
               "WIRE  400  224  400  336 ",
               "WIRE  400  80  528  80 ",
               "FLAG  352  336 0",
               "FLAG  400  336 0",
               "TEXT  368 512 Center 0 ; 1 "},
              528);
}

TEST(LtspiceStage, ShuntRLC) {
  ExpectStage(ShuntRLC,
              {"SYMBOL ind  240  96 R0",
               "SYMATTR InstName L1",
               "SYMATTR Value 10uH ",
               "SYMATTR SpiceLine Rser=0.31416  ",
               "SYMBOL res  464  128 R0",
               "SYMATTR InstName R1",
               "SYMATTR Value 75  ",
               "SYMBOL cap  464  240 R0",
               "SYMATTR InstName C1",
               "SYMATTR Value 1nF ",
               "SYMATTR SpiceLine Rpar=159.155k ",
               "WIRE  224  80  576  80 ",
               "WIRE  256  80  256  112 ",
               "WIRE  256  192  256  224 ",
               "WIRE  256  224  416  224 ",
               "WIRE  416  224  416  112 ",
               "WIRE  416  112  480  112 ",
               "WIRE  480  112  480  144 ",
               "WIRE  480  224  480  240 ",
               "WIRE  480  304  480  336 ",
               "FLAG  480  336 0",
               "TEXT  384 512 Center 0 ; 1 "},
              576);
}

TEST(LtspiceStage, SeriesRLC) {
  ExpectStage(SeriesRLC, {"SYMBOL ind  272  96 R270",   "WINDOW 0 32 56 Vtop 0",     "WINDOW 3 5 56 Vbottom 0",
                          "SYMATTR InstName L1",        "SYMATTR Value 10uH ",       "SYMATTR SpiceLine Rser=0.31416  ",
                          "SYMBOL cap  352  160 R90",   "WINDOW 0 0 32 Vbottom 0",   "WINDOW 3 32 32 Vtop 0",
                          "SYMATTR InstName C1",        "SYMATTR Value 1nF ",        "SYMATTR SpiceLine Rpar=159.155k ",
                          "SYMBOL res 384  272 R90",    "WINDOW 0 0 56 Vbottom 0",   "WINDOW 3 32 56 Vtop 0",
                          "SYMATTR InstName R1",        "SYMATTR Value 75  ",        "WIRE  256  176  256  288 ",
                          "WIRE  256  288  288  288 ",  "WIRE  368  288  400  288 ", "WIRE  400  288  400  176 ",
                          "WIRE  224  80  288  80 ",    "WIRE  256  80  256  176 ",  "WIRE  256  176  288  176 ",
                          "WIRE  352  176  400  176 ",  "WIRE  400  176  400  80 ",  "WIRE  368  80  432  80 ",
                          "TEXT  336 512 Center 0 ; 1 "},
              432);
}

// Transformers and forms of entry: the main wire runs on.
TEST(LtspiceStage, TheOthersDrawNothing) {
  for (const i16 type : {Transformer, SeriesReactance, ShuntReactance, ElementCode{}}) ExpectStage(type, {}, 224);
}

}  // namespace
}  // namespace quilm
