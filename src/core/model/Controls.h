#pragma once

#include <cstdint>
#include <string>

namespace parlate {

/// What the model asks of a combo box with an editable text. Texts are code-page text; indices are
/// zero-based and -1 means none.
class ComboBox {
 public:
  virtual ~ComboBox() = default;
  virtual void Clear() = 0;
  virtual void AddItem(const std::string& text) = 0;
  /// Puts an entry ahead of the one at `index`, also in a control that sorts its entries.
  virtual void InsertItem(const std::string& text, int index) = 0;
  virtual void RemoveItem(int index) = 0;
  [[nodiscard]] virtual int ListCount() const = 0;
  [[nodiscard]] virtual std::string List(int index) const = 0;
  [[nodiscard]] virtual std::int32_t ItemData(int index) const = 0;
  virtual void SetItemData(int index, std::int32_t value) = 0;
  [[nodiscard]] virtual int ListIndex() const = 0;
  virtual void SetListIndex(int index) = 0;
  [[nodiscard]] virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
  virtual void SelectText(int start, int length) = 0;
  virtual void SetFocus() = 0;
  [[nodiscard]] virtual bool Visible() const = 0;
};

/// What the model asks of a list of rows, each with a number behind it.
class ListBox {
 public:
  virtual ~ListBox() = default;
  virtual void Clear() = 0;
  virtual void AddItem(const std::string& text) = 0;
  [[nodiscard]] virtual int ListCount() const = 0;
  [[nodiscard]] virtual std::string List(int index) const = 0;
  [[nodiscard]] virtual std::int32_t ItemData(int index) const = 0;
  virtual void SetItemData(int index, std::int32_t value) = 0;
  [[nodiscard]] virtual bool Selected(int index) const = 0;
};

}  // namespace parlate
