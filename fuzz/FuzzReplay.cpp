// Runs the fuzzer's checks over files, and over all files of folders, that are named on the
// command line. It needs no fuzzer, so that a finding can be looked at with any compiler.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "CheckLoad.h"

namespace {

std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& path) {
  if (!std::filesystem::is_directory(path)) return {path};
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(path)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

bool Replay(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    std::fprintf(stderr, "cannot read %s\n", path.c_str());
    return false;
  }
  const std::string bytes(std::istreambuf_iterator<char>(in), {});
  std::printf("%s: %zu bytes\n", path.c_str(), bytes.size());
  std::fflush(stdout);  // the name is to be seen when the check ends the program
  parlate::fuzzing::CheckLoad(bytes);
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  int replayed = 0;
  for (int i = 1; i < argc; ++i) {
    for (const std::filesystem::path& file : FilesIn(argv[i])) {
      if (!Replay(file)) return 2;
      ++replayed;
    }
  }
  std::printf("%d files\n", replayed);
  return replayed > 0 ? 0 : 2;
}
