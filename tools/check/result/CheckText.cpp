#include "tools/check/result/CheckText.h"

#include "tools/check/result/Rule.h"
#include "tools/system/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fmt/format.h>
#include <vector>

namespace LagomareTools {

namespace {

constexpr std::size_t mostOfEach = 10;

std::string placeOf(const Fault& fault) {
  std::string place = fault.table;
  const auto add = [&place](const std::string& part) { place += (place.empty() ? "" : ", ") + part; };
  if (fault.row)
    add(fmt::format("row {}", *fault.row) +
        (fault.rows > 1 ? fmt::format(" and {} more", fault.rows - 1) : std::string()));
  if (fault.id)
    add(fmt::format("id {}", *fault.id));
  if (!fault.element.empty())
    place += fmt::format(" ({})", oneLine(fault.element));
  if (!fault.column.empty())
    add("column " + fault.column);
  return place;
}

using Faults = std::vector<Fault>::const_iterator;

std::string textOfCode(Faults begin, Faults end, bool listsAll) {
  const Rule& rule = ruleOf(*begin);
  std::string text = fmt::format("\n{}: {}\n  {}\n", nameOf(rule.severity), rule.slug, rule.meaning);
  const auto count = static_cast<std::size_t>(end - begin);
  const std::size_t listed = listsAll ? count : std::min(count, mostOfEach);
  for (std::size_t at = 0; at < listed; ++at)
    text += "    " + lineOf(begin[static_cast<std::ptrdiff_t>(at)]) + '\n';
  if (listed < count)
    text += fmt::format("    and {} more; --all lists them\n", count - listed);
  return text + "  To mend: " + rule.remedy + '\n';
}

std::string tablesText(const CheckResult& result) {
  std::string text = fmt::format("\n{:<16}{:>12}{:>12}{:>12}\n", "table", "rows", "taken", "not taken");
  for (const TableCount& table : result.tables)
    text += fmt::format("{:<16}{:>12}{:>12}{:>12}\n", table.table, table.rows, table.taken, table.rows - table.taken);
  return text;
}

std::string notReadText(const std::vector<NotRead>& notRead) {
  std::string text = "\nNo import reads these tables and columns:\n";
  for (const auto& [table, columns] : notRead)
    text += fmt::format("  {}: {}\n", oneLine(table),
                        columns ? oneLine(fmt::format("{}", fmt::join(*columns, ", "))) : "the whole table");
  return text;
}

} // namespace

std::string textOf(const CheckResult& result, const std::string& project, bool listsAll) {
  std::string text = fmt::format("{} (dialect {}): {}\n", oneLine(project), nameOf(result.dialect), countsOf(result));
  for (auto begin = result.faults.begin(); begin != result.faults.end();) {
    const auto end =
        std::find_if(begin, result.faults.end(), [begin](const Fault& fault) { return fault.code != begin->code; });
    text += textOfCode(begin, end, listsAll);
    begin = end;
  }
  if (!result.tables.empty())
    text += tablesText(result);
  return result.notRead && !result.notRead->empty() ? text + notReadText(*result.notRead) : text;
}

std::string lineOf(const Fault& fault) {
  const std::string place = placeOf(fault);
  return oneLine(place.empty() ? fault.message : place + ": " + fault.message);
}

std::string countsOf(const CheckResult& result) {
  return counted(result.count(Severity::error), "error") + ", " + counted(result.count(Severity::warning), "warning") +
         ", " + counted(result.count(Severity::note), "note");
}

std::string rulesText() {
  std::string text =
      "# The faults that `lagomare check` finds\n\n"
      "An error keeps a project from being imported. With a warning the import succeeds, but a row or a "
      "part of a value\nis not taken, or comes in elsewhere than it is meant. A note comes in as it stands "
      "and looks wrong.\n";
  Severity severity = Severity::note;
  for (std::size_t code = 0; code < numOfCodes; ++code) {
    const Rule& rule = ruleOf(static_cast<Code>(code));
    if (rule.severity != severity) {
      constexpr std::array<const char*, 3> headings{"Errors", "Warnings", "Notes"};
      text += fmt::format("\n## {}\n", headings[static_cast<std::size_t>(rule.severity)]);
    }
    severity = rule.severity;
    text += fmt::format("\n### {}\n\n{}{}\n\nTo mend: {}\n", rule.slug, rule.meaning,
                        rule.rows == Rows::notTaken ? " These rows are not taken." : "", rule.remedy);
  }
  return text;
}

} // namespace LagomareTools
