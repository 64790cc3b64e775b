#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "platform/FontSetup.h"

namespace parlate {
namespace {

/// Contrast of two colours, 1 for none to 21 for black on white.
double Contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& color) {
    const auto linear = [](double part) {
      return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
  };
  const auto [low, high] = std::minmax({luminance(one), luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

class PaletteTest : public ::testing::TestWithParam<ColorScheme> {
 protected:
  double ContrastOf(QPalette::ColorGroup group, QPalette::ColorRole text,
                    QPalette::ColorRole ground) const {
    return Contrast(palette_.color(group, text), palette_.color(group, ground));
  }

  QPalette palette_ = PaletteFor(GetParam());
};

TEST_P(PaletteTest, EveryTextIsLegibleOnItsGround) {
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    EXPECT_GT(ContrastOf(group, QPalette::WindowText, QPalette::Window), 7);
    EXPECT_GT(ContrastOf(group, QPalette::Text, QPalette::Base), 7);
    EXPECT_GT(ContrastOf(group, QPalette::Text, QPalette::AlternateBase), 7);
    EXPECT_GT(ContrastOf(group, QPalette::ButtonText, QPalette::Button), 6);
    EXPECT_GT(ContrastOf(group, QPalette::ToolTipText, QPalette::ToolTipBase), 6);
    EXPECT_GT(ContrastOf(group, QPalette::HighlightedText, QPalette::Highlight), 4);
    EXPECT_GT(ContrastOf(group, QPalette::PlaceholderText, QPalette::Base), 4);
    EXPECT_GT(ContrastOf(group, QPalette::Link, QPalette::Base), 4.5);
  }
}

TEST_P(PaletteTest, DisabledTextIsFainterButStillThere) {
  EXPECT_NE(palette_.color(QPalette::Disabled, QPalette::Text),
            palette_.color(QPalette::Active, QPalette::Text));
  EXPECT_GT(ContrastOf(QPalette::Disabled, QPalette::WindowText, QPalette::Window), 2.5);
  EXPECT_GT(ContrastOf(QPalette::Disabled, QPalette::Text, QPalette::Base), 2.5);
  EXPECT_GT(ContrastOf(QPalette::Disabled, QPalette::ButtonText, QPalette::Button), 2.2);
}

TEST_P(PaletteTest, NoRoleIsLeftToTheSystem) {
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    if (role == QPalette::NoRole) continue;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      EXPECT_TRUE(palette_.isBrushSet(group, static_cast<QPalette::ColorRole>(role))) << role;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Schemes, PaletteTest,
                         ::testing::Values(ColorScheme::Light, ColorScheme::Dark));

class SchemeTest : public ::testing::Test {
 protected:
  void TearDown() override { qunsetenv("PARLATE_PALETTE"); }
};

TEST_F(SchemeTest, FollowsTheSystem) {
  EXPECT_EQ(SchemeFor(PaletteFor(ColorScheme::Light)), ColorScheme::Light);
  EXPECT_EQ(SchemeFor(PaletteFor(ColorScheme::Dark)), ColorScheme::Dark);
}

TEST_F(SchemeTest, TheEnvironmentDecidesBeforeTheSystem) {
  qputenv("PARLATE_PALETTE", "dark");
  EXPECT_EQ(SchemeFor(PaletteFor(ColorScheme::Light)), ColorScheme::Dark);
  qputenv("PARLATE_PALETTE", "Light");
  EXPECT_EQ(SchemeFor(PaletteFor(ColorScheme::Dark)), ColorScheme::Light);
  qputenv("PARLATE_PALETTE", "mauve");
  EXPECT_EQ(SchemeFor(PaletteFor(ColorScheme::Dark)), ColorScheme::Dark);
}

TEST_F(SchemeTest, TheLookReachesWindowsAndToolTips) {
  const QPalette before = QApplication::palette();
  const QPalette tipsBefore = QToolTip::palette();
  const QFont fontBefore = QApplication::font();
  qputenv("PARLATE_PALETTE", "dark");
  ApplyLook();
  const QPalette dark = PaletteFor(ColorScheme::Dark);
  EXPECT_EQ(QApplication::style()->name(), "fusion");
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), dark.color(QPalette::Window));
  EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), dark.color(QPalette::ToolTipBase));
  EXPECT_EQ(QWidget().palette().color(QPalette::Disabled, QPalette::Text),
            dark.color(QPalette::Disabled, QPalette::Text));
  QApplication::setPalette(before);
  QToolTip::setPalette(tipsBefore);
  QApplication::setFont(fontBefore);
}

TEST(ListFont, IsTheOneOfTheListsOrTheNearestToIt) {
  const QFont font = ListFont();
  EXPECT_EQ(font.families().constFirst(), "MS Sans Serif");
  EXPECT_EQ(font.pointSize(), 8);
  const QString family = QFontInfo(font).family();
  EXPECT_TRUE(font.families().contains(family)) << family.toStdString();
}

}  // namespace
}  // namespace parlate
