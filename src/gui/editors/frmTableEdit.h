#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cstdint>
#include <string>

#include "editors/EditorDoors.h"
#include "model/TableItem.h"
#include "platform/QtListBox.h"

namespace parlate {

/// Edits one table of the open file: rows are added, renamed and, as long as nothing refers to
/// them, removed. What is done is done at once; there is no way back by closing the window.
class frmTableEdit : public QDialog {
  Q_OBJECT

 public:
  explicit frmTableEdit(const EditorDoors& doors, QWidget* parent = nullptr);

  std::int32_t tableType = -1;

  /// Shows the window modal; the ID of the row that is selected in the end, -1 for none.
  std::int32_t EditTable(std::int32_t newTableType);
  /// Fills the list anew; no row is selected then.
  void PopulateTable();

 public slots:
  /// What the Close button does, and closing the window by other means too.
  void reject() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PrintRows();
  void SetUpControls();
  void BuildLayout();
  void ConnectControls();
  void RefreshTableButtons();

  void AddRow();
  void RenameRow();
  void DeleteRow();
  void DeleteUnused();
  /// Removes every row that nothing refers to and shows how far it has come; how many they were.
  int RemoveUnusedRows();
  /// Refuses a name that the table cannot take, and says why.
  [[nodiscard]] bool MayAdd(const std::string& name);
  void RefuseRemoval();
  Answer Show(const std::string& title, const std::string& text, MessageBox::Icon icon,
              MessageBox::Buttons buttons = MessageBox::Buttons::Ok);
  /// The name of one row of the table, as captions have it.
  [[nodiscard]] std::string RowCaption() const;

  EditorDoors doors_;
  Table* editTable_ = nullptr;
  std::string tableName_;

  // In the order in which Tab visits them.
  QtListBox lstTable{this, RowOrder::ByName};
  QLineEdit txtName{this};
  QPushButton cmdAdd{this};
  QPushButton cmdEdit{this};
  QPushButton cmdDelete{this};
  QPushButton cmdDeleteUnused{this};
  QPushButton cmdPrint{this};
  QPushButton cmdClose{this};
};

}  // namespace parlate
