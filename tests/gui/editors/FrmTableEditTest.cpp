#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "editors/EditorFixture.h"
#include "editors/frmTableEdit.h"
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

class FrmTableEditTest : public EditorTest {
 protected:
  /// Opens the editor of a table, lets the user work, and closes it with its button.
  std::int32_t Edit(std::int32_t tableType, const std::function<void(QWidget&)>& user) {
    frmTableEdit editor(Doors(), &program_.Window());
    WhenFormShows("frmTableEdit", [&user](QWidget& form) {
      user(form);
      if (form.isVisible()) Click(form, "cmdClose");
    });
    return editor.EditTable(tableType);
  }

  static QtListBox& List(const QWidget& form) { return ControlNamed<QtListBox>(form, "lstTable"); }
  static std::vector<std::string> Rows(const QWidget& form) {
    std::vector<std::string> rows;
    for (int i = 0; i < List(form).ListCount(); ++i) rows.push_back(List(form).List(i));
    return rows;
  }
  static void ClickRow(const QWidget& form, int row) {
    QtListBox& list = List(form);
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(row)).center());
  }
  static void DoubleClickRow(const QWidget& form, int row) {
    ClickRow(form, row);
    QTest::mouseDClick(List(form).viewport(), Qt::LeftButton, {},
                       List(form).visualItemRect(List(form).item(row)).center());
  }
  static void Add(const QWidget& form, const char* name) {
    TextOf(form, "txtName").clear();
    QTest::keyClicks(&TextOf(form, "txtName"), name);
    Click(form, "cmdAdd");
  }
  static std::vector<std::string> NamesOf(std::int32_t tableType) {
    std::vector<std::string> names;
    for (const TableItem& row : *GetTable(tableType)) names.push_back(row.Name);
    return names;
  }
  bool IsModified() { return program_.shell().GetConFile()->IsModified(); }
};

TEST_F(FrmTableEditTest, EveryCaptionIsTheRightOne) {
  const std::vector<std::pair<std::int32_t, const char*>> captions = {{kActorTable, "Actors/Pawns"},
                                                                      {kSkillTable, "Skills"},
                                                                      {kFlagTable, "Flags"},
                                                                      {kObjectTable, "Objects"}};
  for (const auto& [table, caption] : captions) {
    Edit(table, [&, expected = caption](QWidget& form) {
      EXPECT_EQ(form.objectName(), "frmTableEdit");
      EXPECT_EQ(form.windowTitle(), expected);
      EXPECT_TRUE(form.isModal());
      EXPECT_EQ(List(form).accessibleName(), expected);
      EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdAdd").text(), "&Add");
      EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdEdit").text(), "&Edit");
      EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdDelete").text(), "&Delete");
      EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdDeleteUnused").text(), "&Delete Unused");
      EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdPrint").text(), "&Print Table");
      EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdClose").text(), "&Close");
    });
  }
}

TEST_F(FrmTableEditTest, TheRowsStandInOrderOfTheirNamesEachWithItsId) {
  Edit(kActorTable, [](QWidget& form) {
    EXPECT_THAT(Rows(form), ElementsAre("Alex", "Bob", "Maya \xE9"));
    EXPECT_EQ(List(form).ItemData(0), 0);
    EXPECT_EQ(List(form).ItemData(1), 5);
    EXPECT_EQ(List(form).ItemData(2), 1);
    EXPECT_EQ(List(form).ListIndex(), -1);
  });
}

TEST_F(FrmTableEditTest, OfTwoRowsOfOneNameEachKeepsItsId) {
  TestWorkspace::AddRows(kSkillTable, {{7, "Computers"}});
  Edit(kSkillTable, [](QWidget& form) {
    EXPECT_THAT(Rows(form), ElementsAre("Computers", "Computers"));
    EXPECT_EQ(List(form).ItemData(0), 1);
    EXPECT_EQ(List(form).ItemData(1), 7);
  });
}

TEST_F(FrmTableEditTest, EditAndDeleteNeedASelectedRow) {
  Edit(kActorTable, [](QWidget& form) {
    EXPECT_FALSE(IsEnabled(form, "cmdEdit"));
    EXPECT_FALSE(IsEnabled(form, "cmdDelete"));
    EXPECT_TRUE(IsEnabled(form, "cmdDeleteUnused"));
    EXPECT_TRUE(IsEnabled(form, "cmdPrint"));
    ClickRow(form, 1);
    EXPECT_TRUE(IsEnabled(form, "cmdEdit"));
    EXPECT_TRUE(IsEnabled(form, "cmdDelete"));
  });
}

TEST_F(FrmTableEditTest, WithoutRowsFourButtonsAreGrey) {
  GetTable(kSkillTable)->Clear();
  Edit(kSkillTable, [](QWidget& form) {
    for (const char* name : {"cmdEdit", "cmdDelete", "cmdDeleteUnused", "cmdPrint"}) {
      EXPECT_FALSE(IsEnabled(form, name)) << name;
    }
    Add(form, "Swim");
    EXPECT_TRUE(IsEnabled(form, "cmdDeleteUnused"));
    EXPECT_TRUE(IsEnabled(form, "cmdPrint"));
    EXPECT_FALSE(IsEnabled(form, "cmdEdit"));
    EXPECT_FALSE(IsEnabled(form, "cmdDelete"));
  });
}

TEST_F(FrmTableEditTest, AddNeedsATextAndABlankIsOne) {
  Edit(kActorTable, [](QWidget& form) {
    EXPECT_FALSE(IsEnabled(form, "cmdAdd"));
    QTest::keyClicks(&TextOf(form, "txtName"), " ");
    EXPECT_TRUE(IsEnabled(form, "cmdAdd"));
    QTest::keyClick(&TextOf(form, "txtName"), Qt::Key_Backspace);
    EXPECT_FALSE(IsEnabled(form, "cmdAdd"));
  });
}

TEST_F(FrmTableEditTest, ANewRowGetsTheNextIdAtItsPlaceWithoutBlanksRoundTheName) {
  EXPECT_FALSE(IsModified());
  Edit(kActorTable, [](QWidget& form) {
    QTest::keyClicks(&TextOf(form, "txtName"), "  Big Cy ");
    QTest::keyClick(&TextOf(form, "txtName"), Qt::Key_Return);
    EXPECT_THAT(Rows(form), ElementsAre("Alex", "Big Cy", "Bob", "Maya \xE9"));
    EXPECT_EQ(List(form).ItemData(1), 6);
    EXPECT_EQ(TextOf(form, "txtName").text(), "");
    EXPECT_FALSE(IsEnabled(form, "cmdAdd"));
    EXPECT_EQ(List(form).ListIndex(), -1) << kSelect;
    EXPECT_TRUE(TextOf(form, "txtName").hasFocus()) << "so that the next name can be typed";
  });
  EXPECT_THAT(NamesOf(kActorTable), ElementsAre("Maya \xE9", "Alex", "Bob", "Big Cy"));
  EXPECT_TRUE(IsModified());
}

TEST_F(FrmTableEditTest, ABlankNameIsTrimmedToAnEmptyOneAndAdded) {
  Edit(kObjectTable, [](QWidget& form) {
    Add(form, "   ");
    EXPECT_THAT(Rows(form), ElementsAre("", "Key", "Rope"));
  });
  EXPECT_THAT(NamesOf(kObjectTable), ElementsAre("Key", "Rope", ""));
}

TEST_F(FrmTableEditTest, ANameThatDiffersInCaseAloneIsRefused) {
  program_.messages.Expect(Answer::Ok);
  Edit(kActorTable, [](QWidget& form) {
    Add(form, " bob ");
    EXPECT_EQ(TextOf(form, "txtName").text(), "bob");
    EXPECT_EQ(TextOf(form, "txtName").selectedText(), "bob");
    EXPECT_TRUE(TextOf(form, "txtName").hasFocus());
    EXPECT_EQ(List(form).ListCount(), 3);
  });
  ASSERT_EQ(Boxes().size(), 1U);
  EXPECT_THAT(Boxes()[0],
              IsBox("Duplicate Entry",
                    "A table item with this name already exists, please choose a unique name.",
                    Icon::Exclamation, Buttons::Ok));
  EXPECT_EQ(GetTable(kActorTable)->Count(), 3U);
  EXPECT_FALSE(IsModified());
}

TEST_F(FrmTableEditTest, AFlagNameDropsTypedKeysThatMayNotStandInIt) {
  Edit(kFlagTable, [](QWidget& form) {
    QTest::keyClicks(&TextOf(form, "txtName"), "a b.C_-9;");
    TypeText(TextOf(form, "txtName"), QStringLiteral(u"\u00E9"));
    EXPECT_EQ(TextOf(form, "txtName").text(), "abC_-9");
    QTest::keyClick(&TextOf(form, "txtName"), Qt::Key_Backspace);
    EXPECT_EQ(TextOf(form, "txtName").text(), "abC_-");
  });
  Edit(kActorTable, [](QWidget& form) {
    QTest::keyClicks(&TextOf(form, "txtName"), "a b.;");
    EXPECT_EQ(TextOf(form, "txtName").text(), "a b.;") << "only flags are held to it";
  });
}

TEST_F(FrmTableEditTest, AFlagNameThatWasPastedIsRefusedWhenItIsAdded) {
  program_.messages.Expect(Answer::Ok);
  Edit(kFlagTable, [](QWidget& form) {
    TextOf(form, "txtName").setText("two words");
    Click(form, "cmdAdd");
    EXPECT_EQ(TextOf(form, "txtName").selectedText(), "two words");
    EXPECT_TRUE(TextOf(form, "txtName").hasFocus());
    EXPECT_EQ(List(form).ListCount(), 2);
  });
  ASSERT_EQ(Boxes().size(), 1U);
  EXPECT_THAT(
      Boxes()[0],
      SaysPlainly("Flag names can only consist of letters, digits, underscore (_) and dash (-)."));
  EXPECT_FALSE(IsModified());
}

TEST_F(FrmTableEditTest, RenamingChangesTheRowInPlaceWithoutAnyTest) {
  Edit(kFlagTable, [](QWidget& form) {
    ClickRow(form, 0);
    WhenFormShows("frmEditValue", [&form](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Edit Flag");
      EXPECT_EQ(dialog.parentWidget(), &form);
      EXPECT_EQ(ControlNamed<QLabel>(dialog, "lblDesc").text(), "Flag Name");
      EXPECT_EQ(TextOf(dialog, "txtValue").text(), "Door");
      TextOf(dialog, "txtValue").clear();
      QTest::keyClicks(&TextOf(dialog, "txtValue"), "zz top!");
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Click(form, "cmdEdit");
    EXPECT_THAT(Rows(form), ElementsAre("zz top!", "Lamp")) << "with letters Add would refuse";
    EXPECT_EQ(List(form).ListIndex(), 0);
  });
  EXPECT_EQ(GetTableItemName(kFlagTable, 2), "zz top!");
  EXPECT_TRUE(IsModified());
}

TEST_F(FrmTableEditTest, ARenamedRowMayTakeTheNameOfAnother) {
  Edit(kActorTable, [](QWidget& form) {
    ClickRow(form, 1);
    WhenFormShows("frmEditValue", [](QWidget& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Edit Actors/Pawn");
      EXPECT_EQ(ControlNamed<QLabel>(dialog, "lblDesc").text(), "Actors/Pawn Name");
      TextOf(dialog, "txtValue").setText("Alex");
      Click(dialog, "cmdOK");
    });
    QTest::keyClick(&form, Qt::Key_E, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return List(form).List(1) == "Alex"; }));
  });
  EXPECT_EQ(GetTableItemName(kActorTable, 5), "Alex");
}

TEST_F(FrmTableEditTest, ACancelledRenameMarksTheFileChangedAllTheSame) {
  Edit(kActorTable, [](QWidget& form) {
    ClickRow(form, 1);
    WhenFormShows("frmEditValue", [](QWidget& dialog) {
      QTest::keyClicks(&TextOf(dialog, "txtValue"), "xx");
      Click(dialog, "cmdCancel");
    });
    Click(form, "cmdEdit");
    EXPECT_EQ(List(form).List(1), "Bob");
  });
  EXPECT_EQ(GetTableItemName(kActorTable, 5), "Bob");
  EXPECT_TRUE(IsModified());
}

TEST_F(FrmTableEditTest, AnUnusedRowIsDeletedAndTheNextOneSelected) {
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

TEST_F(FrmTableEditTest, TheDeleteKeyDeletesWithoutModifierOnly) {
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

TEST_F(FrmTableEditTest, TheInsertKeyAddsTheNameFromTheListAndFromTheNameWithoutModifierOnly) {
  Edit(kObjectTable, [](QWidget& form) {
    QLineEdit& name = TextOf(form, "txtName");
    for (QWidget* field : {static_cast<QWidget*>(&List(form)), static_cast<QWidget*>(&name)}) {
      QTest::keyClick(field, Qt::Key_Insert);
      EXPECT_THAT(Rows(form), ElementsAre("Key", "Rope")) << "there is no name to add";
    }
    QTest::keyClicks(&name, "Axe");
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier}) {
      QTest::keyClick(&List(form), Qt::Key_Insert, modifier);
      QTest::keyClick(&name, Qt::Key_Insert, modifier);
    }
    EXPECT_EQ(name.text(), "Axe");
    EXPECT_THAT(Rows(form), ElementsAre("Key", "Rope"));
    QTest::keyClick(&name, Qt::Key_Insert);
    EXPECT_THAT(Rows(form), ElementsAre("Axe", "Key", "Rope"));
    EXPECT_EQ(name.text(), "");
    QTest::keyClicks(&name, "Zip");
    QTest::keyClick(&List(form), Qt::Key_Insert);
    EXPECT_THAT(Rows(form), ElementsAre("Axe", "Key", "Rope", "Zip"));
  });
  Edit(kFlagTable, [](QWidget& form) {
    QTest::keyClicks(&TextOf(form, "txtName"), "Axe");
    QTest::keyClick(&TextOf(form, "txtName"), Qt::Key_Insert);
    EXPECT_THAT(Rows(form), ElementsAre("Axe", "Door", "Lamp"));
  });
}

TEST_F(FrmTableEditTest, TheAccessKeyOfBothDeleteButtonsGoesFromOneToTheOtherAndRunsNone) {
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

TEST_F(FrmTableEditTest, TheAccessKeyOfDeleteUnusedRunsItWhileDeleteIsGrey) {
  program_.messages.Expect(Answer::No);
  Edit(kObjectTable, [this](QWidget& form) {
    EXPECT_FALSE(IsEnabled(form, "cmdDelete"));
    QTest::keyClick(&form, Qt::Key_D, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !Boxes().empty(); }));
  });
  ASSERT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(Boxes()[0].title, "Remove Unused Entries?");
}

TEST_F(FrmTableEditTest, ARowInUseIsNotDeletedAndNoEndsIt) {
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

TEST_F(FrmTableEditTest, ARowInUseIsNotDeletedWithYesEitherAndASecondBoxIsSorry) {
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

TEST_F(FrmTableEditTest, AnActorIsInUseAsSoonAsAJumpWasLoadedThoughNobodyNamesIt) {
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

TEST_F(FrmTableEditTest, DeleteUnusedRemovesWhatNothingNamesAndMarksNothing) {
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

TEST_F(FrmTableEditTest, DeleteUnusedShowsEachNameUnderTheBarFromTheLastRowToTheFirst) {
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

TEST_F(FrmTableEditTest, DeleteUnusedHidesTheWindowForTheWhile) {
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

TEST_F(FrmTableEditTest, DeleteUnusedWithNoUnusedRowReportsNone) {
  program_.messages.Expect(Answer::Yes);
  program_.messages.Expect(Answer::Ok);
  Edit(kSkillTable, [](QWidget& form) {
    ClickRow(form, 0);
    Click(form, "cmdDeleteUnused");
    EXPECT_EQ(List(form).ListIndex(), 0);
  });
  EXPECT_EQ(Boxes().back().text, "0 table entries were removed.");
}

TEST_F(FrmTableEditTest, DeleteUnusedAnsweredWithNoDoesNothing) {
  program_.messages.Expect(Answer::No);
  Edit(kObjectTable, [](QWidget& form) {
    Click(form, "cmdDeleteUnused");
    EXPECT_EQ(List(form).ListCount(), 2);
  });
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_TRUE(progress_.texts.empty());
}

TEST_F(FrmTableEditTest, DeleteUnusedCanEmptyTheTable) {
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

TEST_F(FrmTableEditTest, ManyUnusedRowsGoInAMoment) {
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

TEST_F(FrmTableEditTest, TheSelectedRowIsTheAnswer) {
  EXPECT_EQ(Edit(kActorTable, [](QWidget&) {}), -1);
  EXPECT_EQ(Edit(kActorTable, [](QWidget& form) { ClickRow(form, 1); }), 5);
  EXPECT_EQ(Edit(kActorTable, [](QWidget& form) { List(form).setFocus(); }), -1)
      << "the focus alone selects nothing";
  EXPECT_EQ(Edit(kActorTable,
                 [](QWidget& form) {
                   ClickRow(form, 2);
                   QTest::keyClick(&form, Qt::Key_Escape);
                 }),
            1);
}

TEST_F(FrmTableEditTest, ADoubleClickEndsTheWindowWithThatRow) {
  EXPECT_EQ(Edit(kActorTable,
                 [](QWidget& form) {
                   DoubleClickRow(form, 1);
                   EXPECT_FALSE(form.isVisible());
                 }),
            5);
}

TEST_F(FrmTableEditTest, ATableThatDoesNotExistIsNotEdited) {
  frmTableEdit editor(Doors(), nullptr);
  EXPECT_EQ(editor.EditTable(5), -1);
}

TEST_F(FrmTableEditTest, CloseShowsNewActorNamesInTheTreeAndADoubleClickDoesNot) {
  const auto actor = [this] { return program_.shell().tvCons().FindNode("A0")->text; };
  EXPECT_EQ(actor(), "Alex");
  const auto rename = [](QWidget& form, const char* name) {
    ClickRow(form, 0);
    WhenFormShows("frmEditValue", [name](QWidget& dialog) {
      TextOf(dialog, "txtValue").setText(name);
      Click(dialog, "cmdOK");
    });
    Click(form, "cmdEdit");
  };
  Edit(kActorTable, [&](QWidget& form) {
    rename(form, "Ann");
    DoubleClickRow(form, 0);
  });
  EXPECT_EQ(actor(), "Alex");
  Edit(kActorTable, [&](QWidget& form) { rename(form, "Abe"); });
  EXPECT_EQ(actor(), "Abe");
}

TEST_F(FrmTableEditTest, CloseShowsNewFlagNamesInTheTree) {
  const auto flag = [this] { return program_.shell().tvCons().FindNode("F2,0")->Text(); };
  EXPECT_EQ(flag(), "Door = True");
  Edit(kFlagTable, [](QWidget& form) {
    ClickRow(form, 0);
    WhenFormShows("frmEditValue", [](QWidget& dialog) {
      TextOf(dialog, "txtValue").setText("Gate");
      Click(dialog, "cmdOK");
    });
    Click(form, "cmdEdit");
  });
  EXPECT_EQ(flag(), "Gate = True");
}

TEST_F(FrmTableEditTest, TheMenuOpensEachTable) {
  const std::vector<std::pair<const char*, const char*>> commands = {
      {"mnuTableNPCs", "Actors/Pawns"},
      {"mnuTableFlags", "Flags"},
      {"mnuTableSkills", "Skills"},
      {"mnuTableObjects", "Objects"}};
  for (const auto& [command, caption] : commands) {
    int shown = 0;
    WhenFormShows("frmTableEdit", [&shown, expected = caption](QWidget& form) {
      ++shown;
      EXPECT_EQ(form.windowTitle(), expected);
      Click(form, "cmdClose");
    });
    program_.Choose(command);
    EXPECT_EQ(shown, 1) << command;
  }
}

TEST_F(FrmTableEditTest, TheButtonsBesideTheCombosReachTheSameWindow) {
  WhenFormShows("frmTableEdit", [this](QWidget& form) {
    EXPECT_EQ(form.parentWidget(), &program_.Window()) << "the active window owns it";
    DoubleClickRow(form, 0);
  });
  EXPECT_EQ(EditTableDialog(kObjectTable), 4);
}

TEST_F(FrmTableEditTest, AddedRenamedAndRemovedRowsAreInTheSavedFile) {
  WhenFormShows("frmTableEdit", [](QWidget& form) {
    QTest::keyClicks(&TextOf(form, "txtName"), "Lantern");
    QTest::keyClick(&TextOf(form, "txtName"), Qt::Key_Return);
    EXPECT_THAT(Rows(form), ElementsAre("Key", "Lantern", "Rope"));
    ClickRow(form, 2);
    QTest::keyClick(&List(form), Qt::Key_Delete);
    ClickRow(form, 0);
    WhenFormShows("frmEditValue", [](QWidget& dialog) {
      QTest::keyClicks(QApplication::focusWidget(), "ring");
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Click(form, "cmdEdit");
    Click(form, "cmdClose");
  });
  program_.Choose("mnuTableObjects");
  SaveInSpiteOfMissingLabels();
  EXPECT_TRUE(program_.Close());

  TestWorkspace space;
  OpenFile open(space);
  ASSERT_TRUE(open.Load(ReadBytes(path_)));
  EXPECT_THAT(NamesOf(kObjectTable), ElementsAre("Keyring", "Lantern"));
  EXPECT_EQ(GetTable(kObjectTable)->Place(1)->ID, 4);
  EXPECT_EQ(GetTable(kObjectTable)->Place(2)->ID, 10) << "the next after the rope's 9";
}

}  // namespace
}  // namespace parlate
