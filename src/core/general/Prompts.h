#pragma once

#include <memory>
#include <string>

namespace parlate {

class RuntimeError;

/// A synchronous message box. Texts are code-page text; a line feed breaks the line.
struct MessageBox {
  enum class Icon { None, Information, Question, Exclamation, Critical };
  enum class Buttons { Ok, YesNo, YesNoCancel };

  std::string title;
  std::string text;
  Icon icon = Icon::None;
  Buttons buttons = Buttons::Ok;
};

/// The box of an error that the user can do something about: "Error 6: Overflow".
[[nodiscard]] MessageBox BoxOf(const RuntimeError& error);

enum class Answer { Ok, Yes, No, Cancel };

/// The one door through which the program says and asks something.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual Answer Show(const MessageBox& box) = 0;
};

/// What a common file dialog is set up with. Texts are code-page text, paths the platform's.
struct FileDialog {
  std::string title;
  std::string filter;         ///< Pairs of caption and pattern, all split at "|".
  std::string initialFolder;  ///< Empty leaves the choice to the platform.
  std::string fileName;
  /// Whether a dialog for saving asks before it takes a file that exists.
  bool asksToReplace = true;
};

/// The one door to the common file dialogs. An empty result means that the user cancelled.
class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  virtual std::string ShowOpen(const FileDialog& dialog) = 0;
  virtual std::string ShowSave(const FileDialog& dialog) = 0;
};

class PrintSurface;

/// The one door to the system's printers.
class Printers {
 public:
  virtual ~Printers() = default;
  /// Lets the user choose a printer; nothing if the user cancelled. The choices of printing to a
  /// file, of a selection and of page numbers are not offered. Without a title the dialog bears the
  /// system's.
  virtual std::unique_ptr<PrintSurface> ShowPrinterDialog(const std::string& title) = 0;
};

/// The progress dialog of a long walk. It stays until it is closed, also when the walk fails.
class ProgressDisplay {
 public:
  virtual ~ProgressDisplay() = default;
  /// Shows the dialog without blocking and lets the interface repaint.
  virtual void Begin(const std::string& caption, const std::string& text, int top) = 0;
  virtual void SetTop(int top) = 0;
  /// Shows a text and a bar value from 0 to the top, and lets the interface repaint.
  virtual void Step(const std::string& text, int value) = 0;
  /// As `Step`, with the text on a line of its own under the bar; the first text stays.
  virtual void StepBelow(const std::string& text, int value) { Step(text, value); }
  virtual void End() = 0;
  /// Lets the interface repaint in a long walk that shows no dialog. Cheap enough to be called at
  /// every turn.
  virtual void LetRepaint() {}
};

}  // namespace parlate
