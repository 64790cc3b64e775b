#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/ConversationFile.h"
#include "model/Workspace.h"

namespace parlate {

/// One broken reference: the conversation and the event that hold it, and the label that no event
/// defines. The item may outlive both, so only those of the latest check are there to be followed.
struct BadLabelItem {
  const Conversation* conObj = nullptr;
  const EventObject* eventObj = nullptr;
  std::string strLabel;
};

/// The broken references that were reported, in the order of the reports. Repeated ones stay, and
/// so do those of a file that was closed, until the next label check.
class BadLabels final : public BadLabelSink {
 public:
  void AddBadLabel(const Conversation& newConObj, const EventObject& newEventObj,
                   const std::string& newLabel) override {
    colBadLabels.push_back({&newConObj, &newEventObj, newLabel});
  }
  void ClearBadLabels() { colBadLabels.clear(); }

  std::vector<BadLabelItem> colBadLabels;
};

/// A broken reference as a report names it.
struct BadLabelRow {
  /// `conName` of the conversation that holds the reference, one text for all of its rows.
  std::shared_ptr<const std::string> conversation;
  std::string label;
  std::int32_t eventKey = 0;
};

/// Asks every event of every conversation, in the order of the tree, and returns what is broken.
/// `labels` is emptied first, and holds the same references afterwards. It has to be the sink of
/// the workspace in place.
[[nodiscard]] std::vector<BadLabelRow> CheckLabels(const ConversationFile& file,
                                                   const ConversationTreeOrder& tree,
                                                   BadLabels& labels);

}  // namespace parlate
