#include "printing/TablePages.h"

#include <functional>
#include <memory>

#include "general/CodePage.h"
#include "general/PrintSurface.h"
#include "general/RuntimeError.h"

namespace parlate {

namespace {

constexpr std::int16_t kBodySize = 10;
constexpr std::int16_t kHeaderSize = 20;

/// The pages of a table: their margins, and a heading on each.
class TablePages {
 public:
  TablePages(PrintSurface& surface, std::string strHeader)
      : surface_(surface),
        strHeader_(std::move(strHeader)),
        left_(ToTwips(surface.ScaleWidth() / 10.0)),
        top_(ToTwips(surface.ScaleHeight() / 12.0)) {
    surface_.CurrentY = top_;
    PrintTableHeader(surface_, strHeader_, left_, top_, page_);
    // Without a name it is the printer's own.
    surface_.Font = {.Name = {}, .Size = kBodySize};
  }

  /// Puts the pen at the start of a row, on a new page if this one is full.
  void BeginRow() {
    if (surface_.CurrentY >= surface_.ScaleHeight() - top_) {
      surface_.NewPage();
      PrintTableHeader(surface_, strHeader_, left_, top_, ++page_);
    }
    surface_.CurrentX = left_;
  }
  void PrintRow(const std::string& text) {
    BeginRow();
    surface_.Print(text);
  }

 private:
  PrintSurface& surface_;
  std::string strHeader_;
  Twips left_;
  Twips top_;
  int page_ = 1;
};

/// Asks for a printer, prints, and says how it went; a cancel ends it without a word.
void RunOnPrinter(const PrintingDoors& doors, const std::string& title, const std::string& what,
                  const std::function<void(PrintSurface&)>& print) {
  std::string deviceName;
  try {
    const std::unique_ptr<PrintSurface> surface = doors.printers.ShowPrinterDialog({});
    if (!surface) return;
    print(*surface);
    surface->EndDoc();
    deviceName = surface->DeviceName();
  } catch (const RuntimeError&) {
    doors.messages.Show({"Error Printing!", "An Error Occurred While Printing.",
                         MessageBox::Icon::Critical, MessageBox::Buttons::Ok});
    return;
  }
  doors.messages.Show({title, what + " Printed to " + deviceName + ".",
                       MessageBox::Icon::Information, MessageBox::Buttons::Ok});
}

}  // namespace

void PrintTableHeader(PrintSurface& surface, const std::string& strHeader, int intLeftMargin,
                      int intTopMargin, int intPage) {
  const KeepFont keep(surface);
  surface.CurrentY = ToTwips(intTopMargin);
  surface.Font.Name = "Arial";
  surface.Font.Size = kHeaderSize;
  std::string text = "Parlate Table: " + UpperCase(strHeader);
  if (intPage > 1) text += " (page " + std::to_string(intPage) + ")";
  surface.CurrentX = ToTwips(intLeftMargin);
  surface.Print(text);
  const int width = surface.TextWidth(text) + 100;
  surface.Line(intLeftMargin, surface.CurrentY, intLeftMargin + width, surface.CurrentY);
  surface.Print();
}

void PrintTable(const std::vector<std::string>& rows, const std::string& strHeader,
                const PrintingDoors& doors) {
  RunOnPrinter(doors, "Table Printed", "Table " + strHeader, [&](PrintSurface& surface) {
    TablePages pages(surface, strHeader);
    for (const std::string& row : rows) pages.PrintRow(row);
  });
}

void PrintStats(const SpeakerStats& stats, const std::string& fileName,
                const PrintingDoors& doors) {
  RunOnPrinter(doors, "Stats Printed", "Stats", [&](PrintSurface& surface) {
    TablePages pages(surface, "Conversation Stats, File = " + fileName);
    for (const SpeakerRow& row : stats.Rows()) {
      pages.BeginRow();
      surface.Print(row.name, PrintSurface::After::Text);
      surface.CurrentX = ToTwips(surface.ScaleWidth() / 2.0);
      surface.Print(std::to_string(row.lines));
    }
    pages.PrintRow("Total Unique Speakers:   " + std::to_string(stats.totalSpeakers));
    pages.PrintRow("Total Speech Events:   " + std::to_string(stats.totalLines));
  });
}

}  // namespace parlate
