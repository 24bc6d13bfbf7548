#include "access/Answer.h"
#include "bench/Answers.h"
#include "bench/Basin.h"
#include "bench/Benches.h"
#include "bench/Child.h"
#include "bench/Table.h"
#include "loader/LagomareProjectLoader.h"
#include "model/CoreServiceManager.h"
#include "model/ElementFactory.h"
#include "model/ElementType.h"
#include "model/ExecutionContinuous.h"
#include "model/Link.h"
#include "model/Node.h"
#include "model/PriorityScenario.h"
#include "tools/project/Import.h"
#include "tools/project/Project.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

namespace LagomareBench {

using namespace Lagomare;

namespace {

constexpr std::array<std::pair<const char*, unsigned>, 3> factors{{{"1×", 1}, {"10×", 10}, {"100×", 100}}};

/// Work on n, 10 n and 100 n items: seconds(items) says what that cost. Caches make the largest dearer, a walk over all
/// for each would make it a hundred times dearer.
void addGrowth(Table& table, const std::string& name, Unit unit, unsigned n,
               const std::function<double(unsigned)>& seconds) {
  Work& work = table.add(name, unit);
  for (const auto& [contender, factor] : factors) {
    const unsigned items = n * factor;
    work.add(contender, items, [seconds, items] { return inChild([&] { return seconds(items); }); });
  }
  work.aimAtMost("100×", "1×", 4.0);
}

std::shared_ptr<Scenario> makeScenario() {
  return std::make_shared<PriorityScenario>(std::make_shared<ExecutionContinuous>(), 1U, Interval(), "Bacia");
}

std::shared_ptr<Node> addReservoir(const std::shared_ptr<Scenario>& scenario, unsigned id) {
  auto node = std::dynamic_pointer_cast<Node>(ElementFactory::make(ElementType::Reservoir));
  node->bdId = id;
  scenario->addNode(node, 0, id);
  return node;
}

void addLink(const std::shared_ptr<Scenario>& scenario, unsigned id, const std::shared_ptr<Node>& upstream,
             const std::shared_ptr<Node>& downstream) {
  auto link = std::dynamic_pointer_cast<Link>(ElementFactory::make(ElementType::NaturalLink));
  link->bdId = id;
  link->upstream = upstream;
  link->downstream = downstream;
  scenario->addLink(link, 0);
  upstream->addDownstream(link);
  downstream->addUpstream(link);
}

/// A reservoir in the middle of so many links, half of them to it, half from it, from and to reservoirs of their own.
std::shared_ptr<Scenario> makeStar(unsigned links) {
  auto scenario = makeScenario();
  const auto middle = addReservoir(scenario, 1);
  for (unsigned pair = 0; pair < links / 2; ++pair) {
    const auto end = addReservoir(scenario, pair + 2);
    addLink(scenario, links + 2 * pair, middle, end);
    addLink(scenario, links + 2 * pair + 1, end, middle);
  }
  return scenario;
}

template <typename Call>
double secondsOfStep(Call call) {
  return secondsOf([&] {
    call();
    return 0;
  });
}

double fold(unsigned links) {
  const auto scenario = makeStar(links);
  return secondsOfStep([&] { LagomareProjectLoader::transformBirectionalLinks(scenario); });
}

double deleteLinks(unsigned links) {
  const auto scenario = makeStar(links);
  const auto elements = scenario->getElements();
  return secondsOfStep([&] {
    for (const auto& element : elements)
      if (std::dynamic_pointer_cast<Link>(element))
        CoreServiceManager::deleteElementNoDatabase(scenario, element);
  });
}

double deleteNodes(unsigned links) {
  const auto scenario = makeStar(links);
  const auto elements = scenario->getElements();
  return secondsOfStep([&] {
    for (const auto& element : elements)
      CoreServiceManager::deleteElementNoDatabase(scenario, element);
  });
}

double lookUpSettings(unsigned elements) {
  const auto scenario = makeScenario();
  for (unsigned id = 1; id <= elements; ++id)
    addReservoir(scenario, id);
  return secondsOfStep([&] {
    for (unsigned id = 1; id <= elements; ++id)
      if (!scenario->getSettingsManager().getSettings(id))
        throw std::runtime_error("a reservoir has no settings");
  });
}

template <typename Parse>
double parse(unsigned rows, Parse parse) {
  const std::string file = "growth.txt";
  writeValues(file, rows / 600, 600);
  return secondsOf([&] {
    std::ifstream answer(file, std::ios::binary);
    return parse(answer);
  });
}

double parseToRows(unsigned rows) {
  return parse(rows, [](std::istream& answer) { return parseRows(answer); });
}

double parseToValues(unsigned rows) {
  return parse(rows, [](std::istream& answer) { return parseValues(answer); });
}

/// Cost of an import, that of the query executable included.
double import(const BasinSize& size) {
  const std::string database = "growth.db";
  std::remove(database.c_str());
  writeBasin(database, size);
  return secondsOf([&] {
    const LagomareTools::Project project({database, {}, {}, {}});
    return importScenario(project, [](long, long) {});
  });
}

} // namespace

void addGrowthBenches(Table& table) {
  addGrowth(table, "answer file → `QueryResult`, per row of 6,000 ×", nanoseconds, 6000, parseToRows);
  addGrowth(table, "answer file → `ValueResult`, per row of 6,000 ×", nanoseconds, 6000, parseToValues);
  addGrowth(table, "import, per node of 50 × with 120 months, 3 states", milliseconds, 50, [](unsigned nodes) {
    return import({nodes, 10, 3});
  });
  addGrowth(table, "import of 20 nodes with 12 months, per state of 2 ×", milliseconds, 2, [](unsigned states) {
    return import({20, 1, states});
  });
  addGrowth(table, "fold of two-way links at one reservoir, per link of 1,000 ×", nanoseconds, 1000, fold);
  addGrowth(table, "deletion of the links of one reservoir, per link of 1,000 ×", nanoseconds, 1000, deleteLinks);
  addGrowth(table, "deletion of all elements, per link of 1,000 ×", nanoseconds, 1000, deleteNodes);
  addGrowth(table, "look-up of settings, per element of 1,000 ×", nanoseconds, 1000, lookUpSettings);
}

} // namespace LagomareBench
