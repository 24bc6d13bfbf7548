#include "tools/check/result/Rule.h"

#include <algorithm>
#include <array>

namespace LagomareTools {

namespace {

constexpr auto error = Severity::error;
constexpr auto warning = Severity::warning;
constexpr auto note = Severity::note;

constexpr std::array<Rule, numOfCodes> rules{{
    {Code::tableMissing, "table-missing", error, Rows::none, "The project lacks a table that the import reads.",
     "Add the table; an empty one will do if there is nothing to put into it. If many tables are missing, check "
     "--dialect."},
    {Code::columnMissing, "column-missing", error, Rows::none, "A table lacks a column that the import reads.",
     "Add the column. In a table that is read by position, the columns must stand in the order of the dialect."},
    {Code::queryRefused, "query-refused", error, Rows::none, "The query executable could not read a table.",
     "Mend what its reason says."},
    {Code::noSettings, "no-settings", error, Rows::none,
     "The table of general settings has no row, so this is no valid project.",
     "Add the row of general settings: start, duration, hydrological states, kind of simulation."},
    {Code::tacticalProject, "tactical-project", error, Rows::none,
     "The general settings say that this is a tactical-planning project, which the import refuses.",
     "Import a project whose TipoSimul is 0."},
    {Code::badStart, "bad-start", error, Rows::none,
     "The start of the project is no date, or its year or month does not exist (years 1 to 9999, months 1 to 12).",
     "Write the start into the general settings."},
    {Code::emptyPeriod, "empty-period", error, Rows::none, "The duration is 0 years, so the project has no month.",
     "Write the duration in years, at least 1, into the general settings."},
    {Code::periodTooLong, "period-too-long", error, Rows::none, "The duration leads past the year 9999.",
     "Write the duration in years, not in months or days, into the general settings."},
    {Code::tooManyValues, "too-many-values", error, Rows::none,
     "The series of so many elements over so long a period and in so many states would hold more than 2^30 values.",
     "Look for a wrong duration, or for too many rows in the table of boundaries between hydrological states."},
    {Code::badId, "bad-id", error, Rows::none,
     "The id of a row is empty or no whole number from 0 to 4294967295. The import stops at it, whatever else the row "
     "holds.",
     "Write the id of an element, or remove the row."},
    {Code::idColumnMoved, "id-column-moved", error, Rows::none,
     "The import finds the elements of a table by the name of its id column and reads them by the first column, but "
     "the id column is not the first one.",
     "Put the columns into the order of the dialect."},
    {Code::notANumber, "not-a-number", error, Rows::none,
     "A field that the import reads as a number is empty or holds none.",
     "Write a number, with a decimal point and without a unit."},
    {Code::numberOutOfRange, "number-out-of-range", error, Rows::none,
     "A number is too large or too small: whole numbers go from 0 to 4294967295, others have double precision.",
     "Correct the number; what is nearly 0 is written 0."},
    {Code::priorityOutOfRange, "priority-out-of-range", error, Rows::none,
     "A priority does not fit its integer: from -2147483648 to 2147483647 in general, from 0 to 4294967295 in a "
     "hydrological state.",
     "Correct the priority."},
    {Code::idOfTwoNodes, "id-of-two-nodes", error, Rows::none,
     "Two nodes of different kinds have the same id. Reservoirs, demands and junctions share their ids.",
     "Give each node an id of its own, also in the tables that refer to it."},
    {Code::linkEndUnknown, "link-end-unknown", error, Rows::none,
     "A link begins or ends at a node that the project lacks.",
     "Correct the id of the node, add the node, or remove the link."},
    {Code::idOfOtherKind, "id-of-other-kind", error, Rows::none,
     "A table of the demands holds a row of a reservoir. With hydrological states the import stops at it.",
     "Correct the id, or remove the row."},

    {Code::furtherSettingsRows, "further-settings-rows", warning, Rows::notTaken,
     "The table of general settings has more than one row. The import takes the one whose first column, as a number, "
     "is "
     "the smallest; of a date that is the day of the month.",
     "Keep the one row that is meant."},
    {Code::tableNotRead, "table-not-read", warning, Rows::notTaken,
     "The import does not read a table at all, because of what stands elsewhere.",
     "Nothing, if its rows are not needed. Otherwise change what the message names."},
    {Code::unknownKind, "unknown-kind", warning, Rows::notTaken,
     "The kind of a node (Tipo) is none that the import knows: 1 junction, 2 reservoir, 3 demand.",
     "Write the kind, or remove the row."},
    {Code::unknownId, "unknown-id", warning, Rows::notTaken,
     "The project has no element with the id of a row, or not of the kind that the table is for.",
     "Correct the id, add the element, or remove the rows."},
    {Code::repeatedId, "repeated-id", warning, Rows::notTaken,
     "An id has more rows than the import takes: where one row counts, it is the first one.",
     "Keep the row that is meant, or give the other element an id of its own."},
    {Code::rowsBeyondPeriod, "rows-beyond-period", warning, Rows::notTaken,
     "A series has more rows than the period has months. Row 1 is the first month, whatever its date says; the rows "
     "beyond the last month stay behind.",
     "Remove the rows that lie outside the period, or correct the start and the duration in the general settings."},
    {Code::rowsBeyondYear, "rows-beyond-year", warning, Rows::notTaken,
     "A table of twelve months has more than twelve rows of an id. The first twelve count; they repeat every year.",
     "Keep twelve rows, January first."},
    {Code::stateNotRead, "state-not-read", warning, Rows::notTaken,
     "A row belongs to a hydrological state that the project does not have, or to none. n boundaries make n + 1 "
     "states; "
     "a project that does not ask for states reads only the rows of state 1.",
     "Correct the state, the table of boundaries, or the switch of the states in the general settings."},
    {Code::limitOfOtherState, "limit-of-other-state", warning, Rows::notTaken,
     "A link has one flow limit, that of hydrological state 1. The limits of other states stay behind.",
     "Nothing, if they are the same. Otherwise know that the limit of state 1 holds in every state."},
    {Code::twoWayPartner, "two-way-partner", warning, Rows::notTaken,
     "Two opposite links between two reservoirs come in as one link for both directions. It keeps the name, limit and "
     "loss of the one; those of the other stay behind.",
     "Nothing, if the two are alike. Otherwise put a junction into one of the two links to keep both."},
    {Code::rowsOutOfOrder, "rows-out-of-order", warning, Rows::takenOtherwise,
     "The months of a series do not follow each other from the first month on: one is missing or doubled, the series "
     "begins elsewhere, or it runs backwards. The import does not look at the months: row 1 is the first month of the "
     "period (or January), row 2 the next, and so on.",
     "Sort the rows by date, add a row for each missing month, remove doubled ones and those before the period."},
    {Code::statesOutOfOrder, "states-out-of-order", warning, Rows::takenOtherwise,
     "The priorities of an id do not stand in the order of the hydrological states. The import does not look at the "
     "states: row 1 is state 1, row 2 state 2, and so on.",
     "Sort the rows by state, one row per state."},
    {Code::monthUnreadable, "month-unreadable", warning, Rows::none,
     "The date, year or month of a row cannot be read, so nobody can say whether the row stands where it is meant.",
     "Write a date, a year, or a month from 1 to 12."},
    {Code::tooFewRows, "too-few-rows", warning, Rows::none,
     "A series has fewer rows than it needs: one per month of the period, or twelve, or one per state.",
     "Add the missing rows."},
    {Code::elementWithoutRows, "element-without-rows", warning, Rows::none,
     "An element has no row in a table that says something about it, or none for one of the hydrological states.",
     "Add the rows, or accept what the message says."},
    {Code::numberCut, "number-cut", warning, Rows::takenOtherwise,
     "The import takes only the beginning of a number, up to a comma, a blank or a letter.",
     "Write the number with a decimal point, without thousands separators and without a unit."},
    {Code::idWrapped, "id-wrapped", warning, Rows::takenOtherwise,
     "The id of an element is negative. The import counts down from 4294967296: -1 comes in as 4294967295.",
     "Give the element an id from 0 to 4294967295, also in the tables that refer to it."},
    {Code::priorityTruncated, "priority-truncated", warning, Rows::takenOtherwise,
     "A priority is no whole number. The import drops what follows the point.", "Write whole numbers."},
    {Code::columnRenamed, "column-renamed", warning, Rows::none,
     "A column of a table that is read by position bears another name than the dialect gives it.",
     "Check that the columns stand in the order of the dialect; then give the column its name."},
    {Code::lockFile, "lock-file", warning, Rows::none,
     "A lock file of Access stands beside the project: another program may have it open, and may be changing it.",
     "Close the project there. If nobody has it open, remove the lock file."},

    {Code::noNaturalFlow, "no-natural-flow", note, Rows::none,
     "A reservoir or junction has no row of natural flow. It stays 0.", "Nothing, if no river joins there."},
    {Code::orderNotChecked, "order-not-checked", note, Rows::none,
     "A table lacks the column that tells the month or the state of its rows, so their order cannot be checked.",
     "Make sure that the rows stand in the order of the months."},
    {Code::drainFound, "drain-found", note, Rows::none,
     "A demand is at least 1000 m³/s in every month, so the import makes a drain of it and drops this demand.",
     "Nothing, if it is one. Otherwise correct the demand."},
    {Code::missingValueMark, "missing-value-mark", note, Rows::none,
     "A value looks like a mark for a missing one, such as -999, -9999 or 1e30, or it is not finite. The import takes "
     "it "
     "for a number.",
     "Write a value."},
    {Code::negativeValue, "negative-value", note, Rows::none, "A flow, demand, limit, area or volume is negative.",
     "Correct the value."},
    {Code::fractionOutside, "fraction-outside", note, Rows::none,
     "A fraction lies outside 0 to 1: a loss, a target volume, or a boundary between hydrological states.",
     "Write a fraction, not a percentage."},
    {Code::boundariesNotRising, "boundaries-not-rising", note, Rows::none,
     "The boundaries between the hydrological states do not rise from one id to the next.",
     "Number the boundaries from the lowest to the highest."},
    {Code::volumesOutOfOrder, "volumes-out-of-order", note, Rows::none,
     "The volumes of a reservoir are not in order: minimum, initial, maximum.", "Correct the volumes."},
    {Code::curveTooShort, "curve-too-short", note, Rows::none, "The curve of a reservoir has a single point.",
     "Add points: level, area, volume."},
    {Code::curveNotRising, "curve-not-rising", note, Rows::none,
     "A point of a curve does not lie above the one before it, in level or volume, or its area is smaller. The import "
     "keeps the points in their stored order.",
     "Sort the points by level, and correct those that do not rise."},
    {Code::curveNotCovering, "curve-not-covering", note, Rows::none,
     "The curve of a reservoir does not reach from its minimum to its maximum volume.",
     "Add points, or correct the volumes."},
    {Code::positionOutsideZone, "position-outside-zone", note, Rows::none,
     "A node lies outside the UTM zone of the project, more than half a degree beyond its edges.",
     "Check the coordinates (UTM, in metres) and --utm-zone."},
    {Code::positionShared, "position-shared", note, Rows::none, "Two nodes have the same position.",
     "Check the coordinates."},
    {Code::nameEmpty, "name-empty", note, Rows::none, "An element has no name.", "Write a name."},
    {Code::nameRepeated, "name-repeated", note, Rows::none, "Two nodes, or two links, have the same name.",
     "Give them different names."},
    {Code::linkToItself, "link-to-itself", note, Rows::none, "A link ends at the node where it begins.",
     "Correct one of its ends."},
    {Code::linkRepeated, "link-repeated", note, Rows::none, "Two links lead from the same node to the same node.",
     "Remove one of them, if they are the same."},
    {Code::nodeWithoutLinks, "node-without-links", note, Rows::none, "No link begins or ends at a node.",
     "Add the link, or remove the node."},
    {Code::networkInParts, "network-in-parts", note, Rows::none, "The network falls into parts that no link joins.",
     "Add the link, if the parts belong together."},
}};

constexpr bool areInOrder() {
  for (std::size_t at = 0; at < rules.size(); ++at)
    if (static_cast<std::size_t>(rules[at].code) != at)
      return false;
  return true;
}
static_assert(areInOrder(), "a rule per code, in the order of the codes");

} // namespace

const Rule& ruleOf(Code code) { return rules[static_cast<std::size_t>(code)]; }

const Rule& ruleOf(const Fault& fault) {
  return *std::find_if(rules.begin(), rules.end(), [&fault](const Rule& rule) { return rule.slug == fault.code; });
}

} // namespace LagomareTools
