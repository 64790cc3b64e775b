#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cstdint>

#include "general/Boolean.h"
#include "model/FlagRef.h"
#include "platform/QtComboBox.h"
#include "platform/QtListBox.h"

namespace parlate {

/// Picks rows of the flag table that a flag list does not hold yet, with one value and one
/// expiration for all of them. What is picked is read from the dialog after it was closed.
class frmFlagList : public QDialog {
  Q_OBJECT

 public:
  explicit frmFlagList(QWidget* parent = nullptr);

  std::int32_t modalResult = 1;  ///< 0 after OK, 1 after Cancel or when the window is closed.

  /// ID of the current row, -1 without one.
  [[nodiscard]] std::int32_t SelectedFlag() const;
  [[nodiscard]] Boolean FlagValue() const;
  /// The number that the text begins with, else 0.
  [[nodiscard]] std::int32_t FlagExpiration() const;
  /// The expiration is there unless it is hidden.
  void ShowExpiration(bool bShow);
  /// Offers the flags that are not in the list, which must outlive the dialog.
  void SetFlags(const FlagList& currentFlagRefs);
  /// The rows with their selection, for SetSelectedFlagRefs.
  [[nodiscard]] const ListBox& Rows() const { return lstFlags; }

 public slots:
  void accept() override;

 private:
  void SetUpControls();
  void BuildLayout();
  void PopulateFlagValueCombo();
  void PopulateAvailableFlags();
  void RefreshFlagOK();
  void EditFlags();
  bool IsExpirationFit();

  const FlagList* flagRefs_ = nullptr;

  // In the order in which Tab visits them.
  QLabel Label1{this};
  QtListBox lstFlags{this, RowOrder::ByName};
  QGroupBox Frame1{this};
  QLabel Label11{&Frame1};
  QtComboBox cboFlagValues{&Frame1};
  QLabel lblExpiration{&Frame1};
  QLineEdit txtExpiration{&Frame1};
  QPushButton cmdEdit{this};
  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate
