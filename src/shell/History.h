// Undo and redo of whole designs, for the run of the program.
//
// The history is a row of designs with a place in it. An act of the user that changes the design adds one; undo and
// redo move the place. Acts.cpp compares the record before and after each act, so that no page has to do anything.
//
// - A step is what one act changed. The keystrokes in one box are one step until another control is used or the box is
//   left, and so are the steps of a spin control that says so; a long run is one, since it runs within one act.
// - What the program itself changes while it follows the user somewhere is no step: entries that a check repairs, the
//   network that is computed when a page is left, what a page's load step fills in. It runs within a `Following` scope
//   and joins the step before it, so that undo after "type a width, press Plot" takes both back. What the user changes
//   in a modal page that opens meanwhile is a step again.
// - What the program only notes is no change of the design: whether responses are valid, the file's name and date, the
//   plot on display, the chosen page of help, whether limits and markers are shown. Undo takes it back only where the
//   step itself changed it, as reading a file does: a design that was saved under a name keeps the name.
// - What is done before the first page of a design, on the opening page, is where the history begins.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

#include "core/DesignRecord.h"
#include "shell/PageId.h"

namespace quilm {

class Session;

// What a user does, as the history needs to know it.
struct Deed {
  std::string what;  // for the tool tips: "Passband ripple"
  // Of keystrokes, and of leaving the box: the box. Keystrokes in the same box go on with the same step.
  std::string box = {};
  // Whether a step of keystrokes ends with it; a timer and a mouse that merely moves end nothing.
  bool endsTyping = true;
};

class History {
  // A design, and the step that led to it.
  struct Place {
    DesignRecord record;
    DesignRecord found;  // the record as the step found it, for what was noted then
    i16 familyOption = familyNone;
    std::string what;
    PageId page = PageId::Opening;
    std::string savedAs;  // the file that holds the design of the place
  };

  struct OpenGroup {
    int number;
    std::string what;
    bool undoable;
    std::size_t base;     // the place before it
    PageId page;          // where it was begun
    bool ending = false;  // it ends with the act that runs
  };

  struct OpenTool {
    PageId page;  // that it works on
    int depth;    // of handlers where it is open
    std::size_t floor;
  };

  // The act that runs.
  struct Running {
    bool acting = false;
    bool following = false;
    bool changed = false;  // by the user
    bool endsTyping = true;
    bool saves = false;  // its design is that of a file when it is done
    std::string what;    // what a change is that happens now
    std::string did;     // what the change was
    std::string box;     // the box that the act types in
    std::optional<PageId> page;
    DesignRecord found;  // when it began
    DesignRecord seen;   // when it was last looked at
  };

 public:
  static constexpr std::size_t mostSteps = 200;

  // Whether there is a step to take back, or one to make again, and what it did.
  bool HasUndo() const;
  bool HasRedo() const;
  std::string UndoText() const;
  std::string RedoText() const;

  // Undo and redo are off, steps or none, while a handler runs (a modal page is open, unless it is a Tool; a long run
  // goes on) and while the design shows something that is only proposed.
  bool IsOff(const Session& session) const;

  // Puts the design before, or after, the step into the session, with ResponsesValid 0. The page where the step was
  // made is returned. There must be such a step.
  PageId StepBack(Session& session);
  PageId StepForth(Session& session);

  // The design is now what the file DesignFileName holds: it was written there, or read. IsSaved tells whether it still
  // is, also after undo and redo. What merely follows a step is no change, nor is what only the program notes.
  void MarkSaved(const Session& session);
  bool IsSaved(const Session& session) const;

  // An act begins and ends. Acts within acts (modal pages, events during a run) are parts of the outermost.
  class Act {
   public:
    Act(Session& session, const Deed& deed);
    ~Act();
    Act(const Act&) = delete;
    Act& operator=(const Act&) = delete;

   private:
    Session& session_;
    bool outermost_;
    bool outerFollowing_;
    std::string outerWhat_;
  };

  // While it lives the program follows: what changes then is nothing that the user did.
  class Following {
   public:
    explicit Following(Session& session);
    ~Following();
    Following(const Following&) = delete;
    Following& operator=(const Following&) = delete;

   private:
    Session& session_;
    bool outer_;
  };

  // Several acts that are taken back as one, from its construction to the end of the act in which it is destroyed: an
  // insert that an accept finishes, a proposal that is accepted or put back by hand. A page holds it while this goes
  // on.
  //
  // Undo meanwhile takes all of it back and loads the page anew, which gives the group up; a proposal that must not be
  // left like this says UndoIsOff.
  class Group {
   public:
    enum class Meanwhile { UndoTakesAllBack, UndoIsOff };
    Group(Session& session, std::string what, Meanwhile meanwhile);
    ~Group();
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;

   private:
    Session& session_;
    int number_;
  };

  // While it lives, the acts in the modal page that opens are steps of their own, which can be taken back while it is
  // open, as in tuning: `const History::Tool tool(session); session.pages.ShowModal(...)`. They belong to the page that
  // the tool works on; undo and redo load both anew, and go no further back than to where the tool was opened.
  class Tool {
   public:
    explicit Tool(Session& session);
    ~Tool();
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;

   private:
    Session& session_;
    Running outerAct_;
    std::optional<OpenTool> outerTool_;
  };

  // The record as the running act found it; nullptr when none runs.
  const DesignRecord* FoundByAct() const { return act_.acting ? &act_.found : nullptr; }

  // Whether such a tool is open.
  bool HasTool() const { return tool_.has_value(); }

 private:
  void Begin(const Session& session, const Deed& deed);
  void End(const Session& session);
  void StartAfresh(const Session& session);
  void Look(const Session& session);
  void Settle(const Session& session);
  void Join(const Session& session);
  void TakeStep(const Session& session);
  void AddStep(std::string what);
  void DropStep();
  void DropRedo();
  void TakeSaved(const Session& session);
  bool HasSavedPlace(const Session& session) const;
  void GoTo(Session& session, std::size_t place, const DesignRecord& from, const DesignRecord& to);
  int OpenGroupOf(const Session& session, std::string what, bool undoable);
  void EndGroup(int number);

  std::deque<Place> places_{Place{}};
  std::size_t at_ = 0;                 // the place of the present design
  std::optional<DesignRecord> saved_;  // the design that was saved last
  Running act_;
  std::string typing_;  // the box whose keystrokes are the step at at_
  std::optional<OpenGroup> group_;
  std::optional<OpenTool> tool_;
  int groups_ = 0;
};

}  // namespace quilm
