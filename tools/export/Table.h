#pragma once

#include "model/Date.h"
#include "tools/export/ExportInput.h"
#include "tools/export/ScenarioView.h"

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace LagomareTools {

enum class ColumnType { integer, real, truth, date, text };

struct Column {
  const char* name; ///< with its unit, if it has one
  ColumnType type;
};

/// std::monostate where nothing is known; a double is always finite, a text is as people see it (plainText).
using Cell = std::variant<std::monostate, std::int64_t, double, bool, Date, std::string>;

/// The value in a month; empty outside the series' interval and where it is not finite.
[[nodiscard]] Cell valueAt(const Serie& serie, const Date& month);

/// One cell per column, and the line on the map; empty if the row is no element or has no position.
using VisitRow = std::function<void(const std::vector<Cell>& cells, const Line& line)>;

/// A scenario as rows and columns, in the way that CSV, GeoPackage and workbook share.
struct Table {
  const char* name;
  std::vector<Column> columns; ///< the first is the element's id if the table is by element
  bool isByElement;
  /// Calls visit for each row, in the scenario's order. The cells are valid during the call only.
  void (*forEachRow)(const ExportInput& input, const VisitRow& visit);
};

extern const Table nodesTable;
extern const Table linksTable;
extern const Table seriesTable;   ///< tidy: one row per month; state 0 is a base series
extern const Table curvesTable;   ///< points from 1
extern const Table statesTable;   ///< the first state has no lower boundary, the last no upper one
extern const Table scenarioTable; ///< one row

} // namespace LagomareTools
