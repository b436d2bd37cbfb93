#include "shell/SvgReader.h"

#include <algorithm>
#include <cctype>
#include <numbers>
#include <sstream>
#include <stdexcept>

namespace quilm {

namespace {

class Reader {
 public:
  explicit Reader(const std::string& text) : text_(text) {}

  std::vector<SvgElement> Read() {
    Expect("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    SkipBlanks();
    RequireCharacters();
    ReadElement();
    SkipBlanks();
    if (at_ != text_.size()) Fail("text after the root");
    return std::move(elements_);
  }

 private:
  [[noreturn]] void Fail(const std::string& why) const {
    throw std::runtime_error(why + " at byte " + std::to_string(at_));
  }

  char Peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }

  void Expect(const std::string& wanted) {
    if (text_.compare(at_, wanted.size(), wanted) != 0) Fail("no " + wanted);
    at_ += wanted.size();
  }

  void SkipBlanks() {
    while (Peek() == ' ' || Peek() == '\n') ++at_;
  }

  // Every byte sequence is a character that XML 1.0 allows (section 2.2). Decoded bit by bit.
  void RequireCharacters() {
    const std::size_t start = at_;
    while (at_ < text_.size()) RequireCharacter();
    at_ = start;
  }

  void RequireCharacter() {
    const unsigned lead = static_cast<unsigned char>(text_[at_]);
    const int more = lead < 0x80 ? 0 : lead >> 5 == 6 ? 1 : lead >> 4 == 14 ? 2 : lead >> 3 == 30 ? 3 : -1;
    if (more < 0) Fail("no UTF-8");
    unsigned long code = more == 0 ? lead : lead & (0x3FU >> more);
    for (int i = 0; i < more; ++i) {
      ++at_;
      if (at_ == text_.size() || (static_cast<unsigned char>(text_[at_]) & 0xC0) != 0x80) Fail("no UTF-8");
      code = code << 6 | (static_cast<unsigned char>(text_[at_]) & 0x3FU);
    }
    ++at_;
    const unsigned long least[] = {0, 0x80, 0x800, 0x10000};
    const bool allowed = code == 9 || code == 10 || code == 13 || (code >= 0x20 && code <= 0xD7FF) ||
                         (code >= 0xE000 && code <= 0xFFFD) || (code >= 0x10000 && code <= 0x10FFFF);
    if (code < least[more] || !allowed) Fail("a character that XML does not allow");
  }

  std::string Name() {
    const std::size_t start = at_;
    while (std::isalnum(static_cast<unsigned char>(Peek())) != 0 || Peek() == '-' || Peek() == ':') ++at_;
    if (start == at_) Fail("no name");
    return text_.substr(start, at_ - start);
  }

  // Text up to `end`, which is not taken.
  std::string Characters(char end) {
    std::string result;
    while (Peek() != end) {
      if (at_ >= text_.size() || Peek() == '<') Fail("a bare <");
      result += Peek() == '&' ? Reference() : std::string(1, text_[at_++]);
    }
    return result;
  }

  std::string Reference() {
    for (const auto& [written, meant] : std::map<std::string, std::string>{
             {"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#39;", "'"}}) {
      if (text_.compare(at_, written.size(), written) != 0) continue;
      at_ += written.size();
      return meant;
    }
    Fail("an unknown reference");
  }

  void ReadAttribute(SvgElement& element) {
    const std::string name = Name();
    Expect("=\"");
    if (!element.attributes.emplace(name, Characters('"')).second) Fail(name + " given twice");
    Expect("\"");
  }

  void ReadElement() {
    Expect("<");
    const std::size_t index = elements_.size();
    SvgElement element{Name(), {}, {}};
    const std::string name = element.name;
    while (Peek() == ' ') {
      ++at_;
      ReadAttribute(element);
    }
    elements_.push_back(std::move(element));
    if (Peek() == '/') {
      Expect("/>");
      return;
    }
    Expect(">");
    while (true) {
      const std::string content = Characters('<');
      elements_[index].content += content;
      if (text_.compare(at_, 2, "</") == 0) break;
      ReadElement();
    }
    Expect("</" + name + ">");
  }

  const std::string& text_;
  std::size_t at_ = 0;
  std::vector<SvgElement> elements_;
};

Color ColorOf(const std::string& text) {
  if (text.size() != 7 || text[0] != '#') throw std::runtime_error("no colour: " + text);
  const unsigned long word = std::stoul(text.substr(1), nullptr, 16);
  return static_cast<Color>((word & 0xFF) << 16 | (word & 0xFF00) | word >> 16);
}

std::vector<InkPoint> PointsOf(std::string text) {
  std::replace(text.begin(), text.end(), ',', ' ');
  std::istringstream in(text);
  std::vector<InkPoint> points;
  for (InkPoint p; in >> p.x >> p.y;) points.push_back(p);
  return points;
}

// From end points to centre and angles; rx, ry are large enough and the axes upright.
std::vector<InkPoint> ArcPoints(InkPoint from, InkPoint to, f64 rx, f64 ry, bool large, bool positive) {
  const f64 x = (from.x - to.x) / 2;
  const f64 y = (from.y - to.y) / 2;
  const f64 below = rx * rx * y * y + ry * ry * x * x;
  const f64 root = std::sqrt(std::max(0.0, (rx * rx * ry * ry - below) / below)) * (large == positive ? -1 : 1);
  const InkPoint shifted{root * rx * y / ry, -root * ry * x / rx};
  const InkPoint center{shifted.x + (from.x + to.x) / 2, shifted.y + (from.y + to.y) / 2};
  const f64 start = std::atan2((y - shifted.y) / ry, (x - shifted.x) / rx);
  f64 sweep = std::atan2((-y - shifted.y) / ry, (-x - shifted.x) / rx) - start;
  if (positive && sweep < 0) sweep += 2 * std::numbers::pi;
  if (!positive && sweep > 0) sweep -= 2 * std::numbers::pi;
  return EllipsePoints(center, rx, ry, -start, -sweep);  // there, angles grow with y downward
}

std::vector<InkPoint> PathPoints(const std::string& path) {
  std::istringstream in(path);
  std::string move;
  InkPoint from;
  std::string next;
  in >> move >> from.x >> from.y >> next;
  if (next == "h0") return {from, from};
  f64 rx = 0;
  f64 ry = 0;
  f64 turned = 0;
  int large = 0;
  int positive = 0;
  InkPoint to;
  in >> rx >> ry >> turned >> large >> positive >> to.x >> to.y;
  if (!in || move != "M" || next != "A") throw std::runtime_error("no arc: " + path);
  return ArcPoints(from, to, rx, ry, large != 0, positive != 0);
}

void InkRectangle(const SvgElement& element, Ink& ink) {
  const f64 x = element.Number("x");
  const f64 y = element.Number("y");
  const Box box{x, y, x + element.Number("width"), y + element.Number("height")};
  if (element.attributes.at("fill") != "none") ink.Fill(box, ColorOf(element.attributes.at("fill")));
  if (!element.attributes.contains("stroke")) return;
  ink.Stroke(
      {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}, {box.left, box.top}},
      ColorOf(element.attributes.at("stroke")));
}

// Capitals reach 0.716 em above the baseline (Adobe's metrics of Helvetica: CapHeight 718 and 716 for Arial).
void InkText(const SvgElement& element, Ink& ink) {
  const f64 x = element.Number("x");
  const f64 baseline = element.Number("y");
  const f64 capitals = 0.716 * element.Number("font-size");
  ink.Fill({x, baseline - capitals, x + element.Number("textLength"), baseline},
           ColorOf(element.attributes.at("fill")));
}

}  // namespace

f64 SvgElement::Number(const std::string& attribute) const {
  std::istringstream in(attributes.at(attribute));
  in.imbue(std::locale::classic());
  f64 value = 0;
  if (!(in >> value) || !in.eof()) throw std::runtime_error(attribute + " is no number");
  return value;
}

std::vector<SvgElement> ReadSvg(const std::string& text) { return Reader(text).Read(); }

Ink InkOf(const std::vector<SvgElement>& elements) {
  Ink ink;
  // The root and the paper come first.
  for (std::size_t i = 2; i < elements.size(); ++i) {
    const SvgElement& element = elements[i];
    const auto stroke = [&] { return ColorOf(element.attributes.at("stroke")); };
    if (element.name == "line") {
      ink.Stroke({{element.Number("x1"), element.Number("y1")}, {element.Number("x2"), element.Number("y2")}},
                 stroke());
    } else if (element.name == "polyline") {
      ink.Stroke(PointsOf(element.attributes.at("points")), stroke());
    } else if (element.name == "rect") {
      InkRectangle(element, ink);
    } else if (element.name == "ellipse") {
      ink.Stroke(EllipsePoints({element.Number("cx"), element.Number("cy")}, element.Number("rx"), element.Number("ry"),
                               0, 2 * std::numbers::pi),
                 stroke());
    } else if (element.name == "path") {
      ink.Stroke(PathPoints(element.attributes.at("d")), stroke());
    } else if (element.name == "text") {
      InkText(element, ink);
    } else {
      throw std::runtime_error("unexpected element " + element.name);
    }
  }
  return ink;
}

}  // namespace quilm
