#include "editors/panels/JumpPanel.h"

#include <QGridLayout>
#include <QSignalBlocker>

#include "model/TableCombos.h"
#include "platform/FormControls.h"

namespace parlate {

JumpPanel::JumpPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kJump, QStringLiteral("Jump"), host, parent) {
  SetUpLabel(lblJumpConv, "lblJumpConv", QStringLiteral("Conversation:"));
  SetUpField(cboJumpConv, "cboJumpConv", lblJumpConv);
  cboJumpConv.MakeListOnly();
  SetUpLabel(lblJumpLabel, "lblJumpLabel", QStringLiteral("Jump to Label:"));
  SetUpField(cboJumpLabel, "cboJumpLabel", lblJumpLabel);
  auto* panel = new QGridLayout(this);
  panel->addWidget(&lblJumpConv, 0, 0);
  panel->addWidget(&cboJumpConv, 0, 1);
  panel->addWidget(&lblJumpLabel, 1, 0);
  panel->addWidget(&cboJumpLabel, 1, 1);
  panel->setColumnStretch(1, 1);
  panel->setRowStretch(2, 1);
  connect(&cboJumpConv, &QtComboBox::choiceChanged, this, [this] {
    PopulateLabels();
    emit changed();
  });
  connect(&cboJumpLabel, &QtComboBox::choiceChanged, this, &JumpPanel::changed);
}

std::int32_t JumpPanel::ConversationID() const { return GetComboItemID(cboJumpConv); }

std::int32_t JumpPanel::SelectedConKey() const {
  const auto& con = Host().Doors().shell.SelectedCon();
  return con ? con->key : -1;
}

void JumpPanel::PopulateLabels() { Host().PopulateLabelsOf(ConversationID(), cboJumpLabel); }

void JumpPanel::SelectConversation(std::int32_t conID) {
  const std::int32_t before = ConversationID();
  {
    const QSignalBlocker silence(cboJumpConv);
    SelectComboItemByID(conID, cboJumpConv);
  }
  if (ConversationID() != before) PopulateLabels();
}

void JumpPanel::ClearFields() {
  // No labels are needed for a conversation that nobody chose.
  const QSignalBlocker silence(cboJumpConv);
  cboJumpLabel.SetText("");
  cboJumpConv.SetListIndex(-1);
}

void JumpPanel::Ready() {
  {
    const QSignalBlocker silence(cboJumpConv);
    Host().Doors().shell.PopulateConvCombo(cboJumpConv);
    SelectComboItemByID(SelectedConKey(), cboJumpConv);
  }
  PopulateLabels();
}

void JumpPanel::LoadEvent(EventItem& event) {
  const auto& jump = Loaded<EventJump>(event);
  SelectConversation(jump.conID == -1 ? SelectedConKey() : jump.conID);
  Host().SelectLabelValue(jump.label, cboJumpLabel);
}

bool JumpPanel::IsComplete() const {
  return cboJumpConv.ListIndex() != -1 && !cboJumpLabel.Text().empty();
}

void JumpPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventJump>(event).Update(cboJumpLabel.Text(), ConversationID());
}

}  // namespace parlate
