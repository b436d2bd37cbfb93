// The catalogue of elements: what each type of stage is, and which values it has.
//
// Whatever goes through the values of a stage (reader and writer of designs, labels, entry, tuning, tolerances, lists,
// exports) walks the slots of its type, so that a type is described here and nowhere else. What differs from page to
// page on purpose, as captions, limits and the order of entry do, stands with the page, by SlotCode.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/ElementTypes.h"
#include "core/Network.h"

namespace quilm {

// The values that an element may have.
enum class SlotCode {
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
};

// The field of a stage that a value rests in. Files and users' scripts know a column whole: its values, then its
// tolerances.
enum class StageColumn { L, C, R, Line, Turns, Coupled };

// One number of a stage, to read or to change: field(stage).
class StageField {
 public:
  // No number at all.
  constexpr StageField() = default;

  // The number `Member` of the stage's field `Group`.
  template <auto Group, auto Member>
  static constexpr StageField Of() {
    return {[](const Stage& stage) { return stage.*Group.*Member; },
            [](Stage& stage) -> f32& { return stage.*Group.*Member; }};
  }

  f32 operator()(const Stage& stage) const { return read_(stage); }
  f32& operator()(Stage& stage) const { return of_(stage); }
  explicit constexpr operator bool() const { return of_ != nullptr; }

 private:
  using Read = f32 (*)(const Stage&);
  using Access = f32& (*)(Stage&);
  constexpr StageField(Read read, Access of) : read_(read), of_(of) {}

  Read read_ = nullptr;
  Access of_ = nullptr;
};

struct Slot {
  SlotCode code;
  StageColumn column;
  std::string_view name;  // short, as beside a tolerance: "L", "Len"
  StageField value;       // H, F, ohms, degrees, Hz, or a plain number
  StageField tolerance;   // percent; the frequency of a line has none
  std::string (*format)(f32);
};

// Where an element stands.
enum class Placement {
  Series,   // in line between two stages
  Shunt,    // from the line to common
  Through,  // between two stages, with common as its return: lines, transformers, coupled inductors
};

// How an element is made of its values.
enum class Joint {
  Chain,     // parts one behind the other; a single part is a chain of one
  Parallel,  // parts side by side
  Line,      // a piece of transmission line
  ShortStub,
  OpenStub,
  Transformer,
  Coupled,
  Reactance,  // a form of entry: no values of its own until it becomes an inductor or a capacitor
};

struct Element {
  ElementCode code;
  std::string_view name;
  Placement placement;
  Joint joint;
  std::span<const Slot> slots;  // in the order of SlotCode

  constexpr bool Has(SlotCode slot) const {
    for (const Slot& own : slots) {
      if (own.code == slot) return true;
    }
    return false;
  }
};

// All types, code 1 first.
std::span<const Element> Elements();

// nullptr for a code that is no element.
const Element* FindElement(i16 elementType);

// The slots of a type; none for a code that is no element.
std::span<const Slot> SlotsOf(i16 elementType);

bool HasSlot(i16 elementType, SlotCode slot);

// Every slot that some element has, in the order of SlotCode. Each stage has room for all of them.
std::span<const Slot> AllSlots();

// The slots of one column.
std::span<const Slot> SlotsIn(StageColumn column);

}  // namespace quilm
