#pragma once

#include "bench/plain/PlainImport.h"
#include "bench/plain/PlainRows.h"
#include "bench/plain/PlainSerie.h"

#include <string>
#include <utility>
#include <vector>

namespace Plain {

/// Values by date.
class MapSerie {
public:
  void lay(const std::vector<double>& values, const Months& months);
  void fill(double value, const Months& months);
  [[nodiscard]] std::vector<double> getValues(const Months& months) const;

private:
  Serie serie_;
};

/// Asks a query executable through a script, as the library does.
class Channel {
public:
  using Serie = MapSerie;

  Channel(std::string executable, std::string database)
      : executable_(std::move(executable)), database_(std::move(database)) {}

  [[nodiscard]] Rows rows(const std::string& sql) const;

  template <typename Visit>
  void forEachSeries(const std::string& sql, Visit visit) const {
    for (const auto& [id, rowsOfId] : rows(sql)) {
      std::vector<double> values;
      for (const Row& row : rowsOfId)
        values.push_back(std::stod(row.at(1)));
      visit(id, values);
    }
  }

private:
  std::string executable_;
  std::string database_;
};

} // namespace Plain
