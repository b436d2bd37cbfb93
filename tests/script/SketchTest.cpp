// A page drawn from its layout.
#include "script/PageSketch.h"

#include <algorithm>
#include <fstream>
#include <set>

#include "script/ScriptBench.h"
#include "shell/HeadlessPlatform.h"
#include "shell/Session.h"

namespace quilm {
namespace {

// One control of each kind, in each kind of place.
class SketchedPage : public Page {
 public:
  explicit SketchedPage(Session& session) : Page(session, PageId::Design, "The sketched page") {
    optCard.picture.Line(0, 0, 1000, 1000, colorRed);
    picPlot.picture.Line(0, 0, 13000, 8000, colorBlue);
    txtValue.text = "4.7n";
    lstLines.items = {"first line", "second line"};
    lblCount.caption = "17";
    cmdHidden.visible = false;
    txtHidden.visible = false;
    txtHidden.text = "not seen";
  }

  Layout MakeLayout() override {
    return Column({Row({Put(cmdLeft), Space(), Put(cmdHidden)}),
                   Fill(Row({Group(fraValues, Form({{Put(lblValue), Put(txtValue), Word("farads", txtValue)},
                                                    {Put(lblHidden), KeepPlace(Put(txtHidden))},
                                                    {Put(lblSteps), Number(lblCount, UpDown1)}})),
                             Card(optCard, cmdCorner), Fill(Put(picPlot))})),
                   Grid(2, {Put(cmdOne), Put(cmdTwo), Put(lstLines)})});
  }

  Button cmdLeft{*this, "cmdLeft", "At the left"};
  Button cmdHidden{*this, "cmdHidden", "Hidden button"};
  Frame fraValues{*this, "fraValues", "Values"};
  Label lblValue{*this, "lblValue", "Capacitor:"};
  TextBox txtValue{*this, "txtValue", "Capacitor"};
  Label lblHidden{*this, "lblHidden", "Beside it:"};
  TextBox txtHidden{*this, "txtHidden", "Hidden"};
  Label lblSteps{*this, "lblSteps", "Steps:"};
  Label lblCount{*this, "lblCount", ""};
  Spin UpDown1{*this, "UpDown1", "Steps"};
  OptionGroup group;
  OptionButton optCard{*this, group, "optCard", "Card"};
  Button cmdCorner{*this, "cmdCorner", "More"};
  PictureBox picPlot{*this, "picPlot", "Plot"};
  Button cmdOne{*this, "cmdOne", "One"};
  Button cmdTwo{*this, "cmdTwo", "Two"};
  ListBox lstLines{*this, "lstLines", "Lines"};
};

class SketchTest : public testing::Test {
 protected:
  HeadlessPlatform platform{"/tmp"};
  Session session{platform, {}};
  SketchedPage page{session};
  const Picture sketch = SketchOf(page);

  const TextOp* TextOf(const std::string& words) const {
    for (const PictureOp& operation : sketch.Operations()) {
      const auto* text = std::get_if<TextOp>(&operation);
      if (text != nullptr && text->text == words) return text;
    }
    return nullptr;
  }
};

TEST_F(SketchTest, HasTheTitleAndEverythingThatIsShown) {
  for (const char* words : {"The sketched page", "At the left", "Values", "Capacitor:", "4.7n", "farads",
                            "Steps:", "17", "Card", "?", "One", "Two", "first line", "second line"}) {
    EXPECT_NE(TextOf(words), nullptr) << words;
  }
}

TEST_F(SketchTest, LeavesOutWhatIsHidden) {
  EXPECT_EQ(TextOf("Hidden button"), nullptr);
  EXPECT_EQ(TextOf("not seen"), nullptr);
}

TEST_F(SketchTest, HasThePicturesInTheirPlaces) {
  std::set<Color> colors;
  for (const PictureOp& operation : sketch.Operations()) {
    if (const auto* line = std::get_if<PolylineOp>(&operation)) colors.insert(line->pen.color);
  }
  EXPECT_EQ(colors.count(colorRed), 1U);
  EXPECT_EQ(colors.count(colorBlue), 1U);
}

TEST_F(SketchTest, StaysOnItsSheet) {
  const Scale scale = sketch.CurrentScale();
  for (const PictureOp& operation : sketch.Operations()) {
    const auto* box = std::get_if<RectangleOp>(&operation);
    if (box == nullptr) continue;
    EXPECT_GE(std::min(box->from.x, box->to.x), 0);
    EXPECT_GE(std::min(box->from.y, box->to.y), 0);
    EXPECT_LE(std::max(box->from.x, box->to.x), scale.width);
    EXPECT_LE(std::max(box->from.y, box->to.y), scale.height);
  }
}

// A label ends where its box begins, and both share their row.
TEST_F(SketchTest, AFormHasItsLabelsBesideTheirBoxes) {
  const TextOp* label = TextOf("Capacitor:");
  const TextOp* value = TextOf("4.7n");
  const TextOp* unit = TextOf("farads");
  EXPECT_LT(label->at.x, value->at.x);
  EXPECT_LT(value->at.x, unit->at.x);
  EXPECT_NEAR(static_cast<f64>(label->at.y), static_cast<f64>(value->at.y), 1);
  EXPECT_GT(TextOf("Steps:")->at.y, label->at.y);
  EXPECT_GT(TextOf("One")->at.y, TextOf("At the left")->at.y);
}

TEST(SketchCommand, WritesAFile) {
  const std::string path = testing::TempDir() + "sketch-of-the-bench.svg";
  RunText("sketch " + path + "\n");
  std::ifstream file(path);
  std::ostringstream text;
  text << file.rdbuf();
  EXPECT_NE(text.str().find("<svg"), std::string::npos);
}

TEST(HelpCommand, OpensTheHelpOfThePageOnTop) {
  const Outcome outcome = RunText("help\n");
  const std::string path = outcome.One("shell-open")["path"];
  EXPECT_TRUE(path.ends_with("/help/design.htm")) << path;
}

}  // namespace
}  // namespace quilm
