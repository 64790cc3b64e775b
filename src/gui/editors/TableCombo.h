#pragma once

#include <QAbstractButton>
#include <QObject>
#include <cstdint>
#include <functional>

#include "platform/QtComboBox.h"

namespace parlate {

/// A combo box of table rows on a form, with the small button that edits its table: a typed name
/// that is no row is asked about when the combo loses the focus to another control or window of the
/// program.
class TableCombo : public QObject {
  Q_OBJECT

 public:
  /// `changed` runs after each change of the combo and after each of the steps above. The button
  /// and the combo must outlive the object, which is the form's.
  TableCombo(QtComboBox& combo, std::int32_t tableType, QAbstractButton& editButton,
             std::function<void()> changed);

  /// Whether the text is that of a row, which is selected then. Nobody is asked.
  [[nodiscard]] bool IsValid() const;

  /// Asks at once what would be asked after the present event, since the combo has lost the focus.
  void Leave();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void LostFocus();

  QtComboBox& combo_;
  std::int32_t tableType_;
  std::function<void()> changed_;
  bool left_ = false;    ///< The focus went, and nobody was asked yet.
  bool asking_ = false;  ///< The question itself takes the focus.
};

}  // namespace parlate
