#pragma once

#include <QWidget>

#include "model/FlagRef.h"
#include "shell/ListRows.h"

namespace parlate {

/// What every list of flags on a form does alike: it shows the flags, picks more of them, removes
/// and toggles the selected one. The flags change at once.
class FlagListEdit {
 public:
  /// The rows of the list on the form; they must outlive the object.
  FlagListEdit(ListRows& rows, bool bShowExpiration)
      : rows_(rows), bShowExpiration_(bShowExpiration) {}

  /// Works on these flags from now on, which must outlive their use, and shows them.
  void SetFlags(FlagList& flags);
  [[nodiscard]] FlagList& Flags() const { return *flags_; }
  /// Shows the flags anew; no row is selected then.
  void Populate();

  /// Lets the user pick flags in a dialog over `owner`. False if the user cancelled.
  bool Add(QWidget* owner);
  /// Removes the selected flag without asking, and selects the row that moved up, or the last.
  void Delete();
  /// Flips the value of the selected flag; the row stays selected.
  void Toggle();

 private:
  ListRows& rows_;
  bool bShowExpiration_;
  FlagList* flags_ = nullptr;
};

/// Lets the user pick flags that the list does not hold and puts them in it. False if the user
/// cancelled.
bool PickFlags(FlagList& flags, bool bShowExpiration, QWidget* owner);

}  // namespace parlate
