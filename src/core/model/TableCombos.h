#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "general/Boolean.h"
#include "model/Controls.h"
#include "model/TableItem.h"

namespace parlate {

/// Fills a combo with the rows of a table, in table order; the control may sort its entries.
void PopulateCombo(ComboBox& combo, const Table& table);
/// Fills a combo with a vocabulary array; entry i stays at index i.
void PopulateComboFromArray(ComboBox& combo, std::span<const std::string_view> names);
/// The number behind the selected entry, or -1.
[[nodiscard]] std::int32_t GetComboItemID(const ComboBox& combo);
/// Selects the first entry of that ID; an ID that no entry has leaves the selection, -1 clears it.
void SelectComboItemByID(std::int32_t id, ComboBox& combo);
/// Selects the first entry of that text; no match leaves the selection.
void SelectComboItemByText(const std::string& text, ComboBox& combo);
/// Index of the first entry of that text, and 0 when there is none: it is asked only for a text
/// that was just added.
[[nodiscard]] int FindComboIndexByText(const ComboBox& combo, const std::string& text);
/// Adds a row to the table and an entry to the combo, also for a row that was there.
TableItem& AddTableItemToCombo(ComboBox& combo, std::int32_t tableType, const std::string& name);
/// Runs the table editor and refills the combo; returns the ID selected, or -1.
std::int32_t EditTableFromCombo(std::int32_t tableType, ComboBox& combo);
/// The ID that the user selected in the table editor, or -1.
std::int32_t EditTableDialog(std::int32_t tableType);
/// Makes a typed text a table row or takes it back; asks first unless `bQuiet`. False for an
/// empty text, a combo that is not visible, and a text that is no row in the end.
Boolean ValidateComboEntry(ComboBox& combo, std::int32_t tableType, Boolean bQuiet);

}  // namespace parlate
