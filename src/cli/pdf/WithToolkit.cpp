#include "cli/PdfPrinting.h"
#include "print/PdfSurface.h"

namespace parlate::cli {

PdfMaker PdfPrinting() {
  return [](std::shared_ptr<ByteSink> out) { return MakePdfSurface(std::move(out), "PDF"); };
}

}  // namespace parlate::cli
