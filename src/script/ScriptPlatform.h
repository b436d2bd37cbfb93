// The machine under a script: what the script has not provided for is an error of the script, and modal pages take its
// next commands.
#pragma once

#include "shell/HeadlessPlatform.h"

namespace quilm {

// A command, or what the program asked while it ran, could not be done. Not a std::exception: it passes the handlers of
// the pages.
struct CommandFailure {
  std::string reason;
};

enum class Asks { Message, Question, OpenFile, SaveFile, Printer };

class ScriptPlatform : public HeadlessPlatform {
 public:
  using HeadlessPlatform::HeadlessPlatform;

  // Runs the commands that follow while a modal page is open; returns when it has closed.
  std::function<void(Page&)> onModal;

  // Called before the answer to a box or dialog is looked for: who cannot foresee what is asked queues it then.
  std::function<void(Asks)> onAsked;

  // A question with Yes and No needs a queued "yes" or "no", a box with Ok alone takes nothing but "ok". A dialog takes
  // no file that is meant for the other kind.
  Answer MessageBox(const std::string& text, Buttons buttons, Icon icon, const std::string& title) override;
  std::optional<std::string> OpenDialog(const std::string& title, const std::string& filter) override;
  std::optional<std::string> SaveDialog(const std::string& title, const std::string& filter,
                                        const std::string& defaultName) override;
  Canvas* PrintDialog(Orientation paper) override;
  void RunModal(Page& page) override;

 private:
  void Ask(Asks what) const;
  void RequireAnswer(const std::string& text, Buttons buttons) const;
  void RequireFile(const std::string& title, bool save) const;
};

}  // namespace quilm
