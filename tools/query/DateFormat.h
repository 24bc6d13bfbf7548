#pragma once

#include <sqlite3.h>
#include <string>
#include <string_view>

namespace LagomareQuery {

/// An ISO date, with or without a time ("2000-01-15", "2000-01-15T13:45:00"), in the form that `pattern` asks for with
/// dd, mm and yyyy in either case; what is no letter stands for itself. Throws QueryError.
[[nodiscard]] std::string formatDate(std::string_view isoDate, std::string_view pattern);

/// Gives SQL the function FORMAT(date, pattern): formatDate, NULL for NULL. With two arguments it takes precedence over
/// SQLite's own function of that name.
void registerDateFormat(sqlite3* connection);

} // namespace LagomareQuery
