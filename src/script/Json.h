// The parts of the program as JSON.
#pragma once

#include <string>
#include <vector>

#include "core/DesignRecord.h"
#include "core/Responses.h"
#include "script/ScriptEvents.h"

namespace quilm {

class Button;
class Page;
class PictureBox;

// The event "record" with the fields of these names, with all of them when there are none. "stages" asks for the
// ladder, the name of a stage's value ("Lval") for that value of each stage. Throws CommandFailure for a name that the
// record does not have.
Json RecordEvent(const DesignRecord& record, const std::vector<std::string>& names);

// The event "responses" with these points of the sweep, all when there are none. Throws CommandFailure for an index
// beyond the sweep.
Json ResponsesEvent(const DesignRecord& record, const Responses& responses, const std::vector<std::string>& indices);

// The event "page": what the user sees of the page.
Json PageEvent(const Page& page);

// The event "canvas": the operations of a picture by the names of the canvas' members, those of the mark that lies over
// it, and its named areas. A button has neither mark nor areas.
Json CanvasEvent(const PictureBox& box);
Json CanvasEvent(const Button& button);

}  // namespace quilm
