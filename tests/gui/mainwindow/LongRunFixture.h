#pragma once

#include "editors/EventEditorFixture.h"
#include "mainwindow/NewFileSteps.h"

namespace parlate::testing_support {

/// A writer who starts with nothing and writes a conversation with an event of every type.
class LongRunTest : public EventEditorTest {
 protected:
  void SetUp() override;

  /// Writes events 1 to 22, one after the other, in the open editor.
  void WriteEveryEvent();
  /// Inserts event 23 ahead of the trade.
  void InsertNote();
  void ChangeNote();
  /// Deletes event 3 with the editor closed.
  void DeleteThirdSpeech();
  /// Puts a copy of the credits, event 24, ahead of the end.
  void CopyAndPasteCredits();

 private:
  // The steps
  void WriteSpeeches();
  void WriteChoices();
  void WriteFlags();
  void WriteObjects();
  void WriteScene();
  void WriteJumps();
  void WriteRewards();
  void WriteTheEnd();
  static void FillInFirstChoice(RunningProgram& program, QWidget& form);
  static void FillInSecondChoice(QWidget& form);

  // The user
  /// Starts the next event with the editor's own button and type list.
  void Next(std::int32_t eventType, const char* label = "");
  /// Selects a row of a combo by the arrow keys.
  void Choose(const char* combo, int row);
  /// Types a name that the table does not have, leaves the field and has the name added.
  void TypeNewName(const char* combo, const char* name);
  void Update();
};

}  // namespace parlate::testing_support
