// The Analysis page over a Butterworth design of order 3, from which the studies open, and what their pictures hold.
#pragma once

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {

class StudyPageBench : public PageBench {
 protected:
  StudyPageBench() : PageBench(AllPages()) { StartProgram(session); }

  // 1 MHz wide, between 50 ohms, swept from 1 kHz to 10 MHz in 1000 steps, with hardly any loss.
  void AnalyseLowpass() { Analyse("optCapInLowpass", ""); }
  // The same about 10 MHz.
  void AnalyseBandpass() { Analyse("optShuntInGeoSymm", "10M"); }

  std::string TextOf(const std::string& name) { return Get<TextBox>(name).text; }
  std::string CaptionOf(const std::string& name) { return Get<Label>(name).caption; }
  const Picture& Plot() { return Get<PictureBox>("picPlot").picture; }

  MessageShown OnlyMessage() {
    EXPECT_EQ(platform.messages.size(), 1U);
    const MessageShown message = platform.messages.empty() ? MessageShown{} : platform.messages.back();
    platform.messages.clear();
    return message;
  }

  static std::vector<std::string> Texts(const Picture& picture) {
    std::vector<std::string> texts;
    for (const PictureOp& operation : picture.Operations()) {
      if (const auto* text = std::get_if<TextOp>(&operation)) texts.push_back(text->text);
    }
    return texts;
  }

  // The curves of a colour: what has more points than a line of the grid.
  static std::vector<PolylineOp> Curves(const Picture& picture, Color color) {
    std::vector<PolylineOp> curves;
    for (const PictureOp& operation : picture.Operations()) {
      const auto* line = std::get_if<PolylineOp>(&operation);
      if (line != nullptr && line->points.size() > 2 && line->pen.color == color) curves.push_back(*line);
    }
    return curves;
  }

  // The points of the only curve of a colour on the plot.
  std::vector<Point> Points(Color color) {
    const std::vector<PolylineOp> curves = Curves(Plot(), color);
    EXPECT_EQ(curves.size(), 1U);
    return curves.empty() ? std::vector<Point>{} : curves[0].points;
  }

 private:
  void Analyse(const std::string& topology, const std::string& centre) {
    Press("cmdDesignNew");
    Press("optButterworth");
    Press(topology);
    Enter("txtBandwidth", "1M");
    if (!centre.empty()) Enter("txtCenterFrequency", centre);
    Enter("txtInputTerm", "50");
    Press("cmdAnalysis");
    Enter("txtQinductor", "10M");
    Enter("txtQcapacitor", "10M");
    Enter("txtFstart", "1k");
    Enter("txtFstop", "10M");
  }
};

}  // namespace quilm
