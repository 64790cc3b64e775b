#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "editors/EditorFixture.h"
#include "editors/frmTableEdit.h"
#include "model/Tables.h"

namespace parlate::testing_support {

/// The sample file open, and the editor of one of its tables over it for a user to work in.
class TableEditorTest : public EditorTest {
 protected:
  /// Opens the editor of a table, lets the user work, and closes it with its button.
  std::int32_t Edit(std::int32_t tableType, const std::function<void(QWidget&)>& user) {
    frmTableEdit editor(Doors(), &program_.Window());
    WhenFormShows("frmTableEdit", [&user](QWidget& form) {
      user(form);
      if (form.isVisible()) Click(form, "cmdClose");
    });
    return editor.EditTable(tableType);
  }

  static QtListBox& List(const QWidget& form) { return ControlNamed<QtListBox>(form, "lstTable"); }
  static std::vector<std::string> Rows(const QWidget& form) {
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(List(form).ListCount()));
    for (int i = 0; i < List(form).ListCount(); ++i) rows.push_back(List(form).List(i));
    return rows;
  }
  static void ClickRow(const QWidget& form, int row) {
    QtListBox& list = List(form);
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(row)).center());
  }
  static void DoubleClickRow(const QWidget& form, int row) {
    ClickRow(form, row);
    QTest::mouseDClick(List(form).viewport(), Qt::LeftButton, {},
                       List(form).visualItemRect(List(form).item(row)).center());
  }
  static void Add(const QWidget& form, const char* name) {
    TextOf(form, "txtName").clear();
    QTest::keyClicks(&TextOf(form, "txtName"), name);
    Click(form, "cmdAdd");
  }
  /// Renames the first row.
  static void Rename(const QWidget& form, const char* name) {
    ClickRow(form, 0);
    WhenFormShows("frmEditValue", [name](QWidget& dialog) {
      TextOf(dialog, "txtValue").setText(name);
      Click(dialog, "cmdOK");
    });
    Click(form, "cmdEdit");
  }
  static std::vector<std::string> NamesOf(std::int32_t tableType) {
    std::vector<std::string> names;
    for (const TableItem& row : *GetTable(tableType)) names.push_back(row.Name);
    return names;
  }
  bool IsModified() { return program_.shell().GetConFile()->IsModified(); }
};

}  // namespace parlate::testing_support
