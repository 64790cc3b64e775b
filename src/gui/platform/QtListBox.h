#pragma once

#include <QListWidget>
#include <cstdint>
#include <string>

#include "model/Controls.h"
#include "platform/RowOrder.h"

namespace parlate {

/// A list of rows of one text, each with a number behind it, as the model asks for it.
class QtListBox final : public QListWidget, public ListBox {
  Q_OBJECT

 public:
  explicit QtListBox(QWidget* parent = nullptr, RowOrder order = RowOrder::AsAdded);

  void Clear() override { clear(); }
  /// Adds a row with the number 0 behind it. What is selected stays so.
  void AddItem(const std::string& text) override { AddRow(text, 0); }
  /// Adds a row with that number behind it and returns its index.
  int AddRow(const std::string& text, std::int32_t itemData);
  [[nodiscard]] int ListCount() const override { return count(); }
  /// The text of a row, empty for an index without one.
  [[nodiscard]] std::string List(int index) const override;
  /// The number behind a row, 0 for an index without one.
  [[nodiscard]] std::int32_t ItemData(int index) const override;
  void SetItemData(int index, std::int32_t value) override;
  [[nodiscard]] bool Selected(int index) const override;
  /// Takes a row into the selection or out of it. In a list of single selection it is the only one.
  void SetSelected(int index, bool selected);
  /// Removes a row; without one at that index nothing happens.
  void RemoveItem(int index);
  /// Changes the text of a row, which stays where it is; without one at that index nothing happens.
  void SetList(int index, const std::string& text);
  /// The row that has the focus and is selected, -1 for none: the focus alone does not select.
  [[nodiscard]] int ListIndex() const { return Selected(currentRow()) ? currentRow() : -1; }
  void SetListIndex(int index) { setCurrentRow(index); }

 private:
  RowOrder order_;
};

}  // namespace parlate
