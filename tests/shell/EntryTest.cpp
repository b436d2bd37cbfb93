// Bound entries: what a box does to its field, and a field to its box.
#include "shell/Entry.h"

#include <algorithm>

#include "core/modGeneral.h"
#include "shell/ShellBench.h"

namespace quilm {
namespace {

f32 AtMost180(f32 value) { return std::min(value, 180.0F); }

class Entries : public testing::Test {
 protected:
  Entry& Bind(EntryBinding binding) { return page.entries.Bind(std::move(binding)); }
  Entry& BindOhms() { return Bind({.box = page.txtValue, .field = field, .format = FormatResistance}); }

  void Put(const std::string& text) { Type(bench.session, page.txtValue, text); }
  void LeaveBox() { Leave(bench.session, page.txtValue); }
  const std::string& Text() const { return page.txtValue.text; }
  i32 Repairs() const { return page.txtValue.Repairs(); }

  ShellBench bench;
  BenchPage& page = bench.Show();
  f32 field = 0;
};

TEST_F(Entries, AKeystrokeEntersTheFieldAndThenTellsThePage) {
  f32 seen = 0;
  Bind({.box = page.txtValue, .field = field, .format = FormatFrequency, .onTaken = [&] { seen = field; }});
  Put("1.2M");
  EXPECT_EQ(field, 1.2e6F);
  EXPECT_EQ(seen, 1.2e6F);
  EXPECT_EQ(Text(), "1.2M");
}

TEST_F(Entries, LeavingEchoesWithoutANoteWhatWasUnderstood) {
  BindOhms();
  for (const auto& [typed, echo] : {std::pair{"2200", "2.2k"}, {"75R", "75"}, {"2.2kohm", "2.2k"}, {"0", "0.0"}}) {
    Put(typed);
    LeaveBox();
    EXPECT_EQ(Text(), echo);
  }
  EXPECT_EQ(Repairs(), 0);
  EXPECT_EQ(bench.session.note, "");
}

TEST_F(Entries, WhatWasNotFullyUnderstoodShowsAsARepairAndTheNoteSaysWhatWasTaken) {
  BindOhms();
  Put("50 Ohm");
  EXPECT_EQ(field, 0.05F);
  EXPECT_EQ(Repairs(), 0);
  LeaveBox();
  EXPECT_EQ(Text(), "0.05");
  EXPECT_EQ(Repairs(), 1);
  EXPECT_EQ(bench.session.note, "Value: \"50 Ohm\" is taken as 0.05");
  Put("abc");
  EXPECT_EQ(bench.session.note, "");
  LeaveBox();
  EXPECT_EQ(field, 0);
  EXPECT_EQ(Repairs(), 2);
  EXPECT_EQ(bench.session.note, "Value: \"abc\" is taken as 0.0");
}

// The echo shows six digits; the field has what was typed, however often the box is left and read again.
TEST_F(Entries, ABoxThatShowsItsFieldLeavesItAlone) {
  Entry& entry = Bind({.box = page.txtValue, .field = field, .format = FormatFrequency});
  Put("1.2345678M");
  LeaveBox();
  EXPECT_EQ(Text(), "1.23457M");
  LeaveBox();
  entry.Take();
  EXPECT_EQ(field, 1234567.8F);
  EXPECT_EQ(Repairs(), 0);
  Put("1.23458M");
  EXPECT_EQ(field, 1234580.0F);
}

// A tool has moved the field by less than six digits tell since the box was filled.
TEST_F(Entries, AFieldThatChangedBelowWhatItsBoxShowsIsNotPutBack) {
  Entry& entry = Bind({.box = page.txtValue, .field = field, .format = FormatFrequency});
  field = 1234567.0F;
  entry.Fill();
  field = 1234568.0F;
  ASSERT_EQ(Text(), "1.23457M");
  EXPECT_TRUE(entry.Agrees());
  entry.Take();
  EXPECT_EQ(field, 1234568.0F);
}

// The same text is the same value, however it came into the box.
TEST_F(Entries, WhatThePageFilledInMeansTheSameWhenItIsTypedAgain) {
  Entry& entry = Bind({.box = page.txtValue, .field = field, .format = FormatFrequency});
  field = 1234567.8F;
  entry.Fill();
  for (const char* text : {"", "1", "1.23457", "1.23457M"}) Put(text);
  EXPECT_EQ(field, 1234567.8F);
  Put("1.23457");
  LeaveBox();
  Put("1.23457M");
  EXPECT_EQ(field, 1234570.0F);
}

TEST_F(Entries, ABoxMaySpeakInAnotherUnitThanItsField) {
  f64 centimetres = 2.54;
  Entry& entry =
      Bind({.box = page.txtValue, .field = field, .format = FormatValue, .perUnit = [&] { return centimetres; }});
  Put("2.54");
  EXPECT_EQ(field, 1);
  LeaveBox();
  EXPECT_EQ(Text(), "2.54");
  Put("3");
  EXPECT_EQ(field, static_cast<f32>(3 / 2.54));
  LeaveBox();
  EXPECT_EQ(Text(), "3");
  EXPECT_EQ(Repairs(), 0);
  const f32 before = field;
  centimetres = 1;
  entry.Fill();
  EXPECT_EQ(Text(), "1.1811");  // 3 / 2.54 = 1.181102
  Put("1.1811");
  EXPECT_EQ(field, before);
  Put("x");
  LeaveBox();
  EXPECT_EQ(bench.session.note, "Value: \"x\" is taken as 0.0000");
}

TEST_F(Entries, AHeldValueTakesEffectAtOnceAndShowsWhenTheBoxIsLeft) {
  Bind({.box = page.txtValue, .field = field, .format = FormatValue, .hold = AtMost180});
  Put("181");
  EXPECT_EQ(field, 180);
  EXPECT_EQ(Text(), "181");
  LeaveBox();
  EXPECT_EQ(Text(), "180");
  EXPECT_EQ(Repairs(), 1);
  EXPECT_EQ(bench.session.note, "Value: \"181\" is taken as 180");
  Put("180");
  LeaveBox();
  EXPECT_EQ(Repairs(), 1);
}

TEST_F(Entries, ALimitThatNoKeystrokeMendsMayShowAtOnce) {
  Bind(
      {.box = page.txtValue, .field = field, .format = FormatValue, .hold = AtMost180, .showsHeld = ShowsHeld::AtOnce});
  Put("180");
  EXPECT_EQ(Repairs(), 0);
  Put("1805");
  EXPECT_EQ(field, 180);
  EXPECT_EQ(Text(), "180");
  EXPECT_EQ(Repairs(), 1);
}

TEST_F(Entries, AZeroIsAFigureOrBlank) {
  Entry& figure = BindOhms();
  figure.Fill();
  EXPECT_EQ(Text(), "0.0");
  page.txtValue.text = "";
  figure.Leave();
  EXPECT_EQ(Text(), "0.0");
  Entry& blank = Bind({.box = page.txtValue, .field = field, .format = FormatResistance, .ofZero = OfZero::Blank});
  blank.Fill();
  EXPECT_EQ(Text(), "");
  blank.Leave();
  EXPECT_EQ(Text(), "");
}

TEST_F(Entries, RefreshShowsWhatChangedBehindTheBoxWithoutARepair) {
  BindOhms();
  Put("2200");
  page.entries.Refresh();
  EXPECT_EQ(Text(), "2200");  // says what the field holds, in the user's own digits
  field = 75;
  page.entries.Refresh();
  EXPECT_EQ(Text(), "75");
  EXPECT_EQ(Repairs(), 0);
}

TEST_F(Entries, RepairShowsWhatARuleHasPutThere) {
  BindOhms();
  Put("2200");
  page.entries.Repair();
  EXPECT_EQ(Repairs(), 0);
  field = 600;
  page.entries.Repair();
  EXPECT_EQ(Text(), "600");
  EXPECT_EQ(Repairs(), 1);
  EXPECT_EQ(bench.session.note, "Value: \"2200\" is taken as 600");
}

// A hidden box keeps what was entered: it is the entry again when the page shows it.
TEST_F(Entries, WhatIsHiddenIsLeftAlone) {
  BindOhms();
  Put("2200");
  field = 75;
  page.txtValue.visible = false;
  page.entries.Refresh();
  page.entries.Repair();
  EXPECT_EQ(Text(), "2200");
}

// A rule that would hold the typed value just as the record was held must not hide that the box says another.
TEST_F(Entries, ABoxThatSaysMoreThanItsFieldDoesNotAgree) {
  Entry& entry = Bind({.box = page.txtValue, .field = field, .format = FormatValue, .hold = AtMost180});
  page.txtValue.text = "500";
  field = 180;
  EXPECT_FALSE(entry.Agrees());
  entry.Fill();
  EXPECT_TRUE(entry.Agrees());
}

TEST_F(Entries, TheFirstRefusedIsFoundInTheOrderOfBinding) {
  f32 other = 5;
  Bind({.box = page.txtValue, .field = field, .format = FormatValue, .refusal = [](f32 value) {
          return std::string(value > 0 ? "" : "Too small");
        }});
  Entry& second = Bind({.box = page.txtValue, .field = other, .format = FormatValue, .refusal = [](f32 value) {
                          return std::string(value < 5 ? "" : "Too large");
                        }});
  EXPECT_EQ(page.entries.FirstRefused()->Refusal(), "Too small");
  field = 1;
  EXPECT_EQ(page.entries.FirstRefused(), &second);
  other = 4;
  EXPECT_EQ(page.entries.FirstRefused(), nullptr);
}

}  // namespace
}  // namespace quilm
