#include "support/ShellFixture.h"

#include <stdexcept>

namespace parlate::testing_support {

RecordingShellView::~RecordingShellView() {
  EXPECT_TRUE(labelAnswers_.empty()) << labelAnswers_.size() << " label reports did not come";
}

bool RecordingShellView::ShowMissingLabels(const std::vector<BadLabelRow>& rows, bool bSaving) {
  LabelReport report{{}, bSaving};
  for (const BadLabelRow& row : rows) report.rows.push_back(*row.conversation + ":" + row.label);
  labelReports.push_back(report);
  if (labelAnswers_.empty()) {
    ADD_FAILURE() << "unexpected report of missing labels";
    return false;
  }
  const bool answer = labelAnswers_.front();
  labelAnswers_.pop_front();
  return answer;
}

Program::Program(const std::string& username) {
  workspace.now = [this] { return moment; };
  workspace.defaults.Username = username;
  const WorkspaceScope scope(workspace);
  shell = std::make_unique<Shell>(view, Shell::Doors{messages, dialogs, progress});
}

const MessageBox& ShellTest::LastBox() const {
  static const MessageBox none{};
  return program_.messages.shown.empty() ? none : program_.messages.shown.back();
}

void ShellTest::Open(const std::string& bytes, const std::string& name) {
  WriteBytes(Path(name), bytes);
  Window().OpenConFile(Path(name));
  ASSERT_NE(Window().GetConFile(), nullptr);
}

Conversation& ShellTest::ConOf(std::int32_t key) {
  return Window().GetConFile()->Conversations.At(key);
}

TreeNode& ShellTest::Click(const std::string& nodeKey) {
  TreeNode* node = Window().tvCons().FindNode(nodeKey);
  if (node == nullptr) throw std::runtime_error("no node " + nodeKey);
  Window().tvCons().SetSelectedItem(node);
  Window().NodeClick(*node);
  return *node;
}

void ShellTest::ClickRow(std::int32_t row) {
  Window().lstEvents().SetListIndex(row);
  Window().ListClick();
}

std::vector<std::string> ShellTest::TreeLines() {
  std::vector<std::string> lines;
  Window().tvCons().Walk([&](TreeNode& node) {
    std::string indent;
    for (const TreeNode* up = node.parent; up->parent != nullptr; up = up->parent) indent += "  ";
    lines.push_back(indent + node.Text());
  });
  return lines;
}

std::vector<std::string> ShellTest::RowTexts() {
  std::vector<std::string> texts;
  const ListRows& rows = Window().lstEvents();
  for (std::size_t i = 0; i < rows.ListCount(); ++i) texts.push_back(rows.Row(i).text);
  return texts;
}

std::vector<std::int32_t> ShellTest::RowKeys() {
  std::vector<std::int32_t> keys;
  const ListRows& rows = Window().lstEvents();
  for (std::size_t i = 0; i < rows.ListCount(); ++i) keys.push_back(rows.Row(i).itemData);
  return keys;
}

std::vector<std::int32_t> ShellTest::RowColors() {
  std::vector<std::int32_t> colors;
  const ListRows& rows = Window().lstEvents();
  for (std::size_t i = 0; i < rows.ListCount(); ++i) colors.push_back(rows.Row(i).color);
  return colors;
}

std::vector<std::int32_t> ShellTest::ListPositions() {
  std::vector<std::int32_t> positions;
  for (const EventItem& event : Window().SelectedCon()->events) positions.push_back(event.listPos);
  return positions;
}

}  // namespace parlate::testing_support
