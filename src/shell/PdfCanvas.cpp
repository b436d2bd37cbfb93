#include "shell/PdfCanvas.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>
#include <vector>

#include "shell/Picture.h"
#include "shell/Utf8.h"

namespace quilm {

namespace {

constexpr f64 pointsPerPixel = 0.75;  // a pen counts 1/96 inch
constexpr f64 ascent = 0.92;          // baseline below the top of a line, in ems
constexpr f64 linePitch = 1.15;       // of an em, as the font metrics have it

// The fonts of every document, in the order of their objects.
constexpr std::array<const char*, 5> fonts = {"Helvetica", "Helvetica-Bold", "Courier", "Courier-Bold", "Symbol"};
constexpr std::size_t symbolFont = 4;

// A thousandth of a point is finer than any printer.
std::string Number(f64 value) {
  constexpr int decimals = 3;
  std::array<char, 64> text{};
  const f64 held = std::clamp(value, -1e6, 1e6);
  auto end = std::to_chars(text.data(), text.data() + text.size(), held, std::chars_format::fixed, decimals).ptr;
  while (end[-1] == '0') --end;
  if (end[-1] == '.') --end;
  return {text.data(), end};
}

// A blue-green-red word as three parts of 1.
std::string ColorText(Color color) {
  std::string text;
  for (const unsigned shift : {0U, 8U, 16U}) text += Number((color >> shift & 0xFF) / 255.0) + ' ';
  return text;
}

bool IsFinite(Point p) { return std::isfinite(p.x) && std::isfinite(p.y); }

std::size_t FontOf(const Font& font) {
  const bool fixed = font.name.find("Courier") != std::string::npos || font.name.find("Mono") != std::string::npos;
  return (fixed ? 2U : 0U) + (font.bold ? 1U : 0U);
}

// The code of a character in a font.
struct Glyph {
  bool symbol = false;
  char code = '?';
};

// Greek letters stand in the Symbol font at the places of Latin ones (ISO 32000-1, table D.5).
char GreekPlace(char32_t character) {
  constexpr std::string_view small = "abgdezhqiklmnxoprVstufcyw";  // alpha to omega, with the final sigma
  constexpr std::string_view large = "ABGDEZHQIKLMNXOPR STUFCYW";
  constexpr char32_t alpha = 0x3B1;
  constexpr char32_t Alpha = 0x391;
  if (character >= alpha && character < alpha + small.size()) return small[character - alpha];
  if (character >= Alpha && character < Alpha + large.size()) return large[character - Alpha];
  return character == 0x2126 ? 'W' : ' ';
}

// The places of Windows' own between 128 and 159 (ISO 32000-1, table D.2).
char WindowsPlace(char32_t character) {
  struct Row {
    char32_t character;
    unsigned char code;
  };
  constexpr std::array<Row, 12> rows = {{{0x20AC, 0x80},
                                         {0x2026, 0x85},
                                         {0x2030, 0x89},
                                         {0x2018, 0x91},
                                         {0x2019, 0x92},
                                         {0x201C, 0x93},
                                         {0x201D, 0x94},
                                         {0x2022, 0x95},
                                         {0x2013, 0x96},
                                         {0x2014, 0x97},
                                         {0x2122, 0x99},
                                         {0x153, 0x9C}}};
  const auto* at =
      std::find_if(rows.begin(), rows.end(), [character](const Row& r) { return r.character == character; });
  return at == rows.end() ? '?' : static_cast<char>(at->code);
}

Glyph GlyphOf(char32_t character) {
  constexpr char32_t micro = 0xB5;
  if (character == 0x3BC) character = micro;  // the letter mu, which looks like the sign
  const bool latin = (character >= 0x20 && character < 0x7F) || (character >= 0xA0 && character <= 0xFF);
  if (latin) return {false, static_cast<char>(static_cast<unsigned char>(character))};
  const char greek = GreekPlace(character);
  if (greek != ' ') return {true, greek};
  return {false, WindowsPlace(character)};
}

std::string Escaped(char code) {
  const auto byte = static_cast<unsigned char>(code);
  if (code == '(' || code == ')' || code == '\\') return {'\\', code};
  if (byte < 0x7F) return {code};
  std::string octal = "\\";
  for (const unsigned shift : {6U, 3U, 0U}) octal += static_cast<char>('0' + (byte >> shift & 7U));
  return octal;
}

}  // namespace

PdfCanvas::Place PdfCanvas::Map(Point p) const {
  return {static_cast<f64>(p.x - ScaleLeft) * PointsPerX(),
          paper_.height - static_cast<f64>(p.y - ScaleTop) * PointsPerY()};
}

f64 PdfCanvas::PenWidth() const {
  constexpr f64 thinnest = 0.5;
  return (DrawWidth > 0 ? static_cast<f64>(DrawWidth) : thinnest) * pointsPerPixel;
}

void PdfCanvas::SetPen(Color color) {
  content_ += ColorText(color) + "RG " + Number(PenWidth()) + " w ";
  if (DrawStyle == LineStyle::Solid) {
    content_ += "[] 0 d 1 J 1 j\n";
  } else {
    content_ += std::string(DrawStyle == LineStyle::Dot ? "[1.125 2.25]" : "[4.5 2.25]") + " 0 d 0 J 1 j\n";
  }
}

void PdfCanvas::Stroke(std::span<const Place> places) {
  if (places.size() < 2) return;
  const char* op = " m\n";
  for (const Place& p : places) {
    content_ += Number(p.x) + ' ' + Number(p.y) + op;
    op = " l\n";
  }
  content_ += "S\n";
}

// The trace in runs of points that have a place.
void PdfCanvas::DrawPolyline(std::span<const Point> points, Color color) {
  if (DrawMode == PenMode::ExclusiveOr) return;
  SetPen(color);
  std::vector<Place> run;
  for (const Point p : points) {
    if (IsFinite(p)) {
      run.push_back(Map(p));
    } else {
      Stroke(run);
      run.clear();
    }
  }
  Stroke(run);
}

// As on the screen, the pen goes round a filled box too.
void PdfCanvas::DrawRectangle(Point from, Point to, Color color, bool filled) {
  if (DrawMode == PenMode::ExclusiveOr || !IsFinite(from) || !IsFinite(to)) return;
  const Place a = Map(from);
  const Place b = Map(to);
  SetPen(color);
  if (filled) content_ += ColorText(color) + "rg ";
  content_ += "0 j " + Number(std::min(a.x, b.x)) + ' ' + Number(std::min(a.y, b.y)) + ' ' +
              Number(std::fabs(b.x - a.x)) + ' ' + Number(std::fabs(b.y - a.y)) + (filled ? " re B\n" : " re S\n");
}

// In pieces of a quarter turn at most, each a cubic curve whose control points lie 4/3 tan(angle / 4) of a radius along
// the tangents.
void PdfCanvas::DrawCircle(Point center, f32 r, Color color, f32 start, f32 stop, f32 aspect) {
  const f64 halfWidth = static_cast<f64>(r) * PointsPerX();
  const f64 halfHeight = static_cast<f64>(r) * static_cast<f64>(aspect) * PointsPerY();
  if (DrawMode == PenMode::ExclusiveOr || !IsFinite(center) || !std::isfinite(halfWidth + halfHeight)) return;
  constexpr f64 turn = 2 * std::numbers::pi;
  f64 sweep = static_cast<f64>(stop) - static_cast<f64>(start);
  if (sweep < 0) sweep += turn;
  if (start == stop) sweep = turn;
  const int pieces = std::max(static_cast<int>(std::ceil(sweep / (turn / 4) - 1e-6)), 1);
  const f64 step = sweep / pieces;
  const f64 reach = 4.0 / 3 * std::tan(step / 4);
  const Place middle = Map(center);
  const auto at = [&](f64 x, f64 y) {
    return Number(middle.x + halfWidth * x) + ' ' + Number(middle.y + halfHeight * y);
  };
  SetPen(color);
  f64 angle = start;
  content_ += at(std::cos(angle), std::sin(angle)) + " m\n";
  for (int piece = 0; piece < pieces; ++piece) {
    const f64 next = angle + step;
    content_ += at(std::cos(angle) - reach * std::sin(angle), std::sin(angle) + reach * std::cos(angle)) + ' ' +
                at(std::cos(next) + reach * std::sin(next), std::sin(next) - reach * std::cos(next)) + ' ' +
                at(std::cos(next), std::sin(next)) + " c\n";
    angle = next;
  }
  content_ += "S\n";
}

// A single pixel is square, a wider point round.
void PdfCanvas::DrawPoint(Point at, Color color) {
  if (DrawMode == PenMode::ExclusiveOr || !IsFinite(at)) return;
  const Place p = Map(at);
  if (DrawWidth > 1) {
    const LineStyle style = DrawStyle;
    DrawStyle = LineStyle::Solid;
    SetPen(color);
    DrawStyle = style;
    Stroke(std::array{p, p});
    return;
  }
  const f64 width = PenWidth();
  content_ += ColorText(color) + "rg " + Number(p.x - width / 2) + ' ' + Number(p.y - width / 2) + ' ' + Number(width) +
              ' ' + Number(width) + " re f\n";
}

void PdfCanvas::DrawText(Point at, std::string_view text) {
  const f64 size = static_cast<f64>(FontSize) * twipsPerPoint * PointsPerY();
  if (!IsFinite(at) || !std::isfinite(size)) return;
  Place baseline = Map(at);
  baseline.y -= ascent * size;
  while (true) {
    const std::size_t end = text.find('\n');
    DrawTextLine(baseline, size, text.substr(0, end));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
    baseline.y -= linePitch * size;
  }
}

void PdfCanvas::DrawTextLine(Place baseline, f64 size, std::string_view line) {
  if (line.find_first_not_of(" \r") == std::string_view::npos) return;
  const std::size_t font = FontOf(CurrentFont());
  const auto choose = [&](std::size_t number) {
    content_ += "/F" + std::to_string(number) + ' ' + Number(size) + " Tf ";
  };
  content_ += "BT " + ColorText(ForeColor) + "rg " + Number(baseline.x) + ' ' + Number(baseline.y) + " Td ";
  choose(font);
  bool symbol = false;
  content_ += '(';
  while (!line.empty()) {
    const char32_t character = TakeCharacter(line);
    if (character < 0x20) continue;
    const Glyph glyph = GlyphOf(character);
    if (glyph.symbol != symbol) {
      content_ += ") Tj ";
      choose(glyph.symbol ? symbolFont : font);
      content_ += '(';
      symbol = glyph.symbol;
    }
    content_ += Escaped(glyph.code);
  }
  content_ += ") Tj ET\n";
}

namespace {

// The objects of a file by their numbers from 1 (ISO 32000-1, 7.5).
class PdfFile {
 public:
  void Add(const std::string& object) {
    offsets_.push_back(text_.size());
    text_ += std::to_string(offsets_.size()) + " 0 obj\n" + object + "\nendobj\n";
  }
  void AddStream(const std::string& content) {
    Add("<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "\nendstream");
  }
  // With the first object as its catalogue and the second as what tells of it.
  std::string Finish() const {
    const std::string count = std::to_string(offsets_.size() + 1);
    std::string text = text_ + "xref\n0 " + count + "\n0000000000 65535 f \n";
    for (const std::size_t offset : offsets_) {
      constexpr std::size_t digits = 10;
      const std::string place = std::to_string(offset);
      text += std::string(digits - place.size(), '0') + place + " 00000 n \n";
    }
    return text + "trailer\n<< /Size " + count + " /Root 1 0 R /Info 2 0 R >>\nstartxref\n" +
           std::to_string(text_.size()) + "\n%%EOF\n";
  }

 private:
  std::string text_ = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";  // the second line tells that the file is no plain text
  std::vector<std::size_t> offsets_;
};

std::string Reference(std::size_t number) { return std::to_string(number) + " 0 R"; }

}  // namespace

std::string PdfText(std::span<const Picture> sheets, const PaperSize& paper) {
  constexpr std::size_t pageTree = 3;
  constexpr std::size_t firstFont = 4;
  constexpr std::size_t firstPage = firstFont + fonts.size();
  std::string kids;
  std::string resources;
  for (std::size_t i = 0; i < sheets.size(); ++i) kids += Reference(firstPage + 2 * i) + ' ';
  for (std::size_t i = 0; i < fonts.size(); ++i)
    resources += "/F" + std::to_string(i) + ' ' + Reference(firstFont + i) + ' ';
  PdfFile file;
  file.Add("<< /Type /Catalog /Pages " + Reference(pageTree) + " >>");
  file.Add("<< /Producer (Quilm) >>");
  file.Add("<< /Type /Pages /Count " + std::to_string(sheets.size()) + " /Kids [ " + kids + "] >>");
  for (std::size_t i = 0; i < fonts.size(); ++i) {
    file.Add(std::string("<< /Type /Font /Subtype /Type1 /BaseFont /") + fonts[i] +
             (i == symbolFont ? " >>" : " /Encoding /WinAnsiEncoding >>"));
  }
  std::size_t number = firstPage;
  for (const Picture& sheet : sheets) {
    PdfCanvas canvas(paper);
    sheet.Replay(canvas);
    file.Add("<< /Type /Page /Parent " + Reference(pageTree) + " /MediaBox [ 0 0 " + Number(paper.width) + ' ' +
             Number(paper.height) + " ] /Resources << /Font << " + resources + ">> >> /Contents " +
             Reference(number + 1) + " >>");
    file.AddStream(canvas.Content());
    number += 2;
  }
  return file.Finish();
}

std::string PdfText(const Picture& picture) {
  const Scale scale = picture.CurrentScale();
  return PdfText({&picture, 1}, {static_cast<f64>(scale.NaturalWidth()) / twipsPerPoint,
                                 static_cast<f64>(scale.NaturalHeight()) / twipsPerPoint});
}

}  // namespace quilm
