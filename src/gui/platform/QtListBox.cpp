#include "platform/QtListBox.h"

#include <memory>

#include "widgets/CodePageText.h"

namespace parlate {

QtListBox::QtListBox(QWidget* parent, RowOrder order) : QListWidget(parent), order_(order) {
  // Rows are all of one height, which saves measuring every one of a long list.
  setUniformItemSizes(true);
}

int QtListBox::AddRow(const std::string& text, std::int32_t itemData) {
  const int row = IndexForNewRow(order_, count(), text, [this](int index) { return List(index); });
  insertItem(row, ToQString(text));
  SetItemData(row, itemData);
  return row;
}

std::string QtListBox::List(int index) const {
  const QListWidgetItem* row = item(index);
  return row == nullptr ? std::string() : FromQString(row->text());
}

std::int32_t QtListBox::ItemData(int index) const {
  const QListWidgetItem* row = item(index);
  return row == nullptr ? 0 : row->data(Qt::UserRole).toInt();
}

void QtListBox::SetItemData(int index, std::int32_t value) {
  if (QListWidgetItem* row = item(index)) row->setData(Qt::UserRole, value);
}

void QtListBox::SetList(int index, const std::string& text) {
  if (QListWidgetItem* row = item(index)) row->setText(ToQString(text));
}

bool QtListBox::Selected(int index) const {
  const QListWidgetItem* row = item(index);
  return row != nullptr && row->isSelected();
}

void QtListBox::SetSelected(int index, bool selected) {
  if (QListWidgetItem* row = item(index)) row->setSelected(selected);
}

void QtListBox::RemoveItem(int index) {
  const std::unique_ptr<QListWidgetItem> removed(takeItem(index));
}

}  // namespace parlate
