#pragma once

#include <QAbstractListModel>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/RowOrder.h"

namespace parlate {

/// The rows of a combo box as the toolkit sees them.
///
/// To tell the toolkit of a row costs a hundred times as much as to keep it, and a form that is
/// loaded fills combo boxes with many thousand rows that nobody may ever look at. So rows that go
/// to the end are told in one piece, at the latest when the toolkit asks how many there are.
class ComboRows final : public QAbstractListModel {
  Q_OBJECT

 public:
  struct Row {
    std::string text;
    std::int32_t itemData = 0;
  };

  explicit ComboRows(RowOrder order) : order_(order) {}

  [[nodiscard]] int Count() const { return static_cast<int>(rows_.size()); }
  /// The row of an index; nothing for an index without one.
  [[nodiscard]] Row* At(int index);
  [[nodiscard]] const Row* At(int index) const;

  /// Puts a row in its place.
  void Add(const std::string& text);
  /// Puts a row at a place of its own; it must be one of 0 to Count, and nothing may be pending.
  void Insert(const std::string& text, int index);
  /// Takes a row away; the index must have one, and nothing may be pending.
  void Remove(int index);
  void Clear();
  /// Whether the next rows to be told are the first that the toolkit hears of.
  [[nodiscard]] bool FirstRowsPending() const { return told_ == 0 && !rows_.empty(); }
  /// Tells the toolkit of the rows that it has not heard of.
  void TellPending();

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 signals:
  /// Somebody asks for the number of rows while some are pending. Whoever hears it tells them.
  void pendingRowsWanted() const;

 private:
  /// Where a row is kept; the index must have one.
  [[nodiscard]] std::size_t PlaceOf(int index) const;

  RowOrder order_;
  std::vector<Row> rows_;              ///< As they were added.
  std::vector<std::uint32_t> sorted_;  ///< Places in rows_ by name; empty for rows as added.
  int told_ = 0;  ///< So many rows, from the first on, are known to the toolkit.
  bool telling_ = false;
};

}  // namespace parlate
