// One run of the program: the current design, its responses, the settings that outlive a page, and the platform. There
// are no globals; whoever needs a session makes one, tests as many as they like.
#pragma once

#include <memory>
#include <string>

#include "core/Diplexer.h"
#include "core/ExportChoices.h"
#include "core/RecordFwd.h"
#include "core/SchematicView.h"
#include "core/SmithView.h"
#include "core/StepTexts.h"
#include "core/StudyEntries.h"
#include "core/TubeData.h"
#include "shell/PageDesk.h"
#include "shell/Platform.h"
#include "shell/PlotSheet.h"
#include "shell/UniformNumbers.h"

namespace quilm {

class History;
class LongRun;

// The program ends at once: unwinds whatever runs, back to the dispatcher of events.
struct ProgramEnd {};

class Session {
  struct Held;
  std::unique_ptr<Held> held_;  // behind a pointer, so that who uses one of the pieces need not know the others

 public:
  Session(Platform& runsOn, PageDirectory directory);
  ~Session();

  // The design, and slices of it for who uses no more of it.
  DesignRecord& record;
  Identity& identity;
  Entries& entries;
  Network& network;
  SweepSettings& sweep;

  Responses& responses;
  Configuration& configuration;  // the settings as they were read at start
  History& history;              // undo and redo

  // The family option that stands on the Design page, which the prototype routines read; kept here so that it is
  // known when the page is not loaded.
  i16 familyOption;

  // Whether the failure page of the Cauer family was left by a button that tries again.
  bool retriesCauer = false;

  // 1 while the page for entry by hand is called from the Design page, whose design it asks about before it goes.
  i16 ManualFromDesign = 0;

  // How charts and schematic are looked at. Their pages begin with the defaults; the charts' zoom alone stays.
  SmithView smithView;
  SchematicView schematicView;
  StepTexts stepTexts;
  TubeData tube;
  ExportChoices exports;
  StudyEntries studies;
  Diplexer diplexer;

  PlotSheet plot;  // the plot on display

  UniformNumbers random;   // all random numbers of the program come from here
  LongRun* run = nullptr;  // the long run in progress
  std::string note;        // what the last act did, for the status line; it ends with the next one
  bool noteHolds = false;  // the note is about a box that was left: it outlives the act that the box was left for
  int handlerDepth = 0;    // handlers that run just now, one inside the other (see Acts.h)
  bool ended = false;      // set when the program has ended

  Platform& platform;
  PageDesk pages;
};

}  // namespace quilm
