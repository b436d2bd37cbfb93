#include "shell/History.h"

#include <utility>

#include "shell/Page.h"
#include "shell/Session.h"

namespace quilm {

namespace {

// Calls `take` with each field that the program only notes, of all the records.
template <class Take, class... Records>
void ForEachNote(Take take, Records&... records) {
  take(records.ResponsesValid...);
  take(records.DesignChanged...);
  take(records.OrderMax...);
  take(records.StagesMax...);
  take(records.DesignDate...);
  take(records.DesignFileName...);
  take(records.TopologyHelpCode...);
  take(records.PlotCode...);
  take(records.LimitsShown...);
  take(records.MarkersShown...);
}

// `design` with the notes of `other`.
DesignRecord WithNotesOf(DesignRecord design, const DesignRecord& other) {
  ForEachNote([](auto& own, const auto& its) { own = its; }, design, other);
  return design;
}

bool IsSameDesign(const DesignRecord& a, const DesignRecord& b) { return WithNotesOf(a, b) == b; }

// `now` with those notes that the way from one record to the other changed.
DesignRecord NotesAfter(DesignRecord now, const DesignRecord& from, const DesignRecord& to) {
  ForEachNote(
      [](auto& note, const auto& former, const auto& latter) {
        if (former != latter) note = latter;
      },
      now, from, to);
  return now;
}

}  // namespace

bool History::HasUndo() const { return at_ > (tool_ ? tool_->floor : 0) || (group_ && group_->undoable); }

bool History::HasRedo() const {
  if (group_ || at_ + 1 >= places_.size()) return false;
  return !tool_ || places_[at_ + 1].page == tool_->page;
}

bool History::IsOff(const Session& session) const {
  return session.handlerDepth != (tool_ ? tool_->depth : 0) || (group_ && !group_->undoable);
}

std::string History::UndoText() const {
  if (!HasUndo()) return {};
  return group_ ? group_->what : places_[at_].what;
}

std::string History::RedoText() const { return HasRedo() ? places_[at_ + 1].what : std::string(); }

PageId History::StepBack(Session& session) {
  if (!group_) {
    const Place& step = places_[at_];
    GoTo(session, at_ - 1, step.record, step.found);
    return step.page;
  }
  const OpenGroup group = *group_;
  group_.reset();
  GoTo(session, group.base, session.record, session.record);
  DropRedo();
  return group.page;
}

PageId History::StepForth(Session& session) {
  const Place& step = places_[at_ + 1];
  GoTo(session, at_ + 1, step.found, step.record);
  return step.page;
}

// The notes that the way from one record to the other changed go with it; the others stay as they are now.
void History::GoTo(Session& session, std::size_t place, const DesignRecord& from, const DesignRecord& to) {
  session.record = WithNotesOf(places_[place].record, NotesAfter(session.record, from, to));
  session.record.ResponsesValid = 0;
  session.familyOption = places_[place].familyOption;
  at_ = place;
}

// Compares what the design is now with how it was last seen: whatever has changed since is the doing of `act_.what`.
// The first of several changes names the step.
void History::Look(const Session& session) {
  if (IsSameDesign(act_.seen, session.record)) return;
  act_.seen = session.record;
  if (act_.following) return;
  act_.changed = true;
  if (act_.did.empty()) act_.did = act_.what;
}

void History::Begin(const Session& session, const Deed& deed) {
  const Page* page = session.pages.Top();
  act_.page = page == nullptr ? std::nullopt : std::optional(tool_ ? tool_->page : page->Home());
  act_.acting = true;
  act_.following = false;
  act_.saves = false;
  // On a page that is a tool of another one "Ok" would say nothing there.
  act_.what = page != nullptr && page->Home() != page->Id() && deed.box.empty() ? page->title : deed.what;
  act_.box = deed.box.empty() || page == nullptr ? std::string() : std::string(page->Name()) + "." + deed.box;
  act_.endsTyping = deed.endsTyping;
  if (act_.box != typing_ && (act_.endsTyping || !act_.box.empty())) typing_.clear();
  Join(session);
  StartAfresh(session);
}

void History::StartAfresh(const Session& session) {
  act_.seen = act_.found = session.record;
  act_.changed = false;
  act_.did.clear();
}

void History::End(const Session& session) {
  Look(session);
  Settle(session);
  if (act_.saves) TakeSaved(session);
  if (act_.endsTyping) typing_.clear();
  if (group_ && group_->ending) group_.reset();
  act_.acting = false;
}

// Puts down what the act has changed up to now.
void History::Settle(const Session& session) {
  const bool opens = !act_.page || (*act_.page == PageId::Opening && places_.size() == 1);
  if (opens || !(act_.changed || group_)) {
    Join(session);
  } else if (!IsSameDesign(places_[at_].record, session.record)) {
    TakeStep(session);
  }
  places_[at_].familyOption = session.familyOption;
  StartAfresh(session);
}

void History::TakeStep(const Session& session) {
  const bool typesOn = !act_.box.empty() && typing_ == act_.box;
  const bool goesOn = group_ ? at_ > group_->base : typesOn;
  if (!goesOn) AddStep(group_ ? group_->what : act_.did);
  if (!goesOn && !group_) typing_ = act_.box;
  places_[at_].record = session.record;
  if (IsSameDesign(places_[at_ - 1].record, session.record)) DropStep();
}

void History::AddStep(std::string what) {
  DropRedo();
  places_.push_back({{}, act_.found, familyNone, std::move(what), act_.page.value_or(PageId::Opening), {}});
  ++at_;
  if (at_ <= mostSteps) return;
  places_.pop_front();
  --at_;
  if (group_) --group_->base;
  if (tool_ && tool_->floor > 0) --tool_->floor;
}

// The user has come back to the design before: nothing is left to take back.
void History::DropStep() {
  --at_;
  DropRedo();
  typing_.clear();
}

// What follows from a step is a part of it, and what is done after it can still be made again.
void History::Join(const Session& session) {
  DesignRecord& present = places_[at_].record;
  if (!IsSameDesign(present, session.record)) {
    present = WithNotesOf(session.record, present);
    if (HasSavedPlace(session)) saved_ = session.record;
  }
  places_[at_].familyOption = session.familyOption;
}

void History::DropRedo() { places_.resize(at_ + 1); }

int History::OpenGroupOf(const Session& session, std::string what, bool undoable) {
  Look(session);
  if (act_.acting) {
    Settle(session);
  } else {
    Join(session);
  }
  typing_.clear();
  const Page* page = session.pages.Top();
  group_ = OpenGroup{++groups_, std::move(what), undoable, at_, page == nullptr ? PageId::Opening : page->Id()};
  return groups_;
}

void History::EndGroup(int number) {
  if (!group_ || group_->number != number) return;
  group_->ending = true;
  if (!act_.acting) group_.reset();
}

void History::MarkSaved(const Session& session) {
  if (act_.acting) {
    act_.saves = true;
  } else {
    TakeSaved(session);
  }
}

// A file that is written anew is no longer that of the place where it was written before.
void History::TakeSaved(const Session& session) {
  const std::string& name = session.record.DesignFileName;
  for (Place& place : places_) {
    if (place.savedAs == name) place.savedAs.clear();
  }
  places_[at_].savedAs = name;
  saved_ = session.record;
}

bool History::HasSavedPlace(const Session& session) const {
  const std::string& name = session.record.DesignFileName;
  return !name.empty() && places_[at_].savedAs == name;
}

bool History::IsSaved(const Session& session) const {
  const DesignRecord& record = session.record;
  if (HasSavedPlace(session) && !(act_.acting && act_.changed)) return true;
  return saved_ && saved_->DesignFileName == record.DesignFileName && IsSameDesign(*saved_, record);
}

History::Act::Act(Session& session, const Deed& deed)
    : session_(session),
      outermost_(!session.history.act_.acting),
      outerFollowing_(session.history.act_.following),
      outerWhat_(session.history.act_.what) {
  History& history = session.history;
  if (outermost_) {
    history.Begin(session, deed);
    return;
  }
  history.Look(session);
  history.act_.following = false;
  // On a page that has opened over the one where the act began: its title says what is done there.
  const Page* page = session.pages.Top();
  if (page != nullptr && page->Id() != history.act_.page) history.act_.what = page->title;
}

History::Act::~Act() {
  History& history = session_.history;
  if (outermost_) {
    history.End(session_);
    return;
  }
  history.Look(session_);
  history.act_.following = outerFollowing_;
  history.act_.what = outerWhat_;
}

History::Following::Following(Session& session) : session_(session), outer_(session.history.act_.following) {
  session_.history.Look(session_);
  session_.history.act_.following = true;
}

History::Following::~Following() {
  session_.history.Look(session_);
  session_.history.act_.following = outer_;
}

History::Tool::Tool(Session& session)
    : session_(session), outerAct_(session.history.act_), outerTool_(session.history.tool_) {
  History& history = session.history;
  history.Look(session);
  history.Settle(session);
  history.typing_.clear();
  const PageId page = history.act_.page.value_or(PageId::Opening);
  history.tool_ = OpenTool{page, session.handlerDepth, history.at_};
  history.act_ = {};
}

History::Tool::~Tool() {
  History& history = session_.history;
  history.Join(session_);
  history.typing_.clear();
  history.tool_ = outerTool_;
  history.act_ = outerAct_;
  history.StartAfresh(session_);
}

History::Group::Group(Session& session, std::string what, Meanwhile meanwhile)
    : session_(session),
      number_(session.history.OpenGroupOf(session, std::move(what), meanwhile == Meanwhile::UndoTakesAllBack)) {}

History::Group::~Group() { session_.history.EndGroup(number_); }

}  // namespace quilm
