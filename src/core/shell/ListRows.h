#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace parlate {

/// One row of a multi-column list, as plain texts and numbers.
struct ListRow {
  std::string text;            ///< The columns, split at ";"; code-page text.
  std::string subText;         ///< Second text under the row; lines split at "\r". Empty for none.
  std::int32_t itemData = -1;  ///< Key of the event, ID of the table row, or -1.
  std::int32_t color = -1;     ///< 24-bit blue-green-red, or -1 for the list's default.
};

/// What a view of ListRows is told. Every call comes after the change.
class ListRowsListener {
 public:
  virtual ~ListRowsListener() = default;
  virtual void RowsReset() = 0;
  virtual void RowInserted(std::size_t index) = 0;
  virtual void RowRemoved(std::size_t index) = 0;
  virtual void RowTextChanged(std::size_t index) = 0;  ///< Text or sub-text: the height may change.
  virtual void RowColorChanged(std::size_t index) = 0;  ///< Only a repaint is due.
  virtual void ListIndexChanged() = 0;
};

/// The rows of a multi-column list and the one selected among them, without a toolkit.
/// Indices are zero-based; a bad index is RuntimeError 9.
class ListRows {
 public:
  void SetListener(ListRowsListener* listener) { listener_ = listener; }

  [[nodiscard]] std::size_t ListCount() const { return rows_.size(); }
  [[nodiscard]] const ListRow& Row(std::size_t index) const;

  /// Index of the selected row, -1 for none.
  [[nodiscard]] std::int32_t ListIndex() const { return listIndex_; }
  /// Selects a row, or none with -1. The listener hears of it only when the index changes.
  void SetListIndex(std::int32_t index);

  /// Appends; returns the new row's index.
  std::size_t AddItem(ListRow row);
  /// Inserts ahead of `index`; the selection stays with its row. Returns the new row's index.
  std::size_t InsertItem(ListRow row, std::size_t index);
  /// Removes a row; removing the selected row leaves no selection.
  void RemoveItem(std::size_t index);
  /// Removes the selected row, if any, and selects the row that moved up, else the last one. On the
  /// way there is never no selection as long as a row is left.
  void RemoveSelectedItem();
  /// Replaces all rows at once and drops the selection: one reset instead of a call a row.
  void Assign(std::vector<ListRow> rows);
  void Clear() { Assign({}); }

  void SetText(std::size_t index, std::string text);
  void SetSubText(std::size_t index, std::string subText);
  /// The number behind a row shows nowhere, so the listener does not hear of it.
  void SetItemData(std::size_t index, std::int32_t value);
  void SetColor(std::size_t index, std::int32_t color);

 private:
  void ChangeListIndex(std::int32_t index);

  std::vector<ListRow> rows_;
  std::int32_t listIndex_ = -1;
  ListRowsListener* listener_ = nullptr;
};

/// Keeps a selection in a list after the row at `index` went: the row that moved up, else the last
/// one.
template <class List>
void ReselectListIndex(List& list, std::int32_t index) {
  const auto count = static_cast<std::int32_t>(list.ListCount());
  if (count > index) {
    list.SetListIndex(index);
  } else if (count > 0) {
    list.SetListIndex(index - 1);
  }
}

}  // namespace parlate
