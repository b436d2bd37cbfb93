#include "app/HelpPlace.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace quilm {
namespace {

class HelpPlace : public testing::Test {
 protected:
  QString Place(const char* name) const { return QDir(folder.path()).filePath(QString::fromLatin1(name)); }
  void Make(const char* name) {
    ASSERT_TRUE(QDir().mkpath(Place(name)));
    QFile page(Place(name) + "/design.htm");
    ASSERT_TRUE(page.open(QIODevice::WriteOnly));
  }
  QTemporaryDir folder;
};

TEST_F(HelpPlace, AnInstalledProgramHasItBesideIt) {
  Make("usr/share/quilm/help");
  Make("elsewhere");
  EXPECT_EQ(FindHelp(Place("usr/bin"), {Place("elsewhere")}), Place("usr/share/quilm/help"));
}

TEST_F(HelpPlace, AProgramInItsBuildFolderHasItInThatFolder) {
  Make("source/build/dev/help");
  Make("installed");
  EXPECT_EQ(FindHelp(Place("source/build/dev/bin"), {Place("installed")}), Place("source/build/dev/help"));
}

TEST_F(HelpPlace, AProgramThatWasMovedFindsTheFolderItWasBuiltIn) {
  Make("build-folder/help");
  EXPECT_EQ(FindHelp(Place("build/bin"), {Place("installed"), Place("build-folder/help")}), Place("build-folder/help"));
}

TEST_F(HelpPlace, AFolderThatHoldsSomethingElseIsPassedOver) {
  ASSERT_TRUE(QDir().mkpath(Place("usr/help")));
  Make("installed");
  EXPECT_EQ(FindHelp(Place("usr/bin"), {Place("installed")}), Place("installed"));
}

TEST_F(HelpPlace, WithoutAnyItIsWhereItShouldBe) {
  EXPECT_EQ(FindHelp(Place("usr/bin"), {Place("installed"), Place("build-folder/help")}), Place("installed"));
}

}  // namespace
}  // namespace quilm
