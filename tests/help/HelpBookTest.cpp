// The help as it was built: every link and picture leads somewhere, every page of the program has its page, with a
// picture, and every control is named there.
#include <algorithm>
#include <map>
#include <set>

#include "core/EntryLimits.h"
#include "help/BookText.h"
#include "pages/PageOverLowpass.h"
#include "shell/HelpPages.h"

namespace quilm {
namespace {

const fs::path folder = QUILM_HELP;

std::vector<std::string> PagesOfTheHelp() {
  std::vector<std::string> files;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (entry.path().extension() == ".htm") files.push_back(entry.path().filename().string());
  }
  return files;
}

// "Save 4 (empty)" is named by "Save 1 to Save 10", too.
bool HasInRow(const std::string& text, const std::string& words) {
  std::smatch parts;
  if (!std::regex_match(words, parts, std::regex("(.*) (\\d+)( \\(empty\\))?"))) return false;
  const std::string stem = parts[1];
  for (int last = std::stoi(parts[2]); last <= 10; ++last) {
    if (Has(text, stem + " 1 to " + stem + " " + std::to_string(last))) return true;
  }
  return false;
}

// A caption without its colon and the number behind it, a number in square brackets and the part that is in hand ("Tune
// C1"); a spoken name without its unit.
std::string Bare(const std::string& caption) {
  std::string bare = std::regex_replace(caption, std::regex("\\[\\d.*\\]"), "");
  bare = std::regex_replace(bare, std::regex(":\\s*\\d*\\s*$"), "");
  bare = std::regex_replace(bare, std::regex(" [LCR]\\d+$"), "");
  bare = Plain(std::regex_replace(bare, std::regex("<"), "&lt;"));
  while (!bare.empty() && (bare.back() == ' ' || bare.back() == ':')) bare.pop_back();
  while (!bare.empty() && bare.front() == ' ') bare.erase(0, 1);
  return bare;
}

std::string WithoutUnit(const std::string& name) { return std::regex_replace(name, std::regex(", [^,]*$"), ""); }

bool IsNamed(const std::string& text, const std::string& name) {
  for (const std::string& form : {Bare(name), Bare(WithoutUnit(name))}) {
    if (form.empty() || Has(text, form) || HasInRow(text, form)) return true;
  }
  return false;
}

TEST(HelpBook, EveryLinkLeadsSomewhere) {
  const std::vector<std::string> files = PagesOfTheHelp();
  ASSERT_GT(files.size(), 40U);
  std::map<std::string, std::set<std::string>> anchors;
  for (const std::string& file : files) {
    for (const std::string& id : AllOf(Read(folder / file), " id=\"([^\"]*)\"")) anchors[file].insert(id);
  }
  for (const std::string& file : files) {
    const std::string page = Read(folder / file);
    for (const std::string& link : AllOf(page, "(?:href|src)=\"([^\"]*)\"")) {
      const std::size_t sharp = link.find('#');
      const std::string target = sharp == 0 ? file : link.substr(0, sharp);
      EXPECT_TRUE(fs::is_regular_file(folder / target)) << file << " leads to " << link;
      if (sharp != std::string::npos) {
        EXPECT_EQ(anchors[target].count(link.substr(sharp + 1)), 1U) << file << " leads to " << link;
      }
    }
  }
}

TEST(HelpBook, AnIdStandsOnceOnItsPage) {
  for (const std::string& file : PagesOfTheHelp()) {
    std::vector<std::string> ids = AllOf(Read(folder / file), " id=\"([^\"]*)\"");
    std::ranges::sort(ids);
    EXPECT_EQ(std::ranges::adjacent_find(ids), ids.end()) << file;
  }
}

TEST(HelpBook, TheIndexLeadsToEveryPage) {
  const std::vector<std::string> links = AllOf(Read(folder / "index.htm"), "href=\"([^\"#]*)");
  for (const std::string& file : PagesOfTheHelp()) {
    EXPECT_NE(std::ranges::find(links, file), links.end()) << file;
  }
}

TEST(HelpBook, EveryPictureIsDrawn) {
  int pictures = 0;
  for (const auto& entry : fs::directory_iterator(folder / "pictures")) {
    const std::string drawing = Read(entry.path());
    EXPECT_NE(drawing.find("<svg"), std::string::npos) << entry.path();
    // More than the paper.
    EXPECT_GT(std::ranges::count(drawing, '<'), 6) << entry.path();
    ++pictures;
  }
  EXPECT_GT(pictures, 50);
}

TEST(HelpBook, NothingOfTheTemplateIsLeft) {
  for (const std::string& file : PagesOfTheHelp()) {
    EXPECT_TRUE(AllOf(Read(folder / file), "(@[A-Z]+@)").empty()) << file;
  }
}

TEST(HelpBook, EveryPageIdHasItsFile) {
  for (int id = 0; id <= static_cast<int>(PageId::Blank); ++id) {
    const PageId page = static_cast<PageId>(id);
    EXPECT_NE(HelpFile(page), "index.htm") << FormName(page);
    EXPECT_TRUE(fs::is_regular_file(folder / HelpFile(page))) << FormName(page);
  }
}

// The limits as the boxes take them stand in the row of the entry.
struct LimitRow {
  const char* file;
  const char* entry;
  EntryLimits limits;
};

void PrintTo(const LimitRow& row, std::ostream* out) { *out << row.file << ", " << row.entry; }

class Limits : public testing::TestWithParam<LimitRow> {};

TEST_P(Limits, StandInTheHelp) {
  const LimitRow& row = GetParam();
  const std::string page = Read(folder / row.file);
  const std::size_t from = page.find("<th>" + std::string(row.entry));
  ASSERT_NE(from, std::string::npos);
  const std::string text = Plain(page.substr(from, page.find("<tr>", from) - from));
  EXPECT_TRUE(Has(text, Plain(row.limits.lowestText))) << text;
  EXPECT_TRUE(Has(text, Plain(row.limits.highestText))) << text;
}

INSTANTIATE_TEST_SUITE_P(
    Help, Limits,
    testing::Values(LimitRow{"analysis.htm", "Start (Hz)", limitsOf::Fstart},
                    LimitRow{"analysis.htm", "Stop (Hz)", limitsOf::Fstop},
                    LimitRow{"analysis.htm", "Intervals", limitsOf::NrIntervals},
                    LimitRow{"analysis.htm", "Grid across", limitsOf::NrXints},
                    LimitRow{"analysis.htm", "Grid upward", limitsOf::NrYints},
                    LimitRow{"analysis.htm", "Loss bottom", limitsOf::LossBottom},
                    LimitRow{"analysis.htm", "VSWR top", limitsOf::VSWRTop},
                    LimitRow{"analysis.htm", "Line width", limitsOf::PlotLineWidth},
                    LimitRow{"analysis.htm", "Inductor Q", limitsOf::Q},
                    LimitRow{"plots.htm", "Aspect", limitsOf::SmithAspect},
                    LimitRow{"plots.htm", "VSWR<td>shows", limitsOf::VSWRCircle},
                    LimitRow{"design.htm", "Passband ripple", limitsOf::Apass},
                    LimitRow{"design.htm", "Stopband depth", limitsOf::Astop},
                    LimitRow{"design.htm", "Plot line width", limitsOf::PlotLineWidth},
                    LimitRow{"singly-terminated.htm", "Passband ripple", limitsOf::Apass},
                    LimitRow{"singly-terminated.htm", "Bandwidth", limitsOf::SinglyTerminatedWidth},
                    LimitRow{"singly-terminated.htm", "Output termination", limitsOf::OutputTermination},
                    LimitRow{"cauer-failure.htm", "Order", limitsOf::CauerOrder},
                    LimitRow{"tune-parts.htm", "Stepsize", limitsOf::TuneStep},
                    LimitRow{"tune-band.htm", "Stepsize", limitsOf::TuneStep},
                    LimitRow{"tune-ripple.htm", "Stepsize", limitsOf::TuneStep}));

// The labels that stand before boxes.
void AddFormLabels(const Layout& layout, std::vector<const Control*>& labels) {
  if (layout.kind == Layout::Kind::Form) {
    for (std::size_t i = 0; i < layout.items.size(); i += static_cast<std::size_t>(layout.columns)) {
      if (layout.items[i].kind == Layout::Kind::Control) labels.push_back(layout.items[i].control);
    }
  }
  for (const Layout& item : layout.items) AddFormLabels(item, labels);
}

bool IsNavigation(const Control& control) {
  const auto* button = dynamic_cast<const Button*>(&control);
  return button != nullptr && (button->role == ButtonRole::Segment || button->role == ButtonRole::Action);
}

// What the user reads or presses, by the name that it bears. Labels alone are texts that explain themselves.
std::string NameOf(const Control& control) {
  switch (control.kind) {
    case ControlKind::Button:
    case ControlKind::Option:
      return control.caption.empty() ? control.SpokenName() : control.caption;
    case ControlKind::Text:
    case ControlKind::Spin:
    case ControlKind::List:
    case ControlKind::Picture:
      return control.SpokenName();
    default:
      return {};
  }
}

class HelpOfPage : public PageOverLowpass {
 protected:
  HelpOfPage() {
    html = WithoutContents(Read(folder / HelpFile(GetParam())));
    text = Plain(html);
  }

  std::string html;
  std::string text;
};

TEST_P(HelpOfPage, HasAPicture) { EXPECT_NE(html.find("<figure><img src=\"pictures/"), std::string::npos); }

TEST_P(HelpOfPage, NamesEveryControl) {
  const std::string navigation = Plain(WithoutContents(Read(folder / "navigation.htm")));
  for (const Control* control : page->Controls()) {
    const std::string& where = IsNavigation(*control) ? navigation : text;
    EXPECT_TRUE(IsNamed(where, NameOf(*control)))
        << control->name << " \"" << NameOf(*control) << "\" is not in " << HelpFile(GetParam());
    if (IsNavigation(*control)) {
      EXPECT_NE(html.find("\"navigation.htm\""), std::string::npos);
    }
  }
}

TEST_P(HelpOfPage, NamesTheLabelOfEveryBox) {
  std::vector<const Control*> labels;
  AddFormLabels(page->MakeLayout(), labels);
  for (const Control* label : labels) {
    EXPECT_TRUE(IsNamed(text, label->caption))
        << label->name << " \"" << label->caption << "\" is not in " << HelpFile(GetParam());
  }
}

TEST_P(HelpOfPage, OpensByItsKey) {
  OpenHelp(session, GetParam());
  ASSERT_FALSE(platform.opened.empty());
  EXPECT_EQ(fs::path(platform.opened.back()).filename(), HelpFile(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(AllPages, HelpOfPage, testing::ValuesIn(AllIds()), NameOfPage);

// A name must stand there as it is: words within words are none.
TEST(NamesInTheHelp, AreWordsOfTheirOwn) {
  EXPECT_TRUE(IsNamed("press ok now", "Ok"));
  EXPECT_FALSE(IsNamed("look here", "Ok"));
  EXPECT_TRUE(IsNamed("save 1 to save 10", "Save 7"));
  EXPECT_FALSE(IsNamed("save 1 to save 6", "Save 7"));
  EXPECT_TRUE(IsNamed("order (n)", "Order  (N) [21 max]"));
  EXPECT_TRUE(IsNamed("move << to the left", "<<"));
  EXPECT_TRUE(IsNamed("the new inductance", "New inductance, H"));
}

}  // namespace
}  // namespace quilm
