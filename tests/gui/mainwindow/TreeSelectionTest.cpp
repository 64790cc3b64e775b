// What stays selected in the tree, and looks it, whatever is pressed or removed there.

#include <QApplication>
#include <QClipboard>

#include "mainwindow/WindowFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

class TreeSelection : public WindowTest {
 protected:
  void SetUp() override {
    ASSERT_TRUE(program.Start(PutSampleFile(28)));
    program.shell().ExpandTreeNodes(true, program.shell().tvCons().FindNode("C0"));
    program.ClickNode("C0");
  }
  [[nodiscard]] QModelIndex IndexOf(const char* key) {
    auto& model = *qobject_cast<ConversationTreeModel*>(program.Tree().model());
    return model.IndexOf(model.Tree().FindNode(key));
  }
  void ExpectSelected(const char* key) {
    ASSERT_NE(program.shell().tvCons().SelectedItem(), nullptr);
    EXPECT_EQ(program.shell().tvCons().SelectedItem()->Key(), key);
    EXPECT_EQ(program.Tree().currentIndex(), IndexOf(key));
    EXPECT_EQ(program.Tree().selectionModel()->selectedIndexes(), QModelIndexList{IndexOf(key)});
  }
  void CtrlClick(const char* key) {
    QTest::mouseClick(program.Tree().viewport(), Qt::LeftButton, Qt::ControlModifier,
                      program.Tree().visualRect(IndexOf(key)).center());
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&program.Tree(), key, modifiers);
  }

  RunningProgram program;
};

TEST_F(TreeSelection, StaysOnTheNodeThatIsClickedWithCtrl) {
  CtrlClick("C0");
  ExpectSelected("C0");
  CtrlClick("C0");
  ExpectSelected("C0");
  CtrlClick("C7");
  ExpectSelected("C7");
  EXPECT_EQ(program.shell().SelectedCon()->key, 7);
}

TEST_F(TreeSelection, StaysOnTheNodeAtCtrlAndSpace) {
  Press(Qt::Key_Space, Qt::ControlModifier);
  ExpectSelected("C0");
  Press(Qt::Key_Space, Qt::ControlModifier);
  ExpectSelected("C0");
  EXPECT_EQ(program.shell().SelectedCon()->key, 0);
}

TEST_F(TreeSelection, IsCopiedByCtrlCToTheProgramsOwnClipboardAlone) {
  QApplication::clipboard()->setText("kept");
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "kept");
  EXPECT_TRUE(program.shell().Predicates().conBuffered);
  Press(Qt::Key_Insert, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "kept");
}

TEST_F(TreeSelection, GoesFromARemovedFlagToItsConversationAndTheKeysGoOnThere) {
  program.ClickNode("F2,0");
  program.Choose("mnuFlagPopupRemove");
  EXPECT_EQ(program.shell().tvCons().FindNode("F2,0"), nullptr);
  ExpectSelected("C0");
  EXPECT_EQ(program.shell().SelectedCon()->key, 0);
  EXPECT_EQ(program.Events().Rows().ListCount(), 23U);
  Press(Qt::Key_Down);
  ExpectSelected("F3,0");
  program.Choose("mnuFlagPopupRemove");
  ExpectSelected("C0");
  Press(Qt::Key_Up);
  ExpectSelected("A1");
}

}  // namespace
}  // namespace parlate
