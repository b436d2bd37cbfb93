#include "schematic/StageStrip.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/ElementCatalogue.h"
#include "core/Network.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

Network Made(const std::vector<i16>& types) {
  Network network;
  network.Rsource[1] = network.Rload[1] = network.Rstandard = 50;
  for (const i16 type : types) network.stage[++network.Stages].ElementType = type;
  return network;
}

std::vector<TextOp> Texts(const Network& network, std::optional<int> marked = {}) {
  Picture picture;
  DrawStageStrip(network, 1000, marked, picture);
  std::vector<TextOp> texts;
  for (const PictureOp& operation : picture.Operations()) {
    if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(*text);
  }
  return texts;
}

std::vector<std::string> Words(const Network& network) {
  std::vector<std::string> words;
  for (const TextOp& text : Texts(network)) words.push_back(text.text);
  return words;
}

TEST(StripLength, IsThatOfTheEndsAndOfEachSymbol) {
  EXPECT_EQ(StripLength(Made({})), 1340);
  const std::vector<f32> widths = {960,  960, 1000, 960,  1280, 960, 960, 960,  880,  960, 1280,
                                   1120, 960, 1040, 1040, 960,  960, 960, 1120, 1340, 960};
  for (i16 type = 1; type <= 21; ++type) {
    EXPECT_EQ(StripLength(Made({type})), 1340 + widths[static_cast<std::size_t>(type - 1)]) << type;
  }
  EXPECT_EQ(StripLength(Made({0})), 1340 + 960);
  EXPECT_EQ(StripLength(Made({1, 3, 20})), 1340 + 960 + 1000 + 1340);
}

TEST(StageEdges, BeginWithTheSourceAndEndBehindTheLoad) {
  EXPECT_THAT(StageEdges(Made({4, 3}), 100), ElementsAre(100, 840, 1800, 2800, 3400));
}

TEST(CellAt, IsTheLastWhoseEdgeIsNotRightOfThePlace) {
  const std::vector<f32> edges = StageEdges(Made({4, 3}), 100);
  EXPECT_EQ(CellAt(edges, 99), std::nullopt);
  EXPECT_EQ(CellAt(edges, 100), 0);
  EXPECT_EQ(CellAt(edges, 839), 0);
  EXPECT_EQ(CellAt(edges, 840), 1);
  EXPECT_EQ(CellAt(edges, 3399), 3);
  EXPECT_EQ(CellAt(edges, 3400), std::nullopt);
}

TEST(Strip, ShowsTheReferenceWhereItIsNotTheSource) {
  Network network = Made({});
  const auto reference = [&](f32 ohms) {
    network.Rstandard = ohms;
    for (const TextOp& text : Texts(network)) {
      if (text.color == colorBlue) return text.text;
    }
    return std::string();
  };
  EXPECT_EQ(reference(50), "");
  EXPECT_EQ(reference(49.99F), "") << "within a tenth of a percent of the source";
  EXPECT_EQ(reference(49.9F), "49.9 >");
  EXPECT_EQ(reference(50.1F), "50.1 >");
}

TEST(Strip, PrintsTheValuesOfLinesTransformersAndCouplings) {
  Network network = Made({TransLine, Transformer, CoupledInductors});
  network.stage[1].TLval = {30, 1e8F, 75};
  network.stage[2].XfmrVal.value = 2;
  network.stage[3].CoupledVal = {1e-6F, 2e-6F, 0.5F};
  EXPECT_THAT(Words(network), IsSupersetOf({"30deg", "@100M", "Z=75", "N=2: 1", "K", "1uH", "2uH", "K=0.5"}));
}

TEST(Strip, TolerancesOfCoupledInductorsShowWithThatOfThePrimary) {
  Network network = Made({CoupledInductors});
  network.stage[1].CoupledVal = {1e-6F, 2e-6F, 0.5F, 0, 3, 4};
  EXPECT_THAT(Words(network), Not(Contains("Sec: 3%")));
  network.stage[1].CoupledVal.primaryTolerance = 2;
  EXPECT_THAT(Words(network), IsSupersetOf({"Pri: 2%", "Sec: 3%", "K: 4%"}));
}

TEST(Strip, PlaceholdersAreBoxes) {
  EXPECT_THAT(Words(Made({SeriesReactance, ShuntReactance})), IsSupersetOf({"jX", "jX"}));
  EXPECT_THAT(Words(Made({0})), Not(Contains("jX")));
}

TEST(Strip, TheMarkStandsAboveItsCell) {
  Picture picture;
  DrawStageStrip(Made({4, 3}), 100, 2, picture);
  const RectangleOp* mark = nullptr;
  for (const PictureOp& operation : picture.Operations()) {
    const auto* box = std::get_if<RectangleOp>(&operation);
    if (box != nullptr && box->pen.color == 0xFFFF00) mark = box;
  }
  ASSERT_NE(mark, nullptr);
  EXPECT_EQ(mark->from, (Point{1800, 500}));
  EXPECT_EQ(mark->to, (Point{2800, 700}));
  EXPECT_TRUE(mark->filled);
}

// What can be pressed lies between 700 and 3300.
TEST(Strip, NothingButTheMarkLeavesItsBand) {
  std::vector<i16> types(21);
  for (i16 type = 1; type <= 21; ++type) types[static_cast<std::size_t>(type - 1)] = type;
  Network network = Made(types);
  network.stage[19].CoupledVal = {1e-6F, 2e-6F, 0.5F, 2, 3, 4};
  for (const TextOp& text : Texts(network)) {
    EXPECT_GE(text.at.y, 700) << text.text;
    EXPECT_LE(text.at.y + 160, 3300) << text.text;
  }
}

}  // namespace
}  // namespace quilm
