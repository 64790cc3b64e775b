#include "shell/LineBreaker.h"

#include <limits>

namespace parlate {

namespace {

// Longer words are rare and seldom come twice: keeping them would only fill the cache.
constexpr std::size_t kLongestKeptWord = 64;
// Enough for the vocabulary of a whole game; a bound all the same, since ids and numbers are words.
constexpr std::size_t kMostKeptWords = std::size_t{1} << 16;

bool IsBlank(char character) { return character == ' ' || character == '\t'; }

bool IsLineBreak(char character) { return character == '\r' || character == '\n'; }

std::string_view Part(std::string_view text, TextRange range) {
  return text.substr(range.begin, range.end - range.begin);
}

std::size_t EndOfBreak(std::string_view text, std::size_t at) {
  const bool isPair = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
  return at + (isPair ? 2 : 1);
}

}  // namespace

void LineBreaker::ForgetWidths() {
  wordWidths_.clear();
  characterWidths_.fill(-1.0);
}

std::vector<TextRange> LineBreaker::Lines(std::string_view text, int width) {
  std::vector<TextRange> lines;
  Break(text, width, [&lines](TextRange line) { lines.push_back(line); });
  return lines;
}

std::size_t LineBreaker::CountLines(std::string_view text, int width) {
  std::size_t count = 0;
  Break(text, width, [&count](TextRange) { ++count; });
  return count;
}

template <class Emit>
void LineBreaker::Break(std::string_view text, int width, Emit&& emit) {
  const double limit = width > 0 ? width : std::numeric_limits<double>::infinity();
  std::size_t begin = 0;
  while (begin < text.size()) {
    std::size_t end = begin;
    while (end < text.size() && !IsLineBreak(text[end])) ++end;
    BreakParagraph(text, {begin, end}, limit, emit);
    begin = end < text.size() ? EndOfBreak(text, end) : end;
  }
}

template <class Emit>
void LineBreaker::BreakParagraph(std::string_view text, TextRange paragraph, double width,
                                 Emit& emit) {
  TextRange line{paragraph.begin, paragraph.begin};
  double used = 0;
  bool hasWord = false;
  std::size_t at = paragraph.begin;
  for (;;) {
    TextRange word{at, at};
    double gap = 0;
    while (word.begin < paragraph.end && IsBlank(text[word.begin])) {
      gap += CharacterWidth(' ');
      ++word.begin;
    }
    if (word.begin == paragraph.end) break;
    word.end = word.begin;
    while (word.end < paragraph.end && !IsBlank(text[word.end])) ++word.end;

    const double wordWidth = WordWidth(Part(text, word));
    if (used + gap + wordWidth <= width) {
      used += gap + wordWidth;
    } else {
      // An indent that leaves no room for the first word is dropped, not given a line of its own.
      if (hasWord) emit(line);
      line.begin = word.begin;
      used = wordWidth;
      if (wordWidth > width) {
        const TextRange rest = BreakWord(text, word, width, emit);
        line.begin = rest.begin;
        used = SumOfCharacters(Part(text, rest));
      }
    }
    hasWord = true;
    line.end = word.end;
    at = word.end;
  }
  emit(line);
}

// Emits the full lines of the word and returns what is left for the line that goes on.
template <class Emit>
TextRange LineBreaker::BreakWord(std::string_view text, TextRange word, double width, Emit& emit) {
  TextRange piece{word.begin, word.begin};
  double used = 0;
  for (; piece.end < word.end; ++piece.end) {
    const double next = CharacterWidth(text[piece.end]);
    if (piece.end > piece.begin && used + next > width) {
      emit(piece);
      piece.begin = piece.end;
      used = 0;
    }
    used += next;
  }
  return piece;
}

double LineBreaker::WordWidth(std::string_view word) {
  if (word.size() > kLongestKeptWord) return SumOfCharacters(word);
  const auto known = wordWidths_.find(word);
  if (known != wordWidths_.end()) return known->second;
  if (wordWidths_.size() >= kMostKeptWords) wordWidths_.clear();
  const double width = widthOf_(word);
  wordWidths_.emplace(word, width);
  return width;
}

double LineBreaker::CharacterWidth(char character) {
  double& width = characterWidths_[static_cast<unsigned char>(character)];
  if (width < 0) width = widthOf_(std::string_view(&character, 1));
  return width;
}

double LineBreaker::SumOfCharacters(std::string_view run) {
  double sum = 0;
  for (const char character : run) sum += CharacterWidth(character);
  return sum;
}

}  // namespace parlate
