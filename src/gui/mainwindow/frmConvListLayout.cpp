// Panes of the main window: where they stand, and the splitter between them. Measures are twips.

#include <QMouseEvent>
#include <QResizeEvent>
#include <QStatusBar>
#include <algorithm>

#include "mainwindow/Icons.h"
#include "mainwindow/frmConvList.h"
#include "platform/FontSetup.h"
#include "platform/TwipsConversion.h"
#include "shell/EventRows.h"

namespace parlate {

namespace {

constexpr int kLeastPane = 1500;          // on either side of the splitter, after a drop
constexpr int kLeastWhileDragging = 500;  // meant: wider limits while the bar is under the mouse
constexpr int kLeastWindow = 3000;
constexpr int kPaneLeft = 60;
constexpr int kTitlesHeight = 300;
constexpr int kTitleTop = 60;
constexpr int kTitleHeight = 210;
constexpr int kSplitterWidth = 105;
constexpr int kSplitterKeyStep = 150;
constexpr int kColumnReserve = 20;  // pixels beside the last column

QRect TwipsRect(int left, int top, int width, int height) {
  return {PixelsFromTwips(left), PixelsFromTwips(top), std::max(PixelsFromTwips(width), 0),
          std::max(PixelsFromTwips(height), 0)};
}

}  // namespace

void frmConvList::BuildPanes() {
  client_.setAutoFillBackground(true);
  client_.setObjectName(QStringLiteral("client"));
  setCentralWidget(&client_);
  setMinimumWidth(PixelsFromTwips(kLeastWindow));

  picTitles_.setParent(&client_);
  picTitles_.setObjectName(QStringLiteral("picTitles"));
  picTitles_.setAutoFillBackground(true);
  const auto addTitle = [this](QLabel& label, const QString& name, const QString& caption) {
    label.setParent(&picTitles_);
    label.setObjectName(name);
    label.setText(caption);
  };
  addTitle(lblConversations_, "lblTitle(0)", " Conversations:");
  addTitle(lblEvents_, "lblTitle(1)", " Events:");

  const int image = 16;
  tvCons_.setObjectName(QStringLiteral("tvCons"));
  tvCons_.setAccessibleName(lblConversations_.text().trimmed());
  tvCons_.setIconSize({image, image});
  tvCons_.setItemDelegate(&nameDelegate_);
  treeModel_.SetImages({Icon("actor"), Icon("con"), Icon("flagtrue"), Icon("flagfalse")});
  lblConversations_.setBuddy(&tvCons_);

  lstEvents_.setObjectName(QStringLiteral("lstEvents"));
  lstEvents_.setAccessibleName(lblEvents_.text().trimmed());
  lstEvents_.setFont(ListFont());
  lstEvents_.SetHeads({"Label", "Action", "NPC", "Description"});
  lstEvents_.SetColorMeaning(kBrokenLabelRow, QStringLiteral("Missing label"));
  lstEvents_.SetColorMeaning(kMissingAudioRow, QStringLiteral("Missing audio"));
  lstEvents_.SetColorMeaning(kLabelRow, QStringLiteral("Labelled event"));
  lstEvents_.SetColorMeaning(kCommentRow, QStringLiteral("Comment"));
  lblEvents_.setBuddy(&lstEvents_);

  imgSplitter_.setParent(&client_);
  imgSplitter_.setObjectName(QStringLiteral("imgSplitter"));
  imgSplitter_.setAccessibleName(QStringLiteral("Splitter"));
  imgSplitter_.setCursor(Qt::SizeHorCursor);
  imgSplitter_.setFocusPolicy(Qt::TabFocus);
  imgSplitter_.setBackgroundRole(QPalette::Highlight);
  imgSplitter_.installEventFilter(this);

  picSplitter_.setParent(&client_);
  picSplitter_.setObjectName(QStringLiteral("picSplitter"));
  picSplitter_.setAutoFillBackground(true);
  picSplitter_.setPalette(QColor(0x80, 0x80, 0x80));
  picSplitter_.hide();

  picLogo_.setObjectName(QStringLiteral("picLogo"));
  picLogo_.setAccessibleName(QStringLiteral("Parlate"));
  picLogo_.resize(picLogo_.sizeHint());

  statusBar()->setObjectName(QStringLiteral("barCon"));
  statusBar()->setSizeGripEnabled(false);
  statusText_.setObjectName(QStringLiteral("panStatus"));
  statusBar()->addWidget(&statusText_, 1);

  client_.installEventFilter(this);
  setTabOrder(&tvCons_, &imgSplitter_);
  setTabOrder(&imgSplitter_, &lstEvents_);
}

int frmConvList::WidthInTwips() const { return client_.width() * kTwipsPerPixel; }

void frmConvList::SizeControls(int x) {
  const int width = WidthInTwips();
  x = std::min(std::max(x, kLeastPane), std::max(width - kLeastPane, kLeastPane));
  splitterLeft_ = x;
  const int treeWidth = x - 100;
  const int listLeft = x + 40;
  const int listWidth = width - (treeWidth + 165);
  const int paneTop = kTitlesHeight + 20;
  const int paneHeight = client_.height() * kTwipsPerPixel - (kTitlesHeight + 50);
  picTitles_.setGeometry(TwipsRect(0, 0, width, kTitlesHeight));
  tvCons_.setGeometry(TwipsRect(kPaneLeft, paneTop, treeWidth, paneHeight));
  imgSplitter_.setGeometry(TwipsRect(x, paneTop, kSplitterWidth, paneHeight));
  lstEvents_.setGeometry(TwipsRect(listLeft, paneTop, listWidth, paneHeight));
  imgSplitter_.raise();
  lblConversations_.setGeometry(TwipsRect(0, kTitleTop, treeWidth + 70, kTitleHeight));
  lblEvents_.setGeometry(TwipsRect(listLeft, kTitleTop, listWidth - 20, kTitleHeight));
  SizeEventColumns();
  picLogo_.move((client_.width() - picLogo_.width()) / 2,
                (client_.height() - picLogo_.height()) / 2);
  lstEvents_.viewport()->update();
}

void frmConvList::SizeEventColumns() {
  if (sizingColumns_) return;
  sizingColumns_ = true;
  const int taken =
      lstEvents_.ColumnWidth(0) + lstEvents_.ColumnWidth(1) + lstEvents_.ColumnWidth(2);
  lstEvents_.SetColumnWidth(3, std::max(lstEvents_.width() - taken - kColumnReserve, 0));
  sizingColumns_ = false;
}

void frmConvList::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (laidOut_ && !isMinimized()) SizeControls(splitterLeft_);
}

void frmConvList::ApplyToolbarVisible() {
  tlbCon_.setVisible(Command(QStringLiteral("mnuViewToolbar"))->isChecked());
  if (laidOut_) SizeControls(splitterLeft_);
}

void frmConvList::ApplyStatusBarVisible() {
  statusBar()->setVisible(Command(QStringLiteral("mnuViewStatusBar"))->isChecked());
  if (laidOut_) SizeControls(splitterLeft_);
}

bool frmConvList::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &imgSplitter_) return SplitterEvent(event);
  if (watched == &cboFind_) return FindBoxEvent(event);
  // The bars come and go round the client area, which then changes without the window.
  if (watched == &client_ && event->type() == QEvent::Resize && laidOut_ && !isMinimized()) {
    SizeControls(splitterLeft_);
  }
  return QMainWindow::eventFilter(watched, event);
}

bool frmConvList::SplitterEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) BeginSplitterDrag();
      return true;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      // The strip shows nothing of itself but that the keys move it.
      imgSplitter_.setAutoFillBackground(event->type() == QEvent::FocusIn);
      return false;
    case QEvent::MouseMove:
      MoveSplitter(qRound(static_cast<QMouseEvent*>(event)->position().x()) * kTwipsPerPixel);
      return true;
    case QEvent::MouseButtonRelease:
      EndSplitterDrag();
      return true;
    case QEvent::KeyPress: {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Left) SizeControls(splitterLeft_ - kSplitterKeyStep);
      if (key == Qt::Key_Right) SizeControls(splitterLeft_ + kSplitterKeyStep);
      return key == Qt::Key_Left || key == Qt::Key_Right;
    }
    default:
      return false;
  }
}

void frmConvList::BeginSplitterDrag() {
  splitterBarLeft_ = splitterLeft_ - 20;
  QRect bar = imgSplitter_.geometry();
  bar.moveLeft(PixelsFromTwips(splitterBarLeft_));
  picSplitter_.setGeometry(bar);
  picSplitter_.show();
  picSplitter_.raise();
  bMovingSplitter_ = true;
}

void frmConvList::MoveSplitter(int mouseX) {
  if (!bMovingSplitter_) return;
  const int most = std::max(WidthInTwips() - kLeastWhileDragging, kLeastWhileDragging);
  splitterBarLeft_ = std::clamp(splitterLeft_ + mouseX, kLeastWhileDragging, most);
  picSplitter_.move(PixelsFromTwips(splitterBarLeft_), picSplitter_.y());
}

void frmConvList::EndSplitterDrag() {
  if (!bMovingSplitter_) return;
  SizeControls(splitterBarLeft_);
  picSplitter_.hide();
  bMovingSplitter_ = false;
}

}  // namespace parlate
