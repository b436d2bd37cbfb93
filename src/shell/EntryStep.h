// Steps the digit at the cursor of an entry box, as the arrow keys and the wheel do.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quilm {

struct EntryStep {
  std::string text;
  int cursor = 0;  // before the stepped digit again, where that one has moved to
  bool operator==(const EntryStep&) const = default;
};

// Adds `direction` (+1 or -1) at the place of the digit to the right of `cursor` (0 is before the first character), or
// of the number's last digit when none follows. Only the first number of the text steps; what surrounds it (sign, unit
// letters) stays. Carries and borrows go to the left; zeros in front of the digit at the cursor fall away, those after
// it stay, so that stepping back gives the text from before. The sign never changes: the number ends at zero.
//
// Nothing when the text holds no digit, when the number has more than 17 digits, or when it is at its end.
std::optional<EntryStep> StepDigit(std::string_view text, int cursor, int direction);

}  // namespace quilm
