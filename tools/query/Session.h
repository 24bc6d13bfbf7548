#pragma once

#include "tools/query/answer/AnswerStream.h"
#include <istream>
#include <string>

namespace LagomareQuery {

/// Answers each line of `queries`, FLAG SQL, from the database at `path`, which is opened once. A query that fails does
/// not end the session; the end of `queries` does. Returns false where the database was changed, which ends it too.
/// Throws QueryError where the database cannot be opened, and what AnswerStream throws.
[[nodiscard]] bool runSession(const std::string& path, std::istream& queries, AnswerStream& answers);

} // namespace LagomareQuery
