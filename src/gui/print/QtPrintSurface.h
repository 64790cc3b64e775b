#pragma once

#include <QFont>
#include <QPagedPaintDevice>
#include <QPainter>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "general/PrintSurface.h"

namespace parlate {

/// A printer or a PDF as paper. The device must be set up by PreparePages, and must outlive the
/// surface. A device that cannot be begun, continued or ended is RuntimeError 482.
class QtPrintSurface : public PrintSurface {
 public:
  QtPrintSurface(QPagedPaintDevice& device, std::string deviceName);
  ~QtPrintSurface() override;

  [[nodiscard]] Twips ScaleWidth() const override;
  [[nodiscard]] Twips ScaleHeight() const override;
  [[nodiscard]] Twips Width() const override;
  [[nodiscard]] std::string DeviceName() const override { return deviceName_; }

 protected:
  void OnNewPage() override;
  void OnEndDoc() override;

 private:
  /// A font of the pages with the measures of its characters, which are taken once.
  struct MeasuredFont {
    PrintFont name;
    QFont font;
    std::array<double, 256> advances{};
    double ascent = 0;
    double lineHeight = 0;
  };

  [[nodiscard]] double LineWidth(std::string_view line) const override;
  [[nodiscard]] double LineHeight() const override { return Measured().lineHeight; }
  void DrawText(std::string_view line) override;
  void DrawLine(Twips x1, Twips y1, Twips x2, Twips y2) override;
  void DrawBox(Twips x1, Twips y1, Twips x2, Twips y2) override;
  void OnSetBkMode(int mode) override { groundMode_ = mode; }

  [[nodiscard]] const MeasuredFont& Measured() const;
  static MeasuredFont Measure(const PrintFont& font);

  QPagedPaintDevice& device_;
  std::string deviceName_;
  QPainter painter_;
  mutable std::vector<MeasuredFont> fonts_;  ///< A run uses a handful.
  mutable std::size_t lastFont_ = 0;
  std::optional<std::size_t> paintedFont_;
  int groundMode_ = kTransparent;
};

/// Gives a device one twip a unit and the narrowest margins that it can print to, but no narrower
/// than a quarter of an inch.
template <class Device>
void PreparePages(Device& device) {
  constexpr int kTwipsPerInch = 1440;
  constexpr double kLeastMargin = 18;  // points
  device.setResolution(kTwipsPerInch);
  QPageLayout layout = device.pageLayout();
  layout.setUnits(QPageLayout::Point);
  layout.setOrientation(QPageLayout::Portrait);
  const QMarginsF least = layout.minimumMargins();
  layout.setMargins(QMarginsF(qMax(least.left(), kLeastMargin), qMax(least.top(), kLeastMargin),
                              qMax(least.right(), kLeastMargin),
                              qMax(least.bottom(), kLeastMargin)));
  device.setPageLayout(layout);
}

}  // namespace parlate
