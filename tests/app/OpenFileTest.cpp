// Design files that the user names otherwise than in a dialog.
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include "DemoPages.h"

namespace quilm {
namespace {

class OpenFile : public DemoProgram {
 protected:
  OpenFile() {
    Demo().cmdGet.onClick = [this] {
      ++gets;
      if (const auto path = desktop.platform.OpenDialog("Get", "Quilm files (*.QLM)|*.QLM")) opened = *path;
    };
  }

  // Whether the window would take it.
  bool Drop(const QList<QUrl>& urls, QWidget* on = nullptr) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QWidget* target = on == nullptr ? &desktop.window : on;
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    QTest::qWait(5);
    return true;
  }

  int gets = 0;
  std::string opened;
};

TEST_F(OpenFile, ItIsTheAnswerOfTheButtonThatGetsOne) {
  desktop.OpenFile("/designs/A.QLM");
  EXPECT_EQ(opened, "/designs/A.QLM");
  EXPECT_EQ(gets, 1);
}

TEST_F(OpenFile, ARelativePathIsWhereTheProgramWasStarted) {
  desktop.OpenFile("A.QLM");
  EXPECT_EQ(opened, QDir::current().filePath("A.QLM").toStdString());
}

TEST_F(OpenFile, OneThatIsDroppedOnTheWindowIsOpened) {
  EXPECT_TRUE(Drop({QUrl::fromLocalFile("/designs/a b.QLM")}));
  EXPECT_EQ(opened, "/designs/a b.QLM");
}

TEST_F(OpenFile, NothingElseThatIsDragged) {
  EXPECT_FALSE(Drop({}));
  EXPECT_FALSE(Drop({QUrl("https://example.org/A.QLM")}));
  EXPECT_FALSE(Drop({QUrl::fromLocalFile("/designs/A.QLM"), QUrl::fromLocalFile("/designs/B.QLM")}));
  EXPECT_EQ(gets, 0);
}

TEST_F(OpenFile, ABoxLeavesItToTheWindow) {
  auto* box = Widget<QLineEdit>("txtWidth");
  EXPECT_TRUE(Drop({QUrl::fromLocalFile("/designs/A.QLM")}, box));
  EXPECT_EQ(opened, "/designs/A.QLM");
  EXPECT_EQ(box->text(), "");
}

// Nor does it answer the next dialog.
TEST_F(OpenFile, WhileAModalPageIsOpenNothingHappens) {
  Soon([this] {
    desktop.OpenFile("/designs/A.QLM");
    ClickOn("cmdIgnore");
  });
  ClickOn("cmdAsk");
  EXPECT_EQ(gets, 0);
  Soon([] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
  ClickOn("cmdGet");
  EXPECT_EQ(gets, 1);
  EXPECT_EQ(opened, "");
}

}  // namespace
}  // namespace quilm
