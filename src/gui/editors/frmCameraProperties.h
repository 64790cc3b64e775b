#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <array>

#include "platform/QtComboBox.h"

class QGridLayout;

namespace parlate {

/// The face of a feature to come: nothing that is entered is kept, whichever button is pressed.
class frmCameraProperties : public QDialog {
  Q_OBJECT

 public:
  explicit frmCameraProperties(QWidget* parent = nullptr);

 private:
  /// A number with its label.
  struct Field {
    explicit Field(QWidget* frame) : label(frame), text(frame) {}
    QLabel label;
    QLineEdit text;
  };

  void SetUpControls();
  void SetUpActorFrame();
  void BuildLayout();
  void BuildActorFrame();

  // In the order in which Tab visits them.
  QRadioButton optCameraPosition{this};
  QGroupBox frmSpeaking{this};
  Field txtCamDistance{&frmSpeaking};
  Field txtCamCenter{&frmSpeaking};
  Field txtCamHeight{&frmSpeaking};
  QLabel lblSpeakingOffsets{&frmSpeaking};
  std::array<Field, 3> speakingOffsets{Field(&frmSpeaking), Field(&frmSpeaking),
                                       Field(&frmSpeaking)};
  QRadioButton Option1{this};
  QGroupBox frmActor{this};
  QLabel lblCameraActor{&frmActor};
  QtComboBox cboCameraActor{&frmActor, RowOrder::ByName};
  QPushButton cmdEditNPCTable{&frmActor};
  QLabel lblActorOffsets{&frmActor};
  std::array<Field, 6> actorOffsets{Field(&frmActor), Field(&frmActor), Field(&frmActor),
                                    Field(&frmActor), Field(&frmActor), Field(&frmActor)};
  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate
