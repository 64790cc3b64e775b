#pragma once

#include <QIcon>
#include <QString>

namespace parlate {

/// A picture of the program's own by the name of its file, as "new" or "actor".
[[nodiscard]] QIcon Icon(const QString& name);

/// Where the picture lies among the program's resources.
[[nodiscard]] QString IconPath(const QString& name);

}  // namespace parlate
