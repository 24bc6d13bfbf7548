#pragma once

#include "tools/query/Database.h"
#include "tools/query/answer/AnswerSink.h"

namespace LagomareQuery {

/// Runs the one statement in `sql`, which must select, and writes its rows to `sink` while it reads them. Throws
/// QueryError, DatabaseChanged among them, also behind rows that are already written, and whatever the sink throws.
void writeRows(const Database& database, const std::string& sql, AnswerSink& sink);

} // namespace LagomareQuery
