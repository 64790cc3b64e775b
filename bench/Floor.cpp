#include "bench/Floor.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>
#include <string_view>

namespace parlate::bench::floor {

namespace {

constexpr std::string_view kMagic = "Orrivex Conversation File";

/// The file, a piece at a time: a buffer for the whole file would have to be paged in first.
class Reader {
 public:
  explicit Reader(const std::string& path)
      : descriptor_(::open(path.c_str(), O_RDONLY)),  // NOLINT: a system interface
        buffer_(256 * 1024) {
    if (descriptor_ < 0) throw std::runtime_error("cannot read " + path);
  }
  ~Reader() { ::close(descriptor_); }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  const char* Take(std::size_t count) {
    if (end_ - at_ < count) Refill(count);
    const char* bytes = buffer_.data() + at_;
    at_ += count;
    return bytes;
  }

  template <class Number>
  Number Get() {
    Number number;
    std::memcpy(&number, Take(sizeof(number)), sizeof(number));
    return number;
  }

  std::int32_t Int() { return Get<std::int32_t>(); }
  double Double() { return Get<double>(); }
  bool Bool() { return Int() != 0; }
  std::size_t Count() { return static_cast<std::size_t>(Int()); }

  void Text(std::string& text) {
    const std::size_t size = Count();
    text.assign(Take(size), size);
  }

  std::string Text() {
    std::string text;
    Text(text);
    return text;
  }

 private:
  void Refill(std::size_t count) {
    std::memmove(buffer_.data(), buffer_.data() + at_, end_ - at_);
    end_ -= at_;
    at_ = 0;
    if (buffer_.size() < count) buffer_.resize(count);
    const ssize_t got = ::read(descriptor_, buffer_.data() + end_, buffer_.size() - end_);
    if (got > 0) end_ += static_cast<std::size_t>(got);
    if (end_ < count) throw std::runtime_error("the file ends early");
  }

  int descriptor_;
  std::vector<char> buffer_;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
};

void Get(Reader& in, Row& row) {
  row.id = in.Int();
  in.Text(row.name);
}

/// An ID with a name behind it.
void GetNamed(Reader& in, std::int32_t& id) {
  id = in.Int();
  in.Take(in.Count());
}

/// An ID with a name behind it, unless it is -1.
void GetActor(Reader& in, std::int32_t& id) {
  id = in.Int();
  if (id > -1) in.Take(in.Count());
}

void Get(Reader& in, std::vector<Flag>& flags) {
  flags.resize(in.Count());
  for (Flag& flag : flags) {
    GetNamed(in, flag.flag);
    flag.value = in.Bool();
    flag.expiration = in.Int();
  }
}

void Get(Reader& in, Speech& speech) {
  GetActor(in, speech.speaker);
  GetActor(in, speech.listener);
  in.Text(speech.text);
  in.Text(speech.audio);
  speech.continued = in.Bool();
  speech.bold = in.Bool();
  speech.font = in.Int();
}

void Get(Reader& in, Choice& choice) {
  choice.nextId = in.Int();
  choice.clears = in.Bool();
  choice.options.resize(in.Count());
  for (Option& option : choice.options) {
    option.id = in.Int();
    in.Text(option.text);
    option.spoken = in.Bool();
    GetActor(in, option.skill);
    if (option.skill > -1) option.level = in.Int();
    in.Text(option.label);
    in.Text(option.audio);
    Get(in, option.flags);
  }
}

void Get(Reader& in, SetFlags& event) { Get(in, event.flags); }

void Get(Reader& in, CheckFlags& event) {
  Get(in, event.flags);
  in.Text(event.label);
}

void Get(Reader& in, CheckObject& event) {
  GetNamed(in, event.object);
  in.Text(event.label);
}

void Get(Reader& in, Transfer& event) {
  GetNamed(in, event.object);
  event.count = in.Int();
  GetActor(in, event.from);
  GetActor(in, event.to);
  in.Text(event.label);
}

void Get(Reader& in, Camera& camera) {
  camera.type = in.Int();
  camera.position = in.Int();
  camera.transition = in.Int();
  if (camera.type != 1 && camera.type != 2) return;
  for (std::int32_t& angle : camera.rotation) angle = in.Int();
  if (camera.type == 1) {
    for (double& modifier : camera.modifiers) modifier = in.Double();
  } else {
    for (std::int32_t& coordinate : camera.place) coordinate = in.Int();
  }
}

void Get(Reader& in, Animation& animation) {
  GetActor(in, animation.pawn);
  in.Text(animation.sequence);
  animation.mode = in.Int();
  animation.length = in.Int();
  animation.finish = in.Bool();
}

void Get(Reader& in, Trade& trade) { GetActor(in, trade.pawn); }

void Get(Reader& in, Jump& jump) {
  in.Text(jump.label);
  jump.conversation = in.Int();
}

void Get(Reader& in, Random& random) {
  random.labels.resize(in.Count());
  for (std::string& label : random.labels) in.Text(label);
  for (bool& cycle : random.cycles) cycle = in.Bool();
}

void Get(Reader& in, Text& text) { in.Text(text.text); }

void Get(Reader& in, Goal& goal) {
  in.Text(goal.name);
  goal.completed = in.Bool();
  if (goal.completed) return;
  in.Text(goal.text);
  goal.primary = in.Bool();
}

void Get(Reader& in, Points& points) {
  points.points = in.Int();
  in.Text(points.message);
}

void Get(Reader& in, Credits& credits) { credits.credits = in.Int(); }

void Get(Reader& in, Persona& persona) {
  persona.type = in.Int();
  persona.condition = in.Int();
  persona.value = in.Int();
  in.Text(persona.label);
}

void Get(Reader&, End&) {}

template <class Payload>
void Read(Reader& in, Event& event) {
  Get(in, event.payload.emplace<Payload>());
}

void Get(Reader& in, Event& event) {
  static constexpr void (*kReaders[])(Reader&, Event&) = {
      Read<Speech>,   Read<Choice>,  Read<SetFlags>,  Read<CheckFlags>, Read<CheckObject>,
      Read<Transfer>, Read<Camera>,  Read<Animation>, Read<Trade>,      Read<Jump>,
      Read<Random>,   Read<Text>,    Read<Goal>,      Read<Text>,       Read<Points>,
      Read<Credits>,  Read<Persona>, Read<Text>,      Read<End>};
  event.place = in.Int();
  event.key = in.Int();
  event.type = in.Int();
  in.Text(event.label);
  const auto type = static_cast<std::size_t>(event.type);
  if (type >= std::size(kReaders)) throw std::runtime_error("there is no such event");
  kReaders[type](in, event);
}

void Get(Reader& in, Conversation& con) {
  con.lastEventKey = in.Int();
  con.key = in.Int();
  in.Text(con.name);
  in.Text(con.description);
  con.created = in.Double();
  in.Text(con.createdBy);
  con.updated = in.Double();
  in.Text(con.updatedBy);
  GetActor(in, con.owner);
  con.holoCall = in.Bool();
  in.Text(con.notes);
  for (bool& value : con.switches) value = in.Bool();
  con.radius = in.Int();
  Get(in, con.flags);
  con.events.resize(in.Count());
  for (Event& event : con.events) Get(in, event);
}

/// One buffer for the whole file.
class Writer {
 public:
  Writer(const File& file, std::size_t expectedSize) : tables(file.tables) {
    bytes_.reserve(expectedSize);
  }

  const std::vector<Row> (&tables)[4];

  template <class Number>
  void Put(Number number) {
    bytes_.append(reinterpret_cast<const char*>(&number), sizeof(number));
  }

  void Int(std::int32_t value) { Put(value); }
  void Double(double value) { Put(value); }
  void Bool(bool value) { Int(value ? -1 : 0); }
  void Count(std::size_t count) { Int(static_cast<std::int32_t>(count)); }
  void Raw(std::string_view text) { bytes_.append(text); }

  void Text(const std::string& text) {
    Count(text.size());
    bytes_.append(text);
  }

  void WriteTo(const std::string& path) const {
    const int descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT, 0666);  // NOLINT: as above
    const ssize_t put = ::write(descriptor, bytes_.data(), bytes_.size());
    ::close(descriptor);
    if (put != static_cast<ssize_t>(bytes_.size())) throw std::runtime_error("cannot write");
  }

  [[nodiscard]] std::size_t Size() const { return bytes_.size(); }

 private:
  std::string bytes_;
};

enum Table : std::size_t { kActors, kFlags, kSkills, kObjects };

void Put(Writer& out, const Row& row) {
  out.Int(row.id);
  out.Text(row.name);
}

void PutNamed(Writer& out, Table table, std::int32_t id) {
  out.Int(id);
  if (id > -1) out.Text(out.tables[table][static_cast<std::size_t>(id)].name);
}

void PutActor(Writer& out, std::int32_t id) { PutNamed(out, kActors, id); }

void Put(Writer& out, const std::vector<Flag>& flags) {
  out.Count(flags.size());
  for (const Flag& flag : flags) {
    PutNamed(out, kFlags, flag.flag);
    out.Bool(flag.value);
    out.Int(flag.expiration);
  }
}

void Put(Writer& out, const Speech& speech) {
  PutActor(out, speech.speaker);
  PutActor(out, speech.listener);
  out.Text(speech.text);
  out.Text(speech.audio);
  out.Bool(speech.continued);
  out.Bool(speech.bold);
  out.Int(speech.font);
}

void Put(Writer& out, const Choice& choice) {
  out.Int(choice.nextId);
  out.Bool(choice.clears);
  out.Count(choice.options.size());
  for (const Option& option : choice.options) {
    out.Int(option.id);
    out.Text(option.text);
    out.Bool(option.spoken);
    PutNamed(out, kSkills, option.skill);
    if (option.skill > -1) out.Int(option.level);
    out.Text(option.label);
    out.Text(option.audio);
    Put(out, option.flags);
  }
}

void Put(Writer& out, const SetFlags& event) { Put(out, event.flags); }

void Put(Writer& out, const CheckFlags& event) {
  Put(out, event.flags);
  out.Text(event.label);
}

void Put(Writer& out, const CheckObject& event) {
  PutNamed(out, kObjects, event.object);
  out.Text(event.label);
}

void Put(Writer& out, const Transfer& event) {
  PutNamed(out, kObjects, event.object);
  out.Int(event.count);
  PutActor(out, event.from);
  PutActor(out, event.to);
  out.Text(event.label);
}

void Put(Writer& out, const Camera& camera) {
  out.Int(camera.type);
  out.Int(camera.position);
  out.Int(camera.transition);
  if (camera.type != 1 && camera.type != 2) return;
  for (const std::int32_t angle : camera.rotation) out.Int(angle);
  if (camera.type == 1) {
    for (const double modifier : camera.modifiers) out.Double(modifier);
  } else {
    for (const std::int32_t coordinate : camera.place) out.Int(coordinate);
  }
}

void Put(Writer& out, const Animation& animation) {
  PutActor(out, animation.pawn);
  out.Text(animation.sequence);
  out.Int(animation.mode);
  out.Int(animation.length);
  out.Bool(animation.finish);
}

void Put(Writer& out, const Trade& trade) { PutActor(out, trade.pawn); }

void Put(Writer& out, const Jump& jump) {
  out.Text(jump.label);
  out.Int(jump.conversation);
}

void Put(Writer& out, const Random& random) {
  out.Count(random.labels.size());
  for (const std::string& label : random.labels) out.Text(label);
  for (const bool cycle : random.cycles) out.Bool(cycle);
}

void Put(Writer& out, const Text& text) { out.Text(text.text); }

void Put(Writer& out, const Goal& goal) {
  out.Text(goal.name);
  out.Bool(goal.completed);
  if (goal.completed) return;
  out.Text(goal.text);
  out.Bool(goal.primary);
}

void Put(Writer& out, const Points& points) {
  out.Int(points.points);
  out.Text(points.message);
}

void Put(Writer& out, const Credits& credits) { out.Int(credits.credits); }

void Put(Writer& out, const Persona& persona) {
  out.Int(persona.type);
  out.Int(persona.condition);
  out.Int(persona.value);
  out.Text(persona.label);
}

void Put(Writer&, const End&) {}

void Put(Writer& out, const Event& event) {
  out.Int(event.place);
  out.Int(event.key);
  out.Int(event.type);
  out.Text(event.label);
  std::visit([&out](const auto& payload) { Put(out, payload); }, event.payload);
}

void Put(Writer& out, const Conversation& con) {
  out.Int(con.lastEventKey);
  out.Int(con.key);
  out.Text(con.name);
  out.Text(con.description);
  out.Double(con.created);
  out.Text(con.createdBy);
  out.Double(con.updated);
  out.Text(con.updatedBy);
  PutActor(out, con.owner);
  out.Bool(con.holoCall);
  out.Text(con.notes);
  for (const bool value : con.switches) out.Bool(value);
  out.Int(con.radius);
  Put(out, con.flags);
  out.Count(con.events.size());
  for (const Event& event : con.events) Put(out, event);
}

}  // namespace

File Load(const std::string& path) {
  constexpr std::int32_t kVersion = 28;
  Reader in(path);
  File file;
  if (std::string_view(in.Take(kMagic.size()), kMagic.size()) != kMagic) {
    throw std::runtime_error("no conversation file");
  }
  in.Take(1);
  file.version = in.Int();
  if (file.version != kVersion) throw std::runtime_error("another version");
  file.created = in.Double();
  in.Text(file.createdBy);
  file.updated = in.Double();
  in.Text(file.updatedBy);
  in.Text(file.audioPackage);
  in.Text(file.notes);
  file.missions.resize(in.Count());
  for (std::int32_t& mission : file.missions) mission = in.Int();
  in.Int();
  for (std::vector<Row>& table : file.tables) {
    table.resize(in.Count());
    for (Row& row : table) Get(in, row);
  }
  file.nextKey = in.Int();
  file.conversations.resize(in.Count());
  for (Conversation& con : file.conversations) Get(in, con);
  return file;
}

std::size_t Save(const File& file, const std::string& path, std::size_t expectedSize) {
  Writer out(file, expectedSize);
  out.Raw(kMagic);
  out.Put('\x1A');
  out.Int(file.version);
  out.Double(file.created);
  out.Text(file.createdBy);
  out.Double(file.updated);
  out.Text(file.updatedBy);
  out.Text(file.audioPackage);
  out.Text(file.notes);
  out.Count(file.missions.size());
  for (const std::int32_t mission : file.missions) out.Int(mission);
  std::size_t tableBytes = 0;
  for (const std::vector<Row>& table : file.tables) {
    tableBytes += 4;
    for (const Row& row : table) tableBytes += 8 + row.name.size();
  }
  out.Count(tableBytes);
  for (const std::vector<Row>& table : file.tables) {
    out.Count(table.size());
    for (const Row& row : table) Put(out, row);
  }
  out.Int(file.nextKey);
  out.Count(file.conversations.size());
  for (const Conversation& con : file.conversations) Put(out, con);
  out.WriteTo(path);
  return out.Size();
}

}  // namespace parlate::bench::floor
