#pragma once

#include "bench/Table.h"

#include <filesystem>
#include <string>
#include <vector>

namespace LagomareBench {

/// Where the programs and files are that the benches run on, and how large a basin they import.
struct Setting {
  std::filesystem::path programs; ///< holds the query executable and the bench's own helpers
  std::filesystem::path samples;  ///< Access files
  std::filesystem::path examples; ///< projects as SQL
  bool isLarge = false;
};

/// What a user calls, without what it prints.
[[nodiscard]] std::vector<std::string> importCommand(const Setting& setting, const std::string& project);
[[nodiscard]] std::vector<std::string> checkCommand(const Setting& setting, const std::string& project);

void addParserBenches(Table& table, const Setting& setting);
void addNumberBenches(Table& table);
void addSeriesBenches(Table& table);
void addQueryBenches(Table& table, const Setting& setting);
void addAccessBenches(Table& table, const Setting& setting);
void addExampleBenches(Table& table, const Setting& setting);
void addImportBenches(Table& table, const Setting& setting);
/// Into a table of their own, headed by how many times larger the work is.
void addGrowthBenches(Table& table);

} // namespace LagomareBench
