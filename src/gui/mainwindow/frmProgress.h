#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>

#include "general/Prompts.h"

namespace parlate {

/// The small window that shows how far a long walk has come. It blocks nothing: between two steps
/// the interface repaints, but neither keys nor clicks reach it, and no window can be closed.
///
/// Steps are cheap. The window is painted at most some sixty times a second, and whatever step came
/// last is painted when the walk is over, also when it ended early and left the window standing.
class frmProgress : public QDialog, public ProgressDisplay {
  Q_OBJECT

 public:
  explicit frmProgress(QWidget* parent = nullptr);

  /// 1 shows the first text and bar alone, 2 shows both pairs; any other number changes nothing.
  void SetBarCount(int count);

  void Begin(const std::string& caption, const std::string& text, int top) override;
  void SetTop(int top) override;
  void Step(const std::string& text, int value) override;
  void StepBelow(const std::string& text, int value) override;
  void End() override;
  void LetRepaint() override;

  /// The same for the second text and bar.
  void SetTop2(int top);
  void Step2(const std::string& text, int value);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetUpControls();
  void PaintIfDue();
  void PaintNow();
  void PaintLastState();
  void LetInterfacePaint();

  QLabel lblText{this};
  QProgressBar barProgress{this};
  QLabel lblText2{this};
  QProgressBar barProgress2{this};
  QElapsedTimer sincePaint_;
  QElapsedTimer sinceRepaint_;  ///< Of the interface, with this window hidden.
  bool lastStateDue_ = false;
};

}  // namespace parlate
