#pragma once

#include "tools/check/result/CheckResult.h"

#include <string>

namespace LagomareTools {

/// What a check found, as docs/check.schema.json describes it; ends with a line feed. `project` as for textOf().
[[nodiscard]] std::string jsonOf(const CheckResult& result, const std::string& project);

} // namespace LagomareTools
