// New files and conversations, their properties, and the search.

#include <QApplication>
#include <QFileDialog>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMessageBox>

#include "mainwindow/frmConvList.h"
#include "platform/ScreenPlacement.h"

namespace parlate {

namespace {

bool IsFindKey(const QEvent& event) {
  if (event.type() != QEvent::ShortcutOverride) return false;
  const auto& key = static_cast<const QKeyEvent&>(event);
  return key.key() == Qt::Key_F && key.modifiers() == Qt::ControlModifier;
}

}  // namespace

void frmConvList::ConnectPropertiesCommands() {
  const auto newFile = [this] { shell_.NewConFile(); };
  const auto add = [this] { shell_.AddConversation(); };
  const auto properties = [this] { shell_.EditConversationProperties(0); };
  On("mnuFileNew", newFile);
  On("tlbCon/New", newFile);
  On("mnuFileProperties", [this] { ShowFileProperties(); });
  On("mnuConAdd", add);
  On("mnuConPopupAdd", add);
  for (const char* name : {"mnuConProperties", "mnuConPopupProperties", "tlbCon/Properties"}) {
    On(name, properties);
  }
  On("mnuFlagPopupAdd", [this] { shell_.AddFlags(); });
  On("mnuFlagPopupEdit", [this] { shell_.EditConversationProperties(1); });
}

void frmConvList::ConnectFind() {
  On("mnuConFind", [this] { ShowFind(); });
  On("tlbCon/Find", [this] { ShowFind(); });
  connect(&cboFind_, &QComboBox::activated, this, &frmConvList::FindQuickly);
  connect(cboFind_.lineEdit(), &QLineEdit::returnPressed, this, [this] {
    if (cboFind_.Text().empty()) return;
    AddComboHistory(cboFind_);
    FindQuickly();
  });
  cboFind_.installEventFilter(this);
}

bool frmConvList::event(QEvent* event) {
  // The key goes to the quick box, ahead of the command that bears it as its shortcut.
  if (IsFindKey(*event) && cboFind_.isEnabled()) FocusFindBox();
  return QMainWindow::event(event);
}

void frmConvList::FocusFindBox() {
  // A toolbar that the user hid stays hidden; the dialog comes alone.
  if (tlbCon_.isHidden()) return;
  // In a window too narrow for the box nothing may be typed into the tree, where letters cut.
  if (!cboFind_.isVisible()) {
    lstEvents_.setFocus();
    return;
  }
  cboFind_.setFocus(Qt::ShortcutFocusReason);
  cboFind_.lineEdit()->selectAll();
}

void frmConvList::ShowFind() {
  if (!find_) {
    find_ = std::make_unique<frmFind>(shell_, this);
    connect(find_.get(), &frmFind::Hit, this, &frmConvList::MoveFindOffTheHit);
  }
  LeaveQuickSearch();
  find_->exec();
}

void frmConvList::MoveFindOffTheHit() {
  const QWidget& area = *lstEvents_.viewport();
  const QRect row = lstEvents_.RowRect(lstEvents_.Rows().ListIndex()) & area.rect();
  const QRect onScreen(area.mapToGlobal(row.topLeft()), row.size());
  find_->move(ClearOf(find_->frameGeometry(), onScreen).topLeft());
}

void frmConvList::FindQuickly() {
  searchedQuickly_ = true;
  if (!shell_.FindText(cboFind_, false, false, false, 0)) shell_.ResetSearch();
}

void frmConvList::LeaveQuickSearch() {
  // The dialog keeps its place until the window goes, whoever had the focus since.
  if (searchedQuickly_) shell_.ResetSearch();
  searchedQuickly_ = false;
}

void frmConvList::FindBoxWindowLeft() {
  // From another program, and from what the search itself shows, the focus comes back to the box.
  const QWidget* active = QApplication::activeWindow();
  if (active == nullptr || active == this || active == find_.get()) return;
  const bool asks = qobject_cast<const QMessageBox*>(active) != nullptr ||
                    qobject_cast<const QFileDialog*>(active) != nullptr;
  if (!asks) LeaveQuickSearch();
}

bool frmConvList::FindBoxEvent(QEvent* event) {
  // A turn of the wheel over the box would choose an entry, and search.
  if (event->type() == QEvent::Wheel) return true;
  if (event->type() != QEvent::FocusOut) return false;
  switch (static_cast<QFocusEvent*>(event)->reason()) {
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
      return false;  // the focus comes back by itself
    case Qt::ActiveWindowFocusReason:
      // Which window is the active one now shows in a moment.
      QMetaObject::invokeMethod(this, &frmConvList::FindBoxWindowLeft, Qt::QueuedConnection);
      return false;
    default:
      LeaveQuickSearch();
      return false;
  }
}

}  // namespace parlate
