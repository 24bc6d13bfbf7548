#pragma once

#include "access/QueryResult.h"
#include "access/ValueResult.h"

#include <string>

class TeluCoreProgressBar;

namespace Lagomare {

// What a loading step does besides filling elements: it takes its loader, asks the query channel, and counts itself.

/// The loader that a step was given. Throws std::bad_cast where it is another kind's.
template <typename Loader, typename Base>
[[nodiscard]] Loader& as(Base* base) {
  return dynamic_cast<Loader&>(*base);
}

[[nodiscard]] QueryResult ask(const std::string& sql, bool flag);

/// For a query of an id and one value, which may have a row per element and date.
[[nodiscard]] ValueResult askValues(const std::string& sql, bool flag);

/// Ends a loading step: one step of progress. Throws TeluCoreProgressBar::ProgressCancelException where the host
/// asks to stop.
void finishStep(TeluCoreProgressBar& bar);

} // namespace Lagomare
