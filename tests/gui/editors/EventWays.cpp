#include "editors/EventWays.h"

#include <algorithm>
#include <iterator>

#include "support/TestWorkspace.h"

namespace parlate::testing_support {

namespace {

using User = EventWriterTest;

void WriteSpeech(User& user) {
  user.WriteSpeech("Zoe", "Alex", "Over here");
  user.Press(Qt::Key_Return);
  QTest::keyClicks(QApplication::focusWidget(), "Wait");
  user.Type("txtAudioFile", "zoe02");
  user.Click("chkSpeechContinued");
  user.Choose("cboSpeechFont", 1);
}
void ChangeSpeech(User& user) {
  user.WriteSpeech("Alex", "Zoe", "Back there");
  user.Type("txtAudioFile", "alex01");
  user.Click("chkSpeechContinued");
  user.Choose("cboSpeechFont", 0);
}

void WriteChoices(User& user) {
  User::WriteChoice("Stay", "Stop");
  user.Click("cmdChoiceAdd");
  User::WriteChoice("Go");
  user.Click("cmdChoiceAdd");
  user.Click("chkChoiceClear");
}
void ChangeChoices(User& user) {
  user.ClickRowOf("lstChoices", 1);
  User::WriteChoice("Leave", "Start");
  user.Click("cmdChoiceEdit");
  user.Click("cmdChoiceUp");
  user.Click("chkChoiceClear");
}
void LeaveChoices(User& user) { user.Click("chkChoiceClear"); }

void WriteSetFlags(User& user) {
  User::PickFlags({0, 1}, "12");
  user.Click("cmdSetFlagAdd");
}
void ChangeSetFlags(User& user) {
  user.ClickRowOf("lstSetFlags", 0);
  user.Click("cmdSetFlagDelete");
  user.DoubleClickRowOf("lstSetFlags", 0);
  User::PickFlags({0}, "4");
  user.Click("cmdSetFlagAdd");
}
// Whatever is done to the list counts at once.
void LeaveSetFlags(User& /*user*/) {}

void WriteCheckFlags(User& user) {
  User::PickFlags({1});
  user.Click("cmdCheckFlagAdd");
  user.Type("cboCheckFlagGoto", "Stop");
}
void ChangeCheckFlags(User& user) {
  User::PickFlags({0});
  user.Click("cmdCheckFlagAdd");
  user.Type("cboCheckFlagGoto", "Start");
}
void LeaveCheckFlags(User& user) { user.Type("cboCheckFlagGoto", "Stop"); }

void WriteCheckObject(User& user) {
  user.Type("cboCheckObject", "Key");
  user.Type("cboCheckObjectFail", "Stop");
}
void ChangeCheckObject(User& user) {
  user.Type("cboCheckObject", "Rope");
  user.Type("cboCheckObjectFail", "Start");
}

void WriteTransfer(User& user) {
  user.Type("cboTransferObject", "Key");
  user.Type("txtTransferCount", "2");
  user.Type("cboTransferFrom", "Zoe");
  user.Type("cboTransferTo", "Alex");
  user.Type("cboTransferObjectFail", "Stop");
}
void ChangeTransfer(User& user) {
  user.Type("cboTransferObject", "Rope");
  user.Type("txtTransferCount", "15");
  user.Type("cboTransferFrom", "Alex");
  user.Type("cboTransferTo", "Zoe");
  user.Type("cboTransferObjectFail", "");
}

void WriteCamera(User& user) {
  user.Click("optCameraPosition");
  user.Choose("cboCameraPosition", 6);
  user.Choose("cboCameraTransition", 1);
}
void ChangeCamera(User& user) {
  user.Choose("cboCameraPosition", 14);
  user.Choose("cboCameraTransition", 0);
}
void WriteRandomCamera(User& user) {
  user.Click("optCameraRandom");
  user.Choose("cboCameraTransition", 0);
}
void ChangeRandomCamera(User& user) { user.Choose("cboCameraTransition", 1); }
void ChangeToPredefinedCamera(User& user) {
  user.Click("optCameraPosition");
  user.Choose("cboCameraPosition", 4);
}

void WriteAnimation(User& user) {
  user.Type("cboPawnAnimate", "Zoe");
  user.Type("txtSeqName", "Bow");
  user.Click("optAnimPlayOnce");
  user.Click("chkFinishAnim");
  user.Click("chkAnimTimed");
  user.Type("txtAnimLength", "12");
}
void ChangeAnimation(User& user) {
  user.Type("cboPawnAnimate", "Alex");
  user.Type("txtSeqName", "Wave");
  user.Click("optAnimLoop");
  user.Click("chkAnimTimed");
}
void WriteLoop(User& user) {
  user.Type("cboPawnAnimate", "Zoe");
  user.Type("txtSeqName", "Dance");
  user.Click("optAnimLoop");
  user.Click("chkAnimTimed");
  user.Type("txtAnimLength", "5");
}
void ChangeLoop(User& user) {
  user.Click("optAnimPlayOnce");
  user.Click("chkFinishAnim");
  user.Type("txtAnimLength", "7");
}
void LeaveLoop(User& user) {
  user.Click("optAnimLoop");
  user.Type("txtAnimLength", "9");
}

void WriteTrade(User& user) { user.Type("cboPawnTrade", "Zoe"); }
void ChangeTrade(User& user) { user.Type("cboPawnTrade", "Alex"); }

void WriteJump(User& user) {
  user.Choose("cboJumpConv", 0);
  user.Type("cboJumpLabel", "Start");
}
void ChangeJump(User& user) {
  user.Choose("cboJumpConv", 2);
  user.Type("cboJumpLabel", "Quay");
}

void WriteRandom(User& user) {
  user.AddRandomLabel("Stop");
  user.AddRandomLabel("Start");
}
void WriteCycle(User& user) {
  WriteRandom(user);
  user.Click("chkRandomCycle");
  user.Click("chkCycleOnce");
  user.Click("chkCycleRandom");
}
void ChangeCycle(User& user) {
  user.Click("cmdLabelRemoveAll");
  user.AddRandomLabel("Start");
  user.AddRandomLabel("Stop");
  user.Click("chkCycleOnce");
}
void ChangeRandom(User& user) {
  user.Click("chkRandomCycle");
  user.Click("chkCycleRandom");
}
void LeaveRandom(User& user) { user.Click("cmdLabelRemoveAll"); }

void WriteTrigger(User& user) { user.Type("txtTriggerTag", "OpenGate"); }
void ChangeTrigger(User& user) { user.Type("txtTriggerTag", "ShutGate"); }

void WriteGoal(User& user) {
  user.Click("optGoalAdd");
  user.Type("txtGoalName", "CatchFerry");
  user.Type("txtGoal", "Catch the last ferry.");
  user.Click("chkPrimaryGoal");
}
void WriteCompletedGoal(User& user) {
  user.Type("txtGoalName", "FindRope");
  user.Click("optGoalCompleted");
}
void ChangeCompletedGoal(User& user) {
  user.Click("optGoalAdd");
  user.Type("txtGoal", "Find a rope.");
}

void WriteNote(User& user) {
  user.Type("txtNote", "The ferry");
  user.Press(Qt::Key_Return);
  QTest::keyClicks(QApplication::focusWidget(), "leaves at six.");
}
void ChangeNote(User& user) { user.Type("txtNote", "Never mind."); }

void WriteSkillPoints(User& user) {
  user.Type("txtSkillPointsToAdd", "250");
  user.Type("txtSkillPointsMessage", "Well swum");
}
void ChangeSkillPoints(User& user) {
  user.Type("txtSkillPointsToAdd", "-5");
  user.Type("txtSkillPointsMessage", "");
}

void WriteCredits(User& user) { user.Type("txtCreditsToAdd", "-40"); }
void ChangeCredits(User& user) { user.Type("txtCreditsToAdd", "70"); }

void WritePersonaRest(User& user) {
  user.Choose("cboPersonaCondition", 3);
  user.Type("txtPersonaValue", "50");
  user.Type("cboPersonaLabel", "Start");
}
void WriteCreditsCheck(User& user) {
  user.Click("optPersonaCredits");
  WritePersonaRest(user);
}
void ChangeToSkillPointsCheck(User& user) {
  user.Click("optPersonaSkillPoints");
  user.Choose("cboPersonaCondition", 0);
  user.Type("txtPersonaValue", "-1");
  user.Type("cboPersonaLabel", "Stop");
}
void WriteSkillPointsCheck(User& user) {
  user.Click("optPersonaSkillPoints");
  WritePersonaRest(user);
}
void ChangeToHealthCheck(User& user) {
  user.Click("optPersonaHealth");
  user.Choose("cboPersonaCondition", 4);
}

void WriteComment(User& user) { user.Type("txtComment", "Ask for a bell here."); }
void ChangeComment(User& user) { user.Type("txtComment", "There is a bell."); }

void NoField(User& /*user*/) {}

constexpr EventWay kWays[] = {
    {"Speech", kSpeech, nullptr, WriteSpeech,
     "speaker=1 to=0 speech='Over here|Wait' audio='zoe02' continued=True bold=False font=1",
     ChangeSpeech,
     "speaker=0 to=1 speech='Back there' audio='alex01' continued=False bold=False font=0",
     WriteSpeech},
    {"Choice", kChoice, nullptr, WriteChoices,
     "clear=True next=2"
     " choice=0 text='Stay' label='Stop' spoken=True audio='' skill=-1"
     " choice=1 text='Go' label='' spoken=True audio='' skill=-1",
     ChangeChoices,
     "clear=False next=2"
     " choice=1 text='Leave' label='Start' spoken=True audio='' skill=-1"
     " choice=0 text='Stay' label='Stop' spoken=True audio='' skill=-1",
     LeaveChoices},
    {"SetFlags", kSetFlags, nullptr, WriteSetFlags,
     "flag=2 value=True expiration=12 flag=3 value=True expiration=12", ChangeSetFlags,
     "flag=3 value=False expiration=12 flag=2 value=True expiration=4", LeaveSetFlags},
    {"CheckFlags", kCheckFlags, "cboCheckFlagGoto", WriteCheckFlags,
     "flag=3 value=True expiration=0 goto='Stop'", ChangeCheckFlags,
     "flag=3 value=True expiration=0 flag=2 value=True expiration=0 goto='Start'", LeaveCheckFlags},
    {"CheckObject", kCheckObject, "cboCheckObjectFail", WriteCheckObject, "object=4 fail='Stop'",
     ChangeCheckObject, "object=7 fail='Start'", WriteCheckObject},
    {"TransferObject", kTransferObject, "cboTransferObjectFail", WriteTransfer,
     "object=4 count=2 from=1 to=0 fail='Stop'", ChangeTransfer,
     "object=7 count=15 from=0 to=1 fail=''", WriteTransfer},
    {"Camera", kMoveCamera, nullptr, WriteCamera, "type=0 position=6 transition=1", ChangeCamera,
     "type=0 position=14 transition=0", WriteRandomCamera},
    {"RandomCamera", kMoveCamera, nullptr, WriteRandomCamera, "type=3 position=0 transition=0",
     ChangeRandomCamera, "type=3 position=0 transition=1", WriteCamera},
    {"RandomCameraMadePredefined", kMoveCamera, nullptr, WriteRandomCamera,
     "type=3 position=0 transition=0", ChangeToPredefinedCamera, "type=0 position=4 transition=0",
     WriteRandomCamera},
    {"Animation", kPlayAnimation, nullptr, WriteAnimation,
     "pawn=1 sequence='Bow' mode=1 length=12 finish=True", ChangeAnimation,
     "pawn=0 sequence='Wave' mode=0 length=0 finish=False", WriteAnimation},
    {"AnimationLoop", kPlayAnimation, nullptr, WriteLoop,
     "pawn=1 sequence='Dance' mode=0 length=5 finish=False", ChangeLoop,
     "pawn=1 sequence='Dance' mode=1 length=7 finish=True", LeaveLoop},
    {"Trade", kTrade, nullptr, WriteTrade, "pawn=1", ChangeTrade, "pawn=0", WriteTrade},
    {"Jump", kJump, "cboJumpLabel", WriteJump, "conversation=0 label='Start'", ChangeJump,
     "conversation=2 label='Quay'", WriteJump},
    {"Random", kRandomLabel, "cboRandomLabels", WriteRandom,
     "cycle=False once=False random=False label='Stop' label='Start'", ChangeRandom,
     "cycle=True once=False random=True label='Stop' label='Start'", LeaveRandom},
    {"RandomInACycle", kRandomLabel, "cboRandomLabels", WriteCycle,
     "cycle=True once=True random=True label='Stop' label='Start'", ChangeCycle,
     "cycle=True once=False random=True label='Start' label='Stop'", WriteCycle},
    {"Trigger", kTrigger, nullptr, WriteTrigger, "tag='OpenGate'", ChangeTrigger, "tag='ShutGate'",
     WriteTrigger},
    {"Goal", kAddGoal, nullptr, WriteGoal,
     "name='CatchFerry' completed=False text='Catch the last ferry.' primary=True",
     WriteCompletedGoal, "name='FindRope' completed=True text='' primary=False", WriteGoal},
    {"CompletedGoal", kAddGoal, nullptr, WriteCompletedGoal,
     "name='FindRope' completed=True text='' primary=False", ChangeCompletedGoal,
     "name='FindRope' completed=False text='Find a rope.' primary=False", WriteGoal},
    {"Note", kAddNote, nullptr, WriteNote, "note='The ferry|leaves at six.'", ChangeNote,
     "note='Never mind.'", WriteNote},
    {"SkillPoints", kAddSkillPoints, nullptr, WriteSkillPoints, "points=250 message='Well swum'",
     ChangeSkillPoints, "points=-5 message=''", WriteSkillPoints},
    {"Credits", kAddCredits, nullptr, WriteCredits, "credits=-40", ChangeCredits, "credits=70",
     WriteCredits},
    {"CheckOfCredits", kCheckPersona, "cboPersonaLabel", WriteCreditsCheck,
     "persona=0 condition=3 value=50 label='Start'", ChangeToSkillPointsCheck,
     "persona=2 condition=0 value=-1 label='Stop'", WriteCreditsCheck},
    {"CheckOfSkillPoints", kCheckPersona, "cboPersonaLabel", WriteSkillPointsCheck,
     "persona=2 condition=3 value=50 label='Start'", ChangeToHealthCheck,
     "persona=1 condition=4 value=50 label='Start'", WriteCreditsCheck},
    {"Comment", kComment, nullptr, WriteComment, "comment='Ask for a bell here.'", ChangeComment,
     "comment='There is a bell.'", WriteComment},
    {"End", kEnd, nullptr, NoField, "end", NoField, "end", NoField}};

}  // namespace

void EventWriterTest::SetUp() {
  EventEditorTest::SetUp();
  TestWorkspace::AddRows(kObjectTable, {{7, "Rope"}});
  Con(2).events.At(1).eventLabel = "Quay";
  Con(2).AddLabel("Quay");
}

void EventWriterTest::Choose(const char* combo, int row) {
  Focus(combo);
  QTest::keyClick(&Combo(combo), Qt::Key_Home);
  for (int i = 0; i < row; ++i) QTest::keyClick(&Combo(combo), Qt::Key_Down);
  EXPECT_EQ(Combo(combo).ListIndex(), row) << combo;
}

void EventWriterTest::AddRandomLabel(const char* label) {
  Type("cboRandomLabels", label);
  Click("cmdRandomAddLabel");
}

std::vector<EventWay> AllEventWays() { return {std::begin(kWays), std::end(kWays)}; }

std::vector<EventWay> EventWaysWithLabels() {
  std::vector<EventWay> ways;
  std::copy_if(std::begin(kWays), std::end(kWays), std::back_inserter(ways),
               [](const EventWay& way) { return way.labelCombo != nullptr; });
  return ways;
}

}  // namespace parlate::testing_support
