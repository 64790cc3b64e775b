#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "interchange/ConversationImport.h"
#include "interchange/ExportConversation.h"
#include "support/TestWorkspace.h"

namespace parlate::testing_support {

/// A file in memory that a test puts together by hand. Actors: Alex 0, Zoe 1, Mr_Grey 2.
class InterchangeTest : public testing::Test {
 protected:
  InterchangeTest() {
    TestWorkspace::AddRows(kActorTable, {{0, "Alex"}, {1, "Zoe"}, {2, "Mr_Grey"}});
    File().AudioPackage = "Pack";
  }

  [[nodiscard]] ConversationFile& File() { return open_.file; }

  /// Events go to the conversation that was added last.
  Conversation& AddCon(std::int32_t owner, const std::string& name) {
    auto con = std::make_shared<Conversation>();
    con->key = File().NextKey();
    con->NPCID = owner;
    con->conName = name;
    con_ = con.get();
    File().Conversations.Add(con->key, con);
    open_.tree.keys.push_back(con->key);
    return *con_;
  }
  template <class Event>
  Event& Add(std::int32_t type, Event event) {
    auto item = std::make_shared<EventItem>();
    item->key = con_->NextEventKey();
    Event& added = item->SetEventObject(type, std::move(event));
    con_->events.Add(item->key, item);
    return added;
  }
  EventSpeech& AddSpeech(std::int32_t speaker, const std::string& text) {
    EventSpeech speech;
    speech.ActorSpeakerID = speaker;
    speech.speech = text;
    return Add(kSpeech, std::move(speech));
  }
  EventChoice& AddChoices(const std::vector<std::string>& texts) {
    auto& choice = Add(kChoice, EventChoice());
    for (const std::string& text : texts) {
      auto option = std::make_shared<ChoiceItem>();
      option->ID = choice.nextID();
      option->text = text;
      choice.Choices.Add(option->ID, option);
    }
    return choice;
  }
  EventComment& AddComment(const std::string& text) {
    EventComment comment;
    comment.commentText = text;
    return Add(kComment, std::move(comment));
  }
  EventAddGoal& AddGoal(const std::string& text, bool completed) {
    EventAddGoal goal;
    goal.goalText = text;
    goal.bGoalCompleted = completed;
    return Add(kAddGoal, std::move(goal));
  }
  EventAddNote& AddNote(const std::string& text) {
    EventAddNote note;
    note.noteText = text;
    return Add(kAddNote, std::move(note));
  }

  std::string Exported(std::int32_t mode = kExportDialog, bool comments = true) {
    MemorySink sink;
    ResumeNext([&] {
      TextWriter text(sink);
      ExportConversations(File(), &text, mode, comments, open_.Host());
    });
    return sink.Bytes();
  }
  void GenerateAudio() {
    ExportConversations(File(), nullptr, kGenerateAudio, false, open_.Host());
  }

  [[nodiscard]] static std::vector<std::string> TextsOf(const EventChoice& event) {
    std::vector<std::string> texts;
    for (const ChoiceItem& choice : event.Choices) texts.push_back(choice.text);
    return texts;
  }
  [[nodiscard]] static std::vector<std::string> AudioOf(const EventChoice& event) {
    std::vector<std::string> names;
    for (const ChoiceItem& choice : event.Choices) names.push_back(choice.audioFile);
    return names;
  }

  TestWorkspace space_;
  OpenFile open_{space_};
  Conversation* con_ = nullptr;
};

/// Lines as they stand in a text file.
inline std::string Text(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

inline const std::string kDashes(65, '-');

}  // namespace parlate::testing_support
