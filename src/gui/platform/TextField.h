#pragma once

#include <QPlainTextEdit>
#include <string>

class QLineEdit;

namespace parlate {

/// A field for a text of several lines that goes to the file. Text is kept to the code page, and
/// Tab goes on to the next field.
///
/// A text may hold line ends of any kind. One that nobody edited is given back byte by byte; in an
/// edited one every line ends in CR LF.
class QtTextBox final : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit QtTextBox(QWidget* parent = nullptr);

  /// Shows a text of the code page. There is nothing to undo then.
  void SetText(const std::string& text);
  [[nodiscard]] std::string Text() const;
  [[nodiscard]] bool IsEmpty() const { return document()->isEmpty(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  std::string setText_;
  QString shown_;  ///< What the document holds while it is the text that was set.
};

/// Makes a line fit for any text of a file: kept to the code page, and of any length.
void SetUpTextLine(QLineEdit& line);

/// Drops every key press that would type a character which no name has. What is pasted stays.
void FilterNameKeys(QLineEdit& line);

}  // namespace parlate
