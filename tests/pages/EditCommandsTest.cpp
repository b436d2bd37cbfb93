// The commands of the Edit page: values, insert, delete, change of topology, and what an accept makes of the boxes.

#include <gmock/gmock.h>

#include "core/ElementCatalogue.h"
#include "pages/EditBench.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

class EditCommands : public EditBench {
 protected:
  // Selects the only stage, of this type, and opens its boxes.
  void EditOnly(i16 type) {
    ShowStages({type});
    Area("stage1");
    Press("cmdEditValues");
    FocusName();
  }

  // Fills boxes and accepts; the messages that this shows.
  std::vector<std::string> Accept(const std::vector<std::pair<const char*, const char*>>& boxes) {
    platform.messages.clear();
    for (const auto& [box, text] : boxes) Enter(box, text);
    Press("cmdAccept");
    return MessageTexts();
  }
};

struct BoxesOfType {
  i16 type;
  std::vector<std::string> boxes;  // the first gets the focus
};

const std::vector<BoxesOfType> boxesOfTypes = {
    {SeriesL, {"txtInductorsValue"}},
    {ShuntL, {"txtInductorsValue"}},
    {SeriesC, {"txtCapacitorsValue"}},
    {ShuntC, {"txtCapacitorsValue"}},
    {SeriesSLC, {"txtInductorsValue", "txtCapacitorsValue"}},
    {ShuntSLC, {"txtInductorsValue", "txtCapacitorsValue"}},
    {SeriesPLC, {"txtInductorsValue", "txtCapacitorsValue"}},
    {ShuntPLC, {"txtInductorsValue", "txtCapacitorsValue"}},
    {SeriesR, {"txtResistorsValue"}},
    {ShuntR, {"txtResistorsValue"}},
    {TransLine, {"txtLineLength", "txtLineFrequency", "txtLineImpedance"}},
    {SeriesShortStub, {"txtLineLength", "txtLineFrequency", "txtLineImpedance"}},
    {SeriesOpenStub, {"txtLineLength", "txtLineFrequency", "txtLineImpedance"}},
    {ShuntShortStub, {"txtLineLength", "txtLineFrequency", "txtLineImpedance"}},
    {ShuntOpenStub, {"txtLineLength", "txtLineFrequency", "txtLineImpedance"}},
    {Transformer, {"txtTransformer"}},
    {SeriesReactance, {"txtReactanceValue", "txtReactanceFrequency"}},
    {ShuntReactance, {"txtReactanceValue", "txtReactanceFrequency"}},
    {CoupledInductors, {"txtPrimaryHenries", "txtSecondaryHenries", "txtCouplingCoefficient"}},
    {ShuntRLC, {"txtInductorsValue", "txtResistorsValue", "txtCapacitorsValue"}},
    {SeriesRLC, {"txtInductorsValue", "txtResistorsValue", "txtCapacitorsValue"}},
};

TEST_F(EditCommands, EachTypeHasItsBoxesWithTheFocusInTheFirst) {
  for (const BoxesOfType& each : boxesOfTypes) {
    ShowStages({each.type});
    Area("stage1");
    Press("cmdEditValues");
    EXPECT_THAT(Boxes(), UnorderedElementsAreArray(each.boxes)) << each.type;
    EXPECT_EQ(FocusName(), each.boxes.front()) << each.type;
    EXPECT_EQ(Commands(), "CIDEA");
    EXPECT_FALSE(Get<TextBox>("txtRetLossRef").Shown());
  }
}

TEST_F(EditCommands, ThePaletteOffersTheSameBoxes) {
  ShowStages({SeriesL});
  for (const BoxesOfType& each : boxesOfTypes) {
    Area("stage1");
    Press("cmdChangeTopology");
    Area(std::string(FindElement(each.type)->name));
    EXPECT_EQ(StageOf(1).ElementType, each.type);
    EXPECT_THAT(Boxes(), UnorderedElementsAreArray(each.boxes)) << each.type;
    EXPECT_EQ(FocusName(), each.boxes.front()) << each.type;
    Undo(session);
  }
}

TEST_F(EditCommands, BoxesShowTheValuesInTheirFormats) {
  ShowStages({SeriesRLC, TransLine, CoupledInductors, SeriesR, Transformer});
  StageOf(1).Lval.value = 22e-6F;
  StageOf(1).Cval.value = 47e-12F;
  StageOf(1).Rval.value = 2200;
  StageOf(2).TLval = {-30, 1e8F, 2200};
  StageOf(3).CoupledVal = {1e-6F, 2e-3F, 0.5F};
  StageOf(4).Rval.value = -75;
  StageOf(5).XfmrVal.value = 2.5F;
  const auto text = [this](const char* stage, const char* box) {
    Area(stage);
    Press("cmdEditValues");
    return Get<TextBox>(box).text;
  };
  EXPECT_EQ(text("stage1", "txtInductorsValue"), "22uH");
  EXPECT_EQ(text("stage1", "txtCapacitorsValue"), "47pF");
  EXPECT_EQ(text("stage1", "txtResistorsValue"), "2.2k");
  EXPECT_EQ(text("stage2", "txtLineLength"), "-30");
  EXPECT_EQ(text("stage2", "txtLineFrequency"), "100M");
  EXPECT_EQ(text("stage2", "txtLineImpedance"), "2.2k");
  EXPECT_EQ(text("stage3", "txtPrimaryHenries"), "1uH");
  EXPECT_EQ(text("stage3", "txtSecondaryHenries"), "2mH");
  EXPECT_EQ(text("stage3", "txtCouplingCoefficient"), "0.5");
  EXPECT_EQ(text("stage4", "txtResistorsValue"), "-75");
  EXPECT_EQ(text("stage5", "txtTransformer"), "2.5");
}

TEST_F(EditCommands, TerminationsAndReferenceAreEditedTogether) {
  Record().Rstandard = 60;
  session.pages.ShowPage(PageId::Edit);
  Area("source");
  Press("cmdEditValues");
  EXPECT_THAT(Boxes(), ElementsAre("txtResistorsValue"));
  EXPECT_EQ(Get<TextBox>("txtResistorsValue").text, "50");
  EXPECT_EQ(Get<TextBox>("txtRetLossRef").text, "60");
  EXPECT_EQ(FocusName(), "txtResistorsValue");
  EXPECT_THAT(Accept({{"txtResistorsValue", "75"}, {"txtRetLossRef", "70"}}), IsEmpty());
  EXPECT_EQ(Record().Rsource[1], 75);
  EXPECT_EQ(Record().Rload[1], 50);
  EXPECT_EQ(Record().Rstandard, 70);
  EXPECT_FALSE(Get<TextBox>("txtRetLossRef").Shown());
  Area("load");
  Press("cmdEditValues");
  EXPECT_EQ(Get<TextBox>("txtResistorsValue").text, "50");
  Accept({{"txtResistorsValue", "100"}});
  EXPECT_EQ(Record().Rload[1], 100);
  EXPECT_EQ(Record().Rsource[1], 75);
}

TEST_F(EditCommands, LowTerminationsAndReferencesAreReset) {
  Area("source");
  Press("cmdEditValues");
  EXPECT_THAT(Accept({{"txtResistorsValue", ".009"}}),
              ElementsAre("Input termination less than .01 is disallowed\r\nand so has been reset to .01 ohms"));
  EXPECT_EQ(Record().Rsource[1], 0.01F);
  Area("load");
  Press("cmdEditValues");
  EXPECT_THAT(Accept({{"txtResistorsValue", "-50"}, {"txtRetLossRef", "0"}}),
              ElementsAre("Output termination less than .01 is disallowed\r\nand so has been reset to .01 ohms",
                          "Return loss reference less than .01 is disallowed.\r\nIt has been reset to .01 ohms"));
  EXPECT_EQ(Record().Rload[1], 0.01F);
  EXPECT_EQ(Record().Rstandard, 0.01F);
  EXPECT_EQ(Get<TextBox>("txtRetLossRef").text, ".01");
  Area("source");
  Press("cmdEditValues");
  EXPECT_THAT(Accept({{"txtResistorsValue", ".01"}}), IsEmpty());
}

struct Correction {
  i16 type;
  std::vector<std::pair<const char*, const char*>> entered;
  const char* message;  // the first; "" for none
  f32 stored;
  f32 (*value)(const Stage&);
  const char* box;  // whose text is looked at
  const char* boxText;
};

f32 L(const Stage& s) { return s.Lval.value; }
f32 C(const Stage& s) { return s.Cval.value; }
f32 R(const Stage& s) { return s.Rval.value; }
f32 Len(const Stage& s) { return s.TLval.degrees; }
f32 Freq(const Stage& s) { return s.TLval.freq; }
f32 Imp(const Stage& s) { return s.TLval.impedance; }
f32 Ratio(const Stage& s) { return s.XfmrVal.value; }
f32 Pri(const Stage& s) { return s.CoupledVal.primary; }
f32 Sec(const Stage& s) { return s.CoupledVal.secondary; }
f32 K(const Stage& s) { return s.CoupledVal.k; }

const char* const lowL = "Inductor value is too low and\r\nso has been reset to 1 nanohenry";
const char* const lowC = "Capacitor value is too low and\r\nso has been reset to 1 picofarad";
const char* const lowR = "Resistor value is too low and\r\nso has been reset to .01 ohms";
const char* const noLength = "Zero length line is not allowed\r\nso has been reset to one degree";
const char* const lowFrequency = "The frequency entry is too low\r\nso has been reset to 100 kHz";
const char* const lowImpedance = "The line impedance entry is too low\r\nso has been reset to 5 ohms";
const char* const badRatio =
    "The turns ratio entry is outside the limits of .0001 to 10000\r\nIt has been reset to 1 (unity).";
const char* const lowPrimary = "The primary inductance entry is too low\r\nso it has been reset to 1 nanohenry";
const char* const lowSecondary = "The secondary inductance entry is too low\r\nso has been reset to 1 nanohenry";
const char* const lowK = "The coupling coefficient is too low and\r\nso has been reset to .0001";
const char* const highK = "The coupling coefficient is too high and\r\nso has been reset to unit (1)";

TEST_F(EditCommands, BadValuesAreCorrectedAndTheirLimitsPass) {
  using Entered = std::vector<std::pair<const char*, const char*>>;
  const auto line = [](const char* length, const char* frequency, const char* impedance) {
    return Entered{{"txtLineLength", length}, {"txtLineFrequency", frequency}, {"txtLineImpedance", impedance}};
  };
  const auto coupled = [](const char* primary, const char* secondary, const char* k) {
    return Entered{{"txtPrimaryHenries", primary}, {"txtSecondaryHenries", secondary}, {"txtCouplingCoefficient", k}};
  };
  const auto rlc = [](const char* l, const char* c, const char* r) {
    return Entered{{"txtInductorsValue", l}, {"txtCapacitorsValue", c}, {"txtResistorsValue", r}};
  };
  const std::vector<Correction> corrections = {
      {SeriesL, {{"txtInductorsValue", "0"}}, lowL, 1e-9F, L, "txtInductorsValue", ""},
      {ShuntL, {{"txtInductorsValue", "-1u"}}, lowL, 1e-9F, L, "txtInductorsValue", "-1uH"},
      {SeriesC, {{"txtCapacitorsValue", ""}}, lowC, 1e-12F, C, "txtCapacitorsValue", "1p"},
      {ShuntC, {{"txtCapacitorsValue", "-1"}}, lowC, 1e-12F, C, "txtCapacitorsValue", "1p"},
      {ShuntPLC,
       {{"txtInductorsValue", "1u"}, {"txtCapacitorsValue", "0"}},
       lowC,
       1e-12F,
       C,
       "txtCapacitorsValue",
       "1p"},
      {SeriesR, {{"txtResistorsValue", ".0099"}}, lowR, 0.01F, R, "txtResistorsValue", ".01"},
      {ShuntR, {{"txtResistorsValue", "-.0099"}}, lowR, 0.01F, R, "txtResistorsValue", ".01"},
      {ShuntR, {{"txtResistorsValue", "-.01"}}, "", -0.01F, R, "txtResistorsValue", "-0.01"},
      {SeriesR, {{"txtResistorsValue", ".01"}}, "", 0.01F, R, "txtResistorsValue", "0.01"},
      {TransLine, line("0", "1M", "50"), noLength, 1, Len, "txtLineLength", "1"},
      {TransLine, line("-30", "1M", "50"), "", -30, Len, "txtLineLength", "-30"},
      {ShuntOpenStub, line("30", "0", "50"), lowFrequency, 1e5F, Freq, "txtLineFrequency", "100k"},
      {SeriesShortStub, line("30", "1M", "-1"), lowImpedance, 5, Imp, "txtLineImpedance", "5"},
      {Transformer, {{"txtTransformer", ".0001"}}, badRatio, 1, Ratio, "txtTransformer", "0.0001"},
      {Transformer, {{"txtTransformer", "10000"}}, badRatio, 1, Ratio, "txtTransformer", "10k"},
      {Transformer, {{"txtTransformer", ".00011"}}, "", 0.00011F, Ratio, "txtTransformer", "0.00011"},
      {Transformer, {{"txtTransformer", "9999"}}, "", 9999, Ratio, "txtTransformer", "9.999k"},
      {CoupledInductors, coupled("0", "1u", ".5"), lowPrimary, 1e-9F, Pri, "txtPrimaryHenries", "1n"},
      {CoupledInductors, coupled("1u", "0", ".5"), lowSecondary, 1e-9F, Sec, "txtSecondaryHenries", "1n"},
      {CoupledInductors, coupled("1u", "1u", ".00009"), lowK, 0.0001F, K, "txtCouplingCoefficient", ".0001"},
      {CoupledInductors, coupled("1u", "1u", "1.001"), highK, 1, K, "txtCouplingCoefficient", "1"},
      {CoupledInductors, coupled("1u", "1u", ".0001"), "", 0.0001F, K, "txtCouplingCoefficient", "0.0001"},
      {CoupledInductors, coupled("1u", "1u", "1"), "", 1, K, "txtCouplingCoefficient", "1"},
      {ShuntRLC, rlc("0", "1p", "1"), "The inductance value reset to 1 nanohenry", 1e-9F, L, "txtInductorsValue", ""},
      {SeriesRLC, rlc("1u", "0", "1"), "The capacitor value reset to 1 picofarad", 1e-12F, C, "txtCapacitorsValue", ""},
      {SeriesRLC, rlc("1u", "1p", "-5"), "The resistor value reset to 1 ohm", 1, R, "txtResistorsValue", "-5"},
  };
  for (const Correction& each : corrections) {
    SCOPED_TRACE(std::string(each.message) + " " + each.entered.front().second);
    EditOnly(each.type);
    const auto messages = Accept(each.entered);
    if (*each.message == 0) {
      EXPECT_THAT(messages, IsEmpty());
    } else {
      EXPECT_THAT(messages, ElementsAre(each.message));
    }
    EXPECT_EQ(each.value(StageOf(1)), each.stored);
    EXPECT_EQ(Get<TextBox>(each.box).text, each.boxText);
  }
}

TEST_F(EditCommands, SeveralBadValuesAreToldOneAfterTheOther) {
  EditOnly(ShuntRLC);
  EXPECT_THAT(Accept({}), ElementsAre("The inductance value reset to 1 nanohenry",
                                      "The capacitor value reset to 1 picofarad", "The resistor value reset to 1 ohm"));
}

TEST_F(EditCommands, LinesAndCouplingsKeepNoInductorOrCapacitor) {
  for (const i16 type : {TransLine, ShuntOpenStub, CoupledInductors}) {
    EditOnly(type);
    StageOf(1).Lval = {1, 2};
    StageOf(1).Cval = {3, 4};
    Accept({});
    EXPECT_EQ(StageOf(1).Lval.value, 0) << type;
    EXPECT_EQ(StageOf(1).Cval.value, 0) << type;
  }
}

// A box that was opened shows six digits and is taken as it stands; what is typed counts with all of its digits.
TEST_F(EditCommands, BoxesAreTakenAsTheyStandAndTypedDigitsAllCount) {
  ShowStages({SeriesSLC});
  StageOf(1).Lval.value = 1.2345678e-6F;
  StageOf(1).Cval.value = 1.2345678e-9F;
  Area("stage1");
  Press("cmdEditValues");
  EXPECT_EQ(Get<TextBox>("txtInductorsValue").text, "1.23457uH");
  Accept({{"txtCapacitorsValue", "2.3456749n"}});
  EXPECT_EQ(StageOf(1).Lval.value, 1.23457e-6F);
  EXPECT_FLOAT_EQ(StageOf(1).Cval.value, 2.3456749e-9F);
}

TEST_F(EditCommands, AnAcceptEndsWithEverythingPutAway) {
  EditOnly(SeriesC);
  Accept({{"txtCapacitorsValue", "47p"}});
  EXPECT_EQ(StageOf(1).Cval.value, 47e-12F);
  EXPECT_THAT(Boxes(), IsEmpty());
  EXPECT_EQ(Commands(), "");
  EXPECT_TRUE(Get<Label>("lblSelectStage").Shown());
  EXPECT_FALSE(Get<Label>("lblClickOn").Shown());
  EXPECT_TRUE(Mark());
  EXPECT_EQ(FocusName(), "picEdit");
}

TEST_F(EditCommands, ATurnsRatioOutOfItsLimitsStaysToBeEnteredAnew) {
  ShowStages({SeriesL});
  Area("stage1");
  Press("cmdChangeTopology");
  Area("Transformer");
  EXPECT_THAT(Accept({{"txtTransformer", "20000"}}), ElementsAre(badRatio));
  EXPECT_EQ(StageOf(1).XfmrVal.value, 1);
  EXPECT_THAT(Boxes(), ElementsAre("txtTransformer"));
  EXPECT_EQ(Get<TextBox>("txtTransformer").text, "20k");
  EXPECT_EQ(Commands(), "A");
  EXPECT_TRUE(PaletteIsBlack());
  EXPECT_FALSE(Sheet().FindArea("SeriesL")->enabled);
  EXPECT_THAT(Accept({}), ElementsAre(badRatio));
  EXPECT_THAT(Accept({{"txtTransformer", "2"}}), IsEmpty());
  EXPECT_EQ(StageOf(1).XfmrVal.value, 2);
  EXPECT_EQ(Commands(), "");
  EXPECT_FALSE(PaletteIsBlack());
}

// 50 / (2 Pi 1e6) = 7.957747 uH.
TEST_F(EditCommands, ReactancesBecomeParts) {
  EditOnly(SeriesReactance);
  EXPECT_THAT(Accept({{"txtReactanceValue", "50"}, {"txtReactanceFrequency", "1M"}}), IsEmpty());
  EXPECT_EQ(StageOf(1).ElementType, SeriesL);
  EXPECT_FLOAT_EQ(StageOf(1).Lval.value, 7.957747e-6F);
  EditOnly(ShuntReactance);
  EXPECT_THAT(Accept({{"txtReactanceValue", "-50"}, {"txtReactanceFrequency", "0"}}),
              ElementsAre("The normalizing frequency must be greater than zero\r\nso has been reset to 1 MHz"));
  EXPECT_EQ(StageOf(1).ElementType, ShuntC);
  EXPECT_FLOAT_EQ(StageOf(1).Cval.value, 3.183099e-9F);
  EXPECT_EQ(Get<TextBox>("txtReactanceFrequency").text, "1M");
}

TEST_F(EditCommands, AReactanceOfZeroStaysAPlaceholder) {
  EditOnly(ShuntReactance);
  EXPECT_THAT(Accept({{"txtReactanceValue", "0"}, {"txtReactanceFrequency", "0"}}),
              ElementsAre("Zero reactance value is disallowed"));
  EXPECT_EQ(StageOf(1).ElementType, ShuntReactance);
  EXPECT_EQ(Commands(), "");
  EXPECT_EQ(Get<TextBox>("txtReactanceFrequency").text, "0.0");
}

TEST_F(EditCommands, AReactanceBeyondAllNumbersChangesNothing) {
  EditOnly(SeriesReactance);
  const DesignRecord before = Record();
  Accept({{"txtReactanceValue", "-1e-20"}, {"txtReactanceFrequency", "1e-20"}});
  EXPECT_EQ(Record(), before);
  EXPECT_EQ(Commands(), "CIDEA");
}

TEST_F(EditCommands, AnInsertLocksThePagesUntilItIsAccepted) {
  const Stage before = StageOf(2);
  const Stage last = StageOf(3);
  Area("stage2");
  Press("cmdInsertPart");
  EXPECT_EQ(Record().Stages, 4);
  EXPECT_EQ(StageOf(3), before);
  EXPECT_EQ(StageOf(4), last);
  EXPECT_EQ(StageOf(2).ElementType, before.ElementType);
  EXPECT_EQ(StageOf(2).Lval.value, 0);
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Record().NetworkEdited, 1);
  EXPECT_EQ(Record().ResponsesValid, 0);
  EXPECT_EQ(Commands(), "A");
  EXPECT_TRUE(PaletteIsBlack());
  EXPECT_TRUE(Get<Label>("lblClickOn").Shown());
  EXPECT_FALSE(Get<Label>("lblSelectStage").Shown());
  for (const char* name : {"cmdSave", "cmdGet", "cmdDesign", "cmdSchematic", "cmdAnalysis", "cmdPlot", "cmdTabulate",
                           "cmdPrint", "cmdSpice", "cmdHelp", "cmdAbout", "cmdExit"}) {
    EXPECT_FALSE(Get<Button>(name).Usable()) << name;
  }
  Area("ShuntR");
  EXPECT_EQ(StageOf(2).ElementType, ShuntR);
  EXPECT_THAT(Accept({{"txtResistorsValue", "1k"}}), IsEmpty());
  EXPECT_EQ(StageOf(2).Rval.value, 1000);
  EXPECT_TRUE(Get<Button>("cmdPlot").Usable());
  EXPECT_TRUE(Get<Button>("cmdExit").Usable());
  EXPECT_FALSE(PaletteIsBlack());
}

TEST_F(EditCommands, WhileAnElementIsChosenTheStripSelectsNothing) {
  Area("stage2");
  Press("cmdChangeTopology");
  const auto mark = Mark();
  MouseAt(Sheet().FindArea("stage1")->Middle().x, 1500);
  EXPECT_EQ(Mark()->from, mark->from);
  EXPECT_EQ(Commands(), "A");
  EXPECT_THROW(Area("stage1"), ActRefused);
}

TEST_F(EditCommands, AnInsertAcceptedWithoutAnElementTakesTheTypeOfItsPlace) {
  Area("stage2");
  Press("cmdInsertPart");
  EXPECT_THAT(Accept({}), ElementsAre(lowL));
  EXPECT_EQ(StageOf(2).ElementType, SeriesL);
  EXPECT_EQ(StageOf(2).Lval.value, 1e-9F);
}

TEST_F(EditCommands, AnInsertAtTheLoadAppendsAnEmptyPlace) {
  StageOf(4).ElementType = Transformer;  // left over from something else
  Area("load");
  Press("cmdInsertPart");
  EXPECT_EQ(Record().Stages, 4);
  EXPECT_EQ(StageOf(4), Stage{});
  EXPECT_THAT(Accept({}), IsEmpty());
  EXPECT_EQ(StageOf(4).ElementType, 0);
}

TEST_F(EditCommands, AnInsertShowsItsMarkUntilAnElementIsChosen) {
  const auto notice = [this] {
    for (const PictureOp& operation : Sheet().picture.Operations()) {
      const auto* text = std::get_if<TextOp>(&operation);
      if (text != nullptr && text->at.y < 500) return text->text;
    }
    return std::string();
  };
  Area("stage2");
  Press("cmdInsertPart");
  EXPECT_EQ(notice(), "Insert: stage 2");
  Area("SeriesL");
  EXPECT_EQ(notice(), "");
}

TEST_F(EditCommands, DeleteTakesTheStageOut) {
  const Stage third = StageOf(3);
  Area("stage2");
  Press("cmdDeletePart");
  EXPECT_EQ(Record().Stages, 2);
  EXPECT_EQ(StageOf(2), third);
  EXPECT_EQ(StageOf(3), Stage{});
  EXPECT_EQ(Record().Family, familyManual);
  EXPECT_EQ(Commands(), "");
  EXPECT_FALSE(Mark());
}

TEST_F(EditCommands, TheOnlyStageCanBeDeleted) {
  ShowStages({SeriesL});
  EXPECT_EQ(Commands(), "");
  Area("stage1");
  Press("cmdDeletePart");
  EXPECT_EQ(Record().Stages, 0);
  EXPECT_TRUE(Get<Label>("lblEmptyList").Shown());
}

TEST_F(EditCommands, AChangeOfTopologyClearsTheValuesAndKeepsTheType) {
  StageOf(2).Lval.tolerance = 5;
  Area("stage2");
  Press("cmdChangeTopology");
  Stage expected;
  expected.ElementType = SeriesL;
  EXPECT_EQ(StageOf(2), expected);
  EXPECT_EQ(Commands(), "A");
  EXPECT_TRUE(Get<Button>("cmdPlot").Usable()) << "the pages stay open";
  Area("SeriesPLC");
  Accept({{"txtInductorsValue", "10u"}, {"txtCapacitorsValue", "100p"}});
  EXPECT_EQ(StageOf(2).ElementType, SeriesPLC);
  EXPECT_EQ(StageOf(2).Lval.value, 10e-6F);
  EXPECT_EQ(StageOf(2).Cval.value, 100e-12F);
}

TEST_F(EditCommands, BoxesKeepTheirTextFromOneElementToTheNext) {
  Area("stage1");
  Press("cmdChangeTopology");
  Area("SeriesL");
  Enter("txtInductorsValue", "3u");
  Area("ShuntPLC");
  EXPECT_EQ(Get<TextBox>("txtInductorsValue").text, "3uH");
}

TEST_F(EditCommands, AChangeInABoxEnablesAccept) {
  ShowStages({Transformer});
  Area("stage1");
  Press("cmdEditValues");
  Get<Button>("cmdAccept").enabled = false;  // as an accept leaves it
  Enter("txtTransformer", "3");
  EXPECT_TRUE(Get<Button>("cmdAccept").Usable());
}

}  // namespace
}  // namespace quilm
