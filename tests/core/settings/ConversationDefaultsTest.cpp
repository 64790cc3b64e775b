#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "settings/ConversationDefaults.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

/// A store in memory that keeps the order in which it was asked and told.
class RecordingStore final : public SettingsStore {
 public:
  [[nodiscard]] std::string Get(const std::string& application, const std::string& section,
                                const std::string& key,
                                const std::string& fallback) const override {
    places.insert(places.end(), {application, section});
    read.push_back(key);
    fallbacks[key] = fallback;
    const auto found = values.find(key);
    return found == values.end() ? fallback : found->second;
  }
  void Set(const std::string& application, const std::string& section, const std::string& key,
           const std::string& value) override {
    places.insert(places.end(), {application, section});
    written.push_back(key);
    values[key] = value;
  }

  std::map<std::string, std::string> values;
  std::vector<std::string> written;
  mutable std::vector<std::string> read;
  mutable std::vector<std::string> places;
  mutable std::map<std::string, std::string> fallbacks;
};

const std::vector<std::string>& KeysInOrder() {
  static const std::vector<std::string> keys = {"Username",
                                                "ConPath",
                                                "ConBackupPath",
                                                "ConLastLoadPath",
                                                "ConLastSavePath",
                                                "LastExportPath",
                                                "LastImportPath",
                                                "AudioPath",
                                                "MainLeft",
                                                "MainTop",
                                                "MainWidth",
                                                "MainHeight",
                                                "EventLeft",
                                                "EventTop",
                                                "SplitterPos",
                                                "ToolBarEnabled",
                                                "StatusBarEnabled",
                                                "ExpandListEnabled",
                                                "WindowState",
                                                "ExpandFlags",
                                                "ShowAudioFiles",
                                                "ConfirmationConDelete",
                                                "ConfirmationEventDelete",
                                                "HighlightMissingAudio",
                                                "PrintFontSize",
                                                "PrintDetailedHeader",
                                                "PrintBlankLines",
                                                "PrintListingOnly",
                                                "PrintFooters",
                                                "ConPageBreaks",
                                                "PrintAudioNames",
                                                "PrintSpeechOnly",
                                                "LabelColumnWidth",
                                                "ActionColumnWidth",
                                                "ActorColumnWidth",
                                                "LastFile0",
                                                "LastFile1",
                                                "LastFile2",
                                                "LastFile3"};
  return keys;
}

const std::map<std::string, std::string>& DefaultTexts() {
  static const std::map<std::string, std::string> texts = {{"Username", ""},
                                                           {"ConPath", ""},
                                                           {"ConBackupPath", ""},
                                                           {"ConLastLoadPath", ""},
                                                           {"ConLastSavePath", ""},
                                                           {"LastExportPath", ""},
                                                           {"LastImportPath", ""},
                                                           {"AudioPath", ""},
                                                           {"MainLeft", "1000"},
                                                           {"MainTop", "1000"},
                                                           {"MainWidth", "12000"},
                                                           {"MainHeight", "7000"},
                                                           {"EventLeft", "-1"},
                                                           {"EventTop", "-1"},
                                                           {"SplitterPos", "2500"},
                                                           {"ToolBarEnabled", "True"},
                                                           {"StatusBarEnabled", "True"},
                                                           {"ExpandListEnabled", "True"},
                                                           {"WindowState", "0"},
                                                           {"ExpandFlags", "False"},
                                                           {"ShowAudioFiles", "True"},
                                                           {"ConfirmationConDelete", "True"},
                                                           {"ConfirmationEventDelete", "True"},
                                                           {"HighlightMissingAudio", "True"},
                                                           {"PrintFontSize", "10"},
                                                           {"PrintDetailedHeader", "True"},
                                                           {"PrintBlankLines", "True"},
                                                           {"PrintListingOnly", "False"},
                                                           {"PrintFooters", "True"},
                                                           {"ConPageBreaks", "False"},
                                                           {"PrintAudioNames", "False"},
                                                           {"PrintSpeechOnly", "False"},
                                                           {"LabelColumnWidth", "100"},
                                                           {"ActionColumnWidth", "100"},
                                                           {"ActorColumnWidth", "100"},
                                                           {"LastFile0", ""},
                                                           {"LastFile1", ""},
                                                           {"LastFile2", ""},
                                                           {"LastFile3", ""}};
  return texts;
}

TEST(ConversationDefaults, WritesEveryKeyInTheOrderOfTheStore) {
  RecordingStore store;
  ConversationDefaults().SaveDefaults(store);
  EXPECT_THAT(store.written, ElementsAreArray(KeysInOrder()));
  EXPECT_EQ(store.values, DefaultTexts());
}

TEST(ConversationDefaults, ReadsInTheSameOrderButAudioNamesUnderAKeyWithABlank) {
  RecordingStore store;
  ConversationDefaults().LoadDefaults(store);
  std::vector<std::string> keys = KeysInOrder();
  keys[30] = "PrintAudioNames ";
  EXPECT_THAT(store.read, ElementsAreArray(keys));
}

TEST(ConversationDefaults, NamesTheProgramAndItsOneSection) {
  RecordingStore store;
  ConversationDefaults defaults;
  defaults.LoadDefaults(store);
  defaults.SaveDefaults(store);
  ASSERT_EQ(store.places.size(), 4 * KeysInOrder().size());
  for (std::size_t i = 0; i < store.places.size(); i += 2) {
    EXPECT_EQ(store.places[i], "Parlate");
    EXPECT_EQ(store.places[i + 1], "Settings");
  }
}

TEST(ConversationDefaults, HasEveryDefaultOnAFirstRun) {
  const RecordingStore empty;
  ConversationDefaults defaults;
  defaults.Username = "leftover";
  defaults.MainLeft = 7;
  defaults.bShowAudioFiles = false;
  defaults.SetLastFiles(2, "leftover");
  defaults.LoadDefaults(empty);
  EXPECT_EQ(defaults.Username, "") << "a blank name opens the settings dialog";
  RecordingStore store;
  defaults.SaveDefaults(store);
  EXPECT_EQ(store.values, DefaultTexts());
}

TEST(ConversationDefaults, AsksTheStoreWithTheDefaultOfEachField) {
  const RecordingStore store;
  ConversationDefaults().LoadDefaults(store);
  std::map<std::string, std::string> expected = DefaultTexts();
  expected.erase("PrintAudioNames");
  expected["PrintAudioNames "] = "False";
  EXPECT_EQ(store.fallbacks, expected);
}

TEST(ConversationDefaults, KeepsEveryOtherValueFromOneRunToTheNext) {
  RecordingStore store;
  for (const auto& [key, text] : DefaultTexts()) {
    if (text == "True") {
      store.values[key] = "False";
    } else if (text == "False") {
      store.values[key] = "True";
    } else if (text.empty()) {
      store.values[key] = "text of " + key;
    } else {
      store.values[key] = std::to_string(40 + store.values.size());
    }
  }
  std::map<std::string, std::string> expected = store.values;
  expected["PrintAudioNames"] = "False";
  ConversationDefaults defaults;
  defaults.LoadDefaults(store);
  RecordingStore second;
  defaults.SaveDefaults(second);
  EXPECT_EQ(second.values, expected);
}

TEST(ConversationDefaults, ForgetsThatAudioNamesWereToBePrinted) {
  RecordingStore store;
  ConversationDefaults first;
  first.bPrintAudioNames = true;
  first.SaveDefaults(store);
  EXPECT_EQ(store.values.at("PrintAudioNames"), "True");
  ConversationDefaults next;
  next.LoadDefaults(store);
  EXPECT_FALSE(next.bPrintAudioNames);
}

TEST(ConversationDefaults, KeepsTheAbsentPlaceOfAnEditorThatWasNotOpened) {
  RecordingStore store;
  ConversationDefaults first;
  EXPECT_EQ(first.EventLeft, -1);
  first.SaveDefaults(store);
  ConversationDefaults next;
  next.LoadDefaults(store);
  EXPECT_EQ(next.EventLeft, -1);
  EXPECT_EQ(next.EventTop, -1);
}

TEST(ConversationDefaults, TakesTheDefaultForATextThatDoesNotFit) {
  RecordingStore store;
  store.values = {{"MainLeft", "wide"}, {"MainTop", "70000"},   {"PrintFontSize", ""},
                  {"WindowState", "2"}, {"ExpandFlags", "yes"}, {"ShowAudioFiles", "FALSE"}};
  ConversationDefaults defaults;
  defaults.LoadDefaults(store);
  EXPECT_EQ(defaults.MainLeft, 1000);
  EXPECT_EQ(defaults.MainTop, 1000) << "beyond 16 bits";
  EXPECT_EQ(defaults.PrintFontSize, 10);
  EXPECT_EQ(defaults.WindowState, 2);
  EXPECT_FALSE(defaults.bExpandFlags);
  EXPECT_FALSE(defaults.bShowAudioFiles) << "the case of a boolean does not count";
}

TEST(ConversationDefaults, StoresTheNameAsUtf8AndHoldsItInTheCodePage) {
  RecordingStore store;
  store.values["Username"] = "Ren\xC3\xA9";
  ConversationDefaults defaults;
  defaults.LoadDefaults(store);
  EXPECT_EQ(defaults.Username, "Ren\xE9");
  RecordingStore second;
  defaults.SaveDefaults(second);
  EXPECT_EQ(second.values.at("Username"), "Ren\xC3\xA9");
}

TEST(LastFiles, HasFourPlacesAndIgnoresTheRest) {
  ConversationDefaults defaults;
  EXPECT_EQ(defaults.GetLastFilesCount(), 0);
  for (int i = -1; i <= 4; ++i) defaults.SetLastFiles(i, "file " + std::to_string(i));
  std::vector<std::string> files;
  for (int i = -1; i <= 4; ++i) files.push_back(defaults.LastFiles(i));
  EXPECT_THAT(files, ElementsAre("", "file 0", "file 1", "file 2", "file 3", ""));
  defaults.SetLastFiles(1, "");
  EXPECT_EQ(defaults.GetLastFilesCount(), 3) << "counts what is not empty, wherever it stands";
}

TEST(LastFiles, StoreFourEmptyTextsOnceTheyWereCleared) {
  RecordingStore store;
  ConversationDefaults defaults;
  for (int i = 0; i < 4; ++i) defaults.SetLastFiles(i, "file");
  defaults.SaveDefaults(store);
  defaults.ClearLastFiles();
  EXPECT_EQ(defaults.GetLastFilesCount(), 0);
  defaults.SaveDefaults(store);
  for (const char* key : {"LastFile0", "LastFile1", "LastFile2", "LastFile3"}) {
    EXPECT_EQ(store.values.at(key), "") << key;
  }
}

}  // namespace
}  // namespace parlate
