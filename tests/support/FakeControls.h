#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/Controls.h"

namespace parlate::testing_support {

struct FakeRow {
  std::string text;
  std::int32_t itemData = 0;
  bool selected = false;

  bool operator==(const FakeRow&) const = default;
};

/// A list of rows in memory.
class FakeListBox final : public ListBox {
 public:
  FakeListBox() = default;
  explicit FakeListBox(std::vector<FakeRow> newRows) : rows(std::move(newRows)) {}

  void Clear() override { rows.clear(); }
  void AddItem(const std::string& text) override { rows.push_back({text}); }
  [[nodiscard]] int ListCount() const override { return static_cast<int>(rows.size()); }
  [[nodiscard]] std::string List(int index) const override { return At(index).text; }
  [[nodiscard]] std::int32_t ItemData(int index) const override { return At(index).itemData; }
  void SetItemData(int index, std::int32_t value) override {
    rows.at(static_cast<std::size_t>(index)).itemData = value;
  }
  [[nodiscard]] bool Selected(int index) const override { return At(index).selected; }

  std::vector<FakeRow> rows;

 private:
  [[nodiscard]] const FakeRow& At(int index) const {
    return rows.at(static_cast<std::size_t>(index));
  }
};

/// A combo box in memory. A sorted one puts each new entry at its place, as the control can.
class FakeComboBox final : public ComboBox {
 public:
  void Clear() override {
    entries.clear();
    selected = -1;
  }
  void AddItem(const std::string& newText) override {
    auto at = entries.end();
    if (sorted) {
      at = entries.begin();
      while (at != entries.end() && at->text <= newText) ++at;
    }
    entries.insert(at, FakeRow{newText});
  }
  void InsertItem(const std::string& newText, int index) override {
    entries.insert(entries.begin() + index, FakeRow{newText});
    if (selected >= index) ++selected;
  }
  void RemoveItem(int index) override {
    entries.erase(entries.begin() + index);
    if (selected == index) selected = -1;
    if (selected > index) --selected;
  }
  [[nodiscard]] int ListCount() const override { return static_cast<int>(entries.size()); }
  [[nodiscard]] std::string List(int index) const override {
    return entries.at(static_cast<std::size_t>(index)).text;
  }
  [[nodiscard]] std::int32_t ItemData(int index) const override {
    return entries.at(static_cast<std::size_t>(index)).itemData;
  }
  void SetItemData(int index, std::int32_t value) override {
    entries.at(static_cast<std::size_t>(index)).itemData = value;
  }
  [[nodiscard]] int ListIndex() const override { return selected; }
  void SetListIndex(int index) override { selected = index; }
  [[nodiscard]] std::string Text() const override { return text; }
  void SetText(const std::string& newText) override { text = newText; }
  void SelectText(int start, int length) override {
    selectionStart = start;
    selectionLength = length;
  }
  void SetFocus() override { focused = true; }
  [[nodiscard]] bool Visible() const override { return visible; }

  std::vector<FakeRow> entries;
  int selected = -1;
  std::string text;
  int selectionStart = -1;
  int selectionLength = -1;
  bool focused = false;
  bool visible = true;
  bool sorted = false;
};

/// A combo box that shows one entry with a number behind it.
inline FakeComboBox ComboShowing(std::int32_t itemData, int index = 0) {
  FakeComboBox combo;
  combo.entries.resize(static_cast<std::size_t>(index) + 1);
  combo.entries.back() = {"entry", itemData};
  combo.selected = index;
  return combo;
}

}  // namespace parlate::testing_support
