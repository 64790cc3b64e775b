#pragma once

#include <memory>

#include "general/PrintSurface.h"
#include "general/Prompts.h"

class QPrinter;

namespace parlate {

/// The system's printers behind its print dialog. Printing to a file is offered only where there is
/// no printer: it makes a PDF.
class QtPrinters final : public Printers {
 public:
  QtPrinters();
  ~QtPrinters() override;
  std::unique_ptr<PrintSurface> ShowPrinterDialog(const std::string& title) override;

 private:
  std::unique_ptr<QPrinter> printer_;  ///< Keeps what was chosen for the next time.
};

}  // namespace parlate
