// How wide and high a text is. Every canvas measures through this one interface, so that a picture is laid out alike
// in the window, on paper and in a file.
#pragma once

#include <string>
#include <string_view>

#include "core/Types.h"

namespace quilm {

struct Font {
  std::string name = "Arial";
  f32 size = 8;  // points
  bool bold = false;
  bool operator==(const Font&) const = default;
};

class FontMetrics {
 public:
  virtual ~FontMetrics() = default;
  virtual f64 WidthInPoints(std::string_view text, const Font& font) const = 0;   // of the widest line
  virtual f64 HeightInPoints(std::string_view text, const Font& font) const = 0;  // of all lines
};

// The advance widths of the Helvetica family (Adobe Core 14 metrics), which Arial and Liberation Sans share, and of a
// fixed-pitch face (600/1000 em) for font names that contain "Courier" or "Mono". Line pitch is 1.15 em.
const FontMetrics& StandardMetrics();

}  // namespace quilm
