// The system's print dialog as the program shows it, on a machine without a printer.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "general/PrintSurface.h"
#include "general/RuntimeError.h"
#include "platform/Modal.h"
#include "platform/QtPrinters.h"
#include "print/PdfText.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using testing_support::TemporaryFolder;

QPrintDialog& AsPrintDialog(QWidget& window) {
  auto* dialog = qobject_cast<QPrintDialog*>(&window);
  if (dialog == nullptr) throw std::logic_error("this is no print dialog");
  return *dialog;
}

/// Chooses the PDF to be written, as a user types it.
void TypeFileName(QWidget& dialog, const std::string& path) {
  auto& field = ControlNamed<QLineEdit>(dialog, "filename");
  field.selectAll();
  TypeText(field, QString::fromStdString(path));
}

class SystemPrinters : public testing::Test {
 protected:
  std::unique_ptr<PrintSurface> Show(const std::function<void(QPrintDialog&)>& user,
                                     const std::string& title = "Print Conversations") {
    const WhenModal modal([&](QWidget& window) { user(AsPrintDialog(window)); });
    return printers_.ShowPrinterDialog(title);
  }
  std::unique_ptr<PrintSurface> ShowAndPrintTo(const std::string& path) {
    return Show([&](QPrintDialog& dialog) {
      TypeFileName(dialog, path);
      QTest::keyClick(&dialog, Qt::Key_Return);
    });
  }

  TemporaryFolder folder_;
  QtPrinters printers_;
};

TEST_F(SystemPrinters, AreChosenWithoutSelectionPageNumbersAndCurrentPage) {
  Show([](QPrintDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Print Conversations");
    EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintSelection));
    EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintPageRange));
    EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintCurrentPage));
    dialog.reject();
  });
}

TEST_F(SystemPrinters, HaveTheSystemsTitleWhereNoneIsGiven) {
  Show(
      [](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Print");
        dialog.reject();
      },
      "");
}

TEST_F(SystemPrinters, AreNothingAfterACancel) {
  EXPECT_EQ(Show([](QPrintDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), nullptr);
}

TEST_F(SystemPrinters, WriteAPdfWhereThereIsNoPrinter) {
  const std::string path = folder_.File("page \xC3\xA9.pdf");
  const auto surface = ShowAndPrintTo(path);
  ASSERT_NE(surface, nullptr);
  EXPECT_TRUE(surface->DeviceName().ends_with("page \xE9.pdf")) << surface->DeviceName();
  surface->Print("Hello");
  surface->EndDoc();
  EXPECT_TRUE(TextOfPdf(path).contains("Hello"));
}

TEST_F(SystemPrinters, PrintOneCopyInPortraitWhateverWasChosen) {
  const std::string path = folder_.File("page.pdf");
  const auto surface = Show([&](QPrintDialog& dialog) {
    TypeFileName(dialog, path);
    dialog.printer()->setPageOrientation(QPageLayout::Landscape);
    dialog.printer()->setCopyCount(3);
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  ASSERT_NE(surface, nullptr);
  EXPECT_LT(surface->ScaleWidth(), surface->ScaleHeight());
  surface->Print("Hello");
  surface->EndDoc();
  EXPECT_EQ(TextOfPdf(path).count("Hello"), 1);
}

TEST_F(SystemPrinters, OfAFolderThatIsNotThereAreRefusedInTheDialogWhichStays) {
  bool refused = false;
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, &answer, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr) {
      refused = true;
      box->accept();
      return;
    }
    auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (refused && dialog != nullptr) dialog->reject();
  });
  answer.start(20);
  EXPECT_EQ(ShowAndPrintTo(folder_.File("nowhere/page.pdf")), nullptr);
  EXPECT_TRUE(refused);
}

TEST_F(SystemPrinters, ThatCannotBeWrittenToAreAPrinterError) {
  // The folder goes between the dialog's own look and the first byte.
  const std::string path = folder_.File("gone/page.pdf");
  std::filesystem::create_directory(folder_.File("gone"));
  const WhenModal modal([&](QWidget& window) {
    QPrintDialog& dialog = AsPrintDialog(window);
    TypeFileName(dialog, path);
    QObject::connect(&dialog, &QDialog::finished, &dialog,
                     [&] { std::filesystem::remove_all(folder_.File("gone")); });
    QTest::keyClick(&dialog, Qt::Key_Return);
  });
  try {
    const auto surface = printers_.ShowPrinterDialog("Print Conversations");
    FAIL() << "a surface was given";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), RuntimeError::kPrinterError);
  }
}

}  // namespace
}  // namespace parlate
