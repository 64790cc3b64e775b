// The event list of the selected conversation.

#include <utility>

#include "shell/EventRows.h"
#include "shell/Shell.h"

namespace parlate {

void Shell::UpdateEventsList(const std::shared_ptr<Conversation>& con) {
  if (Loading) return;
  const std::shared_ptr<Conversation> shown = con ? con : selectedCon_;
  std::vector<ListRow> rows;
  if (shown) {
    rows.reserve(shown->events.Count());
    for (const EventItem& event : shown->events) rows.push_back(BuildEventRow(*shown, event));
  }
  events_.Assign(std::move(rows));
  if (shown) UpdateListPosReferences(*shown);
}

void Shell::UpdateListPosReferences(const Conversation& con) {
  for (std::size_t i = 0; i < events_.ListCount(); ++i) {
    EventItem* event = con.events.Find(events_.Row(i).itemData);
    if (event != nullptr) event->listPos = static_cast<std::int32_t>(i);
  }
}

void Shell::UpdateLabelColor(std::int32_t listPos, const EventItem& event) {
  events_.SetColor(static_cast<std::size_t>(listPos), EventRowColor(*selectedCon_, event));
}

void Shell::UpdateMissingLabelHighlights(const Conversation& con) {
  for (std::size_t i = 0; i < events_.ListCount(); ++i) {
    const EventItem* event = con.events.Find(events_.Row(i).itemData);
    if (event != nullptr) UpdateLabelColor(static_cast<std::int32_t>(i), *event);
  }
}

void Shell::AddSubText(const std::string& subText, std::int32_t listPos) {
  const bool shown = Defaults().ExpandListEnabled;
  events_.SetSubText(static_cast<std::size_t>(listPos), shown ? subText : std::string());
}

std::shared_ptr<EventItem> Shell::GetSelectedEvent() const {
  if (!selectedCon_ || events_.ListIndex() == -1) return nullptr;
  const std::int32_t key = events_.Row(static_cast<std::size_t>(events_.ListIndex())).itemData;
  return key == -1 ? nullptr : selectedCon_->events.Share(key);
}

void Shell::AddEvent(std::int32_t eventType, std::int32_t newAddMode) {
  bAppendEvent_ = newAddMode;
  view_.AddEvent(eventType, selectedCon_);
}

void Shell::EditSelectedEvent() {
  if (const auto event = GetSelectedEvent()) view_.EditEvent(selectedCon_, event);
}

void Shell::SelectRowOf(const EventItem* eventObj) {
  if (events_.ListIndex() != -1 || eventObj == nullptr) return;
  // The editor may show an event whose row went, of a list that is shorter now.
  const std::int32_t row = eventObj->listPos;
  const bool there = row >= 0 && static_cast<std::size_t>(row) < events_.ListCount();
  if (there) events_.SetListIndex(row);
}

bool Shell::IsAtItsRow(const EventItem& event) const {
  if (!selectedCon_ || selectedCon_->events.Find(event.key) != &event) return false;
  const std::int32_t row = event.listPos;
  if (row < 0 || static_cast<std::size_t>(row) >= events_.ListCount()) return false;
  return events_.Row(static_cast<std::size_t>(row)).itemData == event.key;
}

void Shell::EditPreviousEvent(const EventItem* eventObj) {
  SelectRowOf(eventObj);
  if (!IsPreviousEvent()) return;
  events_.SetListIndex(events_.ListIndex() - 1);
  EditSelectedEvent();
}

void Shell::EditNextEvent(const EventItem* eventObj) {
  SelectRowOf(eventObj);
  if (!IsNextEvent()) return;
  events_.SetListIndex(events_.ListIndex() + 1);
  EditSelectedEvent();
}

void Shell::ListSelectionChanged() {
  UpdateCommandStates();
  if (view_.IsEventEditorVisible() && !bUpdatingEvents_) EditSelectedEvent();
}

void Shell::UpdateAddEvent(const std::shared_ptr<EventItem>& newEventObj, Boolean bSilent) {
  if (!newEventObj || !selectedCon_) return;
  // An editor that was opened for another conversation brings a key of that one.
  while (selectedCon_->events.Find(newEventObj->key) != nullptr) {
    newEventObj->key = selectedCon_->NextEventKey();
  }
  bUpdatingEvents_ = true;
  const std::int32_t selected = events_.ListIndex();
  std::size_t pos = events_.ListCount();
  if (bAppendEvent_ == 0 && selected != -1) {
    pos = static_cast<std::size_t>(selected);
    selectedCon_->events.AddBefore(newEventObj->key, newEventObj, events_.Row(pos).itemData);
  } else {
    selectedCon_->events.Add(newEventObj->key, newEventObj);
  }
  ListRow row;
  row.text = newEventObj->BuildEventListString();
  row.itemData = newEventObj->key;
  row.subText = EventRowSubText(*newEventObj);
  events_.InsertItem(std::move(row), pos);
  events_.SetListIndex(static_cast<std::int32_t>(pos));
  newEventObj->listPos = events_.ListIndex();
  UpdateLabelColor(newEventObj->listPos, *newEventObj);
  if (bAppendEvent_ == 0) UpdateListPosReferences(*selectedCon_);
  SetModified(true, selectedCon_.get());
  UpdateMissingLabelHighlights(*selectedCon_);
  bUpdatingEvents_ = false;
  if (!bSilent) EditSelectedEvent();
  UpdateCommandStates();
}

void Shell::UpdateEditEvent(const EventItem& newEventObj) {
  // An editor that stays open can outlive the row of its event: the event was deleted, or another
  // conversation is selected. No other row may suffer for that.
  if (IsAtItsRow(newEventObj)) {
    const std::int32_t listPos = newEventObj.listPos;
    events_.SetText(static_cast<std::size_t>(listPos), newEventObj.BuildEventListString());
    UpdateLabelColor(listPos, newEventObj);
    AddSubText(newEventObj.BuildEventListSubString(), listPos);
  }
  SetModified(true, selectedCon_.get());
  if (selectedCon_) UpdateMissingLabelHighlights(*selectedCon_);
  UpdateCommandStates();
}

Boolean Shell::IsPreviousEvent() const { return events_.ListIndex() >= 1; }

Boolean Shell::IsNextEvent() const {
  return events_.ListIndex() < static_cast<std::int32_t>(events_.ListCount()) - 1;
}

void Shell::DeleteSelectedEvent(Boolean bNoConfirm) {
  const std::int32_t row = events_.ListIndex();
  if (row == -1 || !selectedCon_) return;
  if (!bNoConfirm && Defaults().bConfirmationEventDelete) {
    const Answer answer = Ask("Delete?", "Are you sure you wish to Delete this event?",
                              MessageBox::Icon::Question, MessageBox::Buttons::YesNo);
    if (answer != Answer::Yes) return;
  }
  selectedCon_->EventRemove(events_.Row(static_cast<std::size_t>(row)).itemData);
  events_.RemoveItem(static_cast<std::size_t>(row));
  UpdateListPosReferences(*selectedCon_);
  SetModified(true, selectedCon_.get());
  ReselectListIndex(events_, row);
  UpdateMissingLabelHighlights(*selectedCon_);
  UpdateCommandStates();
}

void Shell::ListClick() {
  if (bSkipNextClick) {
    bSkipNextClick = false;
    return;
  }
  if (events_.ListIndex() == lastClickedRow) events_.SetListIndex(-1);
  lastClickedRow = events_.ListIndex();
}

}  // namespace parlate
