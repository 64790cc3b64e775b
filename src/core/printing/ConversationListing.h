#pragma once

#include <functional>
#include <string>

#include "model/printing/PrintPages.h"

namespace parlate {

/// The listing of a file: the conversations below their owners, names only. Pages change without a
/// footer, and are not counted.
class ConversationListing {
 public:
  /// `fileName` without its folder.
  ConversationListing(PrintPages& pages, std::string fileName);

  /// Starts the first page.
  void Begin();
  void PrintListingSection(const std::string& owner);
  void PrintConversationName(const std::string& conName);

 private:
  void PrintListingHeader(bool bContinued);

  PrintPages& pages_;
  std::string fileName_;
};

}  // namespace parlate
