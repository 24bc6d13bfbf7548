#include "elements/common/Series.h"

#include "model/Calendar.h"
#include "model/Element.h"

namespace Lagomare {

void loadSeries(const ValueResult& values, const ElementMap& elements, SerieType type, const Interval& interval,
                Layout layout) {
  for (const auto& [id, column] : values) {
    const auto element = findElement<Element>(elements, id);
    if (!element)
      continue;
    Serie& serie = serieOf(*element, type);
    column.requireNumbers();
    layAsNeeded(column, serie, interval, layout);
  }
}

void layAsNeeded(const ValueColumn& values, Serie& serie, const Interval& interval, Layout layout) {
  std::size_t step = 0;
  for (Date date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval)) {
    const std::size_t row = layout == Layout::MonthlyProfile ? date.getMonth() - 1U : step++;
    if (row < values.size())
      serie.setValue(date, values.numberAt(row));
  }
  serie.setInterval(interval);
}

} // namespace Lagomare
