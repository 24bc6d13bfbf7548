#pragma once

#include "tools/query/access/AccessRecord.h"
#include <sqlite3.h>

namespace LagomareQuery {

/// Hands a cell to SQLite: numbers as they are, a single as the double of its shortest text, currency and decimal as
/// the double nearest to their decimal text, dates as ISO text, truth values as 1 and 0. This is the only place that
/// turns a cell into a value. Throws QueryError.
void giveCell(sqlite3_context* context, const AccessFile& file, const AccessColumn& column, const AccessRecord& record);

/// The SQL type under which SQLite compares a column of this type with texts and numbers.
[[nodiscard]] const char* sqlType(AccessType type);

} // namespace LagomareQuery
