#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cstdint>
#include <string>

namespace parlate {

/// Asks for a single text, which must not be empty.
class frmEditValue : public QDialog {
  Q_OBJECT

 public:
  explicit frmEditValue(QWidget* parent = nullptr);

  std::int32_t modalResult = 1;  ///< 0 after OK, 1 after Cancel or when the window is closed.

  /// What the dialog is called and what it asks for.
  void SetCaptions(const std::string& caption, const std::string& description);
  [[nodiscard]] std::string EditValue() const;
  /// Shows the text with the caret behind it.
  void SetEditValue(const std::string& value);

  void setVisible(bool visible) override;

 public slots:
  void accept() override;
  void reject() override;

 private:
  void SetUpControls();
  void BuildLayout();

  // In the order in which Tab visits them.
  QLabel lblDesc{this};
  QLineEdit txtValue{this};
  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate
