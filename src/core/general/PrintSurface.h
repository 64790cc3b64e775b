#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace parlate {

/// A place or a length on paper, 1440 to the inch, counted from the left and top edge.
using Twips = std::int16_t;

/// The nearest whole twip, of two equally near ones the even one. What lies beyond 16 bits stops
/// there: it is far off every page.
[[nodiscard]] Twips ToTwips(double value);

/// A font as the printed pages ask for it. Whole points.
struct PrintFont {
  std::string Name;
  std::int16_t Size = 10;
  bool Bold = false;
  bool Italic = false;

  bool operator==(const PrintFont&) const = default;
};

/// What is printed on: a page with a pen that moves over it. The printers of the system and the
/// recorder of the tests are behind it. Texts are code-page text; a carriage return, a line feed
/// or both together begin a new line.
class PrintSurface {
 public:
  /// Where the pen goes after a text.
  enum class After {
    NextLine,  ///< To the left edge, below the text.
    Text,      ///< Behind the text, on its line.
    Zone,      ///< To the next print zone on its line.
  };
  /// Print zones are as wide as this text is in the current font.
  static constexpr std::string_view kZone = "00000000000000";

  static constexpr int kSolid = 0;
  static constexpr int kTransparent = 1;  ///< Fill style, and mode of the background of texts.

  virtual ~PrintSurface() = default;

  /// The part of the page that can be printed on.
  [[nodiscard]] virtual Twips ScaleWidth() const = 0;
  [[nodiscard]] virtual Twips ScaleHeight() const = 0;
  /// The whole page.
  [[nodiscard]] virtual Twips Width() const = 0;
  /// The name by which messages call the printer.
  [[nodiscard]] virtual std::string DeviceName() const = 0;

  Twips CurrentX = 0;
  Twips CurrentY = 0;
  bool FontTransparent = true;
  PrintFont Font;
  std::int32_t FillColor = 0;  ///< 24-bit blue-green-red.
  int FillStyle = kTransparent;

  /// Of the widest line.
  [[nodiscard]] Twips TextWidth(std::string_view text) const;
  /// Of all lines; an empty text has one.
  [[nodiscard]] Twips TextHeight(std::string_view text) const;
  void Print(std::string_view text, After after = After::NextLine);
  /// A blank line.
  void Print() { Print({}); }
  void Line(int x1, int y1, int x2, int y2);
  /// A box from one corner to the other, filled as FillColor and FillStyle say.
  void Box(int x1, int y1, int x2, int y2);
  void NewPage();
  void EndDoc() { OnEndDoc(); }
  /// How the ground of texts is painted from now on.
  void SetBkMode(int mode) { OnSetBkMode(mode); }

 protected:
  /// Width of a text of one line, in twips and their fractions, in `Font`.
  [[nodiscard]] virtual double LineWidth(std::string_view line) const = 0;
  /// From one line of text to the next, in `Font`.
  [[nodiscard]] virtual double LineHeight() const = 0;
  /// Draws a text of one line, which may be empty, with its upper left corner at the pen.
  virtual void DrawText(std::string_view line) = 0;
  virtual void DrawLine(Twips x1, Twips y1, Twips x2, Twips y2) = 0;
  virtual void DrawBox(Twips x1, Twips y1, Twips x2, Twips y2) = 0;
  virtual void OnNewPage() = 0;
  virtual void OnEndDoc() = 0;
  virtual void OnSetBkMode(int /*mode*/) {}
};

/// Keeps the surface's font for as long as it lives and puts it back.
class KeepFont {
 public:
  explicit KeepFont(PrintSurface& surface) : surface_(surface), font_(surface.Font) {}
  ~KeepFont() { surface_.Font = font_; }
  KeepFont(const KeepFont&) = delete;
  KeepFont& operator=(const KeepFont&) = delete;

 private:
  PrintSurface& surface_;
  PrintFont font_;
};

}  // namespace parlate
