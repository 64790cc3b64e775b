#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "general/Boolean.h"
#include "settings/SettingsStore.h"

namespace parlate {

/// Every preference, path and window position of the user. One object lives for the whole run;
/// its fields are read and written directly. It is read once at the start and written once at exit.
///
/// `Username` is code-page text, as it goes into files. Paths are as the platform takes them.
/// Positions and sizes are twips, column widths pixels.
class ConversationDefaults {
 public:
  static constexpr std::size_t kLastFileCount = 4;

  std::string Username;
  std::string ConPath;
  std::string AudioPath;
  std::string ConBackupPath;
  std::string ConLastSavePath;
  std::string ConLastLoadPath;
  std::string LastExportPath;
  std::string LastImportPath;
  std::int16_t MainLeft = 1000;
  std::int16_t MainTop = 1000;
  std::int16_t MainWidth = 12000;
  std::int16_t MainHeight = 7000;
  std::int16_t EventLeft = -1;  ///< -1 means that none is stored.
  std::int16_t EventTop = -1;
  std::int16_t SplitterPos = 2500;
  Boolean ToolBarEnabled = true;
  Boolean StatusBarEnabled = true;
  Boolean ExpandListEnabled = true;
  std::int16_t LabelColumnWidth = 100;
  std::int16_t ActionColumnWidth = 100;
  std::int16_t ActorColumnWidth = 100;
  std::int32_t WindowState = 0;  ///< 0 normal, 1 minimised, 2 maximised.
  std::int16_t PrintFontSize = 10;
  Boolean bPrintListingOnly = false;
  Boolean bPrintDetailedHeader = true;
  Boolean bPrintBlankLines = true;
  Boolean bPrintFooters = true;
  Boolean bConPageBreaks = false;
  Boolean bPrintAudioNames = false;
  Boolean bPrintSpeechOnly = false;
  Boolean bExpandFlags = false;
  Boolean bShowAudioFiles = true;
  Boolean bConfirmationConDelete = true;
  Boolean bConfirmationEventDelete = true;
  Boolean bHighlightMissingAudio = true;

  /// A recent file, newest first; empty outside of 0 to 3.
  [[nodiscard]] std::string LastFiles(int index) const;
  /// Outside of 0 to 3 nothing happens.
  void SetLastFiles(int index, const std::string& path);
  void ClearLastFiles();
  /// How many of the four are not empty.
  [[nodiscard]] std::int16_t GetLastFilesCount() const;

  /// Reads everything; a missing key gives the default of its field. A stored text that is no
  /// number, or no boolean, gives the default too.
  void LoadDefaults(const SettingsStore& store);
  void SaveDefaults(SettingsStore& store) const;

 private:
  std::array<std::string, kLastFileCount> lastFiles_;
};

/// The program's title, which names the application in the settings store as well.
inline constexpr const char* kProgramTitle = "Parlate";

}  // namespace parlate
