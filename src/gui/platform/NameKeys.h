#pragma once

class QLineEdit;

namespace parlate {

/// Drops every typed character that may not stand in a name. What is pasted is not looked at.
void KeepToNameKeys(QLineEdit& edit);

}  // namespace parlate
