// The Plot page: the twelve plots, and the tools that work on them.
#pragma once

#include <array>
#include <memory>
#include <vector>

#include "desk/NavigationRow.h"
#include "pages/plot/LimitTools.h"
#include "pages/plot/PlotMouse.h"
#include "pages/plot/PlotRuns.h"
#include "pages/plot/SmithControls.h"
#include "shell/Page.h"

namespace quilm {

class frmPlotted : public Page {
 public:
  explicit frmPlotted(Session& session);
  void Load() override;
  void Reload() override;
  void CatchUp() override;
  void CloseBox() override;
  Layout MakeLayout() override;

  NavigationRow navigation;
  std::vector<std::unique_ptr<Button>> plotButtons;  // cmd1 to cmd12
  PictureBox picPlot;                                // shows the sheet of the session
  SmithControls smithControls;
  LimitTools limitTools;

  Button cmdAutoScale{*this, "cmdAutoScale", "AutoScale", "Set the scales from the response"};
  Button cmdFitSweep{*this, "cmdFitSweep", "Fit sweep", "Set start and stop round the band (Ctrl+F)"};
  Button cmdLimits{*this, "cmdLimits", "Limits", "Set limit areas for this plot"};
  Button cmdMarkers{*this, "cmdMarkers", "Markers", "Set marker frequencies"};
  Button cmdMonteCarlo{*this, "cmdMonteCarlo", "Monte Carlo", "Start the Monte Carlo routine"};
  Button cmdOptimize{*this, "cmdOptimize", "Optimize", "Start the Optimizer routine"};
  Button cmdStepSize{*this, "cmdStepSize", "Stepsize %", "Set the step of each part"};
  Button cmdTunePart{*this, "cmdTunePart", "Tune part", "Tune single parts while the plot follows"};
  Button cmdTuneWidth{*this, "cmdTuneWidth", "Tune width", "Tune bandwidth and center while the plot follows"};
  Button cmdTuneApass{*this, "cmdTuneApass", "Tune ripple", "Tune the passband ripple while the plot follows"};
  Button cmdGetOverlay{*this, "cmdGetOverlay", "Get overlay", "Lay a saved plot over this one"};
  Button cmdSaveOverlay{*this, "cmdSaveOverlay", "Save overlay", "Save the plots to lay over later ones"};
  Button cmdEnd{*this, "cmdEnd", "Stop", "Stop the run"};
  Button cmdExtremes{*this, "cmdExtremes", "Stop / show extremes", "End this routine and show target and extremes"};

 private:
  void Choose(i16 code);
  void RefreshTools();
  void ShowTools(bool shown);
  void ScaleToResponse();
  void FitToBand();
  void OpenTuning(PageId dialog);
  void EnterStepsizes();

  // In the order in which they stand; a run takes them away meanwhile.
  const std::array<Button*, 12> tools_{&cmdAutoScale, &cmdFitSweep,   &cmdLimits,     &cmdMarkers,
                                       &cmdStepSize,  &cmdTunePart,   &cmdTuneWidth,  &cmdTuneApass,
                                       &cmdOptimize,  &cmdMonteCarlo, &cmdGetOverlay, &cmdSaveOverlay};
  PlotMouse mouse_;
  PlotRuns runs_;
};

}  // namespace quilm
