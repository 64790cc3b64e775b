#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QInputMethodEvent>

#include "editors/TableEditorFixture.h"
#include "model/TableCombos.h"
#include "support/ShellFixture.h"
#include "widgets/CodePageText.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;
using Icon = MessageBox::Icon;
using Buttons = MessageBox::Buttons;

constexpr const char* kSelect = "no row is selected";

class FrmTableEditTest : public TableEditorTest {};

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
    EXPECT_TRUE(TextOf(form, "txtName").hasFocus()) << "there is nothing else to begin with";
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

TEST_F(FrmTableEditTest, AFlagNameDropsWhatAnInputMethodCommitsThatMayNotStandInIt) {
  const auto commit = [](const QWidget& form, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(&TextOf(form, "txtName"), &event);
    return TextOf(form, "txtName").text();
  };
  const QString typed = QStringLiteral(u"a\u00E9 b.-");
  Edit(kFlagTable, [&](QWidget& form) {
    EXPECT_EQ(commit(form, typed), "ab-");
    EXPECT_EQ(commit(form, QStringLiteral(u"\u00E9 ")), "ab-");
  });
  Edit(kObjectTable, [&](QWidget& form) { EXPECT_EQ(commit(form, typed), typed); });
}

TEST_F(FrmTableEditTest, ANameOfFortyThousandLettersIsAddedAndRenamedWhole) {
  const std::string name(40000, 'a');
  Edit(kObjectTable, [&name](QWidget& form) {
    TextOf(form, "txtName").setText(ToQString(name));
    Click(form, "cmdAdd");
    ASSERT_EQ(List(form).ListCount(), 3);
    ClickRow(form, 0);
    WhenFormShows("frmEditValue", [&name](QWidget& dialog) {
      EXPECT_EQ(TextOf(dialog, "txtValue").text(), ToQString(name));
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
    Click(form, "cmdEdit");
    EXPECT_EQ(List(form).List(0), name);
  });
  EXPECT_EQ(GetTableItemName(kObjectTable, 10), name);
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
  Edit(kActorTable, [](QWidget& form) {
    Rename(form, "Ann");
    DoubleClickRow(form, 0);
  });
  EXPECT_EQ(actor(), "Alex");
  Edit(kActorTable, [](QWidget& form) { Rename(form, "Abe"); });
  EXPECT_EQ(actor(), "Abe");
}

TEST_F(FrmTableEditTest, CloseShowsNewFlagNamesInTheTreeAndADoubleClickDoesNot) {
  const auto flag = [this] { return program_.shell().tvCons().FindNode("F2,0")->Text(); };
  EXPECT_EQ(flag(), "Door = True");
  Edit(kFlagTable, [](QWidget& form) {
    Rename(form, "Bolt");
    DoubleClickRow(form, 0);
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(GetTableItemName(kFlagTable, 2), "Bolt");
  EXPECT_EQ(flag(), "Door = True");
  Edit(kFlagTable, [](QWidget& form) { Rename(form, "Gate"); });
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
