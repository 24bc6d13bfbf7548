#pragma once

#include "tools/query/answer/AnswerStream.h"
#include <istream>
#include <string>

namespace LagomareQuery {

/// Opens a database once and answers each line of `queries`, FLAG SQL, from it. A query that fails does not end the
/// session; the end of `queries` does. Returns false if the session ended because the database was changed. Throws
/// QueryError if the database cannot be opened or is damaged, and what AnswerStream throws.
[[nodiscard]] bool runSession(const std::string& path, std::istream& queries, AnswerStream& answers);

} // namespace LagomareQuery
