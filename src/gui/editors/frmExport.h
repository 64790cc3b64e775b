#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <cstdint>
#include <functional>
#include <string>

#include "editors/TextFileField.h"
#include "general/Boolean.h"
#include "general/Prompts.h"
#include "settings/ConversationDefaults.h"

namespace parlate {

/// Asks for the text file that the conversations are exported to, and for what goes into it.
class frmExport : public QDialog {
  Q_OBJECT

 public:
  using Export = std::function<void(const std::string& fileName, std::int32_t exportMode,
                                    Boolean bExportComments)>;

  /// `exportConFile` is called with the dialog hidden.
  frmExport(ConversationDefaults& defaults, FileDialogs& fileDialogs, Export exportConFile,
            QWidget* parent = nullptr);

 public slots:
  void accept() override;

 protected:
  bool event(QEvent* event) override;

 private:
  void SetUpControls();
  void BuildLayout();
  void UpdateEnabling();
  void UpdateExportOptions();
  void Browse();

  ConversationDefaults& defaults_;
  FileDialogs& fileDialogs_;
  Export exportConFile_;

  // In the order in which Tab visits them.
  TextFileField file_{*this, QStringLiteral("Export Filename:")};
  QGroupBox Frame2{this};
  QRadioButton optExportDialog{&Frame2};
  QRadioButton optExportFilenames{&Frame2};
  QCheckBox chkExportComments{&Frame2};
  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate
