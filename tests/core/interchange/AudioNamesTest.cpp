#include "InterchangeFixture.h"
#include "interchange/AudioPath.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

class AudioNames : public InterchangeTest {};

TEST_F(AudioNames, TwoSpeakersOfAConversationCountSeparately) {
  AddCon(2, "Talk");
  const EventSpeech& a1 = AddSpeech(0, "a");
  const EventSpeech& b1 = AddSpeech(1, "b");
  const EventSpeech& a2 = AddSpeech(0, "c");
  GenerateAudio();
  EXPECT_EQ(a1.audioFile, "Pack\\Mr_Grey\\Talk\\Alex01.mp3");
  EXPECT_EQ(b1.audioFile, "Pack\\Mr_Grey\\Talk\\Zoe01.mp3");
  EXPECT_EQ(a2.audioFile, "Pack\\Mr_Grey\\Talk\\Alex02.mp3");
}

TEST_F(AudioNames, ManySpeakersInAnyOrderCountSeparatelyToo) {
  Rows rows;
  for (std::int32_t id = 100; id < 120; ++id) rows.push_back({id, "N" + std::to_string(id)});
  TestWorkspace::AddRows(kActorTable, rows);
  AddCon(0, "Talk");
  for (std::int32_t id = 119; id >= 100; --id) AddSpeech(id, "first");
  std::vector<const EventSpeech*> second;
  for (std::int32_t id = 100; id < 120; ++id) second.push_back(&AddSpeech(id, "second"));
  GenerateAudio();
  for (std::size_t i = 0; i < second.size(); ++i) {
    EXPECT_EQ(second[i]->audioFile, "Pack\\Alex\\Talk\\N" + std::to_string(100 + i) + "02.mp3");
  }
}

TEST_F(AudioNames, CountersStartAnewWithEachConversation) {
  AddCon(0, "One");
  AddSpeech(0, "a");
  AddChoices({"x"});
  AddCon(0, "Two");
  const EventSpeech& speech = AddSpeech(0, "a");
  const EventChoice& choice = AddChoices({"x"});
  GenerateAudio();
  EXPECT_EQ(speech.audioFile, "Pack\\Alex\\Two\\Alex01.mp3");
  EXPECT_THAT(AudioOf(choice), ElementsAre("Pack\\Alex\\Two\\Choice01a.mp3"));
}

TEST_F(AudioNames, OverTheRemoteLinkASpeechLiesInHoloMailAndAChoiceInTheOwnersFolder) {
  AddCon(1, "Call").bHoloCallCon = true;
  const EventSpeech& speech = AddSpeech(0, "a");
  const EventChoice& choice = AddChoices({"x"});
  GenerateAudio();
  EXPECT_EQ(speech.audioFile, "Pack\\HoloMail\\Call\\Alex01.mp3");
  EXPECT_THAT(AudioOf(choice), ElementsAre("Pack\\Zoe\\Call\\Choice01a.mp3"));
}

TEST_F(AudioNames, TheNumberOfAChoiceCountsEventsAndItsLetterChoices) {
  AddCon(0, "C");
  AddChoices({});
  const EventChoice& second = AddChoices({"a", "b", "c"});
  GenerateAudio();
  EXPECT_THAT(AudioOf(second),
              ElementsAre("Pack\\Alex\\C\\Choice02a.mp3", "Pack\\Alex\\C\\Choice02b.mp3",
                          "Pack\\Alex\\C\\Choice02c.mp3"));
}

TEST_F(AudioNames, TheHundredthLineHasThreeDigits) {
  AddCon(0, "C");
  const EventSpeech* last = nullptr;
  for (int i = 0; i < 99; ++i) last = &AddSpeech(0, "");
  const EventSpeech& hundredth = AddSpeech(0, "");
  GenerateAudio();
  EXPECT_EQ(last->audioFile, "Pack\\Alex\\C\\Alex99.mp3");
  EXPECT_EQ(hundredth.audioFile, "Pack\\Alex\\C\\Alex100.mp3");
}

TEST_F(AudioNames, BehindZTheLettersGoOnInTheCharacterTableUpToItsEnd) {
  AddCon(0, "C");
  const EventChoice& choice = AddChoices(std::vector<std::string>(159, "x"));
  GenerateAudio();
  EXPECT_EQ(AudioOf(choice)[25], "Pack\\Alex\\C\\Choice01z.mp3");
  EXPECT_EQ(AudioOf(choice)[26], "Pack\\Alex\\C\\Choice01{.mp3");
  EXPECT_EQ(AudioOf(choice)[158], "Pack\\Alex\\C\\Choice01\xFF.mp3");
  AddChoices(std::vector<std::string>(160, "x"));
  EXPECT_EQ(ErrorOf([&] { GenerateAudio(); }), 5) << "there is no character behind the last";
}

TEST_F(AudioNames, ALineOfASpeakerThatSixteenBitsCannotCountIsAnOverflow) {
  AddCon(0, "C");
  const EventSpeech* last = nullptr;
  for (int i = 0; i < 32767; ++i) last = &AddSpeech(0, "");
  AddSpeech(1, "");
  EXPECT_EQ(ErrorOf([&] { GenerateAudio(); }), 0) << "another speaker counts anew";
  EXPECT_EQ(last->audioFile, "Pack\\Alex\\C\\Alex32767.mp3");
  const EventSpeech& beyond = AddSpeech(0, "");
  EXPECT_EQ(ErrorOf([&] { GenerateAudio(); }), 6);
  EXPECT_EQ(beyond.audioFile, "");
}

TEST_F(AudioNames, AChoiceEventThatSixteenBitsCannotCountIsAnOverflow) {
  AddCon(0, "C");
  for (int i = 0; i < 32766; ++i) AddChoices({});
  const EventChoice& last = AddChoices({"x"});
  EXPECT_EQ(ErrorOf([&] { GenerateAudio(); }), 0);
  EXPECT_THAT(AudioOf(last), ElementsAre("Pack\\Alex\\C\\Choice32767a.mp3"));
  AddChoices({"x"});
  EXPECT_EQ(ErrorOf([&] { GenerateAudio(); }), 6);
}

TEST_F(AudioNames, EveryNameIsReplacedTypedOnesAndThoseOfUnspokenChoicesToo) {
  AddCon(0, "C");
  EventSpeech& speech = AddSpeech(0, "");
  speech.audioFile = "typed";
  EventChoice& choice = AddChoices({"a"});
  choice.Choices.Place(1)->audioFile = "typed";
  EventComment& comment = AddComment("A remark");
  GenerateAudio();
  EXPECT_EQ(speech.audioFile, "Pack\\Alex\\C\\Alex01.mp3");
  EXPECT_THAT(AudioOf(choice), ElementsAre("Pack\\Alex\\C\\Choice01a.mp3"));
  EXPECT_EQ(comment.commentText, "A remark");
}

TEST_F(AudioNames, AnEmptyPackageLeavesTheSeparatorInFront) {
  File().AudioPackage.clear();
  AddCon(0, "C");
  const EventSpeech& speech = AddSpeech(0, "");
  GenerateAudio();
  EXPECT_EQ(speech.audioFile, "\\Alex\\C\\Alex01.mp3");
}

TEST_F(AudioNames, AnOwnerOrASpeakerWithoutARowIsARuntimeError) {
  AddCon(0, "One");
  const EventSpeech& named = AddSpeech(0, "");
  EventSpeech& nobody = AddSpeech(-1, "");
  EXPECT_EQ(ErrorOf([&] { GenerateAudio(); }), 5);
  EXPECT_EQ(named.audioFile, "Pack\\Alex\\One\\Alex01.mp3") << "what came before has its name";
  nobody.ActorSpeakerID = 0;
  AddCon(-1, "Two");
  EXPECT_EQ(ErrorOf([&] { GenerateAudio(); }), 5);
  EXPECT_TRUE(open_.progress.showing);
}

TEST_F(AudioNames, TheLocalFolderIsBelowTheMissionWithoutANumber) {
  space_.workspace.defaults.AudioPath = "/audio";
  EXPECT_EQ(BuildAudioPath(AddCon(1, "Talk")), "/audio/Mission/Zoe_Talk");
}

TEST_F(AudioNames, AllConversationsOverTheRemoteLinkShareOneLocalFolder) {
  space_.workspace.defaults.AudioPath = "/audio";
  Conversation& one = AddCon(1, "One");
  Conversation& two = AddCon(-1, "Two");
  one.bHoloCallCon = true;
  two.bHoloCallCon = true;
  EXPECT_EQ(BuildAudioPath(one), "/audio/Mission/HoloCall");
  EXPECT_EQ(BuildAudioPath(two), "/audio/Mission/HoloCall");
}

TEST_F(AudioNames, TheLocalFolderIsAPathOfThePlatform) {
  TestWorkspace::AddRows(kActorTable, {{9, "Zo\xEB"}});
  space_.workspace.defaults.AudioPath = "/d\xC3\xA9p\xC3\xB4t";
  EXPECT_EQ(BuildAudioPath(AddCon(9, "C")), "/d\xC3\xA9p\xC3\xB4t/Mission/Zo\xC3\xAB_C");
}

TEST_F(AudioNames, TheLocalFolderOfAnOwnerWithoutARowIsARuntimeError) {
  const Conversation& con = AddCon(-1, "C");
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(BuildAudioPath(con)); }), 5);
}

}  // namespace
}  // namespace parlate
