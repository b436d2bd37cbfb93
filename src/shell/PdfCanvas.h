// The canvas that writes sheets as a PDF file, without a toolkit.
#pragma once

#include <span>
#include <string>

#include "shell/Canvas.h"

namespace quilm {

class Picture;

// A size on paper, in points (1/72 inch).
struct PaperSize {
  f64 width = 612;
  f64 height = 792;
};

// One page: paper, on which what is for the screen alone, and what a second drawing would take back, is not drawn. The
// scale fills the page. Pens count 1/96 inch. Texts stand in Helvetica and Courier, which every viewer has and whose
// widths are those of the font metrics, and Greek letters in Symbol; a character that none of these has becomes "?".
// What has no place (a point that is not a number) is left out and breaks a trace.
class PdfCanvas : public Canvas {
 public:
  explicit PdfCanvas(const PaperSize& paper) : paper_(paper) {}

  // The drawing since the last Clear as a content stream (ISO 32000-1, 8 and 9).
  const std::string& Content() const { return content_; }

 protected:
  void DrawPolyline(std::span<const Point> points, Color color) override;
  void DrawRectangle(Point from, Point to, Color color, bool filled) override;
  void DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) override;
  void DrawPoint(Point at, Color color) override;
  void DrawText(Point at, std::string_view text) override;
  void DrawClear() override { content_.clear(); }
  Medium SurfaceMedium() const override { return Medium::Paper; }

 private:
  struct Place {
    f64 x;
    f64 y;
  };
  f64 PointsPerX() const { return paper_.width / static_cast<f64>(ScaleWidth); }
  f64 PointsPerY() const { return paper_.height / static_cast<f64>(ScaleHeight); }
  Place Map(Point p) const;
  f64 PenWidth() const;
  void SetPen(Color color);
  void Stroke(std::span<const Place> places);
  void DrawTextLine(Place baseline, f64 size, std::string_view line);

  PaperSize paper_;
  std::string content_;
};

// The file of a document, one sheet a page of this size.
std::string PdfText(std::span<const Picture> sheets, const PaperSize& paper);

// The file of one picture in its natural size.
std::string PdfText(const Picture& picture);

}  // namespace quilm
