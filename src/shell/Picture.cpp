#include "shell/Picture.h"

#include "shell/PenScope.h"

namespace quilm {

Picture::Picture(const Picture& other) : Recorder(other), drawing_(std::make_shared<PictureOps>(*other.drawing_)) {}

Picture& Picture::operator=(const Picture& other) {
  if (this == &other) return *this;
  Recorder::operator=(other);
  drawing_ = std::make_shared<PictureOps>(*other.drawing_);
  return *this;
}

void Picture::Append(PictureOp operation) { drawing_->push_back(std::move(operation)); }

// A list that nobody else knows can be used again, and keeps its room.
void Picture::DrawClear() {
  if (drawing_.use_count() == 1) {
    drawing_->clear();
  } else {
    drawing_ = std::make_shared<PictureOps>();
  }
}

void Picture::Replay(Canvas& canvas) const {
  const PenScope pen(canvas);
  canvas.SetScale(CurrentScale());
  canvas.BackColor = BackColor;
  canvas.Clear();
  for (const PictureOp& operation : *drawing_) DrawOperation(operation, canvas);
}

void Picture::ReplayInto(Canvas& canvas, Point from, Point to) const {
  const PenScope pen(canvas);
  PicturePlace place;
  place.xScale = (to.x - from.x) / ScaleWidth;
  place.yScale = (to.y - from.y) / ScaleHeight;
  place.xShift = from.x - ScaleLeft * place.xScale;
  place.yShift = from.y - ScaleTop * place.yScale;
  for (const PictureOp& operation : *drawing_) DrawOperation(operation, canvas, place);
}

std::string Picture::Dump() const {
  std::string text;
  for (const PictureOp& operation : *drawing_) text += DumpOperation(operation) + '\n';
  return text;
}

bool operator==(const Picture& a, const Picture& b) {
  return a.CurrentScale() == b.CurrentScale() && a.BackColor == b.BackColor && *a.drawing_ == *b.drawing_;
}

}  // namespace quilm
