#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include "mainwindow/FormInventory.h"
#include "mainwindow/Inventory.h"

namespace parlate {
namespace {

QStringList NamesOf(const QJsonArray& items) {
  QStringList names;
  for (const QJsonValue item : items) names.append(item["name"].toString());
  return names;
}

QJsonObject Named(const QJsonArray& items, const QString& name) {
  for (const QJsonValue item : items) {
    if (item["name"].toString() == name) return item.toObject();
  }
  ADD_FAILURE() << name.toStdString() << " is not in the inventory";
  return {};
}

TEST(Inventory, ControlsStandInTabOrderWithWhatTheyShow) {
  QWidget form;
  form.setObjectName("frmTest");
  form.setWindowTitle("Test");
  QLabel label("Name:", &form);
  label.setObjectName("Label1");
  QLineEdit text("Ada", &form);
  text.setObjectName("txtName");
  text.setToolTip("Who it is");
  QPushButton button("&OK", &form);
  button.setObjectName("cmdOK");
  button.setEnabled(false);
  QCheckBox box("Really", &form);
  box.setObjectName("chkReally");
  box.setChecked(true);
  box.hide();
  QWidget nameless(&form);
  QWidget::setTabOrder(&text, &box);

  const QJsonObject inventory = Inventory(form);
  EXPECT_EQ(inventory["form"].toString(), "frmTest");
  EXPECT_EQ(inventory["caption"].toString(), "Test");
  const QJsonArray controls = inventory["controls"].toArray();
  EXPECT_EQ(NamesOf(controls), (QStringList{"Label1", "txtName", "chkReally", "cmdOK"}));

  EXPECT_EQ(Named(controls, "Label1")["kind"].toString(), "label");
  EXPECT_EQ(Named(controls, "Label1")["text"].toString(), "Name:");
  EXPECT_EQ(Named(controls, "txtName")["kind"].toString(), "text");
  EXPECT_EQ(Named(controls, "txtName")["text"].toString(), "Ada");
  EXPECT_EQ(Named(controls, "txtName")["toolTip"].toString(), "Who it is");
  EXPECT_TRUE(Named(controls, "txtName")["enabled"].toBool());
  EXPECT_TRUE(Named(controls, "txtName")["visible"].toBool());
  EXPECT_EQ(Named(controls, "cmdOK")["kind"].toString(), "button");
  EXPECT_EQ(Named(controls, "cmdOK")["shortcut"].toString(), "Alt+O");
  EXPECT_FALSE(Named(controls, "cmdOK")["enabled"].toBool());
  EXPECT_FALSE(Named(controls, "chkReally")["visible"].toBool());
  EXPECT_TRUE(Named(controls, "chkReally")["checked"].toBool());
}

TEST(Inventory, AComboBoxIsOneControlWithItsRows) {
  QWidget form;
  QComboBox combo(&form);
  combo.setObjectName("cboActor");
  combo.setEditable(true);
  combo.addItems({"Ada", "Bo"});
  const QJsonArray controls = Inventory(form)["controls"].toArray();
  ASSERT_EQ(controls.size(), 1);
  EXPECT_EQ(controls[0]["kind"].toString(), "combo box");
  EXPECT_EQ(controls[0]["items"].toArray(), (QJsonArray{"Ada", "Bo"}));
}

TEST(Inventory, MenusAndPopupsAreListedWithAllTheirItems) {
  QMainWindow form;
  QMenu file("&File", &form);
  file.setObjectName("mnuFile");
  form.menuBar()->addMenu(&file);
  QAction* open = file.addAction("&Open...");
  open->setObjectName("mnuFileOpen");
  open->setShortcut(QKeySequence("Ctrl+O"));
  open->setEnabled(false);
  file.addSeparator()->setObjectName("mnuDash0");
  QMenu recent("&Recent", &file);
  recent.setObjectName("mnuFileRecent");
  file.addMenu(&recent);
  QAction* last = recent.addAction("&1 First File");
  last->setObjectName("mnuFileLast(0)");
  last->setVisible(false);
  QMenu popup(&form);
  popup.setObjectName("mnuEventPopup");
  QMenu added("Add", &popup);
  added.setObjectName("mnuEventPopupAddEvents");
  popup.addMenu(&added);
  QAction* toggle = popup.addAction("Edit");
  toggle->setObjectName("mnuEventPopupEdit");
  toggle->setCheckable(true);

  const QJsonObject inventory = Inventory(form);
  const QJsonArray menus = inventory["menus"].toArray();
  EXPECT_EQ(NamesOf(menus), QStringList{"mnuFile"});
  const QJsonArray items = menus[0]["items"].toArray();
  EXPECT_EQ(NamesOf(items), (QStringList{"mnuFileOpen", "mnuDash0", "mnuFileRecent"}));
  EXPECT_EQ(items[0]["text"].toString(), "&Open...");
  EXPECT_EQ(items[0]["shortcut"].toString(), "Ctrl+O");
  EXPECT_FALSE(items[0]["enabled"].toBool());
  EXPECT_EQ(items[1]["kind"].toString(), "separator");
  EXPECT_EQ(items[1]["text"].toString(), "-");
  const QJsonArray recentItems = items[2]["items"].toArray();
  EXPECT_EQ(NamesOf(recentItems), QStringList{"mnuFileLast(0)"});
  EXPECT_FALSE(recentItems[0]["visible"].toBool());

  const QJsonArray popups = inventory["popups"].toArray();
  EXPECT_EQ(NamesOf(popups), QStringList{"mnuEventPopup"});
  EXPECT_EQ(NamesOf(popups[0]["items"].toArray()),
            (QStringList{"mnuEventPopupAddEvents", "mnuEventPopupEdit"}));
  EXPECT_FALSE(popups[0]["items"][1]["checked"].toBool(true));
}

TEST(Inventory, AToolBarHasItsButtonsByKeyAndItsWidgetsAsControls) {
  QMainWindow form;
  QToolBar bar;
  bar.setObjectName("tlbCon");
  form.addToolBar(&bar);
  bar.addAction("New")->setObjectName("New");
  bar.addSeparator();
  auto* find = new QComboBox;
  find->setObjectName("cboFind");
  bar.addWidget(find);
  form.statusBar()->setObjectName("barCon");
  form.statusBar()->showMessage("No Conversation Loaded");

  const QJsonArray controls = Inventory(form)["controls"].toArray();
  const QJsonArray buttons = Named(controls, "tlbCon")["items"].toArray();
  ASSERT_EQ(buttons.size(), 2);
  EXPECT_EQ(buttons[0]["name"].toString(), "New");
  EXPECT_EQ(buttons[0]["toolTip"].toString(), "New");
  EXPECT_EQ(buttons[1]["text"].toString(), "-");
  EXPECT_EQ(Named(controls, "cboFind")["kind"].toString(), "combo box");
  EXPECT_EQ(Named(controls, "barCon")["text"].toString(), "No Conversation Loaded");
}

TEST(AllForms, AreTheNineteenOfTheProgram) {
  QStringList names;
  for (const FormFactory& factory : AllForms()) names.append(factory.name);
  names.sort();
  EXPECT_EQ(names, (QStringList{"frmAbout", "frmCameraProperties", "frmChoiceEdit", "frmConvList",
                                "frmEditValue", "frmEvent", "frmExport", "frmFileProperties",
                                "frmFind", "frmFlagList", "frmImport", "frmMissingLabels",
                                "frmPlayAudio", "frmPrintCons", "frmProgress", "frmProperties",
                                "frmSettings", "frmSplash", "frmTableEdit"}))
      << names.join(' ').toStdString();
}

TEST(AllForms, EveryFormLoadsAndBearsItsName) {
  for (const FormFactory& factory : AllForms()) {
    const std::unique_ptr<QWidget> form = factory.load();
    EXPECT_EQ(form->objectName(), factory.name);
    EXPECT_FALSE(Inventory(*form)["controls"].toArray().isEmpty());
  }
}

TEST(AllForms, EveryControlThatTakesTheFocusIsReadOutByAName) {
  for (const FormFactory& factory : AllForms()) {
    const std::unique_ptr<QWidget> form = factory.load();
    for (const QWidget* control : form->findChildren<QWidget*>()) {
      const QString name = control->objectName();
      const bool isPart = name.isEmpty() || name.startsWith("qt_");
      if (isPart || (control->focusPolicy() & Qt::TabFocus) == 0) continue;
      EXPECT_FALSE(control->accessibleName().isEmpty())
          << factory.name.toStdString() << ' ' << name.toStdString();
    }
  }
}

}  // namespace
}  // namespace parlate
