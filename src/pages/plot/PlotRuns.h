// The runs of the Plot page: optimiser and Monte Carlo, watched on the plot, and the envelope of the latter.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/Network.h"
#include "core/Sweep.h"
#include "display/TraceCycle.h"
#include "shell/PlotSheet.h"

namespace quilm {

class Button;
class LongRun;
class MonteCarlo;
class Optimiser;
class Page;
class PictureBox;
class Session;
struct DesignRecord;

class PlotRuns {
 public:
  struct Controls {
    Button& cmdOptimize;
    Button& cmdMonteCarlo;
    Button& cmdEnd;
    Button& cmdExtremes;
    PictureBox& plot;
  };

  // Takes the presses of the four buttons. `showTools` hides the page's other buttons, and shows those again that the
  // present plot has.
  PlotRuns(Session& session, Page& page, const Controls& controls, std::function<void(bool shown)> showTools);

  // Offers the extremes of the last Monte Carlo run while network and sweep are still those of it and the present plot
  // can show them.
  void OfferExtremes();

 private:
  // What an envelope belongs to.
  struct Spread {
    Network network;
    SweepSettings sweep;
    bool operator==(const Spread&) const = default;
  };

  void Optimize();
  void RefuseWithoutLimits();
  void RunOptimizer();
  std::string Walk(Optimiser& optimiser, LongRun& run);
  void EndOptimizer(bool stopped, const std::string& mark);
  void SpreadParts();
  void RunMonteCarlo();
  std::string Try(MonteCarlo& trials, LongRun& run);
  void EndMonteCarlo(const MonteCarlo& trials, const std::string& mark);
  void Stop();
  void StopForExtremes();
  void ShowExtremes();

  void TellOfStepsizes(const std::string& who);
  void DrawTrial();
  void KeepGrid();
  void RefreshPlot();
  bool HasExtremes() const;

  Session& session_;
  DesignRecord& record_;
  Page& page_;
  Controls controls_;
  std::function<void(bool)> showTools_;
  bool wantsExtremes_ = false;  // the run in progress was stopped for them
  TraceCycle colors_;           // of the trials
  Picture grid_;                // its lines, drawn again over the traces
  std::optional<Spread> spread_;
};

}  // namespace quilm
