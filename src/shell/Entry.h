// Entries: boxes bound to fields. A page says once of each of its entries what belongs together, and everything else
// follows from that: the page's load, each keystroke, the echo when a box is left, and what a rule put in its place.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "shell/EntryText.h"

namespace quilm {

class Session;
class TextBox;

// What a box shows of 0: the figure, or nothing, where 0 means that nobody has filled it yet.
enum class OfZero { Figure, Blank };

// When a value that its rule has changed shows in the box: as soon as it is typed, or when the box is left. Only a
// limit that no further keystroke could bring the value back within may show at once.
enum class ShowsHeld { OnLeaving, AtOnce };

struct EntryBinding {
  TextBox& box;
  f32& field;
  Formatter format;
  f32 (*hold)(f32) = nullptr;  // what a typed value becomes; none: it stays as typed
  ShowsHeld showsHeld = ShowsHeld::OnLeaving;
  OfZero ofZero = OfZero::Figure;
  std::function<void()> onTaken = {};  // after each keystroke: what it makes invalid, what follows it on the page
  // Why the page cannot be accepted with this value; empty when it can. None: any value will do.
  std::function<std::string(f32)> refusal = {};
  // How many of the unit that the box speaks in make one of the field's: 2.54 where inches are entered in centimetres.
  // None: they are the same.
  std::function<f64()> perUnit = {};
};

class Entry {
 public:
  Entry(Session& session, EntryBinding binding);

  TextBox& Box() const { return binding_.box; }
  f32& Field() const { return binding_.field; }

  // Shows the field.
  void Fill();

  // Takes the box into the field, as the rule holds it. A box that just shows the field leaves it alone, so that
  // reading back an echo of six digits never costs the others: 1.2345678M stays 1234567.8 while its box reads 1.23457M.
  // The text that the page has filled in stands for the value behind it also when it is typed again.
  void Take();

  // A keystroke: takes the box and does what follows.
  void Type();

  // Echoes what was understood. A value that is not what the text says to the letter shows as a repair, with a note. A
  // blank box whose 0 is blank stays blank.
  void Leave();

  // Shows what a rule put into the field: the box as repaired, and a note.
  void Repair();

  // What the box shows of the field when it is filled.
  std::string Shown() const;

  // Whether the box says what the field holds.
  bool Agrees() const;

  std::string Refusal() const { return binding_.refusal ? binding_.refusal(binding_.field) : std::string(); }

 private:
  f32 Typed() const;         // what the parser makes of the box
  std::string Echo() const;  // the field in display format, in the unit of the box
  f64 PerUnit() const { return binding_.perUnit ? binding_.perUnit() : 1; }
  void Remember();
  bool Means(const std::string& text) const;
  void Note(const std::string& typed);

  Session& session_;
  EntryBinding binding_;
  std::string filledText_;  // what the page has filled in last, and the value that it stands for
  f32 filledValue_ = 0;
};

// The entries of one page.
class EntryList {
 public:
  explicit EntryList(Session& session) : session_(session) {}
  EntryList(const EntryList&) = delete;
  EntryList& operator=(const EntryList&) = delete;

  // Gives the box its handlers. Box and field must live as long as the page.
  Entry& Bind(EntryBinding binding);

  // Shows all fields.
  void Fill();

  // Shows what has changed behind the boxes that are on display, by another page or by a result: without a note for
  // what is no correction, as a repair where a rule has corrected what was entered.
  void Refresh();
  void Repair();

  // The first entry that is refused, in the order of binding; nullptr when all will do.
  Entry* FirstRefused();

  std::deque<Entry>& All() { return entries_; }

 private:
  Session& session_;
  std::deque<Entry> entries_;  // handlers hold on to their entry
};

}  // namespace quilm
