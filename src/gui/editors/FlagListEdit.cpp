#include "editors/FlagListEdit.h"

#include "editors/frmFlagList.h"
#include "shell/ListRowsBox.h"
#include "shell/Shell.h"

namespace parlate {

namespace {

// A flag that was redirected to another row of its table may stand under its old key, but the rows
// stand in the order of the flags.
std::size_t PlaceOf(std::int32_t row) { return static_cast<std::size_t>(row) + 1; }

}  // namespace

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
  flags_->Remove(flags_->KeyAt(PlaceOf(row)));
  rows_.RemoveSelectedItem();
}

void FlagListEdit::Toggle() {
  const std::int32_t row = rows_.ListIndex();
  if (row == -1) return;
  FlagRef& flag = *flags_->Place(PlaceOf(row));
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
