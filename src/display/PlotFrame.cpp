#include "display/PlotFrame.h"

#include <algorithm>

#include "core/NumericFault.h"

namespace quilm {

namespace {

// Where a scale lies in a frame, in the form that many points need.
class Rise {
 public:
  Rise(const ValueScale& scale, const PlotBox& box)
      : scaleTop_(scale.top), scaleHeight_(scaleTop_ - static_cast<f64>(scale.bottom)), box_(box) {
    if (scaleHeight_ == 0) throw NumericFault("Division by zero");
  }

  f32 operator()(f64 value) const {
    const f64 part = (value - scaleTop_) / scaleHeight_;
    const f64 y = static_cast<f64>(box_.top) - part * static_cast<f64>(box_.height);
    return std::clamp(static_cast<f32>(y), box_.top, box_.Bottom());
  }

 private:
  f64 scaleTop_;
  f64 scaleHeight_;
  PlotBox box_;
};

template <class Number>
std::vector<Point> Points(std::span<const f64> fractions, const ValueScale& scale, std::span<const Number> values,
                          const PlotBox& box) {
  std::vector<Point> points(values.size());
  const Rise rise(scale, box);
  for (std::size_t i = 0; i < points.size(); ++i) {
    const f32 x = std::clamp(FrameX(fractions[i], box), box.left, box.Right());
    points[i] = {x, rise(values[i])};
  }
  return points;
}

}  // namespace

f32 FrameX(f64 fraction, const PlotBox& box) {
  return static_cast<f32>(fraction * static_cast<f64>(box.width) + static_cast<f64>(box.left));
}

f32 FrameY(const ValueScale& scale, f64 value, const PlotBox& box) { return Rise(scale, box)(value); }

std::vector<Point> FramePoints(std::span<const f64> fractions, const ValueScale& scale, std::span<const f32> values,
                               const PlotBox& box) {
  return Points(fractions, scale, values, box);
}

std::vector<Point> FramePoints(std::span<const f64> fractions, const ValueScale& scale, std::span<const f64> values,
                               const PlotBox& box) {
  return Points(fractions, scale, values, box);
}

}  // namespace quilm
