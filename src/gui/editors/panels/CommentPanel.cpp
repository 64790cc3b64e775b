#include "editors/panels/CommentPanel.h"

#include <QVBoxLayout>

#include "platform/FormControls.h"

namespace parlate {

CommentPanel::CommentPanel(PanelHost& host, QWidget* parent)
    : EventPanel(kComment, QStringLiteral("Comment"), host, parent) {
  SetUpLabel(lblComment, "lblComment", QStringLiteral("Comment Text:"));
  SetUpField(txtComment, "txtComment", lblComment);
  auto* panel = new QVBoxLayout(this);
  panel->addWidget(&lblComment);
  panel->addWidget(&txtComment, 1);
  connect(&txtComment, &QPlainTextEdit::textChanged, this, &EventPanel::changed);
}

void CommentPanel::ClearFields() { txtComment.SetText({}); }

// Meant: this panel is not made ready, only emptied for a new event.
void CommentPanel::Ready() {}

void CommentPanel::LoadEvent(EventItem& event) {
  txtComment.SetText(Loaded<EventComment>(event).commentText);
}

bool CommentPanel::IsComplete() const { return !txtComment.IsEmpty(); }

void CommentPanel::UpdateEvent(EventItem& event) {
  ObjectOf<EventComment>(event).Update(txtComment.Text());
}

}  // namespace parlate
