#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>
#include <array>
#include <initializer_list>

#include "model/TableCombos.h"
#include "platform/QtComboBox.h"

namespace parlate {
namespace {

class QtComboBoxTest : public ::testing::Test {
 protected:
  QtComboBoxTest() {
    auto* layout = new QVBoxLayout(&window_);
    layout->addWidget(&combo_);
    layout->addWidget(&other_);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    combo_.SetFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return combo_.hasFocus(); }));
  }

  void Fill(std::initializer_list<const char*> names) {
    std::int32_t id = 10;
    for (const char* name : names) {
      combo_.AddItem(name);
      combo_.SetItemData(FindComboIndexByText(combo_, name), id++);
    }
  }

  void Type(const char* text) { QTest::keyClicks(combo_.lineEdit(), text); }
  QAbstractItemView& Popup() { return *combo_.completer()->popup(); }

  QWidget window_;
  QtComboBox combo_{&window_};
  QLineEdit other_{&window_};
};

TEST_F(QtComboBoxTest, RowsStandAsTheyWereAdded) {
  Fill({"Walter", "anna", "Bo"});
  ASSERT_EQ(combo_.ListCount(), 3);
  EXPECT_EQ(combo_.List(0), "Walter");
  EXPECT_EQ(combo_.itemText(1), "anna");
  EXPECT_EQ(combo_.ItemData(2), 12);
  EXPECT_EQ(combo_.List(3), "");
  EXPECT_EQ(combo_.List(-1), "");
  EXPECT_EQ(combo_.ItemData(3), 0);
}

TEST_F(QtComboBoxTest, AddingTheFirstRowSelectsNothing) {
  combo_.AddItem("Anna");
  EXPECT_EQ(combo_.ListIndex(), -1);
  EXPECT_EQ(combo_.Text(), "");
}

TEST_F(QtComboBoxTest, AddingRowsLeavesATypedText) {
  Type("Anna");
  Fill({"Anna", "Bo"});
  EXPECT_EQ(combo_.Text(), "Anna");
  EXPECT_EQ(combo_.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, AListOnlyComboTakesNothingTyped) {
  combo_.MakeListOnly();
  Fill({"Novice", "Master"});
  EXPECT_EQ(combo_.ListIndex(), -1);
  EXPECT_EQ(combo_.Text(), "");
  EXPECT_EQ(combo_.lineEdit(), nullptr);
  combo_.SetFocus();
  QTest::keyClick(&combo_, Qt::Key_M);
  EXPECT_EQ(combo_.ListIndex(), 1) << "a letter picks the row that begins with it";
  EXPECT_EQ(combo_.Text(), "Master");
  combo_.SetText("Novice");
  EXPECT_EQ(combo_.ListIndex(), 0);
  combo_.SetText("novice");
  EXPECT_EQ(combo_.ListIndex(), -1) << "the text is that of a row, letter by letter, or none";
  EXPECT_EQ(combo_.Text(), "");
  combo_.SelectText(0, 3);
  combo_.Clear();
  EXPECT_EQ(combo_.ListCount(), 0);
}

TEST_F(QtComboBoxTest, AComboMadeListOnlyTellsOfItsChanges) {
  combo_.MakeListOnly();
  Fill({"Novice", "Master"});
  const QSignalSpy changes(&combo_, &QtComboBox::choiceChanged);
  combo_.SetListIndex(1);
  EXPECT_EQ(changes.count(), 1);
  combo_.Clear();
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(QtComboBoxTest, SelectingShowsTheTextAndMinusOneEmptiesIt) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(1);
  EXPECT_EQ(combo_.ListIndex(), 1);
  EXPECT_EQ(combo_.Text(), "Bo");
  combo_.SetListIndex(-1);
  EXPECT_EQ(combo_.ListIndex(), -1);
  EXPECT_EQ(combo_.Text(), "");
  combo_.SetListIndex(7);
  EXPECT_EQ(combo_.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, ATypedTextIsNoRowEvenIfOneHasTheSameText) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(1);
  Type("x");
  EXPECT_EQ(combo_.Text(), "Box");
  EXPECT_EQ(combo_.ListIndex(), -1);
  QTest::keyClick(combo_.lineEdit(), Qt::Key_Backspace);
  EXPECT_EQ(combo_.Text(), "Bo");
  EXPECT_EQ(combo_.ListIndex(), -1);
  combo_.SetListIndex(1);
  EXPECT_EQ(combo_.ListIndex(), 1);
}

TEST_F(QtComboBoxTest, ASetTextIsNoRowEither) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(1);
  combo_.SetText("Bo");
  EXPECT_EQ(combo_.Text(), "Bo");
  EXPECT_EQ(combo_.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, SelectingTheSameRowAgainBringsItsTextBack) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(1);
  Type("x");
  combo_.SetListIndex(1);
  EXPECT_EQ(combo_.Text(), "Bo");
  EXPECT_EQ(combo_.ListIndex(), 1);
}

TEST_F(QtComboBoxTest, LeavingTheBoxKeepsWhatWasTypedLetterByLetter) {
  Fill({"Anna", "Bo"});
  Type("anna");
  other_.setFocus();
  ASSERT_TRUE(QTest::qWaitFor([this] { return other_.hasFocus(); }));
  EXPECT_EQ(combo_.Text(), "anna");
  EXPECT_EQ(combo_.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, ReturnKeepsWhatWasTypedAndAddsNoRow) {
  Fill({"Anna", "Bo"});
  Type("carl");
  QTest::keyClick(combo_.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(combo_.Text(), "carl");
  EXPECT_EQ(combo_.ListCount(), 2);
}

TEST_F(QtComboBoxTest, TypingOffersRowsWhateverTheirCaseAndChangesNothing) {
  Fill({"Anna", "Andrew", "Bo"});
  Type("an");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Popup().isVisible(); }));
  EXPECT_EQ(combo_.completer()->completionCount(), 2);
  EXPECT_EQ(combo_.Text(), "an");
  Popup().hide();
  EXPECT_EQ(combo_.Text(), "an");
}

TEST_F(QtComboBoxTest, ARowChosenFromTheOffersIsSelected) {
  Fill({"Bo", "Anna"});
  Type("an");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Popup().isVisible(); }));
  QTest::keyClick(&Popup(), Qt::Key_Down);
  QTest::keyClick(&Popup(), Qt::Key_Return);
  EXPECT_EQ(combo_.Text(), "Anna");
  EXPECT_EQ(combo_.ListIndex(), 1);
}

TEST_F(QtComboBoxTest, TheArrowKeysSelectRows) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(0);
  QTest::keyClick(combo_.lineEdit(), Qt::Key_Down);
  EXPECT_EQ(combo_.ListIndex(), 1);
  EXPECT_EQ(combo_.Text(), "Bo");
}

TEST_F(QtComboBoxTest, ClearDropsRowsAndText) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(1);
  combo_.Clear();
  EXPECT_EQ(combo_.ListCount(), 0);
  EXPECT_EQ(combo_.count(), 0);
  EXPECT_EQ(combo_.ListIndex(), -1);
  EXPECT_EQ(combo_.Text(), "");
}

TEST_F(QtComboBoxTest, ManyRowsReachTheToolkitInOnePiece) {
  const QSignalSpy told(combo_.model(), &QAbstractItemModel::rowsInserted);
  for (int i = 0; i < 1000; ++i) combo_.AddItem("row " + std::to_string(i));
  EXPECT_EQ(combo_.count(), 1000);
  EXPECT_EQ(told.size(), 1);
  EXPECT_EQ(combo_.itemText(999), "row 999");
  EXPECT_EQ(combo_.findText("row 500"), 500);
  EXPECT_EQ(combo_.ListIndex(), -1);
  EXPECT_EQ(combo_.Text(), "");
}

TEST_F(QtComboBoxTest, RowsAddedLaterReachTheToolkitToo) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(1);
  Fill({"Carl"});
  EXPECT_EQ(combo_.ListIndex(), 1);
  EXPECT_EQ(combo_.Text(), "Bo");
  QTest::keyClick(combo_.lineEdit(), Qt::Key_Down);
  EXPECT_EQ(combo_.ListIndex(), 2);
  EXPECT_EQ(combo_.Text(), "Carl");
}

TEST_F(QtComboBoxTest, RowsOfASecondFillReplaceThoseOfTheFirst) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(1);
  combo_.Clear();
  Fill({"Carl"});
  EXPECT_EQ(combo_.count(), 1);
  EXPECT_EQ(combo_.itemText(0), "Carl");
  EXPECT_EQ(combo_.ListIndex(), -1);
  Type("c");
  ASSERT_TRUE(QTest::qWaitFor([this] { return Popup().isVisible(); }));
  EXPECT_EQ(combo_.completer()->completionCount(), 1);
  Popup().hide();
}

TEST_F(QtComboBoxTest, RowsThatTheToolkitHearsOfLeaveCaretAndSelection) {
  combo_.SetText("Stranger");
  combo_.lineEdit()->setCursorPosition(3);
  Fill({"Anna", "Bo"});
  EXPECT_EQ(combo_.count(), 2);
  EXPECT_EQ(combo_.Text(), "Stranger");
  EXPECT_EQ(combo_.lineEdit()->cursorPosition(), 3);
  for (const int length : {4, -2}) {
    combo_.Clear();
    combo_.SetText("Stranger");
    combo_.lineEdit()->setSelection(3, length);
    Fill({"Anna", "Bo"});
    EXPECT_EQ(combo_.count(), 2);
    EXPECT_EQ(combo_.lineEdit()->selectedText(), length == 4 ? "ange" : "tr");
    EXPECT_EQ(combo_.lineEdit()->cursorPosition(), 3 + length);
  }
}

TEST_F(QtComboBoxTest, AnInsertedLetterLeavesTheCaretWhereItIs) {
  combo_.SetText("Stanger");
  combo_.lineEdit()->setCursorPosition(2);
  Fill({"Anna", "Bo"});
  QTest::keyClicks(combo_.lineEdit(), "r");
  EXPECT_EQ(combo_.Text(), "Stranger");
  EXPECT_EQ(combo_.lineEdit()->cursorPosition(), 3);
}

TEST_F(QtComboBoxTest, AListOnlyBoxStartsWithoutAChoice) {
  combo_.MakeListOnly();
  Fill({"Anna", "Bo"});
  EXPECT_EQ(combo_.count(), 2);
  EXPECT_EQ(combo_.ListIndex(), -1);
  EXPECT_EQ(combo_.Text(), "");
  combo_.SetText("Bo");
  EXPECT_EQ(combo_.ListIndex(), 1);
  combo_.SetText("bo");
  EXPECT_EQ(combo_.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, TheOpenListShowsEveryRow) {
  Fill({"Anna", "Bo", "Carl"});
  combo_.SetListIndex(0);
  Fill({"Dora"});
  combo_.showPopup();
  ASSERT_TRUE(QTest::qWaitFor([this] { return combo_.view()->isVisible(); }));
  EXPECT_EQ(combo_.view()->model()->rowCount(), 4);
  QTest::keyClick(combo_.view(), Qt::Key_End);
  QTest::keyClick(combo_.view(), Qt::Key_Return);
  EXPECT_EQ(combo_.ListIndex(), 3);
  EXPECT_EQ(combo_.Text(), "Dora");
}

TEST_F(QtComboBoxTest, TakesATextLongerThanTheToolkitsLimit) {
  const std::string text(40000, 'x');
  combo_.SetText(text);
  EXPECT_EQ(combo_.Text(), text);
}

TEST_F(QtComboBoxTest, EveryChangeIsToldOnceAndWithTheRightIndex) {
  Fill({"Anna", "Bo"});
  const QSignalSpy told(&combo_, &QtComboBox::choiceChanged);
  int index = 99;
  QObject::connect(&combo_, &QtComboBox::choiceChanged, &combo_,
                   [this, &index] { index = combo_.ListIndex(); });
  combo_.SetListIndex(1);
  EXPECT_EQ(told.size(), 1);
  EXPECT_EQ(index, 1);
  combo_.SetListIndex(1);
  EXPECT_EQ(told.size(), 1);
  Type("x");
  EXPECT_EQ(told.size(), 2);
  EXPECT_EQ(index, -1);
  combo_.SetText("Anna");
  EXPECT_EQ(told.size(), 3);
  EXPECT_EQ(index, -1);
  combo_.Clear();
  EXPECT_EQ(told.size(), 4);
}

TEST_F(QtComboBoxTest, SelectsAPartOfTheText) {
  Type("Stranger");
  combo_.SelectText(0, 8);
  EXPECT_EQ(combo_.lineEdit()->selectedText(), "Stranger");
}

TEST_F(QtComboBoxTest, IsVisibleOnlyWhileItsPanelIs) {
  EXPECT_TRUE(combo_.Visible());
  window_.hide();
  EXPECT_FALSE(combo_.Visible());
}

TEST_F(QtComboBoxTest, TextIsThatOfTheCodePage) {
  combo_.AddItem("Zo\xEB");
  EXPECT_EQ(combo_.itemText(0), QStringLiteral(u"Zo\u00EB"));
  combo_.SetListIndex(0);
  EXPECT_EQ(combo_.Text(), "Zo\xEB");
}

TEST(SortedQtComboBox, RowsStandByNameAndKeepTheirNumbers) {
  QtComboBox combo(nullptr, RowOrder::ByName);
  std::int32_t id = 10;
  for (const char* name : {"walter", "Anna", "bo", "ANDREW", "Bo"}) {
    combo.AddItem(name);
    combo.SetItemData(FindComboIndexByText(combo, name), id++);
  }
  const std::array<const char*, 5> names{"ANDREW", "Anna", "bo", "Bo", "walter"};
  const std::array<std::int32_t, 5> ids{13, 11, 12, 14, 10};
  ASSERT_EQ(combo.ListCount(), 5);
  for (int i = 0; i < 5; ++i) {
    const auto place = static_cast<std::size_t>(i);
    EXPECT_EQ(combo.List(i), names[place]);
    EXPECT_EQ(combo.itemText(i), names[place]);
    EXPECT_EQ(combo.ItemData(i), ids[place]);
  }
}

TEST(SortedQtComboBox, TheSelectionStaysWithItsRow) {
  QtComboBox combo(nullptr, RowOrder::ByName);
  combo.AddItem("Bo");
  combo.SetItemData(0, 7);
  combo.SetListIndex(0);
  combo.AddItem("Anna");
  EXPECT_EQ(combo.ListIndex(), 1);
  EXPECT_EQ(combo.Text(), "Bo");
  EXPECT_EQ(GetComboItemID(combo), 7);
}

TEST(SortedQtComboBox, ATypedTextStaysWhenARowOfThatNameIsAdded) {
  QtComboBox combo(nullptr, RowOrder::ByName);
  combo.AddItem("Bo");
  combo.SetListIndex(0);
  QTest::keyClicks(combo.lineEdit(), "x");
  combo.AddItem("Anna");
  EXPECT_EQ(combo.Text(), "Box");
  EXPECT_EQ(combo.ListIndex(), -1);
}

TEST(SortedQtComboBox, AddingARowTellsNoChangeOfATypedText) {
  QtComboBox combo(nullptr, RowOrder::ByName);
  combo.AddItem("Bo");
  combo.SetListIndex(0);
  QTest::keyClicks(combo.lineEdit(), "x");
  const QSignalSpy told(&combo, &QtComboBox::choiceChanged);
  combo.AddItem("Anna");
  EXPECT_EQ(told.size(), 0);
}

TEST(SortedQtComboBox, RowsAmongAndBehindThoseOfTheToolkitKeepTheirPlaces) {
  QtComboBox combo(nullptr, RowOrder::ByName);
  combo.AddItem("Bo");
  combo.AddItem("Dora");
  EXPECT_EQ(combo.count(), 2);
  combo.AddItem("Emil");
  combo.AddItem("Carl");
  combo.AddItem("Anna");
  combo.AddItem("Fred");
  ASSERT_EQ(combo.count(), 6);
  const std::array<const char*, 6> names{"Anna", "Bo", "Carl", "Dora", "Emil", "Fred"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(combo.itemText(i), names[static_cast<std::size_t>(i)]);
    EXPECT_EQ(combo.List(i), names[static_cast<std::size_t>(i)]);
  }
}

TEST_F(QtComboBoxTest, ARowCanBePutAtAPlaceOfItsOwnWhateverIsTyped) {
  Fill({"Anna", "Bo"});
  Type("Cy");
  combo_.InsertItem("Cy", 0);
  EXPECT_EQ(combo_.List(0), "Cy");
  EXPECT_EQ(combo_.itemText(0), "Cy");
  EXPECT_EQ(combo_.List(2), "Bo");
  EXPECT_EQ(combo_.ItemData(1), 10);
  EXPECT_EQ(combo_.Text(), "Cy");
  EXPECT_EQ(combo_.ListIndex(), -1);
}

TEST_F(QtComboBoxTest, ARowPutAheadOfTheSelectedOneLeavesItSelected) {
  Fill({"Anna", "Bo"});
  combo_.SetListIndex(1);
  combo_.InsertItem("Cy", 0);
  EXPECT_EQ(combo_.ListIndex(), 2);
  EXPECT_EQ(combo_.Text(), "Bo");
}

TEST_F(QtComboBoxTest, RemovingARowLeavesTheTextAlsoThatOfTheRowItself) {
  Fill({"Anna", "Bo", "Cy"});
  combo_.SetListIndex(1);
  combo_.RemoveItem(2);
  EXPECT_EQ(combo_.ListCount(), 2);
  EXPECT_EQ(combo_.ListIndex(), 1);
  combo_.RemoveItem(1);
  EXPECT_EQ(combo_.Text(), "Bo");
  EXPECT_EQ(combo_.ListIndex(), -1);
  combo_.RemoveItem(5);
  combo_.RemoveItem(0);
  EXPECT_EQ(combo_.ListCount(), 0);
  EXPECT_EQ(combo_.count(), 0);
  EXPECT_EQ(combo_.Text(), "Bo");
}

TEST_F(QtComboBoxTest, IsVisibleOnATabThatIsTurnedAwayAndNotInAHiddenPanel) {
  QTabWidget tabs;
  auto* first = new QWidget;
  auto* second = new QWidget;
  QtComboBox onFirst(first);
  QWidget panel(second);
  QtComboBox inPanel(&panel);
  tabs.addTab(first, "1");
  tabs.addTab(second, "2");
  EXPECT_FALSE(onFirst.Visible());
  tabs.show();
  EXPECT_TRUE(onFirst.Visible());
  EXPECT_TRUE(inPanel.Visible());
  tabs.setCurrentIndex(1);
  EXPECT_TRUE(onFirst.Visible());
  panel.hide();
  EXPECT_FALSE(inPanel.Visible());
  onFirst.hide();
  EXPECT_FALSE(onFirst.Visible());
}

TEST_F(QtComboBoxTest, TurnsToItsPageWhenItTakesTheFocus) {
  QTabWidget outer;
  auto* inner = new QTabWidget;
  auto* page = new QWidget;
  QtComboBox onPage(page);
  inner->addTab(page, "1");
  inner->addTab(new QLineEdit, "2");
  outer.addTab(inner, "A");
  outer.addTab(new QLineEdit, "B");
  outer.show();
  outer.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&outer));
  onPage.SetText("Anna");
  inner->setCurrentIndex(1);
  outer.setCurrentIndex(1);
  onPage.SelectText(0, 4);
  onPage.SetFocus();
  EXPECT_EQ(outer.currentIndex(), 0);
  EXPECT_EQ(inner->currentIndex(), 0);
  EXPECT_TRUE(onPage.hasFocus());
  EXPECT_EQ(onPage.lineEdit()->selectedText(), "Anna");
}

}  // namespace
}  // namespace parlate
