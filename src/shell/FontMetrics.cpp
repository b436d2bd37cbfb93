#include "shell/FontMetrics.h"

#include <algorithm>
#include <array>

namespace quilm {

namespace {

// Advance widths of Helvetica and Helvetica Bold for the characters 32 to 126, in thousandths of an em.
// Source: Adobe Core 14 font metrics.
constexpr std::array<i16, 95> regularWidths = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};
constexpr std::array<i16, 95> boldWidths = {
    278, 333, 474, 556, 556, 889, 722, 238, 333, 333, 389, 584, 278, 333, 278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 333, 333, 584, 584, 584, 611, 975, 722, 722, 722, 722, 667,
    611, 778, 722, 278, 556, 722, 611, 833, 722, 778, 667, 778, 722, 667, 611, 722, 667, 944, 667,
    667, 611, 333, 278, 333, 584, 556, 333, 556, 611, 556, 611, 556, 333, 611, 611, 278, 278, 556,
    278, 889, 611, 611, 611, 611, 389, 556, 333, 611, 556, 778, 556, 556, 500, 389, 280, 389, 584};
constexpr i16 otherWidth = 556;
constexpr i16 fixedWidth = 600;
constexpr f64 linePitch = 1.15;

bool IsFixedPitch(const std::string& name) {
  return name.find("Courier") != std::string::npos || name.find("Mono") != std::string::npos;
}

class Standard : public FontMetrics {
 public:
  f64 WidthInPoints(std::string_view text, const Font& font) const override {
    const bool fixed = IsFixedPitch(font.name);
    const auto& widths = font.bold ? boldWidths : regularWidths;
    i32 widest = 0;
    i32 line = 0;
    for (const char character : text) {
      const auto code = static_cast<unsigned char>(character);
      if (character == '\n') line = 0;
      if (code < 32 || (code & 0xC0) == 0x80) continue;  // controls and UTF-8 continuation bytes have no width
      line += fixed ? fixedWidth : code <= 126 ? widths[static_cast<std::size_t>(code - 32)] : otherWidth;
      widest = std::max(widest, line);
    }
    return widest * static_cast<f64>(font.size) / 1000;
  }

  f64 HeightInPoints(std::string_view text, const Font& font) const override {
    const auto lines = 1 + std::count(text.begin(), text.end(), '\n');
    return static_cast<f64>(lines) * static_cast<f64>(font.size) * linePitch;
  }
};

}  // namespace

const FontMetrics& StandardMetrics() {
  static const Standard metrics;
  return metrics;
}

}  // namespace quilm
