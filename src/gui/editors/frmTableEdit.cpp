#include "editors/frmTableEdit.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "editors/frmEditValue.h"
#include "general/CodePage.h"
#include "model/Tables.h"
#include "platform/FormControls.h"
#include "platform/TextField.h"
#include "printing/TablePages.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

constexpr int kListWidth = 300;
constexpr int kListHeight = 320;

std::string WithoutBlanks(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool IsNameTaken(const Table& table, const std::string& name) {
  for (const TableItem& row : table) {
    if (EqualNoCase(row.Name, name)) return true;
  }
  return false;
}

}  // namespace

frmTableEdit::frmTableEdit(const EditorDoors& doors, QWidget* parent)
    : QDialog(parent), doors_(doors) {
  SetUpControls();
  BuildLayout();
  ConnectControls();
  RefreshTableButtons();
}

void frmTableEdit::SetUpControls() {
  NameControl(*this, "frmTableEdit", QStringLiteral("Table"));
  setWindowTitle(QStringLiteral("Table"));
  NameControl(lstTable, "lstTable", QStringLiteral("Table"));
  lstTable.installEventFilter(this);
  NameControl(txtName, "txtName", QStringLiteral("Name"));
  SetUpTextLine(txtName);
  txtName.installEventFilter(this);
  SetUpButton(cmdAdd, "cmdAdd", QStringLiteral("&Add"));
  SetUpButton(cmdEdit, "cmdEdit", QStringLiteral("&Edit"));
  SetUpButton(cmdDelete, "cmdDelete", QStringLiteral("&Delete"));
  SetUpButton(cmdDeleteUnused, "cmdDeleteUnused", QStringLiteral("&Delete Unused"));
  SetUpButton(cmdPrint, "cmdPrint", QStringLiteral("&Print Table"));
  SetUpButton(cmdClose, "cmdClose", QStringLiteral("&Close"));
  cmdAdd.setDefault(true);
  cmdAdd.setEnabled(false);
}

void frmTableEdit::BuildLayout() {
  lstTable.setMinimumSize(kListWidth, kListHeight);
  auto* rows = new QVBoxLayout;
  rows->addWidget(&lstTable, 1);
  rows->addWidget(&txtName);

  auto* buttons = new QVBoxLayout;
  for (QPushButton* button : {&cmdAdd, &cmdEdit, &cmdDelete, &cmdDeleteUnused, &cmdPrint}) {
    buttons->addWidget(button);
  }
  buttons->addStretch();
  buttons->addWidget(&cmdClose);

  auto* form = new QHBoxLayout(this);
  form->addLayout(rows, 1);
  form->addLayout(buttons);
}

void frmTableEdit::ConnectControls() {
  connect(&lstTable, &QListWidget::itemSelectionChanged, this, &frmTableEdit::RefreshTableButtons);
  // Without what Close does for the tree: meant.
  connect(&lstTable, &QListWidget::itemDoubleClicked, this, &frmTableEdit::accept);
  connect(&txtName, &QLineEdit::textChanged, this,
          [this](const QString& text) { cmdAdd.setEnabled(!text.isEmpty()); });
  connect(&cmdAdd, &QPushButton::clicked, this, &frmTableEdit::AddRow);
  connect(&cmdEdit, &QPushButton::clicked, this, &frmTableEdit::RenameRow);
  connect(&cmdDelete, &QPushButton::clicked, this, &frmTableEdit::DeleteRow);
  connect(&cmdDeleteUnused, &QPushButton::clicked, this, &frmTableEdit::DeleteUnused);
  connect(&cmdPrint, &QPushButton::clicked, this, &frmTableEdit::PrintRows);
  connect(&cmdClose, &QPushButton::clicked, this, &frmTableEdit::reject);
}

void frmTableEdit::PrintRows() {
  if (doors_.printers == nullptr) return;
  std::vector<std::string> rows;
  rows.reserve(static_cast<std::size_t>(lstTable.ListCount()));
  for (int i = 0; i < lstTable.ListCount(); ++i) rows.push_back(lstTable.List(i));
  PrintTable(rows, tableName_, {*doors_.printers, doors_.messages});
}

std::int32_t frmTableEdit::EditTable(std::int32_t newTableType) {
  tableType = newTableType;
  editTable_ = GetTable(tableType);
  if (editTable_ == nullptr) return -1;
  tableName_ = GetTableName(tableType) + "s";
  const QString caption = ToQString(tableName_);
  setWindowTitle(caption);
  setAccessibleName(caption);
  lstTable.setAccessibleName(caption);
  txtName.setAccessibleName(ToQString(RowCaption() + " Name"));
  if (tableType == kFlagTable) FilterNameKeys(txtName);
  PopulateTable();
  exec();
  return lstTable.ListIndex() == -1 ? -1 : lstTable.ItemData(lstTable.ListIndex());
}

void frmTableEdit::PopulateTable() {
  lstTable.Clear();
  // Rows of one name keep their own IDs here, because Delete acts on the row that is seen.
  for (const TableItem& row : *editTable_) lstTable.AddRow(row.Name, row.ID);
  cmdAdd.setEnabled(false);
  RefreshTableButtons();
  if (lstTable.ListCount() == 0) txtName.setFocus();
}

void frmTableEdit::RefreshTableButtons() {
  const bool selected = lstTable.ListIndex() != -1;
  cmdDelete.setEnabled(selected);
  cmdEdit.setEnabled(selected);
  const bool rows = lstTable.ListCount() > 0;
  cmdDeleteUnused.setEnabled(rows);
  cmdPrint.setEnabled(rows);
}

void frmTableEdit::AddRow() {
  const std::string name = WithoutBlanks(FromQString(txtName.text()));
  txtName.setText(ToQString(name));
  if (!MayAdd(name)) {
    FocusWholeText(txtName);
    return;
  }
  const TableItem& row = AddTableItem(tableType, name);
  lstTable.scrollToItem(lstTable.item(lstTable.AddRow(row.Name, row.ID)));
  doors_.shell.SetModified(true, nullptr);
  txtName.clear();
  // The button is grey now, and the next name can follow.
  txtName.setFocus();
  RefreshTableButtons();
}

bool frmTableEdit::MayAdd(const std::string& name) {
  if (tableType == kFlagTable && !IsValidName(name)) {
    Show("", "Flag names can only consist of letters, digits, underscore (_) and dash (-).",
         MessageBox::Icon::None);
    return false;
  }
  if (IsNameTaken(*editTable_, name)) {
    Show("Duplicate Entry",
         "A table item with this name already exists, please choose a unique name.",
         MessageBox::Icon::Exclamation);
    return false;
  }
  return true;
}

void frmTableEdit::RenameRow() {
  const int index = lstTable.ListIndex();
  if (index == -1) return;
  TableItem& row = editTable_->At(lstTable.ItemData(index));
  frmEditValue dialog(this);
  dialog.SetCaptions("Edit " + RowCaption(), RowCaption() + " Name");
  dialog.SetEditValue(row.Name);
  dialog.exec();
  if (dialog.modalResult == 0) {
    // Meant: the name is not tested, and the row stays at its place in the list.
    row.Name = dialog.EditValue();
    lstTable.SetList(index, row.Name);
  }
  // Meant: also after Cancel.
  doors_.shell.SetModified(true, nullptr);
}

void frmTableEdit::DeleteRow() {
  const int index = lstTable.ListIndex();
  if (index == -1) return;
  const std::int32_t id = lstTable.ItemData(index);
  if (doors_.shell.IsTableItemReferenced(id, tableType)) {
    RefuseRemoval();
    return;
  }
  RemoveTableItem(tableType, id, lstTable.List(index));
  lstTable.RemoveItem(index);
  ReselectListIndex(lstTable, index);
  doors_.shell.SetModified(true, nullptr);
  RefreshTableButtons();
}

void frmTableEdit::RefuseRemoval() {
  const Answer answer =
      Show("Cannot Remove Item",
           "This Item cannot be removed because it is referenced in at least one conversation.  "
           "You must first remove the references.\n\n"
           "Would you like to see the conversations the item is referenced in?",
           MessageBox::Icon::Question, MessageBox::Buttons::YesNo);
  if (answer != Answer::Yes) return;
  Show("Sorry!", "Sorry, ain't gonna' happen.  Maybe after E3.", MessageBox::Icon::Critical);
}

void frmTableEdit::DeleteUnused() {
  const Answer answer =
      Show("Remove Unused Entries?", "Are you sure you wish to remove any unused table entries?",
           MessageBox::Icon::Question, MessageBox::Buttons::YesNo);
  if (answer != Answer::Yes) return;
  // Not the dialog's own way to hide, which would end it.
  QWidget::setVisible(false);  // NOLINT(bugprone-parent-virtual-call)
  const int removed = RemoveUnusedRows();
  QWidget::setVisible(true);  // NOLINT(bugprone-parent-virtual-call)
  activateWindow();
  RefreshTableButtons();
  Show("Table Cleaned", std::to_string(removed) + " table entries were removed.",
       MessageBox::Icon::None);
}

int frmTableEdit::RemoveUnusedRows() {
  const int count = lstTable.ListCount();
  doors_.progress.Begin("Progress", "Removing Table Entries...", count);
  // One walk over the file for all rows, where asking for each would take as many walks.
  const IDSet used = doors_.shell.ReferencedTableItems(tableType);
  IDSet unused;
  int removed = 0;
  int last = -1;
  for (int index = count - 1; index >= 0; --index) {
    const std::string name = lstTable.List(index);
    const std::int32_t id = lstTable.ItemData(index);
    doors_.progress.StepBelow(name, count - index);
    if (used.Contains(id)) continue;
    unused.Add(id);
    if (editTable_->Find(id) == nullptr) RemoveTableItemByName(tableType, name);
    lstTable.RemoveItem(index);
    last = index;
    ++removed;
  }
  RemoveTableItems(tableType, unused);
  if (removed > 0) ReselectListIndex(lstTable, last);
  doors_.progress.End();
  return removed;
}

Answer frmTableEdit::Show(const std::string& title, const std::string& text, MessageBox::Icon icon,
                          MessageBox::Buttons buttons) {
  return doors_.messages.Show({title, text, icon, buttons});
}

std::string frmTableEdit::RowCaption() const { return tableName_.substr(0, tableName_.size() - 1); }

bool frmTableEdit::eventFilter(QObject* watched, QEvent* event) {
  const bool inName = watched == &txtName;
  if ((watched != &lstTable && !inName) || event->type() != QEvent::KeyPress) {
    return QDialog::eventFilter(watched, event);
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  if ((key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  // In the name the Delete key is the field's own.
  const bool deletes = key->key() == Qt::Key_Delete && !inName;
  if (deletes) cmdDelete.click();
  if (key->key() == Qt::Key_Insert) cmdAdd.click();
  return deletes || key->key() == Qt::Key_Insert;
}

void frmTableEdit::reject() {
  if (tableType == kActorTable) doors_.shell.TreeViewUpdateActors();
  if (tableType == kFlagTable) doors_.shell.TreeViewUpdateFlagNames();
  QDialog::reject();
}

}  // namespace parlate
