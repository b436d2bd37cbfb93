#include "shell/Entry.h"

#include <algorithm>
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

std::string Entry::Shown() const {
  return binding_.ofZero == OfZero::Blank ? FilledText(binding_.field, binding_.format)
                                          : EntryText(binding_.field, binding_.format);
}

void Entry::Fill() { binding_.box.text = Shown(); }

f32 Entry::Typed() const {
  f32 value = binding_.field;
  if (Trimmed(binding_.box.text) == EntryText(value, binding_.format)) return value;
  std::string text = binding_.box.text;
  ParseEntry(text, value);
  return value;
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

void Entry::Leave() {
  const std::string typed = Trimmed(binding_.box.text);
  if (binding_.ofZero == OfZero::Blank && binding_.field == 0 && typed.empty()) return;
  const std::string echo = EntryText(binding_.field, binding_.format);
  if (typed == echo || PlainMeaning(typed) == binding_.field) {
    binding_.box.text = echo;
  } else {
    binding_.box.Repair(echo);
    Note(typed);
  }
}

void Entry::Repair() {
  const std::string typed = Trimmed(binding_.box.text);
  binding_.box.Repair(Shown());
  Note(typed);
}

void Entry::Note(const std::string& typed) {
  const std::string said = typed.empty() ? std::string() : "\"" + typed + "\" ";
  session_.note = binding_.box.SpokenName() + ": " + said + "is taken as " + EntryText(binding_.field, binding_.format);
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
