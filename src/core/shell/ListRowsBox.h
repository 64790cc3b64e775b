#pragma once

#include <cstdint>
#include <string>

#include "model/Controls.h"
#include "shell/ListRows.h"

namespace parlate {

/// The rows of a multi-column list as the model fills and reads a list. The selected row is the
/// only one that counts as selected.
class ListRowsBox final : public ListBox {
 public:
  explicit ListRowsBox(ListRows& rows) : rows_(rows) {}

  void Clear() override { rows_.Clear(); }
  void AddItem(const std::string& text) override;
  [[nodiscard]] int ListCount() const override { return static_cast<int>(rows_.ListCount()); }
  [[nodiscard]] std::string List(int index) const override { return Row(index).text; }
  [[nodiscard]] std::int32_t ItemData(int index) const override { return Row(index).itemData; }
  void SetItemData(int index, std::int32_t value) override;
  [[nodiscard]] bool Selected(int index) const override { return index == rows_.ListIndex(); }

 private:
  [[nodiscard]] const ListRow& Row(int index) const {
    return rows_.Row(static_cast<std::size_t>(index));
  }

  ListRows& rows_;
};

}  // namespace parlate
