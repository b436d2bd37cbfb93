// One adapter for each kind of control: it makes the widget, shows the control's values in it and turns the user's
// events into acts. An adapter blocks its widget's signals while it shows values, so no handler ever hears an echo.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "shell/Acts.h"

namespace quilm {

// The page view that the adapters belong to.
class ActSink {
 public:
  virtual ~ActSink() = default;
  // Runs an act of the user and shows afterwards what it has changed. Nothing when the page is not open any more; after
  // the call the control may be gone.
  virtual void Perform(const std::function<void(Session&)>& act) = 0;
  // The same for a press: a box that is being typed in is left first, as it would be if the focus had moved.
  virtual void Press(const std::function<void(Session&)>& act) = 0;
  // Whether the page is the one that the user can act on. A page below another one can still lose its focus and its
  // clocks go on.
  virtual bool IsOnTop() const = 0;
};

class ControlView {
 public:
  explicit ControlView(Control& control) : control_(control) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  // The widget that stands in the layout; none for a timer.
  QWidget* Widget() const { return widget_; }
  // The one in it that takes the focus.
  virtual QWidget* FocusWidget() const { return widget_; }
  Control& Shows() const { return control_; }

  // Shows a widget whenever the control is shown: a unit beside its box.
  void Accompany(QWidget& beside) { companions_.push_back(&beside); }

  // Shows the control's present values. Cheap when nothing has changed.
  void Sync();

  // The letter that presses it, or leads to the box that it names, together with Alt; 0 for none. Shown by the next
  // Sync.
  void SetMnemonic(QChar letter) { mnemonic_ = letter; }
  // Whether it shows a letter at all.
  virtual bool TakesMnemonic() const { return false; }
  // Takes another control's widget into its own.
  virtual void Hold(QWidget& /*inner*/) {}
  // Whether Enter presses it.
  virtual void SetDefault(bool /*isDefault*/) {}

 protected:
  void SetWidget(QWidget* widget);
  virtual void ShowValues() = 0;

  Control& control_;
  QChar mnemonic_;

 private:
  QWidget* widget_ = nullptr;
  std::vector<QWidget*> companions_;
};

// The adapter of a control, its widget a child of `parent`.
std::unique_ptr<ControlView> MakeControlView(Control& control, ActSink& sink, QWidget* parent);

// The caption with `letter` marked as its mnemonic, other ampersands literal.
QString MarkedCaption(const std::string& caption, QChar letter);

}  // namespace quilm
