#include "pages/transforms/frmImpedanceMatch.h"

#include "core/DesignRecord.h"
#include "core/modGeneral.h"
#include "desk/ResponseChange.h"
#include "network/DesignStanding.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr const char* captions[] = {"No change", "Option 1", "Option 2", "Option 3", "Option 4", "Option 5"};

std::string Ohms(f32 value) { return EntryText(value, FormatResistance) + " ohms"; }

// What of the network stands at its end: a tuned stage, or the three that one was made of.
std::vector<Stage> EndStages(const Network& network, MatchSide side) {
  constexpr int split = 3;
  std::vector<Stage> stages;
  const auto at = [&](int fromEnd) {
    return network.stage[side == MatchSide::Input ? fromEnd : network.Stages + 1 - fromEnd];
  };
  for (int fromEnd = 1; fromEnd <= split && fromEnd <= network.Stages; ++fromEnd) {
    stages.push_back(at(fromEnd));
    if (stages.back().ElementType == SeriesSLC || stages.back().ElementType == ShuntPLC) break;
  }
  return stages;
}

}  // namespace

struct frmImpedanceMatch::SideNames {
  MatchSide side;
  const char* frame;
  const char* title;
  const char* current;
  const char* currentCaption;
  const char* wanted;
  const char* wantedCaption;
  const char* box;
  const char* boxName;
  const char* preview;
  const char* previewCaption;
  const char* advice;
  const char* choices[6];
  const char* present;  // heading of the row with the end as it is
  const char* refusal;  // of a network without a pair
  const char* tooLow;
};

const frmImpedanceMatch::SideNames frmImpedanceMatch::inputNames = {
    .side = MatchSide::Input,
    .frame = "fraInput",
    .title = "Input Termination Routine",
    .current = "lblCurrentInput",
    .currentCaption = "Current input termination:  ",
    .wanted = "lblNewInputTerm",
    .wantedCaption = "New input termination:  ",
    .box = "txtNewInputTermValue",
    .boxName = "New input termination, ohms",
    .preview = "cmdPreviewInputOptions",
    .previewCaption = "Input options preview",
    .advice = "lblInputAdvice",
    .choices = {"cmdInputNone", "cmdInputOne", "cmdInputTwo", "cmdInputThree", "cmdInputFour", "cmdInputFive"},
    .present = "Present input",
    .refusal =
        "We cannot apply impedance-transformation to\r\n"
        "the  INPUT  side of this network because it requires\r\n"
        "an L-C pair, either series or parallel-tuned.",
    .tooLow = "That new input termination value is too low",
};

const frmImpedanceMatch::SideNames frmImpedanceMatch::outputNames = {
    .side = MatchSide::Output,
    .frame = "fraOutput",
    .title = "Output Termination Routine",
    .current = "lblCurrentOutput",
    .currentCaption = "Current output termination:  ",
    .wanted = "lblNewOutputTerm",
    .wantedCaption = "New output termination:  ",
    .box = "txtNewOutputTermValue",
    .boxName = "New output termination, ohms",
    .preview = "cmdPreviewOutputOptions",
    .previewCaption = "Output options preview",
    .advice = "lblOutputAdvice",
    .choices = {"cmdOutputNone", "cmdOutputOne", "cmdOutputTwo", "cmdOutputThree", "cmdOutputFour", "cmdOutputFive"},
    .present = "Present output",
    .refusal =
        "We cannot apply impedance-transformation to\r\n"
        "the  OUTPUT  side of this network because it\r\n"
        "requires an L-C pair, either series or parallel-tuned.",
    .tooLow = "That new output termination value is too low",
};

frmImpedanceMatch::Side::Side(frmImpedanceMatch& page, const SideNames& itsNames)
    : names(itsNames),
      side(names.side),
      frame(page, names.frame, names.title),
      lblCurrent(page, names.current, names.currentCaption),
      lblCurrentValue(page, std::string(names.current) + "Value", ""),
      lblNew(page, names.wanted, names.wantedCaption),
      txtNew(page, names.box, names.boxName, "What the network is to be connected to"),
      cmdPreview(page, names.preview, names.previewCaption, "Show what can be put at this end"),
      lblAdvice(page, names.advice, "") {
  for (const char* choice : names.choices) {
    const i16 number = static_cast<i16>(choices.size());
    choices.emplace_back(page, choice, captions[number], MatchWords(number));
    choices.back().onClick = [&page, this, number] { page.Choose(*this, number); };
    choices.back().container = &frame;
  }
  frame.Hold({&lblCurrent, &lblCurrentValue, &lblNew, &txtNew, &cmdPreview, &lblAdvice});
  cmdPreview.onClick = [&page, this] { page.Preview(*this); };
  page.entries.Bind(
      {.box = txtNew, .field = New, .format = FormatResistance, .onTaken = [&page, this] { page.HideOptions(*this); }});
}

frmImpedanceMatch::frmImpedanceMatch(Session& session)
    : TransformPage(session, PageId::ImpedanceMatch, "Impedance-matching", Proposes::OnPress),
      input_(*this, inputNames),
      output_(*this, outputNames) {
  lblHeading_.emphasised = true;
  fraFinal_.Hold({&lblOriginalInput_, &lblOriginalInputValue_, &lblNewInput_, &lblNewInputValue_, &lblOriginalOutput_,
                  &lblOriginalOutputValue_, &lblNewOutput_, &lblNewOutputValue_});
  cmdAccept_.onClick = [this] { AcceptEnds(); };
  cmdRedesign_.onClick = [this] { Begin(); };
  cmdIgnore_.onClick = [this] { Ignore(); };
  cancelButton = &cmdIgnore_;
}

void frmImpedanceMatch::Begin() {
  OmegaCenter_ = static_cast<f32>(2 * Pi * f64{Found().Fcenter});
  fraFinal_.visible = cmdAccept_.visible = output_.frame.visible = false;
  cmdRedesign_.enabled = false;
  output_.Option = outputAsItIs;
  OpenSide(input_);
}

// A side without a pair of L and C stays as it is, and the next one has its turn.
void frmImpedanceMatch::OpenSide(Side& side) {
  side.Option = AsItIs(side.side);
  side.Current = side.New = TerminationAt(Found(), side.side);
  side.given = EntryText(side.Current, FormatResistance);
  side.lblCurrentValue.caption = Ohms(side.Current);
  side.txtNew.text = side.given;
  side.shown = EndStages(Before(side), side.side);
  side.frame.visible = true;
  acceptButton = &side.cmdPreview;
  HideOptions(side);
  SetFocus(side.txtNew);
  if (HasMatchingPair(Before(side), side.side)) return;
  session_.platform.MessageBox(side.names.refusal, Buttons::Ok, Icon::Information, "");
  GoOn(side);
}

// What was offered was for the value before; the picture shows the end as it is.
void frmImpedanceMatch::HideOptions(Side& side) {
  side.options.clear();
  for (Button& choice : side.choices) choice.visible = false;
  side.lblAdvice.caption.clear();
  picMatch_.areas.clear();
  Show({{side.names.present, "", side.side, side.Current, side.shown}});
}

// A single resonator is both ends: its output is what the section at its input has left of it.
Network frmImpedanceMatch::Before(const Side& side) const {
  Network network = Found();
  if (side.side == MatchSide::Output && network.Stages == 1) Set(input_, network);
  return network;
}

void frmImpedanceMatch::Preview(Side& side) {
  HideOptions(side);
  if (Trimmed(side.txtNew.text) == side.given) side.New = side.Current;
  const Network network = Before(side);
  const NewTermination wish = CompareTermination(network, side.side, side.New);
  if (wish == NewTermination::TooLow) {
    session_.platform.MessageBox(side.names.tooLow, Buttons::Ok, Icon::Exclamation, "");
    return SetFocus(side.txtNew);
  }
  if (!Computes([&] { side.options = MatchOptions(network, side.side, side.New, OmegaCenter_); })) {
    return SetFocus(side.txtNew);
  }
  std::vector<MatchRow> rows;
  if (wish == NewTermination::Same) Offer(side, 0, {{}, {}, side.side, side.Current, side.shown}, rows);
  for (const MatchOption& option : side.options) {
    Offer(side, option.code - AsItIs(side.side), {{}, {}, side.side, side.New, option.stages}, rows);
  }
  if (rows.empty()) {
    side.lblAdvice.caption = "There is no option for a higher value at this end.";
    return SetFocus(side.txtNew);
  }
  Show(rows);
}

// A choice can be pressed as a button and, on the picture, as the row that shows it.
void frmImpedanceMatch::Offer(Side& side, int number, MatchRow row, std::vector<MatchRow>& rows) {
  Button& choice = side.choices[static_cast<std::size_t>(number)];
  choice.visible = true;
  if (rows.empty()) SetFocus(choice);
  const MatchBand band = BandOfRow(static_cast<int>(rows.size()));
  picMatch_.areas.push_back({.name = "MatchOption" + std::to_string(number),
                             .from = band.from,
                             .to = band.to,
                             .toolTip = choice.caption + ": " + choice.toolTip,
                             .onPress = choice.onClick});
  row.heading = choice.caption;
  row.words = choice.toolTip;
  rows.push_back(std::move(row));
}

void frmImpedanceMatch::Show(const std::vector<MatchRow>& rows) {
  DrawMatchRows(rows, picMatch_.picture);
  picMatch_.description.clear();
  for (const MatchRow& row : rows) {
    picMatch_.description += row.heading + (row.words.empty() ? "" : ": " + row.words) + ". ";
  }
}

const MatchOption* frmImpedanceMatch::Chosen(const Side& side) {
  for (const MatchOption& option : side.options) {
    if (option.code == side.Option) return &option;
  }
  return nullptr;
}

f32 frmImpedanceMatch::Outcome(const Side& side) { return Chosen(side) == nullptr ? side.Current : side.New; }

void frmImpedanceMatch::Choose(Side& side, int number) {
  side.Option = static_cast<i16>(AsItIs(side.side) + number);
  if (const MatchOption* chosen = Chosen(side)) side.shown = chosen->stages;
  GoOn(side);
}

void frmImpedanceMatch::GoOn(Side& side) {
  side.frame.visible = false;
  cmdRedesign_.enabled = true;
  if (&side == &input_) {
    OpenSide(output_);
  } else {
    ShowFinal();
  }
}

void frmImpedanceMatch::ShowFinal() {
  // The resonator of a single stage has what both sides have made of it.
  if (Found().Stages == 1 && Chosen(output_) != nullptr) input_.shown.back() = output_.shown.back();
  lblOriginalInputValue_.caption = Ohms(input_.Current);
  lblNewInputValue_.caption = Ohms(Outcome(input_));
  lblOriginalOutputValue_.caption = Ohms(output_.Current);
  lblNewOutputValue_.caption = Ohms(Outcome(output_));
  const auto row = [](const char* heading, const Side& side) {
    return MatchRow{heading, MatchWords(side.Option), side.side, Outcome(side), side.shown};
  };
  picMatch_.areas.clear();
  Show({row("Input", input_), row("Output", output_)});
  fraFinal_.visible = cmdAccept_.visible = true;
  acceptButton = &cmdAccept_;
  SetFocus(cmdAccept_);
}

void frmImpedanceMatch::Set(const Side& side, Network& network) {
  if (const MatchOption* chosen = Chosen(side)) SetMatch(network, *chosen, side.New);
}

// What was accepted stands, also where both ends stay as they are.
void frmImpedanceMatch::AcceptEnds() {
  Network matched = Found();
  const bool computed = Computes([&] {
    Set(input_, matched);
    Set(output_, matched);
  });
  if (!computed) return;
  Propose(matched);
  AcceptMatch(session_.identity);
  NoteResponseChange(session_, Found());
  Leave();
}

Layout frmImpedanceMatch::SideForm(Side& side) {
  std::vector<Layout> choices;
  for (Button& choice : side.choices) choices.push_back(Put(choice));
  return Group(side.frame, Column({Form({{Put(side.lblCurrent), Put(side.lblCurrentValue)},
                                         {Put(side.lblNew), Put(side.txtNew), Word("ohms", side.txtNew)}}),
                                   Put(side.cmdPreview), KeepPlace(Put(side.lblAdvice)), Column(std::move(choices))}));
}

Layout frmImpedanceMatch::FinalForm() {
  return Group(fraFinal_, Form({{Put(lblOriginalInput_), Put(lblOriginalInputValue_)},
                                {Put(lblNewInput_), Put(lblNewInputValue_)},
                                {Put(lblOriginalOutput_), Put(lblOriginalOutputValue_)},
                                {Put(lblNewOutput_), Put(lblNewOutputValue_)}}));
}

Layout frmImpedanceMatch::MakeLayout() {
  const Layout steps = Column({SideForm(input_), SideForm(output_), FinalForm(), Space()});
  return Column({Put(lblHeading_), Row({steps, Fill(Put(picMatch_))}),
                 Row({Space(), Put(cmdAccept_), Put(cmdRedesign_), Put(cmdIgnore_)})});
}

}  // namespace quilm
