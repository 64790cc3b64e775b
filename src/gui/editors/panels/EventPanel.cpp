#include "editors/panels/EventPanel.h"

#include "platform/FormControls.h"

namespace parlate {

EventPanel::EventPanel(std::int32_t eventType, const QString& caption, PanelHost& host,
                       QWidget* parent)
    : QGroupBox(caption, parent), eventType_(eventType), host_(host) {
  NameControl(*this, "fraEvents", caption);
  setObjectName(QStringLiteral("fraEvents(%1)").arg(eventType));
}

}  // namespace parlate
