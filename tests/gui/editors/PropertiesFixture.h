#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTabWidget>
#include <memory>
#include <string>
#include <vector>

#include "editors/ShownForm.h"
#include "editors/frmProperties.h"
#include "platform/FormKeys.h"
#include "support/ScriptedTableEditor.h"
#include "support/TestWorkspace.h"

namespace parlate::testing_support {

enum Tab { kGeneral, kFlags, kInvoke, kOptions, kInfo };

/// The properties of "greeting", which belongs to Zoe, beside "other".
class PropertiesTest : public ShownForm<frmProperties> {
 protected:
  PropertiesTest() {
    space_.AddRows(kActorTable, {{1, "Zoe"}, {0, "Alex"}});
    space_.AddRows(kFlagTable, {{2, "Door"}, {3, "Lamp"}, {4, "Boat"}});
    space_.workspace.tableEditor = &tables_;
    con_ = AddCon(0, "greeting");
    AddCon(1, "other");
    con_->CreationDate = MakeDate(2026, 3, 5, 14, 30);
    con_->LastUpdated = MakeDate(2026, 4, 6, 7, 8);
    con_->CreatedBy = "anna";
    con_->LastUpdatedBy = "ben";
    AddFlag(2, true);
    AddFlag(3, false);
  }

  std::shared_ptr<Conversation> AddCon(std::int32_t key, const std::string& name) {
    auto con = std::make_shared<Conversation>();
    con->key = key;
    con->conName = name;
    con->NPCID = 1;
    conFile_.Conversations.Add(key, con);
    return con;
  }
  void AddFlag(std::int32_t flagID, bool value) {
    auto flag = std::make_shared<FlagRef>();
    flag->flagID = flagID;
    flag->bValue = value;
    con_->flagRefs.Add(flagID, flag);
  }

  std::unique_ptr<frmProperties> MakeForm() override {
    auto form = std::make_unique<frmProperties>(conFile_, space_.messages);
    form->SetCon(*con_);
    form->SetTab(firstTab_);
    return form;
  }

  QLineEdit& Name() { return The<QLineEdit>("txtName"); }
  QtComboBox& Owner() { return The<QtComboBox>("cboNPC"); }
  QCheckBox& Box(const char* name) { return The<QCheckBox>(name); }
  void GoTo(Tab tab) { The<QTabWidget>("tabProperties").setCurrentIndex(tab); }
  void Tick(const char* name) { QTest::keyClick(&Box(name), Qt::Key_Space); }
  /// Types over what stands in a field.
  void Type(QWidget& field, const QString& text) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    TypeText(field, text);
  }
  MultiColumnList& FlagList() { return The<MultiColumnList>("lstFlags"); }
  std::vector<std::string> FlagRows() {
    std::vector<std::string> rows;
    const ListRows& list = FlagList().Rows();
    for (std::size_t i = 0; i < list.ListCount(); ++i) rows.push_back(list.Row(i).text);
    return rows;
  }
  void ClickFlag(int row) {
    GoTo(kFlags);
    QTest::mouseClick(FlagList().viewport(), Qt::LeftButton, {}, FlagList().RowRect(row).center());
  }
  static std::vector<std::int32_t> IDs(const parlate::FlagList& flags) {
    std::vector<std::int32_t> ids;
    for (const FlagRef& flag : flags) ids.push_back(flag.flagID);
    return ids;
  }
  void ExpectRefused(const std::string& text) {
    space_.messages.Expect(Answer::Ok);
    Click("cmdOK");
    ASSERT_EQ(space_.messages.shown.size(), 1U);
    const MessageBox& box = space_.messages.shown.back();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.icon, MessageBox::Icon::None);
    EXPECT_EQ(box.buttons, MessageBox::Buttons::Ok);
    EXPECT_TRUE(Form().isVisible());
    EXPECT_TRUE(Name().hasFocus());
    EXPECT_EQ(Name().selectedText(), Name().text());
    EXPECT_EQ(con_->conName, "greeting");
  }

  TestWorkspace space_;
  ConversationFile conFile_;
  ScriptedTableEditor tables_;
  std::shared_ptr<Conversation> con_;
  Tab firstTab_ = kGeneral;
};

}  // namespace parlate::testing_support
