#pragma once

#include "tools/check/rules/Inspection.h"
#include "tools/check/tables/Tables.h"

namespace LagomareTools {

// The rules, by theme. They run in this order, each on what those before it have put into the inspection.

/// The period, the switch of the states, the refusals.
void checkSettings(Inspection& inspection);
/// The boundaries between the hydrological states.
void checkBoundaries(Inspection& inspection, const LegacyTable& table);
/// A table whose rows make nodes.
void checkNodes(Inspection& inspection, const LegacyTable& table);
/// The table whose rows make links, their ends, and the two-way pairs.
void checkLinks(Inspection& inspection, const LegacyTable& table);
/// A table whose first column names an element that has been found by now.
void checkOwnedRows(Inspection& inspection, const LegacyTable& table);
/// Names, positions, and how the links join the nodes.
void checkNetwork(Inspection& inspection);

} // namespace LagomareTools
