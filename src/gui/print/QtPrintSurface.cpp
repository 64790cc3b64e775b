#include "print/QtPrintSurface.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <utility>

#include "general/CodePage.h"
#include "general/RuntimeError.h"

namespace parlate {

namespace {

constexpr int kTwipsPerInch = 1440;
constexpr int kTwipsPerPoint = 20;
constexpr int kRuleWidth = 10;

/// A character as it is drawn: what would begin a new line or move elsewhere leaves a blank.
QChar Drawn(unsigned char byte) { return byte < 0x20 ? QChar(u' ') : QChar(CodePoint(byte)); }

QString DrawnText(std::string_view line) {
  QString text;
  text.reserve(static_cast<qsizetype>(line.size()));
  for (const char c : line) text.append(Drawn(static_cast<unsigned char>(c)));
  return text;
}

QColor ColorOf(std::int32_t blueGreenRed) {
  return {blueGreenRed & 0xFF, (blueGreenRed >> 8) & 0xFF, (blueGreenRed >> 16) & 0xFF};
}

QRect PrintedRect(const QPagedPaintDevice& device) {
  return device.pageLayout().paintRectPixels(kTwipsPerInch);
}

}  // namespace

QtPrintSurface::QtPrintSurface(QPagedPaintDevice& device, std::string deviceName)
    : device_(device), deviceName_(std::move(deviceName)) {
  if (!painter_.begin(&device_)) {
    throw RuntimeError(RuntimeError::kPrinterError, "the printer cannot be started");
  }
  painter_.setPen(QPen(Qt::black, kRuleWidth));
}

QtPrintSurface::~QtPrintSurface() {
  if (painter_.isActive()) painter_.end();
}

Twips QtPrintSurface::ScaleWidth() const { return ToTwips(PrintedRect(device_).width()); }

Twips QtPrintSurface::ScaleHeight() const { return ToTwips(PrintedRect(device_).height()); }

Twips QtPrintSurface::Width() const {
  return ToTwips(device_.pageLayout().fullRectPixels(kTwipsPerInch).width());
}

QtPrintSurface::MeasuredFont QtPrintSurface::Measure(const PrintFont& font) {
  MeasuredFont measured;
  measured.name = font;
  measured.font.setFamily(QString::fromStdString(font.Name.empty() ? "Arial" : font.Name));
  // In points a font would be measured for the screen.
  measured.font.setPixelSize(font.Size * kTwipsPerPoint);
  measured.font.setBold(font.Bold);
  measured.font.setItalic(font.Italic);
  // So that the width of a text is the sum of its characters'.
  measured.font.setKerning(false);
  measured.font.setHintingPreference(QFont::PreferNoHinting);
  const QFontMetricsF metrics(measured.font);
  for (std::size_t i = 0; i < measured.advances.size(); ++i) {
    measured.advances[i] = metrics.horizontalAdvance(Drawn(static_cast<unsigned char>(i)));
  }
  measured.ascent = metrics.ascent();
  measured.lineHeight = metrics.lineSpacing();
  return measured;
}

const QtPrintSurface::MeasuredFont& QtPrintSurface::Measured() const {
  if (lastFont_ < fonts_.size() && fonts_[lastFont_].name == Font) return fonts_[lastFont_];
  for (lastFont_ = 0; lastFont_ < fonts_.size(); ++lastFont_) {
    if (fonts_[lastFont_].name == Font) return fonts_[lastFont_];
  }
  return fonts_.emplace_back(Measure(Font));
}

double QtPrintSurface::LineWidth(std::string_view line) const {
  const MeasuredFont& font = Measured();
  double width = 0;
  for (const char c : line) width += font.advances[static_cast<unsigned char>(c)];
  return width;
}

void QtPrintSurface::DrawText(std::string_view line) {
  if (line.empty()) return;
  const MeasuredFont& font = Measured();
  // A painter looks a font up anew whenever it is set.
  if (paintedFont_ != lastFont_) painter_.setFont(font.font);
  paintedFont_ = lastFont_;
  painter_.setBackgroundMode(FontTransparent || groundMode_ == kTransparent ? Qt::TransparentMode
                                                                            : Qt::OpaqueMode);
  painter_.drawText(QPointF(CurrentX, CurrentY + font.ascent), DrawnText(line));
}

void QtPrintSurface::DrawLine(Twips x1, Twips y1, Twips x2, Twips y2) {
  painter_.drawLine(x1, y1, x2, y2);
}

void QtPrintSurface::DrawBox(Twips x1, Twips y1, Twips x2, Twips y2) {
  const QRect box(QPoint(x1, y1), QPoint(x2, y2));
  painter_.setBrush(FillStyle == kSolid ? QBrush(ColorOf(FillColor)) : QBrush(Qt::NoBrush));
  painter_.drawRect(box);
  painter_.setBrush(Qt::NoBrush);
}

void QtPrintSurface::OnNewPage() {
  if (!device_.newPage()) {
    throw RuntimeError(RuntimeError::kPrinterError, "the printer takes no further page");
  }
}

void QtPrintSurface::OnEndDoc() {
  if (!painter_.end()) {
    throw RuntimeError(RuntimeError::kPrinterError, "the printer did not end the document");
  }
}

}  // namespace parlate
