#include "model/EventObject.h"

#include "model/Conversation.h"
#include "model/Workspace.h"

namespace parlate {

Boolean EventObject::FindString(std::string_view, Boolean, CompareMethod) const { return false; }

Boolean EventObject::AreLabelsValid(const Conversation&) const { return true; }

bool EventObject::IsTableItemReferenced(std::int32_t, std::int32_t) const { return false; }

void EventObject::GatherTableItems(std::int32_t, IDSet&) const {}

void EventObject::ChangeTableLink(std::int32_t, std::int32_t, std::int32_t) {}

Boolean EventObject::CheckLabel(const Conversation& con, const Conversation& labelled,
                                const std::string& label) const {
  if (labelled.IsValidLabel(label)) return true;
  if (BadLabelSink* sink = Workspace::Current().badLabels) sink->AddBadLabel(con, *this, label);
  return false;
}

}  // namespace parlate
