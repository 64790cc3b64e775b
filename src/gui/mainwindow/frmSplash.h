#pragma once

#include <QLabel>
#include <QWidget>

#include "mainwindow/SvgPicture.h"

namespace parlate {

/// The picture that stands while the program starts. A key or a click puts it away.
class frmSplash : public QWidget {
  Q_OBJECT

 public:
  explicit frmSplash(QWidget* parent = nullptr);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  SvgPicture imgLogo;
  QLabel lblProductName{this};
  QLabel lblVersion{this};
  QLabel lblPlatform{this};
};

/// "Version " and the version of the program, as the small windows show it.
[[nodiscard]] QString VersionText();

}  // namespace parlate
