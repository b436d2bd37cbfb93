// What a script prints and writes.
#include <filesystem>
#include <limits>

#include "core/NumberText.h"
#include "core/TextFile.h"
#include "core/modGeneral.h"
#include "script/Commands.h"
#include "script/Json.h"
#include "script/PageSketch.h"
#include "shell/Page.h"
#include "shell/PdfCanvas.h"
#include "shell/SvgCanvas.h"

namespace quilm {

namespace {

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

void PrintRecord(ScriptRun& run, const std::string& arguments) {
  run.Emit(RecordEvent(run.session.record, Arguments(arguments, 0, anyNumber)));
}

void PrintResponses(ScriptRun& run, const std::string& arguments) {
  run.Emit(ResponsesEvent(run.session.identity, run.session.sweep, run.session.responses,
                          Arguments(arguments, 0, anyNumber)));
}

void PrintPage(ScriptRun& run, const std::string& arguments) {
  Arguments(arguments, 0, 0);
  for (const Page* page : PagesInSight(run)) run.Emit(PageEvent(*page));
}

// What has a picture: one of the two is there.
struct Pictured {
  const PictureBox* box = nullptr;
  const Button* button = nullptr;
};

// The named picture box or button, the picture of the page itself without a name.
Pictured FindPictured(ScriptRun& run, const std::string& name) {
  if (name.empty()) return {.box = &PagePicture(run)};
  const Control& control = FindControl(run, name);
  const Pictured found{dynamic_cast<const PictureBox*>(&control), dynamic_cast<const Button*>(&control)};
  if (found.box == nullptr && found.button == nullptr) throw CommandFailure{name + " has no picture"};
  return found;
}

void PrintCanvas(ScriptRun& run, const std::string& arguments) {
  const auto words = Arguments(arguments, 0, 1);
  const Pictured found = FindPictured(run, words.empty() ? std::string() : words[0]);
  run.Emit(found.box != nullptr ? CanvasEvent(*found.box) : CanvasEvent(*found.button));
}

void WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::error_code failed;
  if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path(), failed);
  if (!WriteTextFile(path.string(), text)) throw CommandFailure{path.string() + " cannot be written"};
}

bool IsPdf(const std::filesystem::path& path) {
  const std::string ending = path.extension().string();
  return ending == ".pdf" || ending == ".PDF";
}

void WritePicture(ScriptRun& run, const std::string& arguments) {
  const auto words = Arguments(arguments, 1, 2);
  const Pictured found = FindPictured(run, words.size() == 2 ? words[1] : std::string());
  const Picture picture = found.box != nullptr ? found.box->AsSeen() : found.button->picture;
  WriteFile(words[0], IsPdf(words[0]) ? PdfText(picture) : SvgText(picture));
}

// The page on top as its layout has it, for manuals.
void WriteSketch(ScriptRun& run, const std::string& arguments) {
  const std::string path = WholeArgument(arguments);
  const Picture picture = SketchOf(run.Top());
  WriteFile(path, IsPdf(path) ? PdfText(picture) : SvgText(picture));
}

// The whole document as a PDF, or sheet by sheet: one sheet is FILE itself; of several, sheet 2 of "plot.svg" is
// "plot-2.svg".
void WritePrinted(ScriptRun& run, const std::string& arguments) {
  const std::filesystem::path path = WholeArgument(arguments);
  const SheetPrinter& printer = run.platform.Printer();
  if (!printer.Ended()) throw CommandFailure{"nothing was printed"};
  const std::vector<Picture>& sheets = printer.Sheets();
  if (IsPdf(path)) {
    constexpr PaperSize letter{612, 792};
    const bool upright = printer.Paper() == Orientation::Portrait;
    WriteFile(path, PdfText(sheets, upright ? letter : PaperSize{letter.height, letter.width}));
    return;
  }
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
  const auto words = Arguments(arguments, 2, 2);
  const auto format = formats.find(words[0]);
  if (format == formats.end()) throw CommandFailure{"there is no format " + words[0]};
  run.Emit({{"event", "format"}, {"text", format->second(NumberArgument(words[1]))}});
}

}  // namespace

const CommandRows& PrintCommands() {
  static const CommandRows rows{
      {"record [FIELD ...]", "print fields of the design, all of them where none is named", PrintRecord},
      {"responses [INDEX ...]", "print points of the sweep by index, all of them where none is given", PrintResponses},
      {"page", "print the controls of the page on top, and of the page that it stands beside", PrintPage},
      {"canvas [NAME]", "print the operations of a picture, of what lies over it, and its named areas", PrintCanvas},
      {"picture FILE.svg [NAME]", "write a picture as it is seen, as SVG, or as PDF where FILE ends in .pdf",
       WritePicture},
      {"sketch FILE.svg", "draw the page on top from its layout, as SVG, or as PDF where FILE ends in .pdf",
       WriteSketch},
      {"printed FILE",
       "write the last printed document, as SVG with a file for each sheet, or as PDF where FILE ends in .pdf",
       WritePrinted},
      {"parse TEXT", "print the number that an entry box understands in TEXT", PrintParsed},
      {"format KIND X",
       "print X as it is shown; KIND is frequency, inductance, capacitance, resistance, time, value or numtext",
       PrintFormatted}};
  return rows;
}

}  // namespace quilm
