#include "mainwindow/WindowFixture.h"

#include <QApplication>
#include <QTimer>

namespace parlate::testing_support {

std::string MapSettings::Get(const std::string&, const std::string&, const std::string& key,
                             const std::string& fallback) const {
  const auto found = values.find(key);
  return found == values.end() ? fallback : found->second;
}

RunningProgram::RunningProgram(const std::string& username) {
  workspace.now = [] { return kSavedAt; };
  if (!username.empty()) settings.values["Username"] = username;
  window_ = std::make_unique<frmConvList>(messages, dialogs, settings, &printers);
}

bool RunningProgram::Start(const std::string& commandLine) {
  if (!window_->InitMainWindow()) return false;
  window_->Start(commandLine);
  Activate();
  return true;
}

void RunningProgram::Activate() {
  window_->activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == window_.get(); }));
}

void RunningProgram::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  Activate();
  QWidget* target = QApplication::focusWidget();
  QTest::keyClick(target != nullptr ? target : window_.get(), key, modifiers);
}

bool RunningProgram::Enabled(const char* command) {
  return window_->Command(QString::fromLatin1(command))->isEnabled();
}

void RunningProgram::Choose(const char* command) {
  QAction* action = window_->Command(QString::fromLatin1(command));
  ASSERT_NE(action, nullptr) << command;
  EXPECT_TRUE(action->isEnabled()) << command;
  action->trigger();
}

void RunningProgram::ClickNode(const char* key, Qt::MouseButton button) {
  auto& model = *qobject_cast<ConversationTreeModel*>(Tree().model());
  const QModelIndex index = model.IndexOf(model.Tree().FindNode(key));
  ASSERT_TRUE(index.isValid()) << key;
  Tree().scrollTo(index);
  QTest::mouseClick(Tree().viewport(), button, {}, Tree().visualRect(index).center());
}

void RunningProgram::DoubleClickNode(const char* key) {
  ClickNode(key);
  auto& model = *qobject_cast<ConversationTreeModel*>(Tree().model());
  const QModelIndex index = model.IndexOf(model.Tree().FindNode(key));
  QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, Tree().visualRect(index).center());
}

void RunningProgram::ClickRow(int row, Qt::MouseButton button) {
  Events().EnsureVisible(row);
  QTest::mouseClick(Events().viewport(), button, {}, Events().RowRect(row).center());
}

QLineEdit* RunningProgram::EditNode(const char* key) {
  ClickNode(key);
  Tree().setFocus();
  Press(Qt::Key_F2);
  const auto editor = [] { return qobject_cast<QLineEdit*>(QApplication::focusWidget()); };
  // A click on the selected node has opened the field by itself, if only after a while.
  static_cast<void>(QTest::qWaitFor([&] { return editor() != nullptr; }, 1000));
  return editor();
}

bool RunningProgram::Close() {
  window_->close();
  return !window_->isVisible();
}

void WhenFormShows(const char* name, std::function<void(QWidget&)> user) {
  auto* timer = new QTimer(qApp);  // lives until the form has come, or the test has ended
  timer->setObjectName(kWaitsForAForm);
  timer->setProperty("form", QString::fromLatin1(name));
  timer->setInterval(10);
  QObject::connect(timer, &QTimer::timeout, timer, [timer, name, user = std::move(user)] {
    QWidget* form = QApplication::activeModalWidget();
    if (form == nullptr || form->objectName() != QLatin1String(name)) return;
    if (!form->isActiveWindow()) return;
    timer->stop();
    timer->deleteLater();
    user(*form);
  });
  timer->start();
}

std::string WindowTest::PutSampleFile(int version, const std::string& name) {
  const std::string path = folder.File(name);
  WriteBytes(path, SampleFile(version));
  return path;
}

}  // namespace parlate::testing_support
