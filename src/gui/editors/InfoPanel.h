#pragma once

#include <QLabel>
#include <QString>
#include <string>

#include "general/Date.h"

class QFormLayout;

namespace parlate {

/// A panel of a form that shows a value and takes none, with the label before it.
void SetUpInfoPanel(QLabel& panel, const char* name, QLabel& label, const QString& caption);

/// Shows a value, which is read out behind the caption of the panel's label.
void ShowInfo(QLabel& panel, const QLabel& label, const QString& value);

/// The panels that tell when something was made and last changed, and by whom.
class StampPanels {
 public:
  explicit StampPanels(QWidget& page);

  /// Shows the stamps of a file or of a conversation.
  template <class Record>
  void Show(const Record& record) {
    Show(record.CreationDate, record.CreatedBy, record.LastUpdated, record.LastUpdatedBy);
  }
  void AddTo(QFormLayout& rows);

 private:
  void Show(Date created, const std::string& createdBy, Date updated, const std::string& updatedBy);

  // In the order in which Tab visits them.
  QLabel lblCreationDate;
  QLabel panCreationDate;
  QLabel lblCreatedBy;
  QLabel panCreatedBy;
  QLabel lblLastUpdated;
  QLabel panLastUpdated;
  QLabel lblLastUpdatedBy;
  QLabel panLastUpdatedBy;
};

}  // namespace parlate
