#include "platform/FontSetup.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QStyleFactory>
#include <QToolTip>

namespace parlate {

namespace {

struct Colors {
  QColor window;
  QColor text;
  QColor base;
  QColor alternate;
  QColor button;
  QColor light;
  QColor midlight;
  QColor mid;
  QColor dark;
  QColor shadow;
  QColor highlight;
  QColor highlightedText;
  QColor link;
  QColor linkVisited;
  QColor placeholder;
  QColor disabledText;
  QColor disabledHighlight;
  QColor toolTip;
  QColor toolTipText;
};

Colors LightColors() {
  return {.window = QColor(0xf0, 0xf0, 0xf0),
          .text = QColor(0x14, 0x14, 0x14),
          .base = QColor(0xff, 0xff, 0xff),
          .alternate = QColor(0xf5, 0xf7, 0xfa),
          .button = QColor(0xf0, 0xf0, 0xf0),
          .light = QColor(0xff, 0xff, 0xff),
          .midlight = QColor(0xe3, 0xe3, 0xe3),
          .mid = QColor(0xb4, 0xb4, 0xb4),
          .dark = QColor(0x9a, 0x9a, 0x9a),
          .shadow = QColor(0x6a, 0x6a, 0x6a),
          .highlight = QColor(0x1f, 0x6f, 0xc4),
          .highlightedText = QColor(0xff, 0xff, 0xff),
          .link = QColor(0x0b, 0x57, 0xd0),
          .linkVisited = QColor(0x6b, 0x3f, 0xa0),
          .placeholder = QColor(0x6e, 0x6e, 0x6e),
          .disabledText = QColor(0x8a, 0x8a, 0x8a),
          .disabledHighlight = QColor(0xb8, 0xc4, 0xd2),
          .toolTip = QColor(0xff, 0xff, 0xe1),
          .toolTipText = QColor(0x14, 0x14, 0x14)};
}

Colors DarkColors() {
  return {.window = QColor(0x3a, 0x3c, 0x41),
          .text = QColor(0xec, 0xed, 0xee),
          .base = QColor(0x1f, 0x21, 0x24),
          .alternate = QColor(0x27, 0x29, 0x2d),
          .button = QColor(0x4c, 0x4f, 0x55),
          .light = QColor(0x6c, 0x70, 0x78),
          .midlight = QColor(0x58, 0x5c, 0x63),
          .mid = QColor(0x27, 0x29, 0x2c),
          .dark = QColor(0x17, 0x18, 0x1a),
          .shadow = QColor(0x0c, 0x0d, 0x0e),
          .highlight = QColor(0x2f, 0x7c, 0xd6),
          .highlightedText = QColor(0xff, 0xff, 0xff),
          .link = QColor(0x7a, 0xb8, 0xff),
          .linkVisited = QColor(0xc3, 0xa0, 0xf0),
          .placeholder = QColor(0x9c, 0xa0, 0xa6),
          .disabledText = QColor(0x8e, 0x92, 0x98),
          .disabledHighlight = QColor(0x4b, 0x55, 0x61),
          .toolTip = QColor(0x50, 0x54, 0x5b),
          .toolTipText = QColor(0xec, 0xed, 0xee)};
}

void SetSurfaces(QPalette& palette, const Colors& c) {
  palette.setColor(QPalette::Window, c.window);
  palette.setColor(QPalette::Base, c.base);
  palette.setColor(QPalette::AlternateBase, c.alternate);
  palette.setColor(QPalette::Button, c.button);
  palette.setColor(QPalette::Light, c.light);
  palette.setColor(QPalette::Midlight, c.midlight);
  palette.setColor(QPalette::Mid, c.mid);
  palette.setColor(QPalette::Dark, c.dark);
  palette.setColor(QPalette::Shadow, c.shadow);
  palette.setColor(QPalette::Highlight, c.highlight);
  palette.setColor(QPalette::ToolTipBase, c.toolTip);
}

void SetTexts(QPalette& palette, const Colors& c) {
  palette.setColor(QPalette::WindowText, c.text);
  palette.setColor(QPalette::Text, c.text);
  palette.setColor(QPalette::ButtonText, c.text);
  palette.setColor(QPalette::BrightText, QColor(0xff, 0xff, 0xff));
  palette.setColor(QPalette::HighlightedText, c.highlightedText);
  palette.setColor(QPalette::PlaceholderText, c.placeholder);
  palette.setColor(QPalette::Link, c.link);
  palette.setColor(QPalette::LinkVisited, c.linkVisited);
  palette.setColor(QPalette::ToolTipText, c.toolTipText);
}

void SetDisabled(QPalette& palette, const Colors& c) {
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::PlaceholderText, QPalette::Link, QPalette::LinkVisited}) {
    palette.setColor(QPalette::Disabled, role, c.disabledText);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, c.window);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, c.disabledHighlight);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, c.disabledText);
}

/// A desktop without a font of its own ends at this one, which is wide for the forms.
bool HasNoFontOfItsOwn(const QFont& font) {
  return QFontInfo(font).family() == QStringLiteral("DejaVu Sans");
}

}  // namespace

QFont ListFont() {
  QFont font;
  font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("Microsoft Sans Serif"),
                    QStringLiteral("Liberation Sans"), QStringLiteral("Arial"),
                    QStringLiteral("Nimbus Sans"), QStringLiteral("Noto Sans"),
                    QStringLiteral("DejaVu Sans")});
  font.setStyleHint(QFont::SansSerif);
  font.setPointSize(8);
  return font;
}

ColorScheme SchemeFor(const QPalette& system) {
  const QByteArray wish = qgetenv("PARLATE_PALETTE").toLower();
  if (wish == "dark") return ColorScheme::Dark;
  if (wish == "light") return ColorScheme::Light;
  const int text = system.color(QPalette::WindowText).lightness();
  return text > system.color(QPalette::Window).lightness() ? ColorScheme::Dark : ColorScheme::Light;
}

QPalette PaletteFor(ColorScheme scheme) {
  const Colors colors = scheme == ColorScheme::Dark ? DarkColors() : LightColors();
  QPalette palette;
  SetSurfaces(palette, colors);
  SetTexts(palette, colors);
  SetDisabled(palette, colors);
  return palette;
}

void ApplyLook() {
  // The style brings a palette along, so the system's is asked for first.
  const QPalette palette = PaletteFor(SchemeFor(QGuiApplication::palette()));
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
  const QString narrower = QStringLiteral("Liberation Sans");
  if (HasNoFontOfItsOwn(QApplication::font()) && QFontDatabase::hasFamily(narrower)) {
    QApplication::setFont(QFont(narrower, 10));
  }
}

}  // namespace parlate
