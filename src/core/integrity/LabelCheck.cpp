#include "integrity/LabelCheck.h"

namespace parlate {

std::vector<BadLabelRow> CheckLabels(const ConversationFile& file,
                                     const ConversationTreeOrder& tree, BadLabels& labels) {
  labels.ClearBadLabels();
  std::vector<BadLabelRow> rows;
  tree.WalkConversations([&](std::int32_t key) {
    const Conversation* con = file.Conversations.Find(key);
    if (con == nullptr) return;
    std::shared_ptr<const std::string> name;
    for (const EventItem& event : con->events) {
      if (event.AreLabelsValid(*con)) continue;
      if (!name) name = std::make_shared<const std::string>(con->conName);
      for (std::size_t i = rows.size(); i < labels.colBadLabels.size(); ++i) {
        rows.push_back({name, labels.colBadLabels[i].strLabel, event.key});
      }
    }
  });
  return rows;
}

}  // namespace parlate
