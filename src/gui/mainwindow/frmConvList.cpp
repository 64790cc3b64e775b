#include "mainwindow/frmConvList.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QStatusBar>

#include "mainwindow/Icons.h"
#include "mainwindow/frmSplash.h"
#include "platform/FontSetup.h"
#include "platform/ScreenPlacement.h"
#include "platform/TwipsConversion.h"
#include "shell/CommandLine.h"

namespace parlate {

namespace {

/// Window states as the settings store them.
constexpr std::int32_t kNormal = 0;
constexpr std::int32_t kMinimised = 1;
constexpr std::int32_t kMaximised = 2;

ConversationDefaults& Defaults() { return Workspace::Current().defaults; }

}  // namespace

frmConvList::frmConvList(MessageBoxes& messages, FileDialogs& dialogs, SettingsStore& settings,
                         Printers* printers)
    : messages_(messages),
      dialogs_(dialogs),
      settings_(settings),
      printers_(printers),
      progress_(this),
      shell_(*this, {messages_, dialogs_, progress_, printers_}),
      treeModel_(shell_.tvCons()),
      tvCons_(treeModel_, &client_),
      lstEvents_(shell_.lstEvents(), &client_),
      picLogo_(IconPath(QStringLiteral("logo")), QSize(480, 270), &client_) {
  setObjectName(QStringLiteral("frmConvList"));
  setWindowTitle(QStringLiteral("Conversation"));
  // The toolkit's own menu of bars would hide the toolbar behind the back of the View menu.
  setContextMenuPolicy(Qt::NoContextMenu);
  BuildPanes();
  BuildMenus();
  BuildPopups();
  BuildToolbar();
  ConnectCommands();
  ConnectTree();
  ConnectList();
}

frmConvList::~frmConvList() {
  Workspace::Current().tableEditor = nullptr;
  // The panes are members, which the window must not delete as children.
  takeCentralWidget();
  removeToolBar(&tlbCon_);
  statusBar()->removeWidget(&statusText_);
}

bool frmConvList::InitMainWindow() {
  ShowSplash();
  Defaults().LoadDefaults(settings_);
  if (Defaults().Username.empty() && ShowSettings() == 1) return false;
  ApplyDefaults();
  loaded_ = true;
  UpdateLastFiles();
  ApplyToolbarVisible();
  ApplyStatusBarVisible();
  shell_.UpdateCommandStates();
  return true;
}

void frmConvList::Start(const std::string& commandLine) {
  show();
  laidOut_ = true;
  SizeControls(splitterLeft_);
  const std::string path = PathOfCommandLine(commandLine);
  if (!path.empty()) shell_.OpenConFile(AbsolutePath(path));
  shell_.lastClickedRow = -1;
}

void frmConvList::ShowSplash() {
  frmSplash splash;
  splash.show();
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void frmConvList::ApplyDefaults() {
  const ConversationDefaults& defaults = Defaults();
  PlaceWindow();
  splitterLeft_ = defaults.SplitterPos;
  lstEvents_.SetColumnWidth(0, defaults.LabelColumnWidth);
  lstEvents_.SetColumnWidth(1, defaults.ActionColumnWidth);
  lstEvents_.SetColumnWidth(2, defaults.ActorColumnWidth);
  Command(QStringLiteral("mnuViewToolbar"))->setChecked(defaults.ToolBarEnabled);
  Command(QStringLiteral("mnuViewStatusBar"))->setChecked(defaults.StatusBarEnabled);
  Command(QStringLiteral("mnuViewExpandList"))->setChecked(defaults.ExpandListEnabled);
  Command(QStringLiteral("mnuViewShowAudioFiles"))->setChecked(defaults.bShowAudioFiles);
  lstEvents_.setFont(ListFont());
}

void frmConvList::PlaceWindow() {
  const ConversationDefaults& defaults = Defaults();
  const QRect stored(PixelsFromTwips(defaults.MainLeft), PixelsFromTwips(defaults.MainTop),
                     PixelsFromTwips(defaults.MainWidth), PixelsFromTwips(defaults.MainHeight));
  setGeometry(OnScreen(stored));
  // A window that was minimised comes back normal.
  if (defaults.WindowState == kMaximised) setWindowState(Qt::WindowMaximized);
}

void frmConvList::CommandStatesChanged() {
  const CommandPredicates predicates = shell_.Predicates();
  QString title = QFile::decodeName(QByteArray::fromStdString(shell_.Caption()));
  // The toolkit takes one of these for the place of a mark, and shows two as one.
  setWindowTitle(title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
  statusText_.setText(QString::fromStdString(shell_.StatusText()));
  const bool open = predicates.fileOpen;
  const bool cameOrWent = open != fileWasOpen_;
  fileWasOpen_ = open;
  QPalette palette = QApplication::palette();
  if (!open) palette.setColor(QPalette::Window, Qt::black);
  client_.setPalette(palette);
  picTitles_.setPalette(QApplication::palette());
  picTitles_.setVisible(open);
  picLogo_.setVisible(!open);
  imgSplitter_.setVisible(open);
  tvCons_.setVisible(open);
  lstEvents_.setVisible(open);
  lblConversations_.setVisible(open);
  lblEvents_.setVisible(open);
  ApplyStates(DecideCommandStates(predicates));
  // Left to itself the focus goes to a button, which a writer's next blank would press.
  if (cameOrWent) (open ? static_cast<QWidget&>(tvCons_) : *this).setFocus();
}

void frmConvList::ApplyStates(const std::vector<CommandState>& states) {
  for (const CommandState& state : states) {
    const QString name =
        QString::fromLatin1(state.control.data(), static_cast<qsizetype>(state.control.size()));
    if (QAction* command = Command(name)) command->setEnabled(state.enabled);
    if (name == cboFind_.objectName()) cboFind_.setEnabled(state.enabled);
  }
}

void frmConvList::LastFilesChanged() {
  for (int i = 0; i < static_cast<int>(ConversationDefaults::kLastFileCount); ++i) {
    const std::string caption = Shell::LastFileCaption(i);
    QAction* item = Command(QStringLiteral("mnuFileLast(%1)").arg(i));
    item->setVisible(!caption.empty());
    if (caption.empty()) continue;
    QString text = QFile::decodeName(QByteArray::fromStdString(caption));
    // The first "&" marks the access key; those of the path stand for themselves.
    text = text.left(1) + text.mid(1).replace(QLatin1Char('&'), QStringLiteral("&&"));
    item->setText(text);
  }
  Command(QStringLiteral("mnuFileDash"))->setVisible(!Defaults().LastFiles(0).empty());
}

void frmConvList::ShowTree(bool visible) {
  if (!visible) treeHadFocus_ = tvCons_.isVisible() && tvCons_.hasFocus();
  tvCons_.setVisible(visible);
  if (visible && treeHadFocus_) tvCons_.setFocus();
}

void frmConvList::closeEvent(QCloseEvent* event) {
  if (!shell_.CloseConFile()) {
    event->ignore();
    return;
  }
  Unload();
  event->accept();
}

void frmConvList::Unload() {
  if (!loaded_) return;
  loaded_ = false;
  find_.reset();
  StoreDefaults();
  Defaults().SaveDefaults(settings_);
}

void frmConvList::StoreDefaults() {
  ConversationDefaults& defaults = Defaults();
  defaults.WindowState = isMinimized() ? kMinimised : isMaximized() ? kMaximised : kNormal;
  if (defaults.WindowState == kNormal) {
    const QRect place = geometry();
    defaults.MainLeft = TwipsFromPixels(place.left());
    defaults.MainTop = TwipsFromPixels(place.top());
    defaults.MainWidth = TwipsFromPixels(place.width());
    defaults.MainHeight = TwipsFromPixels(place.height());
    defaults.SplitterPos = StoredTwips(splitterLeft_);
  }
  defaults.ToolBarEnabled = Command(QStringLiteral("mnuViewToolbar"))->isChecked();
  defaults.StatusBarEnabled = Command(QStringLiteral("mnuViewStatusBar"))->isChecked();
  defaults.ExpandListEnabled = Command(QStringLiteral("mnuViewExpandList"))->isChecked();
  defaults.bShowAudioFiles = Command(QStringLiteral("mnuViewShowAudioFiles"))->isChecked();
  defaults.LabelColumnWidth = static_cast<std::int16_t>(lstEvents_.ColumnWidth(0));
  defaults.ActionColumnWidth = static_cast<std::int16_t>(lstEvents_.ColumnWidth(1));
  defaults.ActorColumnWidth = static_cast<std::int16_t>(lstEvents_.ColumnWidth(2));
}

}  // namespace parlate
