// What a script prints and writes.
#include <filesystem>
#include <limits>

#include "core/NumberText.h"
#include "core/TextFile.h"
#include "core/modGeneral.h"
#include "script/Commands.h"
#include "script/Json.h"
#include "shell/Page.h"
#include "shell/SvgCanvas.h"

namespace quilm {

namespace {

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

void PrintRecord(ScriptRun& run, const std::string& arguments) {
  run.Emit(RecordEvent(run.session.record, Arguments(arguments, 0, anyNumber, "record [FIELD ...]")));
}

void PrintResponses(ScriptRun& run, const std::string& arguments) {
  run.Emit(ResponsesEvent(run.session.record, run.session.responses,
                          Arguments(arguments, 0, anyNumber, "responses [INDEX ...]")));
}

void PrintPage(ScriptRun& run, const std::string& arguments) {
  Arguments(arguments, 0, 0, "page");
  run.Emit(PageEvent(run.Top()));
}

struct NamedPicture {
  const std::string& name;
  const Picture& picture;
};

// The picture of the named picture box or button, of the page itself without a name.
NamedPicture FindPicture(ScriptRun& run, const std::string& name) {
  if (name.empty()) {
    const PictureBox& box = PagePicture(run);
    return {box.name, box.picture};
  }
  const Control& control = FindControl(run, name);
  if (const auto* box = dynamic_cast<const PictureBox*>(&control)) return {box->name, box->picture};
  if (const auto* button = dynamic_cast<const Button*>(&control)) return {button->name, button->picture};
  throw CommandFailure{name + " has no picture"};
}

void PrintCanvas(ScriptRun& run, const std::string& arguments) {
  const auto words = Arguments(arguments, 0, 1, "canvas [NAME]");
  const NamedPicture found = FindPicture(run, words.empty() ? std::string() : words[0]);
  run.Emit(CanvasEvent(found.name, found.picture));
}

void WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::error_code failed;
  if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path(), failed);
  if (!WriteTextFile(path.string(), text)) throw CommandFailure{path.string() + " cannot be written"};
}

void WritePicture(ScriptRun& run, const std::string& arguments) {
  const auto words = Arguments(arguments, 1, 2, "picture FILE.svg [NAME]");
  const NamedPicture found = FindPicture(run, words.size() == 2 ? words[1] : std::string());
  WriteFile(words[0], SvgText(found.picture));
}

// One sheet is FILE itself; of several, sheet 2 of "plot.svg" is "plot-2.svg".
void WritePrinted(ScriptRun& run, const std::string& arguments) {
  const std::filesystem::path path = WholeArgument(arguments, "printed FILE");
  const SheetPrinter& printer = run.platform.Printer();
  if (!printer.Ended()) throw CommandFailure{"nothing was printed"};
  const std::vector<Picture>& sheets = printer.Sheets();
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    std::filesystem::path sheet = path;
    if (sheets.size() > 1) {
      sheet.replace_filename(path.stem().string() + "-" + std::to_string(i + 1) + path.extension().string());
    }
    WriteFile(sheet, SvgText(sheets[i]));
  }
}

void PrintParsed(ScriptRun& run, const std::string& arguments) {
  std::string text = arguments;
  f32 value = 0;
  ParseEntry(text, value);
  run.Emit({{"event", "parse"}, {"value", NumberJson(value)}});
}

void PrintFormatted(ScriptRun& run, const std::string& arguments) {
  using Format = std::string (*)(f32);
  const std::map<std::string_view, Format> formats{{"frequency", FormatFrequency},
                                                   {"inductance", FormatInductance},
                                                   {"capacitance", FormatCapacitance},
                                                   {"resistance", FormatResistance},
                                                   {"time", FormatTime},
                                                   {"value", FormatValue},
                                                   {"numtext", [](f32 value) { return NumText(value); }}};
  const auto words = Arguments(arguments, 2, 2, "format KIND X");
  const auto format = formats.find(words[0]);
  if (format == formats.end()) throw CommandFailure{"there is no format " + words[0]};
  run.Emit({{"event", "format"}, {"text", format->second(NumberArgument(words[1]))}});
}

}  // namespace

const CommandTable& PrintCommands() {
  static const CommandTable table{{"record", PrintRecord}, {"responses", PrintResponses}, {"page", PrintPage},
                                  {"canvas", PrintCanvas}, {"picture", WritePicture},     {"printed", WritePrinted},
                                  {"parse", PrintParsed},  {"format", PrintFormatted}};
  return table;
}

}  // namespace quilm
