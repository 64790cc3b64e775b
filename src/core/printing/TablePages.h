#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "general/Prompts.h"
#include "model/SpeakerStats.h"

namespace parlate {

/// Where a printed table asks for a printer and says how it went.
struct PrintingDoors {
  Printers& printers;
  MessageBoxes& messages;
};

/// Prints rows of one text under a heading, and says so. `strHeader` names the table.
void PrintTable(const std::vector<std::string>& rows, const std::string& strHeader,
                const PrintingDoors& doors);

/// Prints how many lines each speaker of a file has, and says so. `fileName` has no folder.
void PrintStats(const SpeakerStats& stats, const std::string& fileName, const PrintingDoors& doors);

/// The heading of a page; from page 2 on it bears the number.
void PrintTableHeader(PrintSurface& surface, const std::string& strHeader, int intLeftMargin,
                      int intTopMargin, int intPage);

}  // namespace parlate
