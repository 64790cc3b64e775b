#include "platform/QtComboBox.h"

#include <QLineEdit>
#include <QListView>
#include <QSignalBlocker>
#include <QTabWidget>
#include <limits>

#include "platform/CodePageInput.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

/// The tabs that this is a page of, if it is one.
QTabWidget* TabsOfPage(const QWidget& part) {
  const QWidget* pages = part.parentWidget();
  return pages == nullptr ? nullptr : qobject_cast<QTabWidget*>(pages->parentWidget());
}

}  // namespace

QtComboBox::QtComboBox(QWidget* parent, RowOrder order) : QComboBox(parent), rows_(order) {
  setModel(&rows_);
  connect(&rows_, &ComboRows::pendingRowsWanted, this, &QtComboBox::TellRows);
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  // The width comes from the form; measuring every row of a long table costs more than filling it.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(12);
  KeepToCodePage(*this);
  lineEdit()->setMaxLength(std::numeric_limits<int>::max());

  completer_.setCompletionMode(QCompleter::PopupCompletion);
  completer_.setCaseSensitivity(Qt::CaseInsensitive);
  setCompleter(&completer_);
  // Left to itself the toolkit selects the row of that name when the focus leaves, and takes its
  // case for that of the text.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);

  // The first to hear of a choice, so that every other slot finds ListIndex right.
  connect(this, &QComboBox::currentIndexChanged, this, [this] {
    if (adding_) return;
    typed_.reset();
    TellIfChanged();
  });
  connect(this, &QComboBox::activated, this, [this] {
    typed_.reset();
    TellIfChanged();
  });
  connect(lineEdit(), &QLineEdit::textEdited, this, &QtComboBox::TakeAsTyped);
  connect(lineEdit(), &QLineEdit::textChanged, this, &QtComboBox::TellIfChanged);
}

void QtComboBox::MakeListOnly() {
  typed_.reset();
  setEditable(false);
}

void QtComboBox::Clear() {
  typed_.reset();
  // Offers that nobody sees would be searched anew whenever rows come.
  completer_.setModel(nullptr);
  {
    const QSignalBlocker silence(this);
    const QSignalBlocker lineSilence(lineEdit());
    rows_.Clear();
    setCurrentIndex(-1);
    clearEditText();
  }
  TellIfChanged();
}

void QtComboBox::AddItem(const std::string& text) {
  // A row that is added ahead of the selected one moves it, which is no choice of the user's.
  adding_ = true;
  rows_.Add(text);
  adding_ = false;
  if (currentIndex() != -1) TellIfChanged();
}

void QtComboBox::InsertItem(const std::string& text, int index) {
  if (ListCount() == 0) {
    AddItem(text);
    return;
  }
  TellRows();
  const std::optional<QString> typed = typed_;
  adding_ = true;
  rows_.Insert(text, index);
  adding_ = false;
  typed_ = typed;
  if (currentIndex() != -1) TellIfChanged();
}

void QtComboBox::RemoveItem(int index) {
  if (rows_.At(index) == nullptr) return;
  TellRows();
  const bool selected = index == ListIndex();
  const std::optional<QString> typed = selected ? currentText() : typed_;
  {
    // The toolkit would select the neighbour of a row that goes.
    const QSignalBlocker silence(this);
    const QSignalBlocker lineSilence(lineEdit());
    const QString shown = currentText();
    if (index == currentIndex()) setCurrentIndex(-1);
    rows_.Remove(index);
    if (isEditable()) lineEdit()->setText(shown);
  }
  typed_ = typed;
  TellIfChanged();
}

void QtComboBox::TellRows() {
  if (rows_.FirstRowsPending()) {
    TellFirstRows();
  } else {
    rows_.TellPending();
  }
}

void QtComboBox::TellFirstRows() {
  const QSignalBlocker silence(this);
  if (!isEditable()) {
    rows_.TellPending();
    setCurrentIndex(-1);
    return;
  }
  QLineEdit& line = *lineEdit();
  const QSignalBlocker lineSilence(&line);
  const QString shown = line.text();
  const int caret = line.cursorPosition();
  const int selected = static_cast<int>(line.selectedText().size());
  const int start = line.selectionStart();
  rows_.TellPending();
  setCurrentIndex(-1);
  line.setText(shown);
  line.setCursorPosition(caret);
  // A selection ends at its caret, at whichever side that stands.
  if (selected > 0)
    line.setSelection(caret == start ? start + selected : start,
                      caret == start ? -selected : selected);
}

std::string QtComboBox::List(int index) const {
  const ComboRows::Row* row = rows_.At(index);
  return row == nullptr ? std::string() : row->text;
}

std::int32_t QtComboBox::ItemData(int index) const {
  const ComboRows::Row* row = rows_.At(index);
  return row == nullptr ? 0 : row->itemData;
}

void QtComboBox::SetItemData(int index, std::int32_t value) {
  if (ComboRows::Row* row = rows_.At(index)) row->itemData = value;
}

int QtComboBox::ListIndex() const {
  const bool typed = typed_ && *typed_ == currentText();
  return typed ? -1 : currentIndex();
}

void QtComboBox::SetListIndex(int index) {
  typed_.reset();
  const bool row = rows_.At(index) != nullptr;
  if (row) TellRows();
  setCurrentIndex(row ? index : -1);
  TellIfChanged();
}

std::string QtComboBox::Text() const { return FromQString(currentText()); }

void QtComboBox::SetText(const std::string& text) {
  if (!isEditable()) {
    int row = 0;
    while (row < ListCount() && rows_.At(row)->text != text) ++row;
    SetListIndex(row);
    return;
  }
  typed_ = ToQString(text);
  lineEdit()->setText(*typed_);
  TellIfChanged();
}

void QtComboBox::SelectText(int start, int length) {
  if (isEditable()) lineEdit()->setSelection(start, length);
}

void QtComboBox::SetFocus() {
  for (QWidget* part = this; !part->isWindow(); part = part->parentWidget()) {
    if (QTabWidget* tabs = TabsOfPage(*part)) tabs->setCurrentWidget(part);
  }
  setFocus(Qt::OtherFocusReason);
}

// Told here, rows do not come in the middle of a key press or while a list is laid out.
void QtComboBox::focusInEvent(QFocusEvent* event) {
  TellRows();
  QComboBox::focusInEvent(event);
}

void QtComboBox::keyPressEvent(QKeyEvent* event) {
  TellRows();
  QComboBox::keyPressEvent(event);
}

void QtComboBox::showPopup() {
  TellRows();
  // Rows are all of one height, which saves measuring every one of a long list.
  if (auto* list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
  QComboBox::showPopup();
}

void QtComboBox::TakeAsTyped() {
  TellRows();
  completer_.setModel(&rows_);
  typed_ = lineEdit()->text();
}

bool QtComboBox::Visible() const {
  for (const QWidget* part = this; !part->isWindow(); part = part->parentWidget()) {
    if (part->isHidden() && TabsOfPage(*part) == nullptr) return false;
  }
  return window()->isVisible();
}

void QtComboBox::TellIfChanged() {
  const int index = ListIndex();
  const QString text = currentText();
  if (index == toldIndex_ && text == toldText_) return;
  toldIndex_ = index;
  toldText_ = text;
  emit choiceChanged();
}

}  // namespace parlate
