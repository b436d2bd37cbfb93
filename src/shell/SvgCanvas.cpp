#include "shell/SvgCanvas.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

#include "shell/Picture.h"
#include "shell/Utf8.h"

namespace quilm {

namespace {

constexpr f64 ascent = 0.92;     // baseline below the top of a line, in ems
constexpr f64 linePitch = 1.15;  // of an em, as the font metrics have it

// Short and the same in every locale. Seven digits hold what a 32-bit coordinate holds.
std::string Number(f64 value) {
  constexpr int digits = 7;
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, digits).ptr;
  return {text.data(), end};
}

std::string Attribute(std::string_view name, f64 value) {
  return " " + std::string(name) + "=\"" + Number(value) + '"';
}

std::string Attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + std::string(value) + '"';
}

// The blue-green-red word as SVG writes colours.
std::string ColorText(Color color) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text = "#";
  for (const unsigned shift : {4U, 0U, 12U, 8U, 20U, 16U}) text += digits[color >> shift & 0xF];
  return text;
}

// A length or place of the user scale in pixels of the file.
f64 Pixels(f64 units) { return units / SvgCanvas::unitsPerPixel; }
f64 Pixels(f32 units) { return Pixels(static_cast<f64>(units)); }

bool IsFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

std::string FontFamily(const std::string& name) {
  const bool fixed = name.find("Courier") != std::string::npos || name.find("Mono") != std::string::npos;
  const std::string substitutes =
      fixed ? "'Courier New', 'Liberation Mono', monospace" : "Arial, 'Liberation Sans', Helvetica, sans-serif";
  return "'" + XmlEscaped(name) + "', " + substitutes;
}

std::string EscapedCharacter(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return static_cast<unsigned char>(character) < 0x20 ? std::string() : std::string(1, character);
  }
}

}  // namespace

std::string XmlEscaped(std::string_view text) {
  constexpr std::string_view replacement = "\xEF\xBF\xBD";
  std::string escaped;
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    const std::string_view sequence = text.substr(0, std::max<std::size_t>(length, 1));
    // U+FFFE and U+FFFF are well-formed UTF-8 and yet no characters of XML.
    if (length == 0 || sequence == "\xEF\xBF\xBE" || sequence == "\xEF\xBF\xBF") {
      escaped += replacement;
    } else {
      escaped += length == 1 ? EscapedCharacter(sequence.front()) : std::string(sequence);
    }
    text.remove_prefix(sequence.size());
  }
  return escaped;
}

std::string SvgCanvas::Text() const {
  const std::string size = Attribute("width", XPixels(ScaleWidth)) + Attribute("height", Pixels(ScaleHeight));
  const std::string corner = Number(XPixels(ScaleLeft)) + ' ' + Number(Pixels(ScaleTop));
  const std::string extent = Number(XPixels(ScaleWidth)) + ' ' + Number(Pixels(ScaleHeight));
  std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                     "\n"
                     R"(<svg xmlns="http://www.w3.org/2000/svg" version="1.1")";
  text += size + Attribute("viewBox", corner + ' ' + extent) + ">\n";
  text += "<rect" + Attribute("x", XPixels(ScaleLeft)) + Attribute("y", Pixels(ScaleTop)) + size +
          Attribute("fill", ColorText(BackColor)) + "/>\n";
  return text + body_ + "</svg>\n";
}

f64 SvgCanvas::XPixels(f32 units) const { return Pixels(units) * static_cast<f64>(ScaleShape.xUnit); }

std::string SvgCanvas::ModeAttribute() const {
  // Difference is the blending that a second drawing in the same place takes back, as exclusive or does.
  return DrawMode == PenMode::ExclusiveOr ? Attribute("style", "mix-blend-mode:difference") : std::string();
}

std::string SvgCanvas::Stroke(Color color) const {
  constexpr f64 thinnest = 0.5;
  std::string text = Attribute("stroke", ColorText(color)) +
                     Attribute("stroke-width", DrawWidth > 0 ? static_cast<f64>(DrawWidth) : thinnest) +
                     Attribute("vector-effect", "non-scaling-stroke");
  if (DrawStyle == LineStyle::Dash || DrawStyle == LineStyle::DashOnPaper) text += Attribute("stroke-dasharray", "6 3");
  if (DrawStyle == LineStyle::Dot) text += Attribute("stroke-dasharray", "1.5 3");
  if (DrawStyle == LineStyle::Solid) {
    text += Attribute("stroke-linecap", "round") + Attribute("stroke-linejoin", "round");
  }
  return text + ModeAttribute();
}

// The trace in runs of points that have a place.
void SvgCanvas::DrawPolyline(std::span<const Point> points, Color color) {
  auto from = points.begin();
  while (from != points.end()) {
    from = std::find_if(from, points.end(), IsFinite);
    const auto to = std::find_if_not(from, points.end(), IsFinite);
    StrokeRun({from, to}, color);
    from = to;
  }
}

void SvgCanvas::StrokeRun(std::span<const Point> points, Color color) {
  if (points.size() < 2) return;
  if (points.size() == 2) {
    body_ += "<line" + Attribute("x1", XPixels(points[0].x)) + Attribute("y1", Pixels(points[0].y)) +
             Attribute("x2", XPixels(points[1].x)) + Attribute("y2", Pixels(points[1].y)) + Stroke(color) + "/>\n";
    return;
  }
  std::string places;
  for (const Point p : points) {
    if (!places.empty()) places += ' ';
    places += Number(XPixels(p.x)) + ',' + Number(Pixels(p.y));
  }
  body_ += "<polyline" + Attribute("points", places) + Attribute("fill", "none") + Stroke(color) + "/>\n";
}

void SvgCanvas::DrawRectangle(Point from, Point to, Color color, bool filled) {
  if (!IsFinite(from) || !IsFinite(to)) return;
  const f64 left = XPixels(std::min(from.x, to.x));
  const f64 top = Pixels(std::min(from.y, to.y));
  body_ += "<rect" + Attribute("x", left) + Attribute("y", top) +
           Attribute("width", XPixels(std::max(from.x, to.x)) - left) +
           Attribute("height", Pixels(std::max(from.y, to.y)) - top) +
           Attribute("fill", filled ? ColorText(color) : "none") + Stroke(color) + "/>\n";
}

void SvgCanvas::DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) {
  const f64 halfWidth = std::fabs(XPixels(r));
  const f64 halfHeight = std::fabs(Pixels(r) * static_cast<f64>(aspect));
  if (!IsFinite(center) || !std::isfinite(halfWidth) || !std::isfinite(halfHeight)) return;
  const f64 x = XPixels(center.x);
  const f64 y = Pixels(center.y);
  constexpr f64 turn = 2 * std::numbers::pi;
  f64 sweep = static_cast<f64>(stop) - static_cast<f64>(start);
  if (sweep < 0) sweep += turn;
  constexpr f64 closed = 1e-5;  // an arc that ends where it begins would vanish
  if (start == stop || sweep > turn - closed) {
    body_ += "<ellipse" + Attribute("cx", x) + Attribute("cy", y) + Attribute("rx", halfWidth) +
             Attribute("ry", halfHeight) + Attribute("fill", "none") + Stroke(color) + "/>\n";
    return;
  }
  const auto at = [&](f64 angle) {
    return Number(x + halfWidth * std::cos(angle)) + ' ' + Number(y - halfHeight * std::sin(angle));
  };
  const f64 from = static_cast<f64>(start);
  const std::string radii = Number(halfWidth) + ' ' + Number(halfHeight);
  // The second flag 0 is anticlockwise where y points down.
  body_ += "<path" +
           Attribute("d", "M " + at(from) + " A " + radii + " 0 " + (sweep > turn / 2 ? "1" : "0") + " 0 " +
                              at(from + sweep)) +
           Attribute("fill", "none") + Stroke(color) + "/>\n";
}

// A line of no length, whose caps are the point: square for a single pixel, round for a wider one.
void SvgCanvas::DrawPoint(Point at, Color color) {
  if (!IsFinite(at)) return;
  body_ += "<path" + Attribute("d", "M " + Number(XPixels(at.x)) + ' ' + Number(Pixels(at.y)) + " h0") +
           Attribute("stroke", ColorText(color)) + Attribute("stroke-width", std::max<f64>(DrawWidth, 1)) +
           Attribute("stroke-linecap", DrawWidth <= 1 ? "square" : "round") +
           Attribute("vector-effect", "non-scaling-stroke") + ModeAttribute() + "/>\n";
}

f64 SvgCanvas::EmHeight() const { return Pixels(static_cast<f64>(FontSize) * twipsPerPoint); }

void SvgCanvas::DrawText(Point at, std::string_view text) {
  const f64 em = EmHeight();
  if (!IsFinite(at) || !std::isfinite(em)) return;
  f64 top = Pixels(at.y);
  while (true) {
    const std::size_t end = text.find('\n');
    DrawTextLine(XPixels(at.x), top + ascent * em, text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
    top += linePitch * em;
  }
}

void SvgCanvas::DrawTextLine(f64 x, f64 baseline, std::string_view line) {
  const f64 width = XPixels(TextWidth(line));
  if (line.find_first_not_of(" \r") == std::string_view::npos) return;
  body_ += "<text" + Attribute("x", x) + Attribute("y", baseline) + Attribute("font-family", FontFamily(FontName)) +
           Attribute("font-size", EmHeight());
  if (FontBold) body_ += Attribute("font-weight", "bold");
  body_ += Attribute("fill", ColorText(ForeColor)) + Attribute("textLength", width) +
           Attribute("lengthAdjust", "spacingAndGlyphs") + Attribute("xml:space", "preserve") + '>' + XmlEscaped(line) +
           "</text>\n";
}

void SvgCanvas::DrawClear() { body_.clear(); }

std::string SvgText(const Picture& picture) {
  SvgCanvas canvas;
  picture.Replay(canvas);
  return canvas.Text();
}

}  // namespace quilm
