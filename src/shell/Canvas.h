// The drawing surface: one set of operations for a picture on the screen, a printed sheet and a picture file.
//
// Coordinates are in the user scale given by ScaleLeft, ScaleTop, ScaleWidth and ScaleHeight, x to the right and y
// downward. One unit is a twip (1440 to the inch) where text is concerned: a text of 9 points is 180 units high before
// leading, whatever size the surface is shown at. Along x that holds for units as long as those of y; see Shape. Pen
// widths are in pixels of the surface (device-independent ones on the screen, 1/96 inch on paper and in files) and do
// not follow the scale; texts, points and pens keep their shape however a surface stretches the scale. Nothing is
// clipped here: what lies outside the scale is cut by the edge of the surface alone.
//
// Colours are blue-green-red words: 0xFF0000 is blue, 0x0000FF red, 0 black.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/Types.h"
#include "shell/FontMetrics.h"

namespace quilm {

using Color = std::uint32_t;

inline constexpr Color colorBlack = 0x000000;
inline constexpr Color colorBlue = 0xFF0000;
inline constexpr Color colorRed = 0x0000FF;
inline constexpr Color colorWhite = 0xFFFFFF;

// The last is solid on the screen, where colours tell traces apart.
enum class LineStyle : i16 { Solid = 0, Dash = 1, Dot = 2, DashOnPaper = 3 };

// Where an operation shows: paper is what is printed, copied and written to files.
enum class Medium : i16 { Everywhere = 0, Screen = 1, Paper = 2 };

enum class PenMode : i16 { ExclusiveOr = 7, Copy = 13 };

struct Point {
  f32 x = 0;
  f32 y = 0;
  bool operator==(const Point&) const = default;
};

// The shape of a picture on a surface that can choose its size.
struct Shape {
  f32 xUnit = 1;  // the length of a unit of x in units of y, at the natural size
  // The least and the most of width over height, for a picture that fills the room it has with units of x and y that
  // need not be alike. 0 for one that keeps its proportions.
  f32 leastProportion = 0;
  f32 mostProportion = 0;
  bool operator==(const Shape&) const = default;
};

struct Scale {
  f32 left = 0;
  f32 top = 0;
  f32 width = 13000;
  f32 height = 8000;
  Shape shape = {};

  // The natural size, in twips.
  constexpr f32 NaturalWidth() const { return width * shape.xUnit; }
  constexpr f32 NaturalHeight() const { return height; }
  bool operator==(const Scale&) const = default;
};

// What becomes of a text where a surface draws it narrower or wider than it was laid out, because the surface stretches
// the scale or enlarges what could not be read.
struct TextFit {
  f32 anchor = 0.5F;  // what stays in its place: 0 the left end of the text, 1 the right one
  f32 room = 0;       // units of x that no enlarged text may go beyond, 0 for no bound
  bool operator==(const TextFit&) const = default;
};

class Canvas {
 public:
  virtual ~Canvas() = default;

  // State. What an operation uses is its value at the moment of the call.
  f32 ScaleLeft = 0;
  f32 ScaleTop = 0;
  f32 ScaleWidth = 13000;
  f32 ScaleHeight = 8000;
  Shape ScaleShape;
  f32 CurrentX = 0;  // position of the next text; Line leaves them at its end point
  f32 CurrentY = 0;
  Color ForeColor = colorBlack;
  Color BackColor = colorWhite;
  i16 DrawWidth = 1;  // 0 for the thinnest line: one device pixel on the screen, half a pixel on paper
  LineStyle DrawStyle = LineStyle::Solid;
  PenMode DrawMode = PenMode::Copy;
  std::string FontName = "Arial";
  f32 FontSize = 9;
  bool FontBold = false;
  TextFit Fit;
  Medium ShowOn = Medium::Everywhere;

  // A straight line; both end points are drawn. CurrentX, CurrentY become (x2, y2).
  void Line(f32 x1, f32 y1, f32 x2, f32 y2, Color color);

  // Lines from point to point in one stroke, the same picture as its lines one by one. Fewer than two points draw
  // nothing. CurrentX, CurrentY become the last point.
  void Polyline(std::span<const Point> points, Color color);

  // The box between two corners, its outline or filled.
  void Rectangle(f32 x1, f32 y1, f32 x2, f32 y2, Color color, bool filled);

  // A circle, or the arc from angle `start` to `stop` in radians, anticlockwise as seen. r is the horizontal half
  // axis; the vertical one is r * aspect. start == stop draws the whole circle.
  void Circle(f32 x, f32 y, f32 r, Color color, f32 start = 0, f32 stop = 0, f32 aspect = 1);

  void PSet(f32 x, f32 y, Color color);

  // Text in ForeColor whose upper left corner is CurrentX, CurrentY. CurrentX stays, CurrentY moves down by the height
  // of the text.
  void Print(std::string_view text);

  // The same with the corner at (x, y).
  void PrintAt(f32 x, f32 y, std::string_view text);

  f32 TextWidth(std::string_view text) const;
  f32 TextHeight(std::string_view text) const;

  // Empties the picture and sets CurrentX and CurrentY to 0.
  void Clear();

  // Printer only, nothing elsewhere: ends a sheet, ends the document.
  virtual void NewPage() {}
  virtual void EndDoc() {}

  Font CurrentFont() const { return Font{FontName, FontSize, FontBold}; }
  Scale CurrentScale() const { return Scale{ScaleLeft, ScaleTop, ScaleWidth, ScaleHeight, ScaleShape}; }
  void SetScale(const Scale& scale);

 protected:
  // What a surface implements. The pen state is read from the members above.
  virtual void DrawPolyline(std::span<const Point> points, Color color) = 0;
  virtual void DrawRectangle(Point from, Point to, Color color, bool filled) = 0;
  virtual void DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) = 0;
  virtual void DrawPoint(Point at, Color color) = 0;
  virtual void DrawText(Point at, std::string_view text) = 0;
  virtual void DrawClear() = 0;
  virtual const FontMetrics& Metrics() const { return StandardMetrics(); }
  // What the surface is; operations for another one do not reach it. A recording keeps all.
  virtual Medium SurfaceMedium() const { return Medium::Everywhere; }

 private:
  bool ShowsHere() const;
};

inline constexpr f64 twipsPerPoint = 20;

}  // namespace quilm
