// What a monkey does next.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "script/ScriptPlatform.h"

namespace quilm {

class Control;
class PictureBox;
class ScriptRun;

class MonkeyActs {
 public:
  explicit MonkeyActs(std::uint32_t seed) : random_(seed) {}

  // A command of a script that a user could do on the pages in sight.
  std::string Next(ScriptRun& run);

  // The command that answers a box or dialog.
  std::string Answer(Asks what);

 private:
  int Below(int count);
  bool OneIn(int count) { return Below(count) == 0; }
  template <class List>
  const auto& Any(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
  }

  std::string Choose(ScriptRun& run);
  std::string Press(ScriptRun& run);
  std::string TypeText(ScriptRun& run);
  std::string TurnOrChoose(ScriptRun& run);
  std::string MouseOnPicture(ScriptRun& run);
  std::string PressArea(ScriptRun& run);
  std::string LookAtSomething();
  std::string StopRun(ScriptRun& run);
  std::string Number();

  std::mt19937 random_;
  bool undid_ = false;
  bool savesDesign_ = false;  // the present act; what others save must not be taken for a design later
  std::string planned_;       // the next act, made together with the last one
};

}  // namespace quilm
