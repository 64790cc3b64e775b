#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <memory>
#include <string>

#include "general/BinaryFile.h"
#include "general/RuntimeError.h"
#include "print/PdfSurface.h"
#include "print/PdfText.h"
#include "support/TemporaryFolder.h"

namespace parlate {
namespace {

using testing_support::TemporaryFolder;

TEST(Pdf, HoldsEveryLineInItsOrder) {
  const TemporaryFolder folder;
  const std::string path = folder.File("page.pdf");
  const auto surface =
      MakePdfSurface(std::make_shared<FileSink>(path, FileSink::Content::Replace), "PDF");
  surface->Font = {.Name = "Courier New", .Size = 10};
  surface->CurrentX = 600;
  surface->Print("First \x95 caf\xE9");
  surface->CurrentX = 600;
  surface->Print("Second\r\nThird");
  surface->NewPage();
  surface->Font = {.Name = "Arial", .Size = 14, .Bold = true};
  surface->Print("Overleaf");
  surface->EndDoc();
  const QString text = TextOfPdf(path);
  const QStringList lines = {QStringLiteral(u"First \u2022 caf\u00E9"), "Second", "Third",
                             "Overleaf"};
  qsizetype at = -1;
  for (const QString& line : lines) {
    const qsizetype found = text.indexOf(line);
    EXPECT_GT(found, at) << line.toStdString() << " in " << text.toStdString();
    at = found;
  }
  EXPECT_EQ(text.count(u'\f'), 2) << "two pages";
}

TEST(Pdf, MeasuresInTwipsAndKeepsTheMarginsFree) {
  const auto surface = MakePdfSurface(std::make_shared<MemorySink>(), "PDF");
  surface->Font = {.Name = "Courier New", .Size = 10};
  // A character of this font is six tenths of its size wide, at every size.
  EXPECT_EQ(surface->TextWidth(std::string(10, 'x')), 1200);
  surface->Font.Size = 20;
  EXPECT_NEAR(surface->TextWidth(std::string(10, 'x')), 2400, 1);
  EXPECT_EQ(surface->Width() - surface->ScaleWidth(), 720) << "a quarter of an inch on each side";
  EXPECT_TRUE(surface->Width() == 11900 || surface->Width() == 12240)
      << "A4 or Letter, in whole points";
  surface->EndDoc();
}

TEST(Pdf, OnAFullDiskIsAPrinterErrorAtTheEndAtTheLatest) {
  const auto surface =
      MakePdfSurface(std::make_shared<FileSink>("/dev/full", FileSink::Content::Replace), "PDF");
  EXPECT_THROW(
      {
        for (int page = 0; page < 100; ++page) {
          surface->Print("Text");
          surface->NewPage();
        }
        surface->EndDoc();
      },
      RuntimeError);
}

TEST(Pdf, PagesAreWrittenAsTheyEnd) {
  const auto sink = std::make_shared<MemorySink>();
  const auto surface = MakePdfSurface(sink, "PDF");
  std::size_t before = 0;
  for (int page = 0; page < 3; ++page) {
    surface->Print("Text");
    surface->NewPage();
    EXPECT_GT(sink->Bytes().size(), before);
    before = sink->Bytes().size();
  }
  surface->EndDoc();
}

}  // namespace
}  // namespace parlate
