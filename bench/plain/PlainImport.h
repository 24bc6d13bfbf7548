#pragma once

#include "bench/plain/PlainRows.h"
#include "model/ElementType.h"
#include "model/SerieType.h"
#include "model/TeluUtmDegreeConversion.h"

#include <array>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace Plain {

/// The months that a scenario covers.
struct Months {
  int firstYear;
  int firstMonth; ///< 1 to 12
  unsigned count;
};

/// S holds the values of a series: lay(values, months), fill(value, months), getValues(months).
template <typename S>
struct Element {
  std::string name;
  double x = 0.0;
  double y = 0.0;
  std::map<SerieType, S> series;
  int priority = 0;
  bool isInSystem = false;
  std::vector<std::pair<unsigned, S>> states; ///< priority and series of each hydrological state
  std::array<double, 3> volumes{};            ///< initial, minimum, maximum
  std::vector<std::array<double, 3>> curve;
  unsigned upstream = 0;
  unsigned downstream = 0;
};

template <typename S>
struct Scenario {
  using Elements = std::map<unsigned, Element<S>>;
  Months months{};
  std::size_t states = 0;
  std::map<ElementType, Elements> elements;
};

/// Imports a project of the 2013 dialect with the queries of the library, in its order: what loads well, and nothing
/// else, so no drains, no tactical projects, no errors of its own. A source answers the queries: rows(sql), and
/// forEachSeries(sql, visit(id, values)).
template <typename Source>
class Import {
public:
  using S = typename Source::Serie;
  using Elements = typename Scenario<S>::Elements;

  explicit Import(Source& source) : source_(source) {}

  Scenario<S> run() {
    loadSettings();
    for (const auto& [type, sql] : idQueries)
      for (const auto& row : source_.rows(sql))
        scenario_.elements[type][row.first];
    loadReservoirs(scenario_.elements[ElementType::Reservoir]);
    loadDemands(scenario_.elements[ElementType::HumanDemand]);
    loadJunctions(scenario_.elements[ElementType::Junction]);
    loadLinks(scenario_.elements[ElementType::NaturalLink]);
    return std::move(scenario_);
  }

private:
  static inline const std::vector<std::pair<ElementType, std::string>> idQueries{
      {ElementType::Reservoir, "select NumPonto from Tk_Res_FEA"},
      {ElementType::HumanDemand, "select NumPonto from Tk_Dem_FEA"},
      {ElementType::Junction, "select NumPonto from Tk_Pas_FEA"},
      {ElementType::NaturalLink, "select UID from Tk_Lnk_FEA"}};

  void loadSettings() {
    const auto rows =
        source_.rows("select FORMAT(DataHoraIni, 'dd/mm/yyyy'), Duracao, OptCalc, TipoSimul from Tk_Gerais");
    const Row& settings = rows.begin()->second.front();
    const auto date = split(settings.at(0), '/');
    scenario_.months = {std::stoi(date.at(2)), std::stoi(date.at(1)),
                        12 * static_cast<unsigned>(std::stoul(settings.at(1)))};
    if (std::stoul(settings.at(2)) != 0)
      scenario_.states = source_.rows("select * from LgmFrontEH").size() + 1;
  }

  void loadNodes(Elements& elements, const Rows& rows) {
    for (const auto& [id, rowsOfId] : rows) {
      Element<S>& element = elements.at(id);
      const Row& row = rowsOfId.front();
      element.name = row.at(1);
      std::tie(element.x, element.y) = TeluUtmDegreeConversion::utmToDegree(std::stod(row.at(2)), std::stod(row.at(3)));
      element.states.resize(scenario_.states);
    }
    loadSeries(elements, SerieType::NaturalAffluentFlow, "select NumPto, Valor from LgmVazNat ");
  }

  void loadSeries(Elements& elements, SerieType type, const std::string& sql) {
    source_.forEachSeries(sql, [&](unsigned id, const std::vector<double>& values) {
      const auto found = elements.find(id);
      if (found != elements.end())
        found->second.series[type].lay(values, scenario_.months);
    });
  }

  void loadStates(Elements& elements, const std::string& priorities, const std::string& values) {
    for (const auto& [id, rows] : source_.rows(priorities + " where EstHidr = 1"))
      elements.at(id).priority = static_cast<int>(std::stod(rows.front().at(1)));
    for (const auto& [id, rows] : source_.rows(priorities))
      for (std::size_t state = 0; state < rows.size(); ++state)
        elements.at(id).states.at(state).first = static_cast<unsigned>(std::stod(rows[state].at(1)));
    for (std::size_t state = 0; state < scenario_.states; ++state)
      source_.forEachSeries(values + " where EstHidr = " + std::to_string(state + 1),
                            [&](unsigned id, const std::vector<double>& numbers) {
                              elements.at(id).states.at(state).second.lay(numbers, scenario_.months);
                            });
  }

  void loadReservoirs(Elements& elements) {
    const auto rows =
        source_.rows("select NumPonto, Nome, Coord_X, Coord_Y, VolMax, VolMin, VolIni, Subsist from Tk_Res_FEA");
    loadNodes(elements, rows);
    for (const auto& [id, rowsOfId] : rows) {
      const Row& row = rowsOfId.front();
      elements.at(id).volumes = {std::stod(row.at(6)), std::stod(row.at(5)), std::stod(row.at(4))};
      elements.at(id).isInSystem = std::stoul(row.at(7)) != 0;
    }
    for (const auto& [id, points] : source_.rows("select * from LgmResCAV"))
      for (const Row& point : points)
        elements.at(id).curve.push_back({std::stod(point.at(1)), std::stod(point.at(2)), std::stod(point.at(3))});
    loadEvaporation(elements);
    for (auto& entry : elements)
      entry.second.series[SerieType::TargetVolume].fill(1.0, scenario_.months);
    loadSeries(elements, SerieType::TargetVolume, "select NumPto, Valor from LgmResVmetaSC where EstHidr = 1");
    loadStates(elements, "select NumPto, Valor from LgmResPrior", "select NumPto, Valor from LgmResVmetaSC");
  }

  void loadEvaporation(Elements& elements) {
    for (const auto& [id, rows] : source_.rows("select NumPto, Valor from LgmResEvap")) {
      std::vector<double> evaporation;
      std::vector<double> precipitation;
      for (unsigned step = 0; step < scenario_.months.count; ++step) {
        const double net =
            std::stod(rows.at((step + static_cast<unsigned>(scenario_.months.firstMonth) - 1) % 12).at(1));
        evaporation.push_back(net >= 0.0 ? net : 0.0);
        precipitation.push_back(net >= 0.0 ? 0.0 : -net);
      }
      elements.at(id).series[SerieType::Evapotranspiration].lay(evaporation, scenario_.months);
      elements.at(id).series[SerieType::Precipitation].lay(precipitation, scenario_.months);
    }
  }

  void loadDemands(Elements& elements) {
    loadSeries(elements, SerieType::WaterDemand, "select NumPto, Valor from LgmDemDemSC where EstHidr = 1");
    loadNodes(elements, source_.rows("select NumPonto, Nome, Coord_X, Coord_Y from Tk_Dem_FEA"));
    loadStates(elements, "select NumPto, Valor from LgmDemPrior", "select NumPto, Valor from LgmDemDemSC");
  }

  void loadJunctions(Elements& elements) {
    loadNodes(elements, source_.rows("select NumPonto, Nome, Coord_X, Coord_Y from Tk_Pas_FEA"));
  }

  void loadLinks(Elements& elements) {
    for (const auto& [id, rows] : source_.rows("select NumLnk, Valor from LgmLnkCmaxSC where EstHidr = 1"))
      elements.at(id).series[SerieType::LinkLimitSerie].fill(std::stod(rows.front().at(1)), scenario_.months);
    for (const auto& [id, rows] : source_.rows("select UID, Nome, NoIni, NoFim, Coef, Cmin from Tk_Lnk_FEA")) {
      Element<S>& link = elements.at(id);
      const Row& row = rows.front();
      link.name = row.at(1);
      link.upstream = static_cast<unsigned>(std::stoul(row.at(2)));
      link.downstream = static_cast<unsigned>(std::stoul(row.at(3)));
      link.series[SerieType::LinkLoss].fill(std::stod(row.at(4)) * 100.0, scenario_.months);
    }
  }

  Source& source_;
  Scenario<S> scenario_;
};

} // namespace Plain
