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

TEST_F(HelpPlace, AnInstalledProgramHasItInTheDataFolder) {
  Make("usr/share/quilm/help");
  Make("usr/help");
  EXPECT_EQ(FindHelp(Place("usr/bin")), Place("usr/share/quilm/help"));
}

TEST_F(HelpPlace, AProgramInItsBuildFolderHasItInThatFolder) {
  Make("source/build/dev/help");
  EXPECT_EQ(FindHelp(Place("source/build/dev/bin")), Place("source/build/dev/help"));
}

TEST_F(HelpPlace, APlainFolderHasItBesideTheProgram) {
  Make("quilm/help");
  EXPECT_EQ(FindHelp(Place("quilm")), Place("quilm/help"));
}

TEST_F(HelpPlace, AFolderThatHoldsSomethingElseIsPassedOver) {
  ASSERT_TRUE(QDir().mkpath(Place("usr/share/quilm/help")));
  Make("usr/help");
  EXPECT_EQ(FindHelp(Place("usr/bin")), Place("usr/help"));
}

TEST_F(HelpPlace, WithoutAnyItIsWhereItShouldBe) {
  EXPECT_EQ(FindHelp(Place("usr/bin")), Place("usr/share/quilm/help"));
}

}  // namespace
}  // namespace quilm
