#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "general/BinaryFile.h"
#include "general/Boolean.h"
#include "general/Date.h"
#include "general/KeyedCollection.h"
#include "general/Prompts.h"
#include "model/Controls.h"
#include "model/Conversation.h"

namespace parlate {

/// The order in which conversations are shown and stored: that of the tree.
class ConversationTreeOrder {
 public:
  virtual ~ConversationTreeOrder() = default;
  /// Takes in a conversation under its owner. RuntimeError 5 if the owner has no actor row.
  virtual void TreeViewAddConversation(const std::shared_ptr<Conversation>& con,
                                       Boolean bSelect) = 0;
  /// Calls back with the key of each conversation, owner by owner.
  virtual void WalkConversations(const std::function<void(std::int32_t key)>& visit) const = 0;
};

/// What the two workers that read and write a file ask of the running program.
struct FileHost {
  MessageBoxes& messages;
  ProgressDisplay& progress;
  ConversationTreeOrder& tree;
};

/// The whole open file in memory. The tables belong to it in meaning and live in `Tables`.
class ConversationFile {
 public:
  static constexpr std::int32_t kCurrentVersion = 28;
  static constexpr std::int32_t kOldestVersion = 14;

  KeyedCollection<Conversation> Conversations;  ///< Keyed by `Conversation::key`.
  /// Version of the file that was read; stays so after a save, which always writes the current.
  std::int32_t versionNum = kCurrentVersion;
  Date CreationDate;
  Date LastUpdated;
  std::string CreatedBy;
  std::string LastUpdatedBy;
  std::string notes;
  std::string AudioPackage;  ///< First element of the relative audio paths.

  /// Stamped with the present moment and the user's name.
  ConversationFile();

  [[nodiscard]] std::int32_t GetMissionCount() const { return missionCount_; }
  /// A zero-based entry; RuntimeError 9 outside of the array.
  [[nodiscard]] std::int32_t GetMission(std::int16_t index) const;
  [[nodiscard]] std::int32_t GetFirstMission() const { return GetMission(0); }
  /// The one place through which a change is recorded; the stamps change for false too.
  void SetModified(Boolean bValue, Conversation* con);
  [[nodiscard]] Boolean IsModified() const { return bModified_; }
  /// Returns the present value and counts on, so the first key is 0. RuntimeError 6 beyond 32 bits.
  std::int32_t NextKey();
  void UndoLastKey();
  /// RuntimeError 5 for a missing key. Jumps into the conversation are the caller's business.
  void ConversationRemove(std::int32_t key);
  void ConversationRemoveAll();
  /// Writes the whole file, the conversations in the order of the tree.
  void SaveConversations(BinaryWriter& file, const FileHost& host);
  /// True if the file was read; false after one of the three refusals, which it shows. Damage is a
  /// RuntimeError, and what was read up to there stays.
  Boolean LoadConversations(BinaryReader& file, const FileHost& host);
  [[nodiscard]] Boolean IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const;
  /// The IDs for which `IsTableItemReferenced` is true, in one walk for all of them.
  [[nodiscard]] IDSet ReferencedTableItems(std::int32_t tableType) const;
  /// Exact: names that differ in case alone are different.
  [[nodiscard]] Boolean IsConNameInUse(const std::string& name) const;
  /// Replaces the missions by the numbers behind the rows. RuntimeError 9 for an empty list.
  void SaveMissions(const ListBox& list);
  void RemoveConversationLinks(std::int32_t conKey);

  /// The key that `NextKey` will give out.
  [[nodiscard]] std::int32_t CurrentKey() const { return currentKey_; }

 private:
  void SaveHeader(BinaryWriter& file) const;
  void LoadHeader(RecordReader& in);
  void LoadMissions(RecordReader& in);
  void LoadEachConversation(RecordReader& in, const FileHost& host);

  Boolean bModified_;
  std::int32_t currentKey_ = 0;
  std::vector<std::int32_t> missions_;
  std::int32_t missionCount_ = 0;
};

}  // namespace parlate
