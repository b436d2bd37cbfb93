// The window on desktops of other countries: numbers are read and typed as everywhere.
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QTableView>
#include <algorithm>

#include "app/WalkBench.h"
#include "core/DesignRecord.h"

namespace quilm {
namespace {

// Before the window is made, as the toolkit takes it from the desktop.
struct DesktopLocale {
  explicit DesktopLocale(const char* name) { QLocale::setDefault(QLocale(QString::fromLatin1(name))); }
  ~DesktopLocale() { QLocale::setDefault(QLocale::system()); }
  DesktopLocale(const DesktopLocale&) = delete;
  DesktopLocale& operator=(const DesktopLocale&) = delete;
};

class LocaleWalk : private DesktopLocale, public Walk, public testing::WithParamInterface<const char*> {
 protected:
  LocaleWalk() : DesktopLocale(GetParam()) {}

  // Every text of the page on top.
  QStringList Texts() {
    QStringList texts;
    for (const QLabel* label : desktop_.TopView()->findChildren<QLabel*>()) texts << label->text();
    for (const QLineEdit* box : desktop_.TopView()->findChildren<QLineEdit*>()) texts << box->text();
    for (const QTableView* table : desktop_.TopView()->findChildren<QTableView*>()) {
      for (int column = 0; column < table->model()->columnCount(); ++column) {
        texts << table->model()->index(0, column).data().toString();
      }
    }
    return texts;
  }

  void ExpectDigitsOfAscii() {
    const QStringList texts = Texts();
    EXPECT_FALSE(texts.isEmpty());
    for (const QString& text : texts) {
      EXPECT_TRUE(std::none_of(text.begin(), text.end(), [](QChar c) { return c.isDigit() && c.unicode() > 127; }))
          << text.toStdString();
    }
  }
};

TEST_P(LocaleWalk, NumbersAreTypedAndShownAsEverywhere) {
  EXPECT_NE(QLocale().toString(1234.5), "1234.5");
  DesignLowpass();
  Find("UpDown1")->setFocus();
  QTest::keyClicks(Find("UpDown1"), "12");
  EXPECT_EQ(Record().Order, 12);
  EXPECT_EQ(qobject_cast<QLabel*>(Find("lblOrderInput"))->text(), "12");
  Type("txtBandwidth", "1.25M");
  EXPECT_EQ(Record().Width, 1.25e6F);
  ExpectDigitsOfAscii();
  for (const char* page : {"cmdAnalysis", "cmdEdit", "cmdTabulate"}) {
    ClickOn(page);
    ExpectDigitsOfAscii();
  }
  ClickOn("cmdDesign");
  EXPECT_EQ(qobject_cast<QLineEdit*>(Find("txtBandwidth"))->text(), "1.25M");
}

INSTANTIATE_TEST_SUITE_P(Desktops, LocaleWalk, testing::Values("de_DE", "tr_TR", "ar_EG", "fa_IR", "hi_IN"));

}  // namespace
}  // namespace quilm
