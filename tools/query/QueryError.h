#pragma once

#include <stdexcept>

namespace LagomareQuery {

/// A query that cannot be answered. The text says what failed and, if known, how to mend it.
class QueryError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// The database is no longer the one that was opened, so no further query can be answered.
class DatabaseChanged : public QueryError {
public:
  using QueryError::QueryError;
};

} // namespace LagomareQuery
