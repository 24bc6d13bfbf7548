#pragma once

#include "tools/check/result/Findings.h"
#include "tools/check/result/Rule.h"
#include "tools/check/rules/Inspection.h"
#include "tools/check/tables/Listing.h"
#include "tools/check/tables/RowReader.h"
#include "tools/check/tables/Tables.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace LagomareTools {

/// The rows of a table on their way through the rules: reads them, counts them, and says where a fault lies. Columns
/// are counted as in the description of the table, from 0.
class TableRows {
public:
  /// Asks for the table. Where that fails the reason is among the findings, and there are no rows. Both must outlive
  /// this.
  TableRows(Inspection& inspection, const LegacyTable& table);
  TableRows(const TableRows&) = delete;
  TableRows& operator=(const TableRows&) = delete;

  /// Whether the table could be read: to its end, once next() has returned false.
  [[nodiscard]] bool isRead() const { return isRead_; }
  [[nodiscard]] const LegacyTable& table() const { return table_; }

  /// Goes to the next row, which has no owner yet. False after the last one.
  [[nodiscard]] bool next();
  [[nodiscard]] std::size_t number() const { return reader_->number(); }
  /// The current row as text, and such a row as the current one once all are read; `line` must stay.
  [[nodiscard]] std::string_view line() const { return reader_->line(); }
  void recall(std::size_t number, std::string_view line) { reader_->recall(number, line); }
  /// Whether the column was asked for: those of months may be missing.
  [[nodiscard]] bool has(std::size_t column) const { return column < places_.size() && places_[column].has_value(); }
  /// A field of the current row; nothing where the row lacks it. Valid until next().
  [[nodiscard]] std::optional<std::string_view> at(std::size_t column) const;
  /// All fields of the current row, in the order of the query.
  [[nodiscard]] const std::vector<std::string_view>& fields() const { return reader_->fields(); }

  /// From now on the row's faults name this element. `name` must stay.
  void setOwner(std::optional<std::uint32_t> id, std::string_view name);
  /// The row, or a field of it.
  [[nodiscard]] Place place() const;
  [[nodiscard]] Place place(std::size_t column) const;

  /// The import takes the row.
  void take() { ++count_->taken; }
  /// The import drops a row that it had taken.
  void drop() { --count_->taken; }
  template <typename MakeMessage>
  void add(Code code, const Place& place, MakeMessage makeMessage, std::size_t part = 0) {
    inspection_.findings.add(code, place, makeMessage, part);
  }

private:
  [[nodiscard]] bool findColumns();
  [[nodiscard]] bool findColumnsByPosition(const ListedTable& listed);
  [[nodiscard]] bool findColumnsByName(const ListedTable& listed);
  void open();
  [[nodiscard]] bool ask(bool withMonths, std::string& refusal);
  void refuse(const std::string& reason);

  Inspection& inspection_;
  const LegacyTable& table_;
  TableCount* count_ = nullptr;                    ///< the last one of the inspection
  std::vector<std::optional<std::size_t>> places_; ///< of each column among the fields
  std::optional<RowReader> reader_;
  bool isRead_ = false;
  bool isFirstWaiting_ = false; ///< the first row is read, but next() has not shown it
  std::optional<std::uint32_t> id_;
  std::string_view element_;
};

/// Whether a column tells what a row is meant to be, without the import looking at it.
[[nodiscard]] bool tellsMonth(const LegacyTable& table, const LegacyColumn& column);

/// For a table that the import does not ask for, and why: its rows are counted, and none of them is taken.
void reportNotRead(Inspection& inspection, const LegacyTable& table, const std::string& reason);

} // namespace LagomareTools
