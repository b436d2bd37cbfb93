#include "shell/Acts.h"

#include "core/modGeneral.h"
#include "shell/History.h"
#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

namespace {

void RequireOnTop(const Session& session, const Page& page, const std::string& what) {
  if (!session.pages.TakesActs(page)) throw ActRefused(what + " is not on the page on top");
}

// What lies below another page is out of the user's reach, but a press that was on its way when that page opened still
// comes.
void Require(const Session& session, const Control& control) {
  RequireOnTop(session, control.Owner(), control.name);
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

// The name of a control without its unit: "Passband ripple" of "Passband ripple, dB". An action of the navigation row
// says in its tool tip what it does.
std::string NameOf(const Control& control) {
  const auto* button = dynamic_cast<const Button*>(&control);
  if (button != nullptr && button->role == ButtonRole::Action) return button->toolTip;
  const std::string name = control.SpokenName();
  return name.substr(0, name.find(','));
}

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

// A note ends with the next act. The mouse that merely moves and a timer are none; nor is leaving a box, which goes
// along with the act that it is left for, and what is told of it then stays to be read.
void EndNote(Session& session, const Deed& deed) {
  const bool types = !deed.box.empty() && !deed.endsTyping;
  const bool presses = deed.box.empty() && deed.endsTyping;
  if (!types && !presses) return;
  if (!session.noteHolds) session.note.clear();
  session.noteHolds = false;
}

void RunAct(Session& session, const Deed& deed, const std::function<void()>& handler) {
  if (session.ended) return;
  EndNote(session, deed);
  const Depth depth(session);
  const History::Act act(session, deed);
  try {
    if (handler) handler();
  } catch (const ProgramEnd&) {
    session.ended = true;
  } catch (const ActRefused&) {
    throw;  // a script inside a modal page asked for the impossible: the script's fault, not the handler's
  } catch (const std::exception& fault) {
    TellFault(session, fault);
  }
  if (Page* page = session.pages.Top(); page != nullptr && !session.ended) page->CatchUp();
  // Within another handler the end of the program goes on unwinding.
  if (session.ended && session.handlerDepth > 1) throw ProgramEnd{};
}

// Shows the page of a step with the design as it stands, once: a plot sweeps for it. Its load step, which may repair
// entries, must not touch what comes back.
void ShowAnew(Session& session, PageId id) {
  Page* present = session.pages.Top();
  const bool stays = session.history.HasTool() || (present != nullptr && present->Id() == id);
  if (!stays) {
    session.pages.ShowAnew(id);
    if (present != nullptr) session.pages.UnloadPage(present->Id());
    return;
  }
  if (present->Id() != id) present->Reload();
  if (Page* page = session.pages.Find(id)) page->Reload();
}

using HistoryStep = PageId (History::*)(Session&);

void TakeStep(Session& session, const std::string& note, HistoryStep step) {
  RunAct(session, {note}, [&session, &note, step] {
    const History::Following following(session);
    ShowAnew(session, (session.history.*step)(session));
    session.note = note;
  });
}

}  // namespace

void TellFault(Session& session, const std::exception& fault) {
  session.platform.MessageBox(std::string("This action could not be finished:\r\n") + fault.what(), Buttons::Ok,
                              Icon::Critical, "Error checker");
}

void RunHandler(Session& session, const std::function<void()>& handler) {
  const Page* page = session.pages.Top();
  RunAct(session, {page == nullptr ? std::string() : page->title}, handler);
}

bool CanUndo(const Session& session) { return session.history.HasUndo() && !session.history.IsOff(session); }

bool CanRedo(const Session& session) { return session.history.HasRedo() && !session.history.IsOff(session); }

void Undo(Session& session) {
  if (!session.history.HasUndo()) throw ActRefused("there is nothing to undo");
  if (!CanUndo(session)) throw ActRefused("nothing can be undone now");
  TakeStep(session, "Undone: " + session.history.UndoText(), &History::StepBack);
}

void Redo(Session& session) {
  if (!session.history.HasRedo()) throw ActRefused("there is nothing to redo");
  if (!CanRedo(session)) throw ActRefused("nothing can be redone now");
  TakeStep(session, "Redone: " + session.history.RedoText(), &History::StepForth);
}

void Click(Session& session, Control& control) {
  Require(session, control);
  if (auto* option = dynamic_cast<OptionButton*>(&control)) {
    option->Set();
    RunAct(session, {NameOf(control)}, option->onClick);
    return;
  }
  auto* button = dynamic_cast<Button*>(&control);
  if (button == nullptr) throw ActRefused(control.name + " is no button");
  // The handler may unload its page; the function it runs from must outlive it.
  const std::function<void()> handler = button->onClick;
  RunAct(session, {NameOf(control)}, handler);
}

void Type(Session& session, TextBox& box, const std::string& text) {
  Require(session, box);
  if (box.readOnly) throw ActRefused(box.name + " cannot be typed in");
  box.text = FirstCharacters(text, static_cast<std::size_t>(box.maxLength));
  RunAct(session, {NameOf(box), box.name, false}, box.onChange);
}

void Leave(Session& session, TextBox& box) {
  const std::string before = session.note;
  RunAct(session, {NameOf(box), box.name}, box.onLeave);
  if (session.note != before) session.noteHolds = true;
}

void Step(Session& session, Spin& spin, int direction) {
  Require(session, spin);
  const Deed deed = spin.oneAct ? Deed{NameOf(spin), spin.name, false} : Deed{NameOf(spin)};
  RunAct(session, deed, direction > 0 ? spin.onUp : spin.onDown);
}

void SetNumber(Session& session, Spin& spin, i32 number) {
  Require(session, spin);
  if (!spin.onSet) throw ActRefused(spin.name + " takes no number");
  RunAct(session, {NameOf(spin), spin.name, false}, [&spin, number] { spin.onSet(number); });
}

void Choose(Session& session, ListBox& list, int line) {
  Require(session, list);
  if (line < 1 || line > static_cast<int>(list.items.size())) {
    throw ActRefused(list.name + " has no line " + std::to_string(line));
  }
  list.selected = line;
  RunAct(session, {NameOf(list)}, list.onClick);
}

void Tick(Session& session, Timer& timer) {
  if (timer.Active()) RunAct(session, {timer.name, {}, false}, timer.onTick);
}

void PressCloseBox(Session& session, Page& page) {
  RequireOnTop(session, page, "The close box");
  RunAct(session, {page.title}, [&page] { page.CloseBox(); });
}

void Mouse(Session& session, PictureBox& box, MouseAct act, f32 x, f32 y, MouseButton button) {
  Require(session, box);
  if (const HitArea* area = AreaThatTakes(box, act, x, y, button)) {
    if (area->enabled) RunAct(session, {area->SpokenName()}, std::function<void()>(area->onPress));
    return;
  }
  const MouseHandler& handler = HandlerOf(box, act);
  if (handler) RunAct(session, {NameOf(box), {}, act != MouseAct::Move}, [&] { handler(x, y, button); });
}

bool HearsMouse(const PictureBox& box, MouseAct act, f32 x, f32 y, MouseButton button) {
  if (const HitArea* area = AreaThatTakes(box, act, x, y, button)) return area->enabled;
  return static_cast<bool>(HandlerOf(box, act));
}

void PressArea(Session& session, PictureBox& box, std::string_view name) {
  Require(session, box);
  const HitArea* area = box.FindArea(name);
  if (area == nullptr) throw ActRefused(box.name + " has no area " + std::string(name));
  if (!area->enabled) throw ActRefused(area->name + " is disabled");
  if (area->onPress) {
    // The handler may lay out other areas; the function it runs from must outlive that.
    RunAct(session, {area->SpokenName()}, std::function<void()>(area->onPress));
    return;
  }
  const Point at = area->Middle();
  // Down and up in one handler: the page, with the box, lives until it is done.
  RunAct(session, {area->SpokenName()}, [&session, &box, at] {
    const Page* page = session.pages.Top();
    Mouse(session, box, MouseAct::Down, at.x, at.y, MouseButton::Left);
    if (session.pages.Top() == page && box.Usable()) Mouse(session, box, MouseAct::Up, at.x, at.y, MouseButton::Left);
  });
}

}  // namespace quilm
