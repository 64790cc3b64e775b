#include <gtest/gtest.h>

#include "editors/frmMissingLabels.h"
#include "platform/Modal.h"
#include "platform/TwipsConversion.h"

namespace parlate {
namespace {

BadLabelRow Row(const char* conversation, const char* label, std::int32_t eventKey) {
  return {std::make_shared<const std::string>(conversation), label, eventKey};
}

const std::vector<BadLabelRow> kRows{Row("Harbour", "Gone", 4), Row("Harbour", "Gone", 4),
                                     Row("Zo\xEB", "Nowhere", 9)};

bool IsShown(const QWidget& form, const char* name) {
  return ControlNamed<QWidget>(form, name).isVisible();
}

/// Shows the rows and does `act` to the form once it is in front.
bool ShowAnd(frmMissingLabels& form, bool bSaving, const std::function<void(QWidget&)>& act) {
  const WhenModal modal(act);
  return form.ShowMissingLabels(kRows, bSaving);
}

void Click(const QWidget& form, const char* name) {
  QTest::mouseClick(&ControlNamed<QPushButton>(form, name), Qt::LeftButton);
}

TEST(FrmMissingLabels, EveryCaptionIsTheRightOne) {
  const frmMissingLabels form;
  EXPECT_EQ(form.objectName(), "frmMissingLabels");
  EXPECT_EQ(form.windowTitle(), "Error - Missing Labels!");
  EXPECT_EQ(ControlNamed<QLabel>(form, "Label1").text(), "Missing Labels:");
  EXPECT_EQ(ControlNamed<QLabel>(form, "Label2").text(),
            "The labels listed above are referenced in conversations but are not defined in any "
            "events.  You must correct these label references before the conversation will run "
            "properly in the game. ");
  EXPECT_EQ(ControlNamed<QLabel>(form, "lblSave").text(), "Continue Saving?");
  EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdYes").text(), "&Yes");
  EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdNo").text(), "&No");
  EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdClose").text(), "&Close");
  const auto& list = ControlNamed<MultiColumnList>(form, "lstLabels");
  EXPECT_EQ(list.ColumnCount(), 2);
  EXPECT_EQ(list.Head(0), "Conversation");
  EXPECT_EQ(list.Head(1), "Label");
  EXPECT_EQ(list.accessibleName(), "Missing Labels:");
  for (const char* name : {"lblSave", "cmdYes", "cmdNo"}) {
    EXPECT_EQ(ControlNamed<QWidget>(form, name).parentWidget()->objectName(), "pnlSaving");
  }
}

TEST(FrmMissingLabels, WithoutRowsNothingIsShownAndAllIsWell) {
  frmMissingLabels form;
  EXPECT_TRUE(form.ShowMissingLabels({}, false));
  EXPECT_TRUE(form.ShowMissingLabels({}, true));
  EXPECT_TRUE(form.isHidden());
}

TEST(FrmMissingLabels, EveryReferenceHasARowAndRepeatedOnesStay) {
  frmMissingLabels form;
  ShowAnd(form, false, [](QWidget& window) {
    const auto& list = ControlNamed<MultiColumnList>(window, "lstLabels");
    EXPECT_EQ(list.Rows().ListCount(), 3U);
    EXPECT_EQ(list.Rows().Row(0).text, "Harbour;Gone");
    EXPECT_EQ(list.Rows().Row(1).text, "Harbour;Gone");
    EXPECT_EQ(list.Rows().Row(1).itemData, 4);
    EXPECT_EQ(list.CellText(2, 0), QStringLiteral(u"Zo\u00EB"));
    EXPECT_EQ(list.CellText(2, 1), "Nowhere");
    window.close();
  });
}

TEST(FrmMissingLabels, ASecondReportHoldsItsOwnRowsAlone) {
  frmMissingLabels form;
  ShowAnd(form, false, [](QWidget& window) { window.close(); });
  ShowAnd(form, false, [](QWidget& window) {
    EXPECT_EQ(ControlNamed<MultiColumnList>(window, "lstLabels").Rows().ListCount(), 3U);
    window.close();
  });
}

TEST(FrmMissingLabels, TheReportHasOneButtonAndItsHeight) {
  frmMissingLabels form;
  ShowAnd(form, false, [](QWidget& window) {
    EXPECT_EQ(window.height(), PixelsFromTwips(4500));
    EXPECT_TRUE(IsShown(window, "cmdClose"));
    EXPECT_FALSE(IsShown(window, "pnlSaving"));
    EXPECT_FALSE(IsShown(window, "lblSave"));
    EXPECT_FALSE(ControlNamed<QWidget>(window, "cmdYes").isEnabled());
    EXPECT_FALSE(ControlNamed<QWidget>(window, "cmdNo").isEnabled());
    EXPECT_EQ(window.focusWidget()->objectName(), "cmdClose");
    window.close();
  });
}

TEST(FrmMissingLabels, TheSaveFormAsksAndHasNoClose) {
  frmMissingLabels form;
  ShowAnd(form, true, [](QWidget& window) {
    EXPECT_FALSE(IsShown(window, "cmdClose"));
    EXPECT_TRUE(IsShown(window, "lblSave"));
    EXPECT_TRUE(ControlNamed<QWidget>(window, "cmdYes").isEnabled());
    EXPECT_TRUE(ControlNamed<QWidget>(window, "cmdNo").isEnabled());
    EXPECT_EQ(window.focusWidget()->objectName(), "cmdYes");
    window.close();
  });
}

TEST(FrmMissingLabels, YesInTheSaveFormLetsTheSaveGoOn) {
  frmMissingLabels form;
  EXPECT_TRUE(ShowAnd(form, true, [](QWidget& window) { Click(window, "cmdYes"); }));
  EXPECT_EQ(form.modalResult, 0);
  EXPECT_TRUE(ShowAnd(
      form, true, [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Y, Qt::AltModifier); }));
}

TEST(FrmMissingLabels, NoAndClosingTheWindowStopTheSave) {
  frmMissingLabels form;
  EXPECT_FALSE(ShowAnd(form, true, [](QWidget& window) { Click(window, "cmdNo"); }));
  EXPECT_EQ(form.modalResult, 1);
  EXPECT_TRUE(form.isHidden());
  EXPECT_FALSE(ShowAnd(form, true, [](QWidget& window) { window.close(); }));
  EXPECT_EQ(form.modalResult, 1);
  EXPECT_FALSE(
      ShowAnd(form, true, [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }));
}

TEST(FrmMissingLabels, TheReportIsNeverAYes) {
  frmMissingLabels form;
  EXPECT_FALSE(ShowAnd(form, false, [](QWidget& window) { Click(window, "cmdClose"); }));
  EXPECT_EQ(form.modalResult, 1);
  EXPECT_FALSE(
      ShowAnd(form, false, [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); }));
}

TEST(FrmMissingLabels, AReportAfterAYesIsStillNone) {
  frmMissingLabels form;
  EXPECT_TRUE(ShowAnd(form, true, [](QWidget& window) { Click(window, "cmdYes"); }));
  EXPECT_FALSE(ShowAnd(form, false, [](QWidget& window) { window.close(); }));
  EXPECT_EQ(form.modalResult, 1);
}

TEST(FrmMissingLabels, TheColumnsShareTheWidthOfTheList) {
  frmMissingLabels form;
  ShowAnd(form, false, [](QWidget& window) {
    const auto& list = ControlNamed<MultiColumnList>(window, "lstLabels");
    EXPECT_EQ(list.ColumnWidth(0) + list.ColumnWidth(1), list.viewport()->width());
    EXPECT_GT(list.ColumnWidth(1), 100);
    window.close();
  });
}

}  // namespace
}  // namespace parlate
