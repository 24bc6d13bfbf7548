#pragma once

#include "tools/check/result/CheckResult.h"
#include "tools/project/Fault.h"

#include <string>

namespace LagomareTools {

/// What a check found, for people: the faults by code with how to mend them, the rows that stay behind, what no import
/// reads. `project` is the project's name as the user wrote it. Without `listsAll`, ten faults of each code at most.
[[nodiscard]] std::string textOf(const CheckResult& result, const std::string& project, bool listsAll);

/// One fault on one line: where, then what.
[[nodiscard]] std::string lineOf(const Fault& fault);

/// "2 errors, 1 warning, no notes".
[[nodiscard]] std::string countsOf(const CheckResult& result);

/// Every code with its severity, what it means and how to mend it, as Markdown.
[[nodiscard]] std::string rulesText();

} // namespace LagomareTools
