#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "model/Conversation.h"
#include "model/printing/PrintPages.h"
#include "support/RecordingSurface.h"
#include "support/TestWorkspace.h"

namespace parlate::testing_support {

/// A conversation of Zoe's on the recorder's page: the left edge of the text is 500, its top 600
/// and its bottom 11400.
class PrintedConversation : public testing::Test {
 protected:
  PrintedConversation() {
    space_.AddRows(kActorTable, {{0, "Alex"}, {1, "Zoe"}});
    space_.AddRows(kSkillTable, {{1, "Swim"}});
    space_.AddRows(kFlagTable, {{2, "Door"}, {3, "Lamp"}});
    space_.AddRows(kObjectTable, {{4, "Key"}});
    con_.conName = "greeting";
    con_.NPCID = 1;
    surface_->CurrentY = 600;
  }

  ConversationDefaults& Settings() { return space_.workspace.defaults; }

  template <class Event>
  Event& Add(std::int32_t type, Event event, const std::string& label = "") {
    auto item = std::make_shared<EventItem>();
    item->key = con_.NextEventKey();
    item->eventLabel = label;
    Event& added = item->SetEventObject(type, std::move(event));
    con_.events.Add(item->key, item);
    return added;
  }
  EventSpeech& AddSpeech(std::int32_t speaker, const std::string& text,
                         const std::string& label = "") {
    EventSpeech speech;
    speech.ActorSpeakerID = speaker;
    speech.speech = text;
    return Add(kSpeech, speech, label);
  }
  EventComment& AddComment(const std::string& text) {
    EventComment comment;
    comment.commentText = text;
    return Add(kComment, comment);
  }
  static void AddFlag(FlagList& flags, std::int32_t id, bool value) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = id;
    flag->bValue = value;
    flags.Add(id, flag);
  }

  const std::vector<std::string>& Print(bool detailed = false) {
    result_ = con_.PrintConversation(pages_, detailed);
    return printers_.calls;
  }
  /// What stands below the title, which is printed first and takes two calls.
  std::vector<std::string> PrintBelowTitle() {
    const auto& calls = Print();
    return {calls.begin() + 2, calls.end()};
  }

  TestWorkspace space_;
  RecordingPrinters printers_;
  std::unique_ptr<PrintSurface> surface_ = printers_.ShowPrinterDialog();
  PrintPages pages_{*surface_};
  Conversation con_;
  bool result_ = false;
};

}  // namespace parlate::testing_support
