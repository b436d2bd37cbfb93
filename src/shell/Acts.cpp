#include "shell/Acts.h"

#include <exception>

#include "core/modGeneral.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

namespace {

void Require(const Control& control) {
  if (!control.Shown()) throw ActRefused(control.name + " is hidden");
  if (!control.Active()) throw ActRefused(control.name + " is disabled");
}

// Counts the handlers that run one inside another (modal pages, Yield): unloaded pages may only be destroyed when none
// of theirs can be among them.
class Depth {
 public:
  explicit Depth(Session& session) : session_(session) { ++session_.handlerDepth; }
  ~Depth() {
    if (--session_.handlerDepth == 0) session_.pages.Sweep();
  }
  Depth(const Depth&) = delete;
  Depth& operator=(const Depth&) = delete;

 private:
  Session& session_;
};

using MouseHandler = std::function<void(f32, f32, MouseButton)>;

const MouseHandler& HandlerOf(const PictureBox& box, MouseAct act) {
  switch (act) {
    case MouseAct::Down:
      return box.onMouseDown;
    case MouseAct::Move:
      return box.onMouseMove;
    case MouseAct::Up:
      break;
  }
  return box.onMouseUp;
}

// The area with a handler of its own that a press of the mouse is meant for.
const HitArea* AreaThatTakes(const PictureBox& box, MouseAct act, f32 x, f32 y, MouseButton button) {
  if (act != MouseAct::Down || button != MouseButton::Left) return nullptr;
  const HitArea* area = box.AreaAt({x, y});
  return area != nullptr && area->onPress ? area : nullptr;
}

}  // namespace

void RunHandler(Session& session, const std::function<void()>& handler) {
  if (!handler || session.ended) return;
  const Depth depth(session);
  try {
    handler();
  } catch (const ProgramEnd&) {
    session.ended = true;
  } catch (const ActRefused&) {
    throw;  // a script inside a modal page asked for the impossible: the script's fault, not the handler's
  } catch (const std::exception& fault) {
    session.platform.MessageBox(std::string("This action could not be finished:\r\n") + fault.what(), Buttons::Ok,
                                Icon::Critical, "Error checker");
  }
  // Within another handler the end of the program goes on unwinding.
  if (session.ended && session.handlerDepth > 1) throw ProgramEnd{};
}

void Click(Session& session, Control& control) {
  Require(control);
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    option->Set();
    RunHandler(session, option->onClick);
    return;
  }
  auto* button = dynamic_cast<Button*>(&control);
  if (button == nullptr) throw ActRefused(control.name + " is no button");
  // The handler may unload its page; the function it runs from must outlive it.
  const std::function<void()> handler = button->onClick;
  RunHandler(session, handler);
}

void Type(Session& session, TextBox& box, const std::string& text) {
  Require(box);
  if (box.readOnly) throw ActRefused(box.name + " cannot be typed in");
  box.text = FirstCharacters(text, static_cast<std::size_t>(box.maxLength));
  RunHandler(session, box.onChange);
}

void Leave(Session& session, TextBox& box) { RunHandler(session, box.onLeave); }

void Step(Session& session, Spin& spin, int direction) {
  Require(spin);
  RunHandler(session, direction > 0 ? spin.onUp : spin.onDown);
}

void Choose(Session& session, ListBox& list, int line) {
  Require(list);
  if (line < 1 || line > static_cast<int>(list.items.size())) {
    throw ActRefused(list.name + " has no line " + std::to_string(line));
  }
  list.selected = line;
  RunHandler(session, list.onClick);
}

void Tick(Session& session, Timer& timer) {
  if (timer.Active()) RunHandler(session, timer.onTick);
}

void PressCloseBox(Session& session, Page& page) {
  RunHandler(session, [&page] { page.CloseBox(); });
}

void Mouse(Session& session, PictureBox& box, MouseAct act, f32 x, f32 y, MouseButton button) {
  Require(box);
  if (const HitArea* area = AreaThatTakes(box, act, x, y, button)) {
    if (area->enabled) RunHandler(session, std::function<void()>(area->onPress));
    return;
  }
  if (const MouseHandler& handler = HandlerOf(box, act)) RunHandler(session, [&] { handler(x, y, button); });
}

bool HearsMouse(const PictureBox& box, MouseAct act, f32 x, f32 y, MouseButton button) {
  if (const HitArea* area = AreaThatTakes(box, act, x, y, button)) return area->enabled;
  return static_cast<bool>(HandlerOf(box, act));
}

void PressArea(Session& session, PictureBox& box, std::string_view name) {
  Require(box);
  const HitArea* area = box.FindArea(name);
  if (area == nullptr) throw ActRefused(box.name + " has no area " + std::string(name));
  if (!area->enabled) throw ActRefused(area->name + " is disabled");
  if (area->onPress) {
    // The handler may lay out other areas; the function it runs from must outlive that.
    RunHandler(session, std::function<void()>(area->onPress));
    return;
  }
  const Point at = area->Middle();
  // Down and up in one handler: the page, with the box, lives until it is done.
  RunHandler(session, [&session, &box, at] {
    const Page* page = session.pages.Top();
    Mouse(session, box, MouseAct::Down, at.x, at.y, MouseButton::Left);
    if (session.pages.Top() == page && box.Usable()) Mouse(session, box, MouseAct::Up, at.x, at.y, MouseButton::Left);
  });
}

}  // namespace quilm
