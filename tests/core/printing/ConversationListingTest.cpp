// The listing of a file, held against places worked out by hand: see RecordingSurface.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "printing/ConversationListing.h"
#include "support/RecordingSurface.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using testing::ElementsAre;
using namespace testing_support;

class Listing : public testing::Test {
 protected:
  TestWorkspace space_;
  RecordingPrinters printers_;
  std::unique_ptr<PrintSurface> surface_ = printers_.ShowPrinterDialog();
  PrintPages pages_{*surface_};
  ConversationListing listing_{pages_, "harbour.con"};
};

TEST_F(Listing, NamesTheFileTheOwnersAndTheirConversations) {
  listing_.Begin();
  listing_.PrintListingSection("Zoe");
  listing_.PrintConversationName("Arrival");
  listing_.PrintConversationName("greeting");
  EXPECT_THAT(printers_.calls,
              ElementsAre("500,600 Arial 14: Conversation Listing", "500,880 Arial 14: harbour.con",
                          "line 500,1260 9500,1260",
                          // the header ends at 1360; a blank line of size 10 before the bar
                          "0,1360 Default 10: ", "box 450,1540 9500,1820 solid CCCCCC",
                          "background 1", "500,1560 Arial 12 bold: Zoe",
                          "750,1850 Courier New 10: Arrival", "750,2050 Courier New 10: greeting"));
}

TEST_F(Listing, GoesOnOverTwoPagesWithoutFootersAndWithoutCounting) {
  space_.workspace.defaults.bPrintFooters = true;
  listing_.Begin();
  listing_.PrintListingSection("Zoe");
  surface_->CurrentY = 11300;
  listing_.PrintConversationName("Arrival");
  listing_.PrintConversationName("greeting");
  const std::vector<std::string> end(printers_.calls.end() - 6, printers_.calls.end());
  EXPECT_THAT(end, ElementsAre("750,11300 Courier New 10: Arrival", "new page",
                               "500,600 Arial 14: Conversation Listing",
                               "500,880 Arial 14: harbour.con (continued)",
                               "line 500,1260 9500,1260", "750,1360 Courier New 10: greeting"));
  EXPECT_EQ(pages_.PrintPageNumber, 1);
}

}  // namespace
}  // namespace parlate
