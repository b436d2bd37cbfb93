// An option as a framed card: its mark and caption, and under them the picture of what it stands for. All of the card
// is the option.
#pragma once

#include <QIcon>
#include <QRadioButton>

#include "shell/Picture.h"

namespace quilm {

class OptionCard : public QRadioButton {
  Q_OBJECT

 public:
  OptionCard(const Picture& picture, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  // Where the picture is drawn.
  QRect PictureRect() const;

 protected:
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void paintEvent(QPaintEvent* event) override;

 private:
  QSize TitleSize() const;

  QIcon picture_;
  QSize natural_;
};

}  // namespace quilm
