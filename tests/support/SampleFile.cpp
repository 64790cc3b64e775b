#include "support/SampleFile.h"

#include <functional>
#include <vector>

namespace parlate::testing_support {

namespace {

struct SampleEvent {
  std::int32_t type;
  std::string label;
  std::function<void(FileBytes&)> payload;
};

const ActorFields kMaya = {1, "Maya \xE9"};
const ActorFields kAlex = {0, "Alex"};
const ActorFields kBob = {5, "Bob"};
const FlagFields kDoor = {2, "Door", true, 4};
const FlagFields kLamp = {3, "Lamp", false, 9};

void Goal(FileBytes& f, const std::string& name, bool completed, const std::string& text,
          bool primary) {
  f.Str(name).BoolSince(20, completed);
  if (!f.InContent(20) || !completed) f.Str(text).Bool(primary);
}

std::vector<SampleEvent> SampleEvents() {
  const ChoiceFields spoken = {3, "Yes", true, 1, "Computers", 2, "Start", "yes.mp3", {kDoor}};
  const ChoiceFields silent = {4, "No", false, -1, "", 0, "", "", {}};
  return {
      {0, "Start",
       [](FileBytes& f) {
         f.Actor(kMaya).Actor({}).Str("Hello\r\nthere").Str("hello.mp3");
         f.Bool(true).Bool(false).I32(1);
       }},
      {1, "", [=](FileBytes& f) { f.I32(5).Bool(true).I32(2).Choice(spoken).Choice(silent); }},
      {2, "",
       [](FileBytes& f) {
         f.Flags({kLamp, kDoor});
       }},
      {3, "", [](FileBytes& f) { f.Flags({kDoor}).Str("End"); }},
      {4, "", [](FileBytes& f) { f.I32(4).Str("Key").Str("Start"); }},
      {5, "",
       [](FileBytes& f) {
         f.I32(4).Str("Key").I32Since(27, 3, 1).Actor({}).Actor(kAlex).Str("End");
       }},
      {6, "", [](FileBytes& f) { f.I32(0).I32(14).I32(1); }},
      {6, "",
       [](FileBytes& f) {
         f.I32(1).I32(2).I32(0).I32(10).I32(-20).I32(30).F64(1.5).F64(-0.25).F64(2);
       }},
      {6, "",
       [](FileBytes& f) {
         f.I32(2).I32(3).I32(1).I32(-1).I32(-2).I32(-3).I32(400).I32(500).I32(600);
       }},
      {6, "", [](FileBytes& f) { f.I32(3).I32(-1).I32(0); }},
      {7, "", [](FileBytes& f) { f.Actor(kBob).Str("Wave").I32(1).I32(12).Bool(true); }},
      {8, "", [](FileBytes& f) { f.Actor(kAlex); }},
      {9, "", [](FileBytes& f) { f.Str("Start").I32(7); }},
      {10, "",
       [](FileBytes& f) {
         f.I32(2).Str("Start").Str("End");
         f.BoolSince(24, true).BoolSince(24, true).BoolSince(25, true);
       }},
      {11, "", [](FileBytes& f) { f.Str("Alarm"); }},
      {12, "", [](FileBytes& f) { Goal(f, "Escape", false, "Find the door", true); }},
      {12, "", [](FileBytes& f) { Goal(f, "Arrive", true, "Old text", true); }},
      {13, "", [](FileBytes& f) { f.Str("A note"); }},
      {14, "", [](FileBytes& f) { f.I32(250).StrSince(27, "Well done"); }},
      {15, "", [](FileBytes& f) { f.I32(-50); }},
      {16, "", [](FileBytes& f) { f.I32(2).I32(3).I32(77).Str("Nowhere"); }},
      {17, "", [](FileBytes& f) { f.Str("A comment"); }},
      {18, "End", [](FileBytes&) {}},
  };
}

ConversationFields FirstConversation() {
  ConversationFields con;
  con.currentEventKey = 60;
  con.key = 0;
  con.conName = "Greeting";
  con.description = "She says hello";
  con.creationDate = 36100.125;
  con.lastUpdated = 36101.625;
  con.owner = kMaya;
  con.holoCall = true;
  con.notes = "her notes";
  con.displayOnce = true;
  con.nonInteractive = true;
  con.canBeInterrupted = true;
  con.cannotBeInterrupted = true;
  con.invokeFrob = true;
  con.invokeRadius = true;
  con.radius = 320;
  con.flags = {kDoor, kLamp};
  return con;
}

ConversationFields SecondConversation() {
  ConversationFields con;
  con.key = 7;
  con.conName = "Leaving";
  con.owner = kAlex;
  con.firstPerson = true;
  con.randomCamera = true;
  con.invokeBump = true;
  con.invokeSight = true;
  return con;
}

std::string Compose(FileBytes file, const HeaderFields& header, int version) {
  file.Start().Header(header).Tables(SampleTables()).I32(12).I32(2);
  std::vector<SampleEvent> events;
  for (SampleEvent& event : SampleEvents()) {
    if (StoredEventType(event.type, version)) events.push_back(std::move(event));
  }
  file.Conversation(FirstConversation()).I32(static_cast<std::int32_t>(events.size()));
  std::int32_t row = 0;
  for (const SampleEvent& event : events) {
    file.Event(row, row + 10, event.type, event.label);
    event.payload(file);
    ++row;
  }
  file.Conversation(SecondConversation()).I32(0);
  return file.Bytes();
}

}  // namespace

TableFields SampleTables() {
  TableFields tables;
  tables.actors = {{1, "Maya \xE9"}, {0, "Alex"}, {5, "Bob"}};
  tables.flags = {{2, "Door"}, {3, "Lamp"}};
  tables.skills = {{1, "Computers"}};
  tables.objects = {{4, "Key"}, {9, "Rope"}};
  return tables;
}

std::string SampleFile(int version) { return Compose(FileBytes(version), {}, version); }

std::string SampleFileSaved(int version, double savedAt, const std::string& savedBy) {
  HeaderFields header;
  header.lastUpdated = savedAt;
  header.lastUpdatedBy = savedBy;
  return Compose(FileBytes(28, version), header, version);
}

}  // namespace parlate::testing_support
