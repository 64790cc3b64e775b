// The rest of the quay: a constable, a child, a rock and a machine.

#include "Stories.h"
#include "Talk.h"

namespace parlate::example {

namespace {

void BrackAsks(Script& script) {
  Talk talk = script.Conversation(kBrack, "BrackAsks", kWren);
  talk.About("The Harbour Office makes its inquiries.");
  talk.When({{"MetOrrin"}});
  talk.Header().bDisplayOnce = true;
  talk.Header().bCannotBeInterrupted = true;
  talk.Header().bInvokeSight = true;

  talk.CameraAt(8);
  talk.Says("Constable Brack, Harbour Office. A lamp is expected to go out tonight.");
  talk.Says("Kindly spell 'suspicious'.").Continued();
  talk.Choose({{.text = "What happened to your pencil?", .goTo = "Pencil"},
               {.text = "I have nothing to declare.", .goTo = "Nothing"},
               {.text = "Number seven. I was paid to leave it dark.",
                .goTo = "Confess",
                .flags = {{"TookNettlesCoin"}}}});

  talk.At("Pencil").Says("It is helping us with our inquiries.");
  talk.At("Nothing").IfFlags({{"LampSevenDark"}}, "DarkNothing");
  talk.Says("Then I shall write 'nothing'. It is at least short.");
  talk.SetFlags({{"BrackSuspects", false}});
  talk.End();

  talk.At("DarkNothing").Says("It's a very dark nothing, that, out there at the end.");
  talk.SetFlags({{"BrackSuspects", true, 2}});
  talk.End();

  talk.At("Confess").Says(
      "You see, I should have to arrest the whole quay. The oranges, the ferry, the hospice, the "
      "cat.");
  talk.Says(
          "So I shall stand here with my back to the water, and count to six hundred and sixty. "
          "Slowly. I was never good with figures.")
      .Continued();
  talk.SetFlags({{"BrackLooksAway", true, 1}, {"BrackSuspects", false}});
  talk.Note("Six hundred and sixty seconds are eleven minutes. Brack is in it too.");
  talk.End();
}

void MatchesAndGulls(Script& script) {
  Talk talk = script.Conversation(kPepper, "MatchesAndGulls", kWren);
  talk.About("Pepper sells matches, and leads the gulls.",
             "Lines without audio wait for a child "
             "with a cold.");
  talk.Header().bInvokeBump = true;
  talk.Header().bInvokeFrob = true;
  talk.Header().bCanBeInterrupted = true;

  talk.Says("Matches! Dry ones a penny, honest ones two.").NotRecorded();
  talk.Choose({{.text = "What's an honest match?", .goTo = "Honest"},
               {.text = "A box of the dry ones.", .goTo = "Buy"},
               {.text = "Why do the gulls follow you?", .goTo = "Gulls"},
               {.text = "I'll tell Orrin you said hello.", .goTo = "Hello"}});

  talk.At("Honest").Says("It goes out when it says it will.").NotRecorded();
  talk.At("Buy").IfPersona(kCredits, kLess, 1, "NoPenny");
  talk.Credits(-1);
  talk.Transfer("BoxOfMatches", 1, kPepper, kWren, "SoldOut");
  talk.Says("Pleasure. Don't strike them near the big one. He's management.").NotRecorded();
  talk.End();
  talk.At("SoldOut").Says("Sold out. The gulls had a busy morning.").NotRecorded();
  talk.End();
  talk.At("NoPenny").Says("No penny? Then you get the smell for nothing.").NotRecorded();
  talk.End();

  talk.At("Gulls").Says("They don't follow. I lead. It's all in the walk.").NotRecorded();
  talk.Animation(kPepper, "GullWalk", {.loop = true, .seconds = 4});
  talk.SetFlags({{"FriendOfTheGulls", true, 3}});
  talk.End();

  talk.At("Hello").Says("He knows me by my boots. Tell him they're new ones.").NotRecorded();
  talk.Comment("She stamps twice, so that he can hear it at the lamp house.");
  talk.End();
}

void RockToQuay(Script& script) {
  Talk talk = script.Conversation(kIngram, "RockToQuay", kWren);
  talk.About("The keeper on the Rock, by lens and shutter.",
             "A call over the water. Ingram is heard, never seen.");
  talk.When({{"MetOrrin"}});
  talk.Header().bHoloCallCon = true;
  talk.Header().bDisplayOnce = true;
  talk.Header().bFirstPerson = true;

  talk.Comment("A flash is a word. A long flash is a word that was meant.");
  talk.Says("ROCK TO QUAY. I COUNT SIX OF YOU.").InComputerFont();
  talk.Player("Quay to Rock. Who is counting?");
  talk.Says("INGRAM. NINE YEARS, AND YOU ARE THE FIRST TO ASK.").InComputerFont();
  talk.Choose({{.text = "Isn't it lonely out there?", .goTo = "Lonely"},
               {.text = "Count again.", .goTo = "CountAgain"}});
  talk.At("Lonely").Says("NO. I HAVE SEVEN NEIGHBOURS. ONE OF THEM IS SHY.").InComputerFont();
  talk.At("CountAgain").SetFlags({{"AnsweredTheRock"}});
  talk.IfFlags({{"LampSevenLit"}}, "AllSeven");
  talk.Says("SIX. NEVER MIND. I SHALL LEAVE MINE ON A LITTLE LONGER.").InComputerFont();
  talk.End();
  talk.At("AllSeven").Says("SEVEN. GOODNIGHT, QUAY.").InComputerFont().Bold();
  talk.SkillPoints(1, "Somebody sleeps better for it.");
  talk.End();
}

void TideNotice(Script& script) {
  Talk talk = script.Conversation(kTelegraph, "TideNotice", kWren);
  talk.About("The machine outside the Harbour Office.");
  talk.Header().bNonInteractive = true;
  talk.Header().bCanBeInterrupted = true;
  talk.Header().bInvokeRadius = true;
  talk.Header().invokeRadius = 90;

  talk.OneAfterAnother({"HighWater", "Fog", "Lost"});
  talk.At("HighWater")
      .Says("HIGH WATER AT 21:00. TOWER TIME 20:49. PLEASE AGREE AMONG YOURSELVES.")
      .InComputerFont();
  talk.End();
  talk.At("Fog")
      .Says("FOG IS EXPECTED. IF YOU CAN READ THIS, THE FOG IS DELAYED.")
      .InComputerFont()
      .NotRecorded();
  talk.End();
  talk.At("Lost").Says("LOST: ONE PENCIL. WILL THE FINDER PLEASE WRITE.").InComputerFont();
  talk.End();
}

}  // namespace

void WriteQuayside(Script& script) {
  BrackAsks(script);
  MatchesAndGulls(script);
  RockToQuay(script);
  TideNotice(script);
}

}  // namespace parlate::example
