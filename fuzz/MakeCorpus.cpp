// Writes the seeds of the fuzzer into a folder:  fuzz-make-corpus FOLDER
//
// Each version that can be read has a file with every event type it knows, and there are files with
// one damage each. The bytes are put together by hand, so that a mistake of the program's own
// writer is not in them.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

constexpr int kOldest = 14;
constexpr int kCurrent = 28;

/// The primitives of the format, one behind the other.
class Bytes {
 public:
  Bytes& Raw(std::string_view text) {
    bytes_ += text;
    return *this;
  }
  Bytes& Byte(unsigned char value) {
    bytes_ += static_cast<char>(value);
    return *this;
  }
  Bytes& Int(std::int32_t value) { return Little(static_cast<std::uint32_t>(value), 4); }
  Bytes& Double(double value) { return Little(std::bit_cast<std::uint64_t>(value), 8); }
  Bytes& Bool(bool value) { return Int(value ? -1 : 0); }
  Bytes& Text(std::string_view text) {
    return Int(static_cast<std::int32_t>(text.size())).Raw(text);
  }
  Bytes& Named(std::int32_t id, std::string_view name) { return Int(id).Text(name); }

  [[nodiscard]] const std::string& Get() const { return bytes_; }

 private:
  Bytes& Little(std::uint64_t bits, int size) {
    for (int i = 0; i < size; ++i) Byte(static_cast<unsigned char>(bits >> (8 * i)));
    return *this;
  }

  std::string bytes_;
};

/// The code under which a version stores a type, or -1 if it has none for it. New types went in
/// ahead of the last two, "Comment" and "End".
int StoredCode(int version, int type) {
  constexpr int kComment = 17;
  constexpr int kEnd = 18;
  if (version >= 24) return type;
  if (version == 14) return type == kEnd ? 17 : (type == kComment ? -1 : type);
  const int comment = version >= 21 ? 16 : (version >= 16 ? 14 : 11);
  if (type == kComment) return comment;
  if (type == kEnd) return comment + 1;
  return type == comment || type == comment + 1 ? -1 : type;
}

/// A list of events as one version stores them.
class Events {
 public:
  explicit Events(int version) : version_(version) {}

  /// One event of every type that the version has, and of those with several layouts one of each.
  Events& EveryType() {
    for (int type = 0; type <= 18; ++type) {
      if (type == 6) {
        for (const int cameraType : {0, 1, 2, 3}) Camera(cameraType);
      } else if (type == 12) {
        for (const bool completed : {false, true}) Goal(completed);
      } else {
        Plain(type);
      }
    }
    return *this;
  }

  Events& Comment(std::string_view text) {
    if (Start(17)) bytes_.Text(text);
    return *this;
  }

  /// An event of which the caller puts the payload behind it.
  Bytes& Head(std::int32_t key, std::int32_t storedType, std::string_view label) {
    ++count_;
    return bytes_.Int(count_ - 1).Int(key).Int(storedType).Text(label);
  }

  void Flag(std::int32_t id, std::string_view name) { PutFlag(bytes_, id, name); }

  /// A flag reference; lists of conversations hold them too.
  void PutFlag(Bytes& out, std::int32_t id, std::string_view name) const {
    out.Named(id, name).Bool(id == 0);
    if (version_ >= 19) out.Int(id * 5);
  }

  [[nodiscard]] std::int32_t Count() const { return count_; }
  [[nodiscard]] const std::string& Get() const { return bytes_.Get(); }

 private:
  bool Start(int type, std::string_view label = {}) {
    const int code = StoredCode(version_, type);
    if (code != -1) Head(count_ + 1, code, label);
    return code != -1;
  }

  void Camera(int cameraType) {
    if (!Start(6)) return;
    bytes_.Int(cameraType).Int(4).Int(1);
    if (cameraType != 1 && cameraType != 2) return;
    bytes_.Int(10).Int(20).Int(30);
    if (cameraType == 1) {
      bytes_.Double(0.5).Double(-1.25).Double(2);
    } else {
      bytes_.Int(-1).Int(0).Int(1);
    }
  }

  void Goal(bool completed) {
    const bool knowsCompleted = version_ >= 20;
    if (!Start(12)) return;
    bytes_.Text("Find the key");
    if (knowsCompleted) bytes_.Bool(completed);
    if (!knowsCompleted || !completed) bytes_.Text("It is lost.").Bool(true);
  }

  void Choices() {
    bytes_.Int(2).Bool(true).Int(2);
    bytes_.Int(0).Text("Yes").Bool(true).Named(0, "Swimming").Int(2).Text("start");
    bytes_.Text("Talk\\Two").Int(1);
    Flag(0, "Met");
    bytes_.Int(1).Text("No").Bool(false).Int(-1).Text("Nowhere").Text("").Int(0);
  }

  void Plain(int type) {
    if (!Start(type, type == 0 ? "Start" : (type == 10 ? "Dice" : ""))) return;
    switch (type) {
      case 0:
        bytes_.Named(0, "Anna").Int(-1).Text("Good day, \xDCncle.").Text("Talk\\One");
        bytes_.Bool(true).Bool(false).Int(0);
        return;
      case 1:
        return Choices();
      case 2:
        bytes_.Int(2);
        Flag(0, "Met");
        return Flag(1, "Paid");
      case 3:
        bytes_.Int(1);
        Flag(1, "Paid");
        bytes_.Text("Dice");
        return;
      case 4:
        bytes_.Named(0, "Key").Text("Start");
        return;
      case 5:
        bytes_.Named(1, "Lamp");
        if (version_ >= 27) bytes_.Int(2);
        bytes_.Int(-1).Named(3, "Bert\xE9").Text("Start");
        return;
      case 7:
        bytes_.Named(3, "Bert\xE9").Text("Nod").Int(1).Int(4).Bool(true);
        return;
      case 8:
        bytes_.Named(0, "Anna");
        return;
      case 9:
        bytes_.Text("Start").Int(0);
        return;
      case 10:
        bytes_.Int(2).Text("Start").Text("Dice");
        if (version_ >= 24) bytes_.Bool(true).Bool(false);
        if (version_ >= 25) bytes_.Bool(true);
        return;
      case 11:
        bytes_.Text("Gate");
        return;
      case 13:
        bytes_.Text("Remember this.");
        return;
      case 14:
        bytes_.Int(100);
        if (version_ >= 27) bytes_.Text("Well done");
        return;
      case 15:
        bytes_.Int(250);
        return;
      case 16:
        bytes_.Int(1).Int(2).Int(-3).Text("Start");
        return;
      case 17:
        bytes_.Text("A remark");
        return;
      default:
        return;
    }
  }

  int version_;
  std::int32_t count_ = 0;
  Bytes bytes_;
};

/// A whole file, part by part.
class File {
 public:
  explicit File(int version) : version_(version) {}

  File& Header() {
    bytes.Raw("Orrivex Conversation File").Byte(26).Int(version_);
    bytes.Double(36000.25).Text("One").Double(36001.5).Text("Two");
    if (version_ >= 23) bytes.Text("Audio07");
    bytes.Text("Notes\r\nof the file");
    if (version_ >= 23) {
      bytes.Int(2).Int(1).Int(14);
    } else if (version_ >= 17) {
      bytes.Int(3);
    }
    return *this;
  }

  File& Tables() {
    bytes.Int(0);  // the block size, which nobody reads
    bytes.Int(2).Named(0, "Anna").Named(3, "Bert\xE9");
    bytes.Int(2).Named(0, "Met").Named(1, "Paid");
    bytes.Int(1).Named(0, "Swimming");
    bytes.Int(2).Named(0, "Key").Named(1, "Lamp");
    return *this;
  }

  File& Conversations(std::int32_t count) {
    bytes.Int(count).Int(count);
    return *this;
  }

  /// The owner is stored by ID and name.
  File& Conversation(std::int32_t key, std::string_view name, std::int32_t owner,
                     std::string_view ownerName, const Events& events) {
    bytes.Int(events.Count()).Int(key).Text(name);
    if (version_ >= 22) bytes.Text("A description");
    bytes.Double(36000.5).Text("One").Double(36000.75).Text("Two");
    bytes.Int(owner);
    if (owner > -1) bytes.Text(ownerName);
    bytes.Bool(false).Text("");
    for (int i = 0; i < 4; ++i) bytes.Bool(i == 1);
    if (version_ >= 26) bytes.Bool(true);
    if (version_ >= 28) bytes.Bool(false);
    for (int i = 0; i < 4; ++i) bytes.Bool(i == 2);
    bytes.Int(640).Int(1);
    events.PutFlag(bytes, 1, "Paid");
    bytes.Int(events.Count()).Raw(events.Get());
    return *this;
  }

  [[nodiscard]] std::string Get() const { return bytes.Get(); }

  Bytes bytes;

 private:
  int version_;
};

std::string EveryTypeOf(int version) {
  return File(version)
      .Header()
      .Tables()
      .Conversations(2)
      .Conversation(0, "Opening", 3, "Bert\xE9", Events(version).EveryType())
      .Conversation(1, "closing", 0, "Anna", Events(version).Comment("Nothing more."))
      .Get();
}

/// A file of today's version with one conversation of the given events.
std::string FileOf(const Events& events) {
  return File(kCurrent)
      .Header()
      .Tables()
      .Conversations(1)
      .Conversation(0, "Opening", 0, "Anna", events)
      .Get();
}

std::string CutShort(std::string bytes) {
  bytes.resize(bytes.size() * 2 / 3);
  return bytes;
}

std::string WithUnknownActors() {
  Events events(kCurrent);
  events.Head(1, 0, "")
      .Named(77, "Clara")
      .Named(78, "Anna")
      .Text("Who?")
      .Text("")
      .Int(0)
      .Int(0)
      .Int(0);
  events.Head(2, 8, "").Named(77, "Clara");
  return FileOf(events);
}

std::string WithEqualKeys() {
  Events events(kCurrent);
  events.Head(5, 17, "").Text("First");
  events.Head(5, 17, "").Text("Second");
  return FileOf(events);
}

std::string WithKeysOutOfOrder() {
  Events events(kCurrent);
  for (const int key : {9, 2, 7, 1, 8, 3, 6, 4, 5, 10, 12, 11}) {
    events.Head(key, 17, key % 2 == 0 ? "Even" : "").Text("Remark");
  }
  return FileOf(events);
}

std::string WithUnknownType() {
  Events events(kCurrent);
  events.Head(1, 19, "");
  return FileOf(events);
}

/// A count that the file is far too short for.
std::string WithCount(std::int32_t storedType, std::int32_t count) {
  Events events(kCurrent);
  Bytes& payload = events.Head(1, storedType, "");
  if (storedType == 1) payload.Int(0).Bool(false);
  payload.Int(count);
  return FileOf(events);
}

std::string WithLostFlag() {
  Events events(kCurrent);
  events.Head(1, 2, "").Int(1);
  events.Flag(55, "Forgotten");
  return FileOf(events);
}

bool Write(const std::filesystem::path& folder, const std::string& name, const std::string& bytes) {
  std::ofstream out(folder / (name + ".con"), std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return static_cast<bool>(out.flush());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: fuzz-make-corpus FOLDER\n");
    return 2;
  }
  std::vector<std::pair<std::string, std::string>> files;
  for (int version = kOldest; version <= kCurrent; ++version) {
    files.emplace_back("version-" + std::to_string(version), EveryTypeOf(version));
  }
  const std::string whole = EveryTypeOf(kCurrent);
  files.emplace_back("nothing-behind-the-tables",
                     File(kCurrent).Header().Tables().Conversations(0).Get());
  files.emplace_back("unknown-actors-heal", WithUnknownActors());
  files.emplace_back("keys-out-of-order", WithKeysOutOfOrder());
  files.emplace_back("flag-without-a-row", WithLostFlag());
  files.emplace_back("bytes-behind-the-end", whole + std::string(40, 'x'));
  files.emplace_back("damaged-cut-short", CutShort(whole));
  files.emplace_back("damaged-empty", std::string());
  files.emplace_back("damaged-magic", "Some other kind of file, and a long one.");
  files.emplace_back("damaged-version-too-old", File(13).Header().Get());
  files.emplace_back("damaged-version-too-new", File(29).Header().Get());
  files.emplace_back("damaged-equal-keys", WithEqualKeys());
  files.emplace_back("damaged-unknown-type", WithUnknownType());
  files.emplace_back("damaged-choice-count", WithCount(1, 32767));
  files.emplace_back("damaged-flag-count", WithCount(2, -1));
  files.emplace_back("damaged-label-count", WithCount(10, 32768));
  files.emplace_back("damaged-no-labels", WithCount(10, 0));
  files.emplace_back("damaged-conversation-count",
                     File(kCurrent).Header().Tables().Conversations(32768).Get());
  files.emplace_back("damaged-owner-none",
                     File(kCurrent)
                         .Header()
                         .Tables()
                         .Conversations(1)
                         .Conversation(0, "Opening", -1, "", Events(kCurrent).EveryType())
                         .Get());
  for (const auto& [name, bytes] : files) {
    if (Write(argv[1], name, bytes)) continue;
    std::fprintf(stderr, "cannot write %s\n", name.c_str());
    return 1;
  }
  return 0;
}
