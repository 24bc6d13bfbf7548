#pragma once

#include "tools/query/Database.h"
#include "tools/query/answer/AnswerSink.h"

#include <string>

namespace LagomareQuery {

/// Runs the one statement in `sql`, which must select, and writes its rows to `sink` while it reads them. Throws
/// QueryError (or DatabaseChanged), possibly after some rows have been written, and what the sink throws.
void writeRows(const Database& database, const std::string& sql, AnswerSink& sink);

} // namespace LagomareQuery
