#include "access/Answer.h"
#include "access/Fields.h"
#include "access/QueryResult.h"
#include "bench/Answers.h"
#include "bench/Benches.h"
#include "bench/Child.h"
#include "bench/Table.h"
#include "bench/plain/PlainRows.h"
#include "bench/plain/PlainSerie.h"
#include "elements/common/ElementMap.h"
#include "elements/common/Elements.h"
#include "elements/common/Series.h"
#include "model/Calendar.h"
#include "model/ElementFactory.h"
#include "model/ElementType.h"
#include "model/Interval.h"
#include "model/Serie.h"
#include "model/SerieType.h"

#include <fstream>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace LagomareBench {

using namespace Lagomare;

namespace {

const std::string file = "series.txt";
constexpr unsigned ids = 500;
constexpr unsigned months = 1200;

const Interval interval(Date(1900, 1, 1), Date(1999, 12, 1), MonthlyType());
const Plain::Interval plainInterval{Plain::Date(1900, 1, 1), Plain::Date(1999, 12, 1)};

using PlainSeries = std::map<unsigned, Plain::Serie>;

ElementMap junctions() {
  ElementMap elements;
  for (unsigned id = 1; id <= ids; ++id)
    elements[id] = ElementFactory::make(ElementType::Junction);
  return elements;
}

Serie& flowOf(const ElementMap& elements, unsigned id) {
  return serieOf(*elements.at(id), SerieType::NaturalAffluentFlow);
}

void lay(const std::vector<double>& values, Serie& serie) {
  std::size_t step = 0;
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    serie.setValue(date, values[step++]);
}

void lay(const std::vector<double>& values, Plain::Serie& serie) {
  std::size_t step = 0;
  for (Plain::Date date = plainInterval.begin; date <= plainInterval.end; date = date.nextMonth())
    serie.setValue(date, values[step++]);
}

PlainSeries plain() {
  PlainSeries series;
  for (const auto& [id, rows] : Plain::readRows(file)) {
    std::vector<double> values;
    for (const auto& row : rows)
      values.push_back(std::stod(row.at(1)));
    lay(values, series[id]);
  }
  return series;
}

ElementMap throughQueryResult() {
  auto elements = junctions();
  std::ifstream answer(file, std::ios::binary);
  for (const auto& [id, rows] : parseRows(answer)) {
    std::vector<double> values;
    for (const Row& row : rows)
      values.push_back(numberAt(row, 1));
    Serie& flow = flowOf(elements, id);
    lay(values, flow);
    flow.setInterval(interval);
  }
  return elements;
}

/// What the loaders do.
ElementMap throughValueResult() {
  auto elements = junctions();
  std::ifstream answer(file, std::ios::binary);
  loadSeries(parseValues(answer), elements, SerieType::NaturalAffluentFlow, interval, Layout::Sequence);
  return elements;
}

void requireEqual(const ElementMap& elements) {
  for (const auto& [id, expected] : plain()) {
    Plain::Date plainDate = plainInterval.begin;
    for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval)) {
      if (flowOf(elements, id).getValue(date) != expected.getValue(plainDate))
        throw std::runtime_error("the series of " + std::to_string(id) + " differ");
      plainDate = plainDate.nextMonth();
    }
  }
}

/// In processes of their own, the second of two calls.
template <typename Fill>
std::function<double()> secondFilling(Fill fill) {
  return [fill] {
    return inChild([&] {
      static_cast<void>(fill());
      return secondsOf(fill);
    });
  };
}

template <typename Fill>
Work& addFilling(Table& table, const std::string& name, Fill fill) {
  Work& work = table.add(name, nanoseconds);
  work.setCheck([fill] { static_cast<void>(inChild([&] { return requireEqual(fill()), 0.0; })); });
  work.add("plain", ids * months, secondFilling(plain));
  work.add("ours", ids * months, secondFilling(fill));
  return work;
}

void addLaying(Table& table) {
  Work& work = table.add("value onto a series, date walk included", nanoseconds);
  const std::vector<double> values(months, 1.5);
  work.addLoop("plain", months, [values] {
    Plain::Serie serie;
    lay(values, serie);
    benchmark::DoNotOptimize(serie);
  });
  work.addLoop("ours", months, [values, elements = junctions()] {
    lay(values, flowOf(elements, 1));
    benchmark::ClobberMemory();
  });
  work.addLoop("floor", months, [values, dense = std::vector<double>(months)]() mutable {
    for (std::size_t step = 0; step < months; ++step) {
      dense[step] = values[step];
      benchmark::ClobberMemory();
    }
  });
  work.aimAtMost("ours", "", 5.0);
}

} // namespace

void addSeriesBenches(Table& table) {
  writeValues(file, ids, months);
  addLaying(table);
  addFilling(table, "answer file → filled series, through `QueryResult`", throughQueryResult)
      .aimAtLeast("plain", "ours", 2.5);
  addFilling(table, "answer file → filled series, through `ValueResult` as the loaders do", throughValueResult)
      .aimAtLeast("plain", "ours", 12.0);
}

} // namespace LagomareBench
