// The conversation file from its first byte to its last.

#include <memory>
#include <string_view>

#include "general/BinaryFile.h"
#include "general/Rounding.h"
#include "model/ConversationFile.h"
#include "model/ErrorPlaces.h"
#include "model/Tables.h"
#include "model/Workspace.h"
#include "model/records/RecordReader.h"

namespace parlate {

namespace {

constexpr std::string_view kMagic = "Orrivex Conversation File";
constexpr unsigned char kEndMark = 26;
constexpr std::int32_t kFirstWithOneMission = 17;
constexpr std::int32_t kFirstWithPackageAndMissions = 23;
constexpr std::size_t kMissionSize = 4;
constexpr std::size_t kLeastConversationSize = 84;

void Refuse(MessageBoxes& messages, const std::string& title, const std::string& text) {
  MessageBox box;
  box.title = title;
  box.text = text;
  box.icon = MessageBox::Icon::Critical;
  messages.Show(box);
}

/// Shows why a version cannot be read; false if it can.
bool RefuseVersion(MessageBoxes& messages, std::int32_t version) {
  if (version < ConversationFile::kOldestVersion) {
    Refuse(messages, "Obsolete Conversation File!",
           "The conversation file you are attempting to load is version " +
               std::to_string(version) + ".\nThe last supported version is " +
               std::to_string(ConversationFile::kOldestVersion) +
               ".\n\nThis file CANNOT be loaded.");
    return true;
  }
  if (version > ConversationFile::kCurrentVersion) {
    Refuse(messages, "Obsolete Parlate!",
           "The conversation file you are attempting to load was created with a newer version of "
           "Parlate.\n\nThis file CANNOT be loaded.");
    return true;
  }
  return false;
}

}  // namespace

// Header: magic, byte 26, i32 version, date CreationDate, str CreatedBy, date LastUpdated,
// str LastUpdatedBy, str AudioPackage (from version 23), str notes, missions.

void ConversationFile::SaveHeader(BinaryWriter& file) const {
  file.WriteBytes(kMagic);
  file.WriteByte(kEndMark);
  file.WriteInt32(kCurrentVersion);
  file.WriteDouble(CreationDate);
  file.WriteFileString(CreatedBy);
  file.WriteDouble(LastUpdated);
  file.WriteFileString(LastUpdatedBy);
  file.WriteFileString(AudioPackage);
  file.WriteFileString(notes);
  file.WriteInt32(missionCount_);
  for (const std::int32_t mission : missions_) file.WriteInt32(mission);
}

void ConversationFile::LoadHeader(RecordReader& in) {
  CreationDate = in.file.ReadDouble();
  in.file.ReadFileString(CreatedBy);
  LastUpdated = in.file.ReadDouble();
  in.file.ReadFileString(LastUpdatedBy);
  const bool hasPackage = in.version >= kFirstWithPackageAndMissions;
  AudioPackage = hasPackage ? in.file.ReadFileString() : "Audio01";
  in.file.ReadFileString(notes);
  LoadMissions(in);
}

// Missions: from version 23 i32 count and that many i32; from 17 to 22 one i32; before, nothing.

void ConversationFile::LoadMissions(RecordReader& in) {
  missions_.assign(1, 0);
  missionCount_ = 1;
  if (in.version < kFirstWithOneMission) return;
  if (in.version < kFirstWithPackageAndMissions) {
    missions_[0] = in.file.ReadInt32();
    return;
  }
  const std::size_t count = in.file.ReadCount("missions");
  missions_.clear();
  missions_.reserve(in.file.Plausible(count, kMissionSize));
  for (std::size_t i = 0; i < count; ++i) missions_.push_back(in.file.ReadInt32());
  missionCount_ = static_cast<std::int32_t>(count);
}

// File: header, table block, i32 currentKey, i32 conversation count, conversations.

void ConversationFile::SaveConversations(BinaryWriter& file, const FileHost& host) {
  const auto count = NarrowTo<std::int32_t>(Conversations.Count());
  host.progress.Begin("Saving Conversations...", "Tables", count);
  LastUpdated = Workspace::Current().now();
  LastUpdatedBy = Workspace::Current().defaults.Username;
  SaveHeader(file);
  SaveTables(file);
  file.WriteInt32(currentKey_);
  file.WriteInt32(count);
  int step = 0;
  host.tree.WalkConversations([&](std::int32_t key) {
    const Conversation& con = Conversations.At(key);
    host.progress.Step(con.conName, ++step);
    InPlace(con, [&] { con.Save(file); });
  });
  file.Flush();
  host.progress.End();
  bModified_ = false;
}

Boolean ConversationFile::LoadConversations(BinaryReader& file, const FileHost& host) {
  ConversationRemoveAll();
  if (file.ReadUpTo(kMagic.size()) != kMagic) {
    Refuse(host.messages, "Oh shit!", "This is not a valid Conversation File!!");
    return false;
  }
  file.ReadByte();
  versionNum = file.ReadInt32();
  if (RefuseVersion(host.messages, versionNum)) return false;
  RecordReader in{file, versionNum, {}};
  InRecord(
      file, [] { return std::string("header"); }, [&] { LoadHeader(in); });
  host.progress.Begin("Loading Conversations...", "Tables", 2);
  LoadTables(in);
  InRecord(
      file, [] { return std::string("header of the conversations"); },
      [&] { currentKey_ = file.ReadInt32(); });
  LoadEachConversation(in, host);
  bModified_ = false;
  host.progress.End();
  return true;
}

void ConversationFile::LoadEachConversation(RecordReader& in, const FileHost& host) {
  const std::size_t count = in.file.ReadCount("conversations");
  host.progress.SetTop(static_cast<int>(count));
  Conversations.Reserve(in.file.Plausible(count, kLeastConversationSize));
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t start = in.file.Offset();
    const auto con = std::make_shared<Conversation>();
    const auto name = [i, count] {
      return "conversation " + std::to_string(i + 1) + " of " + std::to_string(count);
    };
    InRecord(in.file, name, [&] { con->Load(in); });
    const auto fullName = [&] { return name() + " (" + NameInError(con->conName) + ")"; };
    InWholeRecord(start, fullName, [&] {
      host.progress.Step(con->conName, static_cast<int>(i + 1));
      Conversations.Add(con->key, con);
      host.tree.TreeViewAddConversation(con, false);
    });
  }
}

}  // namespace parlate
