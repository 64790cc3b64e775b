#include "model/FlagRef.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "model/Tables.h"

namespace parlate {

std::string FlagRef::Desc() const {
  return GetTableItemName(kFlagTable, flagID) + " = " + BoolToString(bValue);
}

std::string FlagRef::Image() const { return bValue ? "FlagTrue" : "FlagFalse"; }

void CopyFlagRefs(const FlagList& source, FlagList& target) {
  target.Clear();
  for (const FlagRef& flag : source) {
    auto copy = std::make_shared<FlagRef>();
    copy->Copy(flag);
    target.Add(flag.flagID, std::move(copy));
  }
}

void RekeyFlagRefs(FlagList& flagRefs) {
  FlagList rekeyed;
  for (std::size_t place = 1; place <= flagRefs.Count(); ++place) {
    std::shared_ptr<FlagRef> flag = flagRefs.Place(place);
    const std::int32_t key = flag->flagID;
    if (rekeyed.Find(key) == nullptr) rekeyed.Add(key, std::move(flag));
  }
  flagRefs = std::move(rekeyed);
}

void SetSelectedFlagRefs(FlagList& flagRefs, const ListBox& flagList, Boolean bValue,
                         std::int32_t expiration) {
  for (int i = 0; i < flagList.ListCount(); ++i) {
    if (!flagList.Selected(i)) continue;
    const std::int32_t flagID = flagList.ItemData(i);
    if (flagRefs.Find(flagID) == nullptr) {
      auto flag = std::make_shared<FlagRef>();
      flag->flagID = flagID;
      flagRefs.Add(flagID, std::move(flag));
    }
    FlagRef& flag = flagRefs.At(flagID);
    flag.bValue = bValue;
    flag.expiration = expiration;
  }
}

void PopulateFlagList(const FlagList& flagRefs, ListBox& list, bool bShowExpiration) {
  list.Clear();
  for (const FlagRef& flag : flagRefs) {
    std::string row = GetTableItemName(kFlagTable, flag.flagID) + ";" + BoolToString(flag.bValue);
    if (bShowExpiration) row += ";" + std::to_string(flag.expiration);
    list.AddItem(row);
    list.SetItemData(list.ListCount() - 1, flag.flagID);
  }
}

std::string BuildFlagsString(const FlagList& flagRefs) {
  std::string text;
  for (const FlagRef& flag : flagRefs) {
    if (!text.empty()) text += ", ";
    text += flag.Desc();
  }
  return text;
}

void ChangeFlagRefLink(FlagList& flagRefs, std::int32_t oldID, std::int32_t newID) {
  // The walk goes over the entries that were in the list when it began.
  std::vector<std::shared_ptr<FlagRef>> entries;
  for (std::size_t place = 1; place <= flagRefs.Count(); ++place) {
    entries.push_back(flagRefs.Place(place));
  }
  for (const auto& entry : entries) {
    if (entry->flagID != oldID || entry->bAdjustedID) continue;
    auto adjusted = std::make_shared<FlagRef>();
    adjusted->Copy(*entry);
    adjusted->bAdjustedID = true;
    adjusted->flagID = newID;
    flagRefs.Remove(oldID);
    flagRefs.Add(newID, std::move(adjusted));
  }
}

void GatherFlags(const FlagList& flagRefs, IDSet& ids) {
  for (const FlagRef& flag : flagRefs) ids.Add(flag.flagID);
}

bool IsFlagReferenced(const FlagList& flagRefs, std::int32_t id) {
  return std::any_of(flagRefs.begin(), flagRefs.end(),
                     [id](const FlagRef& flag) { return flag.flagID == id; });
}

}  // namespace parlate
