// Imports a project and prints what came in, but for positions: with every core the same.

#include "loader/LagomareProjectLoader.h"
#include "model/Calendar.h"
#include "model/Link.h"
#include "model/Node.h"
#include "model/PriorityReservoirSettings.h"
#include "model/PriorityScenario.h"
#include "model/Reservoir.h"

#include <iomanip>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>

namespace {

/// Of the values over the series' interval; later ones weigh more, so that none can take another's place.
double weightOf(const Serie& serie) {
  const Interval interval = serie.getInterval();
  double weight = 0.0;
  double month = 1.0;
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    weight += serie.getValue(date) * ++month;
  return weight;
}

void printPart(std::ostream& out, const std::shared_ptr<Element>& element) {
  if (const auto link = std::dynamic_pointer_cast<Link>(element))
    out << ", from " << link->upstream.lock()->bdId << " to " << link->downstream.lock()->bdId
        << (link->getIsBidirectional() ? " and back" : "");
  if (const auto node = std::dynamic_pointer_cast<Node>(element))
    out << ", links out " << node->getDownstreamLinks().size();
  if (const auto reservoir = std::dynamic_pointer_cast<Reservoir>(element)) {
    const ReservoirInfo info = reservoir->getReservoirInfo();
    out << ", volumes " << info.initialVolume << ' ' << info.minimumVolume << ' ' << info.maximumVolume << ' '
        << info.volumeFlag << ", curve";
    for (const auto& point : info.areaVolumeCurve)
      out << ' ' << point.at(0) << '/' << point.at(1) << '/' << point.at(2);
  }
}

void printSettings(std::ostream& out, const std::shared_ptr<Settings>& settings) {
  if (const auto priority = std::dynamic_pointer_cast<PrioritySettings>(settings)) {
    out << ", priority " << priority->priority;
    for (const auto& [value, serie] : priority->getPrioritySeries())
      out << ", state " << value << ' ' << weightOf(*serie);
  }
  if (const auto reservoir = std::dynamic_pointer_cast<PriorityReservoirSettings>(settings))
    out << ", system " << reservoir->getIsHydrologicalStateSystem();
}

std::string lineOf(Scenario& scenario, const std::shared_ptr<Element>& element) {
  std::ostringstream out;
  out << std::setprecision(17) << element->getElementType()->name << ' ' << element->bdId << ' ' << element->getName();
  printPart(out, element);
  if (std::dynamic_pointer_cast<Node>(element))
    printSettings(out, scenario.getSettingsManager().getSettings(element->bdId));
  std::map<int, double> series; // by kind
  for (const auto& serie : element->getVectorOfSeries(0))
    series[serie->getSerieType().id] = weightOf(*serie);
  for (const auto& [kind, weight] : series)
    out << ", series " << kind << ' ' << weight;
  return out.str();
}

} // namespace

int main(int argc, char* argv[]) {
  if (argc != 4)
    return 2;
  const auto load = argv[1] == std::string("2010") ? LagomareProjectLoader::load2010 : LagomareProjectLoader::load2013;
  const auto result = load(argv[2], argv[3], {});
  std::cout << result.message << '\n';
  std::set<std::string> lines;
  for (const auto& element : result.scenario->getElements())
    lines.insert(lineOf(*result.scenario, element));
  for (const auto& line : lines)
    std::cout << line << '\n';
}
