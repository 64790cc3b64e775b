#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "support/FileBytes.h"

namespace parlate::testing_support {

/// One event of a written-down file: its payload is in the bytes of the present version.
struct EventFields {
  std::int32_t key = 0;
  std::int32_t type = 0;
  std::string label;
  std::string payload;
};

/// A conversation with its events.
struct ConversationScript {
  ConversationFields fields;
  std::vector<EventFields> events;
};

[[nodiscard]] EventFields Speech(std::int32_t key, const std::string& label,
                                 const ActorFields& speaker, const std::string& text,
                                 const std::string& audioFile);
[[nodiscard]] EventFields Comment(std::int32_t key, const std::string& label,
                                  const std::string& text);
[[nodiscard]] EventFields Jump(std::int32_t key, const std::string& label,
                               const std::string& target, std::int32_t targetCon);
[[nodiscard]] EventFields SetFlags(std::int32_t key, const std::vector<FlagFields>& flags);
[[nodiscard]] EventFields CheckObject(std::int32_t key, std::int32_t objectID,
                                      const std::string& objectName);
[[nodiscard]] EventFields End(std::int32_t key, const std::string& label);

[[nodiscard]] ConversationScript Con(std::int32_t key, const std::string& name,
                                     const ActorFields& owner,
                                     const std::vector<EventFields>& events = {},
                                     const std::vector<FlagFields>& flags = {});

/// The bytes of a file of the present version. The next key stands behind the highest.
[[nodiscard]] std::string FileOf(const TableFields& tables,
                                 const std::vector<ConversationScript>& conversations);

/// A small file with all that the shell's tests ask for:
///   Zoe: greeting (key 0; flags Door, Lamp; events 1 to 5), Arrival (key 1)
///   Alex: Leaving (key 2; a jump to greeting)
[[nodiscard]] std::string HarbourFile();
/// The tables of that file: actors Zoe 1, Alex 0; flags Door 2, Lamp 3; skill Swim 1; object Key 4.
[[nodiscard]] TableFields HarbourTables();

inline const ActorFields kZoe = {1, "Zoe"};
inline const ActorFields kHarbourAlex = {0, "Alex"};

}  // namespace parlate::testing_support
