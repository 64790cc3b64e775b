#pragma once

#include <functional>

#include "widgets/MultiColumnList.h"

namespace parlate {

/// Calls back when Space is pressed in the list, which does what a double click on the selected row
/// does.
void OnSpaceIn(MultiColumnList& list, const std::function<void()>& act);

}  // namespace parlate
