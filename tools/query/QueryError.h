#pragma once

#include <stdexcept>

namespace LagomareQuery {

/// A query that cannot be answered; the text says what failed and, where known, how to mend it.
class QueryError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

} // namespace LagomareQuery
