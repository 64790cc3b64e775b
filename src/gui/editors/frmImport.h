#pragma once

#include <QDialog>
#include <QPushButton>
#include <functional>
#include <string>

#include "editors/TextFileField.h"
#include "general/Prompts.h"
#include "settings/ConversationDefaults.h"

namespace parlate {

/// Asks for the text file that comes back into the conversations.
class frmImport : public QDialog {
  Q_OBJECT

 public:
  using Import = std::function<void(const std::string& fileName)>;

  /// `importConFile` is called with the dialog hidden.
  frmImport(ConversationDefaults& defaults, FileDialogs& fileDialogs, Import importConFile,
            QWidget* parent = nullptr);

 public slots:
  void accept() override;

 protected:
  bool event(QEvent* event) override;

 private:
  void SetUpControls();
  void BuildLayout();
  void UpdateEnabling();
  void Browse();

  ConversationDefaults& defaults_;
  FileDialogs& fileDialogs_;
  Import importConFile_;

  // In the order in which Tab visits them.
  TextFileField file_{*this, QStringLiteral("Import Filename:")};
  QPushButton cmdOK{this};
  QPushButton cmdCancel{this};
};

}  // namespace parlate
