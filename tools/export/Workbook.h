#pragma once

#include "tools/export/Sheet.h"

#include <filesystem>
#include <list>
#include <string>

struct lxw_workbook;

namespace LagomareTools {

/// An Excel workbook (Office Open XML) in the making. Its sheets are kept in temporary files until it is saved, not in
/// memory.
class Workbook {
public:
  explicit Workbook(const std::filesystem::path& file);
  ~Workbook();
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  /// The name must be new and have no more than 31 characters. Throws Failure.
  Sheet& addSheet(const std::string& name);
  /// Writes the file. Nothing can be added afterwards. Throws Failure.
  void save();

private:
  lxw_workbook* workbook_;
  Sheet::Formats formats_;
  std::list<Sheet> sheets_;
};

} // namespace LagomareTools
