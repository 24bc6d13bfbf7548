#pragma once

#include "tools/project/Fault.h"

#include <cstddef>

namespace LagomareTools {

/// What can be wrong with a project, in the order in which it is told.
enum class Code {
  tableMissing,
  columnMissing,
  queryRefused,
  noSettings,
  tacticalProject,
  badStart,
  emptyPeriod,
  periodTooLong,
  tooManyValues,
  badId,
  idColumnMoved,
  notANumber,
  numberOutOfRange,
  priorityOutOfRange,
  idOfTwoNodes,
  linkEndUnknown,
  idOfOtherKind,

  furtherSettingsRows,
  tableNotRead,
  unknownKind,
  unknownId,
  repeatedId,
  rowsBeyondPeriod,
  rowsBeyondYear,
  stateNotRead,
  limitOfOtherState,
  twoWayPartner,
  rowsOutOfOrder,
  statesOutOfOrder,
  monthUnreadable,
  tooFewRows,
  elementWithoutRows,
  numberCut,
  idWrapped,
  priorityTruncated,
  columnRenamed,
  lockFile,

  noNaturalFlow,
  orderNotChecked,
  drainFound,
  missingValueMark,
  negativeValue,
  fractionOutside,
  boundariesNotRising,
  volumesOutOfOrder,
  curveTooShort,
  curveNotRising,
  curveNotCovering,
  positionOutsideZone,
  positionShared,
  nameEmpty,
  nameRepeated,
  linkToItself,
  linkRepeated,
  nodeWithoutLinks,
  networkInParts,
};
constexpr std::size_t numOfCodes = static_cast<std::size_t>(Code::networkInParts) + 1;

/// What a warning means for the rows that its faults stand for.
enum class Rows {
  none,           ///< nothing
  notTaken,       ///< the import does not take them; each such row has one such fault
  takenOtherwise, ///< they come in otherwise than they are meant
};

/// A code as users see it. Static texts.
struct Rule {
  Code code;
  const char* slug; ///< never changed once published
  Severity severity;
  Rows rows;
  const char* meaning;
  const char* remedy;
};

[[nodiscard]] const Rule& ruleOf(Code code);
[[nodiscard]] const Rule& ruleOf(const Fault& fault);

} // namespace LagomareTools
