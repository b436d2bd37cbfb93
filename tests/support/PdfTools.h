// What an independent reader, poppler's, finds in a PDF file.
#pragma once

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "support/ProgramOutput.h"

namespace quilm {

// A line of pdfinfo without its heading: "Pages", "Page size".
inline std::string PdfInfo(const std::string& path, const std::string& heading) {
  std::istringstream all(OutputOf("pdfinfo '" + path + "' 2>&1"));
  for (std::string line; std::getline(all, line);) {
    if (!line.starts_with(heading) || line[heading.size()] != ':') continue;
    line.erase(0, line.find_first_not_of(' ', heading.size() + 1));
    return line;
  }
  return {};
}

// The texts of a page, 0 for all, in reading order.
inline std::string PdfWords(const std::string& path, int page = 0) {
  const std::string only = page == 0 ? "" : " -f " + std::to_string(page) + " -l " + std::to_string(page);
  return OutputOf("pdftotext -layout" + only + " '" + path + "' - 2>&1");
}

// A file in the folder for temporary ones with this text, gone at the end.
class PdfFileOf {
 public:
  explicit PdfFileOf(const std::string& text) {
    std::string pattern = "/tmp/quilm-pdf-XXXXXX";
    if (mkdtemp(pattern.data()) != nullptr) folder_ = pattern;
    std::ofstream(Path(), std::ios::binary) << text;
  }
  ~PdfFileOf() {
    std::remove(Path().c_str());
    std::remove(folder_.c_str());
  }
  PdfFileOf(const PdfFileOf&) = delete;
  PdfFileOf& operator=(const PdfFileOf&) = delete;
  std::string Path() const { return folder_ + "/sheet.pdf"; }

  // The page as an image of one grey byte a pixel, at 72 pixels to the inch: a pixel a point.
  std::string Pixels(int& width, int& height) const {
    const std::string image = OutputOf("pdftoppm -r 72 -gray '" + Path() + "'");
    int most = 0;
    int header = 0;
    if (std::sscanf(image.c_str(), "P5 %d %d %d%n", &width, &height, &most, &header) != 3) return {};
    return image.substr(static_cast<std::size_t>(header) + 1);
  }

 private:
  std::string folder_;
};

}  // namespace quilm
