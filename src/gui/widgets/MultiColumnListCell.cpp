#include "widgets/MultiColumnListCell.h"

namespace parlate {

namespace {

QString JoinedDescription(const QString& meaning, const QString& subText) {
  if (meaning.isEmpty()) return subText;
  return subText.isEmpty() ? meaning : meaning + u'\n' + subText;
}

}  // namespace

QString MultiColumnListCell::text(QAccessible::Text which) const {
  if (!isValid()) return {};
  if (row_ == kHeadRow) return which == QAccessible::Name ? list_->Head(column_) : QString();
  if (which == QAccessible::Name) return list_->CellText(row_, column_);
  if (which != QAccessible::Description) return {};
  const ListRow& row = list_->Rows().Row(static_cast<std::size_t>(row_));
  const QString subText = column_ == 0 ? list_->SubText(row_) : QString();
  return JoinedDescription(list_->ColorMeaning(row.color), subText);
}

QRect MultiColumnListCell::rect() const {
  if (!isValid()) return {};
  const QRect rect =
      row_ == kHeadRow
          ? list_->HeadRect(column_)
          : list_->CellRect(list_->RowRect(row_), column_).intersected(list_->viewport()->rect());
  return {list_->viewport()->mapToGlobal(rect.topLeft()), rect.size()};
}

QAccessible::State MultiColumnListCell::state() const {
  QAccessible::State state;
  state.invalid = !isValid();
  if (!isValid()) return state;
  state.disabled = !list_->isEnabled();
  state.invisible = !list_->isVisible();
  if (row_ == kHeadRow) return state;
  state.selectable = true;
  state.focusable = true;
  state.selected = isSelected();
  state.focused = isSelected() && list_->hasFocus();
  state.offscreen =
      !list_->CellRect(list_->RowRect(row_), column_).intersects(list_->viewport()->rect());
  return state;
}

void* MultiColumnListCell::interface_cast(QAccessible::InterfaceType type) {
  if (row_ == kHeadRow) return nullptr;
  if (type == QAccessible::TableCellInterface) {
    return static_cast<QAccessibleTableCellInterface*>(this);
  }
  if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
  return nullptr;
}

QList<QAccessibleInterface*> MultiColumnListCell::columnHeaderCells() const {
  QAccessibleInterface* const list = parent();
  if (list == nullptr || !isValid()) return {};
  return {list->child(column_)};
}

QStringList MultiColumnListCell::actionNames() const { return {setFocusAction(), pressAction()}; }

void MultiColumnListCell::doAction(const QString& name) {
  if (!isValid() || !list_->isEnabled()) return;
  if (name == setFocusAction()) {
    list_->setFocus(Qt::OtherFocusReason);
    list_->Rows().SetListIndex(row_);
  } else if (name == pressAction()) {
    list_->Activate(row_);
  }
}

}  // namespace parlate
