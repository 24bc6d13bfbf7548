#include "tools/export/report/HtmlText.h"
#include "tools/export/report/KindLook.h"
#include "tools/export/report/ReportParts.h"
#include "tools/system/Text.h"

#include <array>
#include <cstdint>
#include <fmt/format.h>
#include <map>
#include <string>

namespace LagomareTools {

namespace {

std::string monthText(const Date& date) {
  constexpr std::array<const char*, 12> names{"January", "February", "March",     "April",   "May",      "June",
                                              "July",    "August",   "September", "October", "November", "December"};
  return fmt::format("{} {}", names.at(date.getMonth() - 1U), date.getYear());
}

std::string periodText(const Interval& interval) {
  if (interval.isEmpty())
    return "empty";
  return fmt::format("{} to {} ({})", monthText(interval.getBegin()), monthText(interval.getEnd()),
                     counted(monthsOf(interval), "month"));
}

std::string statesText(const HydrologicalStateConfiguration& states) {
  const std::string kind = states.getCurrentHydrologicalStateType().name;
  if (states.getNumOfStates() == 0)
    return "none (" + kind + ")";
  std::string boundaries;
  for (const double boundary : states.getXValues())
    boundaries += (boundaries.empty() ? ", parted at " : " and ") + figureText(boundary);
  return fmt::format("{} ({}){}", states.getNumOfStates(), kind, boundaries);
}

void writeFact(FileWriter& out, const char* label, const std::string& text) {
  out.write(fmt::format("<div><dt>{}</dt><dd>{}</dd></div>\n", label, htmlText(text)));
}

struct KindCount {
  std::string name;
  std::size_t count = 0;
};

void writeCount(FileWriter& out, std::int32_t kind, const KindCount& kindCount, const std::string& picture) {
  out.write(fmt::format(
      R"(<li class="kind-{}"><svg viewBox="-12 -12 24 24" aria-hidden="true">{}</svg><b>{}</b> <span>{}</span></li>)"
      "\n",
      kind, picture, kindCount.count, htmlText(kindCount.name)));
}

} // namespace

void writeReportFacts(FileWriter& out, const ExportInput& input) {
  const Scenario& scenario = *input.imported.result.scenario;
  writeFact(out, "Scenario", scenario.getName());
  writeFact(out, "Period", periodText(scenario.getInterval()));
  writeFact(out, "Hydrological states", statesText(statesOf(scenario)));
  writeFact(out, "Dialect", nameOf(input.imported.dialect));
  writeFact(out, "UTM zone", textOf(input.utmZone) + (input.isZoneAssumed ? " (assumed)" : ""));
}

void writeReportCounts(FileWriter& out, const Network& network) {
  std::map<std::int32_t, KindCount> counts;
  const auto count = [&counts](const Element& element) {
    KindCount& kind = counts[element.getElementType()->id];
    kind.name = element.getElementType()->name;
    ++kind.count;
  };
  std::size_t twoWay = 0;
  for (const auto& node : network.nodes)
    count(*node);
  for (const auto& link : network.links) {
    count(*link);
    twoWay += link->getIsBidirectional() ? 1U : 0U;
  }
  const auto linkPicture = [](bool isTwoWay) {
    return fmt::format(R"(<path class="line" d="M-12 0H12"/><path class="arrow" d="{}"/>)", arrowPath(isTwoWay));
  };
  for (const auto& [kind, kindCount] : counts) {
    const auto type = static_cast<ElementType>(kind);
    writeCount(out, kind, kindCount,
               linkTypes.count(type) != 0 ? linkPicture(false)
                                          : fmt::format(R"(<path class="symbol" d="{}"/>)", lookOf(type).path));
  }
  if (twoWay != 0)
    writeCount(out, static_cast<std::int32_t>(ElementType::Link), {"of them two-way", twoWay}, linkPicture(true));
}

} // namespace LagomareTools
