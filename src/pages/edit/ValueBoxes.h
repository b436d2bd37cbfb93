// The boxes in which the values of one element are entered. The pages for entry by hand and for editing have the same
// ones; captions, order and what a page makes of a value are each page's own.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "core/ElementCatalogue.h"
#include "shell/Page.h"

namespace quilm {

// One for each slot, in the order of SlotCode, and those of the reactances, which become parts.
enum class ValueBox {
  Inductance,
  Capacitance,
  Resistance,
  LineLength,
  LineFrequency,
  LineImpedance,
  TurnsRatio,
  PrimaryInductance,
  SecondaryInductance,
  Coupling,
  Reactance,
  ReactanceFrequency,
};

inline constexpr std::size_t valueBoxCount = 12;

using BoxCaptions = std::array<const char*, valueBoxCount>;

// The boxes of a type, slot by slot; none for a code that is no element.
std::vector<ValueBox> BoxesOf(i16 elementType);

// The slot behind a box; nullptr for those of the reactances.
const Slot* SlotBehind(ValueBox box);

// The text of an entry as the number that it is taken for.
f32 ParsedText(const std::string& text);

class ValueBoxes {
 public:
  // Binds the boxes among the page's entries, to values of their own: a part changes when it is accepted. `onTaken`
  // runs after each keystroke.
  ValueBoxes(Page& page, const BoxCaptions& captions, const std::function<void()>& onTaken = {});
  ValueBoxes(const ValueBoxes&) = delete;
  ValueBoxes& operator=(const ValueBoxes&) = delete;

  void Hide();
  void Hide(ValueBox box) { SetShown(box, false); }
  // Shows these, and hides the others.
  void Show(std::span<const ValueBox> boxes);

  TextBox& Box(ValueBox box) const { return *boxes_[static_cast<std::size_t>(box)]; }

  // What was typed into a box, or stands there as SetText has put it: all that its text says, and no more.
  f32 Value(ValueBox box) const { return values_[static_cast<std::size_t>(box)]; }
  void SetText(ValueBox box, const std::string& text);

  FormRow Row(ValueBox box) const;

 private:
  void SetShown(ValueBox box, bool shown);

  std::array<std::unique_ptr<Label>, valueBoxCount> labels_;
  std::array<std::unique_ptr<TextBox>, valueBoxCount> boxes_;
  std::array<f32, valueBoxCount> values_{};
};

}  // namespace quilm
