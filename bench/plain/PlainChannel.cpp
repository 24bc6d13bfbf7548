#include "bench/plain/PlainChannel.h"

#include "bench/plain/PlainDate.h"

#include <cstdlib>
#include <fstream>

namespace Plain {

namespace {

Date firstDateOf(const Months& months) { return Date(months.firstYear, months.firstMonth, 1); }

} // namespace

void MapSerie::lay(const std::vector<double>& values, const Months& months) {
  Date date = firstDateOf(months);
  for (unsigned step = 0; step < months.count && step < values.size(); ++step) {
    serie_.setValue(date, values[step]);
    date = date.nextMonth();
  }
}

void MapSerie::fill(double value, const Months& months) { lay(std::vector<double>(months.count, value), months); }

std::vector<double> MapSerie::getValues(const Months& months) const {
  std::vector<double> values;
  Date date = firstDateOf(months);
  for (unsigned step = 0; step < months.count; ++step) {
    values.push_back(serie_.getValue(date));
    date = date.nextMonth();
  }
  return values;
}

Rows Channel::rows(const std::string& sql) const {
  std::ofstream("script.bat") << executable_ << " \"" << database_ << "\" \"" << sql << "\" 1\n";
  [[maybe_unused]] const int exitCode = std::system("sh script.bat");
  return readRows("query-result.txt");
}

} // namespace Plain
