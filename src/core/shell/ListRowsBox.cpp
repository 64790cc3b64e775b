#include "shell/ListRowsBox.h"

namespace parlate {

void ListRowsBox::AddItem(const std::string& text) {
  rows_.AddItem({.text = text, .subText = {}, .itemData = 0, .color = -1});
}

void ListRowsBox::SetItemData(int index, std::int32_t value) {
  rows_.SetItemData(static_cast<std::size_t>(index), value);
}

}  // namespace parlate
