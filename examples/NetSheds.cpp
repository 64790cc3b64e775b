// Behind the net sheds, where Nettle is heard before she is seen.

#include "Stories.h"
#include "Talk.h"

namespace parlate::example {

namespace {

void DarkLamp(Script& script) {
  Talk talk = script.Conversation(kNettle, "DarkLamp", kWren);
  talk.About("Nettle would like one lamp less.",
             "Three ways through it: take the money, refuse it, or find out what is under the "
             "oranges.\r\nLampsDone jumps to GiveBack.");
  talk.When({{"MetOrrin"}, {"LampsLit", false}});
  talk.Header().bInvokeSight = true;
  talk.Header().bInvokeRadius = true;
  talk.Header().invokeRadius = 160;
  talk.Header().bCanBeInterrupted = true;

  talk.Comment("First her voice, then the smell of oranges, then Nettle.");
  talk.CameraAt(6);
  talk.Says("Lovely pole. A shame about the wind. It will put one lamp out tonight.");
  talk.Says("I feel it in my purse.").Continued();
  talk.Choose({{.text = "Which lamp does the wind prefer?", .goTo = "Seven"},
               {.text = "What are you bringing in?", .goTo = "Cargo"},
               {.text = "The wind can explain itself to Constable Brack.", .goTo = "Brack"},
               {.text = "For that money? It is barely a breeze.",
                .goTo = "Gale",
                .skill = "SweetTalk",
                .level = kAdvanced}});

  talk.At("Seven").Says("Number seven. Fifteen coins' worth of wind.");
  talk.Jump("Decide");

  talk.At("Cargo").Says("Oranges.");
  talk.Player("Nobody rows oranges in at midnight.");
  talk.Says(
      "Oranges on top. Fever tonic underneath. The Harbour Office taxes a cough at forty per cent, "
      "and it has been a long winter for the hospice.");
  talk.SetFlags({{"KnowsTheCargo"}});
  talk.Jump("Decide");

  talk.At("Brack").Animation(kNettle, "TwirlsPencil", {.loop = true, .seconds = 3});
  talk.Says("He would have to write that down first. And I seem to have his pencil.");
  talk.Jump("Decide");

  talk.At("Gale").Says("Thirty, then. You'd make a dreadful lamp-lighter. I mean it kindly.");
  talk.Credits(30);
  talk.Jump("Taken");

  talk.At("Decide").Choose({{.text = "Fifteen, and I never saw you.", .goTo = "Take"},
                            {.text = "Seven lamps. That's the job.", .goTo = "Refuse"},
                            {.text = "The tonic goes to the hospice before it goes to market.",
                             .goTo = "Hospice",
                             .flags = {{"KnowsTheCargo"}}}},
                           true);

  talk.At("Take").Credits(15);
  talk.Says("You didn't. Nobody ever does. It's lonely work.");
  talk.At("Taken").SetFlags({{"TookNettlesCoin"}, {"LampSevenDark", true, 1}});
  talk.End();

  talk.At("Refuse").Says(
      "Then I must row in by lamplight, and wave. Do you know what that does to "
      "a reputation?");
  talk.End();

  talk.At("Hospice").Transfer("FeverTonic", 4, kNettle, kWren, "NoneLeft");
  talk.Says(
      "Four bottles, on account. And you light the lamp, so that I find the steps. Look at us. We "
      "are practically respectable.");
  talk.Goal("TonicForTheHospice", "Bring four bottles of fever tonic to the hospice, unseen.");
  talk.SetFlags({{"TonicPromised"}});
  talk.End();
  talk.At("NoneLeft").Says("Bad luck, they are out on the water still. Come back with the tide.");
  talk.End();

  talk.At("GiveBack").IfPersona(kCredits, kLess, 15, "Spent");
  talk.Credits(-15);
  talk.Says("Fifteen, and still warm. The old man sent you, didn't he?");
  talk.Says("Tell him he still sees further than most of us.").Continued();
  talk.SetFlags({{"TookNettlesCoin", false}, {"LampSevenDark", false}});
  talk.End();
  talk.At("Spent").Says("You have spent it. Of course you have. Money from the dark never keeps.");
  talk.End();
}

void NightTrade(Script& script) {
  Talk talk = script.Conversation(kNettle, "NightTrade", kWren);
  talk.About("Oranges by the piece, and a paperweight.");
  talk.When({{"KnowsTheCargo"}});
  talk.Header().bInvokeFrob = true;

  talk.Says("Open for business, as long as you look the other way while you choose.");
  talk.Trade(kNettle);
  talk.IfFlags({{"KnowsWhyTheClockIsLate"}}, "Paperweight");
  talk.Says("Mind how you go. And if you should meet anybody, don't.");
  talk.End();

  talk.At("Paperweight").Player("That brass wheel on your papers. It's out of the tower.");
  talk.Says("It is out of a gentleman's pocket, and before that it was in no hurry. Ten coins.");
  talk.IfPersona(kCredits, kLess, 10, "NoCoin");
  talk.Choose({{.text = "Ten. What will hold your papers?", .goTo = "Buy"},
               {.text = "It's for Quill.", .goTo = "ForQuill"},
               {.text = "Keep it.", .goTo = "Keep"}});

  talk.At("Buy").Credits(-10);
  talk.Transfer("ThirdWheel", 1, kNettle, kWren);
  talk.Says("Habit, mostly.");
  talk.End();

  talk.At("ForQuill")
      .Says(
          "… Then you can stop counting your coins. I was on that quay as well, you know, the "
          "night it "
          "blew. I was nine.");
  talk.Transfer("ThirdWheel", 1, kNettle, kWren);
  talk.End();

  talk.At("NoCoin").Says("No coin, no cog. I have a principle, and that is it.");
  talk.End();
  talk.At("Keep").Says("I keep everything. It's called a business.");
  talk.End();
}

}  // namespace

void WriteNetSheds(Script& script) {
  DarkLamp(script);
  NightTrade(script);
}

}  // namespace parlate::example
