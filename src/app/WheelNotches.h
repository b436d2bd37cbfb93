// The turning of a wheel in whole notches: touch pads and fine wheels turn by less than one at a time.
#pragma once

#include <QWheelEvent>

namespace quilm {

class WheelNotches {
 public:
  // The notches that are complete with this event, positive away from the user; the rest waits for the next.
  int Take(const QWheelEvent& event) {
    turned_ += event.angleDelta().y();
    const int notches = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= notches * QWheelEvent::DefaultDeltasPerStep;
    return notches;
  }

 private:
  int turned_ = 0;  // eighths of a degree not yet taken
};

}  // namespace quilm
