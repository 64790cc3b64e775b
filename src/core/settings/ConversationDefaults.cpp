#include "settings/ConversationDefaults.h"

#include <algorithm>

#include "general/CodePage.h"
#include "general/Numbers.h"
#include "general/Rounding.h"

namespace parlate {

namespace {

const std::string kApplication = kProgramTitle;
const std::string kSection = "Settings";

bool ValidIndex(int index) {
  return index >= 0 && index < static_cast<int>(ConversationDefaults::kLastFileCount);
}

/// Visits every stored field in the order of the store. `visit(readKey, writeKey, field)`; the two
/// keys differ for one field only.
template <class Defaults, class Visit>
void VisitFields(Defaults& d, Visit visit) {
  const auto same = [&visit](const char* key, auto& field) { visit(key, key, field); };
  same("ConPath", d.ConPath);
  same("ConBackupPath", d.ConBackupPath);
  same("ConLastLoadPath", d.ConLastLoadPath);
  same("ConLastSavePath", d.ConLastSavePath);
  same("LastExportPath", d.LastExportPath);
  same("LastImportPath", d.LastImportPath);
  same("AudioPath", d.AudioPath);
  same("MainLeft", d.MainLeft);
  same("MainTop", d.MainTop);
  same("MainWidth", d.MainWidth);
  same("MainHeight", d.MainHeight);
  same("EventLeft", d.EventLeft);
  same("EventTop", d.EventTop);
  same("SplitterPos", d.SplitterPos);
  same("ToolBarEnabled", d.ToolBarEnabled);
  same("StatusBarEnabled", d.StatusBarEnabled);
  same("ExpandListEnabled", d.ExpandListEnabled);
  same("WindowState", d.WindowState);
  same("ExpandFlags", d.bExpandFlags);
  same("ShowAudioFiles", d.bShowAudioFiles);
  same("ConfirmationConDelete", d.bConfirmationConDelete);
  same("ConfirmationEventDelete", d.bConfirmationEventDelete);
  same("HighlightMissingAudio", d.bHighlightMissingAudio);
  same("PrintFontSize", d.PrintFontSize);
  same("PrintDetailedHeader", d.bPrintDetailedHeader);
  same("PrintBlankLines", d.bPrintBlankLines);
  same("PrintListingOnly", d.bPrintListingOnly);
  same("PrintFooters", d.bPrintFooters);
  same("ConPageBreaks", d.bConPageBreaks);
  // Meant: the key that is read ends in a blank and the one that is written does not, so every
  // run begins with the default.
  visit("PrintAudioNames ", "PrintAudioNames", d.bPrintAudioNames);
  same("PrintSpeechOnly", d.bPrintSpeechOnly);
  same("LabelColumnWidth", d.LabelColumnWidth);
  same("ActionColumnWidth", d.ActionColumnWidth);
  same("ActorColumnWidth", d.ActorColumnWidth);
}

std::string ToText(const std::string& value) { return value; }
std::string ToText(Boolean value) { return BoolToString(value); }
std::string ToText(std::int32_t value) { return std::to_string(value); }

void FromText(const std::string& text, std::string& field) { field = text; }

void FromText(const std::string& text, Boolean& field) {
  if (EqualNoCase(text, "True")) field = true;
  if (EqualNoCase(text, "False")) field = false;
}

template <class Integer>
void FromText(const std::string& text, Integer& field) {
  const auto number = ParseInt32(text);
  if (number) ResumeNext([&] { field = NarrowTo<Integer>(*number); });
}

std::string LastFileKey(std::size_t index) { return "LastFile" + std::to_string(index); }

}  // namespace

std::string ConversationDefaults::LastFiles(int index) const {
  return ValidIndex(index) ? lastFiles_[static_cast<std::size_t>(index)] : std::string();
}

void ConversationDefaults::SetLastFiles(int index, const std::string& path) {
  if (ValidIndex(index)) lastFiles_[static_cast<std::size_t>(index)] = path;
}

void ConversationDefaults::ClearLastFiles() { lastFiles_.fill(std::string()); }

std::int16_t ConversationDefaults::GetLastFilesCount() const {
  return static_cast<std::int16_t>(std::count_if(lastFiles_.begin(), lastFiles_.end(),
                                                 [](const auto& path) { return !path.empty(); }));
}

void ConversationDefaults::LoadDefaults(const SettingsStore& store) {
  *this = ConversationDefaults();
  Username = FromUtf8(store.Get(kApplication, kSection, "Username", ""));
  VisitFields(*this, [&store](const char* readKey, const char*, auto& field) {
    FromText(store.Get(kApplication, kSection, readKey, ToText(field)), field);
  });
  for (std::size_t i = 0; i < lastFiles_.size(); ++i) {
    lastFiles_[i] = store.Get(kApplication, kSection, LastFileKey(i), "");
  }
}

void ConversationDefaults::SaveDefaults(SettingsStore& store) const {
  store.Set(kApplication, kSection, "Username", ToUtf8(Username));
  VisitFields(*this, [&store](const char*, const char* writeKey, const auto& field) {
    store.Set(kApplication, kSection, writeKey, ToText(field));
  });
  for (std::size_t i = 0; i < lastFiles_.size(); ++i) {
    store.Set(kApplication, kSection, LastFileKey(i), lastFiles_[i]);
  }
}

}  // namespace parlate
