// Conversations on paper.

#include <memory>

#include "general/CodePage.h"
#include "general/Paths.h"
#include "general/PrintSurface.h"
#include "interchange/ExportConversation.h"
#include "model/printing/PrintPages.h"
#include "printing/ConversationListing.h"
#include "shell/Shell.h"

namespace parlate {

void Shell::PrintConversations(Boolean bPrintAll, Boolean bSkipOptions) {
  if (!conFile_ || doors_.printers == nullptr) return;
  PrintChoice choice{bPrintAll, true};
  if (!bSkipOptions) {
    const bool selectedThere = selectedCon_ != nullptr;
    const auto chosen = view_.ShowPrintOptions(selectedThere, bPrintAll || !selectedThere);
    if (!chosen) return;
    choice = *chosen;
  }
  if (!choice.bPrintAll && !selectedCon_) return;
  try {
    const auto surface = doors_.printers->ShowPrinterDialog("Print Conversations");
    if (surface) PrintOn(*surface, choice);
  } catch (const RuntimeError& error) {
    // A printer that fails takes nothing from the file: there is nothing to rescue.
    if (error.Number() != RuntimeError::kPrinterError) throw;
    doors_.progress.End();
    Tell("Error Printing!", "An Error Occurred While Printing.", MessageBox::Icon::Critical);
  }
}

void Shell::PrintOn(PrintSurface& surface, const PrintChoice& choice) {
  surface.FontTransparent = true;
  PrintPages pages(surface);
  surface.CurrentY = pages.Top();
  if (!choice.bPrintAll) {
    selectedCon_->PrintConversation(pages, choice.bDetailedHeader);
  } else {
    if (Defaults().bPrintAudioNames) GenerateAudioFilenames();
    if (Defaults().bPrintListingOnly) {
      PrintListing(pages);
    } else {
      PrintEachConversation(pages, choice.bDetailedHeader);
    }
  }
  surface.EndDoc();
}

void Shell::PrintListing(PrintPages& pages) const {
  ConversationListing listing(pages, FromUtf8(GetFileOnly(conFileName)));
  listing.Begin();
  for (const auto& actor : tree_.Root().children) {
    listing.PrintListingSection(actor->text);
    for (const auto& node : actor->children) {
      const auto con = GetConFromID(node->id);
      if (con) listing.PrintConversationName(con->conName);
    }
  }
}

void Shell::PrintEachConversation(PrintPages& pages, Boolean bDetailedHeader) {
  const auto& conversations = conFile_->Conversations;
  doors_.progress.Begin("Printing Conversations...", "", static_cast<int>(conversations.Count()));
  int printed = 0;
  for (const Conversation& con : conversations) {
    doors_.progress.Step(con.conName, ++printed);
    con.PrintConversation(pages, bDetailedHeader);
  }
  doors_.progress.End();
}

}  // namespace parlate
