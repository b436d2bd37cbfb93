// The Cauer family from the Design page to its ladder, and the failure page of odd orders.

#include "desk/StartUp.h"
#include "pages/PageBench.h"
#include "pages/PageDirectory.h"

namespace quilm {
namespace {

class CauerPages : public PageBench {
 protected:
  CauerPages() : PageBench(AllPages()) {
    StartProgram(session);
    Press("cmdDesignNew");
    Press("optCauer");
    Press("optCapInLowpass");
    Enter("txtBandwidth", "1M");
    Enter("txtInputTerm", "50");
    Enter("txtStopbandDepth", "50");
  }

  void SetOrder(int order) {
    while (static_cast<int>(session.record.Order) != order) {
      Step(session, Get<Spin>("UpDown1"), static_cast<int>(session.record.Order) < order ? 1 : -1);
    }
  }
};

TEST_F(CauerPages, AnOddOrderHasItsRippleAsAResult) {
  SetOrder(5);
  EXPECT_FALSE(Get<TextBox>("txtPassbandRipple").Shown());
  EXPECT_FALSE(Get<Frame>("fraCauerType").Shown());
  Enter("txtStopbandFreq", "1.5M");
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(session.record.FstopNorm, 1.5F);
  EXPECT_NEAR(session.record.Apass, 0.43773, 1e-5);
  EXPECT_EQ(session.record.CauerType, "A");
  ASSERT_EQ(session.record.Stages, 5);
  // C1 = 1.50663 / (2 Pi 1e6 50), L2 = 1.11616 * 50 / (2 Pi 1e6): the worked prototype, scaled.
  EXPECT_NEAR(session.record.stage[1].Cval.value, 4.79575e-9, 1e-13);
  EXPECT_EQ(session.record.stage[2].ElementType, SeriesPLC);
  EXPECT_NEAR(session.record.stage[2].Lval.value, 8.88212e-6, 1e-10);
}

// 0.43773 dB: rho^2 = 1 - 10^-0.043773 = 0.095878, rho = 0.309642, VSWR = 1.309642 / 0.690358 = 1.8970, return 20 log
// rho.
TEST_F(CauerPages, TheReadoutSaysWhatTheRippleOfAnOddOrderMeans) {
  SetOrder(5);
  Enter("txtStopbandFreq", "1.5M");
  Press("cmdSeeNorms");
  EXPECT_TRUE(Get<Label>("lblVSWR").Shown());
  const std::string readout = Get<Label>("lblVSWR").caption;
  EXPECT_TRUE(readout.starts_with("VSWR: 1.897")) << readout;  // the ripple of the table ends at its fifth digit
  EXPECT_TRUE(readout.ends_with("   Return: -10.183 dB")) << readout;
  Press("cmdPlot");
  Press("cmdDesign");
  EXPECT_EQ(Get<Label>("lblVSWR").caption, readout);
}

TEST_F(CauerPages, BoxesOptionsAndRecordAgreeWhenTheOrderBecomesEven) {
  SetOrder(4);
  Enter("txtPassbandRipple", ".1");
  Press("optCauerTermsEqual");
  SetOrder(5);
  Enter("txtStopbandFreq", "1.5M");
  Press("cmdSeeNorms");
  EXPECT_EQ(session.record.CauerType, "A");
  EXPECT_NEAR(session.record.Apass, 0.43773, 1e-5);
  SetOrder(6);
  EXPECT_EQ(Get<TextBox>("txtPassbandRipple").text, "0.1");
  EXPECT_EQ(session.record.Apass, 0.1F);
  EXPECT_EQ(Get<Label>("lblVSWR").caption, "VSWR: 1.3554   Return: -16.428 dB");
  EXPECT_EQ(session.record.CauerType, "C");
  EXPECT_TRUE(Get<OptionButton>("optCauerTermsEqual").Value());
}

// A file may have any depth. 7,000 dB is a voltage ratio of 10^350, beyond the range of 64 bits.
TEST_F(CauerPages, ADepthBeyondAllNumbersLeavesTheRecordFinite) {
  SetOrder(5);
  Enter("txtStopbandFreq", "1.5M");
  session.record.Astop = 7000;
  session.record.Apass = 0.25F;
  Press("optCauer");
  EXPECT_EQ(session.record.Apass, 0.25F);
  for (int j = 1; j <= 21; ++j) EXPECT_EQ(session.record.Gj[j], 0) << j;
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_NE(MessageTexts().back().find("Please enter a stopband depth"), std::string::npos);
}

TEST_F(CauerPages, AnEvenOrderTakesItsRipple) {
  SetOrder(4);
  EXPECT_TRUE(Get<TextBox>("txtPassbandRipple").Shown());
  EXPECT_TRUE(Get<Frame>("fraCauerType").Shown());
  Enter("txtPassbandRipple", ".1");
  Enter("txtStopbandDepth", "40");
  Press("optCauerTermsEqual");
  Press("cmdPlot");
  EXPECT_NEAR(session.record.FstopNorm, 2.21232, 1e-5);
  EXPECT_EQ(session.record.Rload[1], 50);
  // A plain inductor closes an even ladder.
  EXPECT_EQ(session.record.stage[4].ElementType, SeriesL);
  Press("cmdDesign");
  EXPECT_EQ(Get<TextBox>("txtStopbandFreq").text, "2.21232M");
  Press("optCauerTermBest");
  Press("cmdPlot");
  EXPECT_NEAR(session.record.FstopNorm, 2.06621, 1e-5);
  EXPECT_NEAR(session.record.Rload[1], 50 * 0.73781, 1e-3);
}

TEST_F(CauerPages, AShallowDepthAtHighOrderLeavesNoNetwork) {
  SetOrder(8);
  Enter("txtPassbandRipple", "10");
  Enter("txtStopbandDepth", "11");
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.record.Stages, 0);
  EXPECT_EQ(MessageTexts().back(),
            "We could not calculate the parts values.\r\nSome critical design item is missing.\r\n"
            "Examine the entries on the Design page.");
}

TEST_F(CauerPages, TheBandpassHasBothLayouts) {
  SetOrder(4);
  Enter("txtPassbandRipple", ".1");
  Enter("txtStopbandDepth", "60");
  Press("optCauerTermsEqual");
  Press("optCauerBandpass");
  Enter("txtCenterFrequency", "10M");
  Press("optCauerTopZigZag");
  Press("cmdPlot");
  EXPECT_EQ(session.record.Stages, 6);
  EXPECT_NEAR(session.record.Rload[1], 48.121, 1e-3);
  Press("cmdDesign");
  SetOrder(7);
  EXPECT_EQ(session.record.CauerTop, 0);
  EXPECT_FALSE(Get<OptionButton>("optCauerTopZigZag").Active());
}

// Order 9 with edges 1 : 4 and 50 dB has far less ripple than can be built.
class Failure : public CauerPages {
 protected:
  Failure() {
    SetOrder(9);
    Enter("txtStopbandFreq", "4M");
  }

  // Presses Plot, with one act for each time that the failure page opens.
  void Plot(std::deque<std::function<void()>> acts) {
    for (auto& act : acts) {
      platform.modalActs.push_back([this, act](Page& page) {
        EXPECT_EQ(page.Id(), PageId::Bailout);
        ++opened;
        act();
      });
    }
    Press("cmdPlot");
  }

  int opened = 0;
};

TEST_F(Failure, SaysWhatIsWrongAndWhatHelps) {
  Plot({[this] {
    EXPECT_EQ(Get<Label>("lblProblem").caption,
              "The current entries have resulted in a filter whose passband ripple is too low.");
    EXPECT_EQ(Get<Label>("lblTopology").caption, "The filter topology is capacitor-input lowpass.");
    EXPECT_EQ(Get<Label>("lblAdvice").caption,
              "To increase the passband ripple, you can\r\n > decrease the passband width,\r\n"
              " > or increase the stopband width,\r\n > or increase the stopband depth,\r\n> or decrease the order.");
    EXPECT_EQ(Get<Button>("cmdStopbandFreq").caption, "Reduce Fstop and retry");
    EXPECT_EQ(Get<TextBox>("txtOrder").text, "9");
  }});
  EXPECT_EQ(opened, 1);
}

TEST_F(Failure, LeavingItUnchangedGivesUp) {
  Press("cmdPlot");
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(session.record.Stages, 0);
  EXPECT_NE(MessageTexts().back().find("We could not calculate the parts values."), std::string::npos);
}

// An order of 3 cannot be reduced; the page stays the user's until another button, or its close box, is pressed.
TEST_F(Failure, OpensAgainWhereARetryChangesNothing) {
  SetOrder(3);
  Enter("txtStopbandFreq", "900M");
  Plot({[this] { Press("cmdOrder"); },
        [this] {
          EXPECT_EQ(session.record.Order, 3);
          Press("cmdExitCauer");
        },
        [this] {
          Enter("txtStopbandFreq", "3M");
          Press("cmdExitCauer");
        }});
  EXPECT_EQ(opened, 3);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(Failure, EachButtonChangesOneEntryAndTriesAgain) {
  Plot({[this] { Press("cmdStopbandFreq"); }, [this] { Press("cmdStopbandDepth"); }, [this] { Press("cmdOrder"); },
        [this] {
          EXPECT_NEAR(session.record.Fstopband, 4e6 / 1.01, 1);
          EXPECT_EQ(session.record.Astop, 51);
          EXPECT_EQ(session.record.Order, 7);
          Enter("txtStopbandFreq", "1.3M");
          Press("cmdExitCauer");
        }});
  EXPECT_EQ(opened, 4);
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(session.record.Fstopband, 1.3e6F);
  EXPECT_GT(session.record.Apass, 0.0001F);
  EXPECT_GE(platform.paused, 2);
}

TEST_F(Failure, EdgesInTheWrongOrderKeepThePage) {
  Plot({[this] {
    Enter("txtStopbandFreq", "900k");
    Press("cmdExitCauer");
    EXPECT_EQ(Top().Id(), PageId::Bailout);
    EXPECT_EQ(Get<Label>("lblPassbandHint").caption, "Passband is greater than stopband");
    EXPECT_EQ(Get<Label>("lblStopbandHint").caption, "Stopband is less than passband");
    EXPECT_EQ(session.record.Fstopband, 4e6F);
    Enter("txtStopbandFreq", "1.2M");
    Press("cmdExitCauer");
  }});
  EXPECT_EQ(Top().Id(), PageId::Plotted);
}

TEST_F(Failure, AnEvenOrderGoesToTheNextLowerOddOne) {
  Plot({[this] {
    Enter("txtOrder", "6");
    Enter("txtStopbandFreq", "1.4M");
    Press("cmdExitCauer");
  }});
  EXPECT_EQ(session.record.Order, 5);
  EXPECT_EQ(MessageTexts(), std::vector<std::string>{"We have reduced the order to the next-lowest odd value."});
}

TEST_F(Failure, AHighpassHasItsEdgesTheOtherWayRound) {
  Press("optCapInHighpass");
  Enter("txtStopbandFreq", "250k");
  Plot({[this] {
          EXPECT_EQ(Get<Button>("cmdStopbandFreq").caption, "Increase Fstop and retry");
          Press("cmdStopbandFreq");
        },
        [this] {
          EXPECT_NEAR(session.record.Fstopband, 252500, 1);
          Enter("txtStopbandFreq", "800k");
          Press("cmdExitCauer");
        }});
  EXPECT_EQ(Top().Id(), PageId::Plotted);
  EXPECT_EQ(session.record.FstopNorm, 1.25F);
}

}  // namespace
}  // namespace quilm
