// One conversation on its pages: the title, the flags that gate it, and its events.

#include <limits>

#include "model/Conversation.h"
#include "model/Tables.h"
#include "model/Vocabulary.h"
#include "model/Workspace.h"
#include "model/printing/PrintPages.h"

namespace parlate {

namespace {

/// Below every place on a page, so that an event is printed whether it fits or not.
constexpr int kNoBottom = std::numeric_limits<int>::max();

const ConversationDefaults& Defaults() { return Workspace::Current().defaults; }

bool IsSpokenOrComment(std::int32_t eventType) {
  return eventType == kSpeech || eventType == kChoice || eventType == kComment;
}

}  // namespace

Boolean Conversation::PrintConversation(PrintPages& pages, Boolean bDetailedHeader) const {
  if (events.Empty()) return false;
  PrintSurface& surface = pages.surface;
  const Twips x = pages.Left();
  const Twips top = pages.Top();
  const Twips bottom = pages.Bottom();
  const Twips titleHeight = PrintConversationHeader(pages, x, true, false);
  if (surface.CurrentY + titleHeight > bottom) pages.PrintNewPage(top);
  PrintConversationHeader(pages, x, false, false);
  if (bDetailedHeader) PrintConversationFlags(pages, x);
  const auto goOnOverleaf = [&] {
    pages.PrintNewPage(top);
    PrintConversationHeader(pages, x, false, true);
  };
  for (const EventItem& event : events) {
    surface.CurrentX = x;
    const bool printed = !Defaults().bPrintSpeechOnly || IsSpokenOrComment(event.eventType);
    if (printed && !event.PrintEvent(pages, x, bottom)) {
      goOnOverleaf();
      // What is taller than a page runs over its end.
      event.PrintEvent(pages, x, kNoBottom);
    }
    if (surface.CurrentY > bottom) goOnOverleaf();
  }
  if (Defaults().bConPageBreaks && surface.CurrentY != top) pages.PrintNewPage(top);
  return true;
}

Twips Conversation::PrintConversationHeader(PrintPages& pages, int x, Boolean bCalculateHeightOnly,
                                            Boolean bContinued) const {
  PrintSurface& surface = pages.surface;
  const KeepFont keep(surface);
  pages.UseHeadingFont(4);
  surface.CurrentX = ToTwips(x);
  std::string text = "Conversation: " + GetTableItemName(kActorTable, NPCID) + " - " + conName;
  if (bContinued) text += " (continued)";
  const Twips height = ToTwips(surface.TextHeight(text) + kRuleGap);
  if (!bCalculateHeightOnly) {
    surface.Print(text);
    pages.PrintRule(x);
  }
  return height;
}

void Conversation::PrintConversationFlags(PrintPages& pages, int x) const {
  if (flagRefs.Empty()) return;
  PrintSurface& surface = pages.surface;
  const KeepFont keep(surface);
  pages.UseHeadingFont(2);
  surface.CurrentX = ToTwips(x);
  surface.Print("Conversation Flags");
  surface.CurrentY = ToTwips(surface.CurrentY + 50);
  for (const FlagRef& flag : flagRefs) {
    surface.CurrentX = ToTwips(x + 500);
    surface.Print(flag.Desc());
  }
  surface.CurrentY = ToTwips(surface.CurrentY + 50);
  pages.PrintRule(x);
}

Boolean EventItem::PrintEvent(PrintPages& pages, int x, int bottom) const {
  PrintSurface& surface = pages.surface;
  const KeepFont keep(surface);
  // The size stays as it is found, and the body is measured in this font though it is printed in
  // another: an estimate, which the bodies themselves and a second try make good.
  surface.Font.Name = kHeadingFont;
  const std::int32_t actorID = Object().GetActorID();
  const std::string actor = actorID == -1 ? "" : GetTableItemName(kActorTable, actorID);
  const int labelHeight = eventLabel.empty() ? 0 : surface.TextHeight(eventLabel);
  const int height =
      labelHeight + surface.TextHeight(actor) + 100 + Object().GetEventPrintHeight(surface);
  if (surface.CurrentY + height > bottom) return false;
  const bool speechOnly = Defaults().bPrintSpeechOnly;
  if (!eventLabel.empty() && !speechOnly) pages.PrintBar(x, eventLabel);
  surface.CurrentX = ToTwips(x + 250);
  PrintHeading(surface, actor);
  surface.Font.Name = kBodyFont;
  surface.Font.Size = Defaults().PrintFontSize;
  const Boolean printed = Object().PrintEvent(surface, x + 500, bottom);
  if (Defaults().bPrintBlankLines) surface.Print();
  return printed;
}

void EventItem::PrintHeading(PrintSurface& surface, const std::string& actor) const {
  const std::string_view typeName = eventTypeNames.at(static_cast<std::size_t>(eventType));
  if (actor.empty() || eventType == kTransferObject) {
    surface.Print(typeName);
  } else if (eventType == kSpeech) {
    surface.Print(actor);
  } else {
    surface.Print(typeName, PrintSurface::After::Zone);
    surface.Print(actor);
  }
}

}  // namespace parlate
