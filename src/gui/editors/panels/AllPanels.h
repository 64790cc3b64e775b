#pragma once

#include <array>
#include <memory>

#include "editors/panels/EventPanel.h"

namespace parlate {

/// The panels of the event editor; the index is the code of the event type.
using EventPanels = std::array<std::unique_ptr<EventPanel>, kEventTypeCount>;

[[nodiscard]] EventPanels MakeAllPanels(PanelHost& host, QWidget* parent);

}  // namespace parlate
