#include "persistence/RecentFiles.h"

#include "general/CodePage.h"

namespace parlate {

void AddRecentFile(ConversationDefaults& defaults, const std::string& path) {
  constexpr int kLast = static_cast<int>(ConversationDefaults::kLastFileCount) - 1;
  if (path.empty()) return;
  int from = kLast;
  for (int i = 0; i <= kLast; ++i) {
    if (FoldCaseOfUtf8(defaults.LastFiles(i)) != FoldCaseOfUtf8(path)) continue;
    from = i;
    break;
  }
  for (int i = from; i > 0; --i) defaults.SetLastFiles(i, defaults.LastFiles(i - 1));
  defaults.SetLastFiles(0, path);
}

}  // namespace parlate
