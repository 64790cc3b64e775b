#pragma once

#include <QHeaderView>

namespace parlate {

/// The heads of a list's columns. Where the columns end short of the list, an empty head goes on to
/// its edge, as the list below it does.
class ListHeads : public QHeaderView {
  Q_OBJECT

 public:
  explicit ListHeads(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace parlate
