#include "editors/panels/ChoicePanel.h"

#include <QGridLayout>
#include <QSignalBlocker>
#include <utility>

#include "editors/frmChoiceEdit.h"
#include "interchange/AudioPath.h"
#include "platform/FontSetup.h"
#include "platform/FormControls.h"
#include "shell/ListRowsBox.h"

namespace parlate {

ChoicePanel::ChoicePanel(PanelHost& host, QWidget* parent)
    : EventPanel(kChoice, QStringLiteral("Choice"), host, parent) {
  SetUpControls();
  BuildLayout();
  ConnectControls();
  RefreshChoiceButtons();
}

void ChoicePanel::SetUpControls() {
  NameControl(lstChoices, "lstChoices", QStringLiteral("Choices"));
  lstChoices.SetHeads({QStringLiteral("Choice"), QStringLiteral("Value")});
  lstChoices.setFont(ListFont());
  SetUpButton(cmdChoiceAdd, "cmdChoiceAdd", QStringLiteral("Add C&hoice"));
  SetUpButton(cmdChoiceEdit, "cmdChoiceEdit", QStringLiteral("Edi&t"));
  SetUpButton(cmdChoiceDelete, "cmdChoiceDelete", QStringLiteral("&Delete"));
  SetUpButton(cmdChoiceUp, "cmdChoiceUp", QStringLiteral("Move &Up"));
  SetUpButton(cmdChoiceDown, "cmdChoiceDown", QStringLiteral("Move Dow&n"));
  SetUpButton(chkChoiceClear, "chkChoiceClear",
              QStringLiteral("Clear Screen before displaying choices"));
}

void ChoicePanel::BuildLayout() {
  auto* panel = new QGridLayout(this);
  panel->addWidget(&lstChoices, 0, 0, 6, 1);
  panel->addWidget(&cmdChoiceAdd, 0, 1);
  panel->addWidget(&cmdChoiceEdit, 1, 1);
  panel->addWidget(&cmdChoiceDelete, 2, 1);
  panel->addWidget(&cmdChoiceUp, 3, 1);
  panel->addWidget(&cmdChoiceDown, 4, 1);
  panel->addWidget(&chkChoiceClear, 6, 0, 1, 2);
  panel->setColumnStretch(0, 1);
  panel->setRowStretch(5, 1);
}

void ChoicePanel::ConnectControls() {
  connect(&lstChoices, &MultiColumnList::listIndexChanged, this,
          &ChoicePanel::RefreshChoiceButtons);
  connect(&lstChoices, &MultiColumnList::doubleClicked, this, &ChoicePanel::EditSelectedChoice);
  connect(&cmdChoiceAdd, &QPushButton::clicked, this, &ChoicePanel::AddChoiceToEvent);
  connect(&cmdChoiceEdit, &QPushButton::clicked, this, &ChoicePanel::EditSelectedChoice);
  connect(&cmdChoiceDelete, &QPushButton::clicked, this, &ChoicePanel::DeleteSelectedChoice);
  connect(&cmdChoiceUp, &QPushButton::clicked, this, &ChoicePanel::MoveChoiceUp);
  connect(&cmdChoiceDown, &QPushButton::clicked, this, &ChoicePanel::MoveChoiceDown);
}

void ChoicePanel::ClearFields() {
  rows_.Clear();
  chkChoiceClear.setChecked(false);
}

void ChoicePanel::BeginNewEvent() {
  newChoiceEvent_ = {};
  currentChoiceEvent_ = &newChoiceEvent_;
}

void ChoicePanel::Ready() { RefreshChoiceButtons(); }

void ChoicePanel::LoadEvent(EventItem& event) {
  currentChoiceEvent_ = &Loaded<EventChoice>(event);
  PopulateChoices();
  chkChoiceClear.setChecked(currentChoiceEvent_->bClearScreen);
  RefreshChoiceButtons();
}

bool ChoicePanel::IsComplete() const { return rows_.ListCount() >= 1; }

void ChoicePanel::UpdateEvent(EventItem& event) {
  if (event.eventObject() == nullptr) {
    currentChoiceEvent_ = &event.SetEventObject(kChoice, std::move(newChoiceEvent_));
    newChoiceEvent_ = {};
  }
  Loaded<EventChoice>(event).Update(chkChoiceClear.isChecked());
}

void ChoicePanel::PopulateChoices() {
  ListRowsBox list(rows_);
  currentChoiceEvent_->PopulateList(list);
}

void ChoicePanel::RefreshChoiceButtons() {
  const std::int32_t row = rows_.ListIndex();
  const auto last = static_cast<std::int32_t>(rows_.ListCount()) - 1;
  EnableButton(cmdChoiceEdit, row != -1, lstChoices);
  EnableButton(cmdChoiceDelete, row != -1, lstChoices);
  EnableButton(cmdChoiceUp, row > 0, lstChoices);
  EnableButton(cmdChoiceDown, row != -1 && row < last, lstChoices);
  emit changed();
}

std::int32_t ChoicePanel::SelectedID() const {
  return rows_.Row(static_cast<std::size_t>(rows_.ListIndex())).itemData;
}

void ChoicePanel::AddChoiceToEvent() {
  const auto choice = std::make_shared<ChoiceItem>();
  frmChoiceEdit dialog(Host(), BuildAudioPath, window());
  if (!dialog.AddChoice(choice, window(), Host().CurrentCon())) return;
  if (rows_.ListCount() == 0) currentChoiceEvent_->Choices.Clear();
  choice->ID = currentChoiceEvent_->nextID();
  currentChoiceEvent_->Choices.Add(choice->ID, choice);
  PopulateChoices();
  RefreshChoiceButtons();
}

void ChoicePanel::EditSelectedChoice() {
  const std::int32_t row = rows_.ListIndex();
  if (row == -1) return;
  const auto choice = currentChoiceEvent_->Choices.Share(SelectedID());
  frmChoiceEdit dialog(Host(), BuildAudioPath, window());
  if (!dialog.EditChoice(choice, window(), Host().CurrentCon())) return;
  rows_.SetText(static_cast<std::size_t>(row), choice->BuildChoiceString());
  emit changed();
}

void ChoicePanel::DeleteSelectedChoice() {
  if (rows_.ListIndex() == -1) return;
  const Answer answer =
      Host().Doors().messages.Show({"Delete?", "Are you sure you wish to Delete this Choice?",
                                    MessageBox::Icon::Question, MessageBox::Buttons::YesNo});
  if (answer != Answer::Yes) return;
  // The last one leaves the event when another takes its place: an event must not be left without
  // any, and with none in the list it cannot be stored.
  if (rows_.ListCount() > 1) currentChoiceEvent_->Choices.Remove(SelectedID());
  rows_.RemoveSelectedItem();
  RefreshChoiceButtons();
}

void ChoicePanel::MoveChoiceUp() {
  if (rows_.ListIndex() > 0) MoveChoice(-1);
}

void ChoicePanel::MoveChoiceDown() {
  const std::int32_t row = rows_.ListIndex();
  if (row != -1 && row + 1 < static_cast<std::int32_t>(rows_.ListCount())) MoveChoice(1);
}

void ChoicePanel::MoveChoice(std::int32_t step) {
  const std::int32_t selected = rows_.ListIndex();
  const std::int32_t moved = selected + step;
  const auto from = static_cast<std::size_t>(selected);
  const auto to = static_cast<std::size_t>(moved);
  const std::int32_t id = SelectedID();
  auto& choices = currentChoiceEvent_->Choices;
  const auto choice = choices.Share(id);

  {
    // No button may go grey on the way: it would lose the focus.
    const QSignalBlocker silence(lstChoices);
    ListRow row = rows_.Row(from);
    row.text = choice->BuildChoiceString();
    rows_.RemoveItem(from);
    rows_.InsertItem(std::move(row), to);
    rows_.SetListIndex(moved);
  }
  choices.Remove(id);
  if (to + 1 < rows_.ListCount()) {
    choices.AddBefore(id, choice, rows_.Row(to + 1).itemData);
  } else {
    choices.Add(id, choice);
  }
  RefreshChoiceButtons();
}

void ChoicePanel::InsertPressed() {
  if (cmdChoiceAdd.isEnabled()) AddChoiceToEvent();
}

void ChoicePanel::DeletePressed() {
  if (cmdChoiceDelete.isEnabled()) DeleteSelectedChoice();
}

}  // namespace parlate
