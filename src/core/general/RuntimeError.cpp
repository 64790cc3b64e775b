#include "general/RuntimeError.h"

#include <cerrno>
#include <utility>

namespace parlate {

std::string ErrorDescription(int number) {
  switch (number) {
    case RuntimeError::kInvalidProcedureCall:
      return "Invalid procedure call or argument";
    case RuntimeError::kOverflow:
      return "Overflow";
    case RuntimeError::kOutOfMemory:
      return "Out of memory";
    case RuntimeError::kSubscriptOutOfRange:
      return "Subscript out of range";
    case RuntimeError::kTypeMismatch:
      return "Type mismatch";
    case RuntimeError::kFileNotFound:
      return "File not found";
    case RuntimeError::kDeviceIoError:
      return "Device I/O error";
    case RuntimeError::kFileAlreadyExists:
      return "File already exists";
    case RuntimeError::kDiskFull:
      return "Disk full";
    case RuntimeError::kInputPastEndOfFile:
      return "Input past end of file";
    case RuntimeError::kTooManyFiles:
      return "Too many files";
    case RuntimeError::kPermissionDenied:
      return "Permission denied";
    case RuntimeError::kPathFileAccessError:
      return "Path/File access error";
    case RuntimeError::kPathNotFound:
      return "Path not found";
    case RuntimeError::kObjectVariableNotSet:
      return "Object variable or With block variable not set";
    case RuntimeError::kNoSuchOperation:
      return "Object doesn't support this property or method";
    case RuntimeError::kPrinterError:
      return "Printer error";
    case RuntimeError::kKeyAlreadyAssociated:
      return "This key is already associated with an element of this collection";
    default:
      return "Application-defined or object-defined error";
  }
}

int ErrorNumberOfErrno(int systemError) {
  switch (systemError) {
    case ENOENT:
      return RuntimeError::kFileNotFound;
    case ENOTDIR:
      return RuntimeError::kPathNotFound;
    case EACCES:
    case EPERM:
      return RuntimeError::kPermissionDenied;
    case EISDIR:
    case EROFS:
      return RuntimeError::kPathFileAccessError;
    case EMFILE:
    case ENFILE:
      return RuntimeError::kTooManyFiles;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return RuntimeError::kDiskFull;
    case EEXIST:
      return RuntimeError::kFileAlreadyExists;
    case ENOMEM:
      return RuntimeError::kOutOfMemory;
    default:
      return RuntimeError::kDeviceIoError;
  }
}

RuntimeError::RuntimeError(int number) : number_(number), description_(ErrorDescription(number)) {
  BuildWhat();
}

RuntimeError::RuntimeError(int number, std::string detail)
    : number_(number), description_(ErrorDescription(number)), detail_(std::move(detail)) {
  BuildWhat();
}

void RuntimeError::SetOffset(std::uint64_t offset) {
  offset_ = offset;
  BuildWhat();
}

void RuntimeError::AddRecord(const std::string& record) {
  recordPath_ = recordPath_.empty() ? record : record + ", " + recordPath_;
  BuildWhat();
}

void RuntimeError::BuildWhat() {
  what_ = recordPath_.empty() ? Detail() : recordPath_ + ", " + Detail();
  if (offset_) what_ += " (offset " + std::to_string(*offset_) + ")";
}

}  // namespace parlate
