#pragma once

#include "tools/project/Inputs.h"

namespace LagomareTools {

/// The dialect whose table of general settings the database holds, empty or not: asked through the channel, which must
/// be open. Throws Failure where it holds both tables, or neither.
[[nodiscard]] Dialect findDialect(const Inputs& inputs, const std::string& plainDatabase);

} // namespace LagomareTools
