// The print commands through the real window, on the recorder, and a PDF as the system makes it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "general/RuntimeError.h"
#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"
#include "print/PdfSurface.h"
#include "support/ConversationScript.h"

namespace parlate {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using namespace testing_support;

class Printing : public WindowTest {
 protected:
  Printing() {
    WriteBytes(folder.File("harbour.con"), HarbourFile());
    EXPECT_TRUE(program.Start(folder.File("harbour.con")));
  }
  [[nodiscard]] std::vector<std::string> Titles() const {
    std::vector<std::string> titles;
    for (const std::string& text : program.printers.Texts()) {
      if (text.starts_with("Conversation: ")) titles.push_back(text);
    }
    return titles;
  }
  static void Click(const QWidget& form, const char* name) {
    QTest::mouseClick(&ControlNamed<QAbstractButton>(form, name), Qt::LeftButton, {}, QPoint(8, 8));
  }

  RunningProgram program;
};

TEST_F(Printing, TheMenuPrintsAllAfterTheOptions) {
  WhenFormShows("frmPrintCons", [](QWidget& form) {
    EXPECT_TRUE(ControlNamed<QRadioButton>(form, "optPrintAll").isChecked());
    EXPECT_FALSE(ControlNamed<QRadioButton>(form, "optPrintSelected").isEnabled());
    Click(form, "chkDetailedHeader");  // which is on
    Click(form, "cmdOK");
  });
  program.Choose("mnuFilePrint");
  EXPECT_THAT(Titles(),
              ElementsAre("Conversation: Zoe - greeting", "Conversation: Alex - Leaving"));
  EXPECT_THAT(program.printers.Texts(), Not(Contains("Conversation Flags")));
}

TEST_F(Printing, TheToolbarOffersTheSelectedConversationFirst) {
  program.ClickNode("C2");
  WhenFormShows("frmPrintCons", [](QWidget& form) {
    EXPECT_TRUE(ControlNamed<QRadioButton>(form, "optPrintSelected").isChecked());
    Click(form, "cmdOK");
  });
  program.Choose("tlbCon/Print");
  EXPECT_THAT(Titles(), ElementsAre("Conversation: Alex - Leaving"));
}

TEST_F(Printing, ThePopupAsksNothing) {
  program.ClickNode("C0");
  program.Choose("mnuConPopupPrint");
  EXPECT_THAT(Titles(), ElementsAre("Conversation: Zoe - greeting"));
}

TEST_F(Printing, CancelledOptionsPrintNothing) {
  WhenFormShows("frmPrintCons", [](QWidget& form) { Click(form, "cmdCancel"); });
  program.Choose("mnuFilePrint");
  EXPECT_EQ(program.printers.shown, 0);
}

TEST_F(Printing, TheTableEditorPrintsItsRows) {
  program.messages.Expect(Answer::Ok);
  WhenFormShows("frmTableEdit", [](QWidget& form) {
    Click(form, "cmdPrint");
    Click(form, "cmdClose");
  });
  program.Choose("mnuTableNPCs");
  EXPECT_THAT(program.printers.Texts(), ElementsAre("Parlate Table: ACTORS/PAWNS", "Alex", "Zoe"));
  EXPECT_EQ(program.messages.shown.back().title, "Table Printed");
  EXPECT_EQ(program.messages.shown.back().text, "Table Actors/Pawns Printed to Recorder.");
}

TEST_F(Printing, TheFilePropertiesPrintTheStatistics) {
  program.messages.Expect(Answer::Ok);
  WhenFormShows("frmFileProperties", [](QWidget& form) {
    ControlNamed<QTabWidget>(form, "tabProperties").setCurrentIndex(2);
    Click(form, "cmdPrint");
    Click(form, "cmdCancel");
  });
  program.Choose("mnuFileProperties");
  EXPECT_THAT(program.printers.Texts(),
              ElementsAre("Parlate Table: CONVERSATION STATS, FILE = HARBOUR.CON", "Alex", "1",
                          "Zoe", "1", "Total Unique Speakers:   2", "Total Speech Events:   2"));
  EXPECT_EQ(program.messages.shown.back().title, "Stats Printed");
  EXPECT_EQ(program.messages.shown.back().text, "Stats Printed to Recorder.");
}

TEST_F(Printing, StatisticsThatWereCountedTwicePrintTheRowsOfBothAndTheSpeakersOfTheLast) {
  program.messages.Expect(Answer::Ok);
  WhenFormShows("frmFileProperties", [](QWidget& form) {
    auto& tabs = ControlNamed<QTabWidget>(form, "tabProperties");
    tabs.setCurrentIndex(2);
    tabs.setCurrentIndex(0);
    tabs.setCurrentIndex(2);
    Click(form, "cmdPrint");
    Click(form, "cmdCancel");
  });
  program.Choose("mnuFileProperties");
  EXPECT_THAT(program.printers.Texts(),
              ElementsAre("Parlate Table: CONVERSATION STATS, FILE = HARBOUR.CON", "Alex", "2",
                          "Zoe", "2", "Total Unique Speakers:   0", "Total Speech Events:   2"));
}

/// What a reader finds in a PDF.
QString TextOf(const std::string& path) {
  QProcess reader;
  reader.start("pdftotext", {"-layout", QString::fromStdString(path), "-"});
  EXPECT_TRUE(reader.waitForFinished());
  return QString::fromUtf8(reader.readAllStandardOutput());
}

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
  const QString text = TextOf(path);
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

TEST(Pdf, TheMemoryOfARunDoesNotGrowWithItsPages) {
  // The sink holds what was written, so that anything beyond it would be the surface's own.
  const auto sink = std::make_shared<MemorySink>();
  const auto surface = MakePdfSurface(sink, "PDF");
  surface->Print("Text");
  surface->NewPage();
  const std::size_t early = sink->Bytes().size();
  for (int page = 0; page < 200; ++page) {
    surface->Print("Text");
    surface->NewPage();
  }
  EXPECT_GT(sink->Bytes().size(), early) << "pages are written as they end";
  surface->EndDoc();
}

}  // namespace
}  // namespace parlate
