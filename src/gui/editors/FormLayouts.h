#pragma once

class QHBoxLayout;
class QPushButton;
class QTabWidget;
class QWidget;

namespace parlate {

/// The two buttons at the foot of a form, at its right edge. The layout goes to the form's own.
[[nodiscard]] QHBoxLayout* FootButtons(QPushButton& cmdOK, QPushButton& cmdCancel);

/// A form that consists of its tabs, with the two buttons below them.
void LayOutTabs(QWidget& form, QTabWidget& tabs, QPushButton& cmdOK, QPushButton& cmdCancel);

}  // namespace parlate
