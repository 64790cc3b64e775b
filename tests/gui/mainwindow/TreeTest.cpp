// The tree of conversations under the mouse and the keys.

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QKeySequence>

#include "mainwindow/WindowFixture.h"
#include "support/ConversationScript.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

class Tree : public WindowTest {};

TEST_F(Tree, ARefusedNameInTheTreeTellsWhyOnceAndTheOldOneStands) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  const struct {
    const char* typed;
    const char* message;
  } refusals[] = {
      {"two words",
       "Conversation names can only consist of letters, digits, underscore (_) and dash (-)."},
      {"LEAVING", "Conversation Name already in use, please choose another name."},
      {"", "Conversation Names Cannot Be Blank!"},
  };
  for (const auto& refusal : refusals) {
    QLineEdit* editor = program.EditNode("C0");
    ASSERT_NE(editor, nullptr);
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Delete);
    QTest::keyClicks(editor, refusal.typed);
    program.messages.Expect(Answer::Ok);
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return program.Tree().findChild<QLineEdit*>() == nullptr; }));
    EXPECT_EQ(program.messages.shown.back().text, refusal.message);
    EXPECT_EQ(program.shell().tvCons().FindNode("C0")->text, "Greeting");
  }
  EXPECT_EQ(program.messages.shown.size(), 3U);
}

TEST_F(Tree, ActorsAndFlagsCannotBeRenamed) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  EXPECT_EQ(program.EditNode("A1"), nullptr);
  program.shell().ExpandTreeNodes(true, program.shell().tvCons().FindNode("C0"));
  EXPECT_EQ(program.EditNode("F2,0"), nullptr);
}

TEST_F(Tree, ACharacterOutsideTheCodePageShowsAtOnceAsAQuestionMark) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  QLineEdit* editor = program.EditNode("C0");
  ASSERT_NE(editor, nullptr);
  editor->selectAll();
  QApplication::clipboard()->setText(QString::fromUtf8("a\u0436b"));
  QTest::keyClick(editor, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(editor->text(), "a?b");
  QTest::keyClick(editor, Qt::Key_Escape);
}

TEST_F(Tree, ANameLeftAsItWasMarksNothingAndTabStaysOnTheNode) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  QLineEdit* editor = program.EditNode("C0");
  ASSERT_NE(editor, nullptr);
  QTest::keyClick(editor, Qt::Key_Tab);
  EXPECT_TRUE(QTest::qWaitFor([&] { return program.Tree().findChild<QLineEdit*>() == nullptr; }));
  EXPECT_EQ(program.shell().SelectedCon()->key, 0);
  EXPECT_FALSE(program.shell().GetConFile()->IsModified());
}

TEST_F(Tree, ClickingAnActorEmptiesTheListAndAFlagShowsItsConversation) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  EXPECT_TRUE(program.Enabled("mnuEventsAdd"));
  program.ClickNode("A0");
  EXPECT_EQ(program.Events().Rows().ListCount(), 0U);
  EXPECT_FALSE(program.Enabled("mnuEventsAdd"));
  program.shell().ExpandTreeNodes(true, program.shell().tvCons().FindNode("C0"));
  program.ClickNode("F3,0");
  EXPECT_EQ(program.Events().Rows().ListCount(), 23U);
}

TEST_F(Tree, TypingCCopiesTheConversationAndVPastesIt) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C7");
  QTest::keyClick(&program.Tree(), Qt::Key_C);
  QTest::keyClick(&program.Tree(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(program.shell().GetConFile()->Conversations.Count(), 3U);
  EXPECT_EQ(program.shell().SelectedCon()->key, 12);
}

TEST_F(Tree, TheTreesPopupIsForTheSelectedNodeNotTheOneUnderTheMouse) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.ClickNode("A0", Qt::RightButton);
  auto& popup = program.Find<QMenu>("mnuConPopup");
  ASSERT_TRUE(QTest::qWaitFor([&] { return popup.isVisible(); }));
  EXPECT_EQ(program.shell().tvCons().SelectedItem()->Key(), "C0");
  for (const char* live : {"mnuConPopupDelete", "mnuConPopupProperties", "mnuConPopupPrint",
                           "mnuConPopupExpandFlags", "mnuConPopupCut", "mnuConPopupCopy"}) {
    EXPECT_TRUE(program.Enabled(live)) << live;
  }
  EXPECT_FALSE(program.Enabled("mnuConPopupPaste"));
  popup.close();
}

TEST_F(Tree, AReleaseOfAnyButtonOnEmptySpaceBringsTheCommandsUpToDate) {
  const std::string path = PutSampleFile(28);
  for (const auto button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
    RunningProgram program;
    ASSERT_TRUE(program.Start(path));
    program.ClickNode("C0");
    program.Choose("mnuConCopy");
    QWidget& area = *program.Tree().viewport();
    const QPoint empty = area.rect().bottomRight() - QPoint(5, 5);
    ASSERT_FALSE(program.Tree().indexAt(empty).isValid());
    QTest::mousePress(&area, button, {}, empty);
    ASSERT_FALSE(program.Enabled("mnuConPaste")) << "a copy alone updates nothing";
    QTest::mouseRelease(&area, button, {}, empty);
    EXPECT_TRUE(program.Enabled("mnuConPaste")) << button;
    program.Find<QMenu>("mnuConPopup").close();
    EXPECT_TRUE(program.Close());
  }
}

TEST_F(Tree, TheFlagPopupTurnsTheFlagAndMarksNothingAsChanged) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.shell().ExpandTreeNodes(true, program.shell().tvCons().FindNode("C0"));
  program.ClickNode("F2,0");
  program.ClickNode("F2,0", Qt::RightButton);
  auto& popup = program.Find<QMenu>("mnuFlagPopup");
  ASSERT_TRUE(QTest::qWaitFor([&] { return popup.isVisible(); }));
  popup.close();
  program.Choose("mnuFlagPopupToggle");
  EXPECT_EQ(program.shell().tvCons().FindNode("F2,0")->Text(), "Door = False");
  EXPECT_FALSE(program.shell().GetConFile()->IsModified());
  EXPECT_TRUE(program.Close());
}

TEST_F(Tree, CollapseAllClosesTheActorOfTheSelectedConversationToo) {
  const std::string path = PutSampleFile(28);
  RunningProgram program;
  ASSERT_TRUE(program.Start(path));
  program.ClickNode("C0");
  program.Tree().setFocus();
  program.Choose("mnuConCollapseAll");
  QTest::qWait(50);  // scrolling to the selected node would come late
  const QModelIndex actor = program.Tree().model()->index(0, 0);
  EXPECT_FALSE(program.Tree().isExpanded(actor));
  EXPECT_TRUE(program.Tree().hasFocus());
  program.Choose("mnuConExpandAll");
  EXPECT_TRUE(program.Tree().isExpanded(actor));
}

/// The program with a file open and nothing done in it yet.
class FreshTree : public WindowTest {
 protected:
  void Open(const std::string& bytes) {
    WriteBytes(folder.File("fresh.con"), bytes);
    ASSERT_TRUE(program.Start(folder.File("fresh.con")));
    EXPECT_TRUE(program.Tree().hasFocus());
  }
  void OpenSample() { Open(SampleFile(28)); }
  [[nodiscard]] std::string Selected() {
    const TreeNode* node = program.shell().tvCons().SelectedItem();
    return node == nullptr ? "" : node->Key();
  }
  /// Key of the conversation whose events are listed, or -1.
  [[nodiscard]] std::int32_t ListedCon() {
    const auto& con = program.shell().SelectedCon();
    return con ? con->key : -1;
  }
  [[nodiscard]] std::vector<std::int32_t> Conversations() {
    std::vector<std::int32_t> keys;
    for (const Conversation& con : program.shell().GetConFile()->Conversations) {
      keys.push_back(con.key);
    }
    return keys;
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&program.Tree(), key, modifiers);
  }
  /// The place of the sign that opens and closes a node.
  [[nodiscard]] QPoint SignOf(const char* key) {
    auto& model = *qobject_cast<ConversationTreeModel*>(program.Tree().model());
    const QRect node = program.Tree().visualRect(model.IndexOf(model.Tree().FindNode(key)));
    return {node.left() - program.Tree().indentation() / 2, node.center().y()};
  }

  RunningProgram program;
};

class FirstKey : public FreshTree, public testing::WithParamInterface<Qt::Key> {};

INSTANTIATE_TEST_SUITE_P(, FirstKey,
                         testing::Values(Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageUp,
                                         Qt::Key_Space),
                         [](const auto& test) {
                           return QKeySequence(test.param).toString().toStdString();
                         });

TEST_P(FirstKey, SelectsTheFirstNodeAndTheNextOnesGoOnFromThere) {
  OpenSample();
  EXPECT_EQ(Selected(), "");
  Press(GetParam());
  EXPECT_EQ(Selected(), "A1");
  EXPECT_TRUE(program.Tree().selectionModel()->isSelected(program.Tree().model()->index(0, 0)));
  EXPECT_EQ(ListedCon(), -1);
  Press(Qt::Key_Down);
  EXPECT_EQ(Selected(), "C0");
  EXPECT_EQ(ListedCon(), 0);
  EXPECT_EQ(program.Events().Rows().ListCount(), 23U);
}

TEST_F(FreshTree, EndAsTheFirstKeyGoesToTheLastNode) {
  OpenSample();
  Press(Qt::Key_End);
  EXPECT_EQ(Selected(), "C7");
  EXPECT_EQ(ListedCon(), 7);
}

TEST_F(FreshTree, EndReachesTheOnlyNodeInSight) {
  Open(FileOf(HarbourTables(), {Con(0, "greeting", kZoe)}));
  program.Choose("mnuConCollapseAll");
  Press(Qt::Key_End);
  EXPECT_EQ(Selected(), "A1");
}

TEST_F(FreshTree, AnEmptyTreeHasNoNodeForTheFirstKey) {
  Open(FileOf(HarbourTables(), {}));
  Press(Qt::Key_Down);
  EXPECT_EQ(Selected(), "");
}

TEST_F(FreshTree, KeysSelectTheFirstNodeAgainAfterTheSelectedOneWent) {
  OpenSample();
  program.ClickNode("C7");
  program.messages.Expect(Answer::Yes);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Selected(), "");
  Press(Qt::Key_Space);
  EXPECT_EQ(Selected(), "A1");
}

TEST_F(FreshTree, TheSignOfTheSelectedNodeOpensItAndIsNoClickOnIt) {
  OpenSample();
  program.ClickNode("C0");
  program.ClickRow(2);
  auto& tree = program.Tree();
  const QModelIndex greeting = tree.currentIndex();
  ASSERT_FALSE(tree.isExpanded(greeting));
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, SignOf("C0"));
  EXPECT_TRUE(tree.isExpanded(greeting));
  EXPECT_EQ(program.Events().Rows().ListIndex(), 2) << "a click would have built the list anew";
  program.ClickRow(2);
  EXPECT_EQ(program.Events().Rows().ListIndex(), -1) << "the row's second click";
}

TEST_F(FreshTree, AClickOnTheSelectedConversationBuildsItsListAnew) {
  OpenSample();
  program.ClickNode("C0");
  program.ClickRow(2);
  program.ClickNode("C0");
  EXPECT_EQ(program.Events().Rows().ListIndex(), -1);
  program.ClickRow(2);
  EXPECT_EQ(program.Events().Rows().ListIndex(), 2);
}

TEST_F(FreshTree, TheSignOfAnotherNodeSelectsNothing) {
  OpenSample();
  program.ClickNode("C7");
  QTest::mouseClick(program.Tree().viewport(), Qt::LeftButton, {}, SignOf("C0"));
  EXPECT_TRUE(program.shell().tvCons().FindNode("C0")->expanded);
  EXPECT_EQ(Selected(), "C7");
  EXPECT_EQ(ListedCon(), 7);
}

TEST_F(FreshTree, TypingXCutsTheConversationAndAsksNothing) {
  OpenSample();
  program.ClickNode("C7");
  Press(Qt::Key_X);
  EXPECT_THAT(Conversations(), ElementsAre(0));
  EXPECT_EQ(ListedCon(), -1);
  EXPECT_EQ(program.shell().tvCons().FindNode("A0"), nullptr) << "it owned nothing else";
  Press(Qt::Key_V);
  EXPECT_THAT(Conversations(), ElementsAre(0, 12));
  EXPECT_EQ(Selected(), "C12");
  Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_THAT(Conversations(), ElementsAre(0));
}

TEST_F(FreshTree, DeleteAsksAndDeletesTheConversation) {
  OpenSample();
  program.ClickNode("C7");
  program.messages.Expect(Answer::No);
  Press(Qt::Key_Delete);
  EXPECT_EQ(program.messages.shown.back().title, "Delete?");
  EXPECT_EQ(program.messages.shown.back().text,
            "Are you sure you wish to Delete this Conversation?");
  EXPECT_THAT(Conversations(), ElementsAre(0, 7));
  program.messages.Expect(Answer::Yes);
  Press(Qt::Key_Delete, Qt::KeypadModifier);
  EXPECT_THAT(Conversations(), ElementsAre(0));
}

TEST_F(FreshTree, DeleteWithAModifierOrWithoutAConversationDoesNothing) {
  OpenSample();
  program.ClickNode("C7");
  for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
    Press(Qt::Key_Delete, modifier);
    EXPECT_THAT(Conversations(), ElementsAre(0, 7)) << modifier;
  }
  program.ClickNode("A0");
  Press(Qt::Key_Delete);
  EXPECT_THAT(Conversations(), ElementsAre(0, 7));
  EXPECT_TRUE(program.messages.shown.empty());
}

TEST_F(FreshTree, InsertWithAModifierOrWithoutAConversationAddsNone) {
  OpenSample();
  program.ClickNode("A0");
  Press(Qt::Key_Insert);
  program.ClickNode("C7");
  Press(Qt::Key_Insert, Qt::ShiftModifier);
  Press(Qt::Key_Return);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_THAT(Conversations(), ElementsAre(0, 7));
}

TEST_F(FreshTree, InsertAsksForTheNewConversation) {
  OpenSample();
  program.ClickNode("C7");
  bool came = false;
  WhenFormShows("frmProperties", [&came](QWidget& form) {
    came = true;
    form.close();
  });
  Press(Qt::Key_Insert);
  EXPECT_TRUE(came);
}

TEST_F(FreshTree, LettersAreCommandsAndDoNotSearchForANode) {
  Open(FileOf(HarbourTables(),
              {Con(0, "anchor", kZoe), Con(1, "cabin", kZoe), Con(2, "xebec", kZoe)}));
  program.ClickNode("C0");
  Press(Qt::Key_C);
  EXPECT_EQ(Selected(), "C0") << "not the node that begins with the letter";
  EXPECT_TRUE(program.shell().Predicates().conBuffered);
  Press(Qt::Key_X);
  EXPECT_THAT(Conversations(), ElementsAre(1, 2)) << "the one that was selected";
}

}  // namespace
}  // namespace parlate
