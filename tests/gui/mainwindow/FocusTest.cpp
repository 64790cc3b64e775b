// Where the keys go in the main window when a file comes and goes.

#include <QApplication>

#include "mainwindow/NewFileSteps.h"
#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"

namespace parlate {
namespace {

using namespace testing_support;

class Focus : public WindowTest {
 protected:
  Focus() { EXPECT_TRUE(program.Start()); }
  void Open(const std::string& file) {
    program.dialogs.Expect(file);
    program.Choose("mnuFileOpen");
    program.Activate();
  }
  void ExpectItInTheTree() { EXPECT_EQ(QApplication::focusWidget(), &program.Tree()); }

  std::string path = PutSampleFile(28);
  RunningProgram program;
};

TEST_F(Focus, IsInTheTreeAfterAnOpen) {
  Open(path);
  ExpectItInTheTree();
}

TEST_F(Focus, IsInTheTreeOfAFileFromTheCommandLine) {
  RunningProgram other;
  ASSERT_TRUE(other.Start(PutSampleFile(28, "other.con")));
  EXPECT_EQ(QApplication::focusWidget(), &other.Tree());
}

TEST_F(Focus, IsInNoControlAfterAClose) {
  Open(path);
  program.Choose("mnuFileClose");
  EXPECT_EQ(QApplication::focusWidget(), &program.Window());
  program.Press(Qt::Key_Space);  // which would press a button of the toolbar
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(Focus, IsInTheTreeAgainAfterAReopen) {
  Open(path);
  program.Events().setFocus();
  program.Choose("mnuFileClose");
  program.Choose("mnuFileLast(0)");
  program.Activate();
  ExpectItInTheTree();
}

TEST_F(Focus, IsInTheTreeWhenOneFileFollowsAnother) {
  Open(path);
  program.Events().setFocus();
  Open(PutSampleFile(28, "second.con"));
  ExpectItInTheTree();
}

TEST_F(Focus, IsInTheTreeOfANewFile) {
  MakeFile(program);
  program.Activate();
  ExpectItInTheTree();
}

TEST_F(Focus, StaysInTheListWhileTheTreeIsHiddenForAWalk) {
  Open(path);
  program.Choose("mnuConCollapseAll");
  ExpectItInTheTree();
  program.Events().setFocus();
  program.Choose("mnuConExpandAll");
  EXPECT_EQ(QApplication::focusWidget(), &program.Events());
}

TEST_F(Focus, StaysInTheListThroughASave) {
  Open(path);
  program.ClickNode("C7");
  program.Events().setFocus();
  WhenFormShows("frmMissingLabels", [](QWidget& form) {
    QTest::mouseClick(&ControlNamed<QAbstractButton>(form, "cmdYes"), Qt::LeftButton);
  });
  program.Choose("mnuFileSave");
  program.Activate();
  EXPECT_EQ(QApplication::focusWidget(), &program.Events());
}

}  // namespace
}  // namespace parlate
