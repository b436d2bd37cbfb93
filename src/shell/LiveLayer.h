// What a run draws over a picture, trial after trial: painted once and not kept for long.
//
// A live layer is drawn like any canvas, in the scale of the picture that it lies over. Each operation is counted, and
// kept until the later ones have `mostPoints` points between them; the oldest are dropped then, so that a run may go on
// for ever. A window paints every operation once, when it first sees it, and what it has painted stays seen although
// the operation was dropped. Two things are lost with the dropped ones: they are not painted anew when the window's
// size or density changes, and they are in no copy or file of the picture. Programs without a window see what is kept.
//
// Nothing here can be taken back: operations in PenMode::ExclusiveOr are not painted. Clear takes away all.
#pragma once

#include <deque>
#include <memory>

#include "shell/Recorder.h"

namespace quilm {

class LiveLayer : public Recorder {
 public:
  // 2,000 traces of the longest sweep, 2,050 points, fit: 33 MB.
  static constexpr std::size_t usualMostPoints = std::size_t{1} << 22;

  // The drawing since the last Clear: what is kept, oldest first, and how many came before.
  struct Run {
    std::deque<PictureOp> kept;
    std::size_t dropped = 0;
    std::size_t Drawn() const { return dropped + kept.size(); }
  };

  explicit LiveLayer(std::size_t mostPoints = usualMostPoints) : mostPoints_(mostPoints) {}
  LiveLayer(const LiveLayer&) = delete;
  LiveLayer& operator=(const LiveLayer&) = delete;
  ~LiveLayer() override = default;

  const Run& Present() const { return *run_; }
  bool Empty() const { return run_->Drawn() == 0; }

  // For a view that shows the layer: while someone else holds a run, Clear begins another one and this one only grows.
  std::shared_ptr<const Run> Drawing() const { return run_; }

 protected:
  void Append(PictureOp operation) override;
  void DrawClear() override;

 private:
  std::size_t mostPoints_;
  std::size_t points_ = 0;  // of the operations that are kept
  std::shared_ptr<Run> run_ = std::make_shared<Run>();
};

}  // namespace quilm
