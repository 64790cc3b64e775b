#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "model/Workspace.h"

namespace parlate::testing_support {

/// A table editor whose user does as the test says, or selects a row, or none.
class ScriptedTableEditor final : public TableEditor {
 public:
  std::int32_t EditTableDialog(std::int32_t tableType) override {
    opened.push_back(tableType);
    return user ? user() : chosen;
  }

  std::vector<std::int32_t> opened;
  std::int32_t chosen = -1;
  std::function<std::int32_t()> user;
};

}  // namespace parlate::testing_support
