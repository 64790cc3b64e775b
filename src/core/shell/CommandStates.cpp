#include "shell/CommandStates.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace parlate {

namespace {

using Predicates = CommandPredicates;
using Rule = bool (*)(const Predicates&);

bool Always(const Predicates&) { return true; }
bool FileOpen(const Predicates& p) { return p.fileOpen; }
bool HasNodes(const Predicates& p) { return p.hasNodes; }
bool Writable(const Predicates& p) { return p.hasNodes && !p.readOnly; }
bool ConSelected(const Predicates& p) { return p.conSelected; }
bool EventSelected(const Predicates& p) { return p.eventSelected; }
bool EventBuffered(const Predicates& p) { return p.eventBuffered; }
bool ConBuffered(const Predicates& p) { return p.conBuffered; }

struct Entry {
  std::string_view control;
  Rule rule;
};

constexpr auto kEntries = std::to_array<Entry>({
    {"tlbCon/New", Always},
    {"tlbCon/Open", Always},
    {"tlbCon/Save", Writable},
    {"tlbCon/Print", HasNodes},
    {"tlbCon/Cut", EventSelected},
    {"tlbCon/Copy", EventSelected},
    {"tlbCon/Paste", EventBuffered},
    {"tlbCon/Find", HasNodes},
    {"tlbCon/Properties", ConSelected},
    {"cboFind", HasNodes},
    {"mnuFileClose", FileOpen},
    {"mnuFileProperties", FileOpen},
    {"mnuFileSave", Writable},
    {"mnuFileSaveAs", Writable},
    {"mnuFileImport", Writable},
    {"mnuFilePrint", HasNodes},
    {"mnuFileExport", HasNodes},
    {"mnuFileGenerateAudio", HasNodes},
    {"mnuCon", FileOpen},
    {"mnuConAdd", FileOpen},
    {"mnuEvents", FileOpen},
    {"mnuTable", FileOpen},
    {"mnuConDelete", ConSelected},
    {"mnuConProperties", ConSelected},
    {"mnuConCut", ConSelected},
    {"mnuConCopy", ConSelected},
    {"mnuConCheckLabels", HasNodes},
    {"mnuConFind", HasNodes},
    // Meant: the item follows the conversation on the clipboard, although it pastes the event.
    {"mnuConPaste", ConBuffered},
    {"mnuEventsAdd", ConSelected},
    {"mnuEventsInsert", EventSelected},
    {"mnuEventsEdit", EventSelected},
    {"mnuEventsCut", EventSelected},
    {"mnuEventsCopy", EventSelected},
    {"mnuEventsDelete", EventSelected},
    {"mnuEventsPaste", EventBuffered},
});

}  // namespace

std::vector<CommandState> DecideCommandStates(const CommandPredicates& predicates) {
  std::vector<CommandState> states;
  states.reserve(kEntries.size());
  std::transform(kEntries.begin(), kEntries.end(), std::back_inserter(states),
                 [&predicates](const Entry& entry) {
                   return CommandState{entry.control, entry.rule(predicates)};
                 });
  return states;
}

}  // namespace parlate
