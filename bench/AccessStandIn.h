#pragma once

#include <string>

namespace LagomareBench {

/// Writes a copy of the Access sample whose table FrontEH (EstHidr long integer, Valor double) holds so many rows
/// instead of its own: pages of rows made after its first one are put behind the file's last page, and the table's
/// definition and map of pages are changed to say so. Row n, from 1, holds n % 5000 + 1 and accessValue(n).
void writeAccessStandIn(const std::string& sample, const std::string& file, unsigned rows);

/// Four decimals.
[[nodiscard]] double accessValue(unsigned row);

} // namespace LagomareBench
