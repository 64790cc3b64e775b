#include "editors/frmEvent.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "model/TableCombos.h"
#include "model/Workspace.h"
#include "platform/FormControls.h"
#include "platform/ScreenPlacement.h"
#include "platform/TextField.h"
#include "platform/TwipsConversion.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

constexpr int kWidth = 6780;
constexpr int kHeight = 7385;
constexpr std::int32_t kAppend = 1;
constexpr std::int32_t kInsert = 0;

ConversationDefaults& Defaults() { return Workspace::Current().defaults; }

}  // namespace

frmEvent::frmEvent(const EditorDoors& doors, QWidget* owner) : QDialog(owner), doors_(doors) {
  SetUpControls();
  PlaceEventPanels();
  PopulateComboFromArray(cboEvents, eventTypeNames);
  BuildLayout();
  PlaceWindow();
  ConnectControls();
}

void frmEvent::SetUpControls() {
  NameControl(*this, "frmEvent", QStringLiteral("Event"));
  setWindowTitle(QStringLiteral("Event"));
  SetUpLabel(Label18, "Label18", QStringLiteral("Event Type:"));
  SetUpField(cboEvents, "cboEvents", Label18);
  cboEvents.MakeListOnly();
  SetUpLabel(Label19, "Label19", QStringLiteral("Event Label:"));
  SetUpField(txtLabel, "txtLabel", Label19);
  SetUpTextLine(txtLabel);
  SetUpButton(cmdAddEvent, "cmdAddEvent", QStringLiteral("&Add Event"));
  SetUpButton(cmdInsertEvent, "cmdInsertEvent", QStringLiteral("&Insert Event"));
  SetUpButton(cmdUpdate, "cmdUpdate", QStringLiteral("&Update"));
  SetUpButton(cmdPrevEvent, "cmdPrevEvent", QStringLiteral("&Previous"));
  SetUpButton(cmdNextEvent, "cmdNextEvent", QStringLiteral("&Next"));
  SetUpButton(cmdClose, "cmdClose", QStringLiteral("&Close"));
  cmdUpdate.setDefault(true);
  cmdUpdate.setEnabled(false);
}

void frmEvent::PlaceEventPanels() {
  for (const auto& panel : panels_) {
    panelStack_.addWidget(panel.get());
    connect(panel.get(), &EventPanel::changed, this, &frmEvent::RefreshUpdateButton);
  }
}

void frmEvent::BuildLayout() {
  auto* head = new QGridLayout;
  head->addWidget(&Label18, 0, 0);
  head->addWidget(&cboEvents, 0, 1);
  head->addWidget(&Label19, 1, 0);
  head->addWidget(&txtLabel, 1, 1);
  head->setColumnStretch(1, 1);

  auto* buttons = new QGridLayout;
  buttons->addWidget(&cmdAddEvent, 0, 0);
  buttons->addWidget(&cmdInsertEvent, 0, 1);
  buttons->addWidget(&cmdUpdate, 0, 3);
  buttons->addWidget(&cmdPrevEvent, 1, 0);
  buttons->addWidget(&cmdNextEvent, 1, 1);
  buttons->addWidget(&cmdClose, 1, 3);
  buttons->setColumnStretch(2, 1);

  auto* form = new QVBoxLayout(this);
  form->addLayout(head);
  form->addWidget(&panelStack_, 1);
  form->addLayout(buttons);
}

void frmEvent::PlaceWindow() {
  const ConversationDefaults& defaults = Defaults();
  const QSize wanted(PixelsFromTwips(kWidth), PixelsFromTwips(kHeight));
  // A wider font needs more room than the panels were drawn for.
  const QSize size = wanted.expandedTo(minimumSizeHint());
  if (defaults.EventLeft == -1) {
    setGeometry(CentredOnScreen(size));
  } else {
    const QPoint corner(PixelsFromTwips(defaults.EventLeft), PixelsFromTwips(defaults.EventTop));
    setGeometry(OnScreen(QRect(corner, size)));
  }
}

void frmEvent::StorePosition() const {
  const QRect place = isMaximized() || isMinimized() ? normalGeometry() : geometry();
  Defaults().EventLeft = TwipsFromPixels(place.left());
  Defaults().EventTop = TwipsFromPixels(place.top());
}

void frmEvent::ConnectControls() {
  connect(&cboEvents, &QtComboBox::choiceChanged, this,
          [this] { ShowEventPanel(cboEvents.ListIndex()); });
  connect(&cmdAddEvent, &QPushButton::clicked, this, [this] { StartEvent(kAppend); });
  connect(&cmdInsertEvent, &QPushButton::clicked, this, [this] { StartEvent(kInsert); });
  connect(&cmdUpdate, &QPushButton::clicked, this, &frmEvent::Update);
  connect(&cmdPrevEvent, &QPushButton::clicked, this,
          [this] { doors_.shell.EditPreviousEvent(currentEvent_.get()); });
  connect(&cmdNextEvent, &QPushButton::clicked, this,
          [this] { doors_.shell.EditNextEvent(currentEvent_.get()); });
  connect(&cmdClose, &QPushButton::clicked, this, &frmEvent::reject);
  connect(&insertKey_, &QShortcut::activated, this,
          [this] { PanelKey(&EventPanel::InsertPressed); });
  connect(&deleteKey_, &QShortcut::activated, this,
          [this] { PanelKey(&EventPanel::DeletePressed); });
}

void frmEvent::PanelKey(void (EventPanel::*pressed)()) {
  if (panelIndex_ != -1) (Panel(panelIndex_).*pressed)();
}

void frmEvent::StartEvent(std::int32_t newAddMode) {
  // What is written with no conversation selected would have nowhere to go.
  if (!doors_.shell.SelectedCon()) return;
  ClearEventFields();
  txtLabel.setFocus();
  doors_.shell.AddEvent(cboEvents.ListIndex(), newAddMode);
}

void frmEvent::reject() {
  hide();
  if (QWidget* owner = parentWidget()) {
    owner->window()->raise();
    owner->window()->activateWindow();
  }
}

bool frmEvent::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) RefreshUpdateButton();
  return QDialog::event(event);
}

void frmEvent::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // Entries count as valid only on the screen, where a desktop may put the window without
  // activating it.
  RefreshUpdateButton();
}

}  // namespace parlate
