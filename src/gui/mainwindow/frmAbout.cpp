#include "mainwindow/frmAbout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "mainwindow/Icons.h"
#include "mainwindow/frmSplash.h"
#include "platform/FormControls.h"
#include "settings/ConversationDefaults.h"

namespace parlate {

namespace {

constexpr QSize kIconSize(64, 64);
constexpr int kTextWidth = 340;

}  // namespace

frmAbout::frmAbout(QWidget* parent)
    : QDialog(parent), picIcon(IconPath(QStringLiteral("parlate")), kIconSize, this) {
  SetUpControls();
  BuildLayout();
  connect(&cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
}

void frmAbout::SetUpControls() {
  const QString title = QString::fromLatin1(kProgramTitle);
  NameControl(*this, "frmAbout", QStringLiteral("About ") + title);
  setWindowTitle(QStringLiteral("About ") + title);
  NameControl(picIcon, "picIcon", title);
  SetUpLabel(lblTitle, "lblTitle", title);
  SetUpLabel(lblVersion, "lblVersion", VersionText());
  SetUpLabel(lblDescription, "lblDescription",
             QStringLiteral("An editor for the branching conversations of story games."));
  SetUpLabel(lblDisclaimer, "lblDisclaimer",
             QStringLiteral("Comes without any warranty. Keep backups of your conversation files; "
                            "the settings name a folder for them."));
  SetUpButton(cmdOK, "cmdOK", QStringLiteral("OK"));
  cmdOK.setDefault(true);

  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * 1.5);
  large.setBold(true);
  lblTitle.setFont(large);
  for (QLabel* text : {&lblDescription, &lblDisclaimer}) {
    text->setWordWrap(true);
    text->setMinimumWidth(kTextWidth);
  }
}

void frmAbout::BuildLayout() {
  auto* texts = new QVBoxLayout;
  texts->addWidget(&lblTitle);
  texts->addWidget(&lblVersion);
  texts->addSpacing(8);
  texts->addWidget(&lblDescription);
  texts->addSpacing(8);
  texts->addWidget(&lblDisclaimer);

  auto* body = new QHBoxLayout;
  body->setSpacing(16);
  body->addWidget(&picIcon, 0, Qt::AlignTop);
  body->addLayout(texts, 1);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdOK);

  auto* form = new QVBoxLayout(this);
  form->setContentsMargins(16, 16, 16, 12);
  form->addLayout(body);
  form->addStretch();
  form->addSpacing(8);
  form->addLayout(buttons);
  form->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace parlate
