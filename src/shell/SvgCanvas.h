// The canvas that writes a picture as a standalone SVG file, without a toolkit.
#pragma once

#include <string>

#include "shell/Canvas.h"

namespace quilm {

class Picture;

// The file is paper: what is for the screen alone is not in it. It is as large as its scale in twips, and counts in
// pixels of 1/96 inch from the origin of the scale. Pens keep their width in pixels when it is shown larger or smaller,
// in viewers that know how. Texts are stretched to the widths that the font metrics give, so that the layout holds with
// any font. What has no place (a point that is not a number) is left out and breaks a trace.
class SvgCanvas : public Canvas {
 public:
  static constexpr f64 unitsPerPixel = 15;  // twips to 1/96 inch

  // The file: white or coloured paper over the whole scale, and what was drawn since the last Clear. UTF-8; bytes that
  // are none become the replacement character.
  std::string Text() const;

 protected:
  void DrawPolyline(std::span<const Point> points, Color color) override;
  void DrawRectangle(Point from, Point to, Color color, bool filled) override;
  void DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) override;
  void DrawPoint(Point at, Color color) override;
  void DrawText(Point at, std::string_view text) override;
  void DrawClear() override;
  Medium SurfaceMedium() const override { return Medium::Paper; }

 private:
  void StrokeRun(std::span<const Point> points, Color color);
  void DrawTextLine(f64 x, f64 baseline, std::string_view line);
  f64 EmHeight() const;
  f64 XPixels(f32 units) const;
  std::string Stroke(Color color) const;
  std::string ModeAttribute() const;

  std::string body_;
};

// The file of a retained picture.
std::string SvgText(const Picture& picture);

// A text as XML content or attribute: special characters escaped, controls dropped, malformed UTF-8 replaced.
std::string XmlEscaped(std::string_view text);

}  // namespace quilm
