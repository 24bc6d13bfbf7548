#pragma once

#include "tools/export/ExportInput.h"
#include "tools/export/ScenarioView.h"
#include "tools/system/FileWriter.h"

#include <optional>
#include <vector>

namespace LagomareTools {

// The parts of the page, each written where the page's template names it. All throw Failure.

/// Name, period, states and so on, as the items of a description list.
void writeReportFacts(FileWriter& out, const ExportInput& input);
/// How many there are of each kind, which is the map's legend too.
void writeReportCounts(FileWriter& out, const Network& network);
/// Nothing: no check was made.
void writeReportFaults(FileWriter& out, const std::optional<std::vector<Fault>>& faults, const Network& network);
/// The table of the nodes and that of the links.
void writeReportTables(FileWriter& out, const Scenario& scenario, const Network& network);
/// What the page's script shows of a chosen element: two elements of script that hold no script.
void writeReportData(FileWriter& out, const Scenario& scenario, const Network& network);

} // namespace LagomareTools
