// The pages that write files for other programs: what each button asks, writes and tells.
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <algorithm>

#include "analysis/modAnalysis.h"
#include "core/Responses.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"
#include "shell/History.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class Export : public PageBench {
 protected:
  Export() : PageBench(AllPages()) {
    StartProgram(session);
    platform.clock = DateTime{2026, 5, 4, 10, 0, 0};
    MakeLowpass();
    Press("cmdAnalysis");
    Enter("txtNrIntervals", "4");
    Press("cmdSpice");
  }

  void SaveAs(const std::string& name) { platform.files = {FileAnswer(Path(name), FileAnswer::For::Save)}; }
  void Cancel() { platform.files = {FileAnswer(std::nullopt)}; }
  const FileAsked& Asked() const { return platform.fileDialogs.back(); }

  std::vector<std::string> Lines(const std::string& name) {
    std::istringstream in(File(name));
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line.substr(0, line.find('\r')));
    return lines;
  }
};

TEST_F(Export, EveryMainPageLeadsHere) {
  Press("cmdExit");
  for (const char* page : {"cmdDesign", "cmdSchematic", "cmdEdit", "cmdAnalysis", "cmdPlot", "cmdTabulate"}) {
    if (Top().Find(page) != nullptr) Press(page);
    const PageId from = Top().Id();
    Press("cmdSpice");
    EXPECT_EQ(Top().Id(), PageId::WriteFiles) << page;
    EXPECT_EQ(session.pages.Find(from), nullptr) << page;
    Press("cmdExit");
    EXPECT_EQ(Top().Id(), PageId::Analyze);
    EXPECT_EQ(session.pages.Find(PageId::WriteFiles), nullptr);
  }
}

struct Kind {
  const char* button;
  const char* title;
  const char* filter;
  const char* name;
  const char* begins;
};

const char* const tables = "Tabulated-data files (*.DAT)|*.DAT|Text files (*.TXT|*.TXT|All files (*.*)|*.*";

const Kind kinds[] = {
    {"cmdWriteTabulatedS", "Quilm - write tabulated data file", tables, "Default.DAT", "\r\nFreq,          Trans,"},
    {"cmdWriteTabulatedE", "Quilm - write tabulated data file", tables, "Default.DAT", "\r\nFreq,      Trans,    "},
    {"cmdWriteNetlist", "Quilm - write Spice netlist file", "Spice files (*.CIR) | *.CIR", "Default.CIR",
     "* SPICE .CIR file by Quilm\r\n* 2026-05-04\r\n"},
    {"cmdWriteSubcircuit", "Quilm - write Spice subcircuit file", "Spice subcircuit files (*.SUB) | *.SUB",
     "Default.SUB", "* Subcircuit .SUB file by Quilm\r\n"},
    {"cmdWriteSpiceSchematic", "Quilm - write LTspice schematic", "LTspice files (*.ASC)|*.ASC", "Default.ASC",
     "Version 4\r\nSHEET 1"},
    {"cmdWriteSpiceSymbol", "Quilm - write LTspice symbol file", "LTspice symbol files (*.ASY) | *.ASY", "Filter.ASY",
     "Version 4\r\nSymbolType BLOCK\r\n"},
    {"cmdWriteVerified", "Quilm - write verified netlist", "Verified netlists (*.CIR)|*.CIR", "Verified.CIR", "*"},
};

TEST_F(Export, EveryKindIsAskedForAndWritten) {
  for (const Kind& kind : kinds) {
    const std::string name =
        std::string(kind.button) + std::string(kind.name).substr(std::string(kind.name).size() - 4);
    SaveAs(name);
    Press(kind.button);
    EXPECT_EQ(Asked().title, kind.title);
    EXPECT_EQ(Asked().filter, kind.filter);
    EXPECT_EQ(Asked().defaultName, Path(kind.name));
    EXPECT_THAT(File(name), StartsWith(kind.begins)) << kind.button;
    EXPECT_THAT(File(name), EndsWith("\r\n")) << kind.button;
    EXPECT_EQ(session.note, "Wrote " + Path(name));
    EXPECT_EQ(Top().Id(), PageId::WriteFiles);
  }
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(Export, EachKindRemembersItsFile) {
  for (const Kind& kind : kinds) {
    const std::string ending = std::string(kind.name).substr(std::string(kind.name).size() - 4);
    SaveAs(std::string("own-") + kind.button + ending);
    Press(kind.button);
    Cancel();
    Press(kind.button);
    EXPECT_EQ(Asked().defaultName, Path(std::string("own-") + kind.button + ending));
  }
}

TEST_F(Export, ADefaultNameStandsInTheFolderOfTheLastFile) {
  std::filesystem::create_directory(Path("out"));
  SaveAs("out/a.DAT");
  Press("cmdWriteTabulatedS");
  SaveAs("b.DAT");
  Press("cmdWriteTabulatedE");
  EXPECT_EQ(Asked().defaultName, Path("out/Default.DAT"));
  SaveAs("b.CIR");
  Press("cmdWriteNetlist");
  EXPECT_EQ(Asked().defaultName, Path("Default.CIR"));
}

TEST_F(Export, ANameWithoutAnExtensionGetsOne) {
  SaveAs("lowpass 1.5");
  Press("cmdWriteTabulatedS");
  EXPECT_TRUE(Exists("lowpass 1.5.DAT"));
  SaveAs("lowpass.txt");
  Press("cmdWriteTabulatedE");
  EXPECT_TRUE(Exists("lowpass.txt"));
  // The next dialog offers it with the extension of the kind.
  SaveAs("lowpass.dat");
  Press("cmdWriteTabulatedE");
  EXPECT_EQ(Asked().defaultName, Path("lowpass.DAT"));
  EXPECT_TRUE(Exists("lowpass.dat"));
}

// As that of a design, which would not be one any more.
TEST_F(Export, AnExtensionThatIsNotOfferedIsReplaced) {
  SaveAs("mine.QLM");
  Press("cmdWriteSpiceSymbol");
  EXPECT_FALSE(Exists("mine.QLM"));
  EXPECT_TRUE(Exists("mine.ASY"));
  SaveAs("mine.txt");
  Press("cmdWriteNetlist");
  EXPECT_TRUE(Exists("mine.CIR"));
  Press("cmdWriteSnP");
  SaveAs("mine.s1p");  // two ports
  Press("cmdContinue");
  EXPECT_TRUE(Exists("mine.S2P"));
  SaveAs("mine.s2p");
  Press("cmdContinue");
  EXPECT_TRUE(Exists("mine.s2p"));
}

// The dialog has asked about another name.
TEST_F(Export, AFileWhoseNameTheExtensionMakesIsAskedAbout) {
  std::ofstream(Path("a.DAT")) << "old";
  SaveAs("a");
  platform.answers = {Answer::No};
  Press("cmdWriteTabulatedS");
  EXPECT_EQ(File("a.DAT"), "old");
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{Path("a.DAT") + " already exists.\r\nDo you want to replace it?"});
  EXPECT_EQ(session.note, "Nothing was written: a.DAT stays as it is");
  SaveAs("a");
  platform.answers = {Answer::Yes};
  Press("cmdWriteTabulatedS");
  EXPECT_THAT(File("a.DAT"), HasSubstr("Freq,"));
}

TEST_F(Export, AfterACancelTheOfferedNameIsWrittenOnce) {
  for (const Kind& kind : kinds) {
    std::filesystem::remove(Path(kind.name));
    Cancel();
    Press(kind.button);
    EXPECT_THAT(File(kind.name), StartsWith(kind.begins));
    EXPECT_EQ(session.note, "Wrote " + Path(kind.name));
    std::ofstream(Path(kind.name)) << "mine";
    Cancel();
    Press(kind.button);
    EXPECT_EQ(File(kind.name), "mine") << kind.button;
    EXPECT_EQ(session.note,
              std::string("Nothing was written: the dialog was cancelled, and ") + kind.name + " is there already");
  }
}

TEST_F(Export, TheDialectOfTheVerifiedNetlistIsChosenAndStays) {
  EXPECT_TRUE(Get<OptionButton>("optNgspice").Value());
  SaveAs("n.CIR");
  Press("cmdWriteVerified");
  Press("optLTspice");
  SaveAs("l.CIR");
  Press("cmdWriteVerified");
  EXPECT_THAT(File("n.CIR"), HasSubstr("hertz"));
  EXPECT_THAT(File("l.CIR"), Not(HasSubstr("hertz")));
  Press("cmdExit");
  Press("cmdSpice");
  EXPECT_TRUE(Get<OptionButton>("optLTspice").Value());
}

TEST_F(Export, TheSweepIsMadeWhenItIsNotValid) {
  session.record.ResponsesValid = 0;
  session.responses = {};
  SaveAs("a.DAT");
  Press("cmdWriteTabulatedS");
  EXPECT_EQ(session.record.ResponsesValid, 1);
  EXPECT_THAT(Lines("a.DAT"), testing::SizeIs(10));
  EXPECT_THAT(Lines("a.DAT")[4], StartsWith("1000          "));
  EXPECT_THAT(Lines("a.DAT")[8], StartsWith("1E+07         "));
}

// Two rows by hand: a Butterworth lowpass has lost 3.01 dB at its edge, and 60 dB a decade above.
TEST_F(Export, TheTableHoldsTheLastSweep) {
  session.record.Qind[1] = session.record.Qcap[1] = 1e7F;
  session.record.ResponsesValid = 0;
  SaveAs("a.DAT");
  Press("cmdWriteTabulatedS");
  std::istringstream edge(Lines("a.DAT")[7]);
  f64 frequency = 0;
  f64 transmission = 0;
  f64 angle = 0;
  edge >> frequency >> transmission >> angle;
  EXPECT_EQ(frequency, 1e6);
  EXPECT_NEAR(transmission, -3.0103, 1e-3);
  EXPECT_NEAR(angle, -135, 1e-2);
  std::istringstream above(Lines("a.DAT")[8]);
  above >> frequency >> transmission;
  EXPECT_NEAR(transmission, -60, 1e-3);
}

TEST_F(Export, ASweepThatFailsIsToldAndNothingIsWritten) {
  session.record.ResponsesValid = 0;
  session.record.SweepMode = 2;
  session.record.NrIntervals = 3000;
  Press("cmdWriteTabulatedS");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_THAT(platform.messages[0].text, StartsWith("We had a plotting routine problem.\r\nSee modAnalysis line "));
  EXPECT_TRUE(platform.fileDialogs.empty());
  EXPECT_EQ(Top().Id(), PageId::Schematic);
  EXPECT_EQ(session.pages.Find(PageId::WriteFiles), nullptr);
}

// A folder stands where the file would go.
TEST_F(Export, WhatCannotBeWrittenIsToldInTheWordsOfItsKind) {
  for (const char* ending : {".DAT", ".CIR", ".SUB", ".ASC", ".ASY"}) {
    std::filesystem::create_directory(Path(std::string("folder") + ending));
  }
  const std::string netlist = "A problem was encountered and so we were unable to write the SPICE netlist";
  const std::pair<const char*, std::string> texts[] = {
      {"cmdWriteTabulatedS", "A problem was encountered and so the tabulated-data file was not written"},
      {"cmdWriteTabulatedE", "A problem was encountered and so the tabulated-data file was not written"},
      {"cmdWriteNetlist", netlist},
      {"cmdWriteSubcircuit", netlist},
      {"cmdWriteSpiceSchematic", "A problem was encountered and so we did not write the LTspice schematic file"},
      {"cmdWriteSpiceSymbol", Path("folder.ASY") + " was not written.\r\nThe reason: it is a folder"},
      {"cmdWriteVerified", Path("folder.CIR") + " was not written.\r\nThe reason: it is a folder"}};
  for (const auto& [button, text] : texts) {
    const auto* kind = std::find_if(std::begin(kinds), std::end(kinds),
                                    [&](const Kind& each) { return button == std::string(each.button); });
    const std::string name = "folder" + std::string(kind->name).substr(std::string(kind->name).size() - 4);
    SaveAs(name);
    Press(button);
    EXPECT_EQ(platform.messages.back().text, text) << button;
    EXPECT_EQ(session.note, name + " was not written: it is a folder");
    EXPECT_EQ(Top().Id(), PageId::WriteFiles);
  }
  EXPECT_EQ(platform.messages.size(), std::size(texts));
}

// The card of a capacitor of 0 divides by zero: the netlist stays as far as it got, of a schematic nothing does.
TEST_F(Export, WhatFailsHalfwayStaysWhereThatIsTold) {
  session.record.stage[1].Cval.value = 0;
  std::ofstream(Path("a.CIR")) << "old";
  std::ofstream(Path("a.ASC")) << "old";
  SaveAs("a.CIR");
  Press("cmdWriteNetlist");
  EXPECT_THAT(File("a.CIR"), StartsWith("* SPICE .CIR file by Quilm\r\n"));
  EXPECT_THAT(File("a.CIR"), Not(HasSubstr(".AC")));
  SaveAs("a.ASC");
  Press("cmdWriteSpiceSchematic");
  EXPECT_EQ(File("a.ASC"), "old");
  EXPECT_EQ(platform.messages.size(), 2U);
}

TEST_F(Export, WithoutANetworkOnlyTheSymbolCanBeWritten) {
  session.record.Stages = 0;
  session.pages.ShowPage(PageId::WriteFiles);
  for (const Kind& kind : kinds) {
    EXPECT_EQ(Get<Button>(kind.button).Usable(), std::string(kind.button) == "cmdWriteSpiceSymbol") << kind.button;
  }
  EXPECT_FALSE(Get<Button>("cmdWriteSnP").Usable());
}

class SnP : public Export {
 protected:
  SnP() { Press("cmdWriteSnP"); }

  std::string Caption(const char* name) { return Get<Label>(name).caption; }

  // Two ports of version 1.0.
  void Write(const std::string& name) {
    SaveAs(name);
    Press("cmdContinue");
  }
};

TEST_F(SnP, TakesThePlaceOfThePageAndShowsTheSweep) {
  EXPECT_EQ(Top().Id(), PageId::GetSnPoptions);
  EXPECT_EQ(session.pages.Find(PageId::WriteFiles), nullptr);
  EXPECT_EQ(Caption("lblStart"), "Starting frequency: 1k ");
  EXPECT_EQ(Caption("lblStop"), "Ending frequency: 10M ");
  EXPECT_EQ(Caption("lblNumber"), "Number of frequencies: 5");
  EXPECT_EQ(Caption("lblSweepMode"), "Logarithmic sweep");
  session.record.SweepMode = 1;
  session.pages.ShowPage(PageId::GetSnPoptions);
  EXPECT_EQ(Caption("lblSweepMode"), "Linear sweep");
  Press("cmdExit");
  EXPECT_EQ(Top().Id(), PageId::Analyze);
  EXPECT_TRUE(platform.fileDialogs.empty());
}

TEST_F(SnP, BeginsWithTwoPortsVersion1MegahertzAndDecibels) {
  for (const char* option : {"Option7", "Option1", "Option5", "Option9"}) {
    EXPECT_TRUE(Get<OptionButton>(option).Value()) << option;
  }
  Write("a.S2P");
  EXPECT_EQ(Asked().title, "Quilm - write S-parameter file");
  EXPECT_EQ(Asked().filter, "S-parameter files (*.S2P)|*.S2P|Text files (*.TXT)|*.TXT|All files (*.*)|*.*");
  EXPECT_EQ(Asked().defaultName, Path("Default.S2P"));
  const std::vector<std::string> lines = Lines("a.S2P");
  ASSERT_EQ(lines.size(), 9U);
  EXPECT_EQ(lines[0], "! 2-port S-parameter file Version 1.0 by Quilm 2026-05-04");
  EXPECT_EQ(lines[1], "# MHz S DB R 50");
  EXPECT_EQ(lines[2], "! Fstart: .001  Fstop: 10  Number of frequencies: 5");
  EXPECT_THAT(lines[7], StartsWith("1             "));
  EXPECT_EQ(session.note, "Wrote " + Path("a.S2P"));
  EXPECT_EQ(Top().Id(), PageId::GetSnPoptions);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SnP, EveryOptionIsWritten) {
  const std::pair<const char*, const char*> units[] = {
      {"Option3", "Hz"}, {"Option4", "kHz"}, {"Option5", "MHz"}, {"Option6", "GHz"}};
  for (const auto& [ports, suffix] : {std::pair{"Option7", ".S2P"}, {"Option8", ".S1P"}}) {
    for (const auto& [version, text] : {std::pair{"Option1", "Version 1.0"}, {"Option2", "Version 2.0"}}) {
      for (const auto& [unit, name] : units) {
        for (const auto& [format, letters] : {std::pair{"Option9", "DB"}, {"Option10", "MA"}}) {
          for (const char* option : {ports, version, unit, format}) Press(option);
          Write(std::string("a") + suffix);
          const std::string file = File(std::string("a") + suffix);
          EXPECT_THAT(file,
                      StartsWith(std::string(suffix[2] == '2' ? "! 2" : "! 1") + "-port S-parameter file " + text));
          EXPECT_THAT(file, HasSubstr(std::string("\r\n# ") + name + " S " + letters + " R 50\r\n"));
        }
      }
    }
  }
}

TEST_F(SnP, OptionsAndFileStayForTheRunOfTheProgram) {
  for (const char* option : {"Option8", "Option2", "Option6", "Option10"}) Press(option);
  Write("mine.S1P");
  EXPECT_EQ(Asked().filter, "S-parameter files (*.S1P)|*.S1P|Text files (*.TXT)|*.TXT|All files (*.*)|*.*");
  EXPECT_EQ(Asked().defaultName, Path("Default.S1P"));
  Press("cmdExit");
  Press("cmdSpice");
  Press("cmdWriteSnP");
  for (const char* option : {"Option8", "Option2", "Option6", "Option10"}) {
    EXPECT_TRUE(Get<OptionButton>(option).Value()) << option;
  }
  Press("Option7");
  Write("mine.S2P");
  EXPECT_EQ(Asked().defaultName, Path("mine.S2P"));
}

TEST_F(SnP, ReferencesFollowTheSourceInVersion1OfTwoPortsAlone) {
  session.record.Rsource[1] = 75;
  session.record.ResponsesValid = 0;
  Write("a.S2P");
  EXPECT_THAT(File("a.S2P"), HasSubstr(" R 75\r\n"));
  Press("Option2");
  Write("b.S2P");
  EXPECT_THAT(File("b.S2P"), HasSubstr(" R 50\r\n"));
  EXPECT_THAT(File("b.S2P"), HasSubstr("[Reference]  75 50\r\n"));
}

// The network is turned round for the file alone.
TEST_F(SnP, LeavesNoTraceInTheDesign) {
  session.record.stage[1].Cval.value *= 2;  // a ladder that differs from its reverse
  session.record.Rload[1] = 0.001F;         // below what a source is raised to
  session.record.ResponsesValid = 0;
  session.record.stage[3].ElementType = TransLine;
  session.record.stage[3].TLval = {90, 1e6F, 75, 1, 2};
  const std::string undo = session.history.UndoText();
  Write("a.S2P");  // sweeps
  const DesignRecord record = session.record;
  const auto responses = std::make_unique<Responses>(session.responses);
  Write("b.S2P");
  EXPECT_TRUE(session.record == record);
  EXPECT_EQ(session.record.ResponsesValid, 1);
  EXPECT_EQ(session.record.Family, familyButterworth);
  EXPECT_EQ(session.record.NetworkEdited, 0);
  EXPECT_EQ(session.responses.RespTrans, responses->RespTrans);
  EXPECT_EQ(session.responses.RespZin, responses->RespZin);
  EXPECT_EQ(session.responses.MaxZin, responses->MaxZin);
  EXPECT_EQ(session.responses.MinZin, responses->MinZin);
  EXPECT_EQ(session.history.UndoText(), undo);
  EXPECT_EQ(File("a.S2P"), File("b.S2P"));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(SnP, ASourceThatIsTooLowIsRaisedAndStaysSo) {
  session.record.Rsource[1] = 0.004F;
  session.record.ResponsesValid = 1;
  const std::string undo = session.history.UndoText();
  Write("a.S2P");
  EXPECT_EQ(session.record.Rsource[1], 0.01F);
  EXPECT_EQ(session.record.Rload[1], 50);
  EXPECT_EQ(session.record.ResponsesValid, 1);
  EXPECT_THAT(File("a.S2P"), HasSubstr(" R .01\r\n"));
  EXPECT_EQ(session.history.UndoText(), undo);
}

// The file is that of the raised source, also when the design was swept with the low one before.
TEST_F(SnP, ARaisedSourceIsSweptAnew) {
  session.record.Rsource[1] = 0.004F;
  session.record.ResponsesValid = 0;
  AnalyzeSweep(session);
  Write("swept.S2P");
  session.record.Rsource[1] = 0.01F;
  session.record.ResponsesValid = 0;
  Write("fresh.S2P");
  EXPECT_EQ(File("swept.S2P"), File("fresh.S2P"));
}

// Reciprocal: S12 is S21. The one end of the ladder that a capacitor closes sees another impedance than the other.
TEST_F(SnP, TheReverseIsThatOfTheNetwork) {
  session.record.stage[1].Cval.value *= 3;
  session.record.ResponsesValid = 0;
  Write("a.S2P");
  std::istringstream row(Lines("a.S2P")[7]);
  f64 frequency = 0;
  f64 s[8] = {};
  row >> frequency;
  for (f64& cell : s) row >> cell;
  EXPECT_NEAR(s[2], s[4], 1e-5);
  EXPECT_NEAR(s[3], s[5], 1e-4);
  EXPECT_GT(std::abs(s[1] - s[7]), 1);
}

TEST_F(SnP, ASweepThatFailsIsToldAndNothingIsWritten) {
  session.record.ResponsesValid = 0;
  session.record.NrIntervals = 3000;
  Press("cmdContinue");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].title, "Error checker");
  EXPECT_TRUE(platform.fileDialogs.empty());
  EXPECT_EQ(Top().Id(), PageId::Schematic);
  EXPECT_EQ(session.pages.Find(PageId::GetSnPoptions), nullptr);
}

TEST_F(SnP, AFileThatIsNotWrittenIsToldByItsKind) {
  std::filesystem::create_directory(Path("folder.S2P"));
  std::filesystem::create_directory(Path("folder.S1P"));
  Write("folder.S2P");
  Press("Option8");
  Write("folder.S1P");
  EXPECT_THAT(MessageTexts(), ElementsAre("A problem was encountered and so the S2P file was not written",
                                          "A problem was encountered and so the S1P file was not written"));
  EXPECT_EQ(Top().Id(), PageId::GetSnPoptions);
}

// As a reference of 0, which no entry gives, divides by zero in the first row.
TEST_F(SnP, WhatWasWrittenStays) {
  session.record.Rstandard = 0;
  session.record.ResponsesValid = 1;
  std::ofstream(Path("a.S2P")) << "old";
  Write("a.S2P");
  EXPECT_THAT(MessageTexts(), ElementsAre("A problem was encountered and so the S2P file was not written"));
  EXPECT_EQ(Lines("a.S2P").size(), 4U);
  EXPECT_EQ(session.note, Path("a.S2P") + " ends early: Division by zero");
}

TEST_F(SnP, ACancelledDialogWritesWhereNothingIsLost) {
  Cancel();
  Press("cmdContinue");
  EXPECT_EQ(Lines("Default.S2P").size(), 9U);
  std::ofstream(Path("Default.S2P")) << "mine";
  Cancel();
  Press("cmdContinue");
  EXPECT_EQ(File("Default.S2P"), "mine");
}

TEST_F(SnP, TheCloseBoxLeavesTheProgramAsOnAMainPage) {
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_TRUE(Exists("LASTSESSION.QLM"));
}

TEST_F(Export, TheCloseBoxLeavesTheProgramAsOnAMainPage) {
  PressCloseBox(session, Top());
  EXPECT_TRUE(session.ended);
  EXPECT_TRUE(Exists("LASTSESSION.QLM"));
}

TEST_F(Export, UndoTakesTheEntryBackThatWasMadeBefore) {
  SaveAs("a.DAT");
  Press("cmdWriteTabulatedS");
  Undo(session);
  EXPECT_EQ(session.record.NrIntervals, 1000);
  EXPECT_EQ(Top().Id(), PageId::Analyze);
}

}  // namespace
}  // namespace quilm
