#pragma once

#include "access/ValueColumn.h"

#include <cstdint>
#include <map>

namespace Lagomare {

/// The answer to a query of an id and one value: what a QueryResult holds, for answers of millions of rows. The ids
/// ascend.
using ValueResult = std::map<std::uint32_t, ValueColumn>;

} // namespace Lagomare
