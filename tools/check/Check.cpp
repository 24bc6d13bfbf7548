#include "tools/check/Check.h"

#include "loader/common/SizeGuard.h"
#include "model/ExecutionContinuous.h"
#include "model/PriorityScenario.h"
#include "tools/check/rules/Rules.h"
#include "tools/check/rules/TableRows.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <memory>
#include <optional>
#include <stdexcept>
#include <tuple>
#include <utility>
#include <vector>

namespace LagomareTools {

namespace {

constexpr std::array<std::pair<Kind, ElementType>, 4> elementTypes{{{Kind::reservoir, ElementType::Reservoir},
                                                                    {Kind::demand, ElementType::HumanDemand},
                                                                    {Kind::junction, ElementType::Junction},
                                                                    {Kind::link, ElementType::NaturalLink}}};

/// An empty scenario that is as large as the settings say.
std::shared_ptr<PriorityScenario> makeScenario(const Settings& settings) {
  auto scenario =
      std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), 0, *settings.interval, "");
  if (settings.numOfStates > 0)
    scenario->getHydrologicalStateConfiguration()->setXValues(std::vector<double>(settings.numOfStates - 1U));
  return scenario;
}

/// The import's own limit.
void checkSize(Inspection& inspection) {
  if (!inspection.settings.interval)
    return;
  Lagomare::SizeGuard guard(*makeScenario(inspection.settings));
  for (const auto& [kind, type] : elementTypes) {
    const auto isOfKind = [wanted = kind](const auto& entry) { return entry.second.kind == wanted; };
    const auto& [nodes, links] = std::tie(inspection.elements.nodes, inspection.elements.links);
    const auto count =
        std::count_if(nodes.begin(), nodes.end(), isOfKind) + std::count_if(links.begin(), links.end(), isOfKind);
    try {
      guard.add(type, static_cast<std::size_t>(count));
    } catch (const std::length_error&) {
      inspection.findings.add(
          Code::tooManyValues, Place{inspection.schema.tables.front().name},
          [&, wanted = kind] {
            return fmt::format("{} elements of the kind {} in {} hydrological states", count, nameOf(wanted),
                               inspection.settings.numOfStates);
          },
          static_cast<std::size_t>(kind));
    }
  }
}

bool isWithoutNodes(const Inspection& inspection, const LegacyTable& table) {
  return inspection.schema.needsNodesForFlows && table.layout == Layout::period && inspection.elements.areNodesKnown &&
         inspection.elements.nodes.empty();
}

void checkTable(Inspection& inspection, const LegacyTable& table) {
  switch (table.layout) {
  case Layout::settings:
    return checkSettings(inspection);
  case Layout::boundaries:
    return checkBoundaries(inspection, table);
  case Layout::nodes:
    return checkNodes(inspection, table);
  case Layout::links:
    checkLinks(inspection, table);
    return checkSize(inspection);
  default:
    if (isWithoutNodes(inspection, table))
      reportNotRead(inspection, table, "the project has no node, and flows are only read for nodes");
    else
      checkOwnedRows(inspection, table);
  }
}

/// A project of the other dialect lacks nearly every table of this one: then one fault says all. Returns whether it is.
bool reportOtherDialect(Inspection& inspection) {
  const char* const wanted = inspection.schema.tables.front().name;
  const Dialect other = otherThan(inspection.dialect);
  const char* const held = schemaOf(other).tables.front().name;
  if (!inspection.listing || findTable(*inspection.listing, wanted) != nullptr ||
      findTable(*inspection.listing, held) == nullptr)
    return false;
  inspection.findings.add(Code::tableMissing, Place{wanted}, [&] {
    return fmt::format("there is no table {}, but the table {} of the dialect {}", wanted, held, nameOf(other));
  });
  inspection.listing.reset(); // all its tables would be told as not read
  return true;
}

void checkTables(Inspection& inspection, const CheckProgress& progress) {
  std::size_t tablesDone = 0;
  for (const LegacyTable& table : inspection.schema.tables) {
    if (progress)
      progress(tablesDone++, inspection.schema.tables.size());
    checkTable(inspection, table);
  }
  checkNetwork(inspection);
}

CheckResult resultOf(Inspection& inspection) {
  CheckResult result{inspection.dialect, inspection.prospect, inspection.findings.sorted(),
                     std::move(inspection.counts), std::nullopt};
  if (inspection.listing)
    result.notRead = findNotRead(*inspection.listing, inspection.schema);
  if (result.prospect == Prospect::imported && result.count(Severity::error) > 0)
    result.prospect = Prospect::failed;
  return result;
}

} // namespace

CheckResult checkProject(Lagomare::QuerySource& source, Dialect dialect, const std::string& lockFile,
                         const CheckProgress& progress) {
  const Schema& schema = schemaOf(dialect);
  Inspection inspection{source, dialect, schema, listTables(source), {}, {}, {}, {}, {}};
  if (!reportOtherDialect(inspection))
    checkTables(inspection, progress);
  if (!lockFile.empty())
    inspection.findings.add(Code::lockFile, {}, [&] { return "there is " + lockFile; });
  return resultOf(inspection);
}

} // namespace LagomareTools
