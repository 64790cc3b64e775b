#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace parlate {

/// Half-open range of bytes of a text.
struct TextRange {
  std::size_t begin = 0;
  std::size_t end = 0;

  friend bool operator==(const TextRange&, const TextRange&) = default;
};

/// Greedy word wrap of code-page text, one byte a character.
///
/// "\r", "\n" and "\r\n" end a line; at the end of the text they add no empty line after it. Lines
/// wrap at blanks and tabs, which are left out of both lines. A word wider than a whole line is
/// broken inside, one character a line at least. The time is linear in the text: each word is
/// measured once, however many texts it stands in.
class LineBreaker {
 public:
  /// Gives the width of one word or character, in pixels.
  using WidthFunction = std::function<double(std::string_view)>;

  explicit LineBreaker(WidthFunction widthOf) : widthOf_(std::move(widthOf)) { ForgetWidths(); }

  /// Is due whenever the width function would answer otherwise, as after a change of font.
  void ForgetWidths();

  /// The lines of `text` in `width` pixels; none for an empty text. With no width to wrap at
  /// (0 or less) only the hard line breaks count.
  [[nodiscard]] std::vector<TextRange> Lines(std::string_view text, int width);

  /// As Lines(text, width).size(), without a list being built.
  [[nodiscard]] std::size_t CountLines(std::string_view text, int width);

 private:
  struct WordHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view word) const {
      return std::hash<std::string_view>()(word);
    }
  };

  template <class Emit>
  void Break(std::string_view text, int width, Emit&& emit);
  template <class Emit>
  void BreakParagraph(std::string_view text, TextRange paragraph, double width, Emit& emit);
  template <class Emit>
  TextRange BreakWord(std::string_view text, TextRange word, double width, Emit& emit);

  [[nodiscard]] double WordWidth(std::string_view word);
  [[nodiscard]] double CharacterWidth(char character);
  [[nodiscard]] double SumOfCharacters(std::string_view run);

  WidthFunction widthOf_;
  std::unordered_map<std::string, double, WordHash, std::equal_to<>> wordWidths_;
  std::array<double, 256> characterWidths_{};  ///< Negative: not measured yet.
};

}  // namespace parlate
