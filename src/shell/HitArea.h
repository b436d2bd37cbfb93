// Named places on a picture that can be pressed: by mouse, by keyboard, by script and through assistive tools.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "shell/Canvas.h"

namespace quilm {

struct HitArea {
  std::string name;
  Point from;  // two corners of its box, in the picture's scale
  Point to;
  std::string toolTip;  // also what assistive tools speak; its name where it has none
  bool enabled = true;
  // What a press does. Without it the area is a name for its place, and a press is one of the left mouse button in its
  // middle, which the picture box hears.
  std::function<void()> onPress;
  // Areas of which one is always the present one, as the stages of a strip: together they are one stop of the Tab key,
  // at the one that is `present`, and an arrow key presses the one that it comes to.
  bool walked = false;
  bool present = false;

  bool Contains(Point at) const;
  Point Middle() const;
  const std::string& SpokenName() const { return toolTip.empty() ? name : toolTip; }
};

// In the order in which the keyboard walks them; where two overlap, the later one lies on top.
using HitAreas = std::vector<HitArea>;

// Whether the user would see a difference: all but what a press does.
bool SameToTheUser(const HitAreas& one, const HitAreas& other);

enum class Direction { Left, Right, Up, Down };

// Where the keyboard goes; disabled areas are passed over, and at the end there is nothing.
//
// An arrow key from area `start`: of those whose middle lies farther in that direction the nearest one, where what lies
// aside counts twice.
std::optional<std::size_t> AreaToward(const HitAreas& areas, std::size_t start, Direction direction);
// The next one in order (+1) or the one before (-1); from nowhere the first or the last. Walked areas are passed over
// from one of them, and from elsewhere entered at the present one.
std::optional<std::size_t> AreaAfter(const HitAreas& areas, std::optional<std::size_t> start, int step);

}  // namespace quilm
