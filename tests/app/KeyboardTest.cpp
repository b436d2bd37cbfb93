// The program by keyboard alone, and what assistive tools hear of it.
#include <QAccessible>
#include <QLabel>
#include <map>
#include <set>

#include "app/GroupBox.h"
#include "app/PageView.h"
#include "app/WalkBench.h"
#include "core/DesignRecord.h"
#include "core/Identity.h"

namespace quilm {
namespace {

using Interface = QAccessibleInterface;

class Keyboard : public Walk {
 protected:
  Keyboard() { DesignLowpass(); }

  void Key(int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), held);
    QTest::qWait(1);
  }
  void Alt(QChar letter) {
    QTest::keyClick(&desktop_.window, letter.toLatin1(), Qt::AltModifier);
    QTest::qWait(1);
  }
  void Go(int number) {
    QTest::keyClick(&desktop_.window, static_cast<Qt::Key>(Qt::Key_0 + number), Qt::ControlModifier);
    QTest::qWait(1);
  }
  // The control that has the focus; nullptr for none of the page's.
  const Control* Focused() {
    QWidget* widget = QApplication::focusWidget();
    return widget == nullptr ? nullptr : Top().Find(widget->objectName().toStdString());
  }
  static const Button* AsNavigation(const Control* control) {
    const auto* button = dynamic_cast<const Button*>(control);
    const bool navigation =
        button != nullptr && (button->role == ButtonRole::Segment || button->role == ButtonRole::Action);
    return navigation ? button : nullptr;
  }
  // The letter that a caption marks; null for none.
  static QChar LetterOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
      if (text[i] != QLatin1Char('&')) continue;
      if (text[i + 1] != QLatin1Char('&')) return text[i + 1].toLower();
      ++i;
    }
    return {};
  }
  static QString TextOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label != nullptr && label->buddy() != nullptr ? label->text() : QString();
  }
  // The letters on a page, by the object that bears each.
  std::multimap<QChar, QString> Letters() {
    std::multimap<QChar, QString> letters;
    for (const QWidget* widget : desktop_.TopView()->findChildren<QWidget*>()) {
      if (!widget->isVisible()) continue;
      const QChar letter = LetterOf(TextOf(*widget));
      if (!letter.isNull()) letters.emplace(letter, widget->objectName() + widget->accessibleName());
    }
    return letters;
  }
  static Interface& Heard(QWidget* widget) { return *QAccessible::queryAccessibleInterface(widget); }
};

constexpr int mainPages[] = {1, 2, 3, 4, 5, 6};

TEST_F(Keyboard, TheFocusStartsInTheContentOfEveryPage) {
  for (const int page : mainPages) {
    Go(page == 1 ? 5 : 1);
    Go(page);
    ASSERT_NE(Focused(), nullptr) << page;
    EXPECT_EQ(AsNavigation(Focused()), nullptr) << page << ' ' << Focused()->name;
  }
}

TEST_F(Keyboard, ReturnOnArrivalLeavesNoPage) {
  for (const int page : mainPages) {
    Go(page == 1 ? 5 : 1);
    Go(page);
    const PageId id = Top().Id();
    Key(Qt::Key_Return);
    EXPECT_EQ(Top().Id(), id);
  }
}

TEST_F(Keyboard, ReturnInABoxOfSeveralShowsWhatWasUnderstoodAndKeepsThePage) {
  Type("txtBandwidth", "2000k");
  Key(Qt::Key_Return);
  EXPECT_EQ(Top().Id(), PageId::Design);
  EXPECT_EQ(qobject_cast<QLineEdit*>(Find("txtBandwidth"))->text().trimmed(), "2M");
}

TEST_F(Keyboard, OptionsToolsAndPagesAreOneStopEach) {
  Find("txtBandwidth")->setFocus();
  std::map<std::string, int> stops;
  int steps = 0;
  do {
    Key(Qt::Key_Tab);
    const Control* control = Focused();
    ASSERT_LT(++steps, 60);
    if (control == nullptr) continue;
    const auto* option = dynamic_cast<const OptionButton*>(control);
    const auto* button = dynamic_cast<const Button*>(control);
    if (option != nullptr) ++stops["options of " + option->Group().Members().front()->name];
    if (button != nullptr && button->role != ButtonRole::Tool) {
      ++stops["buttons " + std::to_string(static_cast<int>(button->role))];
    }
    if (button != nullptr && button->name.rfind("Command", 0) == 0) ++stops["tools"];
  } while (Focused() == nullptr || Focused()->name != "txtBandwidth");
  for (const auto& [name, count] : stops) EXPECT_EQ(count, 1) << name;
  EXPECT_EQ(stops.count("tools"), 1U);
  EXPECT_EQ(stops.count("options of optButterworth"), 1U);
  EXPECT_EQ(stops.count("options of optCapInLowpass"), 1U);
  EXPECT_EQ(stops.count("buttons 1"), 1U) << "the pages";
}

TEST_F(Keyboard, ArrowsChooseInAGroupOfOptions) {
  Find("optButterworth")->setFocus();
  Key(Qt::Key_Down);
  EXPECT_EQ(Record().Family, familyChebyshev);
  EXPECT_EQ(Focused()->name, "optChebycheff");
  Key(Qt::Key_Left);
  EXPECT_EQ(Record().Family, familyButterworth);
  Key(Qt::Key_Up);  // the list ends there
  EXPECT_EQ(Record().Family, familyButterworth);
}

TEST_F(Keyboard, ArrowsGoFromCardToCardAsTheyStand) {
  Find("optCapInLowpass")->setFocus();
  Key(Qt::Key_Right);
  EXPECT_EQ(Record().Topology, "B");
  Key(Qt::Key_Down);
  EXPECT_EQ(Record().Topology, "D");
  Key(Qt::Key_Down);
  EXPECT_EQ(Record().Topology, "F");
  Key(Qt::Key_Down);  // past the card of the Cauer bandpass, which cannot be chosen
  EXPECT_EQ(Record().Topology, "J");
  Key(Qt::Key_Left);
  EXPECT_EQ(Record().Topology, "I");
}

TEST_F(Keyboard, WithCtrlAnArrowGoesOnWithoutChoosing) {
  Find("optButterworth")->setFocus();
  Key(Qt::Key_Down, Qt::ControlModifier);
  Key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Record().Family, familyButterworth);
  Key(Qt::Key_Space);
  EXPECT_EQ(Record().Family, familyCauer);
}

TEST_F(Keyboard, ArrowsGoAmongToolsWithoutPressingThem) {
  Find("Command4")->setFocus();
  Key(Qt::Key_Down);
  EXPECT_EQ(Focused()->name, "Command11");
  EXPECT_EQ(Top().Id(), PageId::Design);
}

TEST_F(Keyboard, TheLettersOfTheNavigationAreTheSameOnEveryPage) {
  const std::map<std::string, QChar> expected = {{"Design", 'd'}, {"Schematic", 's'}, {"Edit", 'e'}, {"Analysis", 'a'},
                                                 {"Plot", 'p'},   {"Tabulate", 't'},  {"Get", 'g'},  {"Save", 'v'},
                                                 {"Write", 'w'},  {"Print", 'r'},     {"Help", 'h'}, {"About", 'b'},
                                                 {"Exit", 'x'}};
  for (const int page : mainPages) {
    Go(page);
    for (const Control* control : Top().Controls()) {
      const Button* button = AsNavigation(control);
      if (button == nullptr) continue;
      const QChar letter = LetterOf(TextOf(*Find(button->name.c_str())));
      EXPECT_EQ(letter, button->Usable() ? expected.at(button->caption) : QChar()) << page << ' ' << button->name;
    }
  }
}

TEST_F(Keyboard, NoLetterStandsTwiceNorOnWhatIsDisabled) {
  const std::set<QChar> navigation = {'d', 's', 'e', 'a', 'p', 't', 'g', 'v', 'w', 'r', 'h', 'b', 'x'};
  for (const int page : mainPages) {
    Go(page);
    const std::multimap<QChar, QString> letters = Letters();
    for (auto at = letters.begin(); at != letters.end(); ++at) {
      EXPECT_EQ(letters.count(at->first), 1U) << page << ' ' << QString(at->first).toStdString();
    }
    for (const Control* control : Top().Controls()) {
      if (control->kind == ControlKind::Timer) continue;
      const QChar letter = LetterOf(TextOf(*Find(control->name.c_str())));
      EXPECT_TRUE(control->Usable() || letter.isNull()) << page << ' ' << control->name;
      // Nor is a letter of the navigation another control's while its button is disabled.
      EXPECT_TRUE(AsNavigation(control) != nullptr || navigation.count(letter) == 0) << page << ' ' << control->name;
    }
  }
}

TEST_F(Keyboard, TheLetterOfAnEntryLeadsIntoItsBoxOnLowpassAndBandpass) {
  for (const char* topology : {"optCapInLowpass", "optSeriesInGeoSymm"}) {
    ClickOn(topology);
    EXPECT_EQ(LetterOf(TextOf(*Find("lblBandwidth"))), QChar('f'));
    Alt('f');
    EXPECT_EQ(Focused()->name, "txtBandwidth");
  }
  const QChar order = LetterOf(TextOf(*Find("lblOrder")));
  ASSERT_FALSE(order.isNull());
  Alt(order);
  EXPECT_EQ(Focused()->name, "UpDown1");
}

TEST_F(Keyboard, TheLetterOfAGroupLeadsToItsChosenOption) {
  ClickOn("optBessel");
  ClickOn("optIndInLowpass");
  int groups = 0;
  for (GroupBox* group : desktop_.TopView()->findChildren<GroupBox*>()) {
    const bool families = group->Title() == QLatin1String("Family");
    if (!families && group->Title() != QLatin1String("Topology")) continue;
    ++groups;
    const QChar letter = LetterOf(group->Heading()->text());
    ASSERT_FALSE(letter.isNull()) << group->Title().toStdString();
    Find("txtBandwidth")->setFocus();
    Alt(letter);
    EXPECT_EQ(Focused()->name, families ? "optBessel" : "optIndInLowpass");
  }
  EXPECT_EQ(groups, 2);
  EXPECT_EQ(Record().Family, familyBessel);
}

TEST_F(Keyboard, AnOptionIsHeardAsARadioButtonInItsGroup) {
  Interface& option = Heard(Find("optButterworth"));
  EXPECT_EQ(option.role(), QAccessible::RadioButton);
  EXPECT_TRUE(option.state().checked);
  EXPECT_FALSE(Heard(Find("optChebycheff")).state().checked);
  const Interface* group = option.parent();
  ASSERT_NE(group, nullptr);
  EXPECT_EQ(group->role(), QAccessible::Grouping);
  EXPECT_EQ(group->text(QAccessible::Name), "Family");
  EXPECT_EQ(Heard(Find("optSeriesInGeoSymm")).role(), QAccessible::RadioButton);
}

TEST_F(Keyboard, ANumberIsHeardAsOneControlWithItsValue) {
  Interface& order = Heard(Find("UpDown1"));
  EXPECT_EQ(order.role(), QAccessible::SpinBox);
  EXPECT_EQ(order.text(QAccessible::Name), "Order");
  EXPECT_EQ(order.childCount(), 0);
  QAccessibleValueInterface* value = order.valueInterface();
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->currentValue().toInt(), 3);
  EXPECT_EQ(value->minimumValue().toInt(), 1);
  EXPECT_EQ(value->maximumValue().toInt(), 21);
  value->setCurrentValue(5);
  EXPECT_EQ(Record().Order, 5);
  EXPECT_EQ(value->currentValue().toInt(), 5);
  order.actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
  EXPECT_EQ(Record().Order, 6);
}

TEST_F(Keyboard, ABoxIsNamedAndItsLabelBelongsToIt) {
  Interface& box = Heard(Find("txtBandwidth"));
  EXPECT_EQ(box.role(), QAccessible::EditableText);
  EXPECT_FALSE(box.text(QAccessible::Name).isEmpty());
  const auto labels = box.relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels[0].first->object(), Find("lblBandwidth"));
}

TEST_F(Keyboard, PicturesHaveARoleANameAndADescription) {
  for (const int page : {1, 2, 4, 5}) {
    Go(page);
    for (const Control* control : Top().Controls()) {
      if (control->kind != ControlKind::Picture) continue;
      Interface& picture = Heard(Find(control->name.c_str()));
      EXPECT_EQ(picture.role(), QAccessible::Graphic) << control->name;
      EXPECT_FALSE(picture.text(QAccessible::Name).isEmpty()) << control->name;
      EXPECT_FALSE(picture.text(QAccessible::Description).isEmpty()) << control->name;
    }
  }
}

TEST_F(Keyboard, RowsOfTheTableAreCells) {
  Go(6);
  Interface& table = Heard(Find("lstTabulatedOutput"));
  EXPECT_EQ(table.role(), QAccessible::Table);
  ASSERT_NE(table.tableInterface(), nullptr);
  EXPECT_EQ(table.tableInterface()->columnCount(), 8);
  EXPECT_EQ(table.tableInterface()->columnDescription(1), "Trans. (dB)");
  Interface* cell = table.tableInterface()->cellAt(2, 0);
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->role(), QAccessible::Cell);
  EXPECT_FALSE(cell->text(QAccessible::Name).isEmpty());
}

TEST_F(Keyboard, TheGuideOfACardIsNamedByCaptionAndTip) {
  EXPECT_EQ(Heard(Find("cmdCapInLowpass")).text(QAccessible::Name),
            "Capacitor-input lowpass, See the Capacitor-input lowpass");
}

}  // namespace
}  // namespace quilm
