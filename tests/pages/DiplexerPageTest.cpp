// Designing a diplexer. Worked figures, 50 ohms: order 3 with 0.1 dB at 1 MHz has 12.042 uH, 4.829 nF and 5.7011 uH in
// the lowpass arm, and 2.1034 nF is what 12.042 uH resonates with at 1 MHz.

#include <gmock/gmock.h>

#include <algorithm>
#include <variant>

#include "desk/StartUp.h"
#include "diplexer/DesignDiplexer.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DiplexerPages : public PageBench {
 protected:
  DiplexerPages() : PageBench(AllPages()) { StartProgram(session); }

  // Without a design, as a tool that needs none.
  void Open() {
    Press("cmdDesignNew");
    Press("Command5");
    ASSERT_EQ(Top().Id(), PageId::Diplexer);
  }

  // The worked split.
  void OpenSplit() {
    Open();
    Enter("txtCrossover", "1M");
    Enter("txtOrder", "3");
    Enter("txtRipple", "0.1");
    Enter("txtTermination", "50");
    Press("cmdAccept");
  }

  // The pair of bands of 9.5 to 10.5 MHz, of order 2.
  void OpenBands() {
    OpenSplit();
    Press("cmdTopology");
    Enter("txtFlower", "9.5M");
    Enter("txtFupper", "10.5M");
    Enter("txtOrder", "2");
    Press("cmdAccept");
  }

  const Diplexer& Dip() { return session.diplexer; }
  std::string TextOf(const std::string& name) { return Get<TextBox>(name).text; }
  bool Shows(const std::string& name) { return Get<Control>(name).Shown(); }

  bool Drawn(const std::string& text) {
    const auto& operations = Get<PictureBox>("picDiplexer").picture.Operations();
    return std::any_of(operations.begin(), operations.end(), [&](const PictureOp& operation) {
      const auto* printed = std::get_if<TextOp>(&operation);
      return printed != nullptr && printed->text == text;
    });
  }
};

TEST_F(DiplexerPages, OpensWithoutADesignAndWithoutAWord) {
  Open();
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(Dip().DipMode, 1);
  EXPECT_TRUE(Drawn("Lowpass"));
  EXPECT_GT(Dip().DipLowElem[1], 0);
}

TEST_F(DiplexerPages, BeginsWithTheDesignAndLeavesItAlone) {
  MakeLowpass();
  Press("cmdDesign");
  const DesignRecord before = session.record;
  Press("Command5");
  EXPECT_EQ(Dip().DipCrossover, 1e6F);
  EXPECT_EQ(Dip().DipZ, 50);
  EXPECT_EQ(TextOf("txtCrossover"), "1M");
  EXPECT_EQ(TextOf("txtTermination"), "50");
  Press("cmdTopology");
  Press("cmdAccept");
  Press("cmdExit");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.record, before);
}

TEST_F(DiplexerPages, AcceptDesignsAndShowsWhatWasTaken) {
  OpenSplit();
  EXPECT_NEAR(Dip().DipLowElem[1], 12.042e-6F, 1e-9F);
  EXPECT_TRUE(Drawn("Crossover=1M   Passband ripple=0.1   Order=3   System Z=50"));
  EXPECT_TRUE(Drawn("12.0423uH"));
  EXPECT_EQ(TextOf("txtRipple"), "0.1");
}

TEST_F(DiplexerPages, NothingCountsBeforeItIsAccepted) {
  OpenSplit();
  Enter("txtOrder", "5");
  EXPECT_EQ(Dip().DipOrder, 3);
  Press("cmdExit");
  Press("Command5");
  EXPECT_EQ(TextOf("txtOrder"), "3");
}

TEST_F(DiplexerPages, LimitsReplaceQuietly) {
  Open();
  Enter("txtCrossover", "2");
  Enter("txtOrder", "11");
  Enter("txtRipple", "4");
  Enter("txtTermination", "20k");
  Press("cmdAccept");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(TextOf("txtCrossover"), "10");
  EXPECT_EQ(TextOf("txtOrder"), "10");
  EXPECT_EQ(TextOf("txtRipple"), "3");
  EXPECT_EQ(TextOf("txtTermination"), "10k");
}

TEST_F(DiplexerPages, TheTopologyButtonChangesTheModeAndAccepts) {
  OpenSplit();
  EXPECT_TRUE(Shows("txtCrossover") && Shows("cmdResonate"));
  EXPECT_FALSE(Shows("txtFlower") || Shows("txtFupper"));
  Enter("txtOrder", "4");
  Press("cmdTopology");
  EXPECT_EQ(Dip().DipMode, 2);
  EXPECT_EQ(Dip().DipOrder, 4);
  EXPECT_TRUE(Shows("txtFlower") && Shows("lblFupper"));
  EXPECT_FALSE(Shows("txtCrossover") || Shows("cmdResonate"));
  EXPECT_TRUE(Drawn("Bandpass"));
  EXPECT_GT(Dip().DipBsL[4], 0);
  Press("cmdTopology");
  EXPECT_EQ(Dip().DipMode, 1);
  EXPECT_EQ(Dip().DipCrossover, 1e6F);
}

TEST_F(DiplexerPages, TheBandsOfNineAndAHalfToTenAndAHalf) {
  OpenBands();
  EXPECT_TRUE(Drawn("Lower edge=9.5M   Upper edge=10.5M   Passband ripple=0.1   Order=2   System Z=50"));
  EXPECT_NEAR(Dip().DipBpC[1], 22.714e-12F, 1e-15F);
  EXPECT_EQ(TextOf("txtFlower"), "9.5M");
}

TEST_F(DiplexerPages, TheNoteOfTheUpperEdgeGoesWithTheNextDrawing) {
  const std::string note = "Upper edge has been reset to 1.01 * Lower edge";
  OpenBands();
  EXPECT_FALSE(Drawn(note));
  Enter("txtFupper", "9.5M");
  Press("cmdAccept");
  EXPECT_TRUE(Drawn(note));
  EXPECT_EQ(TextOf("txtFupper"), "9.595M");
  Press("cmdAccept");
  EXPECT_FALSE(Drawn(note));
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(DiplexerPages, ExactThreeDecibelsIsOfferedAndNotPreselected) {
  OpenSplit();
  EXPECT_TRUE(Get<OptionButton>("optPartFactor").Value());
  EXPECT_EQ(Get<OptionButton>("optExact3dB").caption, "Exact 3 dB");
  const f32 printed = Dip().DipLowElem[2];
  Press("optExact3dB");
  // The even part takes the factor of the order, which is odd.
  const f64 ratio = Chebyshev3dBFrequency(3, true, 0.1F) / Chebyshev3dBFrequency(3, false, 0.1F);
  EXPECT_NEAR(f64{Dip().DipLowElem[2]} / f64{printed}, ratio, 1e-6);
  Press("cmdExit");
  Press("Command5");
  EXPECT_TRUE(Get<OptionButton>("optExact3dB").Value());
  Press("optPartFactor");
  EXPECT_EQ(Dip().DipLowElem[2], printed);
}

TEST_F(DiplexerPages, PartsThatWereTunedAreDrawnAsTheyStand) {
  OpenSplit();
  session.diplexer.DipLowElem[1] = 13e-6F;
  session.diplexer.DipFrozen = 1;
  Press("cmdExit");
  Press("Command5");
  EXPECT_TRUE(Drawn("13uH"));
  Press("cmdAccept");
  EXPECT_TRUE(Drawn("12.0423uH"));
  EXPECT_EQ(Dip().DipFrozen, 0);
}

TEST_F(DiplexerPages, TheBandPairFirstHasNoCrossoverYet) {
  MakeLowpass();
  Press("cmdDesign");
  Press("optShuntInGeoSymm");
  Enter("txtCenterFrequency", "10M");
  Press("Command5");
  EXPECT_EQ(Dip().DipMode, 2);
  EXPECT_EQ(Dip().DipCrossover, 0);
  EXPECT_EQ(TextOf("txtFlower"), "9.5M");
  Press("cmdTopology");
  EXPECT_EQ(Dip().DipCrossover, 1e6F) << "the bandwidth of the design";
}

TEST_F(DiplexerPages, EscapeAndTheCloseBoxReturnToTheDesign) {
  Open();
  EXPECT_EQ(Top().cancelButton->name, "cmdExit");
  EXPECT_EQ(Top().acceptButton->name, "cmdAccept");
  PressCloseBox(session, Top());
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_FALSE(session.ended);
}

TEST_F(DiplexerPages, TheSchematicIsOfferedUnderItsName) {
  OpenSplit();
  platform.files.push_back(Path("Diplexer.ASC"));
  Press("cmdSpiceSchematic");
  ASSERT_EQ(platform.fileDialogs.size(), 1U);
  EXPECT_EQ(platform.fileDialogs[0].title, "Quilm - write Spice schematic (LTspice) for Diplexer");
  EXPECT_EQ(platform.fileDialogs[0].filter, "LTspice schematic files (*.ASC)|*.ASC");
  EXPECT_THAT(platform.fileDialogs[0].defaultName, HasSubstr("Diplexer.ASC"));
  EXPECT_THAT(File("Diplexer.ASC"), HasSubstr("SYMATTR Value AC 316.227"));
}

// ---- resonance ------------------------------------------------------------------------------------------------------

TEST_F(DiplexerPages, ResonanceStepsThroughTheSeriesInductorsAndChangesNothing) {
  OpenSplit();
  std::vector<std::string> numbers;
  std::vector<std::string> told;
  const f32 before = Dip().DipLowElem[3];
  platform.modalActs.push_back([&](Page&) {
    EXPECT_EQ(Get<Label>("lblPart").caption, " Part # (Lowpass): ");
    EXPECT_FALSE(Get<Button>("cmdPrevious").enabled);
    numbers.push_back(Get<Label>("lblPartNumber").caption);
    told.push_back(Get<Label>("lblResonance").caption);
    Press("cmdNext");
    numbers.push_back(Get<Label>("lblPartNumber").caption);
    told.push_back(Get<Label>("lblResonance").caption);
    EXPECT_FALSE(Get<Button>("cmdNext").enabled);
    Press("cmdPrevious");
    numbers.push_back(Get<Label>("lblPartNumber").caption);
    Press("cmdExit");
  });
  Press("cmdResonate");
  EXPECT_THAT(numbers, ElementsAre("1", "3", "1"));
  // 1 / ((2 Pi 1 MHz)^2 5.7011 uH) = 4.4431 nF.
  EXPECT_THAT(told, ElementsAre(HasSubstr("2103.4"), HasSubstr("4443.")));
  EXPECT_EQ(Top().Id(), PageId::Diplexer);
  EXPECT_EQ(Dip().DipLowElem[3], before);
}

TEST_F(DiplexerPages, AnEvenOrderEndsItsResonanceAtTheLastOddPart) {
  OpenSplit();
  Enter("txtOrder", "2");
  Press("cmdAccept");
  platform.modalActs.push_back([&](Page&) {
    EXPECT_FALSE(Get<Button>("cmdNext").enabled);
    EXPECT_FALSE(Get<Button>("cmdPrevious").enabled);
    PressCloseBox(session, Top());
  });
  Press("cmdResonate");
  EXPECT_EQ(Top().Id(), PageId::Diplexer);
}

}  // namespace
}  // namespace quilm
