#include <gtest/gtest.h>

#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include "mainwindow/frmAbout.h"
#include "mainwindow/frmSplash.h"
#include "platform/Modal.h"

namespace parlate {
namespace {

void Show(QWidget& form) {
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
}

void ExpectVersion(const QLabel& label) {
  static const QRegularExpression version("^Version \\d+\\.\\d+\\.\\d+$");
  EXPECT_TRUE(version.match(label.text()).hasMatch()) << label.text().toStdString();
}

TEST(FrmSplash, ShowsTitleVersionPlatformAndPicture) {
  const frmSplash form;
  EXPECT_EQ(form.objectName(), "frmSplash");
  EXPECT_EQ(ControlNamed<QLabel>(form, "lblProductName").text(), "Parlate");
  EXPECT_EQ(ControlNamed<QLabel>(form, "lblPlatform").text(), "Windows 95/NT");
  ExpectVersion(ControlNamed<QLabel>(form, "lblVersion"));
  EXPECT_TRUE(ControlNamed<SvgPicture>(form, "imgLogo").IsLoaded());
}

TEST(FrmSplash, AnyKeyPutsItAway) {
  frmSplash form;
  Show(form);
  QTest::keyClick(&form, Qt::Key_A);
  EXPECT_FALSE(form.isVisible());
}

TEST(FrmSplash, AClickPutsItAway) {
  frmSplash form;
  Show(form);
  QTest::mouseClick(&ControlNamed<SvgPicture>(form, "imgLogo"), Qt::LeftButton);
  EXPECT_FALSE(form.isVisible());
}

TEST(FrmAbout, SaysWhatTheProgramIs) {
  const frmAbout form;
  EXPECT_EQ(form.objectName(), "frmAbout");
  EXPECT_EQ(form.windowTitle(), "About Parlate");
  EXPECT_EQ(ControlNamed<QLabel>(form, "lblTitle").text(), "Parlate");
  EXPECT_EQ(ControlNamed<QLabel>(form, "lblVersion").text(), VersionText());
  ExpectVersion(ControlNamed<QLabel>(form, "lblVersion"));
  EXPECT_FALSE(ControlNamed<QLabel>(form, "lblDescription").text().isEmpty());
  EXPECT_FALSE(ControlNamed<QLabel>(form, "lblDisclaimer").text().isEmpty());
  EXPECT_EQ(ControlNamed<QPushButton>(form, "cmdOK").text(), "OK");
  EXPECT_TRUE(ControlNamed<SvgPicture>(form, "picIcon").IsLoaded());
}

TEST(FrmAbout, NoTextIsCutOff) {
  frmAbout form;
  Show(form);
  for (const QLabel* label : form.findChildren<QLabel*>()) {
    EXPECT_GE(label->height(), label->heightForWidth(label->width()))
        << label->objectName().toStdString();
  }
}

TEST(FrmAbout, OkClosesIt) {
  frmAbout form;
  const WhenModal modal([](QWidget& window) {
    QTest::mouseClick(&ControlNamed<QPushButton>(window, "cmdOK"), Qt::LeftButton);
  });
  form.exec();
  EXPECT_TRUE(form.isHidden());
}

TEST(SvgPicture, APictureIsDrawnWithColours) {
  frmAbout form;
  Show(form);
  const QImage image = ControlNamed<SvgPicture>(form, "picIcon").grab().toImage();
  const QRgb corner = image.pixel(0, 0);
  int drawn = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) drawn += image.pixel(x, y) != corner ? 1 : 0;
  }
  EXPECT_GT(drawn, image.width() * image.height() / 10);
}

TEST(SvgPicture, AMissingOneIsNotLoaded) {
  EXPECT_FALSE(SvgPicture(":/icons/none.svg", QSize(8, 8)).IsLoaded());
}

}  // namespace
}  // namespace parlate
