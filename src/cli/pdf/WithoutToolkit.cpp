#include "cli/PdfPrinting.h"

namespace parlate::cli {

PdfMaker PdfPrinting() { return {}; }

}  // namespace parlate::cli
