#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "platform/IniSettingsStore.h"
#include "settings/ConversationDefaults.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using testing_support::ReadBytes;
using testing_support::TemporaryFolder;
using testing_support::WriteBytes;

class IniSettingsStoreTest : public ::testing::Test {
 protected:
  void SetUp() override { qputenv("PARLATE_CONFIG_DIR", folder_.Path().c_str()); }
  void TearDown() override { qunsetenv("PARLATE_CONFIG_DIR"); }

  static void Store(const std::string& key, const std::string& value) {
    IniSettingsStore store;
    store.Set("Parlate", "Settings", key, value);
    EXPECT_TRUE(store.Sync());
  }
  static std::string Stored(const std::string& key) {
    return IniSettingsStore().Get("Parlate", "Settings", key, "not there");
  }

  TemporaryFolder folder_;
};

TEST_F(IniSettingsStoreTest, TheEnvironmentMovesTheFile) {
  Store("Username", "Ada");
  EXPECT_NE(ReadBytes(folder_.File("Parlate.ini")).find("[Settings]\nUsername=Ada"),
            std::string::npos);
}

TEST_F(IniSettingsStoreTest, WithoutTheEnvironmentTheFileIsInTheUsersFolder) {
  qunsetenv("PARLATE_CONFIG_DIR");
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                     QFile::decodeName(folder_.Path().c_str()));
  EXPECT_EQ(QDir::cleanPath(IniSettingsStore().FileName("Parlate")),
            QDir::cleanPath(QFile::decodeName(folder_.File("Parlate.ini").c_str())));
}

TEST_F(IniSettingsStoreTest, AMissingFolderIsMade) {
  qputenv("PARLATE_CONFIG_DIR", folder_.File("a/b").c_str());
  Store("Username", "Ada");
  EXPECT_EQ(Stored("Username"), "Ada");
}

TEST_F(IniSettingsStoreTest, AMissingKeyGivesTheFallbackAndAnEmptyValueDoesNot) {
  Store("ConPath", "");
  EXPECT_EQ(Stored("ConPath"), "");
  EXPECT_EQ(Stored("AudioPath"), "not there");
}

TEST_F(IniSettingsStoreTest, ATrailingBlankMakesAnotherKey) {
  Store("PrintAudioNames", "True");
  EXPECT_EQ(Stored("PrintAudioNames "), "not there");
  Store("PrintAudioNames ", "False");
  EXPECT_EQ(Stored("PrintAudioNames "), "False");
  EXPECT_EQ(Stored("PrintAudioNames"), "True");
}

TEST_F(IniSettingsStoreTest, TheCaseOfAKeyCounts) {
  Store("ConPath", "a");
  EXPECT_EQ(Stored("conpath"), "not there");
}

TEST_F(IniSettingsStoreTest, EveryValueComesBackByteByByte) {
  for (const std::string value :
       {" blanks at both ends ", "a, b; c", "@Invalid()", "\"quoted\"", "C:\\a\\b\\", "%20",
        "two\nlines", "\xC3\xA4\xE2\x82\xAC", "/bad\xFF\xC3/path/", "True", "@ByteArray(x)"}) {
    Store("Value", value);
    EXPECT_EQ(Stored("Value"), value);
  }
}

TEST_F(IniSettingsStoreTest, AListWrittenByHandIsStillATextWithCommas) {
  WriteBytes(folder_.File("Parlate.ini"), "[Settings]\nUsername=Ada, Grace\n");
  EXPECT_EQ(Stored("Username"), "Ada, Grace");
}

TEST_F(IniSettingsStoreTest, AFolderThatCannotBeWrittenIsTold) {
  WriteBytes(folder_.File("file"), "");
  qputenv("PARLATE_CONFIG_DIR", folder_.File("file/inside").c_str());
  IniSettingsStore store;
  store.Set("Parlate", "Settings", "Username", "Ada");
  EXPECT_FALSE(store.Sync());
}

TEST_F(IniSettingsStoreTest, TheDefaultsGoThroughTheStore) {
  ConversationDefaults before;
  before.Username = "Zo\xEB";
  before.EventLeft = -1;
  before.ConBackupPath = "/backup/";
  before.bPrintAudioNames = true;
  before.SetLastFiles(0, "/a, b.con");
  IniSettingsStore writer;
  before.SaveDefaults(writer);
  EXPECT_TRUE(writer.Sync());

  ConversationDefaults after;
  after.LoadDefaults(IniSettingsStore());
  EXPECT_EQ(after.Username, "Zo\xEB");
  EXPECT_EQ(after.EventLeft, -1);
  EXPECT_EQ(after.ConBackupPath, "/backup/");
  EXPECT_EQ(after.LastFiles(0), "/a, b.con");
  EXPECT_FALSE(after.bPrintAudioNames);
}

}  // namespace
}  // namespace parlate
