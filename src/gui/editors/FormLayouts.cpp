#include "editors/FormLayouts.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace parlate {

QHBoxLayout* FootButtons(QPushButton& cmdOK, QPushButton& cmdCancel) {
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(&cmdOK);
  buttons->addWidget(&cmdCancel);
  return buttons;
}

void LayOutTabs(QWidget& form, QTabWidget& tabs, QPushButton& cmdOK, QPushButton& cmdCancel) {
  auto* rows = new QVBoxLayout(&form);
  rows->addWidget(&tabs, 1);
  rows->addLayout(FootButtons(cmdOK, cmdCancel));
}

}  // namespace parlate
