#include "support/FileBytes.h"

#include <array>
#include <bit>

namespace parlate::testing_support {

namespace {

constexpr int kByteBits = 8;

std::string LittleEndian(std::uint64_t bits, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) {
    text += static_cast<char>(static_cast<unsigned char>(bits >> (i * kByteBits)));
  }
  return text;
}

std::int32_t SizeOf(const Rows& rows) {
  std::size_t size = 4;
  for (const auto& [id, name] : rows) size += 8 + name.size();
  return static_cast<std::int32_t>(size);
}

}  // namespace

FileBytes& FileBytes::Raw(std::string_view bytes) {
  bytes_ += bytes;
  return *this;
}

FileBytes& FileBytes::I32(std::int32_t value) {
  return Raw(LittleEndian(static_cast<std::uint32_t>(value), 4));
}

FileBytes& FileBytes::F64(double value) {
  return Raw(LittleEndian(std::bit_cast<std::uint64_t>(value), 8));
}

FileBytes& FileBytes::Str(std::string_view text) {
  return I32(static_cast<std::int32_t>(text.size())).Raw(text);
}

FileBytes& FileBytes::Actor(const ActorFields& actor) {
  I32(actor.id);
  return actor.id > -1 ? Str(actor.name) : *this;
}

FileBytes& FileBytes::Flags(const std::vector<FlagFields>& flags) {
  I32(static_cast<std::int32_t>(flags.size()));
  for (const FlagFields& flag : flags) {
    I32(flag.id).Str(flag.name).Bool(flag.value).I32Since(19, flag.expiration, 0);
  }
  return *this;
}

FileBytes& FileBytes::I32Since(int since, std::int32_t value, std::int32_t fallback) {
  return layout_ >= since ? I32(InContent(since) ? value : fallback) : *this;
}

FileBytes& FileBytes::BoolSince(int since, bool value) {
  return layout_ >= since ? Bool(InContent(since) && value) : *this;
}

FileBytes& FileBytes::StrSince(int since, std::string_view value, std::string_view fallback) {
  return layout_ >= since ? Str(InContent(since) ? value : fallback) : *this;
}

FileBytes& FileBytes::Start() { return Raw("Orrivex Conversation File\x1A").I32(layout_); }

FileBytes& FileBytes::Header(const HeaderFields& header) {
  F64(header.creationDate).Str(header.createdBy);
  F64(header.lastUpdated).Str(header.lastUpdatedBy);
  StrSince(23, header.audioPackage, "Audio01").Str(header.notes);
  std::vector<std::int32_t> missions = header.missions;
  if (content_ < 23) missions.resize(1);
  if (content_ < 17) missions = {0};
  if (layout_ >= 23) I32(static_cast<std::int32_t>(missions.size()));
  if (layout_ >= 17) {
    for (const std::int32_t mission : missions) I32(mission);
  }
  return *this;
}

FileBytes& FileBytes::Tables(const TableFields& tables) {
  const std::array<const Rows*, 4> all = {&tables.actors, &tables.flags, &tables.skills,
                                          &tables.objects};
  std::int32_t size = 0;
  for (const Rows* rows : all) size += SizeOf(*rows);
  I32(size);
  for (const Rows* rows : all) {
    I32(static_cast<std::int32_t>(rows->size()));
    for (const auto& [id, name] : *rows) I32(id).Str(name);
  }
  return *this;
}

FileBytes& FileBytes::Conversation(const ConversationFields& con) {
  I32(con.currentEventKey).I32(con.key).Str(con.conName).StrSince(22, con.description);
  F64(con.creationDate).Str(con.createdBy).F64(con.lastUpdated).Str(con.lastUpdatedBy);
  Actor(con.owner).Bool(con.holoCall).Str(con.notes);
  Bool(con.displayOnce).Bool(con.firstPerson).Bool(con.nonInteractive).Bool(con.randomCamera);
  BoolSince(26, con.canBeInterrupted).BoolSince(28, con.cannotBeInterrupted);
  Bool(con.invokeBump).Bool(con.invokeFrob).Bool(con.invokeSight).Bool(con.invokeRadius);
  return I32(con.radius).Flags(con.flags);
}

FileBytes& FileBytes::Event(std::int32_t listPos, std::int32_t key, std::int32_t type,
                            std::string_view label) {
  return I32(listPos).I32(key).I32(StoredEventType(type, layout_).value_or(type)).Str(label);
}

FileBytes& FileBytes::Choice(const ChoiceFields& choice) {
  I32(choice.id).Str(choice.text).Bool(choice.spoken).I32(choice.skillID);
  if (choice.skillID > -1) Str(choice.skillName).I32(choice.skillLevel);
  return Str(choice.label).Str(choice.audioFile).Flags(choice.flags);
}

std::optional<std::int32_t> StoredEventType(std::int32_t type, int version) {
  // Where "Comment" and "End" stood in each version; their codes hide the types that came there.
  std::int32_t comment = 17;
  std::int32_t end = 18;
  if (version == 15) {
    comment = 11;
    end = 12;
  } else if (version >= 16 && version <= 20) {
    comment = 14;
    end = 15;
  } else if (version >= 21 && version <= 23) {
    comment = 16;
    end = 17;
  } else if (version < 15) {
    comment = -1;
    end = 17;
  }
  if (type == 17) return comment < 0 ? std::nullopt : std::optional(comment);
  if (type == 18) return end;
  if (type == comment || type == end) return std::nullopt;
  return type;
}

FileBytes OneEventFile(int version, const TableFields& tables, std::int32_t type,
                       std::string_view payload) {
  FileBytes file(version);
  file.Start().Header({}).Tables(tables).I32(1).I32(1);
  ConversationFields con;
  con.currentEventKey = 1;
  if (!tables.actors.empty()) con.owner = {tables.actors[0].first, tables.actors[0].second};
  file.Conversation(con).I32(1).Event(0, 1, type, "");
  return file.Raw(payload);
}

std::string WithI32At(std::string bytes, std::size_t offset, std::int32_t value) {
  return bytes.replace(offset, 4, LittleEndian(static_cast<std::uint32_t>(value), 4));
}

}  // namespace parlate::testing_support
