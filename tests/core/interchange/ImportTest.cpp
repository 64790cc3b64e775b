#include "InterchangeFixture.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;
using testing::IsEmpty;

class Import : public InterchangeTest, protected ImportListener {
 protected:
  void NotMatched(std::uint64_t line, std::string_view block, const std::string& reason) override {
    missed_.push_back(std::to_string(line) + " " + std::string(block) + ": " + reason);
  }
  void Bring(const std::string& text) {
    missed_.clear();
    MemorySource source(text);
    TextReader reader(source);
    ConversationImport(File(), reader, this).ImportConversations(open_.progress);
  }
  /// Brings lines that stand behind the header of "Zoe", "Talk".
  void BringTalk(const std::vector<std::string>& lines) {
    Bring(Text({kDashes, "[Owner: Zoe]", "[Name:  Talk]", ""}) + Text(lines));
  }
  Conversation& AddTalk() { return AddCon(1, "Talk"); }

  std::vector<std::string> missed_;
};

TEST_F(Import, ReplacesEachKindOfTextInOrder) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  Add(kJump, EventJump());
  const EventChoice& choice = AddChoices({"old", "old"});
  const EventComment& comment = AddComment("old");
  const EventAddGoal& goal = AddGoal("old", false);
  const EventAddNote& note = AddNote("old");
  BringTalk({"[SPEECH: Zoe]",
             "new speech",
             "",
             "[CHOICES:2]",
             "",
             "[CHOICE:]",
             "yes",
             "",
             "[CHOICE:]",
             "no",
             "",
             "[COMMENT]",
             "remark",
             "",
             "[GOAL:]",
             "goal",
             "",
             "[NOTE:]",
             "note",
             ""});
  EXPECT_EQ(speech.speech, "new speech");
  EXPECT_THAT(TextsOf(choice), ElementsAre("yes", "no"));
  EXPECT_EQ(comment.commentText, "remark");
  EXPECT_EQ(goal.goalText, "goal");
  EXPECT_EQ(note.noteText, "note");
  EXPECT_THAT(missed_, IsEmpty());
}

TEST_F(Import, ATextInTheLayoutOfTheFilenamesImportsNothing) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  Bring(Exported(kExportFilenames));
  EXPECT_EQ(speech.speech, "old");
  EXPECT_TRUE(File().IsModified());
  EXPECT_THAT(missed_, ElementsAre("1 Zoe^Pack^Talk^old^Pack\\Zoe\\Talk\\Zoe01.mp3: stands under "
                                   "no conversation",
                                   "1 : the text names no owner of a conversation"));
}

TEST_F(Import, AnEmptyTextMarksTheFileAsChangedAllTheSame) {
  AddTalk();
  space_.moment = 47000.5;
  const double before = con_->LastUpdated;
  Bring("");
  EXPECT_TRUE(File().IsModified());
  EXPECT_EQ(File().LastUpdated, 47000.5);
  EXPECT_EQ(con_->LastUpdated, before);
  EXPECT_THAT(missed_, ElementsAre("0 : the text names no owner of a conversation"));
}

TEST_F(Import, TheStampOfAChangedConversationStays) {
  AddTalk();
  AddSpeech(1, "old");
  space_.moment = 47000.5;
  BringTalk({"[SPEECH: Zoe]", "new"});
  EXPECT_EQ(con_->LastUpdated, kSavedAt);
  EXPECT_EQ(File().LastUpdated, 47000.5);
}

TEST_F(Import, AConversationWithABlankInItsNameOrItsOwnersIsNotMatched) {
  TestWorkspace::AddRows(kActorTable, {{8, "Mr Grey"}});
  AddCon(1, "Small talk");
  const EventSpeech& first = AddSpeech(1, "old");
  AddCon(8, "Talk");
  const EventSpeech& second = AddSpeech(1, "old");
  Bring(Exported());
  BringTalk({"[SPEECH: Zoe]", "new"});
  EXPECT_EQ(first.speech, "old");
  EXPECT_EQ(second.speech, "old");
  Bring(Exported());
  EXPECT_THAT(missed_,
              ElementsAre("2 [Owner:Zoe]: the file has no conversation \"Smalltalk\" of \"Zoe\"",
                          "9 [Owner:MrGrey]: the file has no conversation \"Talk\" of \"MrGrey\""));
}

TEST_F(Import, NamesAreComparedWithTheirCase) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  Bring(Text({"[Owner: zoe]", "[Name: Talk]", "[SPEECH: Zoe]", "new", "[Owner: Zoe]",
              "[Name: talk]", "[SPEECH: Zoe]", "new"}));
  EXPECT_EQ(speech.speech, "old");
}

TEST_F(Import, OfTwoConversationsOfOneNameAndOwnerTheFirstInTheFileIsMeant) {
  TestWorkspace::AddRows(kActorTable, {{9, "Zoe"}});
  AddCon(0, "Talk");
  const EventSpeech& ofAlex = AddSpeech(1, "old");
  AddCon(9, "Talk");
  const EventSpeech& first = AddSpeech(1, "old");
  AddTalk();
  const EventSpeech& second = AddSpeech(1, "old");
  open_.tree.keys = {2, 1, 0};
  BringTalk({"[SPEECH: Zoe]", "new"});
  EXPECT_EQ(ofAlex.speech, "old");
  EXPECT_EQ(first.speech, "new");
  EXPECT_EQ(second.speech, "old");
}

TEST_F(Import, ASpeechOfTwoLinesIsReplacedByItsFirstAndEndsTheConversation) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  const EventSpeech& next = AddSpeech(1, "old");
  AddCon(0, "Other");
  const EventSpeech& other = AddSpeech(1, "old");
  BringTalk({"[SPEECH: Zoe]", "one", "two", "", "[SPEECH: Zoe]", "three", "", kDashes,
             "[Owner: Alex]", "[Name:  Other]", "", "[SPEECH: Zoe]", "four", ""});
  EXPECT_EQ(speech.speech, "one");
  EXPECT_EQ(next.speech, "old");
  EXPECT_EQ(other.speech, "four") << "the walk goes on with the next owner";
  EXPECT_THAT(missed_,
              ElementsAre("7 two: not a field; the rest of the conversation is passed over"));
}

TEST_F(Import, ATextExportedWithoutCommentsLeavesThemAlone) {
  AddTalk();
  const EventComment& comment = AddComment("kept");
  const EventSpeech& speech = AddSpeech(1, "old");
  std::string text = Exported(kExportDialog, false);
  text.replace(text.find("old"), 3, "new");
  Bring(text);
  EXPECT_EQ(comment.commentText, "kept");
  EXPECT_EQ(speech.speech, "new");
  EXPECT_THAT(missed_, IsEmpty());
}

TEST_F(Import, AGoalGoesToACompletedOneIfThatComesFirst) {
  AddTalk();
  const EventAddGoal& completed = AddGoal("", true);
  const EventAddGoal& open = AddGoal("old", false);
  Bring(Exported());
  EXPECT_EQ(completed.goalText, "old");
  EXPECT_EQ(open.goalText, "old");
  BringTalk({"[GOAL:]", "one", "[GOAL:]", "two"});
  EXPECT_EQ(completed.goalText, "one");
  EXPECT_EQ(open.goalText, "two");
}

TEST_F(Import, AnEmptySpeechTakesTheNextFieldForItsTextAndLosesStep) {
  AddTalk();
  const EventSpeech& first = AddSpeech(1, "");
  const EventSpeech& second = AddSpeech(0, "old");
  BringTalk({"[SPEECH: Zoe]", "", "", "[SPEECH: Alex]", "old", ""});
  EXPECT_EQ(first.speech, "[SPEECH: Alex]") << "the blanks of a text line stay";
  EXPECT_EQ(second.speech, "old");
  EXPECT_THAT(missed_,
              ElementsAre("5 [SPEECH:Zoe]: takes the next field for its text",
                          "9 old: not a field; the rest of the conversation is passed over"));
}

TEST_F(Import, ChangingTheSpeakerHasNoEffect) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  BringTalk({"[SPEECH: Somebody Else]", "new"});
  EXPECT_EQ(speech.speech, "new");
  EXPECT_EQ(speech.ActorSpeakerID, 1);
}

TEST_F(Import, OwnerInTheSpeechOfASkippedBlockIsTakenForAHeader) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  Bring(
      Text({kDashes, "[Owner: Nobody]", "[Name:  Gone]", "", "[SPEECH: Zoe]", "The Owner: of this",
            "", kDashes, "[Owner: Zoe]", "[Name:  Talk]", "", "[SPEECH: Zoe]", "new"}));
  EXPECT_EQ(speech.speech, "new");
  EXPECT_THAT(missed_,
              ElementsAre("2 [Owner:Nobody]: the file has no conversation \"Gone\" of \"Nobody\"",
                          "6 The Owner: of this: the file has no conversation \"\" of \"\""));
}

TEST_F(Import, BlocksInAnotherOrderFindTheirConversations) {
  AddTalk();
  const EventSpeech& zoe = AddSpeech(1, "old");
  AddCon(0, "Other");
  const EventSpeech& alex = AddSpeech(0, "old");
  Bring(Text({"[Owner: Alex]", "[Name:  Other]", "[SPEECH: Alex]", "a", kDashes, "[Owner: Zoe]",
              "[Name:  Talk]", "[SPEECH: Zoe]", "b", kDashes, "[Owner: Alex]", "[Name:  Other]",
              "[SPEECH: Alex]", "c"}));
  EXPECT_EQ(zoe.speech, "b");
  EXPECT_EQ(alex.speech, "c") << "each block starts from the first event again";
}

TEST_F(Import, FieldsInAnotherOrderFindWhatComesBehindTheLastMatch) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  const EventAddNote& note = AddNote("old");
  BringTalk({"[NOTE:]", "new note", "", "[SPEECH: Zoe]", "new speech", ""});
  EXPECT_EQ(note.noteText, "new note");
  EXPECT_EQ(speech.speech, "old") << "the walk never goes back";
  EXPECT_THAT(missed_, ElementsAre("8 [SPEECH:Zoe]: no event of the type Speech is left in the "
                                   "conversation"));
}

TEST_F(Import, AFieldWithoutAnEventUsesUpTheRestOfTheEvents) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  BringTalk({"[GOAL:]", "none here", "", "[SPEECH: Zoe]", "new", ""});
  EXPECT_EQ(speech.speech, "old");
  EXPECT_EQ(missed_.size(), 2U);
}

TEST_F(Import, AnUnknownFieldTakesItsTextLineAway) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  BringTalk({"[WHISPER: Zoe]", "[SPEECH: Zoe]", "[SPEECH: Zoe]", "new"});
  EXPECT_EQ(speech.speech, "new");
  EXPECT_THAT(missed_, ElementsAre("5 [WHISPER:Zoe]: takes the next field for its text",
                                   "5 [WHISPER:Zoe]: no field that is imported here"));
}

TEST_F(Import, FieldNamesAreComparedExactly) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  BringTalk({"[Speech: Zoe]", "new"});
  EXPECT_EQ(speech.speech, "old");
}

TEST_F(Import, MoreChoicesInTheTextThanInTheEventAreDropped) {
  AddTalk();
  const EventChoice& choice = AddChoices({"old", "old"});
  const EventSpeech& speech = AddSpeech(1, "old");
  BringTalk({"[CHOICES:3]", "[CHOICE:]", "a", "[CHOICE:]", "b", "[CHOICE:]", "c", "[SPEECH: Zoe]",
             "new"});
  EXPECT_THAT(TextsOf(choice), ElementsAre("a", "b"));
  EXPECT_EQ(speech.speech, "new");
  EXPECT_THAT(missed_, ElementsAre("10 [CHOICE:]: no field that is imported here"));
}

TEST_F(Import, FewerChoicesInTheTextTakeTheFieldsThatFollow) {
  AddTalk();
  const EventChoice& choice = AddChoices({"old", "old", "old"});
  const EventSpeech& first = AddSpeech(1, "old");
  const EventSpeech& second = AddSpeech(1, "old");
  BringTalk({"[CHOICES:3]", "[CHOICE:]", "a", "[CHOICE:]", "b", "[SPEECH: Zoe]", "line 1",
             "[SPEECH: Zoe]", "line 2"});
  EXPECT_THAT(TextsOf(choice), ElementsAre("a", "b", "line 1"));
  EXPECT_EQ(first.speech, "line 2") << "the speech that went into the choice is missing here";
  EXPECT_EQ(second.speech, "old");
  EXPECT_THAT(missed_, ElementsAre("10 [SPEECH:Zoe]: taken for the text of choice 3"));
}

TEST_F(Import, ChoicesCutShortByTheNextConversationRunOnIntoIt) {
  AddTalk();
  const EventChoice& choice = AddChoices({"old", "old"});
  const EventSpeech& speech = AddSpeech(1, "old");
  AddCon(0, "Other");
  const EventSpeech& other = AddSpeech(0, "old");
  BringTalk({"[CHOICES:2]", "[CHOICE:]", "a", kDashes, "[Owner: Alex]", "[Name:  Other]", "",
             "[SPEECH: Alex]", "new"});
  // The dashes end the choices, but only the next field could end the events.
  EXPECT_THAT(TextsOf(choice), ElementsAre("a", "old"));
  EXPECT_EQ(speech.speech, "new");
  EXPECT_EQ(other.speech, "old");
  EXPECT_THAT(missed_, ElementsAre("5 [CHOICES:2]: the event has 2 choices, the text 1",
                                   "9 [Owner:Alex]: no field that is imported here"));
}

TEST_F(Import, TheNumberOfTheChoicesIsNotUsed) {
  AddTalk();
  const EventChoice& choice = AddChoices({"old", "old"});
  BringTalk({"[CHOICES:many]", "[CHOICE:]", "a", "[CHOICE:]", "b"});
  EXPECT_THAT(TextsOf(choice), ElementsAre("a", "b"));
}

TEST_F(Import, ChoicesWithoutAChoiceEventAreDroppedOneByOne) {
  AddTalk();
  AddSpeech(1, "old");
  BringTalk({"[CHOICES:1]", "[CHOICE:]", "a"});
  EXPECT_THAT(missed_, ElementsAre("5 [CHOICES:1]: no event of the type Choice is left in the "
                                   "conversation",
                                   "6 [CHOICE:]: no field that is imported here"));
}

TEST_F(Import, AChoiceEventWithoutChoicesTakesOneFieldAllTheSame) {
  AddTalk();
  const EventChoice& choice = AddChoices({});
  const EventSpeech& speech = AddSpeech(1, "old");
  Bring(Exported());
  EXPECT_EQ(choice.Choices.Count(), 0U);
  EXPECT_EQ(speech.speech, "old");
  BringTalk({"[CHOICES:0]", "", "[SPEECH: Zoe]", "eaten", "", "[SPEECH: Zoe]", "new"});
  EXPECT_EQ(speech.speech, "new");
  EXPECT_THAT(missed_, ElementsAre("7 [SPEECH:Zoe]: the event has no choices"));
}

TEST_F(Import, AHeadOfChoicesThatIsTakenForAChoiceBringsTheTextBeforeIt) {
  AddTalk();
  AddSpeech(1, "old");
  const EventChoice& choice = AddChoices({"old", "old"});
  BringTalk({"[SPEECH: Zoe]", "said", "[CHOICES:2]", "[CHOICES:2]", "[CHOICE:]", "b"});
  EXPECT_THAT(TextsOf(choice), ElementsAre("said", "b"));
}

TEST_F(Import, TenDashesAnywhereInALineEndTheConversation) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  BringTalk({"[SPEECH: ----------]", "new"});
  EXPECT_EQ(speech.speech, "old");
  EXPECT_THAT(missed_, ElementsAre("5 [SPEECH: ----------]: ten dashes end the conversation"))
      << "what is skipped behind it is told by this";
  BringTalk({"[SPEECH: ---------]", "with ---------- in it"});
  EXPECT_EQ(speech.speech, "with ---------- in it") << "nine, and any number in a text line";
  EXPECT_THAT(missed_, IsEmpty());
}

TEST_F(Import, BlanksRoundALineDoNotCount) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  Bring(Text({"   ", "  [ Owner: Z o e ]", "  [Name:Talk]  ", "   [SPEECH : Zoe ] ", "   ", "",
              "   new   text  "}));
  EXPECT_EQ(speech.speech, "new   text");
}

TEST_F(Import, ALineWithOneBracketCountsAsAField) {
  AddTalk();
  const EventSpeech& first = AddSpeech(1, "old");
  const EventSpeech& second = AddSpeech(1, "old");
  BringTalk({"[SPEECH: Zoe", "one", "xSPEECH: Zoe]", "two"});
  EXPECT_EQ(first.speech, "one");
  EXPECT_EQ(second.speech, "two");
}

TEST_F(Import, LoneCarriageReturnsAndLineFeedsAreLineEnds) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  const EventAddNote& note = AddNote("old");
  Bring("[Owner: Zoe]\r[Name:  Talk]\r\r[SPEECH: Zoe]\rone\r\r[NOTE:]\rtwo\r");
  EXPECT_EQ(speech.speech, "one");
  EXPECT_EQ(note.noteText, "two");
  Bring("[Owner: Zoe]\n[Name:  Talk]\n\n[SPEECH: Zoe]\nthree\n\n[NOTE:]\nfour\n");
  EXPECT_EQ(speech.speech, "three");
  EXPECT_EQ(note.noteText, "four");
}

TEST_F(Import, TheLastLineNeedsNoEnd) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  Bring("[Owner: Zoe]\r\n[Name: Talk]\r\n[SPEECH: Zoe]\r\nnew");
  EXPECT_EQ(speech.speech, "new");
  Bring("[Owner: Zoe]\r\n[Name: Talk]\r\n[SPEECH: Zoe]");
  EXPECT_EQ(speech.speech, "") << "a field without a text line has an empty one";
  EXPECT_THAT(missed_, ElementsAre("3 [SPEECH:Zoe]: has no text line"));
}

TEST_F(Import, ATextUnderNoConversationIsToldOnceForEachGap) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  Bring(Text({"",
              "---",
              "[SPEECH: Zoe]",
              "too early",
              "",
              kDashes,
              "[Owner: Zoe]",
              "[Name:  Talk]",
              "",
              "[SPEECH: Zoe]",
              "new",
              "",
              kDashes,
              "",
              "[SPEECH: Zoe]",
              "its header was deleted",
              "",
              kDashes,
              "[Owner: Zoe]",
              "[Name:  Talk]"}));
  EXPECT_EQ(speech.speech, "new");
  EXPECT_THAT(missed_, ElementsAre("3 [SPEECH: Zoe]: stands under no conversation",
                                   "15 [SPEECH: Zoe]: stands under no conversation"));
}

TEST_F(Import, AfterAMissThatEndsAConversationOnlyTheNextGapIsToldAgain) {
  AddTalk();
  AddSpeech(1, "old");
  Bring(Text({"[Owner: Nobody]", "[Name:  Gone]", "", "[SPEECH: Zoe]", "lost", kDashes,
              "[Owner: Zoe]", "[Name:  Talk]", "no field", "lost", kDashes, "[Owner: Zoe]",
              "[Name:  Talk]", kDashes, "no header"}));
  EXPECT_THAT(missed_,
              ElementsAre("1 [Owner:Nobody]: the file has no conversation \"Gone\" of \"Nobody\"",
                          "9 no field: not a field; the rest of the conversation is passed over",
                          "15 no header: stands under no conversation"));
}

TEST_F(Import, ALineThatEndsTheChoicesAloneLeavesTheNextGapToBeTold) {
  AddTalk();
  AddChoices({"old", "old"});
  const EventAddNote& note = AddNote("old");
  BringTalk({"[CHOICES:2]", "[CHOICE:]", "a", "no field", "[NOTE:]", "new", kDashes, "no header"});
  EXPECT_EQ(note.noteText, "new");
  EXPECT_THAT(missed_,
              ElementsAre("8 no field: not a field; the rest of the conversation is passed over",
                          "5 [CHOICES:2]: the event has 2 choices, the text 1",
                          "12 no header: stands under no conversation"));
}

TEST_F(Import, EachFieldThatAnExportWritesIsToldWhenItIsTakenForAText) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  for (const std::string line : {"[SPEECH: Zoe]", "[COMMENT]", "[CHOICES:2]", "[CHOICE:]",
                                 "[GOAL:]", "[NOTE:]", "[Owner: Zoe]", "----------"}) {
    BringTalk({"[SPEECH: Zoe]", line});
    EXPECT_EQ(speech.speech, line);
    EXPECT_THAT(missed_, ElementsAre("5 [SPEECH:Zoe]: takes the next field for its text"));
  }
  for (const std::string line : {"[laughs]", "[Name:  Talk]", "---------", "SPEECH", "yes - no"}) {
    BringTalk({"[SPEECH: Zoe]", line});
    EXPECT_EQ(speech.speech, line);
    EXPECT_THAT(missed_, IsEmpty()) << line;
  }
}

TEST_F(Import, ALongTextLetsTheInterfaceRepaintAlsoWhereNothingMatches) {
  AddTalk();
  open_.progress.repaints = 0;
  Bring(Text(std::vector<std::string>(4095, "nothing")));
  EXPECT_EQ(open_.progress.repaints, 0);
  Bring(Text(std::vector<std::string>(std::size_t{3} * 4096, "nothing")));
  EXPECT_EQ(open_.progress.repaints, 3);
  std::vector<std::string> lines;
  for (int i = 0; i < 4096; ++i) lines.insert(lines.end(), {"[NOTE:]", "n"});
  open_.progress.repaints = 0;
  BringTalk(lines);
  EXPECT_EQ(open_.progress.repaints, 2) << "8196 lines of one conversation";
}

TEST_F(Import, AByteOrderMarkAheadOfTheFirstHeaderDoesNotHideIt) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  Bring("\xEF\xBB\xBF" + Text({"[Owner: Zoe]", "[Name: Talk]", "[SPEECH: Zoe]", "new"}));
  EXPECT_EQ(speech.speech, "new");
  Bring("\xEF\xBB\xBF" + Text({kDashes, "[Owner: Zoe]", "[Name: Talk]", "[SPEECH: Zoe]", "two"}));
  EXPECT_EQ(speech.speech, "two");
}

TEST_F(Import, NulBytesAreTextLikeAnyOther) {
  using std::string_literals::operator""s;
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  BringTalk({"[SPEECH: Zoe]", "a\0b"s});
  EXPECT_EQ(speech.speech, "a\0b"s);
  BringTalk({"\0[SPEECH: Zoe]"s, "new"});
  EXPECT_EQ(speech.speech, "a\0b"s) << "it is another field";
}

TEST_F(Import, ALineOfAHundredMegabytesBecomesTheSpeech) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  const std::string text(std::size_t{100} * 1024 * 1024, 'x');
  BringTalk({"[SPEECH: Zoe]", text});
  EXPECT_TRUE(speech.speech == text);
  BringTalk({text, "[SPEECH: Zoe]", "new"});
  EXPECT_TRUE(speech.speech == text) << "as a field it ends the conversation";
}

TEST_F(Import, TenThousandBlocksOfOneConversationAllGoIn) {
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  std::string text;
  for (int i = 1; i <= 10000; ++i) {
    text += Text({kDashes, "[Owner: Zoe]", "[Name:  Talk]", "", "[SPEECH: Zoe]",
                  "text " + std::to_string(i), ""});
  }
  Bring(text);
  EXPECT_EQ(speech.speech, "text 10000");
  EXPECT_EQ(open_.progress.values.back(), 10000);
  EXPECT_THAT(missed_, IsEmpty());
}

TEST_F(Import, MoreFieldsThanSixteenBitsCountAreDroppedAndTheWalkEnds) {
  AddTalk();
  AddSpeech(1, "old");
  std::vector<std::string> lines;
  for (int i = 0; i < 40000; ++i) {
    lines.emplace_back("[NOTE:]");
    lines.emplace_back("n");
  }
  BringTalk(lines);
  EXPECT_EQ(missed_.size(), 40000U);
}

TEST_F(Import, TheLastEventThatSixteenBitsCountIsFoundAndNoneBehindIt) {
  AddTalk();
  for (int i = 1; i < 32767; ++i) AddComment("");
  const EventSpeech& last = AddSpeech(1, "old");
  const EventSpeech& behind = AddSpeech(1, "old");
  BringTalk({"[SPEECH: Zoe]", "new", "[SPEECH: Zoe]", "too far"});
  EXPECT_EQ(last.speech, "new");
  EXPECT_EQ(behind.speech, "old");
}

TEST_F(Import, AnOwnerOfMinusOneInTheFileIsNoMatchAndNoFailure) {
  AddCon(-1, "Talk");
  const EventSpeech& orphan = AddSpeech(1, "old");
  AddTalk();
  const EventSpeech& speech = AddSpeech(-1, "old");
  BringTalk({"[SPEECH: Zoe]", "new"});
  EXPECT_EQ(orphan.speech, "old");
  EXPECT_EQ(speech.speech, "new");
}

TEST_F(Import, TheProgressCountsTheConversationsThatWereFound) {
  AddTalk();
  AddCon(0, "Other");
  Bring(Text({"[Owner: Nobody]", "[Name: X]", "[Owner: Alex]", "[Name: Other]", kDashes,
              "[Owner: Zoe]", "[Name: Talk]"}));
  EXPECT_EQ(open_.progress.caption, "Importing Conversations...");
  EXPECT_THAT(open_.progress.tops, ElementsAre(2));
  EXPECT_THAT(open_.progress.texts, ElementsAre("", "Other", "Talk"));
  EXPECT_THAT(open_.progress.values, ElementsAre(1, 2));
  EXPECT_FALSE(open_.progress.showing);
}

TEST_F(Import, AReadErrorEndsTheWalk) {
  class Failing final : public ByteSource {
   public:
    std::size_t Read(char* bytes, std::size_t) override {
      if (!first_) throw RuntimeError(RuntimeError::kDeviceIoError);
      first_ = false;
      return Text({"[Owner: Zoe]", "[Name: Talk]", "[SPEECH: Zoe]", "new", "[SPEECH: Z"})
          .copy(bytes, 1000);
    }
    [[nodiscard]] std::uint64_t Size() const override { return 0; }

   private:
    bool first_ = true;
  };
  AddTalk();
  const EventSpeech& speech = AddSpeech(1, "old");
  const EventSpeech& next = AddSpeech(1, "old");
  Failing source;
  TextReader reader(source);
  ConversationImport(File(), reader).ImportConversations(open_.progress);
  EXPECT_EQ(speech.speech, "new");
  EXPECT_EQ(next.speech, "");
  EXPECT_TRUE(reader.Failure());
}

struct Field {
  const char* line;
  bool isField;
  const char* name;
  const char* value;
  const char* left;  ///< What the line is afterwards.
};

class ParseField : public testing::TestWithParam<Field> {};

TEST_P(ParseField, GivesNameAndValueWithoutBlanks) {
  std::string line = GetParam().line;
  std::string name = "n";
  std::string value = "v";
  EXPECT_EQ(static_cast<bool>(ParseImportField(line, name, value)), GetParam().isField);
  EXPECT_EQ(name, GetParam().name);
  EXPECT_EQ(value, GetParam().value);
  EXPECT_EQ(line, GetParam().left);
}

INSTANTIATE_TEST_SUITE_P(
    OfLines, ParseField,
    testing::Values(Field{"[SPEECH: Some One]", true, "SPEECH", "SomeOne", "[SPEECH:SomeOne]"},
                    Field{"[COMMENT]", true, "COMMENT", "", "[COMMENT]"},
                    Field{"[CHOICES:3]", true, "CHOICES", "3", "[CHOICES:3]"},
                    Field{"[CHOICE:]", true, "CHOICE", "", "[CHOICE:]"},
                    Field{"[A:B:C]", true, "A", "B:C", "[A:B:C]"},
                    Field{"[:B]", true, "", "B", "[:B]"}, Field{"[]", true, "", "", "[]"},
                    Field{"[", true, "", "", "["}, Field{"]", true, "", "", "]"},
                    Field{"[A:", true, "A", "", "[A:"}, Field{"[A:B", true, "A", "", "[A:B"},
                    Field{":A:B]", true, "A", "B", ":A:B]"}, Field{"A: B]", true, "", "B", "A:B]"},
                    Field{"[AB", true, "A", "", "[AB"}, Field{"A: B", false, "n", "v", "A: B"},
                    Field{"", false, "n", "v", ""},
                    Field{"x [A:B] y", false, "n", "v", "x [A:B] y"}));

}  // namespace
}  // namespace parlate
