#include "mainwindow/Inventory.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSet>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QTreeView>

#include "mainwindow/SvgPicture.h"
#include "widgets/MultiColumnList.h"

namespace parlate {

namespace {

template <class... Classes>
bool IsA(const QObject& object) {
  return ((qobject_cast<const Classes*>(&object) != nullptr) || ...);
}

/// From the special to the general: every one of them is a widget, and many are frames.
QString KindOf(const QWidget& control) {
  if (IsA<QCheckBox>(control)) return QStringLiteral("check box");
  if (IsA<QRadioButton>(control)) return QStringLiteral("option button");
  if (IsA<QAbstractButton>(control)) return QStringLiteral("button");
  if (IsA<QComboBox>(control)) return QStringLiteral("combo box");
  if (IsA<QLineEdit, QPlainTextEdit, QTextEdit>(control)) return QStringLiteral("text");
  if (IsA<QAbstractSpinBox>(control)) return QStringLiteral("number");
  if (IsA<QListWidget>(control)) return QStringLiteral("list box");
  if (IsA<MultiColumnList>(control)) return QStringLiteral("multi-column list");
  if (IsA<QTreeView>(control)) return QStringLiteral("tree");
  if (IsA<QProgressBar>(control)) return QStringLiteral("progress bar");
  if (IsA<QTabWidget>(control)) return QStringLiteral("tabs");
  if (IsA<QToolBar>(control)) return QStringLiteral("tool bar");
  if (IsA<QStatusBar>(control)) return QStringLiteral("status bar");
  if (IsA<QMenuBar>(control)) return QStringLiteral("menu bar");
  if (IsA<SvgPicture>(control)) return QStringLiteral("picture");
  if (const auto* label = qobject_cast<const QLabel*>(&control)) {
    return label->pixmap().isNull() ? QStringLiteral("label") : QStringLiteral("picture");
  }
  if (IsA<QGroupBox, QFrame>(control)) return QStringLiteral("frame");
  return QString::fromLatin1(control.metaObject()->className());
}

QString TextOf(const QWidget& control) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* line = qobject_cast<const QLineEdit*>(&control)) return line->text();
  if (const auto* plain = qobject_cast<const QPlainTextEdit*>(&control)) {
    return plain->toPlainText();
  }
  if (const auto* rich = qobject_cast<const QTextEdit*>(&control)) return rich->toPlainText();
  if (const auto* combo = qobject_cast<const QComboBox*>(&control)) return combo->currentText();
  if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(&control)) return spin->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&control)) return group->title();
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&control)) {
    return tabs->tabText(tabs->currentIndex());
  }
  if (const auto* status = qobject_cast<const QStatusBar*>(&control)) {
    return status->currentMessage();
  }
  return {};
}

QString ShortcutOf(const QWidget& control) {
  const auto* button = qobject_cast<const QAbstractButton*>(&control);
  return button == nullptr ? QString() : button->shortcut().toString(QKeySequence::PortableText);
}

QJsonArray ItemsOf(const QList<QAction*>& actions, QSet<const QMenu*>& seen);

QJsonObject ItemOf(const QAction& action, QSet<const QMenu*>& seen) {
  const QMenu* menu = action.menu();
  const QString name = menu != nullptr ? menu->objectName() : action.objectName();
  QJsonObject item{{"name", name},
                   {"kind", menu != nullptr ? "menu" : "item"},
                   {"text", action.text()},
                   {"toolTip", action.toolTip()},
                   {"shortcut", action.shortcut().toString(QKeySequence::PortableText)},
                   {"enabled", action.isEnabled()},
                   {"visible", action.isVisible()}};
  if (action.isSeparator()) {
    item["kind"] = "separator";
    item["text"] = "-";
    item["toolTip"] = QString();
  }
  if (action.isCheckable()) item["checked"] = action.isChecked();
  if (menu != nullptr) {
    seen.insert(menu);
    item["items"] = ItemsOf(menu->actions(), seen);
  }
  return item;
}

QJsonArray ItemsOf(const QList<QAction*>& actions, QSet<const QMenu*>& seen) {
  QJsonArray items;
  for (const QAction* action : actions) items.append(ItemOf(*action, seen));
  return items;
}

/// The rows that can be chosen from, and for a tool bar its buttons.
QJsonArray ContentOf(const QWidget& control, QSet<const QMenu*>& seen) {
  QJsonArray content;
  if (const auto* toolBar = qobject_cast<const QToolBar*>(&control)) {
    // A widget in the bar is a control of its own.
    QList<QAction*> buttons = toolBar->actions();
    buttons.removeIf([toolBar](QAction* action) {
      const QWidget* widget = toolBar->widgetForAction(action);
      return widget != nullptr && !action->isSeparator() && !IsA<QAbstractButton>(*widget);
    });
    return ItemsOf(buttons, seen);
  }
  if (const auto* combo = qobject_cast<const QComboBox*>(&control)) {
    for (int i = 0; i < combo->count(); ++i) content.append(combo->itemText(i));
  }
  if (const auto* list = qobject_cast<const QListWidget*>(&control)) {
    for (int i = 0; i < list->count(); ++i) content.append(list->item(i)->text());
  }
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&control)) {
    for (int i = 0; i < tabs->count(); ++i) content.append(tabs->tabText(i));
  }
  if (const auto* list = qobject_cast<const MultiColumnList*>(&control)) {
    for (int i = 0; i < list->ColumnCount(); ++i) content.append(list->Head(i));
  }
  return content;
}

QJsonObject ControlOf(const QWidget& control, const QWidget& form, QSet<const QMenu*>& seen) {
  QJsonObject entry{{"name", control.objectName()},
                    {"kind", KindOf(control)},
                    {"text", TextOf(control)},
                    {"toolTip", control.toolTip()},
                    {"shortcut", ShortcutOf(control)},
                    {"accessibleName", control.accessibleName()},
                    {"enabled", control.isEnabledTo(&form)},
                    {"visible", control.isVisibleTo(&form)}};
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control);
      button != nullptr && button->isCheckable()) {
    entry["checked"] = button->isChecked();
  }
  const QJsonArray content = ContentOf(control, seen);
  if (!content.isEmpty()) entry["items"] = content;
  return entry;
}

/// Whether a widget is a control of the form and not a part that the toolkit made.
bool IsControl(const QWidget& widget) {
  const QString name = widget.objectName();
  return !name.isEmpty() && !name.startsWith(QStringLiteral("qt_")) && !IsA<QMenu>(widget);
}

QJsonArray ControlsOf(QWidget& form, QSet<const QMenu*>& seen) {
  QJsonArray controls;
  for (QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain()) {
    if (IsControl(*next)) controls.append(ControlOf(*next, form, seen));
  }
  return controls;
}

QJsonArray MenusOf(const QWidget& form, QSet<const QMenu*>& seen) {
  const auto* bar = form.findChild<QMenuBar*>();
  return bar == nullptr ? QJsonArray() : ItemsOf(bar->actions(), seen);
}

/// The menus that neither the menu bar nor another menu leads to.
QJsonArray PopupsOf(const QWidget& form, QSet<const QMenu*>& seen) {
  QSet<const QMenu*> submenus;
  const auto menus = form.findChildren<QMenu*>(QRegularExpression(QStringLiteral("^mnu")));
  for (const QMenu* menu : menus) ItemsOf(menu->actions(), submenus);
  QJsonArray popups;
  for (const QMenu* menu : menus) {
    if (seen.contains(menu) || submenus.contains(menu)) continue;
    popups.append(ItemOf(*menu->menuAction(), seen));
  }
  return popups;
}

}  // namespace

QJsonObject Inventory(QWidget& form) {
  QSet<const QMenu*> seen;
  QJsonObject inventory{{"form", form.objectName()}, {"caption", form.windowTitle()}};
  inventory["controls"] = ControlsOf(form, seen);
  const QJsonArray menus = MenusOf(form, seen);
  if (!menus.isEmpty()) inventory["menus"] = menus;
  const QJsonArray popups = PopupsOf(form, seen);
  if (!popups.isEmpty()) inventory["popups"] = popups;
  return inventory;
}

}  // namespace parlate
