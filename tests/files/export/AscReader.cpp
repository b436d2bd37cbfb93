#include "files/export/AscReader.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <numeric>
#include <sstream>

#include "core/Fault.h"
#include "core/modGeneral.h"
#include "files/export/LtspiceBench.h"

namespace quilm {

namespace {

struct Place {
  int x = 0;
  int y = 0;
  bool operator==(const Place&) const = default;
};

struct Wire {
  Place from;
  Place to;
};

// The pins of the symbols that come with LTspice, in the order in which a netlist names them.
std::vector<Place> PinsOf(const std::string& symbol) {
  if (symbol == "voltage") return {{0, 16}, {0, 96}};
  if (symbol == "res") return {{16, 16}, {16, 96}};
  if (symbol == "ind" || symbol == "ind2") return {{16, 16}, {16, 96}};  // the dot of ind2 is at the first
  if (symbol == "cap") return {{16, 0}, {16, 64}};
  if (symbol == "tline") return {{-48, -16}, {-48, 16}, {48, -16}, {48, 16}};
  throw Fault("no symbol " + symbol);
}

// A quarter of a turn is clockwise, y counts downwards; M is a mirror image, left for right.
Place Turned(Place pin, const std::string& turn) {
  if (turn == "R0") return pin;
  if (turn == "R90") return {-pin.y, pin.x};
  if (turn == "R270") return {pin.y, -pin.x};
  if (turn == "M0") return {-pin.x, pin.y};
  throw Fault("no turn " + turn);
}

bool IsBetween(int value, int a, int b) { return value >= std::min(a, b) && value <= std::max(a, b); }

bool LiesOn(Place place, const Wire& wire) {
  const int across =
      (wire.to.x - wire.from.x) * (place.y - wire.from.y) - (wire.to.y - wire.from.y) * (place.x - wire.from.x);
  return across == 0 && IsBetween(place.x, wire.from.x, wire.to.x) && IsBetween(place.y, wire.from.y, wire.to.y);
}

// Places that are joined by wires. Wires that cross join only where one of them ends or a pin is.
class Joints {
 public:
  std::size_t Add(Place place) {
    places_.push_back(place);
    group_.push_back(group_.size());
    return places_.size() - 1;
  }

  void Connect(const std::vector<Wire>& wires) {
    for (const Wire& wire : wires) {
      const std::size_t end = Add(wire.from);
      Join(end, Add(wire.to));
    }
    for (std::size_t w = 0; w < wires.size(); ++w) {
      const std::size_t end = places_.size() - 2 * wires.size() + 2 * w;
      for (std::size_t p = 0; p < places_.size(); ++p) {
        if (LiesOn(places_[p], wires[w])) Join(p, end);
      }
    }
    // Pins may meet without a wire.
    for (std::size_t p = 0; p < places_.size(); ++p) {
      const auto first = std::find(places_.begin(), places_.end(), places_[p]);
      Join(p, static_cast<std::size_t>(first - places_.begin()));
    }
  }

  std::size_t GroupOf(std::size_t place) const {
    while (group_[place] != place) place = group_[place];
    return place;
  }

 private:
  void Join(std::size_t a, std::size_t b) { group_[GroupOf(a)] = GroupOf(b); }

  std::vector<Place> places_;
  std::vector<std::size_t> group_;
};

int Whole(const std::string& word) {
  char* end = nullptr;
  const long value = std::strtol(word.c_str(), &end, 10);
  if (word.empty() || *end != 0) throw Fault("no whole number: " + word);
  return static_cast<int>(value);
}

int OnGrid(const std::string& word) {
  constexpr int grid = 16;
  const int value = Whole(word);
  if (value % grid != 0) throw Fault("no place on the grid: " + word);
  return value;
}

// The words of a line; what is left of it where the number of words is limited.
class Words {
 public:
  explicit Words(const std::string& line) : in_(line) {}
  std::string Next() {
    std::string word;
    if (!(in_ >> word)) throw Fault("a line ends early");
    return word;
  }
  Place NextPlace() {
    const int x = OnGrid(Next());
    return {x, OnGrid(Next())};
  }
  std::string Rest() {
    std::string rest;
    std::getline(in_, rest);
    return Trimmed(rest);
  }

 private:
  std::istringstream in_;
};

class Reader {
 public:
  void Take(const std::string& line) {
    Words words(line);
    const std::string form = words.Next();
    if (form == "SYMBOL") return TakeSymbol(words);
    if (form == "WIRE") return TakeWire(words);
    if (form == "FLAG") return TakeFlag(words);
    if (form == "SYMATTR") return TakeAttribute(words);
    if (form == "TEXT") return TakeText(words);
    if (form == "SHEET") {
      words.Next();
      sheet_.sheetWidth = words.Next();
    } else if (form != "Version" && form != "WINDOW") {
      throw Fault("no line: " + line);
    }
  }

  AscSheet Finish() {
    joints_.Connect(wires_);
    for (std::size_t p = 0; p < sheet_.parts.size(); ++p) {
      for (const std::size_t pin : pins_[p]) sheet_.parts[p].nodes.push_back(NodeOf(pin));
    }
    for (const AscPart& part : sheet_.parts) {
      for (const std::string& node : part.nodes) ++sheet_.pinsAt[node];
    }
    return sheet_;
  }

 private:
  void TakeSymbol(Words& words) {
    sheet_.parts.push_back({words.Next(), {}, {}, {}, {}});
    const Place place = words.NextPlace();
    const std::string turn = words.Next();
    pins_.emplace_back();
    for (const Place pin : PinsOf(sheet_.parts.back().symbol)) {
      const Place turned = Turned(pin, turn);
      pins_.back().push_back(joints_.Add({place.x + turned.x, place.y + turned.y}));
    }
  }
  void TakeWire(Words& words) {
    const Place from = words.NextPlace();
    wires_.push_back({from, words.NextPlace()});
  }
  void TakeFlag(Words& words) {
    grounds_.push_back(joints_.Add(words.NextPlace()));
    if (words.Rest() != "0") throw Fault("a flag that is not common");
  }
  void TakeAttribute(Words& words) {
    if (sheet_.parts.empty()) throw Fault("an attribute of no part");
    AscPart& part = sheet_.parts.back();
    const std::string key = words.Next();
    std::string& attribute = key == "InstName" ? part.name : key == "Value" ? part.value : part.spiceLine;
    if (!attribute.empty()) throw Fault("an attribute that is there twice");
    attribute = words.Rest();
  }
  void TakeText(Words& words) {
    for (int i = 0; i < 2; ++i) Whole(words.Next());  // joins nothing, and may stand off the grid
    words.Next();
    words.Next();
    const std::string content = words.Rest();
    if (content.empty() || (content[0] != '!' && content[0] != ';')) throw Fault("no text: " + content);
    (content[0] == '!' ? sheet_.directives : sheet_.comments).push_back(Trimmed(content.substr(1)));
  }

  std::string NodeOf(std::size_t place) const {
    const std::size_t group = joints_.GroupOf(place);
    const bool common = std::any_of(grounds_.begin(), grounds_.end(),
                                    [&](std::size_t ground) { return joints_.GroupOf(ground) == group; });
    return common ? "0" : std::string("n").append(std::to_string(group));
  }

  AscSheet sheet_;
  Joints joints_;
  std::vector<std::vector<std::size_t>> pins_;
  std::vector<Wire> wires_;
  std::vector<std::size_t> grounds_;
};

std::string Card(const AscPart& part, const std::string& first, const std::string& last) {
  return part.name + " " + first + " " + last + " " + part.value + "\n";
}

std::string CardsOf(const AscPart& part) {
  const std::vector<std::string>& node = part.nodes;
  if (part.symbol == "tline") {
    return part.name + " " + node[0] + " " + node[1] + " " + node[2] + " " + node[3] + " " + part.value + "\n";
  }
  const std::string loss = part.spiceLine.empty() ? "" : part.spiceLine.substr(part.spiceLine.find('=') + 1);
  if (part.symbol == "cap") {
    return Card(part, node[0], node[1]) + "Rpar" + part.name + " " + node[0] + " " + node[1] + " " + loss + "\n";
  }
  if (loss.empty() || SimulatorNumber(loss) == 0) return Card(part, node[0], node[1]);
  const std::string inner = "in" + part.name;
  return Card(part, node[0], inner) + "Rser" + part.name + " " + inner + " " + node[1] + " " + loss + "\n";
}

bool StartsWith(const std::string& text, const std::string& start) {
  return text.size() >= start.size() && std::equal(start.begin(), start.end(), text.begin(), [](char a, char b) {
           return a == std::tolower(static_cast<unsigned char>(b));
         });
}

}  // namespace

AscSheet ReadAsc(const std::string& text) {
  Reader reader;
  for (const std::string& line : LinesOf(text)) reader.Take(line);
  return reader.Finish();
}

const AscPart& PartNamed(const AscSheet& sheet, const std::string& name) {
  const auto part =
      std::find_if(sheet.parts.begin(), sheet.parts.end(), [&](const AscPart& p) { return p.name == name; });
  if (part == sheet.parts.end()) throw Fault("no part " + name);
  return *part;
}

std::string NetlistOf(const AscSheet& sheet) {
  std::string text = "schematic\n";
  for (const AscPart& part : sheet.parts) text += CardsOf(part);
  for (const std::string& directive : sheet.directives) {
    if (directive.front() == 'K') text += directive + "\n";
  }
  return text + ".end\n";
}

f64 SimulatorNumber(const std::string& text) {
  char* end = nullptr;
  const f64 number = std::strtod(text.c_str(), &end);
  if (end == text.c_str()) throw Fault("no number: " + text);
  // Longer ones first: "Meg" is not "m".
  constexpr std::pair<const char*, f64> multipliers[] = {{"meg", 1e6}, {"t", 1e12},  {"g", 1e9},
                                                         {"k", 1e3},   {"m", 1e-3},  {"u", 1e-6},
                                                         {"n", 1e-9},  {"p", 1e-12}, {"f", 1e-15}};
  for (const auto& [letters, factor] : multipliers) {
    if (StartsWith(end, letters)) return number * factor;
  }
  return number;
}

f64 NumberAfter(const std::string& text, const std::string& key) {
  const std::size_t at = text.find(key + "=");
  if (at == std::string::npos) throw Fault("no " + key + " in " + text);
  return SimulatorNumber(text.substr(at + key.size() + 1));
}

}  // namespace quilm
