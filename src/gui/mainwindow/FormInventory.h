#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

namespace parlate {

/// A form that can be loaded by itself, with settings of its own and nothing behind it.
struct FormFactory {
  QString name;
  std::function<std::unique_ptr<QWidget>()> load;
};

/// Every form of the program.
[[nodiscard]] std::vector<FormFactory> AllForms();

}  // namespace parlate
