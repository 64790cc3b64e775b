#pragma once

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <cstdint>
#include <vector>

#include "integrity/LabelCheck.h"
#include "shell/ListRows.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

/// Lists the label references that no event defines. One form asks whether to go on saving, the
/// other only reports.
class frmMissingLabels : public QDialog {
  Q_OBJECT

 public:
  explicit frmMissingLabels(QWidget* parent = nullptr);

  /// Shows the rows modal, and nothing if there are none. True if there are none or if the user
  /// answers Yes; closing the window is a No, and the report knows no Yes.
  bool ShowMissingLabels(const std::vector<BadLabelRow>& rows, bool bSaving);

  std::int32_t modalResult = 1;  ///< 0 after Yes, 1 after No, Close or when the window is closed.

 public slots:
  void accept() override;
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void SetUpControls();
  void BuildLayout();
  void SetUpForm(bool bSaving);

  ListRows rows_;

  // In the order in which Tab visits them.
  QLabel Label1{this};
  MultiColumnList lstLabels{rows_, this};
  QLabel Label2{this};
  QFrame pnlSaving{this};
  QLabel lblSave{&pnlSaving};
  QPushButton cmdYes{&pnlSaving};
  QPushButton cmdNo{&pnlSaving};
  QPushButton cmdClose{this};
};

}  // namespace parlate
