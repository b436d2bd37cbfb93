#include "display/PreviewPlot.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/NumericFault.h"
#include "core/Responses.h"
#include "shell/Picture.h"

namespace quilm {
namespace {

// Four points from 0 to 3 MHz, transmission 0, -15, -30, -90 dB, return -60, -45, -30, 0 dB.
class PreviewDrawing : public testing::Test {
 protected:
  PreviewDrawing() {
    scales.LossBottom = -60;
    scales.NrXints = 3;
    scales.NrYints = 6;
    const f32 trans[] = {0, -15, -30, -90};
    const f32 back[] = {-60, -45, -30, 0};
    for (int i = 0; i < 4; ++i) {
      responses->RespFreq[i] = 1e6F * static_cast<f32>(i);
      responses->RespTrans[i] = trans[i];
      responses->RespReturn[i] = back[i];
    }
  }

  Picture Drawn() {
    const PlotSetup setup{HorizontalAxis(AxisSettings{false, 0, 3e6F}), scales, {}, {}, 50};
    Picture picture;
    DrawPreview(setup, SpansOf(*responses, 3), places, narrowPreview, picture);
    return picture;
  }

  static std::vector<std::string> Texts(const Picture& picture) {
    std::vector<std::string> texts;
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->text);
    }
    return texts;
  }

  static std::vector<Point> Trace(const Picture& picture, Color color) {
    for (const PictureOp& operation : picture.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->pen.color == color) return line->points;
    }
    return {};
  }

  PlotScales scales;
  AxisPlaces places;
  std::unique_ptr<Responses> responses = std::make_unique<Responses>();
};

// The frame is 4740 wide from 500, 2560 high from 300; 15 dB of 60 are a quarter of the height.
TEST_F(PreviewDrawing, TheTracesStandInTheFrame) {
  const Picture picture = Drawn();
  const std::vector<Point> blue = Trace(picture, colorBlue);
  const std::vector<Point> red = Trace(picture, colorRed);
  ASSERT_GE(blue.size(), 4U);
  ASSERT_EQ(red.size(), blue.size());
  const std::size_t first = blue.size() - 4;
  const Point expected[] = {{500, 300}, {2080, 940}, {3660, 1580}, {5240, 2860}};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(blue[first + i], expected[i]) << i;
    EXPECT_EQ(red[first + i].x, expected[i].x) << i;
  }
  EXPECT_EQ(red[first].y, 2860);
  EXPECT_EQ(red[first + 2].y, 1580);
  EXPECT_EQ(red[first + 3].y, 300);
}

TEST_F(PreviewDrawing, TheEndsOfTheScalesAreLabelled) {
  EXPECT_EQ(Texts(Drawn()), (std::vector<std::string>{"0", "-60", "0.0Hz", "3MHz", "Transmission, dB", "Return, dB"}));
}

// Which plot the Plot page shows makes no difference.
TEST_F(PreviewDrawing, ItIsTheSameWhateverPlotIsOnDisplay) {
  const Picture first = Drawn();
  scales.PlotCode = 11;
  EXPECT_EQ(Drawn(), first);
}

TEST_F(PreviewDrawing, EverythingStandsOnThePaper) {
  const Picture picture = Drawn();
  for (const PictureOp& operation : picture.Operations()) {
    const auto* text = std::get_if<TextOp>(&operation);
    if (text == nullptr) continue;
    Picture measure(narrowPreview);
    measure.FontSize = text->font.size;
    EXPECT_GE(text->at.x, 0) << text->text;
    EXPECT_LE(text->at.x + measure.TextWidth(text->text), narrowPreview.width) << text->text;
    EXPECT_LE(text->at.y + measure.TextHeight(text->text), narrowPreview.height) << text->text;
  }
}

TEST_F(PreviewDrawing, AScaleWithoutHeightIsAFault) {
  scales.LossBottom = 0;
  EXPECT_THROW(Drawn(), NumericFault);
}

TEST_F(PreviewDrawing, TheReasonStandsInTheFrameInLinesThatFit) {
  Picture picture;
  const std::string reason = "Please enter a passband ripple for the even-order Cauer filter family";
  DrawNoPreview(reason, narrowPreview, picture);
  std::string all;
  int lines = 0;
  for (const PictureOp& operation : picture.Operations()) {
    const auto* text = std::get_if<TextOp>(&operation);
    if (text == nullptr) continue;
    Picture measure(narrowPreview);
    measure.FontSize = text->font.size;
    EXPECT_LE(measure.TextWidth(text->text), PreviewFrame(narrowPreview).width);
    EXPECT_GT(text->at.x, PreviewFrame(narrowPreview).left);
    all += (all.empty() ? "" : " ") + text->text;
    ++lines;
  }
  EXPECT_EQ(all, reason);
  EXPECT_GE(lines, 2);
}

}  // namespace
}  // namespace quilm
