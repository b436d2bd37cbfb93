// The adapters of labels, frames, spin controls, timers and picture boxes.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QToolButton>

#include "app/ControlView.h"
#include "app/PictureAreas.h"
#include "app/PictureView.h"

namespace quilm {

class LabelView : public ControlView {
 public:
  LabelView(Label& label, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  Label& label_;
  QLabel* widget_;
  Color colorShown_ = colorBlack;
};

// A group's heading with what stands under it.
class FrameView : public ControlView {
 public:
  FrameView(Frame& frame, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  Frame& frame_;
  QWidget* widget_;
};

// The quiet heading of a group, quieter still for a group within another one.
QLabel* MakeHeading(const std::string& title, bool nested, QWidget* parent);

// Two small arrow buttons, one above the other.
class SpinView : public ControlView {
 public:
  SpinView(Spin& spin, ActSink& sink, QWidget* parent);

 protected:
  void ShowValues() override {}

 private:
  void AddArrow(Qt::ArrowType arrow, const char* spoken, int direction, ActSink& sink);

  Spin& spin_;
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
