#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <utility>

#include "general/RuntimeError.h"

namespace parlate {
namespace {

TEST(RuntimeError, HasTheClassicDescriptionOfItsNumber) {
  const std::pair<int, const char*> descriptions[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {7, "Out of memory"},
      {9, "Subscript out of range"},
      {13, "Type mismatch"},
      {53, "File not found"},
      {57, "Device I/O error"},
      {58, "File already exists"},
      {61, "Disk full"},
      {62, "Input past end of file"},
      {67, "Too many files"},
      {70, "Permission denied"},
      {75, "Path/File access error"},
      {76, "Path not found"},
      {91, "Object variable or With block variable not set"},
      {438, "Object doesn't support this property or method"},
      {457, "This key is already associated with an element of this collection"},
      {1, "Application-defined or object-defined error"}};
  for (const auto& [number, description] : descriptions) {
    const RuntimeError error(number);
    EXPECT_EQ(error.Number(), number);
    EXPECT_EQ(error.Description(), description);
    EXPECT_EQ(error.Detail(), description) << "nothing more is known";
  }
}

TEST(RuntimeError, TellsItsPathItsDetailAndItsPlace) {
  RuntimeError error(RuntimeError::kInputPastEndOfFile, "string of 9 bytes is too long");
  EXPECT_EQ(error.Description(), "Input past end of file");
  EXPECT_STREQ(error.what(), "string of 9 bytes is too long");
  EXPECT_EQ(error.RecordPath(), "");
  error.AddRecord("event 5");
  error.AddRecord("conversation 3 of 12");
  error.SetOffset(4711);
  EXPECT_EQ(error.RecordPath(), "conversation 3 of 12, event 5");
  EXPECT_EQ(error.Offset(), 4711U);
  EXPECT_STREQ(error.what(),
               "conversation 3 of 12, event 5, string of 9 bytes is too long (offset 4711)");
}

TEST(RuntimeError, TranslatesSystemErrors) {
  const std::pair<int, int> numbers[] = {{ENOENT, 53}, {ENOTDIR, 76}, {EACCES, 70}, {EPERM, 70},
                                         {EISDIR, 75}, {EROFS, 75},   {EMFILE, 67}, {ENFILE, 67},
                                         {ENOSPC, 61}, {EDQUOT, 61},  {EFBIG, 61},  {EEXIST, 58},
                                         {ENOMEM, 7},  {EIO, 57},     {EBADF, 57}};
  for (const auto& [systemError, number] : numbers) {
    EXPECT_EQ(ErrorNumberOfErrno(systemError), number) << "errno " << systemError;
  }
}

TEST(ResumeNext, DropsARuntimeErrorAndSaysSo) {
  int steps = 0;
  EXPECT_FALSE(ResumeNext([&] {
    ++steps;
    throw RuntimeError(RuntimeError::kOverflow);
  }));
  EXPECT_TRUE(ResumeNext([&] { ++steps; }));
  EXPECT_EQ(steps, 2);
}

}  // namespace
}  // namespace parlate
