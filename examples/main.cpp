// Writes the example files, or tells whether a file on the disk is still what would be written.

#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

#include "Script.h"
#include "Stories.h"

namespace {

using parlate::example::Script;

constexpr int kSuccess = 0;
constexpr int kDifferent = 1;
constexpr int kFailure = 2;

std::string LanternQuay() {
  Script script;
  script.SetNotes(
      "Lantern Quay: the first night of a new lamp-lighter.\r\n"
      "Everybody on the quay has a reason to be eleven minutes late.\r\n"
      "\r\n"
      "The game sets LampsLit and LampSevenLit when the lamps are lit. Flags that no conversation "
      "asks for are read by the scenes – the gulls do remember who bowed to them.");
  script.SetMissions({1, 2});
  WriteLampHouse(script);
  WriteFerry(script);
  WriteNetSheds(script);
  WriteTower(script);
  WriteQuayside(script);
  return script.Bytes();
}

std::string BrokenLabels() {
  Script script;
  script.SetNotes("Broken on purpose: this file shows every colour a row can have.");
  script.SetMissions({0});
  WriteBrokenLabels(script);
  return script.Bytes();
}

int Write(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (file) return kSuccess;
  std::cerr << "parlate-example: " << path << " cannot be written\n";
  return kFailure;
}

int Check(const std::string& path, const std::string& bytes) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::cerr << "parlate-example: " << path << " cannot be read\n";
    return kFailure;
  }
  const std::string present{std::istreambuf_iterator<char>(file), {}};
  if (present == bytes) return kSuccess;
  std::cerr << "parlate-example: " << path << " is not what the example writes now\n";
  return kDifferent;
}

int Run(int argc, char** argv) {
  bool check = false;
  bool broken = false;
  std::string path;
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--check") {
      check = true;
    } else if (argument == "--broken-labels") {
      broken = true;
    } else if (argument.substr(0, 1) == "-" || !path.empty()) {
      path.clear();
      break;
    } else {
      path = argument;
    }
  }
  if (path.empty()) {
    std::cerr << "usage: parlate-example [--broken-labels] [--check] FILE\n";
    return kFailure;
  }
  const std::string bytes = broken ? BrokenLabels() : LanternQuay();
  return check ? Check(path, bytes) : Write(path, bytes);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "parlate-example: " << error.what() << '\n';
    return kFailure;
  }
}
