#pragma once

#include <QKeySequence>
#include <QString>

namespace parlate {

/// One item of a menu as the tables of the window tell it. A caption of "-" is a separator.
struct MenuItem {
  QString name;
  QString caption;
  QKeySequence shortcut = {};
  bool checkable = false;
};

}  // namespace parlate
