#pragma once

#include "tools/project/Dialect.h"

#include <cstddef>
#include <vector>

namespace LagomareTools {

/// The kinds of elements, in the order in which the import loads them.
enum class Kind { reservoir, demand, junction, link };

/// "reservoir", "demand", "junction" or "link".
[[nodiscard]] const char* nameOf(Kind kind);

/// How the import makes something of a column, or what the column tells about its rows.
enum class Type {
  id,          ///< whole number, in idColumn
  text,        ///< taken as it stands
  wholeNumber, ///< unsigned, 32 bits; switches too
  number,
  priority, ///< number, truncated
  code,     ///< the kind of node; compared by the database
  state,    ///< the hydrological state; compared by the database
  date,
  year,
  month, ///< tell what a row is meant to be; the import does not look at them
  unread ///< neither
};

/// What a column holds. Numbers have the units of the scenario unless told.
enum class Meaning {
  none,
  start,
  startYear,
  startMonth,
  durationYears,
  statesSwitch,
  tacticalFlag,
  boundary,
  easting,
  northing, ///< UTM, m
  upstream,
  downstream, ///< ids of nodes
  maximumVolume,
  minimumVolume,
  initialVolume,
  systemFlag,
  level,
  area,
  volume,
  naturalFlow,
  demand,
  target,
  netEvaporation,
  priority,
  flowLimit,
  loss
};

struct LegacyColumn {
  const char* name;
  Type type;
  Meaning meaning = Meaning::none;
};

/// The column of the ids in every table but the general settings.
inline constexpr std::size_t idColumn = 0;

/// Which rows of a table the import takes, and as what.
enum class Layout {
  settings,     ///< the first row of the smallest first column, which is read as a number
  boundaries,   ///< the first row of each id, in ascending order of id; only if the settings ask for states
  nodes,        ///< the first row of each id makes a node
  links,        ///< the first row of each id makes a link
  oneRow,       ///< the first row of each id
  firstState,   ///< the first row of each id among those of state 1
  points,       ///< all rows of an id, in stored order
  twelveMonths, ///< row i of an id is month i of every year, whatever its month says: rows 1 to 12
  period,       ///< row i of an id is month i of the period, whatever its date says
  priorities ///< of the rows of state 1 the first is the general priority; with states, row i of all is that of state i
};

/// A table of a dialect. Texts are static.
struct LegacyTable {
  const char* name;
  Layout layout;
  bool isReadWhole;                  ///< by "select *": the columns count by their position
  std::vector<LegacyColumn> columns; ///< in stored order
  std::vector<Kind> owners; ///< the kinds whose ids stand in the first column; of nodes: the kinds that it makes
  /// What an element without rows keeps, as a sentence about it; nothing where every element stands in the table.
  const char* ifAbsent = "";
  bool flag = false; ///< of the import's first query on this table

  /// Of the first column with this type or meaning; `columns.size()` where there is none.
  [[nodiscard]] std::size_t columnOf(Type type) const;
  [[nodiscard]] std::size_t columnOf(Meaning meaning) const;
  [[nodiscard]] bool hasStates() const { return columnOf(Type::state) < columns.size(); }
  [[nodiscard]] bool isOwnedBy(Kind kind) const;
};

/// What the import does alike with all tables of a dialect, but not with those of the other.
struct Schema {
  std::vector<LegacyTable> tables; ///< settings, boundaries, nodes, links, then the others
  bool isStatesSwitchZero;         ///< 0 asks for hydrological states, in place of any other number
  /// Natural flows are read once for each kind of node that has rows, and for reservoirs even without: a project
  /// without nodes is not asked for them in 2010.
  bool needsNodesForFlows;
};

/// What a code in a column of Type::code stands for.
struct KindCode {
  const char* text;
  Kind kind;
};
extern const std::vector<KindCode> kindCodes;

[[nodiscard]] const Schema& schemaOf(Dialect dialect);
[[nodiscard]] const Schema& schemaOf2010();
[[nodiscard]] const Schema& schemaOf2013();

} // namespace LagomareTools
