#include "editors/InfoPanel.h"

#include <QFormLayout>

#include "platform/FormControls.h"
#include "widgets/CodePageText.h"
#include "widgets/DateText.h"

namespace parlate {

void SetUpInfoPanel(QLabel& panel, const char* name, QLabel& label, const QString& caption) {
  const QString labelName = QStringLiteral("lbl") + QString::fromLatin1(name).mid(3);
  SetUpLabel(label, labelName.toLatin1().constData(), caption);
  SetUpLabel(panel, name, QString());
  panel.setAccessibleName(caption);
  panel.setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
  panel.setMargin(2);
  // Who uses the keys reaches the value, too, and can copy it. The flags alone give no more than
  // the focus of a click.
  panel.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  panel.setFocusPolicy(Qt::StrongFocus);
}

void ShowInfo(QLabel& panel, const QLabel& label, const QString& value) {
  panel.setText(value);
  panel.setAccessibleName(label.text() + QLatin1Char(' ') + value);
}

StampPanels::StampPanels(QWidget& page)
    : lblCreationDate(&page),
      panCreationDate(&page),
      lblCreatedBy(&page),
      panCreatedBy(&page),
      lblLastUpdated(&page),
      panLastUpdated(&page),
      lblLastUpdatedBy(&page),
      panLastUpdatedBy(&page) {
  SetUpInfoPanel(panCreationDate, "panCreationDate", lblCreationDate,
                 QStringLiteral("Created On:"));
  SetUpInfoPanel(panCreatedBy, "panCreatedBy", lblCreatedBy, QStringLiteral("Created By:"));
  SetUpInfoPanel(panLastUpdated, "panLastUpdated", lblLastUpdated,
                 QStringLiteral("Last Modified On:"));
  SetUpInfoPanel(panLastUpdatedBy, "panLastUpdatedBy", lblLastUpdatedBy,
                 QStringLiteral("Last Modified By:"));
}

void StampPanels::Show(Date created, const std::string& createdBy, Date updated,
                       const std::string& updatedBy) {
  ShowInfo(panCreationDate, lblCreationDate, DateText(created));
  ShowInfo(panCreatedBy, lblCreatedBy, ToQString(createdBy));
  ShowInfo(panLastUpdated, lblLastUpdated, DateText(updated));
  ShowInfo(panLastUpdatedBy, lblLastUpdatedBy, ToQString(updatedBy));
}

void StampPanels::AddTo(QFormLayout& rows) {
  rows.addRow(&lblCreationDate, &panCreationDate);
  rows.addRow(&lblCreatedBy, &panCreatedBy);
  rows.addRow(&lblLastUpdated, &panLastUpdated);
  rows.addRow(&lblLastUpdatedBy, &panLastUpdatedBy);
}

}  // namespace parlate
