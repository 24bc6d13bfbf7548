#pragma once

#include <stdexcept>

namespace LagomareQuery {

/// A query that cannot be answered; the text says what failed and, where known, how to mend it.
class QueryError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The database is no longer what was opened: nothing more can be answered from it.
class DatabaseChanged : public QueryError {
public:
  using QueryError::QueryError;
};

} // namespace LagomareQuery
