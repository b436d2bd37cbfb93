// The retained picture: an ordered list of what was drawn, a plain value that can be compared, printed as text and
// replayed into any other canvas. Replaying a picture into an empty one gives an equal one.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "shell/Recorder.h"

namespace quilm {

using PictureOps = std::vector<PictureOp>;

class Picture : public Recorder {
 public:
  Picture() = default;
  explicit Picture(const Scale& scale) { SetScale(scale); }
  Picture(const Picture& other);
  Picture& operator=(const Picture& other);
  ~Picture() override = default;

  const PictureOps& Operations() const { return *drawing_; }
  bool Empty() const { return drawing_->empty(); }

  // The list of operations, for a view that shows the picture. A list only ever grows while someone else holds it:
  // Clear, a copy and an assignment begin another one. Who holds the list and knows how many operations it had can
  // therefore tell what is new by its address and length alone, and can still show it when the picture is gone.
  std::shared_ptr<const PictureOps> Drawing() const { return drawing_; }

  // Draws all operations into `canvas`, which takes this picture's scale and background and is cleared first.
  void Replay(Canvas& canvas) const;

  // Draws all operations over what `canvas` holds, mapped so that this picture's scale fills the box given in the
  // canvas' scale (a small picture on a button, a corner plot). Text sizes follow the height of the box.
  void ReplayInto(Canvas& canvas, Point from, Point to) const;

  // One operation a line, for test reports and differences.
  std::string Dump() const;

  // Equal pictures show the same: same scale, background and operations. The pen at rest does not count.
  friend bool operator==(const Picture& a, const Picture& b);

 protected:
  void Append(PictureOp operation) override;
  void DrawClear() override;

 private:
  std::shared_ptr<PictureOps> drawing_ = std::make_shared<PictureOps>();
};

}  // namespace quilm
