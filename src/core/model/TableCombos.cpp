#include "model/TableCombos.h"

#include <unordered_map>

#include "general/Prompts.h"
#include "model/Tables.h"
#include "model/Workspace.h"

namespace parlate {

namespace {

/// Index of the first entry of that text, -1 for none.
int IndexOfText(const ComboBox& combo, const std::string& text) {
  for (int i = 0; i < combo.ListCount(); ++i) {
    if (combo.List(i) == text) return i;
  }
  return -1;
}

void AddEntry(ComboBox& combo, const TableItem& row) {
  combo.AddItem(row.Name);
  combo.SetItemData(FindComboIndexByText(combo, row.Name), row.ID);
}

bool UserWantsToAdd() {
  MessageBox box;
  box.title = "Add Item?";
  box.text = "This entry does not exist in the table, would you like to add it?";
  box.icon = MessageBox::Icon::Question;
  box.buttons = MessageBox::Buttons::YesNo;
  MessageBoxes* messages = Workspace::Current().messages;
  return messages != nullptr && messages->Show(box) == Answer::Yes;
}

}  // namespace

void PopulateCombo(ComboBox& combo, const Table& table) {
  // Of rows with the same name the last ID stands, and at the first entry of that name.
  std::unordered_map<std::string_view, std::int32_t> lastIDs;
  combo.Clear();
  for (const TableItem& row : table) {
    combo.AddItem(row.Name);
    lastIDs[row.Name] = row.ID;
  }
  for (int i = 0; i < combo.ListCount() && !lastIDs.empty(); ++i) {
    const auto found = lastIDs.find(combo.List(i));
    if (found == lastIDs.end()) continue;
    combo.SetItemData(i, found->second);
    lastIDs.erase(found);
  }
}

void PopulateComboFromArray(ComboBox& combo, std::span<const std::string_view> names) {
  combo.Clear();
  for (std::size_t i = 0; i < names.size(); ++i) {
    combo.AddItem(std::string(names[i]));
    combo.SetItemData(static_cast<int>(i), static_cast<std::int32_t>(i));
  }
}

std::int32_t GetComboItemID(const ComboBox& combo) {
  return combo.ListIndex() == -1 ? -1 : combo.ItemData(combo.ListIndex());
}

void SelectComboItemByID(std::int32_t id, ComboBox& combo) {
  if (id == -1) {
    combo.SetListIndex(-1);
    return;
  }
  for (int i = 0; i < combo.ListCount(); ++i) {
    if (combo.ItemData(i) != id) continue;
    combo.SetListIndex(i);
    return;
  }
}

void SelectComboItemByText(const std::string& text, ComboBox& combo) {
  const int index = IndexOfText(combo, text);
  if (index != -1) combo.SetListIndex(index);
}

int FindComboIndexByText(const ComboBox& combo, const std::string& text) {
  const int index = IndexOfText(combo, text);
  return index == -1 ? 0 : index;
}

TableItem& AddTableItemToCombo(ComboBox& combo, std::int32_t tableType, const std::string& name) {
  TableItem& row = AddTableItem(tableType, name);
  AddEntry(combo, row);
  return row;
}

std::int32_t EditTableFromCombo(std::int32_t tableType, ComboBox& combo) {
  const std::int32_t before = GetComboItemID(combo);
  const std::int32_t chosen = EditTableDialog(tableType);
  if (const Table* table = GetTable(tableType)) PopulateCombo(combo, *table);
  const std::int32_t selected = chosen != -1 ? chosen : before;
  if (selected != -1) SelectComboItemByID(selected, combo);
  return GetComboItemID(combo);
}

std::int32_t EditTableDialog(std::int32_t tableType) {
  TableEditor* editor = Workspace::Current().tableEditor;
  return editor == nullptr ? -1 : editor->EditTableDialog(tableType);
}

Boolean ValidateComboEntry(ComboBox& combo, std::int32_t tableType, Boolean bQuiet) {
  const std::string text = combo.Text();
  if (text.empty() || !combo.Visible()) return false;
  if (const TableItem* row = FindTableItemByName(tableType, text)) {
    // A row that came by way of another combo is missing in this one, whose choice is stored, or
    // stands here with the number of one that has gone.
    const int listed = IndexOfText(combo, row->Name);
    if (listed == -1) {
      AddEntry(combo, *row);
    } else if (GetTable(tableType)->Find(combo.ItemData(listed)) == nullptr) {
      combo.SetItemData(listed, row->ID);
    }
    SelectComboItemByText(row->Name, combo);
    return true;
  }
  if (bQuiet) return false;
  if (UserWantsToAdd()) {
    SelectComboItemByID(AddTableItemToCombo(combo, tableType, text).ID, combo);
    return true;
  }
  combo.SelectText(0, static_cast<int>(text.size()));
  combo.SetFocus();
  return false;
}

}  // namespace parlate
