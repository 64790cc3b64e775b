#include "widgets/ListHeads.h"

#include <QPainter>
#include <QStyleOptionHeader>
#include <algorithm>

namespace parlate {

ListHeads::ListHeads(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

void ListHeads::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  const int end = length() - offset();
  if (end >= viewport()->width()) return;
  QStyleOptionHeader empty;
  initStyleOption(&empty);
  empty.rect = viewport()->rect();
  empty.rect.setLeft(std::max(end, 0));
  empty.position = QStyleOptionHeader::End;
  QPainter painter(viewport());
  style()->drawControl(QStyle::CE_HeaderSection, &empty, &painter, this);
}

}  // namespace parlate
