#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "general/BinaryFile.h"
#include "general/RuntimeError.h"

namespace parlate {

/// What a record needs to read itself: the bytes, and the version of the file, which decides which
/// fields there are.
struct RecordReader {
  BinaryReader& file;
  std::int32_t version;
  /// The IDs of all actors by name, from the first reference on that has to be healed.
  std::unordered_map<std::string, std::int32_t> healedActors;
};

/// Runs the reading of one record. An error that leaves it learns the record's name and, if nobody
/// knows better, the place where the reading stood. `name` is asked for on an error only.
template <class Name, class Read>
void InRecord(const BinaryReader& file, Name name, Read read) {
  try {
    read();
  } catch (RuntimeError& error) {
    if (!error.Offset()) error.SetOffset(file.Offset());
    error.AddRecord(name());
    throw;
  }
}

/// Runs what is done with a record that was read whole. What is wrong with it then is wrong with
/// all of it, so its place is its first byte.
template <class Name, class Work>
void InWholeRecord(std::uint64_t start, Name name, Work work) {
  try {
    work();
  } catch (RuntimeError& error) {
    error.SetOffset(start);
    error.AddRecord(name());
    throw;
  }
}

/// An ID of the actors table and, above -1, the name of its row. An ID whose row is missing heals:
/// it becomes that of the row of the name, or of a new row.
std::int32_t ReadActorRef(RecordReader& in);

/// The name that a record stores beside the ID of a row. RuntimeError 5 for a missing row.
[[nodiscard]] std::string_view StoredRowName(std::int32_t tableType, std::int32_t id);

/// RuntimeError 5 for an ID above -1 that has no row.
void WriteActorRef(BinaryWriter& file, std::int32_t id);

}  // namespace parlate
