#include "general/Prompts.h"

#include "general/RuntimeError.h"

namespace parlate {

MessageBox BoxOf(const RuntimeError& error) {
  return {"", "Error " + std::to_string(error.Number()) + ": " + error.Description(),
          MessageBox::Icon::None, MessageBox::Buttons::Ok};
}

}  // namespace parlate
