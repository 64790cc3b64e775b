#pragma once

#include "general/Prompts.h"

namespace parlate {

/// Message boxes of the toolkit, over the window that is active at the moment. A box without a
/// title shows the program's. Return presses the first button; Escape and closing the window mean
/// the most cautious one: Cancel, else No.
class QtMessageBoxes final : public MessageBoxes {
 public:
  Answer Show(const MessageBox& box) override;
};

}  // namespace parlate
