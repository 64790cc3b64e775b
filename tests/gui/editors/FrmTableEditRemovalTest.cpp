#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "editors/TableEditorFixture.h"
#include "model/TableCombos.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;
using testing::IsEmpty;
using Icon = MessageBox::Icon;
using Buttons = MessageBox::Buttons;

constexpr const char* kSelect = "no row is selected";

class FrmTableEditRemovalTest : public TableEditorTest {};

TEST_F(FrmTableEditRemovalTest, AnUnusedRowIsDeletedAndTheNextOneSelected) {
  TestWorkspace::AddRows(kObjectTable, {{10, "Axe"}});
  Edit(kObjectTable, [](QWidget& form) {
    EXPECT_THAT(Rows(form), ElementsAre("Axe", "Key", "Rope"));
    ClickRow(form, 0);
    Click(form, "cmdDelete");
    EXPECT_THAT(Rows(form), ElementsAre("Key", "Rope"));
    EXPECT_EQ(List(form).ListIndex(), 0) << "the row that moved up";
    ClickRow(form, 1);
    Click(form, "cmdDelete");
    EXPECT_THAT(Rows(form), ElementsAre("Key"));
    EXPECT_EQ(List(form).ListIndex(), 0) << "the last one that is left";
    EXPECT_TRUE(IsEnabled(form, "cmdDelete"));
  });
  EXPECT_THAT(NamesOf(kObjectTable), ElementsAre("Key"));
  EXPECT_TRUE(IsModified());
}

TEST_F(FrmTableEditRemovalTest, TheDeleteKeyDeletesWithoutModifierOnly) {
  Edit(kObjectTable, [](QWidget& form) {
    QTest::keyClick(&List(form), Qt::Key_Delete);
    EXPECT_EQ(List(form).ListCount(), 2) << kSelect;
    ClickRow(form, 1);
    QTest::keyClick(&List(form), Qt::Key_Delete, Qt::ShiftModifier);
    QTest::keyClick(&List(form), Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(List(form).ListCount(), 2);
    QTest::keyClicks(&TextOf(form, "txtName"), "x");
    QTest::keyClick(&TextOf(form, "txtName"), Qt::Key_Home);
    QTest::keyClick(&TextOf(form, "txtName"), Qt::Key_Delete);
    EXPECT_EQ(TextOf(form, "txtName").text(), "") << "in the name it deletes a letter";
    EXPECT_EQ(List(form).ListCount(), 2);
    QTest::keyClick(&List(form), Qt::Key_Delete);
    EXPECT_THAT(Rows(form), ElementsAre("Key"));
  });
}

TEST_F(FrmTableEditRemovalTest, TheAccessKeyOfBothDeleteButtonsGoesFromOneToTheOtherAndRunsNone) {
  Edit(kObjectTable, [](QWidget& form) {
    ClickRow(form, 1);
    std::set<QString> reached;
    for (int press = 0; press < 2; ++press) {
      QTest::keyClick(&form, Qt::Key_D, Qt::AltModifier);
      reached.insert(QApplication::focusWidget()->objectName());
    }
    EXPECT_EQ(reached, (std::set<QString>{"cmdDelete", "cmdDeleteUnused"}));
    // A button that was pressed by its key would be let go by now.
    QTest::qWait(250);
    EXPECT_THAT(Rows(form), ElementsAre("Key", "Rope"));
  });
  EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(FrmTableEditRemovalTest, TheAccessKeyOfDeleteUnusedRunsItWhileDeleteIsGrey) {
  program_.messages.Expect(Answer::No);
  Edit(kObjectTable, [this](QWidget& form) {
    EXPECT_FALSE(IsEnabled(form, "cmdDelete"));
    QTest::keyClick(&form, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Boxes().empty(); }));
  });
  ASSERT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(Boxes()[0].title, "Remove Unused Entries?");
}

TEST_F(FrmTableEditRemovalTest, ARowInUseIsNotDeletedAndNoEndsIt) {
  program_.messages.Expect(Answer::No);
  Edit(kObjectTable, [](QWidget& form) {
    ClickRow(form, 0);
    Click(form, "cmdDelete");
    EXPECT_THAT(Rows(form), ElementsAre("Key", "Rope"));
  });
  ASSERT_EQ(Boxes().size(), 1U);
  EXPECT_THAT(Boxes()[0],
              IsBox("Cannot Remove Item",
                    "This Item cannot be removed because it is referenced in at least one "
                    "conversation.  You must first remove the references.\n\nWould you like to see "
                    "the conversations the item is referenced in?",
                    Icon::Question, Buttons::YesNo));
  EXPECT_NE(GetTable(kObjectTable)->Find(4), nullptr);
  EXPECT_FALSE(IsModified());
}

TEST_F(FrmTableEditRemovalTest, ARowInUseIsNotDeletedWithYesEitherAndASecondBoxIsSorry) {
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  Edit(kObjectTable, [](QWidget& form) {
    ClickRow(form, 0);
    Click(form, "cmdDelete");
    EXPECT_EQ(List(form).ListCount(), 2);
  });
  ASSERT_EQ(Boxes().size(), 2U);
  EXPECT_THAT(Boxes()[1], IsBox("Sorry!", "Sorry, ain't gonna' happen.  Maybe after E3.",
                                Icon::Critical, Buttons::Ok));
  EXPECT_NE(GetTable(kObjectTable)->Find(4), nullptr);
}

TEST_F(FrmTableEditRemovalTest, AnActorIsInUseAsSoonAsAJumpWasLoadedThoughNobodyNamesIt) {
  for (std::size_t place = 1; place <= 2; ++place) {
    program_.shell().GetConFile()->Conversations.Place(place)->NPCID = 1;
  }
  Conversation& con = *program_.shell().GetConFile()->Conversations.Place(1);
  std::vector<std::int32_t> others;
  for (const EventItem& event : con.events) {
    if (event.eventType != kJump) others.push_back(event.key);
  }
  for (const std::int32_t key : others) con.EventRemove(key);
  program_.messages.Expect(Answer::No);
  Edit(kActorTable, [](QWidget& form) {
    EXPECT_EQ(List(form).List(0), "Alex");
    ClickRow(form, 0);
    Click(form, "cmdDelete");
    EXPECT_EQ(List(form).ListCount(), 3) << "the owner that a jump remembers is 0 until it is cut";
  });
}

TEST_F(FrmTableEditRemovalTest, DeleteUnusedRemovesWhatNothingNamesAndMarksNothing) {
  TestWorkspace::AddRows(kObjectTable, {{10, "Axe"}, {11, "Zip"}});
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  Edit(kObjectTable, [](QWidget& form) {
    Click(form, "cmdDeleteUnused");
    EXPECT_TRUE(form.isVisible());
    EXPECT_THAT(Rows(form), ElementsAre("Key"));
    EXPECT_EQ(List(form).ListIndex(), 0) << "the row that moved up to the one removed last";
    EXPECT_TRUE(IsEnabled(form, "cmdDelete"));
  });
  ASSERT_EQ(Boxes().size(), 2U);
  EXPECT_THAT(Boxes()[0], IsBox("Remove Unused Entries?",
                                "Are you sure you wish to remove any unused table entries?",
                                Icon::Question, Buttons::YesNo));
  EXPECT_THAT(Boxes()[1],
              IsBox("Table Cleaned", "3 table entries were removed.", Icon::None, Buttons::Ok));
  EXPECT_THAT(NamesOf(kObjectTable), ElementsAre("Key"));
  EXPECT_FALSE(IsModified());
}

TEST_F(FrmTableEditRemovalTest, DeleteUnusedShowsEachNameUnderTheBarFromTheLastRowToTheFirst) {
  TestWorkspace::AddRows(kObjectTable, {{10, "Axe"}});
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  Edit(kObjectTable, [](QWidget& form) { Click(form, "cmdDeleteUnused"); });
  EXPECT_EQ(progress_.caption, "Progress");
  EXPECT_THAT(progress_.texts, ElementsAre("Removing Table Entries..."));
  EXPECT_THAT(progress_.tops, ElementsAre(3));
  EXPECT_THAT(progress_.textsBelow, ElementsAre("Rope", "Key", "Axe"));
  EXPECT_THAT(progress_.values, ElementsAre(1, 2, 3));
  EXPECT_FALSE(progress_.showing);
}

TEST_F(FrmTableEditRemovalTest, DeleteUnusedHidesTheWindowForTheWhile) {
  class Watching final : public ProgressDisplay {
   public:
    void Begin(const std::string&, const std::string&, int) override { Look(); }
    void SetTop(int) override {}
    void Step(const std::string&, int) override { Look(); }
    void End() override { Look(); }
    void Look() { seen.insert(form->isVisible()); }

    QWidget* form = nullptr;
    std::set<bool> seen;
  };
  Watching progress;
  frmTableEdit editor({program_.shell(), program_.messages, program_.dialogs, progress}, nullptr);
  progress.form = &editor;
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  WhenFormShows("frmTableEdit", [](QWidget& form) {
    Click(form, "cmdDeleteUnused");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.isModal());
    Click(form, "cmdClose");
  });
  editor.EditTable(kObjectTable);
  EXPECT_EQ(progress.seen, std::set<bool>{false});
  EXPECT_FALSE(editor.isVisible());
}

TEST_F(FrmTableEditRemovalTest, DeleteUnusedWithNoUnusedRowReportsNone) {
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  Edit(kSkillTable, [](QWidget& form) {
    ClickRow(form, 0);
    Click(form, "cmdDeleteUnused");
    EXPECT_EQ(List(form).ListIndex(), 0);
  });
  EXPECT_EQ(Boxes().back().text, "0 table entries were removed.");
}

TEST_F(FrmTableEditRemovalTest, DeleteUnusedAnsweredWithNoDoesNothing) {
  program_.messages.Expect(Answer::No);
  Edit(kObjectTable, [](QWidget& form) {
    Click(form, "cmdDeleteUnused");
    EXPECT_EQ(List(form).ListCount(), 2);
  });
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_TRUE(progress_.texts.empty());
}

TEST_F(FrmTableEditRemovalTest, DeleteUnusedCanEmptyTheTable) {
  program_.shell().GetConFile()->ConversationRemoveAll();
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  Edit(kObjectTable, [](QWidget& form) {
    Click(form, "cmdDeleteUnused");
    EXPECT_EQ(List(form).ListCount(), 0);
    EXPECT_EQ(List(form).ListIndex(), -1);
    for (const char* name : {"cmdEdit", "cmdDelete", "cmdDeleteUnused", "cmdPrint"}) {
      EXPECT_FALSE(IsEnabled(form, name)) << name;
    }
  });
  EXPECT_THAT(NamesOf(kObjectTable), IsEmpty());
}

TEST_F(FrmTableEditRemovalTest, OfThousandsOfRowsOnlyTheUsedOneStays) {
  testing_support::Rows rows;
  for (std::int32_t id = 5000; id > 0; --id)
    rows.emplace_back(id + 100, "Row" + std::to_string(id));
  TestWorkspace::AddRows(kObjectTable, rows);
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  Edit(kObjectTable, [](QWidget& form) { Click(form, "cmdDeleteUnused"); });
  EXPECT_EQ(Boxes().back().text, "5001 table entries were removed.");
  EXPECT_THAT(NamesOf(kObjectTable), ElementsAre("Key"));
}

}  // namespace
}  // namespace parlate
