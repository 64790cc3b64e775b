// The ferry "Second Thoughts", which leaves at nine by a clock that is wrong.

#include "Stories.h"
#include "Talk.h"

namespace parlate::example {

namespace {

void FerryToll(Script& script) {
  Talk talk = script.Conversation(kZelie, "FerryToll", kWren);
  talk.About("What it costs to cross.", "The ferry's cat is an actor of its own, and underpaid.");
  talk.When({{"PaidTheToll", false}});
  talk.Header().bInvokeBump = true;
  talk.Header().bInvokeFrob = true;

  talk.Comment("The ferry is called Second Thoughts. Most passengers board with them.");
  talk.CameraAt(1);
  talk.Says("Two coins to cross. Three if we talk about the weather.");
  talk.IfPersona(kCredits, kLess, 2, "Broke");
  talk.Choose({{.text = "Two, and a comfortable silence.", .goTo = "Silence"},
               {.text = "Three. How is the weather?", .goTo = "Weather"},
               {.text = "Lamp-lighters cross free.", .goTo = "Free", .skill = "SweetTalk"},
               {.text = "Constable Brack says to put it on his bill.",
                .goTo = "OnTheBill",
                .flags = {{"BrackLooksAway"}, {"BrackSuspects", false}}}});

  talk.At("Silence").Credits(-2);
  talk.Says("My speciality. Sit anywhere. Not there, that is the cat's.");
  talk.Jump("Aboard");

  talk.At("Weather").Credits(-3);
  talk.Says(
      "It is late. Eleven minutes late, like everything that takes its orders from that tower.");
  talk.SetFlags({{"HeardOfTheClock"}});
  talk.Jump("Aboard");

  talk.At("Free").Says(
      "The last one crossed free as well. He is still over there. He met a baker.");
  talk.Jump("Aboard");

  talk.At("OnTheBill").Says("His bill is longer than the channel. Well, what is one more oar?");
  talk.Jump("Aboard");

  talk.At("Broke").Says(
      "Then you may feed the cat. It pays less than rowing, but it is the drier career.");
  talk.Trigger("FerryCatBowl");
  talk.End();

  talk.At("Aboard").SetFlags({{"PaidTheToll", true, 1}});
  talk.Animation(kZelie, "CastsOff", {.wait = true});
  talk.Say("FerryCat", kZelie, "Mrrau.").NotRecorded();
  talk.Trigger("FerryLeaves");
  talk.End();
}

void ElevenPastNine(Script& script) {
  Talk talk = script.Conversation(kZelie, "ElevenPastNine", kWren);
  talk.About("Why the ferry waits.", "To be played slowly. The water is the third speaker.");
  talk.When({{"HeardOfTheClock"}});
  talk.Header().bDisplayOnce = true;
  talk.Header().bInvokeFrob = true;
  talk.Header().bInvokeSight = true;

  talk.CameraAt(7, true);
  talk.Says("You want to know why I don't leave at nine.");
  talk.Player("You leave at eleven past. Every night. I have timed it.");
  talk.Says("With what?");
  talk.Says("There. By the tower it is nine o'clock on the dot.").Continued();
  talk.Choose({{.text = "So the clock is wrong, and you know it.", .goTo = "Everybody"},
               {.text = "Who are you waiting for?", .goTo = "Waiting", .skill = "SharpEyes"},
               {.text = "It's none of my business.", .goTo = "NotMine"}});

  talk.At("Everybody")
      .Says(
          "Everybody on this quay knows. That is how a small town keeps a secret: it hands it "
          "round.");
  talk.Jump("Tomas");

  talk.At("Waiting").Says(
      "I? Nobody. I wait on somebody's behalf. He won't come down and ask me to, so I never make "
      "him.");

  talk.At("Tomas").Says(
      "Quill's Tomas missed my ferry by eleven minutes. So he took a rowing boat. It blew all that "
      "night.");
  talk.Says("I was on time, you see. I have never been on time since.").Continued();
  talk.Player("I'm sorry.");
  talk.Says("Don't be sorry. Be late.");
  talk.SetFlags({{"KnowsWhyTheClockIsLate"}});
  talk.Note("Eighteen years ago the ferry left at nine, and Tomas came at eleven past.");
  talk.Goal("SpeakWithQuill", "Somebody should climb the tower and speak with Quill.");
  talk.End();

  talk.At("NotMine").Says("It wasn't mine either. Then I noticed that I was doing it.");
  talk.End();
}

void LastFerry(Script& script) {
  Talk talk = script.Conversation(kZelie, "LastFerry", kWren);
  talk.About("How the night ends.");
  talk.When({{"LampsLit"}});
  talk.Header().bDisplayOnce = true;
  talk.Header().bCannotBeInterrupted = true;
  talk.Header().bInvokeRadius = true;
  talk.Header().invokeRadius = 400;

  talk.CameraAt(5, true);
  talk.IfFlags({{"LampSevenDark"}}, "InTheDark");
  talk.IfFlags({{"ClockMended"}}, "NineAtNine");
  talk.Says(
      "You lit the seventh. I saw it from the middle of the channel, which is where one likes to "
      "be told that there is still a quay.");
  talk.Player("Goodnight, Zélie.");
  talk.Says("It is not night until I have tied up. – Goodnight.");
  talk.SetFlags({{"LastFerryHome"}});
  talk.End();

  talk.At("NineAtNine")
      .Says(
          "It struck nine at nine. I had the rope off before I noticed what my hands were doing.");
  talk.Player("And then?");
  talk.Says("Then I waited eleven minutes. It is my ferry.");
  talk.SetFlags({{"LastFerryHome"}});
  talk.End();

  talk.At("InTheDark")
      .Says(
          "I steer by the seventh. Tonight I steered by your bad conscience, and it is not as "
          "bright.");
  talk.Choose({{.text = "I'm going now. I'm lighting it now.", .goTo = "GoingNow"},
               {.text = "Everybody got home, didn't they?", .goTo = "GotHome"}},
              true);
  talk.At("GotHome").Says("One night, everybody did but one. We still say everybody.");
  talk.At("GoingNow").SetFlags({{"LampSevenPromised", true, 1}});
  talk.Trigger("LampSevenGlows");
  talk.End();
}

}  // namespace

void WriteFerry(Script& script) {
  FerryToll(script);
  ElevenPastNine(script);
  LastFerry(script);
}

}  // namespace parlate::example
