// Buttons in their five roles, and option buttons.
#pragma once

#include <QRadioButton>
#include <QToolButton>

#include "app/ControlView.h"

namespace quilm {

// One page of the navigation row: a flat field, the present page's standing pressed.
class SegmentButton : public QToolButton {
  Q_OBJECT

 public:
  explicit SegmentButton(QWidget* parent) : QToolButton(parent) {}
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool FollowsAnother() const;
};

// A picture alone; the one on display is framed in the palette's own colour.
class ThumbnailButton : public QToolButton {
  Q_OBJECT

 public:
  explicit ThumbnailButton(QWidget* parent) : QToolButton(parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

class ButtonView : public ControlView {
 public:
  ButtonView(Button& button, ActSink& sink, QWidget* parent);
  bool TakesMnemonic() const override;
  void SetDefault(bool isDefault) override;

 protected:
  void ShowValues() override;

 private:
  QString Text() const;
  void ShowPressed();
  void ShowPicture();

  Button& button_;
  QAbstractButton* widget_;
  std::shared_ptr<const PictureOps> pictureShown_;
  std::size_t operationsShown_ = 0;
};

class OptionView : public ControlView {
 public:
  OptionView(OptionButton& option, ActSink& sink, QWidget* parent);

 protected:
  void ShowValues() override;

 private:
  OptionButton& option_;
  QRadioButton* widget_;
};

}  // namespace quilm
