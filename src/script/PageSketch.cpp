#include "script/PageSketch.h"

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "shell/Page.h"
#include "shell/PenScope.h"

namespace quilm {

namespace {

using Kind = Layout::Kind;

constexpr Color inkColor = 0x303030;
constexpr Color quietColor = 0x707070;
constexpr Color edgeColor = 0xA0A0A0;
constexpr Color faceColor = 0xF4F0F0;
constexpr Color pressedColor = 0xF0DCC8;

// In twips.
constexpr f32 fontSize = 9;
constexpr f32 lineHeight = 230;
constexpr f32 controlHeight = 340;
constexpr f32 gap = 120;
constexpr f32 margin = 90;
constexpr f32 boxWidth = 1500;
constexpr f32 spinWidth = 260;
constexpr f32 markWidth = 260;
constexpr f32 widestLine = 7600;
constexpr f32 listWidth = 3400;
constexpr f32 mostListRows = 12;
constexpr f32 signSize = 300;
constexpr f32 pictureWidth = 7200;
constexpr f32 cardWidth = 2700;
constexpr f32 cardHeight = 1150;
constexpr f32 thumbnailWidth = 800;
constexpr f32 thumbnailHeight = 560;

struct Size {
  f32 width = 0;
  f32 height = 0;
};

struct Box {
  f32 x = 0;
  f32 y = 0;
  f32 width = 0;
  f32 height = 0;
};

// Of a grid; the last one may not be full.
std::size_t RowsOf(const Layout& grid) {
  const auto columns = static_cast<std::size_t>(grid.columns);
  return (grid.items.size() + columns - 1) / columns;
}

class Sketch {
 public:
  explicit Sketch(Picture& canvas) : canvas_(canvas) {
    canvas_.FontName = "Arial";
    canvas_.FontSize = fontSize;
  }

  Size Measure(const Layout& node) const;
  void Draw(const Layout& node, const Box& box);

 private:
  static bool IsSeen(const Layout& node);
  static bool TakesWidth(const Layout& node);
  static bool TakesHeight(const Layout& node);
  std::vector<std::string> LinesOf(const std::string& text) const;
  Size TextSize(const std::string& text) const;
  Size SizeOf(const Control& control) const;
  static Size SizeOf(const PictureBox& box);
  Size MeasureAlong(const Layout& node, bool across) const;
  Size MeasureGrid(const Layout& node) const;
  std::vector<f32> FormColumns(const Layout& node) const;
  Size MeasureForm(const Layout& node) const;
  void DrawAlong(const Layout& node, const Box& box, bool across);
  void DrawGrid(const Layout& node, const Box& box);
  void DrawForm(const Layout& node, const Box& box);
  void DrawGroup(const Layout& node, const Box& box);
  void DrawWithin(const Layout& node, const Box& box);
  void DrawCard(const OptionButton& option, const Layout& node, const Box& box);
  void DrawControl(const Control& control, const Box& box);
  void DrawButton(const Button& button, const Box& box);
  void DrawList(const ListBox& list, const Box& box);
  void DrawPicture(const PictureBox& box, const Box& place);
  void Print(const std::string& text, f32 x, f32 y, Color color);
  void PrintMiddle(const std::string& text, const Box& box, Color color);
  void Fit(const Picture& picture, const Box& box);

  Picture& canvas_;
};

bool Sketch::IsSeen(const Layout& node) {
  if (node.kind == Kind::Space) return true;
  if (node.kind == Kind::Word) return node.control->Shown();
  if (node.keepsPlace) return true;
  if (node.control != nullptr) return node.control->Shown();
  return std::any_of(node.items.begin(), node.items.end(), IsSeen);
}

bool Sketch::TakesWidth(const Layout& node) {
  if (node.fills) return true;
  return std::any_of(node.items.begin(), node.items.end(), [&node](const Layout& item) {
    return item.kind == Kind::Space ? node.kind == Kind::Row : TakesWidth(item);
  });
}

bool Sketch::TakesHeight(const Layout& node) {
  if (node.fills) return true;
  return std::any_of(node.items.begin(), node.items.end(), [&node](const Layout& item) {
    return item.kind == Kind::Space ? node.kind == Kind::Column : TakesHeight(item);
  });
}

// The text in lines that are not too long to read.
std::vector<std::string> Sketch::LinesOf(const std::string& text) const {
  std::vector<std::string> lines;
  std::istringstream paragraphs(text);
  for (std::string paragraph; std::getline(paragraphs, paragraph);) {
    if (!paragraph.empty() && paragraph.back() == '\r') paragraph.pop_back();
    lines.emplace_back();
    std::istringstream words(paragraph);
    for (std::string word; words >> word;) {
      const std::string longer = lines.back().empty() ? word : lines.back() + " " + word;
      if (lines.back().empty() || canvas_.TextWidth(longer) <= widestLine) {
        lines.back() = longer;
      } else {
        lines.push_back(word);
      }
    }
  }
  return lines;
}

Size Sketch::TextSize(const std::string& text) const {
  Size size;
  for (const std::string& line : LinesOf(text)) {
    size.width = std::max(size.width, canvas_.TextWidth(line));
    size.height += lineHeight;
  }
  return size;
}

Size Sketch::SizeOf(const PictureBox& box) {
  const Scale scale = box.picture.CurrentScale();
  const f32 width = std::min(pictureWidth, scale.NaturalWidth());
  return {width, width * scale.NaturalHeight() / scale.NaturalWidth()};
}

Size Sketch::SizeOf(const Control& control) const {
  const f32 text = canvas_.TextWidth(control.caption);
  switch (control.kind) {
    case ControlKind::Button: {
      const auto& button = static_cast<const Button&>(control);
      if (button.role == ButtonRole::Thumbnail) return {thumbnailWidth, thumbnailHeight};
      const f32 sign = button.picture.Empty() ? 0 : signSize + margin;
      return {text + sign + 2 * gap, controlHeight};
    }
    case ControlKind::Option:
      return {markWidth + text + gap, lineHeight + margin};
    case ControlKind::Text:
      return {boxWidth, controlHeight};
    case ControlKind::Spin:
      return {spinWidth, controlHeight};
    case ControlKind::List: {
      const auto& list = static_cast<const ListBox&>(control);
      f32 width = listWidth;
      for (const std::string& item : list.items) width = std::max(width, canvas_.TextWidth(item) + 2 * margin);
      const f32 rows = std::clamp(static_cast<f32>(list.items.size()), 3.0F, mostListRows);
      return {width, rows * lineHeight + 2 * margin};
    }
    case ControlKind::Picture:
      return SizeOf(static_cast<const PictureBox&>(control));
    default:
      return TextSize(control.caption);
  }
}

Size Sketch::MeasureAlong(const Layout& node, bool across) const {
  Size size;
  for (const Layout& item : node.items) {
    if (!IsSeen(item)) continue;
    const Size one = Measure(item);
    f32& along = across ? size.width : size.height;
    f32& aside = across ? size.height : size.width;
    along += (along > 0 ? gap : 0) + (across ? one.width : one.height);
    aside = std::max(aside, across ? one.height : one.width);
  }
  return size;
}

Size Sketch::MeasureGrid(const Layout& node) const {
  Size cell;
  for (const Layout& item : node.items) {
    const Size one = Measure(item);
    cell = {std::max(cell.width, one.width), std::max(cell.height, one.height)};
  }
  const auto columns = static_cast<f32>(node.columns);
  const auto rows = static_cast<f32>(RowsOf(node));
  return {columns * (cell.width + gap) - gap, rows * (cell.height + gap) - gap};
}

std::vector<f32> Sketch::FormColumns(const Layout& node) const {
  std::vector<f32> columns(static_cast<std::size_t>(node.columns), 0);
  for (std::size_t i = 0; i < node.items.size(); ++i) {
    f32& column = columns[i % columns.size()];
    if (!node.items[i].across) column = std::max(column, Measure(node.items[i]).width);
  }
  return columns;
}

Size Sketch::MeasureForm(const Layout& node) const {
  Size size;
  for (const f32 column : FormColumns(node)) size.width += column + gap;
  const auto columns = static_cast<std::size_t>(node.columns);
  for (std::size_t row = 0; row < node.items.size(); row += columns) {
    f32 height = 0;
    for (std::size_t i = row; i < row + columns; ++i) height = std::max(height, Measure(node.items[i]).height);
    if (height > 0) size.height += height + margin;
  }
  return size;
}

Size Sketch::Measure(const Layout& node) const {
  if (!IsSeen(node)) return {};
  switch (node.kind) {
    case Kind::Control:
      return SizeOf(*node.control);
    case Kind::Row:
      return MeasureAlong(node, true);
    case Kind::Column:
      return MeasureAlong(node, false);
    case Kind::Grid:
      return MeasureGrid(node);
    case Kind::Form:
      return MeasureForm(node);
    case Kind::Group: {
      const Size content = Measure(node.items.front());
      const std::string& title = node.control != nullptr ? node.control->caption : node.title;
      return {std::max(content.width, canvas_.TextWidth(title)) + 2 * gap, content.height + lineHeight + 2 * gap};
    }
    case Kind::Within:
      if (node.control->kind == ControlKind::Option) return {cardWidth, cardHeight};
      return {std::max(Measure(node.items.front()).width, boxWidth / 2) + spinWidth + 2 * margin, controlHeight};
    case Kind::Word:
      return TextSize(node.title);
    case Kind::SidePlace:
      return Measure(node.items.front());
    case Kind::Space:
      break;
  }
  return {};
}

// What takes room shares the spare length alike.
void Sketch::DrawAlong(const Layout& node, const Box& box, bool across) {
  const auto takes = [across](const Layout& item) {
    return item.kind == Kind::Space || (across ? TakesWidth(item) : TakesHeight(item));
  };
  const Size natural = MeasureAlong(node, across);
  const f32 spare = std::max(0.0F, across ? box.width - natural.width : box.height - natural.height);
  const auto takers =
      std::count_if(node.items.begin(), node.items.end(), [&](const Layout& i) { return IsSeen(i) && takes(i); });
  f32 at = across ? box.x : box.y;
  for (const Layout& item : node.items) {
    if (!IsSeen(item)) continue;
    const Size one = Measure(item);
    const f32 more = takes(item) ? spare / static_cast<f32>(takers) : 0;
    const f32 length = (across ? one.width : one.height) + more;
    Draw(item, across ? Box{at, box.y, length, box.height} : Box{box.x, at, box.width, length});
    at += length + (one.width > 0 || one.height > 0 ? gap : 0);
  }
}

void Sketch::DrawGrid(const Layout& node, const Box& box) {
  const Size all = MeasureGrid(node);
  const auto columns = static_cast<std::size_t>(node.columns);
  const std::size_t rows = RowsOf(node);
  const f32 width = (std::max(box.width, all.width) + gap) / static_cast<f32>(columns);
  const f32 height = (all.height + gap) / static_cast<f32>(rows);
  for (std::size_t i = 0; i < node.items.size(); ++i) {
    const std::size_t row = i / columns;
    const Box cell{box.x + width * static_cast<f32>(i % columns), box.y + height * static_cast<f32>(row), width - gap,
                   height - gap};
    Draw(node.items[i], cell);
  }
}

// Labels end at their field.
void Sketch::DrawForm(const Layout& node, const Box& box) {
  const std::vector<f32> widths = FormColumns(node);
  f32 y = box.y;
  for (std::size_t row = 0; row < node.items.size(); row += widths.size()) {
    f32 height = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) height = std::max(height, Measure(node.items[row + i]).height);
    f32 x = box.x;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      const Layout& item = node.items[row + i];
      const Size one = Measure(item);
      const f32 left = i == 0 ? x + widths[0] - one.width : item.across ? box.x : x;
      Draw(item, {left, y, std::max(one.width, i == 0 ? 0 : widths[i]), height});
      x += widths[i] + gap;
    }
    if (height > 0) y += height + margin;
  }
}

void Sketch::DrawGroup(const Layout& node, const Box& box) {
  const std::string& title = node.control != nullptr ? node.control->caption : node.title;
  canvas_.Rectangle(box.x, box.y + lineHeight / 2, box.x + box.width, box.y + box.height, edgeColor, false);
  if (!title.empty()) {
    const f32 x = box.x + gap;
    canvas_.Rectangle(x - margin / 2, box.y, x + canvas_.TextWidth(title) + margin / 2, box.y + lineHeight, colorWhite,
                      true);
    Print(title, x, box.y, quietColor);
  }
  Draw(node.items.front(),
       {box.x + gap, box.y + lineHeight + gap / 2, box.width - 2 * gap, box.height - lineHeight - gap});
}

void Sketch::DrawWithin(const Layout& node, const Box& box) {
  if (const auto* option = dynamic_cast<const OptionButton*>(node.control)) return DrawCard(*option, node, box);
  const f32 width = std::min(box.width, Measure(node).width);
  canvas_.Rectangle(box.x, box.y, box.x + width, box.y + controlHeight, edgeColor, false);
  Draw(node.items.front(), {box.x + margin, box.y + margin / 2, width - spinWidth - margin, controlHeight});
  DrawControl(*node.control, {box.x + width - spinWidth, box.y, spinWidth, controlHeight});
}

void Sketch::DrawCard(const OptionButton& option, const Layout& node, const Box& box) {
  canvas_.Rectangle(box.x, box.y, box.x + box.width, box.y + box.height, edgeColor, false);
  DrawControl(option, {box.x + margin, box.y + margin / 2, box.width, lineHeight});
  Fit(option.picture,
      {box.x + margin, box.y + lineHeight + margin, box.width - 2 * margin, box.height - lineHeight - 2 * margin});
  if (IsSeen(node.items.front())) Print("?", box.x + box.width - 2 * margin, box.y + margin / 2, quietColor);
}

void Sketch::Draw(const Layout& node, const Box& box) {
  if (!IsSeen(node)) return;
  switch (node.kind) {
    case Kind::Control:
      if (node.control->Shown()) DrawControl(*node.control, box);
      break;
    case Kind::Row:
    case Kind::Column:
      DrawAlong(node, box, node.kind == Kind::Row);
      break;
    case Kind::Grid:
      DrawGrid(node, box);
      break;
    case Kind::Form:
      DrawForm(node, box);
      break;
    case Kind::Group:
      if (node.control == nullptr || node.control->Shown()) DrawGroup(node, box);
      break;
    case Kind::Within:
      if (node.control->Shown()) DrawWithin(node, box);
      break;
    case Kind::Word:
      Print(node.title, box.x, box.y + margin / 2, quietColor);
      break;
    case Kind::SidePlace:
      Draw(node.items.front(), box);
      break;
    case Kind::Space:
      break;
  }
}

void Sketch::DrawControl(const Control& control, const Box& box) {
  const Color ink = control.Active() ? inkColor : edgeColor;
  switch (control.kind) {
    case ControlKind::Button:
      DrawButton(static_cast<const Button&>(control), box);
      break;
    case ControlKind::Option: {
      constexpr f32 radius = 70;
      const Point middle{box.x + radius, box.y + lineHeight / 2};
      canvas_.Circle(middle.x, middle.y, radius, ink);
      if (static_cast<const OptionButton&>(control).Value()) canvas_.Circle(middle.x, middle.y, radius / 2, ink);
      Print(control.caption, box.x + markWidth, box.y, ink);
      break;
    }
    case ControlKind::Text:
      canvas_.Rectangle(box.x, box.y, box.x + std::max(boxWidth, std::min(box.width, 3 * boxWidth)),
                        box.y + controlHeight, edgeColor, false);
      Print(static_cast<const TextBox&>(control).text, box.x + margin, box.y + margin / 2, ink);
      break;
    case ControlKind::Spin: {
      const f32 middle = box.x + spinWidth / 2;
      canvas_.Line(box.x, box.y, box.x, box.y + controlHeight, edgeColor);
      for (const f32 tip : {0.18F, 0.82F}) {
        const f32 foot = tip < 0.5F ? 0.38F : 0.62F;
        const std::vector<Point> arrow{{middle - 60, box.y + foot * controlHeight},
                                       {middle, box.y + tip * controlHeight},
                                       {middle + 60, box.y + foot * controlHeight}};
        canvas_.Polyline(arrow, ink);
      }
      break;
    }
    case ControlKind::List:
      DrawList(static_cast<const ListBox&>(control), box);
      break;
    case ControlKind::Picture:
      DrawPicture(static_cast<const PictureBox&>(control), box);
      break;
    default: {
      f32 y = box.y + margin / 2;
      for (const std::string& line : LinesOf(control.caption)) {
        Print(line, box.x, y, ink);
        y += lineHeight;
      }
    }
  }
}

void Sketch::DrawButton(const Button& button, const Box& box) {
  const f32 height = std::min(box.height, SizeOf(button).height);
  const Box face{box.x, box.y + (box.height - height) / 2, box.width, height};
  canvas_.Rectangle(face.x, face.y, face.x + face.width, face.y + face.height,
                    button.pressed ? pressedColor : faceColor, true);
  canvas_.Rectangle(face.x, face.y, face.x + face.width, face.y + face.height, edgeColor, false);
  if (button.role == ButtonRole::Thumbnail) {
    Fit(button.picture, {face.x + margin, face.y + margin, face.width - 2 * margin, face.height - 2 * margin});
    return;
  }
  const f32 sign = button.picture.Empty() ? 0 : signSize;
  if (sign > 0) Fit(button.picture, {face.x + margin / 2, face.y, sign, face.height});
  PrintMiddle(button.caption, {face.x + sign, face.y, face.width - sign, face.height},
              button.Active() ? inkColor : edgeColor);
}

void Sketch::DrawList(const ListBox& list, const Box& box) {
  canvas_.Rectangle(box.x, box.y, box.x + box.width, box.y + box.height, edgeColor, false);
  const auto rows = static_cast<std::size_t>((box.height - 2 * margin) / lineHeight);
  for (std::size_t i = 0; i < std::min(rows, list.items.size()); ++i) {
    const f32 y = box.y + margin + lineHeight * static_cast<f32>(i);
    if (static_cast<std::size_t>(list.selected) == i + 1) {
      canvas_.Rectangle(box.x, y, box.x + box.width, y + lineHeight, pressedColor, true);
    }
    Print(list.items[i], box.x + margin, y, inkColor);
  }
}

void Sketch::DrawPicture(const PictureBox& box, const Box& place) {
  canvas_.Rectangle(place.x, place.y, place.x + place.width, place.y + place.height, edgeColor, false);
  Fit(box.AsSeen(), place);
}

void Sketch::Print(const std::string& text, f32 x, f32 y, Color color) {
  canvas_.ForeColor = color;
  canvas_.PrintAt(x, y, text);
}

void Sketch::PrintMiddle(const std::string& text, const Box& box, Color color) {
  Print(text, box.x + (box.width - canvas_.TextWidth(text)) / 2, box.y + (box.height - lineHeight) / 2, color);
}

// As large as it can be in its own proportions, or in those of the box where it has none of its own.
void Sketch::Fit(const Picture& picture, const Box& box) {
  if (picture.Empty() || box.width <= 0 || box.height <= 0) return;
  const PenScope pen(canvas_);
  const Scale scale = picture.CurrentScale();
  const f32 times = std::min(box.width / scale.NaturalWidth(), box.height / scale.NaturalHeight());
  const f32 width = scale.NaturalWidth() * times;
  const f32 height = scale.NaturalHeight() * times;
  const Point from{box.x + (box.width - width) / 2, box.y + (box.height - height) / 2};
  picture.ReplayInto(canvas_, from, {from.x + width, from.y + height});
}

}  // namespace

Picture SketchOf(Page& page) {
  constexpr f32 titleHeight = 2 * lineHeight;
  const Layout layout = page.MakeLayout();
  Picture scratch;
  const Size size = Sketch(scratch).Measure(layout);
  const f32 width = std::max(size.width, scratch.TextWidth(page.title)) + 4 * gap;
  const f32 height = size.height + titleHeight + 4 * gap;
  Picture picture(Scale{0, 0, width, height});
  Sketch sketch(picture);
  picture.Rectangle(0, 0, width, titleHeight, faceColor, true);
  picture.Rectangle(0, 0, width, height, edgeColor, false);
  picture.ForeColor = inkColor;
  picture.FontBold = true;
  picture.PrintAt(2 * gap, lineHeight / 2, page.title);
  picture.FontBold = false;
  sketch.Draw(layout, {2 * gap, titleHeight + 2 * gap, width - 4 * gap, size.height});
  return picture;
}

}  // namespace quilm
