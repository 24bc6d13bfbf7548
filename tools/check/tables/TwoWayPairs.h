#pragma once

#include "tools/check/tables/Elements.h"

#include <cstdint>
#include <map>

namespace LagomareTools {

/// The links that the import folds into the opposite one of the same two reservoirs: by their ids the id of the link
/// that stays. Found by the import's own fold.
[[nodiscard]] std::map<std::uint32_t, std::uint32_t> findTwoWayPartners(const Elements& elements);

} // namespace LagomareTools
