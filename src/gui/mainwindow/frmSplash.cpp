#include "mainwindow/frmSplash.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "mainwindow/Icons.h"
#include "platform/FormControls.h"
#include "settings/ConversationDefaults.h"

namespace parlate {

namespace {

constexpr QSize kLogoSize(480, 270);

}  // namespace

frmSplash::frmSplash(QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint),
      imgLogo(IconPath(QStringLiteral("logo")), kLogoSize, this) {
  const QString title = QString::fromLatin1(kProgramTitle);
  NameControl(*this, "frmSplash", title);
  setWindowTitle(title);
  setAttribute(Qt::WA_QuitOnClose, false);
  setFocusPolicy(Qt::StrongFocus);
  NameControl(imgLogo, "imgLogo", title);
  SetUpLabel(lblProductName, "lblProductName", title);
  SetUpLabel(lblVersion, "lblVersion", VersionText());
  SetUpLabel(lblPlatform, "lblPlatform", QStringLiteral("Windows 95/NT"));

  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * 1.4);
  large.setBold(true);
  lblProductName.setFont(large);

  auto* texts = new QHBoxLayout;
  texts->setContentsMargins(16, 8, 16, 12);
  texts->setSpacing(16);
  texts->addWidget(&lblProductName);
  texts->addStretch();
  texts->addWidget(&lblVersion);
  texts->addWidget(&lblPlatform);

  auto* form = new QVBoxLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  form->setSpacing(0);
  form->addWidget(&imgLogo);
  form->addLayout(texts);
  form->setSizeConstraint(QLayout::SetFixedSize);
}

void frmSplash::keyPressEvent(QKeyEvent* /*event*/) { close(); }

void frmSplash::mousePressEvent(QMouseEvent* /*event*/) { close(); }

QString VersionText() { return QStringLiteral("Version " PARLATE_VERSION); }

}  // namespace parlate
