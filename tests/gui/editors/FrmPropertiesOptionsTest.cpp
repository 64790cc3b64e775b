// The tabs "Invoke" and "Options" of the conversation's properties.

#include "editors/PropertiesFixture.h"

namespace parlate {
namespace {

using namespace testing_support;

using FrmPropertiesOptions = PropertiesTest;

TEST_F(FrmPropertiesOptions, HoloCallClearsAndGreysFourOptionsAndBringsNoTickBack) {
  con_->bFirstPerson = con_->bNonInteractive = con_->bRandomCamera = true;
  con_->bCanBeInterrupted = con_->bDisplayOnce = con_->bCannotBeInterrupted = true;
  const auto four = {"chkNonInteractive", "chkFirstPerson", "chkRandomCamera",
                     "chkCanBeInterupted"};
  GoTo(kOptions);
  for (const char* box : four) EXPECT_TRUE(Box(box).isChecked() && Box(box).isEnabled()) << box;
  Tick("chkHoloCall");
  for (const char* box : four) EXPECT_FALSE(Box(box).isChecked() || Box(box).isEnabled()) << box;
  EXPECT_TRUE(Box("chkDisplayOnce").isChecked() && Box("chkDisplayOnce").isEnabled());
  EXPECT_TRUE(Box("chkCannotBeInterrupted").isChecked());
  Tick("chkHoloCall");
  for (const char* box : four) {
    EXPECT_FALSE(Box(box).isChecked()) << box;
    EXPECT_TRUE(Box(box).isEnabled()) << box;
  }
}

TEST_F(FrmPropertiesOptions, AHoloCallConversationOpensWithTheFourOptionsOff) {
  con_->bHoloCallCon = con_->bRandomCamera = true;
  EXPECT_TRUE(Box("chkHoloCall").isChecked());
  EXPECT_FALSE(Box("chkRandomCamera").isChecked());
  EXPECT_FALSE(IsEnabled("chkRandomCamera"));
}

TEST_F(FrmPropertiesOptions, TheDistanceIsForTheRadiusAlone) {
  con_->invokeRadius = 5;
  GoTo(kInvoke);
  EXPECT_EQ(The<QLineEdit>("txtInvokeRadius").text(), "");
  EXPECT_FALSE(IsEnabled("txtInvokeRadius"));
  EXPECT_FALSE(IsEnabled("lblInvokeRadius"));
  Tick("chkInvokeRadius");
  EXPECT_TRUE(IsEnabled("txtInvokeRadius"));
  EXPECT_TRUE(IsEnabled("lblInvokeRadius"));
  Tick("chkInvokeRadius");
  EXPECT_FALSE(IsEnabled("txtInvokeRadius"));
  EXPECT_FALSE(IsEnabled("lblInvokeRadius"));
}

TEST_F(FrmPropertiesOptions, AnEmptyDistanceStoresNought) {
  con_->invokeRadius = 5;
  GoTo(kInvoke);
  Tick("chkInvokeRadius");
  Click("cmdOK");
  EXPECT_TRUE(con_->bInvokeRadius);
  EXPECT_EQ(con_->invokeRadius, 0);
}

TEST_F(FrmPropertiesOptions, ADistanceWithoutItsTickStoresNought) {
  con_->bInvokeRadius = true;
  con_->invokeRadius = 320;
  GoTo(kInvoke);
  Tick("chkInvokeRadius");
  Click("cmdOK");
  EXPECT_FALSE(con_->bInvokeRadius);
  EXPECT_EQ(con_->invokeRadius, 0);
}

TEST_F(FrmPropertiesOptions, ADistanceThatTheFileCannotHoldKeepsTheFormOpen) {
  con_->bInvokeRadius = true;
  The<QLineEdit>("txtInvokeRadius").setText("99999999999");
  space_.messages.Expect(Answer::Ok);
  Click("cmdOK");
  ASSERT_EQ(space_.messages.shown.size(), 1U);
  const MessageBox& box = space_.messages.shown.back();
  EXPECT_EQ(box.title, "");
  EXPECT_EQ(box.text, "Error 6: Overflow");
  EXPECT_EQ(box.icon, MessageBox::Icon::None);
  EXPECT_EQ(box.buttons, MessageBox::Buttons::Ok);
  EXPECT_TRUE(Form().isVisible());
  EXPECT_TRUE(The<QLineEdit>("txtInvokeRadius").hasFocus());
  EXPECT_EQ(The<QLineEdit>("txtInvokeRadius").selectedText(), "99999999999");
  EXPECT_EQ(con_->invokeRadius, 0);
}

TEST_F(FrmPropertiesOptions, AHoloCallTakesTheOptionsThatItExcludesFromTheConversation) {
  con_->bNonInteractive = true;
  con_->bFirstPerson = true;
  con_->bRandomCamera = true;
  con_->bCanBeInterrupted = true;
  GoTo(kOptions);
  Tick("chkHoloCall");
  Click("cmdOK");
  EXPECT_TRUE(con_->bHoloCallCon);
  EXPECT_FALSE(con_->bNonInteractive);
  EXPECT_FALSE(con_->bFirstPerson);
  EXPECT_FALSE(con_->bRandomCamera);
  EXPECT_FALSE(con_->bCanBeInterrupted);
}

}  // namespace
}  // namespace parlate
