#pragma once

#include "lagomare_export.h"

#include <istream>
#include <memory>
#include <string>

namespace Lagomare {

/// Something that answers queries on one legacy database. A host gives one to the query channel
/// (LagomareProjectManager::setSource) to answer its queries without the script and the answer file.
///
/// What an import relies on and promises:
/// - Queries come one at a time, on the importing thread, in the import's order. The stream of an answer is destroyed
///   before the next query comes.
/// - An answer is text: one line per row, in stored order, each field followed by one blank, then one more field, which
///   is not data. It may be read while it is still being made.
/// - A query that cannot be answered throws, from ask() or, once part of the answer has been read, from the stream's
///   buffer. The exception leaves the import unchanged, and nothing of that answer is kept.
class LAGOMARE_EXPORT QuerySource {
public:
  virtual ~QuerySource();

  /// Runs a query. `flag` is the last word of the script's line, see LagomareProjectManager::buildScript. The stream is
  /// never null; it must not outlive the source.
  [[nodiscard]] virtual std::unique_ptr<std::istream> ask(const std::string& sql, bool flag) = 0;

protected:
  QuerySource() = default;
  QuerySource(const QuerySource&) = default;
  QuerySource& operator=(const QuerySource&) = default;
};

} // namespace Lagomare
