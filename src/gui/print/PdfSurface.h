#pragma once

#include <memory>
#include <string>

#include "general/BinaryFile.h"
#include "general/PrintSurface.h"

namespace parlate {

/// A PDF that is written to `out`. The page is A4, or Letter where the
/// locale says so. It needs no display. A byte that cannot be written is RuntimeError 482 at the
/// end of the document.
[[nodiscard]] std::unique_ptr<PrintSurface> MakePdfSurface(std::shared_ptr<ByteSink> out,
                                                           const std::string& deviceName);

}  // namespace parlate
