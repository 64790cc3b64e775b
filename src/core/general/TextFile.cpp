#include "general/TextFile.h"

#include <algorithm>
#include <utility>

namespace parlate {

namespace {

constexpr std::size_t kWindowSize = std::size_t{256} * 1024;

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

void TrimBlanks(std::string& text) {
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, text.find_first_not_of(' '));
}

}  // namespace

TextWriter::TextWriter(ByteSink& sink) : sink_(sink), buffer_(kWindowSize) {}

TextWriter::~TextWriter() {
  // The error that ended the writing is on its way already; a second one must not join it.
  ResumeNext([this] { Flush(); });
}

void TextWriter::Flush() { WriteAtOnce({buffer_.data(), std::exchange(used_, 0)}); }

bool TextWriter::MakeRoom(std::size_t size) {
  Flush();
  return size <= buffer_.size();
}

void TextWriter::WriteAtOnce(std::string_view part) {
  if (!part.empty()) sink_.Write(part.data(), part.size());
}

TextReader::TextReader(ByteSource& source, std::size_t longestLine)
    : source_(source), longestLine_(longestLine), window_(kWindowSize) {}

bool TextReader::Fill() {
  if (sourceEnded_) return false;
  position_ = 0;
  limit_ = 0;
  try {
    limit_ = source_.Read(window_.data(), window_.size());
  } catch (const RuntimeError& error) {
    failure_ = error;
  }
  sourceEnded_ = limit_ == 0;
  return !sourceEnded_;
}

bool TextReader::AtEnd() { return position_ == limit_ && !Fill(); }

void TextReader::ReadLine(std::string& line) {
  line.clear();
  if (AtEnd()) {
    if (failure_) throw RuntimeError(*failure_);
    throw RuntimeError(RuntimeError::kInputPastEndOfFile);
  }
  ++lineNumber_;
  do {
    const auto from = window_.begin() + static_cast<std::ptrdiff_t>(position_);
    const auto to = window_.begin() + static_cast<std::ptrdiff_t>(limit_);
    const auto end = std::find_if(from, to, IsLineEnd);
    Append(line, static_cast<std::size_t>(end - from));
    if (end != to) {
      SkipLineEnd();
      return;
    }
  } while (Fill());
  if (failure_) throw RuntimeError(*failure_);
}

void TextReader::Append(std::string& line, std::size_t count) {
  if (count > longestLine_ - line.size()) {
    failure_ = RuntimeError(RuntimeError::kOutOfMemory,
                            "line " + std::to_string(lineNumber_) + " is longer than " +
                                std::to_string(longestLine_) + " bytes");
    position_ = limit_;
    sourceEnded_ = true;
    throw RuntimeError(*failure_);
  }
  line.append(window_.data() + position_, count);
  position_ += count;
}

void TextReader::SkipLineEnd() {
  const bool maybeTwo = window_[position_++] == '\r';
  // The line feed may be the first byte of the next window.
  if (maybeTwo && !AtEnd() && window_[position_] == '\n') ++position_;
}

void ReadNonBlankLine(TextReader& file, std::string& line) {
  line.clear();
  while (line.empty() && !file.AtEnd()) {
    if (ResumeNext([&] { file.ReadLine(line); })) {
      TrimBlanks(line);
    } else {
      line.clear();
    }
  }
}

void RemoveSpaces(std::string& text) { std::erase(text, ' '); }

}  // namespace parlate
