// The adapters of labels, frames, spin controls, timers and picture boxes.
#pragma once

#include <QLabel>
#include <QTimer>

#include "app/ControlView.h"
#include "app/GroupBox.h"
#include "app/PictureAreas.h"
#include "app/PictureView.h"
#include "app/SpinBox.h"

namespace quilm {

class LabelView : public ControlView {
 public:
  LabelView(Label& label, QWidget* parent);
  bool TakesMnemonic() const override { return widget_->buddy() != nullptr; }

 protected:
  void ShowValues() override;

 private:
  Label& label_;
  QLabel* widget_;
  Color colorShown_ = colorBlack;
  Color groundShown_ = colorWhite;
};

// A label that comes with a long text: it is there to be read, and scrolled where it has no room.
inline constexpr std::size_t longestLabel = 1000;  // characters
class ReadingView : public ControlView {
 public:
  ReadingView(Label& label, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  Label& label_;
  QLabel* text_;
};

// A group's heading with what stands under it.
class FrameView : public ControlView {
 public:
  FrameView(Frame& frame, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  Frame& frame_;
  GroupBox* widget_;
};

class SpinView : public ControlView {
 public:
  SpinView(Spin& spin, ActSink& sink, QWidget* parent);
  void Hold(QWidget& inner) override { widget_->Hold(inner); }

 protected:
  void ShowValues() override;

 private:
  Spin& spin_;
  SpinBox* widget_;
  i32 valueShown_ = 0;
};

class TimerView : public ControlView {
 public:
  TimerView(Timer& timer, ActSink& sink, QWidget* parent);
  ~TimerView() override;

 protected:
  void ShowValues() override;

 private:
  Timer& timer_;
  QTimer* clock_;
};

class PictureBoxView : public ControlView {
 public:
  PictureBoxView(PictureBox& box, ActSink& sink, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  PictureBox& box_;
  PictureView* view_;
  PictureAreas* areas_;
};

}  // namespace quilm
