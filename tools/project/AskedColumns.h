#pragma once

#include <cstddef>
#include <string>

namespace LagomareTools {

// What a query of the library asks for: "select a, FORMAT(b, '…') from table where …".

/// The table that a query reads.
[[nodiscard]] std::string askedTable(const std::string& sql);

/// The name of a column of the answer, by its index from 0. Its number from 1 if the query asks for all columns.
[[nodiscard]] std::string askedColumn(const std::string& sql, std::size_t index);

} // namespace LagomareTools
