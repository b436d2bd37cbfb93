// How the Design page stands in its window, and how it is reached by mouse and keyboard.
#include <QLabel>
#include <QRadioButton>
#include <QTimer>
#include <QWheelEvent>
#include <map>

#include "app/GroupBox.h"
#include "app/OptionCard.h"
#include "app/SpinBox.h"
#include "app/WalkBench.h"
#include "core/DesignRecord.h"
#include "core/Identity.h"
#include "shell/Acts.h"

namespace quilm {
namespace {

constexpr const char* topologies[] = {"CapInLowpass",   "IndInLowpass",    "NodCapBandpass",   "NodIndBandpass",
                                      "ShuntInGeoSymm", "SeriesInGeoSymm", "MeshCapBandpass",  "CauerBandpass",
                                      "CapInHighpass",  "IndInHighpass",   "SeriesInBandstop", "ShuntInBandstop"};
constexpr const char* families[] = {"optButterworth", "optChebycheff", "optCauer",     "optBessel",
                                    "optGaussian",    "optGaussian12", "optConstantK", "optManual"};

class DesignLayout : public Walk {
 protected:
  DesignLayout() { DesignLowpass(); }

  QRect Place(const char* name) { return PlaceIn(*Find(name)); }
  QRect PlaceIn(const QWidget& widget) { return {widget.mapTo(desktop_.TopView(), QPoint(0, 0)), widget.size()}; }
  void Resize(QSize size) {
    desktop_.window.resize(size);
    QTest::qWait(20);
  }
  OptionCard& Card(const char* topology) {
    return dynamic_cast<OptionCard&>(*Find((std::string("opt") + topology).c_str()));
  }
  // The control's value, by a family that the user chooses.
  void Choose(const char* option) {
    auto* control = Top().Find(option);
    desktop_.platform.Stage().Perform([control](Session& session) { Click(session, *control); });
    QTest::qWait(1);
  }
  // Where everything that is seen stands.
  std::map<QString, QRect> Places() {
    std::map<QString, QRect> places;
    for (const Control* control : Top().Controls()) {
      if (!control->Shown() || control->kind == ControlKind::Timer) continue;
      const QWidget* widget = Find(control->name.c_str());
      places[widget->objectName()] = PlaceIn(*widget);
      // A readout may be longer or shorter; it begins or ends where it did.
      if (control->kind == ControlKind::Label) places[widget->objectName()].setWidth(1);
    }
    return places;
  }
};

TEST_F(DesignLayout, CardsFillTheirColumnWithGapsOfAtMost24Pixels) {
  constexpr int largestGap = 24;
  for (const QSize size : {QSize(1024, 700), QSize(1280, 860), QSize(1920, 1080)}) {
    Resize(size);
    for (int row = 0; row < 6; ++row) {
      const QRect left = PlaceIn(Card(topologies[2 * row]));
      const QRect right = PlaceIn(Card(topologies[2 * row + 1]));
      EXPECT_EQ(left.top(), right.top());
      EXPECT_EQ(left.left(), PlaceIn(Card(topologies[0])).left());
      EXPECT_EQ(right.left(), PlaceIn(Card(topologies[1])).left()) << row << ' ' << size.width();
      EXPECT_LE(right.left() - left.right(), largestGap);
      EXPECT_GT(right.left(), left.right());
      if (row == 0) continue;
      const QRect above = PlaceIn(Card(topologies[2 * row - 2]));
      EXPECT_LE(left.top() - above.bottom(), largestGap) << row << ' ' << size.width();
      EXPECT_GT(left.top(), above.bottom());
    }
    // From the families to the cards, and from the cards to the tools.
    EXPECT_LE(PlaceIn(Card(topologies[0])).left() - Place("UpDown2").right(), largestGap);
    EXPECT_LE(Place("Command1").top() - PlaceIn(Card(topologies[10])).bottom(), 2 * largestGap);
  }
}

TEST_F(DesignLayout, CardsGrowWithTheWindow) {
  Resize({1024, 700});
  const QSize small = Card("CapInLowpass").PictureRect().size();
  Resize({1920, 1080});
  const QSize large = Card("CapInLowpass").PictureRect().size();
  EXPECT_GT(large.width(), small.width());
  EXPECT_GT(large.height(), small.height());
}

TEST_F(DesignLayout, ThePageNeedsNoScrollingAt1024By700) {
  Resize({1024, 700});
  const QSize room = desktop_.TopView()->parentWidget()->size();
  EXPECT_LE(desktop_.TopView()->minimumSizeHint().width(), room.width());
  EXPECT_LE(desktop_.TopView()->minimumSizeHint().height(), room.height());
}

TEST_F(DesignLayout, NothingMovesWhenTheFamilyChanges) {
  for (const char* topology : {"optCapInLowpass", "optSeriesInGeoSymm"}) {
    for (const char* order : {"3", "8"}) {
      Choose(families[0]);
      Choose(topology);
      Find("UpDown1")->setFocus();
      QTest::keyClicks(Find("UpDown1"), QString::fromLatin1(order));
      const std::map<QString, QRect> before = Places();
      for (const char* family : families) {
        Choose(family);
        for (const auto& [name, place] : Places()) {
          const auto stood = before.find(name);
          if (stood == before.end() || name == "lblVSWR") continue;
          // Right-aligned labels end at their boxes.
          const bool ends = name.startsWith("lbl");
          EXPECT_EQ(ends ? place.center().y() : place.left(), ends ? stood->second.center().y() : stood->second.left())
              << family << ' ' << name.toStdString();
          if (!ends) {
            EXPECT_EQ(place, stood->second) << family << ' ' << name.toStdString();
          }
        }
      }
    }
  }
}

TEST_F(DesignLayout, EveryBoxHasItsUnitRightAfterIt) {
  Choose("optCauer");
  Choose("optCauerBandpass");
  QTest::keyClick(Find("UpDown1"), Qt::Key_Up);  // of even order: everything is asked for
  const std::map<const char*, const char*> units = {{"txtBandwidth", "Hz"},    {"txtCenterFrequency", "Hz"},
                                                    {"txtInputTerm", "ohms"},  {"txtPassbandRipple", "dB"},
                                                    {"txtStopbandFreq", "Hz"}, {"txtStopbandDepth", "dB"}};
  for (const auto& [name, unit] : units) {
    const QRect box = Place(name);
    ASSERT_TRUE(Find(name)->isVisible()) << name;
    auto* beside = qobject_cast<QLabel*>(desktop_.TopView()->childAt(box.right() + 12, box.center().y()));
    ASSERT_NE(beside, nullptr) << name;
    EXPECT_EQ(beside->text(), QString::fromLatin1(unit)) << name;
    EXPECT_EQ(PlaceIn(*beside).left() - box.right(), 9) << name;
  }
}

TEST_F(DesignLayout, AUnitGoesWithItsBox) {
  const QRect box = Place("txtCenterFrequency");
  ASSERT_FALSE(Find("txtCenterFrequency")->isVisible());
  const QWidget* beside = desktop_.TopView()->childAt(box.right() + 12, box.center().y());
  EXPECT_EQ(qobject_cast<const QLabel*>(beside), nullptr);
}

TEST_F(DesignLayout, TheEdgeStandsUnderTheWidth) {
  auto* edge = qobject_cast<QLabel*>(Find("lblRipple"));
  EXPECT_EQ(edge->text(), "3 dB");
  const QRect box = Place("txtBandwidth");
  EXPECT_GT(Place("lblRipple").top(), box.bottom());
  EXPECT_LE(Place("lblRipple").top() - box.bottom(), 8);
  EXPECT_LT(Place("lblRipple").left(), box.right());
  Choose("optChebycheff");
  EXPECT_EQ(edge->text(), "Ripple");
}

TEST_F(DesignLayout, AClickOnTheLadderChoosesItsOption) {
  OptionCard& card = Card("SeriesInGeoSymm");
  QTest::mouseClick(&card, Qt::LeftButton, {}, card.PictureRect().center());
  EXPECT_EQ(Record().Topology, "F");
  EXPECT_TRUE(card.isChecked());
}

TEST_F(DesignLayout, TheQuestionMarkLiesBesideTheLadder) {
  for (const QSize size : {QSize(1024, 700), QSize(1280, 860), QSize(1920, 1080)}) {
    Resize(size);
    for (const char* topology : topologies) {
      const QWidget* mark = Find((std::string("cmd") + topology).c_str());
      const QRect ladder = Card(topology).PictureRect().translated(PlaceIn(Card(topology)).topLeft());
      EXPECT_GT(PlaceIn(*mark).left(), ladder.right()) << topology << ' ' << size.width();
    }
  }
}

TEST_F(DesignLayout, TheQuestionMarkOfACardThatCannotBeChosenLeadsToItsGuide) {
  ASSERT_FALSE(Find("optCauerBandpass")->isEnabled());
  auto* mark = qobject_cast<QAbstractButton*>(Find("cmdCauerBandpass"));
  EXPECT_EQ(mark->text(), "?");
  EXPECT_TRUE(PlaceIn(Card("CauerBandpass")).contains(PlaceIn(*mark)));
  QTimer::singleShot(100, qApp, [this] { desktop_.platform.Stage().FrontWindow()->close(); });
  mark->click();
  EXPECT_EQ(Record().TopologyHelpCode, 8);
  EXPECT_EQ(Record().Topology, "A");
}

TEST_F(DesignLayout, DigitsSetTheOrder) {
  Find("UpDown1")->setFocus();
  QTest::keyClicks(Find("UpDown1"), "12");
  EXPECT_EQ(Record().Order, 12);
  EXPECT_EQ(qobject_cast<QLabel*>(Find("lblOrderInput"))->text(), "12");
  // 127 would be beyond the highest order: the digit begins a number of its own.
  QTest::keyClicks(Find("UpDown1"), "7");
  EXPECT_EQ(Record().Order, 7);
  QTest::keyClick(Find("UpDown1"), Qt::Key_Up);
  EXPECT_EQ(Record().Order, 8);
  QTest::keyClicks(Find("UpDown1"), "1");
  EXPECT_EQ(Record().Order, 1);
}

TEST_F(DesignLayout, ADigitAfterTheFocusWasAwayBeginsAnew) {
  Find("UpDown1")->setFocus();
  QTest::keyClicks(Find("UpDown1"), "1");
  Find("txtBandwidth")->setFocus();
  Find("UpDown1")->setFocus();
  QTest::keyClicks(Find("UpDown1"), "5");
  EXPECT_EQ(Record().Order, 5);
}

TEST_F(DesignLayout, TheWheelStepsASpinControlThatHasTheFocus) {
  auto* spin = Find("UpDown1");
  const auto turn = [spin](int delta) {
    QWheelEvent event(QPointF(5, 5), spin->mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(spin, &event);
  };
  const f32 order = Record().Order;
  Find("txtBandwidth")->setFocus();
  turn(120);
  EXPECT_EQ(Record().Order, order);
  spin->setFocus();
  turn(240);
  EXPECT_EQ(Record().Order, order + 2);
  turn(-120);
  EXPECT_EQ(Record().Order, order + 1);
}

TEST_F(DesignLayout, TheDigitsOfOneNumberAreOneStepBack) {
  Find("UpDown1")->setFocus();
  QTest::keyClicks(Find("UpDown1"), "12");
  Find("txtBandwidth")->setFocus();
  desktop_.platform.Stage().Perform([](Session& session) { Undo(session); });
  EXPECT_EQ(Record().Order, 3);
}

}  // namespace
}  // namespace quilm
