#include "mainwindow/Icons.h"

// The pictures are in a static library, so the program has to ask for them once. The request may
// not stand in a namespace.
static void RegisterPictures() { Q_INIT_RESOURCE(icons); }

namespace parlate {

QString IconPath(const QString& name) {
  RegisterPictures();
  return QStringLiteral(":/icons/%1.svg").arg(name);
}

QIcon Icon(const QString& name) {
  QIcon icon;
  // The same picture on a selected row: the style would tint it beyond recognition.
  for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
    icon.addFile(IconPath(name), QSize(), mode);
  }
  return icon;
}

}  // namespace parlate
