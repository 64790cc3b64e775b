#include "interchange/AudioPath.h"

#include "general/CodePage.h"
#include "general/Paths.h"
#include "model/Tables.h"
#include "model/Workspace.h"

namespace parlate {

std::string BuildAudioPath(const Conversation& con) {
  // Meant: no mission number follows the word.
  const std::string folder =
      Workspace::Current().defaults.AudioPath + kPathSeparator + "Mission" + kPathSeparator;
  if (con.bHoloCallCon) return folder + "HoloCall";
  return folder + ToUtf8(GetTableItemName(kActorTable, con.NPCID) + "_" + con.conName);
}

}  // namespace parlate
