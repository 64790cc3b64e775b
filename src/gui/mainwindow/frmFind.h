#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "platform/QtComboBox.h"
#include "shell/Shell.h"

namespace parlate {

/// Finds text in the events of one conversation or of all. Closing it only hides it: it keeps its
/// history and options, and the search goes on from the last hit.
class frmFind : public QDialog {
  Q_OBJECT

 public:
  explicit frmFind(Shell& shell, QWidget* parent = nullptr);

 signals:
  /// The row of the hit is selected.
  void Hit();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void SetUpControls();
  void BuildLayout();
  void RefreshFind();
  /// The next search starts anew.
  void Restart();
  void Find();
  void SetFindCaption(const QString& caption);

  Shell& shell_;

  // In the order in which Tab visits them.
  QLabel Label1{this};
  QtComboBox cboFind{this};
  QLabel Label3{this};
  QtComboBox cboEvents{this};
  QCheckBox chkMatchCase{this};
  QCheckBox chkWholeWord{this};
  QGroupBox Frame1{this};
  QRadioButton optConAll{&Frame1};
  QRadioButton optConCurrent{&Frame1};
  QPushButton cmdFind{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate
