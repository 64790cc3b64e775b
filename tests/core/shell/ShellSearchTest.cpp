// The search from hit to hit, and the history of what was searched for.

#include "support/FakeControls.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

constexpr int kAllTypes = 0;

/// Zoe: alpha (flag Door; three events), beta (no events); Alex: gamma (two events). In the order
/// of the tree these are the nodes 2, 4 and 6.
std::string SearchedFile() {
  return FileOf(
      HarbourTables(),
      {Con(0, "alpha", kZoe,
           {Speech(1, "", kZoe, "Hello there", ""), Comment(2, "", "hello again"),
            Speech(3, "", kZoe, "Good bye", "")},
           {{2, "Door", true, 0}}),
       Con(1, "beta", kZoe),
       Con(2, "gamma", kHarbourAlex,
           {Speech(1, "", kHarbourAlex, "Say HELLO", ""), Comment(2, "", "nothing of it")})});
}

class ShellSearch : public ShellTest {
 protected:
  ShellSearch() { Open(SearchedFile()); }

  bool Find(const std::string& text, bool all = false, std::int32_t type = kAllTypes,
            bool matchCase = false) {
    combo_.SetText(text);
    return Window().FindText(combo_, false, matchCase, all, type);
  }
  bool FindAll(const std::string& text) { return Find(text, true); }
  /// The search ends without a hit and says so, once.
  template <class Search>
  void ExpectNotFound(Search search) {
    const std::size_t boxes = BoxCount();
    program_.messages.Expect(Answer::Ok);
    EXPECT_FALSE(search());
    EXPECT_EQ(BoxCount(), boxes + 1);
    EXPECT_THAT(LastBox(), IsBox("Not found", "Search text not found.",
                                 MessageBox::Icon::Information, MessageBox::Buttons::Ok));
  }
  void ExpectAt(std::int32_t conKey, std::int32_t row) {
    ASSERT_NE(Window().SelectedCon(), nullptr);
    EXPECT_EQ(Window().SelectedCon()->key, conKey);
    EXPECT_EQ(Window().tvCons().SelectedItem(), Window().tvCons().FindConversation(conKey));
    EXPECT_EQ(Window().lstEvents().ListIndex(), row);
  }

  FakeComboBox combo_;
};

TEST_F(ShellSearch, AFirstSearchFindsTheSelectedRowItselfAndTheRepeatMovesPastIt) {
  Click("C0");
  ClickRow(0);
  EXPECT_TRUE(Find("hello"));
  ExpectAt(0, 0);
  EXPECT_TRUE(Find("hello"));
  ExpectAt(0, 1);
}

TEST_F(ShellSearch, WithoutASelectedRowItBeginsAtTheFirst) {
  Click("C0");
  EXPECT_TRUE(Find("hello"));
  ExpectAt(0, 0);
}

TEST_F(ShellSearch, RowsAheadOfTheSelectedOneAreNotSearchedInOneConversation) {
  Click("C0");
  ClickRow(2);
  ExpectNotFound([this] { return Find("hello"); });
}

TEST_F(ShellSearch, InTheCurrentConversationItDoesNotWrapAndSelectsTheFirstRowInTheEnd) {
  Click("C0");
  ClickRow(2);
  EXPECT_TRUE(Find("bye"));
  ExpectAt(0, 2);
  ExpectNotFound([this] { return Find("bye"); });
  ExpectAt(0, 0);
}

TEST_F(ShellSearch, AfterAFailedSearchInOneConversationTheNextBeginsAtTheSelectedRow) {
  Click("C0");
  EXPECT_TRUE(Find("there"));
  ExpectNotFound([this] { return Find("there"); });
  EXPECT_TRUE(Find("there"));
  ExpectAt(0, 0);
}

TEST_F(ShellSearch, AConversationWithNoEventsIsPassedOver) {
  Click("C0");
  ClickRow(1);
  EXPECT_TRUE(FindAll("hello"));
  ExpectAt(0, 1);
  EXPECT_TRUE(FindAll("hello"));
  ExpectAt(2, 0);
}

TEST_F(ShellSearch, AConversationWithNoEventsSearchedAloneIsNotFound) {
  Click("C1");
  ExpectNotFound([this] { return Find("hello"); });
  ExpectAt(1, -1);
}

TEST_F(ShellSearch, WithNothingSelectedItBeginsAtTheFirstConversation) {
  EXPECT_EQ(Window().tvCons().SelectedItem(), nullptr);
  EXPECT_TRUE(Find("hello"));
  ExpectAt(0, 0);
}

TEST_F(ShellSearch, FromAnActorItBeginsAtTheConversationBehindIt) {
  Click("A0");
  EXPECT_TRUE(Find("hello"));
  ExpectAt(2, 0);
}

TEST_F(ShellSearch, FromAFlagItBeginsAtTheNextConversationAndNotAtItsOwn) {
  Click("F2,0");
  EXPECT_TRUE(FindAll("hello"));
  ExpectAt(2, 0);
}

TEST_F(ShellSearch, OverAllItGoesRoundBehindTheLastConversation) {
  Click("C2");
  EXPECT_TRUE(FindAll("bye"));
  ExpectAt(0, 2);
}

TEST_F(ShellSearch, OverAllItComesToWhatStandsAheadOfTheFirstRowSearched) {
  Click("C0");
  ClickRow(1);
  EXPECT_TRUE(FindAll("there"));
  ExpectAt(0, 0);
}

TEST_F(ShellSearch, ARepeatThatComesBackToItsHitReportsTheEnd) {
  Click("C0");
  EXPECT_TRUE(FindAll("again"));
  ExpectAt(0, 1);
  ExpectNotFound([this] { return FindAll("again"); });
}

TEST_F(ShellSearch, ARepeatComesBackToAHitInTheFirstRowBehindAnActorToo) {
  EXPECT_TRUE(Find("HELLO", true, kAllTypes, true));
  ExpectAt(2, 0);
  ExpectNotFound([this] { return Find("HELLO", true, kAllTypes, true); });
}

TEST_F(ShellSearch, ARepeatForATextThatOccursNowhereEndsAfterOneRound) {
  EXPECT_TRUE(FindAll("hello"));
  ExpectNotFound([this] { return FindAll("no such text"); });
}

TEST_F(ShellSearch, AFirstSearchOverAllThatFindsNothingEndsAfterOneRound) {
  Click("C0");
  ClickRow(1);
  ExpectNotFound([this] { return FindAll("no such text"); });
  ExpectAt(0, 1);
}

TEST_F(ShellSearch, AFruitlessSearchLeavesTheTextSelectedInItsBox) {
  ExpectNotFound([this] { return FindAll("nowhere"); });
  EXPECT_TRUE(combo_.focused);
  EXPECT_EQ(combo_.selectionStart, 0);
  EXPECT_EQ(combo_.selectionLength, 7);
}

TEST_F(ShellSearch, AHitLeavesTheBoxAlone) {
  EXPECT_TRUE(FindAll("hello"));
  EXPECT_FALSE(combo_.focused);
  EXPECT_EQ(combo_.selectionLength, -1);
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellSearch, CaseCountsOnlyWhenItIsAskedFor) {
  EXPECT_TRUE(Find("Hello", true, kAllTypes, true));
  ExpectAt(0, 0);
  ExpectNotFound([this] { return Find("Hello", true, kAllTypes, true); });
  Window().ResetSearch();
  Click("C0");
  EXPECT_TRUE(Find("hELLO"));
  ExpectAt(0, 0);
}

TEST_F(ShellSearch, TheTypeIsOneAboveItsCodeAndZeroStandsForAll) {
  Click("C0");
  EXPECT_TRUE(Find("hello", false, 1));
  ExpectAt(0, 0);
  Window().ResetSearch();
  EXPECT_TRUE(Find("hello", false, kComment + 1));
  ExpectAt(0, 1);
  Window().ResetSearch();
  ExpectNotFound([this] { return Find("hello", true, kChoice + 1); });
}

TEST_F(ShellSearch, WholeWordHasNoEffect) {
  combo_.SetText("ell");
  EXPECT_TRUE(Window().FindText(combo_, true, false, true, kAllTypes));
  ExpectAt(0, 0);
}

TEST_F(ShellSearch, AResetBeginsAnewAtTheSelectedRow) {
  Click("C0");
  EXPECT_TRUE(Find("hello"));
  Window().ResetSearch();
  EXPECT_TRUE(Find("hello"));
  ExpectAt(0, 0);
}

TEST_F(ShellSearch, ARepeatGoesOnFromTheHitWhateverWasSelectedSince) {
  Click("C0");
  EXPECT_TRUE(Find("hello"));
  Click("C2");
  EXPECT_TRUE(Find("hello"));
  ExpectAt(0, 1);
}

TEST_F(ShellSearch, ARepeatIsSafeWhenTheHitIsGone) {
  Click("C2");
  EXPECT_TRUE(FindAll("nothing"));
  ExpectAt(2, 1);
  Window().DeleteConversation(true);
  EXPECT_TRUE(FindAll("bye"));
  ExpectAt(0, 2);
  ExpectNotFound([this] { return FindAll("nothing"); });
}

TEST_F(ShellSearch, ARepeatIsSafeWhenTheFileIsClosed) {
  EXPECT_TRUE(FindAll("hello"));
  EXPECT_TRUE(Window().CloseConFile());
  ExpectNotFound([this] { return FindAll("hello"); });
}

TEST_F(ShellSearch, TheInterfaceMayRepaintAtEachConversation) {
  Click("C0");
  program_.progress.repaints = 0;
  ExpectNotFound([this] { return FindAll("no such text"); });
  EXPECT_EQ(program_.progress.repaints, 2);
  EXPECT_FALSE(program_.progress.showing);
}

TEST_F(ShellSearch, TheInterfaceMayRepaintWithinALongConversationToo) {
  std::vector<EventFields> events;
  for (std::int32_t key = 1; key <= 2 * 4096; ++key) events.push_back(Comment(key, "", ""));
  Open(FileOf(HarbourTables(), {Con(0, "long", kZoe, events)}));
  Click("C0");
  program_.progress.repaints = 0;
  ExpectNotFound([this] { return Find("no such text"); });
  EXPECT_EQ(program_.progress.repaints, 2);
}

TEST_F(ShellSearch, ARepeatEndsAtTheOneHitAlsoWhereItIsTheFirstEventBehindAnActor) {
  Click("C2");
  EXPECT_TRUE(FindAll("say"));
  ExpectAt(2, 0);
  ExpectNotFound([this] { return FindAll("say"); });
}

TEST_F(ShellSearch, CommandsFollowTheConversationThatASearchCameTo) {
  const int before = program_.view.commandStateUpdates;
  ExpectNotFound([this] { return FindAll("no such text"); });
  EXPECT_GT(program_.view.commandStateUpdates, before);
  EXPECT_TRUE(Window().Predicates().conSelected);
}

std::vector<std::string> Entries(const FakeComboBox& combo) {
  std::vector<std::string> texts;
  for (const FakeRow& entry : combo.entries) texts.push_back(entry.text);
  return texts;
}

TEST(ComboHistory, ANewTextGoesInAtTheHeadAndIsSelected) {
  FakeComboBox combo;
  combo.SetText("one");
  AddComboHistory(combo);
  combo.SetText("two");
  AddComboHistory(combo);
  EXPECT_THAT(Entries(combo), ElementsAre("two", "one"));
  EXPECT_EQ(combo.selectionStart, 0);
  EXPECT_EQ(combo.selectionLength, 3);
}

TEST(ComboHistory, ATextInTheListStaysInItsPlaceAndIsSelectedAllTheSame) {
  FakeComboBox combo;
  combo.entries = {{"two"}, {"one"}};
  combo.SetText("one");
  AddComboHistory(combo);
  EXPECT_THAT(Entries(combo), ElementsAre("two", "one"));
  EXPECT_EQ(combo.selectionLength, 3);
}

TEST(ComboHistory, CaseCounts) {
  FakeComboBox combo;
  combo.entries = {{"one"}};
  combo.SetText("One");
  AddComboHistory(combo);
  EXPECT_THAT(Entries(combo), ElementsAre("One", "one"));
}

TEST(ComboHistory, AnEleventhEntryDropsTheOldest) {
  FakeComboBox combo;
  for (const char* text : {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}) {
    combo.SetText(text);
    AddComboHistory(combo);
  }
  EXPECT_EQ(combo.ListCount(), 10);
  EXPECT_EQ(combo.List(9), "1");
  combo.SetText("11");
  AddComboHistory(combo);
  EXPECT_THAT(Entries(combo), ElementsAre("11", "10", "9", "8", "7", "6", "5", "4", "3", "2"));
}

}  // namespace
}  // namespace parlate
