#include <tuple>

#include "editors/panels/CameraPanel.h"
#include "editors/panels/PanelFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

class CameraPanelTest : public PanelTest<CameraPanel> {
 protected:
  static EventMoveCamera Camera(std::int32_t type, std::int32_t position, std::int32_t transition) {
    EventMoveCamera event;
    event.cameraType = type;
    event.cameraPosition = position;
    event.cameraTransition = transition;
    return event;
  }
  /// A random camera with a value of its own in every field.
  static EventMoveCamera Full() {
    EventMoveCamera event = Camera(EventMoveCamera::kRandom, 5, 1);
    event.rotationPitch = 11;
    event.rotationYaw = 12;
    event.rotationRoll = 13;
    event.cameraX = 14;
    event.cameraY = 15;
    event.cameraZ = 16;
    event.heightModifier = 1.5;
    event.centerModifier = 2.5;
    event.distanceMultiplier = 3.5;
    return event;
  }
  static auto FieldsOf(const EventMoveCamera& event) {
    return std::make_tuple(event.cameraType, event.cameraPosition, event.cameraTransition,
                           event.rotationPitch, event.rotationYaw, event.rotationRoll,
                           event.cameraX, event.cameraY, event.cameraZ, event.heightModifier,
                           event.centerModifier, event.distanceMultiplier);
  }
};

TEST_F(CameraPanelTest, EveryCaptionIsTheRightOne) {
  EXPECT_EQ(panel_.EventType(), 6);
  EXPECT_EQ(panel_.objectName(), "fraEvents(6)");
  EXPECT_EQ(panel_.title(), "Move Camera");
  EXPECT_EQ(Caption("optCameraPosition"), "Predefined Camera Position:");
  EXPECT_EQ(Caption("optCameraRandom"), "Random Camera Position");
  EXPECT_EQ(Caption("optCameraSpecific"), "Specify Camera Position");
  EXPECT_EQ(Caption("cmdEditCamera"), "Edit Camera Properties...");
  EXPECT_EQ(LabelOf("cboCameraTransition"), "Camera Transition:");
  EXPECT_EQ(Spoken("cboCameraPosition"), "Predefined Camera Position:");
}

TEST_F(CameraPanelTest, TabGoesThroughThePanelFromTopToBottom) {
  EXPECT_EQ(TabOrder(), (Names{"optCameraPosition", "cboCameraPosition", "cboCameraTransition"}));
  Click("optCameraSpecific");
  EXPECT_EQ(TabOrder(), (Names{"optCameraSpecific", "cmdEditCamera", "cboCameraTransition"}));
}

TEST_F(CameraPanelTest, ANewEventHasAPredefinedPositionThatIsStillToBeChosen) {
  EXPECT_TRUE(IsSet("optCameraPosition"));
  EXPECT_FALSE(IsSet("optCameraRandom"));
  EXPECT_FALSE(IsSet("optCameraSpecific"));
  EXPECT_EQ(Combo("cboCameraPosition").ListCount(), 15);
  EXPECT_EQ(Combo("cboCameraPosition").List(0), "Side, Tight");
  EXPECT_EQ(Combo("cboCameraPosition").List(14), "Below, Looking Up");
  EXPECT_EQ(Combo("cboCameraPosition").ListIndex(), -1);
  EXPECT_EQ(Combo("cboCameraTransition").ListCount(), 2);
  EXPECT_EQ(Combo("cboCameraTransition").List(0), "Jump");
  EXPECT_EQ(Combo("cboCameraTransition").List(1), "Spline");
  EXPECT_EQ(Combo("cboCameraTransition").ListIndex(), -1);
  EXPECT_FALSE(Combo("cboCameraPosition").isEditable());
  EXPECT_FALSE(Combo("cboCameraTransition").isEditable());
}

TEST_F(CameraPanelTest, EachOptionEnablesWhatBelongsToIt) {
  EXPECT_TRUE(IsEnabled("cboCameraPosition"));
  EXPECT_FALSE(IsEnabled("cmdEditCamera"));
  Click("optCameraSpecific");
  EXPECT_FALSE(IsEnabled("cboCameraPosition"));
  EXPECT_TRUE(IsEnabled("cmdEditCamera"));
  Click("optCameraRandom");
  EXPECT_FALSE(IsEnabled("cboCameraPosition"));
  EXPECT_FALSE(IsEnabled("cmdEditCamera"));
  Click("optCameraPosition");
  EXPECT_TRUE(IsEnabled("cboCameraPosition"));
}

TEST_F(CameraPanelTest, TheButtonShowsTheCameraPropertiesModalAndWithoutOwner) {
  Click("optCameraSpecific");
  const WhenModal user([](QWidget& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmCameraProperties");
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.parentWidget(), nullptr);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Focus(Button("cmdEditCamera"));
  QTest::keyClick(&Button("cmdEditCamera"), Qt::Key_Space);
  EXPECT_TRUE(IsSet("optCameraSpecific"));
}

TEST_F(CameraPanelTest, OkInTheCameraPropertiesLeavesTheEventAsItWas) {
  EventItem item;
  auto& camera = item.SetEventObject(kMoveCamera, Full());
  panel_.LoadEvent(item);
  Click("optCameraSpecific");
  const WhenModal user([](QWidget& dialog) {
    const QList<QLineEdit*> fields = dialog.findChildren<QLineEdit*>();
    EXPECT_GE(fields.size(), 12);
    for (QLineEdit* field : fields) field->setText("77");
    ControlNamed<QtComboBox>(dialog, "cboCameraActor").SetText("Zoe");
    QTest::mouseClick(&ControlNamed<QRadioButton>(dialog, "Option1"), Qt::LeftButton, {},
                      QPoint(8, 8));
    QTest::mouseClick(&ControlNamed<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
  });
  Focus(Button("cmdEditCamera"));
  QTest::keyClick(&Button("cmdEditCamera"), Qt::Key_Space);
  EXPECT_EQ(FieldsOf(camera), FieldsOf(Full()));
  EXPECT_EQ(item.As<EventMoveCamera>(), &camera);
  EXPECT_TRUE(IsSet("optCameraSpecific"));
  EXPECT_EQ(Combo("cboCameraTransition").Text(), "Spline");
}

TEST_F(CameraPanelTest, WhatWasTypedInTheCameraPropertiesIsNotStored) {
  Show(Full());
  Click("optCameraSpecific");
  const WhenModal user([](QWidget& dialog) {
    for (QLineEdit* field : dialog.findChildren<QLineEdit*>()) field->setText("77");
    QTest::mouseClick(&ControlNamed<QPushButton>(dialog, "cmdOK"), Qt::LeftButton);
  });
  Focus(Button("cmdEditCamera"));
  QTest::keyClick(&Button("cmdEditCamera"), Qt::Key_Space);
  EventMoveCamera expected;
  expected.cameraType = EventMoveCamera::kActor;
  expected.cameraTransition = 1;
  EXPECT_EQ(FieldsOf(Stored<EventMoveCamera>()), FieldsOf(expected));
}

TEST_F(CameraPanelTest, APredefinedPositionHasToBeChosenAndTheOthersNeedNothing) {
  EXPECT_FALSE(IsComplete());
  changed_.clear();
  Focus(Combo("cboCameraPosition"));
  QTest::keyClick(&Combo("cboCameraPosition"), Qt::Key_Down);
  EXPECT_EQ(changed_.size(), 1);
  EXPECT_TRUE(IsComplete());
  Combo("cboCameraPosition").SetListIndex(-1);
  EXPECT_FALSE(IsComplete());
  Click("optCameraRandom");
  EXPECT_TRUE(IsComplete());
  Click("optCameraPosition");
  EXPECT_FALSE(IsComplete());
  Click("optCameraSpecific");
  EXPECT_TRUE(IsComplete());
}

TEST_F(CameraPanelTest, AChoiceOfTheTransitionAsksWhetherTheEventIsComplete) {
  changed_.clear();
  Combo("cboCameraTransition").SetListIndex(1);
  EXPECT_EQ(changed_.size(), 1);
}

TEST_F(CameraPanelTest, APredefinedPositionIsStoredWithItsTransition) {
  Combo("cboCameraPosition").SetListIndex(6);
  Combo("cboCameraTransition").SetListIndex(1);
  const auto& stored = Stored<EventMoveCamera>();
  EXPECT_EQ(stored.cameraType, 0);
  EXPECT_EQ(stored.cameraPosition, 6);
  EXPECT_EQ(stored.cameraTransition, 1);
}

TEST_F(CameraPanelTest, ATransitionThatWasNotChosenIsStoredAsNone) {
  Combo("cboCameraPosition").SetListIndex(0);
  EXPECT_EQ(Stored<EventMoveCamera>().cameraTransition, -1);
}

TEST_F(CameraPanelTest, ARandomPositionIsStoredAsTypeThree) {
  Click("optCameraRandom");
  Combo("cboCameraTransition").SetListIndex(0);
  EXPECT_EQ(Stored<EventMoveCamera>().cameraType, 3);
  EXPECT_EQ(Stored<EventMoveCamera>().cameraTransition, 0);
}

TEST_F(CameraPanelTest, ASpecificPositionIsStoredAsTypeTwo) {
  Click("optCameraSpecific");
  EXPECT_EQ(Stored<EventMoveCamera>().cameraType, 2);
}

TEST_F(CameraPanelTest, APredefinedPositionIsShownAndStoredBackAsItWas) {
  Click("optCameraRandom");
  Show(Camera(0, 14, 1));
  EXPECT_TRUE(IsSet("optCameraPosition"));
  EXPECT_TRUE(IsEnabled("cboCameraPosition"));
  EXPECT_EQ(Combo("cboCameraPosition").Text(), "Below, Looking Up");
  EXPECT_EQ(Combo("cboCameraTransition").Text(), "Spline");
  EXPECT_TRUE(IsComplete());
  EXPECT_EQ(Stored<EventMoveCamera>().cameraPosition, 14);
  EXPECT_EQ(Stored<EventMoveCamera>().cameraTransition, 1);
}

TEST_F(CameraPanelTest, ARandomPositionIsShown) {
  Show(Camera(3, 5, 0));
  EXPECT_TRUE(IsSet("optCameraRandom"));
  EXPECT_FALSE(IsEnabled("cboCameraPosition"));
  EXPECT_EQ(Combo("cboCameraPosition").ListIndex(), -1);
  EXPECT_EQ(Combo("cboCameraTransition").Text(), "Jump");
  EXPECT_EQ(Stored<EventMoveCamera>().cameraType, 3);
}

TEST_F(CameraPanelTest, ANewEventAfterARandomOneIsPredefinedAgain) {
  Show(Camera(3, 0, 0));
  ShowForNew();
  EXPECT_TRUE(IsSet("optCameraPosition"));
  EXPECT_TRUE(IsEnabled("cboCameraPosition"));
}

TEST_F(CameraPanelTest, AnEventOfTypeOneOrTwoCannotBeOpened) {
  EXPECT_EQ(ErrorOf([this] { Show(Camera(1, 0, 0)); }), RuntimeError::kObjectVariableNotSet);
  EXPECT_EQ(ErrorOf([this] { Show(Camera(2, 0, 0)); }), RuntimeError::kObjectVariableNotSet);
}

TEST_F(CameraPanelTest, ClearingTakesBothChoicesBack) {
  Combo("cboCameraPosition").SetListIndex(3);
  Combo("cboCameraTransition").SetListIndex(1);
  panel_.ClearFields();
  EXPECT_EQ(Combo("cboCameraPosition").ListIndex(), -1);
  EXPECT_EQ(Combo("cboCameraTransition").ListIndex(), -1);
}

}  // namespace
}  // namespace parlate
