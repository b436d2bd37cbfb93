// A lowpass made of lines in a tube: the page, its drawing, and what the design becomes.
//
// Worked at 500 MHz in the tube of the defaults: 60 ln 25 = 193.13 and 60 ln(75 / 70) = 4.1396 ohms; 6 pF are 4.4753
// deg and 7.4895 mm, 20 nH 18.986 deg and 31.773 mm.

#include "core/modGeneral.h"
#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

// As a text stands in the dump of a picture.
std::string Quoted(const char* text) {
  std::string quoted(1, '"');
  quoted.append(text);
  quoted.push_back('"');
  return quoted;
}

class TubularPage : public PageBench {
 protected:
  TubularPage() : PageBench(AllPages()) { StartProgram(session); }

  // 6 pF, 20 nH, 6 pF by hand.
  void Open() {
    MakeLowpass();
    Press("cmdDesign");
    session.record.Family = familyManual;
    session.record.NetworkEdited = 1;
    for (const int s : {1, 3}) session.network.stage[s].Cval = {6e-12F, 2};
    session.network.stage[2].Lval = {20e-9F, 2};
    Press("Command6");
    ASSERT_EQ(Top().Id(), PageId::LumpedToTubular);
  }

  void Calculate() {
    Enter("txtFrequencyNormalization", "500M");
    Press("cmdCalculate");
  }

  std::string TextOf(const std::string& name) { return Get<TextBox>(name).text; }
  bool Visible(const std::string& name) { return Get<Control>(name).visible; }
  std::string Drawn(const std::string& name) { return Get<PictureBox>(name).picture.Dump(); }

  const Network& Ladder() { return session.network; }
};

constexpr const char* results[] = {"txtImpedanceInductors", "txtImpedanceCapacitors", "cmdDrawPicture", "cmdTransfer"};

TEST_F(TubularPage, BeginsWithATubeOfAir) {
  Open();
  EXPECT_EQ(Top().title, "Lumped-to-tubular conversion");
  EXPECT_EQ(TextOf("txtFrequencyNormalization"), "");
  EXPECT_EQ(TextOf("txtVelocityFactor"), "1.00059");
  EXPECT_EQ(TextOf("txtDiameterInductors"), "3");
  EXPECT_EQ(TextOf("txtDiameterCapacitors"), "70");
  EXPECT_EQ(TextOf("txtDiameterInterior"), "75");
  for (const char* name : results) EXPECT_FALSE(Visible(name)) << name;
}

TEST_F(TubularPage, TellsTheLengthsOfTheLines) {
  Open();
  Calculate();
  EXPECT_EQ(platform.messages.size(), 0U);
  EXPECT_EQ(TextOf("txtImpedanceInductors"), "193.13");
  EXPECT_EQ(TextOf("txtImpedanceCapacitors"), "4.1396");
  for (const char* name : results) EXPECT_TRUE(Visible(name)) << name;
  const std::string table = Drawn("picLengths");
  for (const char* text : {"Line lengths at 500MHz", "#:", "deg:", "mm:", "in:", "4.4753", "7.4895", "0.29486",
                           "18.986", "31.773", "1.2509", "Total length: 46.752 mm   1.8406 in"}) {
    EXPECT_NE(table.find(Quoted(text)), std::string::npos) << text;
  }
}

TEST_F(TubularPage, AChangeOfAnEntryHidesTheResults) {
  for (const char* box : {"txtFrequencyNormalization", "txtVelocityFactor", "txtDiameterInductors",
                          "txtDiameterCapacitors", "txtDiameterInterior"}) {
    if (session.pages.Top()->Id() != PageId::LumpedToTubular) Open();
    Calculate();
    ASSERT_TRUE(Visible("cmdTransfer"));
    const std::string before = TextOf(box);
    Type(session, Get<TextBox>(box), before + "0");
    for (const char* name : results) EXPECT_FALSE(Visible(name)) << box << ' ' << name;
    EXPECT_TRUE(Get<PictureBox>("picLengths").picture.Empty());
    Type(session, Get<TextBox>(box), before);
  }
}

struct Refusal {
  const char* box;
  const char* text;
  const char* message;
};

// Each entry is left as it is refused, so that the later ones are reached by mending the earlier.
constexpr Refusal refusals[] = {
    {"txtFrequencyNormalization", "0", "Please enter a value for normalization frequency, 10K min"},
    {"txtVelocityFactor", ".0099", "Please enter a value for the velocity factor, .01 min to 2 max"},
    {"txtVelocityFactor", "2.001", "Please enter a value for the velocity factor, .01 min to 2 max"},
    {"txtDiameterInductors", "0", "Please enter a value for inductors' diameters"},
    {"txtDiameterCapacitors", "-1", "Please enter a value for capacitors' diameters"},
    {"txtDiameterInterior", "0", "Please enter a value for tube interior diameter"},
    {"txtDiameterInterior", "70", "The tube interior diameter must be greater than the capacitors' diameters"},
    {"txtDiameterCapacitors", "2", "The capacitor' diameters must be greater than the inductors' diameter"},
};

TEST_F(TubularPage, RefusesWhatMakesNoTube) {
  Open();
  Enter("txtFrequencyNormalization", "1");
  for (const Refusal& refusal : refusals) {
    const std::string before = TextOf(refusal.box);
    Enter(refusal.box, refusal.text);
    Press("cmdCalculate");
    ASSERT_EQ(platform.messages.size(), 1U) << refusal.text;
    const MessageShown& told = platform.messages[0];
    EXPECT_EQ(told.text, refusal.message);
    EXPECT_EQ(told.title, "Error Checker");
    EXPECT_EQ(told.icon, Icon::Question);
    EXPECT_EQ(Top().TakeFocusWish(), Top().Find(refusal.box));
    EXPECT_FALSE(Visible("cmdTransfer"));
    platform.messages.clear();
    Enter(refusal.box, before);
  }
  Press("cmdCalculate");
  EXPECT_EQ(platform.messages.size(), 0U);
}

TEST_F(TubularPage, AThinTubeIsRefusedForTheInductors) {
  Open();
  Enter("txtFrequencyNormalization", "1M");
  Enter("txtDiameterCapacitors", "2");
  Enter("txtDiameterInterior", "3");
  Press("cmdCalculate");
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.messages[0].text, "The tube interior diameter must be greater than the inductors' diameters");
}

TEST_F(TubularPage, NumbersOutOfRangeAreTold) {
  Open();
  Enter("txtFrequencyNormalization", "1e-36");
  Press("cmdCalculate");
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"We could not calculate the parts values."});
  EXPECT_FALSE(Visible("cmdTransfer"));
}

// Also those of a calculation that was refused; what was never calculated is forgotten.
TEST_F(TubularPage, EntriesStayForTheRun) {
  Open();
  Enter("txtFrequencyNormalization", "500M");
  Enter("txtDiameterInductors", "80");
  Press("cmdCalculate");
  Enter("txtDiameterInductors", "5");
  Press("cmdExit");
  Press("Command6");
  EXPECT_EQ(TextOf("txtFrequencyNormalization"), "500M");
  EXPECT_EQ(TextOf("txtDiameterInductors"), "80");
  EXPECT_EQ(TextOf("txtVelocityFactor"), "1.0006");
  EXPECT_FALSE(Visible("cmdTransfer"));
  // The text stands for the exact factor.
  Enter("txtDiameterInductors", "3");
  Press("cmdCalculate");
  EXPECT_EQ(session.tube.TubeVelocity, 1.00059F);
}

TEST_F(TubularPage, AcceptMakesLinesOfTheParts) {
  Open();
  Calculate();
  Press("cmdTransfer");
  ASSERT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.record.Family, familyManual);
  EXPECT_EQ(session.record.NetworkEdited, 1);
  EXPECT_EQ(session.record.ResponsesValid, 0);
  EXPECT_TRUE(Get<OptionButton>("optManual").Value());
  for (int s = 1; s <= 3; ++s) {
    const Stage& stage = Ladder().stage[s];
    EXPECT_EQ(stage.ElementType, TransLine);
    EXPECT_EQ(stage.Lval, PartValue{});
    EXPECT_EQ(stage.Cval, PartValue{});
    EXPECT_EQ(stage.TLval.freq, 500e6F);
    EXPECT_NEAR(stage.TLval.degrees, s == 2 ? 18.986F : 4.4753F, 0.0005F);
    EXPECT_NEAR(stage.TLval.impedance, s == 2 ? 193.13F : 4.1396F, 0.005F);
  }
  EXPECT_NE(session.note.find("response "), std::string::npos) << session.note;
}

TEST_F(TubularPage, UndoBringsThePartsBack) {
  MakeLowpass();
  Press("cmdDesign");
  const Network before = Ladder();
  Press("Command6");
  Calculate();
  Press("cmdTransfer");
  ASSERT_NE(Ladder(), before);
  Undo(session);
  EXPECT_EQ(Ladder(), before);
  EXPECT_EQ(session.record.Family, familyButterworth);
}

TEST_F(TubularPage, IgnoreAndTheCloseBoxChangeNothing) {
  MakeLowpass();
  Press("cmdDesign");
  const DesignRecord before = session.record;
  for (const bool byBox : {false, true}) {
    Press("Command6");
    Calculate();
    if (byBox) {
      PressCloseBox(session, Top());
    } else {
      Press("cmdExit");
    }
    ASSERT_EQ(Top().Id(), PageId::Design);
    EXPECT_TRUE(session.record == before);
  }
}

TEST_F(TubularPage, WithoutPartsForLinesNothingChanges) {
  MakeLowpass();
  Press("cmdDesign");
  session.record.Family = familyManual;
  session.record.NetworkEdited = 1;
  for (int s = 1; s <= 3; ++s) session.network.stage[s].ElementType = ShuntR;
  Press("Command6");
  const DesignRecord before = session.record;
  ASSERT_EQ(before.ResponsesValid, 1);
  Calculate();
  Press("cmdTransfer");
  EXPECT_TRUE(session.record == before);
}

TEST_F(TubularPage, TheDrawingIsToScale) {
  Open();
  Calculate();
  std::string dump;
  PictureOps drawn;
  platform.modalActs.push_back([&](Page& page) {
    EXPECT_EQ(page.Id(), PageId::DrawLines);
    const Picture& picture = Get<PictureBox>("picLines").picture;
    dump = picture.Dump();
    drawn = picture.Operations();
    Press("cmdExit");
  });
  Press("cmdDrawPicture");
  EXPECT_EQ(Top().Id(), PageId::LumpedToTubular);
  for (const char* text : {"Total length:  46.752 mm   1.8406 in", "Interior diameter of outside tube:  75 mm",
                           "Diameter for capacitor (major):  70 mm", "Resulting line impedance:  4.1396 ohms",
                           "Diameter for inductor (minor):  3 mm", "Resulting line Impedance:  193.13 ohms"}) {
    EXPECT_NE(dump.find(Quoted(text)), std::string::npos) << text;
  }
  // The tube, and the outlines of the sections: width over height is length over diameter.
  std::vector<f32> proportions;
  for (const PictureOp& op : drawn) {
    const auto* box = std::get_if<RectangleOp>(&op);
    if (box == nullptr || box->filled) continue;
    proportions.push_back((box->to.x - box->from.x) / (box->to.y - box->from.y));
  }
  ASSERT_EQ(proportions.size(), 4U);
  EXPECT_NEAR(proportions[0], 46.752F / 75, 1e-3F);
  EXPECT_NEAR(proportions[1], 7.4895F / 70, 1e-3F);
  EXPECT_NEAR(proportions[2], 31.773F / 3, 1e-2F);
  EXPECT_NEAR(proportions[3], 7.4895F / 70, 1e-3F);
}

// From a metre on.
TEST_F(TubularPage, LongRodsAreToldInMetresAndFeet) {
  Open();
  Press("cmdExit");
  // Of three parts too large for a line each is a quarter wave: 3 * 90 deg at 10 MHz are
  // 3 * 1005.4054 / 4 * 29.9616 = 22592.6 mm = 74.123 ft.
  for (const int s : {1, 3}) session.network.stage[s].Cval.value = 1e-6F;
  session.network.stage[2].Lval.value = 1e-3F;
  Press("Command6");
  Enter("txtFrequencyNormalization", "10M");
  Press("cmdCalculate");
  EXPECT_NE(Drawn("picLengths").find("\"Total length: 22.593 m   889.47 in\""), std::string::npos)
      << Drawn("picLengths");
  std::string dump;
  platform.modalActs.push_back([&](Page&) { dump = Drawn("picLines"); });
  Press("cmdDrawPicture");
  EXPECT_NE(dump.find("\"Total length:  22.593 m   74.123 ft\""), std::string::npos) << dump;
}

}  // namespace
}  // namespace quilm
