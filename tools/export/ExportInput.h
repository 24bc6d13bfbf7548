#pragma once

#include "tools/project/Fault.h"
#include "tools/project/Imported.h"
#include "tools/project/UtmZone.h"

#include <optional>
#include <string>
#include <vector>

namespace LagomareTools {

enum class CsvFormat { rfc4180, excelBr };

/// What the outputs of an import are made from.
struct ExportInput {
  Imported imported;
  std::string projectName; ///< as the user wrote it
  UtmZone utmZone;
  bool isZoneAssumed;
  CsvFormat csvFormat;
  std::optional<std::vector<Fault>> faults; ///< what the check found; nothing with --no-check
};

} // namespace LagomareTools
