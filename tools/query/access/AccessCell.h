#pragma once

#include "tools/query/access/AccessRecord.h"
#include <sqlite3.h>

namespace LagomareQuery {

/// Converts a cell to a value of SQLite. A single becomes the double with the same shortest text, currency and decimal
/// the double nearest to their decimal text, a date ISO text, a truth value 1 or 0. All conversions are here. Throws
/// QueryError.
void giveCell(sqlite3_context* context, const AccessFile& file, const AccessColumn& column, const AccessRecord& record);

/// The SQL type of a column, which decides how SQLite compares it with texts and numbers.
[[nodiscard]] const char* sqlType(AccessType type);

} // namespace LagomareQuery
