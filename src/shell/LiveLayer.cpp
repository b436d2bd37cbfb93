#include "shell/LiveLayer.h"

#include <utility>

namespace quilm {

namespace {

// What an operation counts for: the points of a trace, one for anything else.
std::size_t PointsOf(const PictureOp& operation) {
  const auto* trace = std::get_if<PolylineOp>(&operation);
  return trace == nullptr ? 1 : trace->points.size();
}

}  // namespace

// The newest stays, however long it is.
void LiveLayer::Append(PictureOp operation) {
  std::deque<PictureOp>& kept = run_->kept;
  points_ += PointsOf(operation);
  kept.push_back(std::move(operation));
  while (points_ > mostPoints_ && kept.size() > 1) {
    points_ -= PointsOf(kept.front());
    kept.pop_front();
    ++run_->dropped;
  }
}

void LiveLayer::DrawClear() {
  run_ = std::make_shared<Run>();
  points_ = 0;
}

}  // namespace quilm
