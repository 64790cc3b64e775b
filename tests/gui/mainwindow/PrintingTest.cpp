// The print commands through the real window, on the recorder.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "mainwindow/WindowFixture.h"
#include "platform/Modal.h"
#include "platform/QtComboBox.h"
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
  /// From the file's properties, after these tabs were in front.
  void PrintStatistics(const std::vector<int>& tabs) {
    program.messages.Expect(Answer::Ok);
    WhenFormShows("frmFileProperties", [&tabs](QWidget& form) {
      auto& shown = ControlNamed<QTabWidget>(form, "tabProperties");
      for (const int tab : tabs) shown.setCurrentIndex(tab);
      Click(form, "cmdPrint");
      Click(form, "cmdCancel");
    });
    program.Choose("mnuFileProperties");
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

TEST_F(Printing, OptionsAreKeptThoughThePrinterIsCancelled) {
  program.printers.cancels = true;
  WhenFormShows("frmPrintCons", [](QWidget& form) {
    QLineEdit& size = *ControlNamed<QtComboBox>(form, "cboFontSizes").lineEdit();
    size.selectAll();
    QTest::keyClicks(&size, "13");
    Click(form, "chkPrintSpeechOnly");
    Click(form, "cmdOK");
  });
  program.Choose("mnuFilePrint");
  EXPECT_EQ(program.workspace.defaults.PrintFontSize, 13);
  EXPECT_TRUE(program.workspace.defaults.bPrintSpeechOnly);
  EXPECT_THAT(program.printers.calls, IsEmpty());
}

TEST_F(Printing, TheStatisticsNameTheFileByTheLettersOfItsName) {
  const std::string path = folder.File(
      "Gr\xC3\xBC\xC3\x9F"
      "e.con");
  WriteBytes(path, HarbourFile());
  program.shell().OpenConFile(path);
  PrintStatistics({2});
  EXPECT_EQ(program.printers.Texts().front(),
            "Parlate Table: CONVERSATION STATS, FILE = GR\xDC\xDF"
            "E.CON");
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
  PrintStatistics({2});
  EXPECT_THAT(program.printers.Texts(),
              ElementsAre("Parlate Table: CONVERSATION STATS, FILE = HARBOUR.CON", "Alex", "1",
                          "Zoe", "1", "Total Unique Speakers:   2", "Total Speech Events:   2"));
  EXPECT_EQ(program.messages.shown.back().title, "Stats Printed");
  EXPECT_EQ(program.messages.shown.back().text, "Stats Printed to Recorder.");
}

TEST_F(Printing, StatisticsThatWereCountedTwicePrintTheRowsOfBothAndTheSpeakersOfTheLast) {
  PrintStatistics({2, 0, 2});
  EXPECT_THAT(program.printers.Texts(),
              ElementsAre("Parlate Table: CONVERSATION STATS, FILE = HARBOUR.CON", "Alex", "2",
                          "Zoe", "2", "Total Unique Speakers:   0", "Total Speech Events:   2"));
}

}  // namespace
}  // namespace parlate
