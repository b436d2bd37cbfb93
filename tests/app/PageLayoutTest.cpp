// How the Analysis page and the table stand in their window.
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QTableView>

#include "app/GroupBox.h"
#include "app/TableView.h"
#include "app/WalkBench.h"

namespace quilm {
namespace {

class PageLayout : public Walk {
 protected:
  PageLayout() { DesignLowpass(); }
  QRect Place(const char* name) {
    const QWidget* widget = Find(name);
    return {widget->mapTo(desktop_.TopView(), QPoint(0, 0)), widget->size()};
  }
  QTableView& Table() { return dynamic_cast<QTableView&>(*Find("lstTabulatedOutput")); }
};

TEST_F(PageLayout, LabelsOfTheAnalysisPageStandOnTheLineOfTheirBoxes) {
  ClickOn("cmdAnalysis");
  const std::pair<const char*, const char*> pairs[] = {{"lblFstart", "txtFstart"},
                                                       {"lblFstop", "txtFstop"},
                                                       {"lblNrIntervals", "txtNrIntervals"},
                                                       {"lblLossBottom", "txtLossBottom"},
                                                       {"lblDelayTop", "txtDelayTop"},
                                                       {"lblVSWRTop", "txtVSWRTop"},
                                                       {"lblImpedanceTop", "txtImpedanceTop"},
                                                       {"lblYints", "UpDown2"},
                                                       {"lblLineWidth", "UpDown3"},
                                                       {"lblQinductor", "txtQinductor"},
                                                       {"lblRetLossRef", "txtRetLossRef"}};
  for (const auto& [label, box] : pairs) {
    EXPECT_NEAR(Place(label).center().y(), Place(box).center().y(), 1) << label;
    EXPECT_EQ(Place(box).left() - Place(label).right(), 9) << label;
  }
}

TEST_F(PageLayout, ReadoutsStandDirectlyUnderTheirBoxes) {
  ClickOn("cmdAnalysis");
  const std::pair<const char*, const char*> pairs[] = {{"lblSpanValue", "txtFstop"},
                                                       {"lbldBper", "txtLossBottom"},
                                                       {"lblDelayPer", "txtDelayTop"},
                                                       {"lblVSWRPer", "txtVSWRTop"},
                                                       {"lblOhmsPer", "txtImpedanceTop"}};
  for (const auto& [readout, box] : pairs) {
    EXPECT_EQ(Place(readout).left(), Place(box).left()) << readout;
    EXPECT_GT(Place(readout).top(), Place(box).bottom()) << readout;
    EXPECT_LE(Place(readout).top() - Place(box).bottom(), 8) << readout;
  }
}

TEST_F(PageLayout, EachPairOfOptionsHasAHeadingOfItsOwn) {
  ClickOn("cmdAnalysis");
  const std::pair<const char*, const char*> pairs[] = {
      {"optAbsolute", "optRelative"}, {"optNormal", "optMagnify"}, {"optLinear", "optLog"}};
  std::vector<QWidget*> groups;
  for (const auto& [one, other] : pairs) {
    auto* group = qobject_cast<GroupBox*>(Find(one)->parentWidget());
    ASSERT_NE(group, nullptr) << one;
    EXPECT_EQ(group, Find(other)->parentWidget());
    EXPECT_FALSE(group->Title().isEmpty());
    EXPECT_TRUE(group->Heading()->isVisible());
    groups.push_back(group);
  }
  EXPECT_NE(groups[0], groups[1]);
}

TEST_F(PageLayout, TheGroupsOfTheAnalysisPageStandTogetherInAWideWindow) {
  ClickOn("cmdAnalysis");
  desktop_.window.resize(1900, 1000);
  QTest::qWait(20);
  // None takes the room that others do not need.
  const QWidget* sweep = Find("txtFstart")->parentWidget();
  const QWidget* scales = Find("txtLossBottom")->parentWidget();
  ASSERT_NE(sweep, scales);
  EXPECT_LE(sweep->width(), sweep->sizeHint().width());
  EXPECT_LE(scales->geometry().left() - sweep->geometry().right(), 24);
}

TEST_F(PageLayout, NothingOfTheAnalysisPageMovesBetweenLinearAndLogarithmic) {
  ClickOn("cmdAnalysis");
  ClickOn("optLinear");
  QTest::qWait(10);
  const QRect options = Place("optLog");
  const QRect box = Place("txtLossBottom");
  ClickOn("optLog");
  QTest::qWait(10);
  EXPECT_EQ(Place("optLog"), options);
  EXPECT_EQ(Place("txtLossBottom"), box);
}

TEST_F(PageLayout, HeadingsStandOverTheirColumns) {
  ClickOn("cmdTabulate");
  QTest::qWait(10);
  const QHeaderView& headings = *Table().horizontalHeader();
  ASSERT_TRUE(headings.isVisible());
  ASSERT_EQ(headings.count(), 8);
  for (int column = 0; column < 8; ++column) {
    const QRect cell = Table().visualRect(Table().model()->index(0, column));
    EXPECT_EQ(headings.sectionViewportPosition(column), cell.left());
    EXPECT_EQ(headings.sectionSize(column), cell.width());
  }
  EXPECT_EQ(Table().model()->headerData(0, Qt::Horizontal).toString(), "Frequency (Hz)");
  EXPECT_TRUE(Table().alternatingRowColors());
}

TEST(TailOfAFigure, BeginsAtItsPointOrAfterItsLastWholeDigit) {
  EXPECT_EQ(TailStart("-16.428"), 3);
  EXPECT_EQ(TailStart("1M"), 1);
  EXPECT_EQ(TailStart("<-120"), 5);
  EXPECT_EQ(TailStart("100"), 3);
  EXPECT_EQ(TailStart(".5"), 0);
}

// By the ink on the screen: the points of two figures of unlike length, in a column of them alone.
TEST(FiguresOfAColumn, HaveTheirPointsOneBelowTheOther) {
  CellModel model({"a"}, nullptr);
  model.Show({"1.5", "-22.25", "333"});
  const DecimalDelegate delegate;
  QStyleOptionViewItem option;
  option.rect = QRect(0, 0, 200, 20);
  option.font = QFont(QStringLiteral("monospace"));
  option.fontMetrics = QFontMetrics(option.font);
  const auto inkOf = [&](int row) {
    QPixmap sheet(200, 20);  // of the screen's resolution, as the font is
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    delegate.paint(&painter, option, model.index(row, 0));
    painter.end();
    const QImage image = sheet.toImage();
    std::vector<int> columns;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y) {
        if (qGray(image.pixel(x, y)) < 128) {
          columns.push_back(x);
          break;
        }
      }
    }
    return columns;
  };
  // The figure with two decimals ends one digit further right than that with one, and the whole one two digits before.
  const int digit = inkOf(1).back() - inkOf(0).back();
  EXPECT_GT(digit, 4);
  EXPECT_NEAR(inkOf(0).back() - inkOf(2).back(), 2 * digit, 2);
}

TEST_F(PageLayout, MarkedRowsAreCopiedWithTheirHeadingsSetApartByTabs) {
  ClickOn("cmdTabulate");
  QTest::qWait(10);
  for (const int row : {3, 1}) {
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, Qt::ControlModifier,
                      Table().visualRect(Table().model()->index(row, 0)).center());
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split('\n');
  ASSERT_EQ(lines.size(), 3);
  EXPECT_EQ(lines[0].split('\t').size(), 8);
  EXPECT_EQ(lines[0].split('\t')[1], "Trans. (dB)");
  for (const int line : {1, 2}) {
    const QStringList fields = lines[line].split('\t');
    ASSERT_EQ(fields.size(), 8);
    EXPECT_EQ(fields[0], Table().model()->index(line == 1 ? 1 : 3, 0).data().toString());
  }
}

}  // namespace
}  // namespace quilm
