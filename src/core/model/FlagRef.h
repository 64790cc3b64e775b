#pragma once

#include <cstdint>
#include <string>

#include "general/Boolean.h"
#include "general/IDSet.h"
#include "general/KeyedCollection.h"
#include "model/Controls.h"

namespace parlate {

class BinaryWriter;
struct RecordReader;

/// A flag with the value that it must have or is given.
class FlagRef {
 public:
  std::int32_t flagID = 0;  ///< A row of the flag table.
  Boolean bValue;
  std::int32_t expiration = 0;  ///< A plain count; 0 means none. Only setting a flag uses it.
  Boolean bAdjustedID;          ///< The ID was rewritten in the present re-linking. Not stored.

  void Copy(const FlagRef& source) { *this = source; }
  /// RuntimeError 5 if the flag's row is gone.
  void Save(BinaryWriter& file) const;
  /// The stored name is dropped: a flag reference is not healed by its name.
  void Load(RecordReader& in);
  /// As "Door = True".
  [[nodiscard]] std::string Desc() const;
  /// "FlagTrue" or "FlagFalse", the key of the picture in the tree.
  [[nodiscard]] std::string Image() const;
};

/// Flags keyed by `flagID`, in the order of insertion; a flag can stand only once in a list.
using FlagList = KeyedCollection<FlagRef>;

/// Empties `target` and fills it with copies.
void CopyFlagRefs(const FlagList& source, FlagList& target);
/// Gives every row selected in the picker the value and expiration, adding those not in the list.
void SetSelectedFlagRefs(FlagList& flagRefs, const ListBox& flagList, Boolean bValue,
                         std::int32_t expiration);
/// One row a flag: name, value and, if wanted, expiration, split by ";".
void PopulateFlagList(const FlagList& flagRefs, ListBox& list, bool bShowExpiration);
void SaveFlagRefs(BinaryWriter& file, const FlagList& flagRefs);
/// Appends to the list that is given.
void LoadFlagRefs(RecordReader& in, FlagList& flagRefs);
/// As "Door = True, Lamp = False".
[[nodiscard]] std::string BuildFlagsString(const FlagList& flagRefs);
/// Redirects entries that were not redirected before; a redirected entry moves to the end of the
/// list. RuntimeError 457 if the list has an entry under the new ID.
void ChangeFlagRefLink(FlagList& flagRefs, std::int32_t oldID, std::int32_t newID);
/// Puts every entry under the key of its flag again, in the same order. Of entries that have become
/// the same flag the first one stays.
void RekeyFlagRefs(FlagList& flagRefs);
/// Adds the rows that the entries refer to.
void GatherFlags(const FlagList& flagRefs, IDSet& ids);
/// Whether an entry refers to that row.
[[nodiscard]] bool IsFlagReferenced(const FlagList& flagRefs, std::int32_t id);

}  // namespace parlate
