#pragma once

#include "tools/export/ExportInput.h"
#include "tools/export/Table.h"
#include "tools/system/FileWriter.h"

#include <array>

namespace LagomareTools {

/// One of the CSV files that a scenario is written as.
struct CsvTable {
  const char* fileName;
  const Table& table;
};

/// elements.csv, links.csv, series.csv and curves.csv.
extern const std::array<CsvTable, 4> csvTables;

/// Writes a table in input.csvFormat: by RFC 4180, or as a Brazilian spreadsheet opens it, with a byte order mark,
/// semicolons and decimal commas. UTF-8. Does not flush. Throws Failure.
void writeCsv(FileWriter& out, const Table& table, const ExportInput& input);

} // namespace LagomareTools
