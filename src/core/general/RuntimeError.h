#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>

namespace parlate {

/// A run-time error with its classic number and description. Every failure of the core is one.
class RuntimeError : public std::exception {
 public:
  static constexpr int kInvalidProcedureCall = 5;
  static constexpr int kOverflow = 6;
  static constexpr int kOutOfMemory = 7;
  static constexpr int kSubscriptOutOfRange = 9;
  static constexpr int kTypeMismatch = 13;
  static constexpr int kFileNotFound = 53;
  static constexpr int kDeviceIoError = 57;
  static constexpr int kFileAlreadyExists = 58;
  static constexpr int kDiskFull = 61;
  static constexpr int kInputPastEndOfFile = 62;
  static constexpr int kTooManyFiles = 67;
  static constexpr int kPermissionDenied = 70;
  static constexpr int kPathFileAccessError = 75;
  static constexpr int kPathNotFound = 76;
  static constexpr int kObjectVariableNotSet = 91;
  static constexpr int kNoSuchOperation = 438;
  static constexpr int kKeyAlreadyAssociated = 457;
  static constexpr int kPrinterError = 482;

  /// The description is the classic text of the number.
  explicit RuntimeError(int number);
  /// `detail` tells a reader of a log what exactly went wrong; the description stays the classic
  /// one.
  RuntimeError(int number, std::string detail);

  [[nodiscard]] int Number() const { return number_; }
  [[nodiscard]] const std::string& Description() const { return description_; }
  /// What went wrong in one line; the description when nothing more is known.
  [[nodiscard]] const std::string& Detail() const {
    return detail_.empty() ? description_ : detail_;
  }

  /// Place in the file that was read, in bytes from its start.
  [[nodiscard]] std::optional<std::uint64_t> Offset() const { return offset_; }
  void SetOffset(std::uint64_t offset);

  /// Puts the record that holds the failing one in front of the record path.
  void AddRecord(const std::string& record);
  /// As "conversation 3 of 12, event 5"; empty when no record was being read.
  [[nodiscard]] const std::string& RecordPath() const { return recordPath_; }

  [[nodiscard]] const char* what() const noexcept override { return what_.c_str(); }

 private:
  void BuildWhat();

  int number_;
  std::string description_;
  std::string detail_;
  std::string recordPath_;
  std::optional<std::uint64_t> offset_;
  std::string what_;
};

/// The classic description of an error number; a general text for a number outside the list.
[[nodiscard]] std::string ErrorDescription(int number);

/// The RuntimeError number of a system error, as left in errno.
[[nodiscard]] int ErrorNumberOfErrno(int systemError);

/// Runs one statement with run-time errors resumed at the next one: a failure ends `statement`
/// where it stands and is dropped. True if it ran to its end.
template <class Statement>
bool ResumeNext(Statement&& statement) {
  try {
    statement();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace parlate
