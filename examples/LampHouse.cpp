// The lamp house at the land end of the quay, and old Orrin on its steps.

#include "Stories.h"
#include "Talk.h"

namespace parlate::example {

namespace {

void FirstEvening(Script& script) {
  Talk talk = script.Conversation(kOrrin, "FirstEvening", kWren);
  talk.About("Wren reports for the first night on the lamps.",
             "Teaches choices and the first goal.\r\nPlays on the steps, at dusk.");
  talk.When({{"MetOrrin", false}});
  talk.Header().bDisplayOnce = true;
  talk.Header().bCannotBeInterrupted = true;
  talk.Header().bInvokeFrob = true;
  talk.Header().bInvokeBump = true;

  talk.Comment("Orrin sits on an upturned bucket and polishes a lamp that is clean already.");
  talk.CameraAt(4);
  talk.Says("You'll be the new lamp-lighter. I was told to expect somebody taller.");
  talk.Choose({{.text = "I was told to expect somebody friendlier.", .goTo = "Friendlier"},
               {.text = "The pole makes up for it.", .goTo = "Pole"},
               {.text = "You polish that lamp by touch.",
                .goTo = "ByTouch",
                .skill = "SharpEyes",
                .level = kIntermediate}});

  talk.At("Friendlier").Says("Ha! No. They sent the friendly one to the tax office.");
  talk.Jump("Rules");

  talk.At("Pole").Says("So it does. I like poles. They never ask about the pension.");
  talk.Jump("Rules");

  talk.At("ByTouch").Says(
      "I do everything by touch. It is called thoroughness, and we will not discuss it before "
      "supper.");
  talk.SetFlags({{"SawOrrinsEyes"}});

  talk.At("Rules").Says(
      "Seven lamps. You light them from the land side out to the water, never the other way. Lit "
      "from the water in, it looks as if somebody were leaving.");
  talk.Says("And the seventh last … Boats steer by the seventh. So do some people.").Continued();
  talk.Animation(kOrrin, "HandsOverPole", {.wait = true});
  talk.Transfer("LampPole", 1, kOrrin, kWren);
  talk.Transfer("BoxOfMatches", 3, {}, kWren);
  talk.Goal("LightTheQuay", "Light all seven lamps on Lantern Quay before the last ferry.", true);
  talk.Note("From the land side out, and the seventh last. Master Orrin is quite clear about it.");
  talk.SetFlags({{"MetOrrin"}});
  talk.Player("Anything else I should know?");
  talk.Says("Yes. Don't talk to the clock. It only encourages Quill.");
  talk.End();
}

void OrrinMutters(Script& script) {
  Talk talk = script.Conversation(kOrrin, "OrrinMutters", kWren);
  talk.About("What Orrin says to himself while the lamps go on.");
  talk.When({{"MetOrrin"}, {"LampsLit", false}});
  talk.Header().bNonInteractive = true;
  talk.Header().bCanBeInterrupted = true;
  talk.Header().bInvokeRadius = true;
  talk.Header().invokeRadius = 240;

  talk.AnyOf({"TheOne", "Gulls", "Knees"});
  talk.At("TheOne").Says("Six and one is seven. It is always the one that people forget.");
  talk.End();
  talk.At("Gulls").Says(
      "If the gulls steal your matches, bow to them. It doesn't help, but it gives the visitors "
      "something to write home about.");
  talk.End();
  talk.At("Knees").Says("I once lit all seven in nine minutes. I had knees in those days.");
  talk.End();
}

void LampsDone(Script& script) {
  Talk talk = script.Conversation(kOrrin, "LampsDone", kWren);
  talk.About("Wren comes back from the end of the quay.");
  talk.When({{"LampsLit"}, {"LampsPaid", false}});
  talk.Header().bInvokeFrob = true;
  talk.Header().bRandomCamera = true;

  talk.IfFlags({{"LampSevenDark"}}, "OnlySix");
  talk.Says("Seven. I counted from here. The street goes quiet for a moment at each one.");
  talk.Player("You listened to them?");
  talk.Says("People stop to look. They would deny it.");
  talk.GoalDone("LightTheQuay");
  talk.Credits(30);
  talk.SkillPoints(2, "The quay is lit, and you are not in the water.");
  talk.SetFlags({{"LampsPaid"}});
  talk.End();

  talk.At("OnlySix").Says("Six.").Bold();
  talk.Says("I don't need good eyes for that, I need a window. Who paid you?").Continued();
  talk.Choose({{.text = "Nobody. The wick was wet.", .goTo = "WetWick"},
               {.text = "Nettle.", .goTo = "Truth", .flags = {{"TookNettlesCoin"}}},
               {.text = "Give me until the ferry.", .goTo = "UntilTheFerry"}});

  talk.At("WetWick").Says("Wet. In a lamp with a roof. In a month without rain.");
  talk.Player("It … wept?");
  talk.Says("Then go and dry its tears.");
  talk.Jump("UntilTheFerry");

  talk.At("Truth").Says(
      "Thank you for not making me guess. Now take that money for a walk, straight back to where "
      "it came from.");
  talk.JumpTo("DarkLamp", "GiveBack");

  talk.At("UntilTheFerry")
      .Says("Eleven minutes, then. This town always has eleven minutes to spare.");
  talk.SetFlags({{"LampSevenPromised", true, 1}});
  talk.End();
}

void FourHundredAndTwelve(Script& script) {
  Talk talk = script.Conversation(kOrrin, "FourHundredAndTwelve", kWren);
  talk.About("What Orrin can and cannot see.", "The quiet one. No jokes after the word 'Since'.");
  talk.When({{"SawOrrinsEyes"}, {"MetOrrin"}});
  talk.Header().bDisplayOnce = true;
  talk.Header().bFirstPerson = true;
  talk.Header().bCannotBeInterrupted = true;
  talk.Header().bInvokeFrob = true;

  talk.CameraAt(3);
  talk.Says("Out with it. You have been silent for two whole lamps.");
  talk.Player("How long have you been lighting them blind?");
  talk.Says(
      "Since the winter before last. Seven lamps, four hundred and twelve steps. You needn't see a "
      "thing that you have promised.");
  talk.Choose(
      {{.text = "The Harbour Office would find you a chair by the fire.", .goTo = "Chair"},
       {.text = "Teach me the steps.", .goTo = "Steps"},
       {.text = "(Say nothing, and sit down beside him.)", .goTo = "Sit", .spoken = false}});

  talk.At("Chair").Says(
      "They would find me a chair. Then they would find the lamps a clockwork, and then they would "
      "find you a chair.");
  talk.Jump("After");

  talk.At("Steps").Says("Close your eyes, then. No – properly. Forty-one to the first.");
  talk.Says("Mind the rope. It has been there since Tuesday.").Continued();
  talk.Trigger("StepsLessonBegins");
  talk.Goal("LearnTheSteps", "Walk from the lamp house to the first lamp with your eyes closed.");
  talk.Jump("After");

  talk.At("Sit").Comment("A long pause. The first stars are out, and he turns his face to them.");
  talk.Says("Are they out? – I thought so. It smells of tin when they are out.");

  talk.At("After").Says("If anybody asks, I retired tonight. I'd like to be the one who tells it.");
  talk.SetFlags({{"KeepsOrrinsSecret"}});
  talk.End();
}

}  // namespace

void WriteLampHouse(Script& script) {
  FirstEvening(script);
  OrrinMutters(script);
  LampsDone(script);
  FourHundredAndTwelve(script);
}

}  // namespace parlate::example
