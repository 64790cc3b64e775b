#pragma once

#include <QComboBox>
#include <QCompleter>
#include <cstdint>
#include <optional>
#include <string>

#include "model/Controls.h"
#include "platform/ComboRows.h"

namespace parlate {

/// A combo box whose text can be typed, as the model asks for it. Rows are added, removed and
/// selected through the operations of parlate::ComboBox alone.
///
/// Typing offers the rows that begin with the text, whatever their case, in a popup, and never
/// changes what was typed: whether a typed name is a row is decided by its exact letters, and not
/// here. Text is kept to the code page.
class QtComboBox final : public QComboBox, public ComboBox {
  Q_OBJECT

 public:
  explicit QtComboBox(QWidget* parent = nullptr, RowOrder order = RowOrder::AsAdded);

  /// Leaves nothing to type: the text is that of the selected row, or none.
  void MakeListOnly();

  void Clear() override;
  /// Adds a row with the number 0 behind it. Neither the text nor the selected row changes.
  void AddItem(const std::string& text) override;
  [[nodiscard]] int ListCount() const override { return rows_.Count(); }
  /// As AddItem, at a place of its own.
  void InsertItem(const std::string& text, int index) override;
  /// Removes a row; without one at that index nothing happens. The text stays, also that of the
  /// row itself.
  void RemoveItem(int index) override;
  /// The text of a row, empty for an index without one.
  [[nodiscard]] std::string List(int index) const override;
  /// The number behind a row, 0 for an index without one.
  [[nodiscard]] std::int32_t ItemData(int index) const override;
  void SetItemData(int index, std::int32_t value) override;
  /// The selected row; -1 after a text was typed or set, even if a row has the same text.
  [[nodiscard]] int ListIndex() const override;
  /// Selects a row and shows its text; -1 empties the text. An index without a row counts as -1.
  void SetListIndex(int index) override;
  [[nodiscard]] std::string Text() const override;
  /// A list-only combo selects the row of that text, or none.
  void SetText(const std::string& text) override;
  void SelectText(int start, int length) override;
  /// Turns to the combo's page first if it stands in a tabbed form.
  void SetFocus() override;
  /// Also on a page of a tabbed form that is turned away; not in a panel that is hidden.
  [[nodiscard]] bool Visible() const override;

  void showPopup() override;

 signals:
  /// ListIndex or the text changed, by hand or by the program.
  void choiceChanged();

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// Tells the toolkit of rows that were added. The choice stays as it is.
  void TellRows();
  /// The toolkit would select the first row of all, and show it.
  void TellFirstRows();
  void TakeAsTyped();
  void TellIfChanged();

  ComboRows rows_;
  QCompleter completer_;
  std::optional<QString> typed_;  ///< The text that was typed or set, until a row is selected.
  bool adding_ = false;
  int toldIndex_ = -1;
  QString toldText_;
};

}  // namespace parlate
