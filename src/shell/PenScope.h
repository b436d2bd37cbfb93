// The pen of a canvas for the length of a scope.
#pragma once

#include <utility>

#include "shell/Canvas.h"

namespace quilm {

// Puts width, style, mode, colour, font, fit and medium back to what they were, however the scope is left. The scale,
// the background and the position of the next text belong to the sheet and stay as they become.
class PenScope {
 public:
  explicit PenScope(Canvas& canvas)
      : canvas_(canvas),
        width_(canvas.DrawWidth),
        style_(canvas.DrawStyle),
        mode_(canvas.DrawMode),
        color_(canvas.ForeColor),
        font_(canvas.CurrentFont()),
        fit_(canvas.Fit),
        showOn_(canvas.ShowOn) {}

  ~PenScope() {
    canvas_.DrawWidth = width_;
    canvas_.DrawStyle = style_;
    canvas_.DrawMode = mode_;
    canvas_.ForeColor = color_;
    canvas_.FontName = std::move(font_.name);
    canvas_.FontSize = font_.size;
    canvas_.FontBold = font_.bold;
    canvas_.Fit = fit_;
    canvas_.ShowOn = showOn_;
  }

  PenScope(const PenScope&) = delete;
  PenScope& operator=(const PenScope&) = delete;

 private:
  Canvas& canvas_;
  i16 width_;
  LineStyle style_;
  PenMode mode_;
  Color color_;
  Font font_;
  TextFit fit_;
  Medium showOn_;
};

}  // namespace quilm
