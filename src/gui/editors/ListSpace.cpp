#include "editors/ListSpace.h"

#include <QKeyEvent>

namespace parlate {

void OnSpaceIn(MultiColumnList& list, const std::function<void()>& act) {
  QObject::connect(&list, &MultiColumnList::keyPressedInList, &list, [act](QKeyEvent* event) {
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier) return;
    event->accept();
    act();
  });
}

}  // namespace parlate
