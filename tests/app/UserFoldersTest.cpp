#include "app/UserFolders.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace quilm {
namespace {

// Sets the desktop's variables, and puts them back.
class UserFoldersTest : public testing::Test {
 protected:
  static constexpr const char* variables[] = {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"};

  void SetUp() override {
    for (const char* variable : variables) before_.push_back(qgetenv(variable));
    for (const char* variable : variables) qunsetenv(variable);
  }

  void TearDown() override {
    for (std::size_t i = 0; i < before_.size(); ++i) {
      before_[i].isEmpty() ? qunsetenv(variables[i]) : qputenv(variables[i], before_[i]);
    }
  }

  UserFolders Apart() const { return {root_.filePath("data"), root_.filePath("config"), root_.filePath("state")}; }

  static void Write(const QString& path, const char* text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }

  static QByteArray Text(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }

  QTemporaryDir root_;

 private:
  std::vector<QByteArray> before_;
};

TEST_F(UserFoldersTest, FollowTheDesktopsVariables) {
  qputenv("XDG_DATA_HOME", "/somewhere/data");
  qputenv("XDG_CONFIG_HOME", "/somewhere/config/");
  qputenv("XDG_STATE_HOME", "/somewhere/state");
  const UserFolders folders = UserFolders::OfDesktop();
  EXPECT_EQ(folders.data, "/somewhere/data/quilm");
  EXPECT_EQ(folders.preferences, "/somewhere/config/quilm");
  EXPECT_EQ(folders.state, "/somewhere/state/quilm");
}

TEST_F(UserFoldersTest, EmptyAndRelativeVariablesCountAsNotSet) {
  for (const char* value : {"", "data", "./data", "~/data"}) {
    for (const char* variable : variables) qputenv(variable, value);
    const UserFolders folders = UserFolders::OfDesktop();
    EXPECT_EQ(folders.data, QDir::homePath() + "/.local/share/quilm") << value;
    EXPECT_EQ(folders.preferences, QDir::homePath() + "/.config/quilm") << value;
    EXPECT_EQ(folders.state, QDir::homePath() + "/.local/state/quilm") << value;
  }
}

TEST_F(UserFoldersTest, OneFolderHoldsEverything) {
  const UserFolders folders = UserFolders::Within("bench");
  EXPECT_EQ(folders.data, QDir::current().absoluteFilePath("bench"));
  EXPECT_EQ(folders.preferences, folders.data);
  EXPECT_EQ(folders.state, folders.data);
}

TEST_F(UserFoldersTest, TheyAreMadeForTheUserAlone) {
  const UserFolders folders{root_.filePath("a/data"), root_.filePath("b/config"), root_.filePath("c/state")};
  PrepareFolders(folders);
  for (const QString& folder : {folders.data, folders.preferences, folders.state}) {
    EXPECT_TRUE(QDir(folder).exists());
    EXPECT_EQ(QFile::permissions(folder) & (QFile::ReadGroup | QFile::ReadOther | QFile::ExeOther), 0);
  }
}

TEST_F(UserFoldersTest, WhatAnEarlierVersionKeptIsTakenOverOnce) {
  const UserFolders folders = Apart();
  QDir().mkpath(folders.data);
  Write(folders.data + "/QuilmConfiguration.CFG", "old");
  Write(folders.data + "/window.ini", "place");
  Write(folders.data + "/LASTSESSION.QLM", "design");
  PrepareFolders(folders);
  EXPECT_EQ(Text(folders.preferences + "/QuilmConfiguration.CFG"), "old");
  EXPECT_EQ(Text(WindowPlaceFile(folders)), "place");
  EXPECT_EQ(Text(folders.data + "/LASTSESSION.QLM"), "design") << "the last session is data";
  EXPECT_FALSE(QFile::exists(folders.data + "/QuilmConfiguration.CFG"));

  Write(folders.data + "/QuilmConfiguration.CFG", "of the earlier version, used again");
  PrepareFolders(folders);
  EXPECT_EQ(Text(folders.preferences + "/QuilmConfiguration.CFG"), "old");
}

TEST_F(UserFoldersTest, InOneFolderNothingMoves) {
  const UserFolders folders = UserFolders::Within(root_.path());
  Write(root_.filePath("QuilmConfiguration.CFG"), "kept");
  PrepareFolders(folders);
  EXPECT_EQ(Text(root_.filePath("QuilmConfiguration.CFG")), "kept");
}

}  // namespace
}  // namespace quilm
