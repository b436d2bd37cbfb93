#include "script/Json.h"
#include "shell/Page.h"

namespace quilm {

namespace {

// Under the key that the kind of control has: a caption, a text or items.
void AddContent(Json& json, const Control& control) {
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    json["text"] = box->text;
  } else if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
    json["items"] = list->items;
  } else {
    json["caption"] = control.caption;
  }
}

void AddValue(Json& json, const Control& control) {
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) json["value"] = option->Value();
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) json["value"] = list->selected;
}

Json ControlJson(const Control& control) {
  Json json{{"name", control.name}, {"kind", KindName(control.kind)}};
  AddContent(json, control);
  AddValue(json, control);
  json["enabled"] = control.Active();
  json["toolTip"] = control.toolTip;
  return json;
}

}  // namespace

Json PageEvent(const Page& page) {
  Json controls = Json::array();
  for (const Control* control : page.Controls()) {
    // A timer is never seen.
    if (control->kind != ControlKind::Timer && control->Shown()) controls.push_back(ControlJson(*control));
  }
  return {{"event", "page"}, {"page", page.Name()}, {"title", page.title}, {"controls", std::move(controls)}};
}

}  // namespace quilm
