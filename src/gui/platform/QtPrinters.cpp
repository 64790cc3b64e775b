#include "platform/QtPrinters.h"

#include <QApplication>
#include <QFile>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <string>
#include <utility>

#include "general/BinaryFile.h"
#include "general/RuntimeError.h"
#include "print/PdfSurface.h"
#include "print/QtPrintSurface.h"
#include "widgets/CodePageText.h"

namespace parlate {

namespace {

std::unique_ptr<PrintSurface> SurfaceOn(QPrinter& printer) {
  if (printer.outputFormat() == QPrinter::PdfFormat) {
    const QString path = printer.outputFileName();
    return MakePdfSurface(std::make_shared<FileSink>(QFile::encodeName(path).toStdString(),
                                                     FileSink::Content::Replace),
                          FromQString(path));
  }
  PreparePages(printer);
  printer.setCopyCount(1);
  return std::make_unique<QtPrintSurface>(printer, FromQString(printer.printerName()));
}

}  // namespace

QtPrinters::QtPrinters() = default;

QtPrinters::~QtPrinters() = default;

std::unique_ptr<PrintSurface> QtPrinters::ShowPrinterDialog(const std::string& title) {
  if (!printer_) printer_ = std::make_unique<QPrinter>();
  QPrintDialog dialog(printer_.get(), QApplication::activeWindow());
  dialog.setObjectName(QStringLiteral("dlgPrint"));
  if (!title.empty()) dialog.setWindowTitle(ToQString(title));
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  const bool noPrinter = QPrinterInfo::availablePrinterNames().isEmpty();
  dialog.setOption(QAbstractPrintDialog::PrintToFile, noPrinter);
  if (dialog.exec() != QDialog::Accepted) return nullptr;
  try {
    return SurfaceOn(*printer_);
  } catch (const RuntimeError& error) {
    // Whatever keeps a document from being begun is the printer's error to those who print.
    throw RuntimeError(RuntimeError::kPrinterError, error.Detail());
  }
}

}  // namespace parlate
