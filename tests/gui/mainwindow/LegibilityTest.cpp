// Whether every form shows its texts whole, in both palettes. The tests run at 100 and at 200
// percent of the screen's scale.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>

#include "mainwindow/FormInventory.h"
#include "platform/FontSetup.h"

namespace parlate {
namespace {

std::string NameOf(const QWidget& control) { return control.objectName().toStdString(); }

/// Whether a text that stands on one line, or that the control wraps, has the room it takes.
bool ShowsItsText(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) {
    if (label->text().isEmpty()) return true;
    if (label->wordWrap()) return label->height() >= label->heightForWidth(label->width());
  }
  if (const auto* button = qobject_cast<const QPushButton*>(&control)) {
    // A small button beside a field is narrower than the style makes it for itself.
    const QString text = QString(button->text()).remove(u'&');
    const QSize needed = button->fontMetrics().size(0, text);
    return button->width() > needed.width() && button->height() > needed.height();
  }
  const QSize wanted = control.sizeHint();
  return control.width() >= wanted.width() && control.height() >= wanted.height();
}

template <class Control>
void ExpectTextsWhole(const QWidget& form) {
  for (const Control* control : form.findChildren<Control*>()) {
    const bool shown = control->isVisible() && !control->objectName().startsWith("qt_");
    if (!shown || control->objectName().isEmpty()) continue;
    EXPECT_TRUE(ShowsItsText(*control))
        << NameOf(form) << "." << NameOf(*control) << " has " << control->width() << " x "
        << control->height() << " and takes " << control->sizeHint().width() << " x "
        << control->sizeHint().height();
    EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry()))
        << NameOf(form) << "." << NameOf(*control) << " is cut off";
  }
}

void ExpectWhole(const QWidget& form) {
  ExpectTextsWhole<QLabel>(form);
  ExpectTextsWhole<QAbstractButton>(form);
}

class FormIn : public testing::TestWithParam<ColorScheme> {
 protected:
  FormIn() { QApplication::setPalette(PaletteFor(GetParam())); }
  ~FormIn() override { QApplication::setPalette(PaletteFor(ColorScheme::Light)); }
};

TEST_P(FormIn, EitherPaletteShowsEveryTextWhole) {
  for (const FormFactory& factory : AllForms()) {
    const std::unique_ptr<QWidget> form = factory.load();
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(form.get())) << factory.name.toStdString();
    ExpectWhole(*form);
    for (auto* stack : form->findChildren<QStackedWidget*>()) {
      if (qobject_cast<QTabWidget*>(stack->parentWidget()) != nullptr) continue;
      for (int i = 0; i < stack->count(); ++i) {
        stack->setCurrentIndex(i);
        QTest::qWait(0);
        ExpectWhole(*form);
      }
    }
    // What stands behind the other tabs is laid out when it is shown.
    for (auto* tabs : form->findChildren<QTabWidget*>()) {
      for (int i = 0; i < tabs->count(); ++i) {
        tabs->setCurrentIndex(i);
        QTest::qWait(0);
        ExpectWhole(*form);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Palettes, FormIn, testing::Values(ColorScheme::Light, ColorScheme::Dark),
                         [](const auto& each) {
                           return std::string(each.param == ColorScheme::Light ? "Light" : "Dark");
                         });

}  // namespace
}  // namespace parlate
