#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "general/PrintSurface.h"
#include "general/Prompts.h"

namespace parlate::testing_support {

/// Paper in memory: every call becomes a line of text. A character is 10 twips wide and a line 20
/// twips high for each point of the font, so that places can be worked out by hand. The page has
/// 10000 x 12000 twips to print on and is 11000 wide: margins of 500 and 600, text up to 11400.
class RecordingSurface final : public PrintSurface {
 public:
  /// In twips.
  struct Paper {
    Twips scaleWidth = 10000;
    Twips scaleHeight = 12000;
    Twips width = 11000;
  };

  RecordingSurface(std::vector<std::string>& calls, Paper paper) : calls_(calls), paper_(paper) {}

  [[nodiscard]] Twips ScaleWidth() const override { return paper_.scaleWidth; }
  [[nodiscard]] Twips ScaleHeight() const override { return paper_.scaleHeight; }
  [[nodiscard]] Twips Width() const override { return paper_.width; }
  [[nodiscard]] std::string DeviceName() const override { return "Recorder"; }

  int callsUntilFailure = -1;  ///< The printer vanishes after that many calls; -1 for never.

 private:
  [[nodiscard]] double LineWidth(std::string_view line) const override {
    return static_cast<double>(line.size()) * 10 * Font.Size;
  }
  [[nodiscard]] double LineHeight() const override { return 20.0 * Font.Size; }
  void DrawText(std::string_view line) override;
  void DrawLine(Twips x1, Twips y1, Twips x2, Twips y2) override;
  void DrawBox(Twips x1, Twips y1, Twips x2, Twips y2) override;
  void OnNewPage() override { Keep("new page"); }
  void OnEndDoc() override { Keep("end"); }
  void OnSetBkMode(int mode) override { Keep("background " + std::to_string(mode)); }
  void Keep(std::string call);

  std::vector<std::string>& calls_;
  Paper paper_;
};

/// Hands out the recorder, or nothing as if the user cancelled.
class RecordingPrinters final : public Printers {
 public:
  std::unique_ptr<PrintSurface> ShowPrinterDialog(const std::string& dialogTitle = {}) override;

  bool cancels = false;
  bool fails = false;   ///< The printer cannot even be started.
  bool opaque = false;  ///< The printer comes with texts on a ground of their own.
  int callsUntilFailure = -1;
  RecordingSurface::Paper paper;
  int shown = 0;
  std::string title;  ///< Of the dialog that was shown last.
  std::vector<std::string> calls;

  /// The texts alone, without the blank lines.
  [[nodiscard]] std::vector<std::string> Texts() const;
};

}  // namespace parlate::testing_support
