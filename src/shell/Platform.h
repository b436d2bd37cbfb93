// What the pages ask of the machine they run on. The window implements it with a toolkit, the script and the tests
// without one (HeadlessPlatform).
#pragma once

#include <optional>
#include <string>

#include "core/Types.h"

namespace quilm {

class Canvas;
class Page;

enum class Buttons { Ok, YesNo };
enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Answer { Ok, Yes, No };
enum class Orientation { Portrait, Landscape };

struct DateTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

class Platform {
 public:
  virtual ~Platform() = default;

  // Shows the text (lines joined by CR LF) and waits for the answer. An empty title shows the program's name.
  virtual Answer MessageBox(const std::string& text, Buttons buttons, Icon icon, const std::string& title) = 0;

  // Ask for a file; filters have the form "Quilm files (*.QLM)|*.QLM". Nothing when the user cancels. The first asks
  // for an existing file, the second asks before overwriting one.
  virtual std::optional<std::string> OpenDialog(const std::string& title, const std::string& filter) = 0;
  virtual std::optional<std::string> SaveDialog(const std::string& title, const std::string& filter,
                                                const std::string& defaultName) = 0;

  // Offers a printer whose sheets lie as `paper` says, unless the user chooses otherwise. The canvas is valid until its
  // EndDoc, and its scale is the paper's own in twips; nullptr when the user cancels. A printer that fails, here or at
  // the ends of sheets and of the document, throws a Fault.
  virtual Canvas* PrintDialog(Orientation paper) = 0;

  virtual void Beep() = 0;
  // Opens a document or an address with the program that the desktop has for it; false when there is none.
  virtual bool ShellOpen(const std::string& path) = 0;

  // Starts the operating system's own system information tool; false when there is none.
  virtual bool ShowSystemInformation() = 0;

  // Lets pending events run: the one way in which a long routine sees a press of its Stop button.
  virtual void Yield() = 0;

  // Seconds that a long run may go on between two yields: too short to be noticed, long enough that yields cost little.
  // 0 asks for one at each step.
  virtual f64 YieldInterval() const = 0;

  // Waits while the page stays visible, as the notes of the exit page do.
  virtual void Pause(f64 seconds) = 0;

  // Without a separator at their end: the folder that holds the last session and overlays, the one with the user's
  // preferences, which may be the same, and the one with the installed help pages.
  virtual std::string ProgramFolder() = 0;
  virtual std::string PreferencesFolder() = 0;
  virtual std::string HelpFolder() = 0;

  virtual DateTime Now() = 0;

  // Called by the page desk. A page is shown after its load step; RunModal and RunBeside return when the page has
  // closed, the latter shows it in the side place of `main`, which stays in sight.
  virtual void PageShown(Page& page) = 0;
  virtual void PageUnloaded(Page& page) = 0;
  virtual void RunModal(Page& page) = 0;
  virtual void RunBeside(Page& tool, Page& main) = 0;
};

}  // namespace quilm
