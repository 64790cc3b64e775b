#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "mainwindow/SvgPicture.h"

namespace parlate {

/// Says what the program is.
class frmAbout : public QDialog {
  Q_OBJECT

 public:
  explicit frmAbout(QWidget* parent = nullptr);

 private:
  void SetUpControls();
  void BuildLayout();

  SvgPicture picIcon;
  QLabel lblTitle{this};
  QLabel lblVersion{this};
  QLabel lblDescription{this};
  QLabel lblDisclaimer{this};
  QPushButton cmdOK{this};
};

}  // namespace parlate
