#pragma once

#include "lagomare_export.h"

#include <istream>
#include <memory>
#include <string>

namespace Lagomare {

/// Answers the queries on one legacy database. A host gives one to the query channel
/// (LagomareProjectManager::setSource), which then writes no script and reads no answer file.
///
/// What a source may rely on:
/// - Queries come one at a time, on the importing thread, in the import's order. The stream of an answer is destroyed
///   before the next query comes, also after an exception.
/// - An exception, from ask() or from the stream's buffer in the middle of an answer, leaves the import unchanged,
///   whatever its type. Nothing of that answer is kept.
///
/// What the import relies on:
/// - An answer is text: one line per row, in stored order, each field followed by one blank, then one more field, which
///   is not data. It may be read while it is still being made.
/// - The end of the stream is the end of a complete answer. A source that cannot complete an answer throws: an answer
///   that just ends is taken for a whole one.
class LAGOMARE_EXPORT QuerySource {
public:
  virtual ~QuerySource();

  /// Runs a query. `flag` is the last word of the script's line, see LagomareProjectManager::buildScript. The caller
  /// owns the stream, which is never null, and destroys it before the source.
  [[nodiscard]] virtual std::unique_ptr<std::istream> ask(const std::string& sql, bool flag) = 0;

protected:
  QuerySource() = default;
  QuerySource(const QuerySource&) = default;
  QuerySource& operator=(const QuerySource&) = default;
};

} // namespace Lagomare
