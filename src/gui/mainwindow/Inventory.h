#pragma once

#include <QJsonObject>

class QWidget;

namespace parlate {

/// What stands on a form: its named controls in the order in which Tab visits them, its menus and
/// its popups with all their items. Controls without a name are the inside of another one and are
/// left out. The form need not be on the screen: "visible" says whether a control is shown once its
/// form is.
///
///   form, caption, controls: [control], menus: [item], popups: [item]
///   control: name, kind, text, toolTip, shortcut, accessibleName, enabled, visible;
///            items of a tool bar or list
///   item:    name, kind, text, toolTip, shortcut, enabled, visible, checked; items of a submenu
[[nodiscard]] QJsonObject Inventory(QWidget& form);

}  // namespace parlate
