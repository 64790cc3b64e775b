#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace parlate {

/// A picture that is drawn from its shapes at the size that it has, so that it is sharp at every
/// scale of the screen. It keeps its proportions.
class SvgPicture : public QWidget {
  Q_OBJECT

 public:
  /// A resource such as ":/icons/parlate.svg", and the size to ask of a layout.
  SvgPicture(const QString& resource, QSize size, QWidget* parent = nullptr);

  /// Whether there is something to draw.
  [[nodiscard]] bool IsLoaded() const { return renderer_.isValid(); }
  [[nodiscard]] QSize sizeHint() const override { return size_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSvgRenderer renderer_;
  QSize size_;
};

}  // namespace parlate
