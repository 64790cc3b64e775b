#include "mainwindow/frmProgress.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/EndSignals.h"
#include "platform/FormControls.h"
#include "platform/TwipsConversion.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

constexpr int kWidth = 5700;
constexpr int kOneBarHeight = 1590;
constexpr int kTwoBarsHeight = 2475;
constexpr int kPaintEveryMs = 16;

void SetBarTop(QProgressBar& bar, int top) {
  // A bar from 0 to 0 would run to and fro for ever.
  bar.setRange(0, std::max(top, 1));
}

void ShowStep(QLabel& label, QProgressBar& bar, const std::string& text, int value) {
  const QString shown = ToQString(text);
  if (label.text() != shown) label.setText(shown);
  bar.setValue(std::clamp(value, bar.minimum(), bar.maximum()));
}

}  // namespace

frmProgress::frmProgress(QWidget* parent) : QDialog(parent) {
  SetUpControls();
  auto* form = new QVBoxLayout(this);
  form->addStretch();
  form->addWidget(&lblText);
  form->addWidget(&barProgress);
  form->addSpacing(4);
  form->addWidget(&lblText2);
  form->addWidget(&barProgress2);
  form->addStretch();
  SetBarCount(1);
}

void frmProgress::SetUpControls() {
  NameControl(*this, "frmProgress", QStringLiteral("Progress"));
  setWindowTitle(QStringLiteral("Progress"));
  setModal(false);
  setAttribute(Qt::WA_QuitOnClose, false);
  // The focus stays where the user left it.
  setAttribute(Qt::WA_ShowWithoutActivating);
  SetUpLabel(lblText, "lblText", QString());
  SetUpLabel(lblText2, "lblText2", QString());
  NameControl(barProgress, "barProgress", QStringLiteral("Progress"));
  NameControl(barProgress2, "barProgress2", QStringLiteral("Second progress"));
  for (QLabel* label : {&lblText, &lblText2}) {
    // A long name is cut off at the edge and does not widen the window in mid-walk.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  }
  for (QProgressBar* bar : {&barProgress, &barProgress2}) {
    SetBarTop(*bar, 1);
    bar->setValue(0);
  }
}

void frmProgress::SetBarCount(int count) {
  if (count != 1 && count != 2) return;
  lblText2.setVisible(count == 2);
  barProgress2.setVisible(count == 2);
  // Otherwise the height that two bars need would still be the least.
  layout()->activate();
  resize(PixelsFromTwips(kWidth), PixelsFromTwips(count == 2 ? kTwoBarsHeight : kOneBarHeight));
}

void frmProgress::Begin(const std::string& caption, const std::string& text, int top) {
  setWindowTitle(ToQString(caption));
  setAccessibleName(ToQString(caption));
  SetBarTop(barProgress, top);
  ShowStep(lblText, barProgress, text, 0);
  show();
  PaintNow();
}

void frmProgress::SetTop(int top) {
  SetBarTop(barProgress, top);
  PaintIfDue();
}

void frmProgress::Step(const std::string& text, int value) {
  ShowStep(lblText, barProgress, text, value);
  PaintIfDue();
}

void frmProgress::StepBelow(const std::string& text, int value) {
  lblText2.setVisible(true);
  barProgress.setValue(std::clamp(value, barProgress.minimum(), barProgress.maximum()));
  lblText2.setText(ToQString(text));
  PaintIfDue();
}

void frmProgress::SetTop2(int top) {
  SetBarTop(barProgress2, top);
  PaintIfDue();
}

void frmProgress::Step2(const std::string& text, int value) {
  ShowStep(lblText2, barProgress2, text, value);
  PaintIfDue();
}

void frmProgress::End() {
  setUpdatesEnabled(true);
  const bool wasActive = isActiveWindow();
  hide();
  // A text that stood under the one bar was that of this walk alone.
  if (barProgress2.isHidden()) {
    lblText2.clear();
    lblText2.hide();
  }
  // Where the platform made the dialog active all the same, the keys go back to the window.
  if (wasActive && parentWidget() != nullptr) parentWidget()->window()->activateWindow();
}

void frmProgress::LetRepaint() {
  if (sinceRepaint_.isValid() && !sinceRepaint_.hasExpired(kPaintEveryMs)) return;
  LetInterfacePaint();
  sinceRepaint_.start();
}

void frmProgress::PaintIfDue() {
  if (isVisible() && sincePaint_.hasExpired(kPaintEveryMs)) PaintNow();
}

void frmProgress::PaintNow() {
  setUpdatesEnabled(true);
  LetInterfacePaint();
  // A bar paints itself with every value it is given; now it waits until the next paint is due.
  setUpdatesEnabled(false);
  sincePaint_.start();
  if (lastStateDue_) return;
  // Comes with the next paint, or when the walk has returned to the event loop.
  lastStateDue_ = true;
  QMetaObject::invokeMethod(this, &frmProgress::PaintLastState, Qt::QueuedConnection);
}

void frmProgress::PaintLastState() {
  lastStateDue_ = false;
  setUpdatesEnabled(true);
}

void frmProgress::LetInterfacePaint() {
  // Keys and clicks wait, but a request to close a window or to end the program counts as neither.
  qApp->installEventFilter(this);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  qApp->removeEventFilter(this);
}

bool frmProgress::eventFilter(QObject* watched, QEvent* event) {
  // The walk is in the middle of the file that a closing window would drop.
  const bool closes = event->type() == QEvent::Close && event->spontaneous();
  if (!closes && event->type() != EndRequest::EventType()) {
    return QDialog::eventFilter(watched, event);
  }
  event->ignore();
  return true;
}

}  // namespace parlate
