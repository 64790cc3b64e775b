// What each type of event prints below its heading. The measure and the drawing of a body stand
// side by side.

#include <string>

#include "general/PrintSurface.h"
#include "general/WrappedText.h"
#include "model/Tables.h"
#include "model/Workspace.h"
#include "model/events/BranchingEvents.h"
#include "model/events/EffectEvents.h"
#include "model/events/EventChoice.h"
#include "model/events/EventSpeech.h"

namespace parlate {

namespace {

constexpr char kBullet = '\x95';

const ConversationDefaults& Defaults() { return Workspace::Current().defaults; }

std::string AudioLine(const std::string& audioFile) {
  return "[Audio Filename = " + audioFile + "]";
}

bool PrintsAudio(const std::string& audioFile) {
  return !audioFile.empty() && Defaults().bPrintAudioNames;
}

void PrintAt(PrintSurface& surface, int x, std::string_view text) {
  surface.CurrentX = ToTwips(x);
  surface.Print(text);
}

/// False, with nothing printed, if the text would pass the bottom.
Boolean PrintIfItFits(PrintSurface& surface, int x, int bottom, const std::string& text) {
  const WrappedText wrapped(surface, x, x, text);
  if (surface.CurrentY + wrapped.Height() > bottom) return false;
  wrapped.Print(surface);
  return true;
}

Twips HeightOfFlags(const PrintSurface& surface, const FlagList& flags) {
  int height = 0;
  for (const FlagRef& flag : flags) height += surface.TextHeight(flag.Desc());
  return ToTwips(height);
}

void PrintFlags(PrintSurface& surface, int x, const FlagList& flags) {
  for (const FlagRef& flag : flags) PrintAt(surface, x, flag.Desc());
}

/// Where the choice leads and what it takes; returns the height.
int PrintConditions(PrintSurface& surface, int x, Boolean bCalculateHeightOnly,
                    const ChoiceItem& choice) {
  int height = 0;
  const auto line = [&](const std::string& text) {
    surface.CurrentX = ToTwips(x);
    surface.Font.Italic = true;
    height += surface.TextHeight(text);
    if (!bCalculateHeightOnly) surface.Print(text);
    surface.Font.Italic = false;
  };
  if (!choice.label.empty()) line("Jump To: " + choice.label);
  if (choice.skillID > -1) line("Requires Skill " + GetTableItemName(kSkillTable, choice.skillID));
  if (!choice.flagRefs.Empty()) {
    const std::string flags = "Flags: " + BuildFlagsString(choice.flagRefs);
    surface.CurrentX = ToTwips(x);
    surface.Font.Italic = true;
    height += PrintWrappedText(surface, x, x + 300, flags, bCalculateHeightOnly);
    surface.Font.Italic = false;
  }
  return height;
}

}  // namespace

// Most bodies are the text of the event's row, on one line.

Twips EventObject::GetEventPrintHeight(PrintSurface& surface) const {
  return surface.TextHeight(BuildEventListString());
}

Boolean EventObject::PrintEvent(PrintSurface& surface, int x, int /*bottom*/) const {
  PrintAt(surface, x, BuildEventListString());
  return true;
}

Twips EventSpeech::GetEventPrintHeight(PrintSurface& surface) const {
  const std::string text = PrintsAudio(audioFile) ? AudioLine(audioFile) + "\r" + speech : speech;
  return PrintWrappedText(surface, 0, 0, text, true);
}

Boolean EventSpeech::PrintEvent(PrintSurface& surface, int x, int bottom) const {
  const Boolean printed = PrintIfItFits(surface, x, bottom, speech);
  if (PrintsAudio(audioFile)) {
    surface.CurrentX = ToTwips(x + 300);
    surface.Print();
    PrintAt(surface, x + 300, AudioLine(audioFile));
    surface.CurrentX = ToTwips(x);
  }
  return printed;
}

Twips EventComment::GetEventPrintHeight(PrintSurface& surface) const {
  return PrintWrappedText(surface, 0, 0, commentText, true);
}

Boolean EventComment::PrintEvent(PrintSurface& surface, int x, int bottom) const {
  return PrintIfItFits(surface, x, bottom, commentText);
}

Twips EventChoice::GetEventPrintHeight(PrintSurface& surface) const {
  return PrintChoices(surface, 0, true);
}

Boolean EventChoice::PrintEvent(PrintSurface& surface, int x, int /*bottom*/) const {
  PrintChoices(surface, x, false);
  return true;
}

Twips EventChoice::PrintChoices(PrintSurface& surface, int x, Boolean bCalculateHeightOnly) const {
  int height = 0;
  for (const ChoiceItem& choice : Choices) {
    const std::string text = std::string{kBullet, ' '} + choice.text;
    height += PrintWrappedText(surface, x, x + 300, text, bCalculateHeightOnly);
    if (PrintsAudio(choice.audioFile)) {
      // Meant: the two blank lines round the name are not in the height.
      const std::string audio = AudioLine(choice.audioFile);
      surface.CurrentX = ToTwips(x + 300);
      if (!bCalculateHeightOnly) surface.Print();
      surface.CurrentX = ToTwips(x + 300);
      height += surface.TextHeight(audio);
      if (!bCalculateHeightOnly) {
        surface.Print(audio);
        surface.Print();
      }
    }
    if (!Defaults().bPrintSpeechOnly) {
      height += PrintConditions(surface, x + 300, bCalculateHeightOnly, choice);
      height += 100;  // meant: the gap is in the sum only, nothing moves down by it
    }
  }
  return ToTwips(height);
}

Twips EventSetFlag::GetEventPrintHeight(PrintSurface& surface) const {
  return HeightOfFlags(surface, flagRefs);
}

Boolean EventSetFlag::PrintEvent(PrintSurface& surface, int x, int /*bottom*/) const {
  PrintFlags(surface, x, flagRefs);
  return true;
}

// The label to jump to stands on no page.

Twips EventCheckFlag::GetEventPrintHeight(PrintSurface& surface) const {
  return HeightOfFlags(surface, flagRefs);
}

Boolean EventCheckFlag::PrintEvent(PrintSurface& surface, int x, int /*bottom*/) const {
  PrintFlags(surface, x, flagRefs);
  return true;
}

Twips EventRandom::GetEventPrintHeight(PrintSurface& surface) const {
  int height = surface.TextHeight("Random Targets:");
  for (const std::string& label : labels_) height += surface.TextHeight(label);
  return ToTwips(height);
}

Boolean EventRandom::PrintEvent(PrintSurface& surface, int x, int /*bottom*/) const {
  surface.CurrentX = ToTwips(x);
  // Meant: the first label shares the line.
  surface.Print("Random Targets:", PrintSurface::After::Text);
  for (const std::string& label : labels_) PrintAt(surface, x + 250, label);
  return true;
}

Twips EventTrigger::GetEventPrintHeight(PrintSurface& surface) const {
  return PrintWrappedText(surface, 0, 0, BuildEventListString(), true);
}

Twips EventAddGoal::GetEventPrintHeight(PrintSurface& surface) const {
  return surface.TextHeight(BuildEventListSubString());
}

Boolean EventAddGoal::PrintEvent(PrintSurface& surface, int x, int /*bottom*/) const {
  PrintAt(surface, x, "Goal Name: " + goalName);
  if (bGoalCompleted) {
    PrintAt(surface, x, "Completed");
    return true;
  }
  PrintAt(surface, x, "Goal Text: " + goalText);
  PrintAt(surface, x, "(Primary Goal)");  // meant: for every goal that is not completed
  return true;
}

}  // namespace parlate
