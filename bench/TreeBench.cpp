// Times the tree of conversations against a QTreeWidget with the same nodes, filled as one would
// fill it: items made first, then put in and sorted. Both are filled, expanded, laid out and
// painted once. With --check a missed target ends the program with 1.

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QString>
#include <QTreeWidget>
#include <array>
#include <cstddef>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/Comparison.h"
#include "bench/Generator.h"
#include "bench/Measure.h"
#include "shell/ConversationTree.h"
#include "widgets/CodePageText.h"
#include "widgets/ConversationTreeModel.h"
#include "widgets/ConversationTreeView.h"

namespace {

using parlate::ConversationTree;
using parlate::ConversationTreeModel;
using parlate::ConversationTreeView;
using parlate::TreeNode;
using parlate::bench::Comparison;
using parlate::bench::Median;
using parlate::bench::Milliseconds;

constexpr int kConversations = 32767;
constexpr int kActors = 40;
constexpr int kRounds = 7;
constexpr double kTarget = 0.2;
constexpr QSize kSize(300, 600);

struct Entry {
  int actor = 0;
  std::string name;
  QString shownName;  ///< The yardstick is not charged for converting.
};

/// Conversations in no order, owned by turns.
std::vector<Entry> MakeEntries() {
  std::vector<Entry> entries(kConversations);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    constexpr std::size_t kStride = 12343;  // has no factor in common with the count
    const std::size_t number = i * kStride % entries.size();
    entries[i].actor = static_cast<int>(number % kActors);
    entries[i].name = parlate::bench::ConversationName(static_cast<int>(number));
    entries[i].shownName = parlate::ToQString(entries[i].name);
  }
  return entries;
}

std::string ActorName(int actor) { return "Actor" + std::to_string(actor); }

void Finish(QAbstractScrollArea& area) {
  QCoreApplication::processEvents();
  area.viewport()->repaint();
}

void FillNodes(ConversationTree& tree, const std::vector<Entry>& entries) {
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const Entry& entry = entries[i];
    TreeNode* actor = tree.FindActor(entry.actor);
    if (actor == nullptr) {
      actor = &tree.AddActor(entry.actor, ActorName(entry.actor));
      tree.SetExpanded(*actor, true);
    }
    tree.AddConversation(*actor, static_cast<int>(i), entry.name);
  }
}

/// The item of an entry, or of its actor, without a place yet.
QTreeWidgetItem* NewItem(const QString& text, const QIcon& icon) {
  auto* item = new QTreeWidgetItem({text});
  item->setIcon(0, icon);
  return item;
}

void FillOneByOne(QTreeWidget& widget, const std::vector<Entry>& entries, const QIcon& icon) {
  std::vector<QTreeWidgetItem*> actors(kActors);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    QTreeWidgetItem*& actor = actors[static_cast<std::size_t>(entries[i].actor)];
    if (actor == nullptr) {
      actor = NewItem(parlate::ToQString(ActorName(entries[i].actor)), icon);
      widget.addTopLevelItem(actor);
      actor->setExpanded(true);
    }
    QTreeWidgetItem* item = NewItem(entries[i].shownName, icon);
    item->setData(0, Qt::UserRole, static_cast<int>(i));
    actor->addChild(item);
  }
  for (QTreeWidgetItem* actor : actors) actor->sortChildren(0, Qt::AscendingOrder);
}

void FillAtOnce(QTreeWidget& widget, const std::vector<Entry>& entries, const QIcon& icon) {
  QList<QTreeWidgetItem*> actors;  // in the order of their first conversation
  std::vector<QTreeWidgetItem*> actorOf(kActors);
  std::vector<QList<QTreeWidgetItem*>> children(kActors);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    const auto owner = static_cast<std::size_t>(entries[i].actor);
    if (actorOf[owner] == nullptr) {
      actorOf[owner] = NewItem(parlate::ToQString(ActorName(entries[i].actor)), icon);
      actors.append(actorOf[owner]);
    }
    QTreeWidgetItem* item = NewItem(entries[i].shownName, icon);
    item->setData(0, Qt::UserRole, static_cast<int>(i));
    children[owner].append(item);
  }
  for (std::size_t owner = 0; owner < actorOf.size(); ++owner) {
    actorOf[owner]->addChildren(children[owner]);
    actorOf[owner]->sortChildren(0, Qt::AscendingOrder);
  }
  widget.addTopLevelItems(actors);
  widget.expandAll();
}

/// A time counts only if all nodes have got their place.
bool ShowsAll(const QTreeView& view) {
  const QModelIndex root;
  const QAbstractItemModel& model = *view.model();
  int nodes = model.rowCount(root);
  for (int row = 0; row < model.rowCount(root); ++row) {
    const QModelIndex actor = model.index(row, 0, root);
    if (!view.isExpanded(actor)) return false;
    nodes += model.rowCount(actor);
  }
  return nodes == kConversations + kActors;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication app(argc, argv);
  const bool checks = QApplication::arguments().contains(QStringLiteral("--check"));

  const std::vector<Entry> entries = MakeEntries();
  QPixmap picture(16, 16);
  picture.fill(Qt::darkGreen);
  const QIcon icon(picture);

  ConversationTree tree;
  ConversationTreeModel model(tree);
  model.SetImages({icon, icon, icon, icon});
  ConversationTreeView view(model);
  QTreeWidget oneByOne;
  QTreeWidget atOnce;
  for (QTreeView* each : {static_cast<QTreeView*>(&oneByOne), static_cast<QTreeView*>(&atOnce)}) {
    each->setHeaderHidden(true);
    each->setUniformRowHeights(true);
  }
  const std::array<QTreeView*, 3> views = {&view, &oneByOne, &atOnce};
  for (QTreeView* each : views) {
    each->resize(kSize);
    each->show();
    Finish(*each);
  }

  std::vector<double> ours;
  std::vector<double> yardstick;
  std::vector<double> comparison;
  bool shown = true;
  for (int round = 0; round < kRounds; ++round) {
    tree.Clear();
    oneByOne.clear();
    atOnce.clear();
    for (QTreeView* each : views) Finish(*each);
    ours.push_back(Milliseconds([&] {
      tree.BeginBulk();
      FillNodes(tree, entries);
      tree.EndBulk();
      Finish(view);
    }));
    yardstick.push_back(Milliseconds([&] {
      FillOneByOne(oneByOne, entries, icon);
      Finish(oneByOne);
    }));
    comparison.push_back(Milliseconds([&] {
      FillAtOnce(atOnce, entries, icon);
      Finish(atOnce);
    }));
    for (const QTreeView* each : views) shown = shown && ShowsAll(*each);
  }
  if (!shown) {
    std::fprintf(stderr, "a tree does not show its nodes\n");
    return 2;
  }
  const double filled = Median(ours);
  const Comparison comparisons[] = {
      {"fill", filled, "QTreeWidget, one after the other", Median(yardstick), kTarget},
      {"fill", filled, "QTreeWidget that knows all ahead", Median(comparison)},
  };
  const bool met = parlate::bench::Report(comparisons);
  return checks && !met ? 1 : 0;
}
