#include "editors/panels/AllPanels.h"

#include "editors/panels/AnimationPanel.h"
#include "editors/panels/CameraPanel.h"
#include "editors/panels/CheckFlagsPanel.h"
#include "editors/panels/CheckObjectPanel.h"
#include "editors/panels/ChoicePanel.h"
#include "editors/panels/CommentPanel.h"
#include "editors/panels/CreditsPanel.h"
#include "editors/panels/EndPanel.h"
#include "editors/panels/GoalPanel.h"
#include "editors/panels/JumpPanel.h"
#include "editors/panels/NotePanel.h"
#include "editors/panels/PersonaPanel.h"
#include "editors/panels/RandomPanel.h"
#include "editors/panels/SetFlagsPanel.h"
#include "editors/panels/SkillPointsPanel.h"
#include "editors/panels/SpeechPanel.h"
#include "editors/panels/TradePanel.h"
#include "editors/panels/TransferObjectPanel.h"
#include "editors/panels/TriggerPanel.h"

namespace parlate {

namespace {

/// In the order of the type codes; the tab order follows it too.
template <class... Panel>
EventPanels MakePanels(PanelHost& host, QWidget* parent) {
  return {std::make_unique<Panel>(host, parent)...};
}

}  // namespace

EventPanels MakeAllPanels(PanelHost& host, QWidget* parent) {
  return MakePanels<SpeechPanel, ChoicePanel, SetFlagsPanel, CheckFlagsPanel, CheckObjectPanel,
                    TransferObjectPanel, CameraPanel, AnimationPanel, TradePanel, JumpPanel,
                    RandomPanel, TriggerPanel, GoalPanel, NotePanel, SkillPointsPanel, CreditsPanel,
                    PersonaPanel, CommentPanel, EndPanel>(host, parent);
}

}  // namespace parlate
