// The clock tower, where Quill keeps the town eleven minutes behind.

#include "Stories.h"
#include "Talk.h"

namespace parlate::example {

namespace {

void ElevenMinutes(Script& script) {
  Talk talk = script.Conversation(kQuill, "ElevenMinutes", kWren);
  talk.About("The first climb up the tower.", "Quill never looks at the door. He listens for it.");
  talk.When({{"ClockMended", false}});
  talk.Header().bInvokeFrob = true;
  talk.Header().bInvokeBump = true;

  talk.Comment("The clock room. The pendulum is as tall as two people, and takes its time.");
  talk.CameraAt(12, true);
  talk.Says("Don't touch the pendulum. It is the only one up here with a sense of duty.");
  talk.Choose({{.text = "Your clock is eleven minutes late.", .goTo = "Late"},
               {.text = "It's a beautiful machine.", .goTo = "Beautiful"},
               {.text = "Zélie told me about Tomas.",
                .goTo = "Tomas",
                .flags = {{"KnowsWhyTheClockIsLate"}}}});

  talk.At("Late").Says("It isn't late. It is waiting. The difference is intent.");
  talk.Player("Waiting for what?");
  talk.Says("For somebody to ask Zélie instead of me.");
  talk.SetFlags({{"HeardOfTheClock"}});
  talk.End();

  talk.At("Beautiful")
      .Says(
          "It was. An œuvre. Then somebody stole the third wheel, and now it limps. One would "
          "think a "
          "thief might take something less … personal.");
  talk.Goal("FindTheThirdWheel", "Somebody on the quay has the third wheel of the tower clock.");
  talk.End();

  talk.At("Tomas").Says(
      "Did she? Good. For eighteen years I have had a sentence ready, and nobody to say the first "
      "half to.");
  talk.Says("If I set it right, he is late. As long as I don't, he is only not here yet.")
      .Continued();
  talk.Choose({{.text = "What did he say of clocks?", .goTo = "Clocks"},
               {.text = "Then let it wait.", .goTo = "LetItWait"},
               {.text = "He would want the ferry to run.",
                .goTo = "LetItRun",
                .skill = "SweetTalk",
                .level = kIntermediate}});

  talk.At("Clocks").Says("That I wind everything too tight. He included himself.");
  talk.At("LetItRun")
      .Says(
          "… He did hate to keep people. Bring me the third wheel, and we shall see which of us "
          "stops first.");
  talk.GoalDone("SpeakWithQuill");
  talk.Goal("FindTheThirdWheel", "Somebody on the quay has the third wheel of the tower clock.");
  talk.Note("Quill would mend the clock, if he had the wheel, and if it were done quickly.");
  talk.End();

  talk.At("LetItWait").Says("Thank you. Most people bring me a watchmaker.");
  talk.GoalDone("SpeakWithQuill");
  talk.SetFlags({{"ClockLeftLate"}});
  talk.End();
}

void NineAtNine(Script& script) {
  Talk talk = script.Conversation(kQuill, "NineAtNine", kWren);
  talk.About("The third wheel goes back.", "The bell is in the scene's own sound, not here.");
  talk.When({{"KnowsWhyTheClockIsLate"}, {"ClockLeftLate", false}});
  talk.Header().bDisplayOnce = true;
  talk.Header().bFirstPerson = true;
  talk.Header().bInvokeFrob = true;

  talk.NeedsObject("ThirdWheel", "EmptyHands");
  talk.Says("That is the one. There's the tooth he filed. He thought I never noticed.");
  talk.Says("Hold the lamp. Higher. That is what they pay you for.").Continued();
  talk.Transfer("ThirdWheel", 1, kWren, kQuill, "EmptyHands");
  talk.Animation(kQuill, "SetsTheWheel", {.loop = true, .seconds = 6, .wait = true});
  talk.CameraAnywhere();
  talk.Trigger("TowerStrikesNine");
  talk.SetFlags({{"ClockMended"}});
  talk.GoalDone("FindTheThirdWheel");
  talk.SkillPoints(3, "For the first time in eighteen years, it is now.");
  talk.Says("Nine. At nine. Listen to it – it sounds exactly like a door.");
  talk.Choose({{.text = "Closing?", .goTo = "TheOtherThing"},
               {.text = "(Let him listen.)", .goTo = "Listen", .spoken = false}});
  talk.At("TheOtherThing").Says("No. The other thing.");
  talk.End();
  talk.At("Listen").Comment("All nine strokes, and then the ferry's rope on the planks below.");
  talk.End();

  talk.At("EmptyHands").Says("Empty hands? The clock has two, and see how little it helps.");
  talk.End();
}

}  // namespace

void WriteTower(Script& script) {
  ElevenMinutes(script);
  NineAtNine(script);
}

}  // namespace parlate::example
