// The check of the Design page before a network is needed: every message and what it repairs.

#include "pages/DesignPageBench.h"

namespace quilm {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* noWidth = "No bandwidth has been entered.\r\nTo avoid a program crash, please enter a bandwidth";
constexpr const char* noCenter =
    "The bandpass and bandstop topologies must have a center frequency.\r\n"
    "To avoid a program crash, please enter a center frequency.";
constexpr const char* noInput =
    "The filter needs an input termination.\r\nTo avoid a program crash, please enter an input termination value.";
constexpr const char* lowpassStopband =
    "For a Cauer lowpass, the stopband must be greater than\r\nthe passband.  To avoid a program crash, please enter "
    "a\r\nnew stopband higher than the passband.";
constexpr const char* bandpassStopband =
    "For a Cauer bandpass, the stopband must be greater than\r\nthe passband.  To avoid a program crash, please enter "
    "a\r\nnew stopband higher than the passband.";
constexpr const char* highpassStopband =
    "For a Cauer highpass, the stopband must be less than\r\nthe passband.  To avoid a program crash, please enter "
    "a\r\nnew stopband lower than the passband.";
constexpr const char* noHighpassStopband =
    "For a Cauer highpass, we need a stopband.\r\nPlease enter a stiobabd lower than the passband.";

class DesignValidation : public DesignPageBench {
 protected:
  bool OnDesignPage() { return Top().Id() == PageId::Design; }
};

TEST_F(DesignValidation, AUsableDesignPassesWithoutAWord) {
  OpenLowpass();
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), IsEmpty());
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  // C = g / (2 Pi 1 MHz 50 ohms) with g = 1: 3.1831 nF.
  EXPECT_EQ(record.Stages, 3);
  EXPECT_NEAR(record.stage[1].Cval.value, 3.1831e-9, 1e-13);
}

TEST_F(DesignValidation, AMissingBandwidthIsAskedFor) {
  SetLowpass();
  record.Width = 0;
  Open();
  AnswerForm(PageId::EnterWidth, "txtWidth", "2.5M");
  Press("cmdPlot");
  ASSERT_THAT(MessageTexts(), ElementsAre(noWidth));
  EXPECT_EQ(platform.messages[0].buttons, Buttons::Ok);
  EXPECT_EQ(platform.messages[0].icon, Icon::Exclamation);
  EXPECT_EQ(platform.messages[0].title, "");
  EXPECT_EQ(record.Width, 2.5e6F);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(DesignValidation, ABandwidthNotAbove10MilliHertzIsMissing) {
  for (const char* typed : {"-5", "abc", ".01", "0"}) {
    SCOPED_TRACE(typed);
    platform.messages.clear();
    OpenLowpass();
    Enter("txtBandwidth", typed);
    AnswerForm(PageId::EnterWidth, "txtWidth", "1k");
    Press("cmdPlot");
    EXPECT_THAT(MessageTexts(), ElementsAre(noWidth));
    EXPECT_EQ(record.Width, 1000);
  }
}

// Nobody is held in a form: the check that follows keeps the page, and the next press asks again.
TEST_F(DesignValidation, AFormThatIsLeftMeetsTheNextCheckAndComesAgain) {
  SetLowpass();
  record.Width = 0;
  Open();
  for (int press = 0; press < 2; ++press) {
    platform.messages.clear();
    CloseForm(PageId::EnterWidth);
    Press("cmdPlot");
    EXPECT_THAT(MessageTexts(), ElementsAre(noWidth, "Please enter a bandwidth"));
    EXPECT_EQ(platform.messages[1].title, "Error checker 53");
    EXPECT_TRUE(OnDesignPage());
    EXPECT_EQ(Top().TakeFocusWish(), Top().Find("txtBandwidth"));
  }
}

TEST_F(DesignValidation, TheAnswerShowsInTheBox) {
  SetLowpass();
  record.Width = 0;
  record.Rsource[1] = 0;
  Open();
  AnswerForm(PageId::EnterWidth, "txtWidth", "2.5M");
  CloseForm(PageId::EnterInput);
  Press("cmdPlot");
  EXPECT_TRUE(OnDesignPage());
  EXPECT_EQ(TextOf("txtBandwidth"), "2.5M");
  EXPECT_EQ(Get<TextBox>("txtBandwidth").Repairs(), 1);
}

TEST_F(DesignValidation, AMissingCenterFrequencyIsAskedForInEveryBandTopology) {
  for (const char* letter : {"C", "D", "E", "F", "G", "K", "L"}) {
    SCOPED_TRACE(letter);
    platform.messages.clear();
    SetLowpass();
    record.Topology = letter;
    record.Width = 1e4F;
    record.Fcenter = 0;
    Open();
    AnswerForm(PageId::EnterCenterFreq, "txtCenterFreq", "1M");
    Press("cmdPlot");
    EXPECT_THAT(MessageTexts(), ElementsAre(noCenter));
    EXPECT_EQ(record.Fcenter, 1e6F);
    EXPECT_EQ(Top().Id(), PageId::Plotted);
  }
}

TEST_F(DesignValidation, ALowpassNeedsNoCenterFrequency) {
  for (const char* letter : {"A", "B", "I", "J"}) {
    SetLowpass();
    record.Topology = letter;
    Open();
    Press("cmdPlot");
    EXPECT_THAT(MessageTexts(), IsEmpty()) << letter;
  }
}

TEST_F(DesignValidation, AMissingInputTerminationIsAskedFor) {
  OpenLowpass();
  Enter("txtInputTerm", ".01");
  AnswerForm(PageId::EnterInput, "txtInput", "600");
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre(noInput));
  EXPECT_EQ(record.Rsource[1], 600);
}

TEST_F(DesignValidation, ANewDesignGetsTopologyAndFamily) {
  record.Order = 0;
  Open();
  EXPECT_EQ(CaptionOf("lblOrderInput"), "3");
  Enter("txtBandwidth", "1M");
  Enter("txtInputTerm", "");
  CloseForm(PageId::EnterInput);
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre(noInput,
                                          "No topology has been chosen. To avoid a program crash,\r\n"
                                          "the program will use a capacitor-input lowpass topology.",
                                          "No family has been specified. To avoid a program crash,\r\n"
                                          "the program will use the Butterworth family.",
                                          "Please enter an input termination greater than .01 ohms"));
  EXPECT_EQ(record.Topology, "A");
  EXPECT_EQ(record.Family, familyButterworth);
  EXPECT_EQ(session.familyOption, familyButterworth);
  EXPECT_TRUE(Set("optCapInLowpass"));
  EXPECT_TRUE(Set("optButterworth"));
}

TEST_F(DesignValidation, AnOrderBelowOneBecomesThree) {
  OpenLowpass();
  for (const f32 order : {0.0F, -4.0F}) {
    platform.messages.clear();
    record.Order = order;
    Put("txtInputTerm", "0");
    CloseForm(PageId::EnterInput);
    Press("cmdPlot");
    EXPECT_THAT(MessageTexts(), Contains("No order has been specified. To avoid a program crash,\r\n"
                                         "the program will use an order of three."));
    EXPECT_EQ(record.Order, 3);
    EXPECT_EQ(CaptionOf("lblOrderInput"), "3");
  }
}

TEST_F(DesignValidation, AnOrderAboveTheMaximumIsCut) {
  SetLowpass();
  record.Order = 22;
  Open();
  EXPECT_EQ(CaptionOf("lblOrderInput"), "22");
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre("The order has been reset to the program upper limit of 21"));
  EXPECT_EQ(record.Order, 21);
  EXPECT_EQ(record.Stages, 21);
}

TEST_F(DesignValidation, ABesselOrderOf15PassesTheCheckAndIsCutByThePrototype) {
  OpenLowpass();
  Press("optBessel");
  for (int order = 3; order < 15; ++order) Spin("UpDown1", +1);
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre("Order has been reset to Bessel upper limit of 10"));
  EXPECT_EQ(record.Order, 10);
}

TEST_F(DesignValidation, TheRippleIsHeldBetweenItsLimits) {
  const struct {
    const char* typed;
    f32 held;
    const char* text;
  } rows[] = {{"20", 10, "10"}, {"0", 0.0001F, "0.0001"}, {"", 0.0001F, "0.0001"},   {"0.00005", 0.0001F, "0.0001"},
              {"-2", 2, "2"},   {"1e99", 10, "10"},       {"xyz", 0.0001F, "0.0001"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.typed);
    SetLowpass();
    record.Family = familyChebyshev;
    Open();
    Enter("txtPassbandRipple", row.typed);
    Put("txtInputTerm", "0");  // keeps the page
    CloseForm(PageId::EnterInput);
    Press("cmdPlot");
    EXPECT_EQ(record.Apass, row.held);
    EXPECT_EQ(TextOf("txtPassbandRipple"), row.text);
  }
}

TEST_F(DesignValidation, FamiliesWithoutRippleKeepItAtZero) {
  OpenLowpass();
  Press("cmdPlot");
  EXPECT_EQ(record.Apass, 0);
}

TEST_F(DesignValidation, TheReferenceFollowsTheInputTermination) {
  SetLowpass();
  record.Rstandard = 0;
  record.Rsource[1] = 75;
  Open();
  Press("cmdPlot");
  EXPECT_EQ(record.Rstandard, 75);
}

TEST_F(DesignValidation, AnEditedNetworkBecomesManualEntry) {
  SetLowpass();
  record.NetworkEdited = 1;
  record.Width = 0;  // not asked for, as nothing is computed from it
  record.Rstandard = 0;
  record.Rsource[1] = 0;
  Open();
  CloseForm(PageId::EnterInput);
  Press("cmdPlot");
  EXPECT_TRUE(OnDesignPage());
  EXPECT_EQ(record.Family, familyManual);
  EXPECT_EQ(record.NetworkEdited, 1);
  EXPECT_EQ(record.Rstandard, 0);
  EXPECT_TRUE(Set("optManual"));
  EXPECT_THROW(Press("optButterworth"), ActRefused);
  session.pages.ShowPage(PageId::Design);
  EXPECT_TRUE(Get<Control>("optButterworth").Usable());
}

TEST_F(DesignValidation, AManualNetworkWithoutATopologyBecomesACapacitorInputLowpass) {
  record.Width = 1e6F;
  Open();
  Press("optManual");
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre("No topology has been chosen. To avoid a program crash,\r\n"
                                          "the program will use a capacitor-input lowpass"));
  EXPECT_EQ(record.Topology, "A");
}

TEST_F(DesignValidation, ANetworkEnteredByHandKeepsItsLetter) {
  SetLowpass();
  record.Topology = "M";
  Open();
  EXPECT_EQ(record.Family, familyManual);
  Press("cmdPlot");
  EXPECT_EQ(record.Topology, "M");
  EXPECT_THAT(MessageTexts(), IsEmpty());
}

TEST_F(DesignValidation, ACodeThatIsNoFamilyBecomesButterworth) {
  SetLowpass();
  record.Family = 9;
  Open();
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre("No design family has been specified. To avoid a program crash,\r\n"
                                          "the program will use the Butterworth family."));
  EXPECT_EQ(record.Family, familyButterworth);
}

TEST_F(DesignValidation, TheCauerBandpassIsForCauerAndMderivedOnly) {
  record.Order = 3;
  record.Width = 1e5F;
  record.Fcenter = 1e7F;
  Open();
  Press("optCauerBandpass");
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), Contains("The Cauer bandpass topology filter was selected\r\n"
                                       "and that requires the use of the Cauer or M-Derived\r\n"
                                       "family along with a center frequency and width.\r\n"
                                       " \r\n"
                                       "Quilm will now select a shunt-input bandpass topology\r\n"
                                       "for use with the non-Cauer family you chose."));
  EXPECT_EQ(record.Topology, "E");
  EXPECT_EQ(record.Fcenter, 1e7F);
}

TEST_F(DesignValidation, ACauerDepthOf10OrLessBecomes10) {
  for (const char* depth : {"5", "10", "-3", "none"}) {
    SCOPED_TRACE(depth);
    platform.messages.clear();
    SetCauer("A", 5);
    Open();
    Enter("txtStopbandDepth", depth);
    Put("txtInputTerm", "0");
    CloseForm(PageId::EnterInput);
    Press("cmdPlot");
    EXPECT_THAT(MessageTexts(), Contains("The Cauer family needs a stopband depth greater than 10 dB.\r\n"
                                         "To avoid a program crash, Astop has been set to 10 dB"));
    EXPECT_EQ(record.Astop, 10);
    EXPECT_EQ(TextOf("txtStopbandDepth"), "10");
  }
}

TEST_F(DesignValidation, AnOddCauerStopbandMustLieOutsideThePassband) {
  const struct {
    const char* letter;
    const char* stopband;
    const char* message;
    const char* answer;
  } rows[] = {{"A", "900k", lowpassStopband, "1.5M"}, {"B", "1M", lowpassStopband, "2M"},
              {"H", "500k", bandpassStopband, "2M"},  {"I", "1.2M", highpassStopband, "700k"},
              {"J", "1M", highpassStopband, "700k"},  {"I", "0", noHighpassStopband, "600k"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(std::string(row.letter) + " " + row.stopband);
    platform.messages.clear();
    SetCauer(row.letter, 5);
    Open();
    Enter("txtStopbandFreq", row.stopband);
    Put("txtInputTerm", "0");
    AnswerForm(PageId::EnterFstopband, "txtFstopband", row.answer);
    CloseForm(PageId::EnterInput);
    Press("cmdPlot");
    EXPECT_THAT(MessageTexts(), ElementsAre(row.message, noInput, testing::_));
    EXPECT_EQ(TextOf("txtStopbandFreq"), row.answer);
  }
}

TEST_F(DesignValidation, AHighpassStopbandIsAskedForTwiceWhenTheAnswerIsTooHigh) {
  SetCauer("J", 5);
  Open();
  Enter("txtStopbandFreq", "0");
  Put("txtInputTerm", "0");
  AnswerForm(PageId::EnterFstopband, "txtFstopband", "3M");
  AnswerForm(PageId::EnterFstopband, "txtFstopband", "0.5M");
  CloseForm(PageId::EnterInput);
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre(noHighpassStopband, highpassStopband, noInput, testing::_));
  EXPECT_EQ(record.Fstopband, 0.5e6F);
}

TEST_F(DesignValidation, AnEvenCauerOrderHasNoStopbandEntryToCheck) {
  SetCauer("A", 6);
  Open();
  Enter("txtStopbandFreq", "1k");
  Put("txtInputTerm", "0");
  CloseForm(PageId::EnterInput);
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre(noInput, testing::_));
}

TEST_F(DesignValidation, TheCauerBandpassNeedsACenterFrequency) {
  SetCauer("H", 4);
  record.Fcenter = 0;
  Open();
  AnswerForm(PageId::EnterCenterFreq, "txtCenterFreq", "10M");
  Put("txtInputTerm", "0");
  CloseForm(PageId::EnterInput);
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(),
              ElementsAre("The Cauer and M-derived bandpass designs must have\r\na center frequency.\r\n"
                          "To avoid a program crash, please enter a center frequency.",
                          noInput, testing::_));
  EXPECT_EQ(TextOf("txtCenterFrequency"), "10M");
}

TEST_F(DesignValidation, AFailingComputationKeepsThePage) {
  SetLowpass();
  record.Topology = "D";
  record.Fcenter = 1e7F;
  record.Order = 1;  // a coupled form needs two resonators
  Open();
  Press("cmdPlot");
  EXPECT_THAT(MessageTexts(), ElementsAre("We could not calculate the parts values.\r\n"
                                          "Some critical design item is missing.\r\n"
                                          "Examine the entries on the Design page."));
  EXPECT_TRUE(OnDesignPage());
}

}  // namespace
}  // namespace quilm
