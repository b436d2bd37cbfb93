// A canvas that turns each drawing call into an operation, with the pen or font of that moment.
#pragma once

#include "shell/PictureOp.h"

namespace quilm {

class Recorder : public Canvas {
 protected:
  // Takes the next operation of the drawing.
  virtual void Append(PictureOp operation) = 0;

  void DrawPolyline(std::span<const Point> points, Color color) override;
  void DrawRectangle(Point from, Point to, Color color, bool filled) override;
  void DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) override;
  void DrawPoint(Point at, Color color) override;
  void DrawText(Point at, std::string_view text) override;

 private:
  Pen PenOf(Color color) const { return Pen{color, DrawWidth, DrawStyle, DrawMode, ShowOn}; }
};

}  // namespace quilm
