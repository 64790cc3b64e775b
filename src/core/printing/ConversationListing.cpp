#include "printing/ConversationListing.h"

#include <utility>

#include "model/Workspace.h"

namespace parlate {

ConversationListing::ConversationListing(PrintPages& pages, std::string fileName)
    : pages_(pages), fileName_(std::move(fileName)) {}

void ConversationListing::Begin() {
  pages_.surface.CurrentY = pages_.Top();
  PrintListingHeader(false);
}

void ConversationListing::PrintListingHeader(bool bContinued) {
  PrintSurface& surface = pages_.surface;
  const Twips x = pages_.Left();
  const KeepFont keep(surface);
  surface.CurrentY = pages_.Top();
  pages_.UseHeadingFont(4);
  surface.CurrentX = x;
  surface.Print("Conversation Listing");
  surface.CurrentX = x;
  surface.Print(bContinued ? fileName_ + " (continued)" : fileName_);
  pages_.PrintRule(x);
}

void ConversationListing::PrintListingSection(const std::string& owner) {
  pages_.PrintBar(pages_.Left(), owner);
  pages_.surface.Font.Name = kBodyFont;
  pages_.surface.Font.Size = Workspace::Current().defaults.PrintFontSize;
}

void ConversationListing::PrintConversationName(const std::string& conName) {
  PrintSurface& surface = pages_.surface;
  surface.CurrentX = ToTwips(pages_.Left() + 250);
  surface.Print(conName);
  if (surface.CurrentY <= pages_.Bottom()) return;
  surface.NewPage();
  surface.CurrentY = pages_.Top();
  PrintListingHeader(true);
}

}  // namespace parlate
