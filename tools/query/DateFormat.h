#pragma once

#include <sqlite3.h>
#include <string>
#include <string_view>

namespace LagomareQuery {

/// Returns an ISO date, with or without a time ("2000-01-15", "2000-01-15T13:45:00"), in the form of `pattern`: dd, mm
/// and yyyy in either case are replaced, characters that are no letters are kept. Throws QueryError.
[[nodiscard]] std::string formatDate(std::string_view isoDate, std::string_view pattern);

/// Adds the SQL function FORMAT(date, pattern), which calls formatDate and returns NULL for NULL. With two arguments it
/// takes precedence over SQLite's own function of that name.
void registerDateFormat(sqlite3* connection);

} // namespace LagomareQuery
