// What the dialogs that tune beside the plot have in common: the box of the step, and how a step reaches the plot.
#pragma once

#include <functional>
#include <optional>

#include "display/TraceCycle.h"
#include "network/TuneList.h"
#include "optimise/LimitScore.h"
#include "shell/Page.h"

namespace quilm {

class TunePage : public Page {
 public:
  // The close box ends the tuning like its button.
  void CloseBox() override { End(); }

  // Tells how far the response lies outside the limit areas, if there are any.
  void CatchUp() override;

 protected:
  // `lastText` holds what the box of the step said last, also when the dialog is closed. `colors` are those of the
  // traces of its steps, in turn.
  TunePage(Session& session, PageId id, std::string heading, std::string& lastText,
           std::span<const TraceColors> colors);

  // Makes a spin control step: its acts in a row are one to undo.
  void Connect(Spin& spin, const std::function<void(StepWay)>& step);

  // Takes the box into the step and holds it at 0.01 to 100; TakeStep shows it there, too.
  void HoldStep();
  void TakeStep();

  // Whether the box says something else than what ShowStep put there.
  bool IsChanged() const { return txtPercentageValue_.text != shown_; }

  // Shows a step in the box.
  void ShowStep(f32 step);

  // Runs a change of the design and adds the response after it to the plot, in the next colours. A change that is not
  // possible is told in the status line and adds nothing.
  void Change(const std::function<void()>& change);

  // Closes the dialog.
  virtual void End();

  // Of the last step, percent.
  f32 step_ = 0;

  Label lblPercentage_{*this, "lblPercentage", "Stepsize, %: "};
  TextBox txtPercentageValue_{*this, "txtPercentageValue", "Stepsize, %", "0.01 to 100"};
  Label lblError_{*this, "lblError", ""};
  Button cmdClear_{*this, "cmdClear", "Clear plot", "Take away all curves but that of the present values"};
  Button cmdExit_{*this, "cmdExit", "End tuning routine", "Keep the present values and go back to the plot"};

 private:
  void AddResponse();

  std::string& lastText_;
  TraceCycle cycle_;
  Entry& entry_;
  std::string shown_;  // what ShowStep put into the box
  std::optional<LimitScore> score_;
};

}  // namespace quilm
