#pragma once

#include <QObject>
#include <vector>

#include "widgets/MultiColumnList.h"

namespace parlate {

/// Lets the columns of a list fill its width, each with its share, whenever the list is resized.
class ColumnShares : public QObject {
  Q_OBJECT

 public:
  /// The list must outlive the object.
  ColumnShares(MultiColumnList& list, std::vector<int> shares);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  MultiColumnList& list_;
  std::vector<int> shares_;
};

}  // namespace parlate
