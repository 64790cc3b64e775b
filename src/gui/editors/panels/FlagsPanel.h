#pragma once

#include <QLabel>
#include <QPushButton>
#include <vector>

#include "editors/ColumnShares.h"
#include "editors/FlagListEdit.h"
#include "editors/panels/EventPanel.h"
#include "shell/ListRows.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

/// What the two panels with a list of flags do alike. The list works on flags of its own until the
/// event exists, and on the event's own from then on, where every change counts at once.
class FlagsPanel : public EventPanel {
  Q_OBJECT

 public:
  void ClearFields() override;
  void BeginNewEvent() override;
  [[nodiscard]] bool IsComplete() const override { return rows_.ListCount() >= 1; }
  void InsertPressed() override;
  void DeletePressed() override;

 protected:
  /// How the controls are named, and what the panel says of itself.
  struct Setup {
    std::int32_t eventType;
    const char* caption;
    const char* label;
    const char* labelText;
    const char* list;
    QStringList heads;
    std::vector<int> columnShares;
    const char* addButton;
    const char* deleteButton;
    bool bShowExpiration;
  };

  FlagsPanel(const Setup& setup, PanelHost& host, QWidget* parent);

  /// The list with its buttons, for the layout of the panel.
  [[nodiscard]] QLayout* ListLayout();
  void RefreshFlagButtons();
  /// Works on the flags of an event and shows them.
  void ShowFlags(FlagList& flags);
  /// Goes on with the flags of the event that has taken them over.
  void FollowFlags(FlagList& flags);
  [[nodiscard]] FlagList& Flags() const { return flags_.Flags(); }

 private:
  void SetUpControls(const Setup& setup);
  void AddFlag();
  void DeleteFlag();

  FlagList newFlags_;  ///< Of an event that does not exist yet.
  ListRows rows_;
  FlagListEdit flags_;

  // In the order in which Tab visits them.
  QLabel lblFlags{this};
  MultiColumnList lstFlags{rows_, this};
  QPushButton cmdAdd{this};
  QPushButton cmdDelete{this};
  ColumnShares columnShares_;
};

}  // namespace parlate
