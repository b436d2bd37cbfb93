// A small strict reader of the XML that the SVG canvas writes, and the ink of its shapes.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "shell/Ink.h"

namespace quilm {

struct SvgElement {
  std::string name;
  std::map<std::string, std::string> attributes;
  std::string content;  // with its character references resolved
  f64 Number(const std::string& attribute) const;
};

// The elements of a well-formed file in their order, the root first. Throws std::runtime_error with the place of the
// first fault: a missing declaration, unbalanced or misnested tags, an attribute given twice or without quotes, a bare
// "&" or "<", an unknown reference, a control character, bytes that are no UTF-8.
std::vector<SvgElement> ReadSvg(const std::string& text);

// What the shapes cover, by the rules of SVG 1.1 for lines, boxes, ellipses, elliptical arcs (appendix F.6.5) and
// texts.
Ink InkOf(const std::vector<SvgElement>& elements);

}  // namespace quilm
