#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QRadioButton>

#include "editors/EditorFixture.h"
#include "editors/frmCameraProperties.h"
#include "model/TableCombos.h"
#include "support/TestWorkspace.h"

namespace parlate {
namespace {

using namespace testing_support;
using testing::ElementsAre;

class FrmCameraPropertiesTest : public EditorTest {
 protected:
  FrmCameraPropertiesTest() { program_.workspace.tableEditor = &tables_; }

  ScriptedTableEditor tables_;
  frmCameraProperties form_;
};

TEST_F(FrmCameraPropertiesTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(form_.objectName(), "frmCameraProperties");
  EXPECT_EQ(form_.windowTitle(), "Camera Properties");
  EXPECT_EQ(ControlNamed<QRadioButton>(form_, "optCameraPosition").text(),
            "Camera Based on Speaking Actors:");
  EXPECT_EQ(ControlNamed<QRadioButton>(form_, "Option1").text(), "Camera Based on Actor Location:");
  EXPECT_EQ(ControlNamed<QPushButton>(form_, "cmdEditNPCTable").text(), "Edit NPC Table");
  EXPECT_EQ(ControlNamed<QPushButton>(form_, "cmdOK").text(), "&OK");
  EXPECT_EQ(ControlNamed<QPushButton>(form_, "cmdCancel").text(), "&Cancel");
  const std::vector<std::pair<const char*, const char*>> labelled = {{"txtCamDistance", "Distance"},
                                                                     {"txtCamCenter", "Center"},
                                                                     {"txtCamHeight", "Height"},
                                                                     {"Text7", "Pitch"},
                                                                     {"Text9", "Roll"},
                                                                     {"Text4", "Pitch"},
                                                                     {"Text6", "Roll"},
                                                                     {"cboCameraActor", "Actor:"}};
  for (const auto& [name, label] : labelled) {
    EXPECT_EQ(ControlNamed<QWidget>(form_, name).accessibleName(), label) << name;
  }
}

TEST_F(FrmCameraPropertiesTest, TheFieldsStandInTheirFrames) {
  for (const char* name :
       {"txtCamDistance", "txtCamCenter", "txtCamHeight", "Text7", "Text8", "Text9"}) {
    EXPECT_EQ(ControlNamed<QWidget>(form_, name).parentWidget()->objectName(), "frmSpeaking");
  }
  for (const char* name : {"cboCameraActor", "cmdEditNPCTable", "Text1", "Text2", "Text3", "Text4",
                           "Text5", "Text6"}) {
    EXPECT_EQ(ControlNamed<QWidget>(form_, name).parentWidget()->objectName(), "frmActor");
  }
  int captions = 0;
  for (const QLabel* label : form_.findChildren<QLabel*>()) {
    if (label->text() == "Camera Offsets:") ++captions;
  }
  EXPECT_EQ(captions, 2);
}

TEST_F(FrmCameraPropertiesTest, TheTableButtonIsWhatFillsTheActors) {
  auto& actors = ControlNamed<QtComboBox>(form_, "cboCameraActor");
  EXPECT_EQ(actors.ListCount(), 0);
  tables_.user = [] { return 5; };
  form_.show();
  Click(form_, "cmdEditNPCTable");
  EXPECT_THAT(tables_.opened, ElementsAre(kActorTable));
  EXPECT_EQ(actors.ListCount(), 3);
  EXPECT_EQ(GetComboItemID(actors), 5);
}

TEST_F(FrmCameraPropertiesTest, OkAndCancelJustHide) {
  for (const char* button : {"cmdOK", "cmdCancel"}) {
    const WhenModal modal([button](QWidget& form) { Click(form, button); });
    form_.exec();
    EXPECT_TRUE(form_.isHidden()) << button;
  }
  EXPECT_FALSE(program_.shell().GetConFile()->IsModified());
}

}  // namespace
}  // namespace parlate
