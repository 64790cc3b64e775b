#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "general/BinaryFile.h"
#include "general/RuntimeError.h"

namespace parlate {

/// Writes lines of text, each of which ends with carriage return and line feed on every platform.
/// What was written before a failure reaches the sink when the writer ends.
class TextWriter {
 public:
  explicit TextWriter(ByteSink& sink);
  ~TextWriter();
  TextWriter(const TextWriter&) = delete;
  TextWriter& operator=(const TextWriter&) = delete;

  /// One line of several parts, which are texts. A line break within a part ends a line as well.
  template <class... Parts>
  void WriteLine(const Parts&... parts) {
    const std::size_t size = (std::string_view(parts).size() + ... + kLineEnd.size());
    if (size > buffer_.size() - used_ && !MakeRoom(size)) {
      (WriteAtOnce(parts), ...);
      WriteAtOnce(kLineEnd);
      return;
    }
    (Put(parts), ...);
    Put(kLineEnd);
  }

  /// Hands everything to the sink.
  void Flush();

 private:
  static constexpr std::string_view kLineEnd = "\r\n";

  /// False if no buffer could hold as much.
  bool MakeRoom(std::size_t size);
  void WriteAtOnce(std::string_view part);

  void Put(std::string_view part) {
    if (!part.empty()) std::memcpy(buffer_.data() + used_, part.data(), part.size());
    used_ += part.size();
  }

  ByteSink& sink_;
  std::vector<char> buffer_;
  std::size_t used_ = 0;
};

/// Reads lines of text. A line ends with carriage return and line feed, with either of the two
/// alone, or with the file; a line end at the very end starts no further line. All other bytes are
/// text: a byte-order mark and NUL bytes too. One line at a time is in memory.
class TextReader {
 public:
  /// No text of a conversation file can be longer.
  static constexpr std::size_t kLongestLine = INT32_MAX;

  explicit TextReader(ByteSource& source, std::size_t longestLine = kLongestLine);

  /// Whether no line is left. A file that could not be read on has no lines left.
  [[nodiscard]] bool AtEnd();
  /// Puts the next line, without its end, in place of `line`. RuntimeError 62 past the end, 7 for a
  /// line that is too long, 57 and so on for a device error; nothing can be read after the latter.
  void ReadLine(std::string& line);
  /// The 1-based number of the line that was read last; 0 before the first.
  [[nodiscard]] std::uint64_t LineNumber() const { return lineNumber_; }
  /// The failure that ended the reading before its time, if any.
  [[nodiscard]] const std::optional<RuntimeError>& Failure() const { return failure_; }

 private:
  bool Fill();
  void Append(std::string& line, std::size_t count);
  void SkipLineEnd();

  ByteSource& source_;
  std::size_t longestLine_;
  std::vector<char> window_;
  std::size_t position_ = 0;
  std::size_t limit_ = 0;
  bool sourceEnded_ = false;
  std::uint64_t lineNumber_ = 0;
  std::optional<RuntimeError> failure_;
};

/// Reads lines up to one that holds more than blanks, and trims blanks from both its ends. Empty at
/// the end of the file and after a failure, which is not raised.
void ReadNonBlankLine(TextReader& file, std::string& line);

/// Takes out every blank.
void RemoveSpaces(std::string& text);

}  // namespace parlate
