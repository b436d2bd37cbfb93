#include "core/DesignRecord.h"
#include "schematic/modSchematic.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "schematic/DesignData.h"
#include "schematic/StageLabels.h"
#include "schematic/Symbols.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

class Schematic : public testing::Test {
 protected:
  Schematic() {
    record.Family = familyChebyshev;
    record.Topology = "A";
    record.Apass = 0.1F;
    record.Width = 1e6F;
    record.Rsource[1] = 50;
    record.Rload[1] = 75;
    record.Qind[1] = 200;
    record.Qcap[1] = 2000;
    Add(ShuntC);
    Add(SeriesL);
    Add(ShuntC);
    record.stage[3].Cval.value = 4e-10F;
  }

  void Add(i16 type) {
    Stage& stage = record.stage[++record.Stages];
    stage.ElementType = type;
    stage.Lval.value = 1e-5F;
    stage.Cval.value = 2e-10F;
    stage.Rval.value = 1500;
  }

  Picture Drawn() {
    Picture picture;
    DrawSchematic(record, view, picture);
    return picture;
  }

  std::vector<TextOp> Texts(const std::string& wanted) {
    std::vector<TextOp> found;
    const Picture picture = Drawn();
    for (const PictureOp& operation : picture.Operations()) {
      const auto* text = std::get_if<TextOp>(&operation);
      if (text != nullptr && text->text == wanted) found.push_back(*text);
    }
    return found;
  }

  bool Shows(const std::string& text) { return !Texts(text).empty(); }

  std::vector<RectangleOp> Boxes() {
    std::vector<RectangleOp> boxes;
    const Picture picture = Drawn();
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* box = std::get_if<RectangleOp>(&operation)) boxes.push_back(*box);
    }
    return boxes;
  }

  std::ptrdiff_t ArcsAt(f32 y) {
    const Picture picture = Drawn();
    return std::count_if(picture.Operations().begin(), picture.Operations().end(), [y](const PictureOp& operation) {
      const auto* circle = std::get_if<CircleOp>(&operation);
      return circle != nullptr && circle->start != circle->stop && circle->center.y == y;
    });
  }

  DesignRecord record;
  SchematicView view;
};

TEST_F(Schematic, TheBandIsAsWideAsItsStages) {
  const auto boxes = Boxes();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0].from, (Point{1, 700}));
  EXPECT_EQ(boxes[0].to, (Point{42500, 5400}));
  EXPECT_EQ(boxes[0].pen.color, 0xFFFFEEU);
  EXPECT_EQ(boxes[1].from, (Point{1620, 700}));
  EXPECT_EQ(boxes[1].to, (Point{1620 + 3 * 960, 5400}));
  EXPECT_EQ(boxes[1].pen.color, 0xFFFFF8U);
}

TEST_F(Schematic, EveryStageHasItsNumberAndValue) {
  for (int s = 1; s <= 3; ++s) {
    const auto numbers = Texts(std::to_string(s));
    ASSERT_EQ(numbers.size(), 1U);
    EXPECT_EQ(numbers[0].at, (Point{1620 + 960 * static_cast<f32>(s - 1) + 280, 800}));
  }
  const auto values = Texts("10uH");
  ASSERT_EQ(values.size(), 1U);
  EXPECT_EQ(values[0].at.y, 1170);
  EXPECT_EQ(values[0].color, colorBlack);
}

TEST_F(Schematic, ScrollingMovesEverythingWithoutBound) {
  view.SchemOffset = -100000;
  EXPECT_EQ(Boxes()[1].from.x, -98380);
  EXPECT_EQ(Texts("2")[0].at.x, -98380 + 960 + 280);
  view.SchemOffset = 200;
  EXPECT_EQ(Boxes()[1].from.x, 1820);
}

TEST_F(Schematic, WithoutStagesNothingIsDrawn) {
  record.Stages = 0;
  EXPECT_TRUE(Drawn().Empty());
}

TEST_F(Schematic, StagesBeyondTheTableAreLeftOut) {
  record.StagesMax = 2;
  EXPECT_EQ(Boxes()[1].to.x, 1620 + 2 * 960);
  EXPECT_FALSE(Shows("3"));
}

// Upper rail at 1500, lower rail at 2540.
TEST_F(Schematic, BalancedNetworksHaveSeriesPartsOnBothRails) {
  EXPECT_EQ(ArcsAt(1500), 3);
  EXPECT_EQ(ArcsAt(2540), 0);
  view.mode = SchematicMode::BalancedB;
  EXPECT_EQ(ArcsAt(1500), 3);
  EXPECT_EQ(ArcsAt(2540), 3);
  const auto values = Texts("10uH");
  ASSERT_EQ(values.size(), 2U);
  EXPECT_EQ(values[1].at.y, 1500 + 1160);
  EXPECT_EQ(Texts("200pF").size(), 1U);  // shunt parts stay
}

// A stub breaks the rail that it stands on: no line goes from one end of the stage to the other.
TEST_F(Schematic, BalancedNetworksHaveSeriesStubsOnBothRails) {
  record.Stages = 0;
  Add(SeriesShortStub);
  record.stage[1].TLval = {90, 1e9F, 50, 0, 0};
  const auto unbroken = [this](f32 y) {
    const Picture picture = Drawn();
    return std::any_of(picture.Operations().begin(), picture.Operations().end(), [y](const PictureOp& operation) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      return line != nullptr && line->points == std::vector<Point>{{1620, y}, {1620 + 960, y}};
    });
  };
  EXPECT_FALSE(unbroken(1500));
  EXPECT_TRUE(unbroken(2540));
  EXPECT_EQ(Texts("90deg").size(), 1U);
  for (const SchematicMode mode : {SchematicMode::BalancedB, SchematicMode::BalancedA}) {
    view.mode = mode;
    EXPECT_FALSE(unbroken(1500));
    EXPECT_FALSE(unbroken(2540));
    EXPECT_EQ(Texts("90deg").size(), 2U);
  }
}

TEST_F(Schematic, HalfOfASeriesValueStandsOnEachRail) {
  view.mode = SchematicMode::BalancedA;
  EXPECT_EQ(Texts("5uH").size(), 2U);
  EXPECT_FALSE(Shows("10uH"));
  EXPECT_TRUE(Shows("200pF"));
}

TEST_F(Schematic, ANegativeValueIsRedAndTheDrawingGoesOn) {
  record.stage[1].Cval.value = -2e-10F;
  EXPECT_EQ(Texts("-200pF")[0].color, colorRed);
  EXPECT_EQ(Texts("10uH")[0].color, colorBlack);
  EXPECT_TRUE(HasNegativePart(record));
  record.stage[1].Cval.value = 2e-10F;
  EXPECT_FALSE(HasNegativePart(record));
}

TEST_F(Schematic, TolerancesStandInTheirRow) {
  record.stage[2].Lval.tolerance = 5;
  const auto labels = Texts("L: 5%");
  ASSERT_EQ(labels.size(), 1U);
  EXPECT_EQ(labels[0].at, (Point{1620 + 960 + 240, 4800}));
}

TEST_F(Schematic, LossesAreShownOnDemand) {
  EXPECT_FALSE(Shows("L-rseries:"));
  view.ShowQ = true;
  EXPECT_EQ(Texts("L-rseries:").size(), 1U);
  EXPECT_EQ(Texts("C-rshunt:").size(), 2U);
  // 2 Pi 1e6 1e-5 / 200 at the cutoff.
  EXPECT_TRUE(Shows("0.31416"));
}

TEST_F(Schematic, TheTerminationsAreShown) {
  EXPECT_TRUE(Shows("50"));
  EXPECT_TRUE(Shows("75"));
}

TEST_F(Schematic, TheDesignDataStandBelowTheBand) {
  for (const char* text :
       {"Design data:", "Bandwidth:  1M", "Family:  Chebyshev", "Passband ripple:  .1", "Q values:", "Inductors: 200",
        "Capacitors: 2k", "Maximum / minimum ratios:", "Capacitors: 2", "Inductors: 1", "Largest capacitor: 400pF",
        "Smallest capacitor: 200pF", "Largest inductor: 10uH", "Smallest inductor: 10uH"}) {
    const auto found = Texts(text);
    ASSERT_EQ(found.size(), 1U) << text;
    EXPECT_GT(found[0].at.y, 5400);
  }
}

TEST_F(Schematic, CauerDataAreThoseOfTheLowpass) {
  record.Family = familyCauer;
  record.Astop = 60;
  record.FstopNorm = 1.5F;
  EXPECT_TRUE(Shows("Cauer LP stopband freq:  1.5M"));
  EXPECT_TRUE(Shows("Cauer LP stopband depth:  60"));
}

TEST_F(Schematic, AManualNetworkHasNoRipple) {
  record.Family = familyManual;
  EXPECT_TRUE(Shows("Family:  Manual entry"));
  EXPECT_FALSE(Shows("Passband ripple:  .1"));
}

TEST_F(Schematic, AKindOfPartThatIsMissingReadsNone) {
  record.stage[2].ElementType = SeriesR;
  EXPECT_TRUE(Shows("Inductors: (None)"));
  EXPECT_TRUE(Shows("Largest inductor: (None)"));
}

TEST_F(Schematic, ARecordWithoutEntriesHasNoData) {
  EXPECT_FALSE(DesignData(record).empty());
  EXPECT_TRUE(DesignData(DesignRecord{}).empty());
}

// The source takes 1620, a stage 960 and the load 1300; the data below need 9600.
TEST_F(Schematic, TheWholeNetworkIsOnThePageHoweverLongItIs) {
  EXPECT_EQ(Drawn().ScaleWidth, 9600);
  while (record.Stages < 43) Add(SeriesL);
  EXPECT_EQ(Drawn().ScaleLeft, 0);
  EXPECT_EQ(Drawn().ScaleWidth, 1620 + 43 * 960 + 1300);
  EXPECT_FALSE(Shows(" >"));
}

TEST_F(Schematic, ZoomedInItShowsLessAndSaysThatThereIsMore) {
  while (record.Stages < 12) Add(SeriesL);
  const Picture whole = Drawn();
  view.zoom = 2;
  const Picture half = Drawn();
  EXPECT_EQ(half.ScaleWidth, whole.ScaleWidth / 2);
  EXPECT_EQ(half.ScaleTop, whole.ScaleTop);
  EXPECT_TRUE(Shows(" >"));
  view.SchemOffset = static_cast<i32>(half.ScaleWidth - whole.ScaleWidth);
  EXPECT_FALSE(Shows(" >"));
}

TEST_F(Schematic, TheLoadBelongsToWhatThePageMustHold) {
  while (record.Stages < 6) Add(SeriesL);
  EXPECT_FALSE(Shows(" >"));
  view.SchemOffset = 920;  // 1620 + 6 * 960 + 1300 + 920 = 9600
  EXPECT_FALSE(Shows(" >"));
  view.SchemOffset = 921;
  EXPECT_TRUE(Shows(" >"));
  view.SchemOffset = 0;
  Add(SeriesL);  // 9640, and the page with it
  EXPECT_FALSE(Shows(" >"));
  view.SchemOffset = 1;
  EXPECT_TRUE(Shows(" >"));
}

TEST_F(Schematic, PartsAreNamedByTheNumberOfTheirStage) {
  Add(ShuntSLC);
  Add(SeriesRLC);
  Add(TransLine);
  Add(Transformer);
  for (const char* name : {"C1", "L2", "C3", "L4", "C4", "L5", "C5", "R5", "TL6", "T7"}) {
    EXPECT_EQ(Texts(name).size(), 1U) << name;
  }
}

// What the told texts lack stands behind them as a text of its own.
TEST_F(Schematic, UnitsAreTextsOfTheirOwn) {
  Add(SeriesR);
  ASSERT_EQ(Texts("1.5k").size(), 1U);
  const TextOp value = Texts("1.5k")[0];
  const auto units = Texts(ohmSign);
  ASSERT_EQ(units.size(), 3U);  // of source, resistor and load
  EXPECT_TRUE(std::any_of(units.begin(), units.end(), [&value](const TextOp& unit) {
    return unit.at.y == value.at.y && unit.at.x > value.at.x && unit.at.x < value.at.x + 500;
  }));
  EXPECT_EQ(Texts("Hz").size(), 1U);  // of the bandwidth
  EXPECT_EQ(Texts("dB").size(), 1U);  // of the ripple
}

TEST_F(Schematic, TheDesignDataAreAsLargeAsTheLabels) {
  EXPECT_EQ(Texts("Bandwidth:  1M")[0].font.size, Texts("10uH")[0].font.size);
}

struct Patch {
  f64 left;
  f64 top;
  f64 right;
  f64 bottom;
  std::string text;
};

// What the letters of a text cover: from a tenth of an em below the top of its line down to an em.
std::vector<Patch> PatchesOf(const Picture& picture) {
  std::vector<Patch> patches;
  for (const PictureOp& operation : picture.Operations()) {
    const auto* op = std::get_if<TextOp>(&operation);
    if (op == nullptr) continue;
    const f64 em = static_cast<f64>(op->font.size) * twipsPerPoint;
    const f64 width = StandardMetrics().WidthInPoints(op->text, op->font) * twipsPerPoint;
    patches.push_back({op->at.x, op->at.y + 0.1 * em, op->at.x + width, op->at.y + em, op->text});
  }
  return patches;
}

class Labels : public Schematic, public testing::WithParamInterface<SchematicMode> {
 protected:
  // Every element type, with values that take much room.
  Labels() {
    record.Stages = 0;
    for (i16 type = SeriesL; type <= SeriesRLC; ++type) {
      if (StageWidth(type) == 0) continue;
      Add(type);
      Stage& stage = record.stage[record.Stages];
      stage.Lval = {1.23456e-4F, 12.5F};
      stage.Cval = {1.23456e-10F, 12.5F};
      stage.Rval = {123456, 12.5F};
      stage.TLval = {123.456F, 1.23456e8F, 123.456F, 12.5F, 12.5F};
      stage.XfmrVal = {1.23456F, 12.5F};
      stage.CoupledVal = {1.23456e-4F, 1.23456e-4F, 0.123456F, 12.5F, 12.5F, 12.5F};
    }
    view.mode = GetParam();
    view.ShowQ = true;
  }
};

INSTANTIATE_TEST_SUITE_P(Schematic, Labels,
                         testing::Values(SchematicMode::Unbalanced, SchematicMode::BalancedB,
                                         SchematicMode::BalancedA));

TEST_P(Labels, NeverTouchTheDividers) {
  const Picture picture = Drawn();
  f32 x = 1620;
  std::vector<f32> dividers = {x};
  for (int s = 1; s <= record.Stages; ++s) dividers.push_back(x += StageWidth(record.stage[s].ElementType));
  int checked = 0;
  for (const Patch& patch : PatchesOf(picture)) {
    if (patch.top > 5400) continue;
    for (const f32 divider : dividers) {
      EXPECT_FALSE(patch.left < divider && patch.right > divider) << patch.text << " over " << divider;
    }
    ++checked;
  }
  EXPECT_GT(checked, 60);
}

TEST_P(Labels, NeverLieOverOneAnother) {
  const auto patches = PatchesOf(Drawn());
  for (std::size_t i = 0; i < patches.size(); ++i) {
    for (std::size_t k = i + 1; k < patches.size(); ++k) {
      const Patch& a = patches[i];
      const Patch& b = patches[k];
      const bool overlap = a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
      EXPECT_FALSE(overlap) << a.text << " and " << b.text << " at " << a.left << ' ' << a.top;
    }
  }
}

// Whatever the size of the picture: labels grow with the symbols alone.
TEST_P(Labels, AreNotEnlarged) {
  const Picture picture = Drawn();
  for (const PictureOp& operation : picture.Operations()) {
    const auto* op = std::get_if<TextOp>(&operation);
    EXPECT_TRUE(op == nullptr || op->fit.room > 0) << DumpOperation(operation);
  }
}

TEST_F(Schematic, TheExtremesOfTheInductorsAreTold) {
  Add(ShuntL);
  record.stage[4].Lval.value = -4.7e-5F;  // by magnitude
  Add(SeriesL);
  record.stage[5].Lval.value = 2.2e-6F;
  EXPECT_TRUE(Shows("Largest inductor: 47uH"));
  EXPECT_TRUE(Shows("Smallest inductor: 2.2uH"));
  EXPECT_TRUE(Shows("Inductors: 21.364"));
}

TEST_F(Schematic, DrawnTwiceItIsTheSamePicture) {
  Picture picture;
  DrawSchematic(record, view, picture);
  const Picture once = picture;
  DrawSchematic(record, view, picture);
  EXPECT_TRUE(picture == once) << picture.Dump();
}

TEST_F(Schematic, TheArtworkIsBareAndWrapsItsRows) {
  while (record.Stages < 43) Add(record.Stages % 2 == 0 ? ShuntC : SeriesL);
  Picture picture;
  DrawArtwork(record, SchematicMode::Unbalanced, picture);
  std::vector<std::string> texts;
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* text = std::get_if<TextOp>(&operation)) {
      texts.push_back(text->text);
      EXPECT_LT(text->at.x, 12000);
      EXPECT_LT(text->at.y, picture.ScaleTop + picture.ScaleHeight);
    }
    EXPECT_EQ(std::get_if<RectangleOp>(&operation), nullptr);
  }
  ASSERT_EQ(texts.size(), 45U);
  for (int s = 1; s <= 43; ++s) EXPECT_EQ(texts[static_cast<std::size_t>(s - 1)], std::to_string(s));
  EXPECT_EQ(texts[43], "Capacitors: 2");
  EXPECT_EQ(texts[44], "Inductors: 1");
}

}  // namespace
}  // namespace quilm
