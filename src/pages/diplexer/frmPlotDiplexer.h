// The plot of the diplexer: both arms and the return of the pair, which follow its entries as they are stepped.
#pragma once

#include <memory>
#include <optional>

#include "core/AxisPlaces.h"
#include "diplexer/DiplexerSweep.h"
#include "diplexer/DiplexerTuning.h"
#include "display/DiplexerPlot.h"
#include "shell/Page.h"

namespace quilm {

class frmPlotDiplexer : public Page {
 public:
  explicit frmPlotDiplexer(Session& session);
  void Load() override;
  void Reload() override;
  void CloseBox() override;
  Layout MakeLayout() override;

  PictureBox picPlot{*this, "picPlot", "Plot of the diplexer"};

 private:
  void PlotDiplexer();
  void Draw();
  void TellOfNone(const std::string& why);
  void ShowValues();
  void Change(bool changed);
  void OpenTool(PageId tool);
  void ShowReadout(f32 x, f32 y);

  Label lblOrderInput_{*this, "lblOrderInput", "Order: "};
  Label lblOrder_{*this, "lblOrder", ""};
  Spin UpDown1_{*this, "UpDown1", "Order", "Step the order"};
  Label lblCrossoverInput_{*this, "lblCrossoverInput", "Crossover: "};
  Label lblCrossover_{*this, "lblCrossover", ""};
  Spin UpDown2_{*this, "UpDown2", "Crossover", "Step the crossover by 1 %"};
  Label lblLowerEdgeEnter_{*this, "lblLowerEdgeEnter", "Lower edge: "};
  Label lblLowerEdge_{*this, "lblLowerEdge", ""};
  Spin UpDown4_{*this, "UpDown4", "Lower edge", "Step the lower edge by 1 %"};
  Label lblUpperEdgeEnter_{*this, "lblUpperEdgeEnter", "Upper Edge: "};
  Label lblUpperEdge_{*this, "lblUpperEdge", ""};
  Spin UpDown5_{*this, "UpDown5", "Upper edge", "Step the upper edge by 1 %"};
  Label lblApassInput_{*this, "lblApassInput", "Apass: "};
  Label lblApass_{*this, "lblApass", ""};
  Spin UpDown3_{*this, "UpDown3", "Passband ripple", "Step the passband ripple by 10 %"};
  Button cmdTunePart_{*this, "cmdTunePart", "Tune part", "Tune single parts while the plot follows"};
  Button cmdMarkers_{*this, "cmdMarkers", "Markers", "Set marker frequencies"};
  Button cmd5Caps_{*this, "cmd5Caps", "All 5%", "Move all capacitors to standard 5% values"};
  Button cmdExit_{*this, "cmdExit", "Design", "Go back to the entries of the diplexer"};
  Button cmdReturn_{*this, "cmdReturn", "Return to Quilm design", "Leave the diplexer for the Design page"};

  const std::unique_ptr<DiplexerResponses> responses_;
  AxisPlaces places_;
  std::optional<DiplexerSetup> drawn_;  // what the picture shows, where it could be drawn
  bool reads_ = false;                  // while the left button is held
};

}  // namespace quilm
