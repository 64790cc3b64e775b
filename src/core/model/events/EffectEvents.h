#pragma once

#include <cstdint>
#include <string>

#include "model/Controls.h"
#include "model/EventObject.h"

namespace parlate {

/// An object changes hands.
class EventTransferObject final : public EventObject {
 public:
  std::int32_t objectID = 0;       ///< Object row.
  std::int32_t transferCount = 0;  ///< How many.
  std::int32_t fromPawnID = 0;     ///< Actor row; -1 when the object is simply given.
  std::int32_t toPawnID = 0;       ///< Actor row.
  std::string failLabel;

  void Copy(const EventTransferObject& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(std::int32_t newObjectID, std::int32_t newTransferCount, std::int32_t newFromPawnID,
              std::int32_t newToPawnID, const std::string& newFailLabel);
  [[nodiscard]] std::int32_t GetActorID() const override { return toPawnID; }
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] Boolean AreLabelsValid(const Conversation& con) const override;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) override;
  void StoreTableData() const override;
};

/// The camera goes to a position.
class EventMoveCamera final : public EventObject {
 public:
  static constexpr std::int32_t kPredefined = 0;
  static constexpr std::int32_t kSpeakers = 1;  ///< Comes from files only; `Update` never sets it.
  static constexpr std::int32_t kActor = 2;
  static constexpr std::int32_t kRandom = 3;

  std::int32_t cameraType = 0;
  std::int32_t cameraPosition = 0;    ///< Index into `cameraPositionNames`.
  std::int32_t cameraTransition = 0;  ///< Index into `cameraTransitionNames`.
  std::int32_t rotationPitch = 0;
  std::int32_t rotationYaw = 0;
  std::int32_t rotationRoll = 0;
  std::int32_t cameraX = 0;
  std::int32_t cameraY = 0;
  std::int32_t cameraZ = 0;
  double heightModifier = 0;
  double centerModifier = 0;
  double distanceMultiplier = 0;

  void Copy(const EventMoveCamera& source) { *this = source; }
  /// What is stored depends on the type.
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const ComboBox& cboCameraPosition, const ComboBox& cboCameraTransition,
              bool optCameraPosition, bool optCameraSpecific);
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] std::string BuildEventListSubString() const override;
};

/// An actor plays an animation sequence.
class EventAnimation final : public EventObject {
 public:
  std::int32_t PawnID = -1;  ///< Actor row.
  std::string SeqName;
  std::int32_t playMode = 0;    ///< 0 loop, 1 once.
  std::int32_t playLength = 0;  ///< Seconds, 0 for no limit.
  Boolean bFinishAnim;

  void Copy(const EventAnimation& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const ComboBox& cboPawn, const std::string& newSeqName, bool bLoop,
              std::int32_t newPlayLength, Boolean bNewFinishAnim);
  [[nodiscard]] std::int32_t GetActorID() const override { return PawnID; }
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) override;
  void StoreTableData() const override;
};

/// An actor opens its trade.
class EventTrade final : public EventObject {
 public:
  std::int32_t PawnID = -1;  ///< Actor row.

  void Copy(const EventTrade& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const ComboBox& cboPawn);
  [[nodiscard]] std::int32_t GetActorID() const override { return PawnID; }
  [[nodiscard]] std::string BuildEventListString() const override { return "Trade"; }
  [[nodiscard]] bool IsTableItemReferenced(std::int32_t id, std::int32_t tableType) const override;
  void GatherTableItems(std::int32_t tableType, IDSet& ids) const override;
  void ChangeTableLink(std::int32_t tableType, std::int32_t oldID, std::int32_t newID) override;
  void StoreTableData() const override;
};

/// Something in the world is set off.
class EventTrigger final : public EventObject {
 public:
  std::string triggerTag;

  void Copy(const EventTrigger& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const std::string& newTriggerTag) { triggerTag = newTriggerTag; }
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] Boolean FindString(std::string_view searchString, Boolean bWholeWord,
                                   CompareMethod compareMethod) const override;
};

/// A goal is given or completed. A completed goal has neither text nor primary mark.
class EventAddGoal final : public EventObject {
 public:
  std::string goalName;
  Boolean bGoalCompleted;
  std::string goalText;
  Boolean bPrimaryGoal;

  void Copy(const EventAddGoal& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const std::string& newGoalName, Boolean bNewGoalCompleted,
              const std::string& newGoalText, Boolean bNewPrimaryGoal);
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] std::string BuildEventListSubString() const override;
  [[nodiscard]] Boolean FindString(std::string_view searchString, Boolean bWholeWord,
                                   CompareMethod compareMethod) const override;
};

/// A note for the player.
class EventAddNote final : public EventObject {
 public:
  std::string noteText;

  void Copy(const EventAddNote& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const std::string& newNoteText) { noteText = newNoteText; }
  [[nodiscard]] std::string BuildEventListString() const override { return noteText; }
  [[nodiscard]] Boolean FindString(std::string_view searchString, Boolean bWholeWord,
                                   CompareMethod compareMethod) const override;
};

/// Skill points for the player.
class EventAddSkillPoints final : public EventObject {
 public:
  std::int32_t pointsToAdd = 0;
  std::string awardMessage;

  void Copy(const EventAddSkillPoints& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(std::int32_t newPointsToAdd, const std::string& newAwardMessage);
  [[nodiscard]] std::string BuildEventListString() const override;
};

/// Money for the player.
class EventAddCredits final : public EventObject {
 public:
  std::int32_t creditsToAdd = 0;

  void Copy(const EventAddCredits& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(std::int32_t newCreditsToAdd) { creditsToAdd = newCreditsToAdd; }
  [[nodiscard]] std::string BuildEventListString() const override;
};

/// A remark of the writer's.
class EventComment final : public EventObject {
 public:
  std::string commentText;

  void Copy(const EventComment& source) { *this = source; }
  void SaveEvent(BinaryWriter& file) const override;
  void LoadEvent(RecordReader& in) override;
  void Update(const std::string& newCommentText) { commentText = newCommentText; }
  [[nodiscard]] std::string BuildEventListString() const override;
  [[nodiscard]] std::string BuildEventListSubString() const override { return commentText; }
  [[nodiscard]] Boolean FindString(std::string_view searchString, Boolean bWholeWord,
                                   CompareMethod compareMethod) const override;
};

}  // namespace parlate
