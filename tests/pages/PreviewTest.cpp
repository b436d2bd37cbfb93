// The small plot on the Design and on the Analysis page.
#include <cmath>

#include "core/Responses.h"
#include "desk/StartUp.h"
#include "display/PreviewPlot.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class Preview : public PageBench {
 protected:
  Preview() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    platform.pageEvents.clear();
  }

  PictureBox& Box() { return Get<PictureBox>("picPreview"); }

  void EnterLowpass() {
    Press("optButterworth");
    Press("optCapInLowpass");
    Enter("txtInputTerm", "50");
    Enter("txtBandwidth", "1M");
  }

  // What stands in the frame: the reason, its lines joined; empty when there are traces.
  std::string Reason() {
    std::string text;
    for (const PictureOp& operation : Box().picture.Operations()) {
      const auto* line = std::get_if<TextOp>(&operation);
      if (line != nullptr) text += (text.empty() ? "" : " ") + line->text;
    }
    return Traces().empty() ? text : std::string();
  }

  std::vector<PolylineOp> Traces() {
    std::vector<PolylineOp> traces;
    for (const PictureOp& operation : Box().picture.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->points.size() > 2) traces.push_back(*line);
    }
    return traces;
  }

  // The level of the transmission, dB, at a part of the frame's width.
  f64 Level(f64 part) {
    const PlotBox frame = PreviewFrame(Box().picture.CurrentScale());
    const f64 x = static_cast<f64>(frame.left) + part * static_cast<f64>(frame.width);
    f64 nearest = 1e9;
    f64 y = 0;
    for (const PolylineOp& trace : Traces()) {
      if (trace.pen.color != colorBlue) continue;
      for (const Point point : trace.points) {
        const f64 distance = std::fabs(static_cast<f64>(point.x) - x);
        if (distance >= nearest) continue;
        nearest = distance;
        y = point.y;
      }
    }
    const f64 scale = session.record.LossBottom;
    return (y - static_cast<f64>(frame.top)) / static_cast<f64>(frame.height) * scale;
  }

  DesignRecord& record = session.record;
};

TEST_F(Preview, WithoutADesignTheReasonStandsThere) {
  EXPECT_EQ(Reason(), "No family has been chosen");
  Press("optButterworth");
  EXPECT_EQ(Reason(), "No topology has been chosen");
  Press("optCapInLowpass");
  EXPECT_EQ(Reason(), "Please enter a bandwidth");
  EXPECT_EQ(Box().description, "Please enter a bandwidth");
}

// A sweep of two decades about the edge has it in its middle, where a Butterworth lowpass has lost 3.01 dB; a decade
// above, order 3 has lost 60 dB. The parts have a Q of 200 and more.
TEST_F(Preview, ShowsTheDesignOfTheEntries) {
  EnterLowpass();
  EXPECT_EQ(Reason(), "");
  EXPECT_EQ(Traces().size(), 2U);
  EXPECT_NEAR(Level(0.5), -3.01, 0.1);
  EXPECT_NEAR(Level(1), -60, 0.2);
  EXPECT_NEAR(Level(0), 0, 0.1);
  EXPECT_EQ(Box().description, "Transmission and return from 100kHz to 10MHz");
}

TEST_F(Preview, FollowsEveryEntry) {
  EnterLowpass();
  std::vector<Picture> seen{Box().picture};
  const std::function<void()> acts[] = {[this] { Type(session, Get<TextBox>("txtBandwidth"), "2"); },
                                        [this] { Type(session, Get<TextBox>("txtBandwidth"), "2k"); },
                                        [this] { Step(session, Get<Spin>("UpDown1"), +1); },
                                        [this] { Press("optBessel"); },
                                        [this] { Press("optIndInHighpass"); },
                                        [this] { Type(session, Get<TextBox>("txtInputTerm"), ""); }};
  for (const auto& act : acts) {
    act();
    EXPECT_NE(Box().picture, seen.back()) << seen.size();
    seen.push_back(Box().picture);
  }
  EXPECT_EQ(Reason(), "Please enter an input termination");
  for (std::size_t back = seen.size() - 1; back > 0 && CanUndo(session); --back) Undo(session);
  EXPECT_NE(Box().picture, seen.back());
}

TEST_F(Preview, GoesBackWithUndo) {
  EnterLowpass();
  const Picture before = Box().picture;
  Press("optBessel");
  ASSERT_NE(Box().picture, before);
  Undo(session);
  EXPECT_EQ(Box().picture, before);
}

// Not a bit of the record or of the last sweep, and no page and no box, whatever stands in the record.
TEST_F(Preview, TouchesNothing) {
  EnterLowpass();
  const std::function<void()> designs[] = {
      [this] { record.Width = 2e6F; },
      [this] { record.Order = 30; },
      [this] { record.Topology = "H"; },
      [this] { record.Qind[1] = record.NrYints = record.LossBottom = record.Fstart = record.NrIntervals = 0; },
      [this] { record.Family = familyCauer; },
      // Its buttons would open the failure page, and the page of the zeros.
      [this] {
        record.Topology = "A";
        record.Order = 9;
        record.Fstopband = 8e6F;
        record.Astop = 50;
      },
      [this] { record.Family = session.familyOption = familyMderived; },
      [this] { record.Width = -1; },
      [this] { record.Apass = record.Astop = 1e9F; },
      [this] { record.Family = familyManual; },
  };
  const auto responses = std::make_unique<Responses>(session.responses);
  int number = 0;
  for (const auto& design : designs) {
    design();
    const DesignRecord before = record;
    Top().CatchUp();
    EXPECT_EQ(record, before) << number;
    ++number;
  }
  EXPECT_EQ(session.responses.RespTrans, responses->RespTrans);
  EXPECT_EQ(session.responses.TransPeak, responses->TransPeak);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(platform.pageEvents.empty());
}

TEST_F(Preview, AClickOnItIsThePagesWayToThePlot) {
  EnterLowpass();
  PressArea(session, Box(), "preview");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(record.Stages, 3);
  Press("cmdDesign");
  // A missing entry is asked for as ever, and the page stays.
  Enter("txtBandwidth", "");
  platform.modalActs.push_back([](Page& page) { EXPECT_EQ(page.Id(), PageId::EnterWidth); });
  Mouse(session, Box(), MouseAct::Down, 2000, 1000, MouseButton::Left);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_FALSE(platform.messages.empty());
}

class PreviewOfNetwork : public Preview {
 protected:
  PreviewOfNetwork() {
    EnterLowpass();
    Press("cmdAnalysis");
  }
};

TEST_F(PreviewOfNetwork, ShowsTheSweepAndTheScalesOfThePage) {
  EXPECT_EQ(Box().description, "Transmission and return from 1kHz to 10MHz");
  EXPECT_NEAR(Level(0.75), -3.01, 0.1);  // three of four decades
  Enter("txtFstart", "100k");
  EXPECT_EQ(Box().description, "Transmission and return from 100kHz to 10MHz");
  EXPECT_NEAR(Level(0.5), -3.01, 0.1);
  const Picture before = Box().picture;
  Enter("txtLossBottom", "-30");
  EXPECT_NE(Box().picture, before);
  EXPECT_NEAR(Level(0.5), -3.01, 0.1);
  EXPECT_EQ(record.ResponsesValid, 0);
}

TEST_F(PreviewOfNetwork, SaysWhatIsWrongWithTheSweep) {
  Enter("txtFstop", "500");
  EXPECT_NE(Reason(), "");
  EXPECT_TRUE(Traces().empty());
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(PreviewOfNetwork, AClickOnItGoesToThePlot) {
  PressArea(session, Box(), "preview");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(record.ResponsesValid, 1);
}

}  // namespace
}  // namespace quilm
