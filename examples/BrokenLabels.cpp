// A file in which much is wrong on purpose: every colour of a row is in it.

#include "Stories.h"
#include "Talk.h"

namespace parlate::example {

void WriteBrokenLabels(Script& script) {
  Talk lost = script.Conversation(kOrrin, "LostInTheFog", kWren);
  lost.About("Jumps that lead nowhere.");
  lost.Comment("A comment is grey.");
  lost.Says("This line has a file for its sound. It is as white as paper.");
  lost.Says("This one has none yet.").NotRecorded();
  lost.At("Pier").Says("This one bears a label, and somebody jumps to it.");
  lost.At("Bench").Says("A label, and no sound: the missing sound is what shows.").NotRecorded();
  lost.Choose({{.text = "To the pier.", .goTo = "Pier"},
               {.text = "To the end of the pier.", .goTo = "EndOfThePier"},
               {.text = "To the bench.", .goTo = "bench"}});
  lost.AnyOf({"Pier", "Fog", "Fog"});
  lost.IfFlags({{"FogLifts"}}, "ClearView");
  lost.JumpTo("FoundAgain", "Lamp");
  lost.JumpTo("FoundAgain", "Cellar");
  lost.End();

  Talk found = script.Conversation(kWren, "FoundAgain", kOrrin);
  found.About("Where the jumps arrive, or do not.");
  found.At("Lamp").Player("There you are. Follow the light next time.");
  found.NeedsObject("BoxOfMatches", "NoMatches");
  found.Transfer("BoxOfMatches", 1, kWren, kOrrin, "KeepsThem");
  found.At("Door").Comment("A comment with a label is green.");
  found.End();
}

}  // namespace parlate::example
