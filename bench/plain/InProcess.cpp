#include "bench/plain/InProcess.h"

#include "model/Date.h"
#include "model/Interval.h"

namespace Plain {

namespace {

::Date firstDateOf(const Months& months) {
  return ::Date(static_cast<unsigned>(months.firstYear), static_cast<unsigned char>(months.firstMonth), 1);
}

::Interval intervalOf(const Months& months) {
  ::Date end = firstDateOf(months);
  end.setYear(end.getYear() + months.count / 12);
  --end;
  end.setDay(1, end.getMonth(), end.getYear());
  return ::Interval(firstDateOf(months), end, MonthlyType());
}

} // namespace

void DenseSerie::lay(const std::vector<double>& values, const Months& months) {
  const auto interval = intervalOf(months);
  if (serie_.getInterval().isEmpty())
    serie_.fill(0.0, interval);
  std::size_t step = 0;
  for (auto date = interval.getBegin(); date <= interval.getEnd() && step < values.size();
       date += Calendar::incInterval(date, interval))
    serie_.setValue(date, values[step++]);
}

void DenseSerie::fill(double value, const Months& months) { serie_.fill(value, intervalOf(months)); }

std::vector<double> DenseSerie::getValues(const Months& months) const {
  const auto interval = intervalOf(months);
  std::vector<double> values;
  for (auto date = interval.getBegin(); date <= interval.getEnd(); date += Calendar::incInterval(date, interval))
    values.push_back(serie_.getValue(date));
  return values;
}

Rows InProcess::rows(const std::string& sql) const {
  Rows rows;
  const auto statement = LagomareQuery::prepare(connection_.get(), sql);
  while (LagomareQuery::step(statement.get())) {
    Row row;
    for (int column = 0; column < sqlite3_column_count(statement.get()); ++column)
      row.emplace_back(LagomareQuery::textColumn(statement.get(), column));
    rows[static_cast<unsigned>(sqlite3_column_int64(statement.get(), 0))].push_back(row);
  }
  return rows;
}

} // namespace Plain
