#include "editors/FlagListEdit.h"

#include "editors/frmFlagList.h"
#include "shell/ListRowsBox.h"
#include "shell/Shell.h"

namespace parlate {

void FlagListEdit::SetFlags(FlagList& flags) {
  flags_ = &flags;
  Populate();
}

void FlagListEdit::Populate() {
  ListRowsBox list(rows_);
  PopulateFlagList(*flags_, list, bShowExpiration_);
}

bool FlagListEdit::Add(QWidget* owner) {
  if (!PickFlags(*flags_, bShowExpiration_, owner)) return false;
  Populate();
  return true;
}

void FlagListEdit::Delete() {
  const std::int32_t row = rows_.ListIndex();
  if (row == -1) return;
  flags_->Remove(rows_.Row(static_cast<std::size_t>(row)).itemData);
  rows_.RemoveItem(static_cast<std::size_t>(row));
  ReselectListIndex(rows_, row);
}

void FlagListEdit::Toggle() {
  const std::int32_t row = rows_.ListIndex();
  if (row == -1) return;
  FlagRef& flag = flags_->At(rows_.Row(static_cast<std::size_t>(row)).itemData);
  flag.bValue = !flag.bValue;
  Populate();
  rows_.SetListIndex(row);
}

bool PickFlags(FlagList& flags, bool bShowExpiration, QWidget* owner) {
  frmFlagList picker(owner);
  picker.ShowExpiration(bShowExpiration);
  picker.SetFlags(flags);
  picker.exec();
  if (picker.modalResult != 0) return false;
  SetSelectedFlagRefs(flags, picker.Rows(), picker.FlagValue(),
                      bShowExpiration ? picker.FlagExpiration() : 0);
  return true;
}

}  // namespace parlate
