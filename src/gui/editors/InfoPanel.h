#pragma once

#include <QString>

class QLabel;

namespace parlate {

/// A panel of a form that shows a value and takes none, with the label before it.
void SetUpInfoPanel(QLabel& panel, const char* name, QLabel& label, const QString& caption);

/// Shows a value, which is read out behind the caption of the panel's label.
void ShowInfo(QLabel& panel, const QLabel& label, const QString& value);

}  // namespace parlate
