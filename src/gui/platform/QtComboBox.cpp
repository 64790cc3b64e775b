#include "platform/QtComboBox.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QTabWidget>

#include "platform/CodePageInput.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

bool IsTabPage(const QWidget& part) {
  const QWidget* pages = part.parentWidget();
  return qobject_cast<const QTabWidget*>(pages->parentWidget()) != nullptr;
}

}  // namespace

QtComboBox::QtComboBox(QWidget* parent, RowOrder order) : QComboBox(parent), order_(order) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  // The width comes from the form; measuring every row of a long table costs more than filling it.
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(12);
  KeepToCodePage(*this);

  completer_.setModel(model());
  completer_.setCompletionMode(QCompleter::PopupCompletion);
  completer_.setCaseSensitivity(Qt::CaseInsensitive);
  setCompleter(&completer_);
  // Left to itself the toolkit selects the row of that name when the focus leaves, and takes its
  // case for that of the text.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);

  // The first to hear of a choice, so that every other slot finds ListIndex right.
  connect(this, &QComboBox::currentIndexChanged, this, [this] {
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
  rows_.clear();
  typed_.reset();
  {
    const QSignalBlocker silence(this);
    const QSignalBlocker lineSilence(lineEdit());
    clear();
    clearEditText();
  }
  TellIfChanged();
}

void QtComboBox::AddItem(const std::string& text) {
  const int row = IndexForNewRow(
      order_, ListCount(), text, [this](int index) -> const auto& {
        return rows_[static_cast<std::size_t>(index)].text;
      });
  InsertItem(text, row);
}

void QtComboBox::InsertItem(const std::string& text, int index) {
  rows_.insert(rows_.begin() + index, {text, 0});
  if (ListCount() > 1) {
    const std::optional<QString> typed = typed_;
    insertItem(index, ToQString(text));
    typed_ = typed;
    return;
  }
  AddFirstItem(text);
}

void QtComboBox::RemoveItem(int index) {
  if (!Holds(index)) return;
  const bool selected = index == ListIndex();
  const std::optional<QString> typed = selected ? currentText() : typed_;
  rows_.erase(rows_.begin() + index);
  {
    // The toolkit would select the neighbour of a row that goes.
    const QSignalBlocker silence(this);
    const QSignalBlocker lineSilence(lineEdit());
    const QString shown = currentText();
    if (index == currentIndex()) setCurrentIndex(-1);
    removeItem(index);
    if (isEditable()) lineEdit()->setText(shown);
  }
  typed_ = typed;
  TellIfChanged();
}

void QtComboBox::AddFirstItem(const std::string& text) {
  const QString shown = currentText();
  const QSignalBlocker silence(this);
  const QSignalBlocker lineSilence(lineEdit());
  insertItem(0, ToQString(text));
  setCurrentIndex(-1);
  if (isEditable()) lineEdit()->setText(shown);
}

std::string QtComboBox::List(int index) const {
  return Holds(index) ? rows_[static_cast<std::size_t>(index)].text : std::string();
}

std::int32_t QtComboBox::ItemData(int index) const {
  return Holds(index) ? rows_[static_cast<std::size_t>(index)].itemData : 0;
}

void QtComboBox::SetItemData(int index, std::int32_t value) {
  if (Holds(index)) rows_[static_cast<std::size_t>(index)].itemData = value;
}

int QtComboBox::ListIndex() const {
  const bool typed = typed_ && *typed_ == currentText();
  return typed ? -1 : currentIndex();
}

void QtComboBox::SetListIndex(int index) {
  typed_.reset();
  setCurrentIndex(Holds(index) ? index : -1);
  TellIfChanged();
}

std::string QtComboBox::Text() const { return FromQString(currentText()); }

void QtComboBox::SetText(const std::string& text) {
  if (!isEditable()) {
    SetListIndex(findText(ToQString(text), Qt::MatchFixedString | Qt::MatchCaseSensitive));
    return;
  }
  typed_ = ToQString(text);
  lineEdit()->setText(*typed_);
  TellIfChanged();
}

void QtComboBox::SelectText(int start, int length) {
  if (isEditable()) lineEdit()->setSelection(start, length);
}

void QtComboBox::SetFocus() { setFocus(Qt::OtherFocusReason); }

bool QtComboBox::Visible() const {
  for (const QWidget* part = this; !part->isWindow(); part = part->parentWidget()) {
    if (part->isHidden() && !IsTabPage(*part)) return false;
  }
  return window()->isVisible();
}

void QtComboBox::TakeAsTyped() { typed_ = lineEdit()->text(); }

void QtComboBox::TellIfChanged() {
  const int index = ListIndex();
  const QString text = currentText();
  if (index == toldIndex_ && text == toldText_) return;
  toldIndex_ = index;
  toldText_ = text;
  emit choiceChanged();
}

}  // namespace parlate
