#include "shell/Entry.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/EntryMeaning.h"
#include "core/modGeneral.h"
#include "shell/Control.h"
#include "shell/Session.h"

namespace quilm {

Entry::Entry(Session& session, EntryBinding binding) : session_(session), binding_(std::move(binding)) {
  binding_.box.onChange = [this] { Type(); };
  binding_.box.onLeave = [this] { Leave(); };
}

std::string Entry::Echo() const {
  return EntryText(static_cast<f32>(static_cast<f64>(binding_.field) * PerUnit()), binding_.format);
}

std::string Entry::Shown() const {
  return binding_.ofZero == OfZero::Blank && binding_.field == 0 ? std::string() : Echo();
}

void Entry::Fill() {
  binding_.box.text = Shown();
  Remember();
}

void Entry::Remember() {
  filledText_ = binding_.box.text;
  filledValue_ = binding_.field;
}

f32 Entry::Typed() const {
  const std::string shown = Trimmed(binding_.box.text);
  if (shown == Echo()) return binding_.field;
  if (!shown.empty() && shown == filledText_) return filledValue_;
  std::string text = binding_.box.text;
  f32 value = 0;
  ParseEntry(text, value);
  return static_cast<f32>(static_cast<f64>(value) / PerUnit());
}

bool Entry::Agrees() const { return Typed() == binding_.field; }

void Entry::Take() {
  const f32 typed = Typed();
  binding_.field = binding_.hold == nullptr ? typed : binding_.hold(typed);
  if (binding_.field != typed && binding_.showsHeld == ShowsHeld::AtOnce) Repair();
}

void Entry::Type() {
  session_.note.clear();
  Take();
  if (binding_.onTaken) binding_.onTaken();
}

// Whether the text says the field to the letter.
bool Entry::Means(const std::string& text) const {
  const std::optional<f32> meaning = PlainMeaning(text);
  return meaning && static_cast<f32>(static_cast<f64>(*meaning) / PerUnit()) == binding_.field;
}

void Entry::Leave() {
  const std::string typed = Trimmed(binding_.box.text);
  if (binding_.ofZero == OfZero::Blank && binding_.field == 0 && typed.empty()) return;
  const std::string echo = Echo();
  if (typed == echo || Means(typed)) {
    binding_.box.text = echo;
  } else {
    binding_.box.Repair(echo);
    Note(typed);
  }
  Remember();
}

void Entry::Repair() {
  const std::string typed = Trimmed(binding_.box.text);
  binding_.box.Repair(Shown());
  Remember();
  Note(typed);
}

void Entry::Note(const std::string& typed) {
  const std::string said = typed.empty() ? std::string() : "\"" + typed + "\" ";
  session_.note = binding_.box.SpokenName() + ": " + said + "is taken as " + Echo();
}

Entry& EntryList::Bind(EntryBinding binding) { return entries_.emplace_back(session_, std::move(binding)); }

void EntryList::Fill() {
  for (Entry& entry : entries_) entry.Fill();
}

void EntryList::Refresh() {
  for (Entry& entry : entries_) {
    if (entry.Box().Shown() && !entry.Agrees()) entry.Fill();
  }
}

void EntryList::Repair() {
  for (Entry& entry : entries_) {
    if (entry.Box().Shown() && !entry.Agrees()) entry.Repair();
  }
}

Entry* EntryList::FirstRefused() {
  const auto at = std::find_if(entries_.begin(), entries_.end(), [](Entry& entry) { return !entry.Refusal().empty(); });
  return at == entries_.end() ? nullptr : &*at;
}

}  // namespace quilm
