#include "mainwindow/SvgPicture.h"

#include <QPainter>

namespace parlate {

SvgPicture::SvgPicture(const QString& resource, QSize size, QWidget* parent)
    : QWidget(parent), renderer_(resource), size_(size) {
  renderer_.setAspectRatioMode(Qt::KeepAspectRatio);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SvgPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  renderer_.render(&painter, QRectF(rect()));
}

}  // namespace parlate
