#include "mainwindow/Icons.h"

// The pictures are in a static library, so the program has to ask for them once. The request may
// not stand in a namespace.
static void RegisterPictures() { Q_INIT_RESOURCE(icons); }

namespace parlate {

QString IconPath(const QString& name) {
  RegisterPictures();
  return QStringLiteral(":/icons/%1.svg").arg(name);
}

QIcon Icon(const QString& name) { return QIcon(IconPath(name)); }

}  // namespace parlate
