#include "bench/Generator.h"

#include <array>
#include <bit>
#include <cstddef>
#include <string_view>
#include <utility>

namespace parlate::bench {

namespace {

constexpr int kActors = 40;
constexpr int kFlags = 120;
constexpr int kSkills = 11;
constexpr int kObjects = 60;
constexpr int kLabelEvery = 10;

/// A small generator whose numbers are the same on every machine.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : state_(seed) {}

  /// 0 to `sides` - 1.
  int Roll(int sides) {
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t bits = state_;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBULL;
    bits ^= bits >> 31U;
    return static_cast<int>(bits % static_cast<std::uint64_t>(sides));
  }

 private:
  std::uint64_t state_;
};

std::string Numbered(std::string_view name, int number, std::size_t digits) {
  std::string text = std::to_string(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return std::string(name) + text;
}

std::string ActorName(int id) { return Numbered("Townsman", id, 2); }
std::string FlagName(int id) { return Numbered("Met_Somebody_", id, 3); }
std::string SkillName(int id) { return Numbered("Skill", id, 2); }
std::string ObjectName(int id) { return Numbered("Trinket", id, 2); }
std::string LabelName(int number) { return Numbered("Answer", number, 3); }

/// Puts the primitives of the format one behind the other.
class Bytes {
 public:
  explicit Bytes(std::size_t expected) { bytes_.reserve(expected); }

  void Byte(unsigned char value) { bytes_ += static_cast<char>(value); }
  void Raw(std::string_view text) { bytes_ += text; }
  void Int(std::int32_t value) { Little(static_cast<std::uint32_t>(value), 4); }
  void Double(double value) { Little(std::bit_cast<std::uint64_t>(value), 8); }
  void Bool(bool value) { Int(value ? -1 : 0); }

  void Text(std::string_view text) {
    Int(static_cast<std::int32_t>(text.size()));
    bytes_ += text;
  }

  void Named(int id, const std::string& name) {
    Int(id);
    Text(name);
  }

  [[nodiscard]] std::string Take() { return std::move(bytes_); }

 private:
  void Little(std::uint64_t bits, int size) {
    for (int i = 0; i < size; ++i) Byte(static_cast<unsigned char>(bits >> (8 * i)));
  }

  std::string bytes_;
};

class FileMaker {
 public:
  explicit FileMaker(const FileShape& shape)
      : shape_(shape),
        dice_(shape.seed),
        out_(4096 + static_cast<std::size_t>(shape.conversations) *
                        (512 + 160 * static_cast<std::size_t>(shape.events))) {}

  std::string Make() {
    Header();
    Tables();
    out_.Int(shape_.conversations);
    out_.Int(shape_.conversations);
    for (int i = 0; i < shape_.conversations; ++i) Conversation(i);
    return out_.Take();
  }

 private:
  static constexpr double kDay = 37000.5;

  void Header() {
    out_.Raw("Orrivex Conversation File");
    out_.Byte(26);
    out_.Int(28);
    out_.Double(kDay);
    out_.Text("A Writer");
    out_.Double(kDay);
    out_.Text("A Writer");
    out_.Text("Audio01");
    out_.Text("Made up to be measured.");
    out_.Int(1);
    out_.Int(1);
  }

  struct Table {
    int rows;
    std::string (*name)(int id);
  };

  void Tables() {
    static constexpr std::array<Table, 4> kTables = {
        {{kActors, ActorName}, {kFlags, FlagName}, {kSkills, SkillName}, {kObjects, ObjectName}}};
    std::size_t size = 0;
    for (const Table& table : kTables) {
      size += 4;
      for (int id = 0; id < table.rows; ++id) size += 8 + table.name(id).size();
    }
    out_.Int(static_cast<std::int32_t>(size));
    for (const Table& table : kTables) {
      out_.Int(table.rows);
      for (int id = 0; id < table.rows; ++id) out_.Named(id, table.name(id));
    }
  }

  void Actor() {
    const int id = dice_.Roll(kActors);
    out_.Named(id, ActorName(id));
  }

  void Flags(int most) {
    const int count = dice_.Roll(most + 1);
    const int first = dice_.Roll(kFlags);
    out_.Int(count);
    for (int i = 0; i < count; ++i) {
      const int id = (first + i) % kFlags;
      out_.Named(id, FlagName(id));
      out_.Bool(dice_.Roll(2) == 0);
      out_.Int(0);
    }
  }

  void Object() {
    const int id = dice_.Roll(kObjects);
    out_.Named(id, ObjectName(id));
  }

  /// Words up to about `length` characters.
  void Sentence(int length) {
    static constexpr std::array<std::string_view, 24> kWords = {
        "the",   "gate",  "is",      "closed", "tonight", "and",  "nobody",  "will",
        "come",  "until", "morning", "you",    "should",  "have", "asked",   "me",
        "about", "that",  "before",  "they",   "left",    "for",  "harbour", "again"};
    sentence_.clear();
    while (static_cast<int>(sentence_.size()) < length) {
      if (!sentence_.empty()) sentence_ += ' ';
      sentence_ += kWords[static_cast<std::size_t>(dice_.Roll(static_cast<int>(kWords.size())))];
    }
    out_.Text(sentence_);
  }

  void AudioName(int conversation, int event) {
    if (dice_.Roll(5) >= 3) return out_.Text("");
    out_.Text("Chapter01\\" + Numbered("Talk", conversation, 4) + Numbered("_", event, 4));
  }

  /// One of the labels that the conversation's events bear; none, now and then.
  void Label() {
    const int labels = (shape_.events + kLabelEvery - 1) / kLabelEvery;
    out_.Text(dice_.Roll(20) == 0 ? std::string() : LabelName(dice_.Roll(labels)));
  }

  void Conversation(int index) {
    out_.Int(shape_.events);
    out_.Int(index);
    out_.Text(ConversationName(index));
    out_.Text("What is said there.");
    out_.Double(kDay);
    out_.Text("A Writer");
    out_.Double(kDay);
    out_.Text("A Writer");
    Actor();
    out_.Bool(false);
    out_.Text("");
    for (int flag = 0; flag < 10; ++flag) out_.Bool(dice_.Roll(3) == 0);
    out_.Int(500);
    Flags(3);
    out_.Int(shape_.events);
    for (int event = 0; event < shape_.events; ++event) Event(index, event);
  }

  void Event(int conversation, int event) {
    const int type = dice_.Roll(100) < 80 ? 0 : 1 + dice_.Roll(18);
    out_.Int(event);
    out_.Int(event + 1);
    out_.Int(type);
    out_.Text(event % kLabelEvery == 0 ? LabelName(event / kLabelEvery) : std::string());
    Payload(type, conversation, event);
  }

  void Choices(int conversation, int event) {
    const int count = 2 + dice_.Roll(3);
    out_.Int(count);
    out_.Bool(true);
    out_.Int(count);
    for (int id = 0; id < count; ++id) {
      out_.Int(id);
      Sentence(25 + dice_.Roll(20));
      out_.Bool(dice_.Roll(2) == 0);
      const int skill = dice_.Roll(4 * kSkills);
      if (skill < kSkills) {
        out_.Named(skill, SkillName(skill));
        out_.Int(dice_.Roll(4));
      } else {
        out_.Int(-1);
      }
      Label();
      AudioName(conversation, event);
      Flags(1);
    }
  }

  void Camera() {
    const int type = dice_.Roll(4);
    out_.Int(type);
    out_.Int(dice_.Roll(15));
    out_.Int(dice_.Roll(2));
    if (type != 1 && type != 2) return;
    for (int i = 0; i < 3; ++i) out_.Int(dice_.Roll(65536));
    for (int i = 0; i < 3; ++i) {
      if (type == 1) {
        out_.Double(dice_.Roll(1000) / 8.0);
      } else {
        out_.Int(dice_.Roll(8192));
      }
    }
  }

  void Goal() {
    const bool completed = dice_.Roll(2) == 0;
    out_.Text(Numbered("Errand", dice_.Roll(100), 2));
    out_.Bool(completed);
    if (completed) return;
    Sentence(60);
    out_.Bool(true);
  }

  void Labels() {
    const int count = 2 + dice_.Roll(3);
    out_.Int(count);
    for (int i = 0; i < count; ++i) Label();
    for (int i = 0; i < 3; ++i) out_.Bool(dice_.Roll(2) == 0);
  }

  void Payload(int type, int conversation, int event) {
    switch (type) {
      case 0:
        Actor();
        Actor();
        Sentence(45 + dice_.Roll(25));
        AudioName(conversation, event);
        out_.Bool(dice_.Roll(4) == 0);
        out_.Bool(false);
        return out_.Int(0);
      case 1:
        return Choices(conversation, event);
      case 2:
        return Flags(3);
      case 3:
        Flags(3);
        return Label();
      case 4:
        Object();
        return Label();
      case 5:
        Object();
        out_.Int(1 + dice_.Roll(3));
        Actor();
        Actor();
        return Label();
      case 6:
        return Camera();
      case 7:
        Actor();
        out_.Text("Nod");
        out_.Int(1);
        out_.Int(0);
        return out_.Bool(true);
      case 8:
        return Actor();
      case 9:
        Label();
        return out_.Int(dice_.Roll(2) == 0 ? -1 : conversation);
      case 10:
        return Labels();
      case 11:
        return out_.Text(Numbered("Gate", dice_.Roll(100), 2));
      case 12:
        return Goal();
      case 13:
        return Sentence(80);
      case 14:
        out_.Int(50);
        return Sentence(20);
      case 15:
        return out_.Int(100);
      case 16:
        for (int i = 0; i < 3; ++i) out_.Int(i);
        return Label();
      case 17:
        return Sentence(50);
      default:
        return;
    }
  }

  FileShape shape_;
  Dice dice_;
  Bytes out_;
  std::string sentence_;
};

}  // namespace

std::string MakeFile(const FileShape& shape) { return FileMaker(shape).Make(); }

std::string ConversationName(int index) { return Numbered("Conversation_", index, 5); }

}  // namespace parlate::bench
