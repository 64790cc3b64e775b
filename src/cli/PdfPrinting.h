#pragma once

#include "cli/Commands.h"

namespace parlate::cli {

/// What makes PDFs in this build; nothing in a build without the toolkit.
[[nodiscard]] PdfMaker PdfPrinting();

}  // namespace parlate::cli
