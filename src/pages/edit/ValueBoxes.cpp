#include "pages/edit/ValueBoxes.h"

#include <string>

#include "core/modGeneral.h"
#include "schematic/StageLabels.h"

namespace quilm {

namespace {

constexpr std::array<const char*, valueBoxCount> names = {
    "InductorsValue",   "CapacitorsValue",     "ResistorsValue", "LineLength",
    "LineFrequency",    "LineImpedance",       "Transformer",    "PrimaryHenries",
    "SecondaryHenries", "CouplingCoefficient", "ReactanceValue", "ReactanceFrequency"};

// Of an impedance too the plain number.
constexpr std::array<Formatter, valueBoxCount> formats = {
    FormatInductance, FormatCapacitance, FormatSignedResistance, FormatValue, FormatFrequency, FormatValue,
    FormatValue,      FormatInductance,  FormatInductance,       FormatValue, FormatValue,     FormatFrequency};

constexpr auto firstReactanceBox = static_cast<std::size_t>(ValueBox::Reactance);
static_assert(static_cast<std::size_t>(SlotCode::Coupling) + 1 == firstReactanceBox, "one box for each slot");

}  // namespace

std::vector<ValueBox> BoxesOf(i16 elementType) {
  std::vector<ValueBox> boxes;
  for (const Slot& slot : SlotsOf(elementType)) boxes.push_back(static_cast<ValueBox>(slot.code));
  const Element* element = FindElement(elementType);
  if (element != nullptr && element->joint == Joint::Reactance) {
    boxes = {ValueBox::Reactance, ValueBox::ReactanceFrequency};
  }
  return boxes;
}

const Slot* SlotBehind(ValueBox box) {
  const auto index = static_cast<std::size_t>(box);
  return index < firstReactanceBox ? &AllSlots()[index] : nullptr;
}

f32 ParsedText(const std::string& text) {
  std::string entry = text;
  f32 value = 0;
  ParseEntry(entry, value);
  return value;
}

ValueBoxes::ValueBoxes(Page& page, const BoxCaptions& captions, const std::function<void()>& onTaken) {
  for (std::size_t i = 0; i < valueBoxCount; ++i) {
    const std::string caption = captions[i];
    labels_[i] = std::make_unique<Label>(page, std::string("lbl") + names[i], caption);
    boxes_[i] = std::make_unique<TextBox>(page, std::string("txt") + names[i], caption.substr(0, caption.size() - 1));
    page.entries.Bind(
        {.box = *boxes_[i], .field = values_[i], .format = formats[i], .ofZero = OfZero::Blank, .onTaken = onTaken});
  }
  Hide();
}

void ValueBoxes::SetShown(ValueBox box, bool shown) {
  const auto index = static_cast<std::size_t>(box);
  labels_[index]->visible = boxes_[index]->visible = shown;
}

void ValueBoxes::Hide() { Show({}); }

void ValueBoxes::Show(std::span<const ValueBox> boxes) {
  for (std::size_t i = 0; i < valueBoxCount; ++i) SetShown(static_cast<ValueBox>(i), false);
  for (const ValueBox box : boxes) SetShown(box, true);
}

void ValueBoxes::SetText(ValueBox box, const std::string& text) {
  Box(box).text = text;
  values_[static_cast<std::size_t>(box)] = ParsedText(text);
}

FormRow ValueBoxes::Row(ValueBox box) const { return {Put(*labels_[static_cast<std::size_t>(box)]), Put(Box(box))}; }

}  // namespace quilm
