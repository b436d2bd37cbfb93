// Whether there is a display to open a window on.
#pragma once

#include <QtGlobal>

namespace quilm {

// While it lives, a toolkit that finds no display, or none that lets it in, ends the program with status 1 and a line
// that says so, followed by the toolkit's own reasons; by itself it would abort. For the construction of the
// QApplication.
class DisplayCheck {
 public:
  DisplayCheck();
  ~DisplayCheck();
  DisplayCheck(const DisplayCheck&) = delete;
  DisplayCheck& operator=(const DisplayCheck&) = delete;

 private:
  QtMessageHandler former_;
};

}  // namespace quilm
