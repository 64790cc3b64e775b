#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTabWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "editors/EditorFixture.h"
#include "editors/frmChoiceEdit.h"
#include "model/TableCombos.h"

namespace parlate::testing_support {

/// The event editor that the dialog is opened from: two labels and one audio file.
class ChoiceHost final : public PanelHost {
 public:
  explicit ChoiceHost(EditorDoors doors) : doors_(doors) {}
  [[nodiscard]] const std::shared_ptr<Conversation>& CurrentCon() const override { return con; }
  void PopulateLabelCombo(ComboBox& cboLabels) override {
    cboLabels.Clear();
    cboLabels.AddItem("Start");
    cboLabels.AddItem("End");
  }
  void PopulateLabelsOf(std::int32_t, ComboBox&) override {}
  void SelectLabelValue(const std::string&, ComboBox&) override {}
  [[nodiscard]] std::string SelectAudioFile() override { return audioFile; }
  [[nodiscard]] bool IsEditorVisible() const override { return true; }
  [[nodiscard]] SpeakerPair LastSpeakers() const override { return {}; }
  [[nodiscard]] EditorDoors Doors() override { return doors_; }

  std::shared_ptr<Conversation> con;
  std::string audioFile = "picked";

 private:
  EditorDoors doors_;
};

/// The sample file open, and the dialog of a choice over it for a user to work in.
class ChoiceEditorTest : public EditorTest {
 protected:
  ChoiceEditorTest() {
    program_.workspace.tableEditor = &tables_;
    TestWorkspace::AddRows(kSkillTable, {{4, "Swim"}});
    TestWorkspace::AddRows(kFlagTable, {{6, "Zip"}});
  }

  using User = std::function<void(QWidget&)>;

  bool Add(const User& user) {
    added_ = std::make_shared<ChoiceItem>();
    return Run(user, [this](frmChoiceEdit& form) {
      return form.AddChoice(added_, &program_.Window(), ConOf(0));
    });
  }
  bool Edit(const std::shared_ptr<ChoiceItem>& choice, const User& user) {
    return Run(user, [&](frmChoiceEdit& form) {
      return form.EditChoice(choice, &program_.Window(), ConOf(0));
    });
  }
  /// The first choice of the file: text "Yes", skill 1 at level 2, label "Start", flag 2.
  std::shared_ptr<ChoiceItem> Yes() {
    return ConOf(0)->events.Place(2)->As<EventChoice>()->Choices.Share(3);
  }

  static QtComboBox& Combo(const QWidget& form, const char* name) {
    return ControlNamed<QtComboBox>(form, name);
  }
  static QCheckBox& Box(const QWidget& form, const char* name) {
    return ControlNamed<QCheckBox>(form, name);
  }
  static MultiColumnList& Flags(const QWidget& form) {
    return ControlNamed<MultiColumnList>(form, "lstFlags");
  }
  static void Turn(const QWidget& form, int page) {
    ControlNamed<QTabWidget>(form, "tabChoice").setCurrentIndex(page);
  }
  static void Type(const QWidget& form, const char* name, const char* text) {
    QTest::keyClicks(&TextOf(form, name), text);
  }
  /// Writes a new choice up to its skill, which stands in its combo as typed.
  static void TypeSkill(const QWidget& form, const char* skill) {
    Type(form, "txtChoice", "x");
    Turn(form, 2);
    Toggle(form, "chkSkill");
    Combo(form, "cboSkills").SetFocus();
    QTest::keyClicks(QApplication::focusWidget(), skill);
    EXPECT_EQ(Combo(form, "cboSkills").ListIndex(), -1);
  }
  static void Toggle(const QWidget& form, const char* name) {
    QTest::keyClick(&Box(form, name), Qt::Key_Space);
  }
  static void ClickFlag(const QWidget& form, int row) {
    QTest::mouseClick(Flags(form).viewport(), Qt::LeftButton, {},
                      Flags(form).RowRect(row).center());
  }
  static std::vector<std::string> FlagRows(const QWidget& form) {
    std::vector<std::string> rows;
    const ListRows& shown = Flags(form).Rows();
    for (std::size_t i = 0; i < shown.ListCount(); ++i) rows.push_back(shown.Row(i).text);
    return rows;
  }

  ScriptedTableEditor tables_;
  ChoiceHost host_{Doors()};
  std::shared_ptr<ChoiceItem> added_;
  std::vector<std::string> played_;  ///< The conversations whose audio folder was asked for.

 private:
  template <class Call>
  bool Run(const User& user, Call call) {
    frmChoiceEdit form(host_, [this](const Conversation& con) {
      played_.push_back(con.conName);
      return folder.File("audio");
    });
    WhenFormShows("frmChoiceEdit", [&user](QWidget& shown) {
      user(shown);
      if (shown.isVisible()) Click(shown, "cmdCancel");
    });
    return call(form);
  }
};

}  // namespace parlate::testing_support
