// What is printed on which command, and what the user is asked first.

#include "general/PrintSurface.h"
#include "model/Tables.h"
#include "support/RecordingSurface.h"
#include "support/ShellFixture.h"

namespace parlate {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using namespace testing_support;

class ShellPrinting : public ShellTest {
 protected:
  ShellPrinting() {
    program_.shell.reset();  // one shell answers for the workspace
    program_.shell = std::make_unique<Shell>(
        program_.view,
        Shell::Doors{program_.messages, program_.dialogs, program_.progress, &printers_});
    OpenHarbour();
    program_.view.answerPrintOptions = [] { return PrintChoice{true, true}; };
  }
  [[nodiscard]] std::vector<std::string> Titles() const {
    std::vector<std::string> titles;
    for (const std::string& text : printers_.Texts()) {
      if (text.starts_with("Conversation: ")) titles.push_back(text);
    }
    return titles;
  }

  RecordingPrinters printers_;
};

TEST_F(ShellPrinting, OfAllTakesTheConversationsInTheOrderOfTheFile) {
  program_.progress.texts.clear();
  Window().PrintConversations(true, false);
  EXPECT_THAT(Titles(), ElementsAre("Conversation: Zoe - greeting", "Conversation: Alex - Leaving"))
      << "one without events has no title";
  EXPECT_EQ(printers_.calls.back(), "end");
  EXPECT_EQ(program_.progress.caption, "Printing Conversations...");
  EXPECT_EQ(program_.progress.texts,
            (std::vector<std::string>{"", "greeting", "Arrival", "Leaving"}));
  EXPECT_EQ(program_.progress.tops.back(), 3);
  EXPECT_THAT(program_.progress.values, testing::Contains(3));
  EXPECT_EQ(printers_.title, "Print Conversations");
  EXPECT_FALSE(program_.progress.showing);
  EXPECT_THAT(printers_.calls, Not(Contains(testing::HasSubstr("Page "))))
      << "the last page keeps no footer";
}

TEST_F(ShellPrinting, OffersTheSelectedConversationOnlyIfThereIsOne) {
  Window().PrintConversations(false, false);
  Click("C0");
  Window().PrintConversations(false, false);
  Window().PrintConversations(true, false);
  EXPECT_THAT(program_.view.printOptionsShown,
              ElementsAre(RecordingShellView::PrintOptionsAsked{false, true},
                          RecordingShellView::PrintOptionsAsked{true, false},
                          RecordingShellView::PrintOptionsAsked{true, true}));
}

TEST_F(ShellPrinting, OfTheSelectedConversationShowsNoProgress) {
  Click("C2");
  program_.view.answerPrintOptions = [] { return PrintChoice{false, false}; };
  Window().PrintConversations(false, false);
  EXPECT_THAT(Titles(), ElementsAre("Conversation: Alex - Leaving"));
  EXPECT_NE(program_.progress.caption, "Printing Conversations...");
}

TEST_F(ShellPrinting, FromThePopupAsksNothingButThePrinter) {
  Defaults().bPrintDetailedHeader = false;
  Click("C0");
  Window().PrintConversations(false, true);
  EXPECT_THAT(program_.view.printOptionsShown, IsEmpty());
  EXPECT_EQ(printers_.shown, 1);
  EXPECT_THAT(Titles(), ElementsAre("Conversation: Zoe - greeting"));
  EXPECT_THAT(printers_.Texts(), Contains("Conversation Flags"))
      << "the header is detailed, whatever the setting";
}

TEST_F(ShellPrinting, WithoutTheDetailedHeaderLeavesTheFlagsOut) {
  program_.view.answerPrintOptions = [] { return PrintChoice{true, false}; };
  Window().PrintConversations(true, false);
  EXPECT_THAT(printers_.Texts(), Not(Contains("Conversation Flags")));
}

TEST_F(ShellPrinting, StopsAtCancelledOptionsAndAtACancelledPrinter) {
  program_.view.answerPrintOptions = nullptr;
  Window().PrintConversations(true, false);
  EXPECT_EQ(printers_.shown, 0);
  program_.view.answerPrintOptions = [] { return PrintChoice{true, true}; };
  printers_.cancels = true;
  Window().PrintConversations(true, false);
  EXPECT_EQ(printers_.shown, 1);
  EXPECT_THAT(printers_.calls, IsEmpty());
  EXPECT_EQ(BoxCount(), 0U);
}

TEST_F(ShellPrinting, OfTheListingFollowsTheTree) {
  Defaults().bPrintListingOnly = true;
  Window().PrintConversations(true, false);
  EXPECT_THAT(printers_.Texts(), ElementsAre("Conversation Listing", "harbour.con", "Zoe",
                                             "Arrival", "greeting", "Alex", "Leaving"));
}

TEST_F(ShellPrinting, OfTheSelectedConversationIgnoresTheListingOption) {
  Defaults().bPrintListingOnly = true;
  Click("C0");
  program_.view.answerPrintOptions = [] { return PrintChoice{false, true}; };
  Window().PrintConversations(false, false);
  EXPECT_THAT(Titles(), ElementsAre("Conversation: Zoe - greeting"));
}

TEST_F(ShellPrinting, OfAllWithAudioNamesAssignsThemFirstAndMarksTheFile) {
  Defaults().bPrintAudioNames = true;
  Window().PrintConversations(true, false);
  const std::string& name = ConOf(0).events.At(1).As<EventSpeech>()->audioFile;
  EXPECT_TRUE(name.ends_with("Zoe01.mp3")) << name;
  EXPECT_THAT(printers_.Texts(), Contains("[Audio Filename = " + name + "]"));
  EXPECT_TRUE(Window().GetConFile()->IsModified());
}

TEST_F(ShellPrinting, OnAPrinterThatVanishesIsToldAndTheFileStaysOpen) {
  printers_.callsUntilFailure = 5;
  program_.messages.Expect(Answer::Ok);
  Window().PrintConversations(true, false);
  EXPECT_THAT(LastBox(), IsBox("Error Printing!", "An Error Occurred While Printing.",
                               MessageBox::Icon::Critical, MessageBox::Buttons::Ok));
  EXPECT_FALSE(program_.progress.showing);
  EXPECT_NE(Window().GetConFile(), nullptr);
}

TEST_F(ShellPrinting, OnAPrinterThatCannotBeStartedIsTold) {
  printers_.fails = true;
  program_.messages.Expect(Answer::Ok);
  Window().PrintConversations(true, false);
  EXPECT_THAT(LastBox(), IsBox("Error Printing!", "An Error Occurred While Printing.",
                               MessageBox::Icon::Critical, MessageBox::Buttons::Ok));
  EXPECT_THAT(printers_.calls, IsEmpty());
}

TEST_F(ShellPrinting, TheBreakAfterEachConversationAddsNoEmptyPageForOneWithoutEvents) {
  Defaults().bConPageBreaks = true;
  Defaults().bPrintFooters = false;
  Window().PrintConversations(true, false);
  // greeting has events, Arrival none, Leaving some.
  EXPECT_EQ(std::count(printers_.calls.begin(), printers_.calls.end(), "new page"), 2);
  EXPECT_EQ(printers_.calls.at(printers_.calls.size() - 2), "new page");
}

TEST_F(ShellPrinting, OfTheListingNamesTheFileByTheLettersOfItsName) {
  Window().CloseConFile();
  Open(HarbourFile(),
       "Gr\xC3\xBC\xC3\x9F"
       "e.con");  // a file name is UTF-8
  Defaults().bPrintListingOnly = true;
  Window().PrintConversations(true, false);
  EXPECT_THAT(printers_.Texts(), Contains("Gr\xFC\xDF"
                                          "e.con"));
}

TEST_F(ShellPrinting, LetsTextsStandOnTheGroundThatIsThere) {
  printers_.opaque = true;
  Window().PrintConversations(true, false);
  EXPECT_THAT(printers_.calls, Not(Contains(testing::HasSubstr(" opaque"))));
}

TEST_F(ShellPrinting, WithNoFileOpenDoesNothing) {
  Window().CloseConFile();
  Window().PrintConversations(true, false);
  EXPECT_EQ(printers_.shown, 0);
}

}  // namespace
}  // namespace parlate
