// What a user can do to a page. The window, the script and the tests all come through here, so that they run the same
// handlers under the same rules.
#pragma once

#include <exception>
#include <functional>
#include <string>

#include "core/Fault.h"
#include "shell/Control.h"

namespace quilm {

class Session;

// The user could not have done that: the control is hidden or disabled, lies below the page on top, or takes no such
// act. what() says which.
class ActRefused : public Fault {
 public:
  using Fault::Fault;
};

// Each runs the control's handler and returns when it is done. A fault that leaves a handler is told to the user in a
// message box and ends that handler alone; ProgramEnd marks the session as ended. Acts on a control that the user
// could not use throw ActRefused.
void Click(Session& session, Control& control);                      // a button or an option
void Type(Session& session, TextBox& box, const std::string& text);  // one change that leaves `text` in the box
void Leave(Session& session, TextBox& box);                          // the focus goes elsewhere
void Step(Session& session, Spin& spin, int direction);              // +1 up, -1 down
void SetNumber(Session& session, Spin& spin, i32 number);            // typed while it has the focus
void Choose(Session& session, ListBox& list, int line);              // line from 1
void Tick(Session& session, Timer& timer);
void PressCloseBox(Session& session, Page& page);

enum class MouseAct { Down, Move, Up };
// A left press on an area with a handler of its own goes to that handler, and to none when the area is disabled; all
// else goes to the handlers of the box.
void Mouse(Session& session, PictureBox& box, MouseAct act, f32 x, f32 y, MouseButton button);

// Whether that would run a handler: moves over a picture that listens to none cost nothing.
bool HearsMouse(const PictureBox& box, MouseAct act, f32 x, f32 y, MouseButton button);

// Presses a named area of a picture, however the user got there.
void PressArea(Session& session, PictureBox& box, std::string_view name);
// Takes back the last change of the design, or makes the one again that was taken back last: the whole record returns
// (History.h), and the page where the change was made comes up, loaded anew. Throws ActRefused when there is nothing to
// take back, and while the history is off.
void Undo(Session& session);
void Redo(Session& session);
bool CanUndo(const Session& session);
bool CanRedo(const Session& session);

// Tells the user of what left a handler or a load step, in a message box.
void TellFault(Session& session, const std::exception& fault);

// Runs anything as a handler runs: for the start of the program and for what is no control.
void RunHandler(Session& session, const std::function<void()>& handler);

}  // namespace quilm
