#pragma once

#include "tools/system/FileWriter.h"

#include <array>

class Scenario;

namespace LagomareTools {

/// One of the tables (RFC 4180, UTF-8) that a scenario is written as. Writing does not flush and throws Failure.
struct CsvTable {
  const char* fileName;
  void (*write)(FileWriter& out, const Scenario& scenario);
};

/// elements.csv, links.csv, series.csv and curves.csv.
extern const std::array<CsvTable, 4> csvTables;

} // namespace LagomareTools
