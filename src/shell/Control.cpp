#include "shell/Control.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "shell/Page.h"

namespace quilm {

std::string_view KindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::Button:
      return "button";
    case ControlKind::Option:
      return "option";
    case ControlKind::Text:
      return "text";
    case ControlKind::Label:
      return "label";
    case ControlKind::Frame:
      return "frame";
    case ControlKind::List:
      return "list";
    case ControlKind::Spin:
      return "spin";
    case ControlKind::Timer:
      return "timer";
    case ControlKind::Picture:
      return "picture";
  }
  return "";
}

Control::Control(Page& page, ControlKind kindOfControl, std::string nameOfControl)
    : kind(kindOfControl), name(std::move(nameOfControl)), page_(page) {
  page.Register(*this);
}

bool Control::Shown() const { return visible && (container == nullptr || container->Shown()); }

bool Control::EnabledWithContainer() const {
  return enabled && (container == nullptr || container->EnabledWithContainer());
}

bool Control::Active() const { return EnabledWithContainer() && !page_.Locks(*this); }

std::string Control::SpokenName() const {
  if (!accessibleName.empty()) return accessibleName;
  if (!caption.empty()) return caption;
  return toolTip.empty() ? name : toolTip;
}

Button::Button(Page& page, std::string buttonName, std::string buttonCaption, std::string tip)
    : Control(page, ControlKind::Button, std::move(buttonName)) {
  caption = std::move(buttonCaption);
  toolTip = std::move(tip);
}

OptionButton* OptionGroup::Chosen() const {
  for (OptionButton* option : members_) {
    if (option->Value()) return option;
  }
  return nullptr;
}

void OptionGroup::Clear() {
  for (OptionButton* option : members_) option->Unset();
}

OptionButton::OptionButton(Page& page, OptionGroup& group, std::string optionName, std::string optionCaption,
                           std::string tip)
    : Control(page, ControlKind::Option, std::move(optionName)), group_(group) {
  caption = std::move(optionCaption);
  toolTip = std::move(tip);
  group.members_.push_back(this);
}

void OptionButton::Set() {
  group_.Clear();
  value_ = true;
}

TextBox::TextBox(Page& page, std::string boxName, std::string accessible, std::string tip)
    : Control(page, ControlKind::Text, std::move(boxName)) {
  accessibleName = std::move(accessible);
  toolTip = std::move(tip);
}

void TextBox::Repair(std::string newText) {
  text = std::move(newText);
  ++repairs_;
}

Label::Label(Page& page, std::string labelName, std::string labelCaption)
    : Control(page, ControlKind::Label, std::move(labelName)) {
  caption = std::move(labelCaption);
}

Frame::Frame(Page& page, std::string frameName, std::string frameCaption)
    : Control(page, ControlKind::Frame, std::move(frameName)) {
  caption = std::move(frameCaption);
}

void Frame::Hold(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->container = this;
}

ListBox::ListBox(Page& page, std::string listName, std::string accessible)
    : Control(page, ControlKind::List, std::move(listName)) {
  accessibleName = std::move(accessible);
}

Spin::Spin(Page& page, std::string spinName, std::string accessible, std::string tip)
    : Control(page, ControlKind::Spin, std::move(spinName)) {
  accessibleName = std::move(accessible);
  toolTip = std::move(tip);
}

void Spin::Count(Label& shown, std::function<void(i32)> onTyped) {
  number = &shown;
  onSet = std::move(onTyped);
}

i32 Spin::Value() const {
  i32 value = 0;
  if (number != nullptr) {
    const std::string& text = number->caption;
    std::from_chars(text.data(), text.data() + text.size(), value);
  }
  return value;
}

Timer::Timer(Page& page, std::string timerName, i32 milliseconds)
    : Control(page, ControlKind::Timer, std::move(timerName)), interval(milliseconds) {
  enabled = false;
}

PictureBox::PictureBox(Page& page, std::string boxName, std::string accessible)
    : Control(page, ControlKind::Picture, std::move(boxName)), picture(own_), live(ownLive_) {
  accessibleName = std::move(accessible);
}

PictureBox::PictureBox(Page& page, std::string boxName, std::string accessible, Picture& shown, LiveLayer& over)
    : Control(page, ControlKind::Picture, std::move(boxName)), picture(shown), live(over) {
  accessibleName = std::move(accessible);
}

const HitArea* PictureBox::AreaAt(Point at) const {
  const auto found =
      std::find_if(areas.rbegin(), areas.rend(), [at](const HitArea& area) { return area.Contains(at); });
  return found == areas.rend() ? nullptr : &*found;
}

const HitArea* PictureBox::FindArea(std::string_view areaName) const {
  const auto found =
      std::find_if(areas.begin(), areas.end(), [areaName](const HitArea& area) { return area.name == areaName; });
  return found == areas.end() ? nullptr : &*found;
}

Picture PictureBox::AsSeen() const {
  Picture seen = picture;
  for (const PictureOp& operation : live.Present().kept) DrawOperation(operation, seen);
  for (const PictureOp& operation : mark.Operations()) DrawOperation(operation, seen);
  return seen;
}

}  // namespace quilm
