#include "elements/common/Series.h"

#include "model/Calendar.h"

#include <optional>

namespace Lagomare {

namespace {

std::size_t rowOf(const Date& date, std::size_t step, Layout layout) {
  return layout == Layout::MonthlyProfile ? date.getMonth() - 1U : step;
}

/// Writes value(row) at each date of the interval whose row is one of so many.
template <typename Value>
void lay(std::size_t rows, Serie& serie, const Interval& interval, Layout layout, Value value) {
  std::size_t step = 0;
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval)) {
    const std::size_t row = rowOf(date, step++, layout);
    if (row < rows)
      serie.setValue(date, value(row));
  }
  serie.setInterval(interval);
}

} // namespace

void loadSeries(const ValueResult& values, const ElementMap& elements, SerieType type, const Interval& interval,
                Layout layout) {
  std::vector<double> numbers;
  values.forEachId([&](std::uint32_t id, const ValueColumn& column) {
    const auto element = findElement<Element>(elements, id);
    if (!element)
      return;
    Serie& serie = serieOf(*element, type);
    numbers.clear();
    for (std::size_t row = 0; row < column.size(); ++row)
      numbers.push_back(column.numberAt(row));
    lay(numbers.size(), serie, interval, layout, [&numbers](std::size_t row) { return numbers[row]; });
  });
}

void layAsNeeded(const ValueColumn& values, Serie& serie, const Interval& interval, Layout layout) {
  std::vector<std::optional<double>> numbers(values.size());
  lay(values.size(), serie, interval, layout, [&](std::size_t row) {
    auto& number = numbers[row];
    if (!number)
      number = values.numberAt(row);
    return *number;
  });
}

} // namespace Lagomare
